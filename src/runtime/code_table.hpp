// The table of error codes and the names of enumeration members.
#pragma once

namespace kiv::rt {

struct CodeEntry {
    const char *name;  // "NE_ALLOC_FAIL"
    const char *text;  // printf template, starting with the name, ':' and '\n'
};

inline constexpr int kCodeTableSize = 726;
extern const CodeEntry kCodeTable[kCodeTableSize];

// Name of a code, or nullptr for a number that is neither in the table nor
// one of the library's own codes beyond it (2013 to 2015).
const char *code_name(int code);

// Template of a code, or nullptr as for code_name.
const char *code_template(int code);

// Member name of an enumeration value of the shared numbering
// ("Kiv_LowerTail"), or nullptr for a value that names no member.
const char *enum_member_name(int value);

}  // namespace kiv::rt
