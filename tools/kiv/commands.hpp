// The commands of the kiv tool.
#pragma once

#include <string>
#include <vector>

#include "kiv.h"

namespace kiv::tool {

int run_demo();
int run_describe(const std::vector<std::string> &args);
int run_list(const std::vector<std::string> &args);
// `kiv <code> ARGS... [+ <code> ARGS...]...`: calls in turn, in one process.
int run_calls(const std::vector<std::string> &args);

// A record that keeps the library quiet: the tool prints failures itself.
inline KivError quiet_record() {
    KivError fail{};
    fail.print = 0;
    return fail;
}

// The record's message on one line (line breaks and runs of blanks made
// single blanks), for notes under tables.
inline std::string one_line(const KivError &fail) {
    std::string text;
    bool blank = false;
    for (const char *c = fail.message; *c != '\0' && c < fail.message + sizeof fail.message; ++c) {
        const bool space = *c == ' ' || *c == '\n';
        if (space && !text.empty()) blank = true;
        if (space) continue;
        if (blank) text += ' ';
        text += *c;
        blank = false;
    }
    return text;
}

}  // namespace kiv::tool
