// Error reporting: kiv_report_error (the record interface) and
// kiv_ifail_exit (the integer error-flag interface), with the lookups of
// code names, templates and enumeration member names.
//
// Behaviour differing deliberately from a plain implementation: the copy of
// a message into KivError::message is bounded (511 characters and the
// terminator); an unknown code reported without a message gets a generic
// text naming the number instead of reading outside the table.
#include "runtime/report.hpp"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "kiv.h"
#include "runtime/code_table.hpp"
#include "runtime/platform.hpp"

namespace kiv::rt {

namespace {

struct OwnCode {
    int code;
    const char *name;
    const char *text;
};

// Codes beyond the table, each with its own text.
constexpr OwnCode kOwnCodes[] = {
    {NE_SUM_WEIGHT, "NE_SUM_WEIGHT", "NE_SUM_WEIGHT:\n  The sum of the weights is negative."},
    {NE_ZERO_VARIANCE, "NE_ZERO_VARIANCE",
     "NE_ZERO_VARIANCE:\n    On entry, a variable has zero variance."},
    {NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE",
     "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library."},
};

struct EnumMember {
    int value;
    const char *name;
};

constexpr EnumMember kEnumMembers[] = {
    {Kiv_LowerTail, "Kiv_LowerTail"},
    {Kiv_UpperTail, "Kiv_UpperTail"},
    {Kiv_TwoTailSignif, "Kiv_TwoTailSignif"},
    {Kiv_TwoTailConfid, "Kiv_TwoTailConfid"},
    {Kiv_TwoTail, "Kiv_TwoTail"},
    {Kiv_Central, "Kiv_Central"},
    {Kiv_MeanInclude, "Kiv_MeanInclude"},
    {Kiv_MeanZero, "Kiv_MeanZero"},
    {Kiv_AboutMean, "Kiv_AboutMean"},
    {Kiv_AboutZero, "Kiv_AboutZero"},
    {Kiv_RowMajor, "Kiv_RowMajor"},
    {Kiv_ColMajor, "Kiv_ColMajor"},
};

constexpr std::size_t kMessageCapacity = sizeof(KivError{}.message);

}  // namespace

const char *code_name(int code) {
    if (code >= 0 && code < kCodeTableSize) return kCodeTable[code].name;
    for (const OwnCode &own : kOwnCodes)
        if (own.code == code) return own.name;
    return nullptr;
}

const char *code_template(int code) {
    if (code >= 0 && code < kCodeTableSize) return kCodeTable[code].text;
    for (const OwnCode &own : kOwnCodes)
        if (own.code == code) return own.text;
    return nullptr;
}

const char *enum_member_name(int value) {
    for (const EnumMember &member : kEnumMembers)
        if (member.value == value) return member.name;
    return nullptr;
}

void MessageArg::append_to(std::string &out, char conversion, int width) const {
    std::string text;
    char buffer[64];
    if (kind_ == Kind::text) {
        text = text_ != nullptr ? text_ : "(null)";
    } else if (conversion == 'g' || (conversion == 's' && kind_ == Kind::real)) {
        const double value = kind_ == Kind::real ? real_ : static_cast<double>(integer_);
        std::snprintf(buffer, sizeof buffer, "%g", value);
        text = buffer;
    } else {
        const long long value = kind_ == Kind::integer ? integer_ : static_cast<long long>(real_);
        std::snprintf(buffer, sizeof buffer, "%lld", value);
        text = buffer;
    }
    if (static_cast<int>(text.size()) < width)
        out.append(static_cast<std::size_t>(width) - text.size(), ' ');
    out += text;
}

std::string format_message(const char *format, std::initializer_list<MessageArg> args) {
    std::string out;
    const MessageArg *next = args.begin();
    for (const char *c = format; *c != '\0'; ++c) {
        if (*c != '%') {
            out += *c;
            continue;
        }
        if (c[1] == '%') {
            out += '%';
            ++c;
            continue;
        }
        // %[width][l]conversion
        const char *start = c++;
        int width = 0;
        while (*c >= '0' && *c <= '9') width = width * 10 + (*c++ - '0');
        while (*c == 'l') ++c;
        const char conversion = *c == 'd' || *c == 'i' ? 'd' : *c;
        if ((conversion != 's' && conversion != 'g' && conversion != 'd') || next == args.end()) {
            out.append(start, static_cast<std::size_t>(c - start) + (*c != '\0' ? 1 : 0));
            if (*c == '\0') break;
            continue;
        }
        (next++)->append_to(out, conversion, width);
    }
    return out;
}

void report_template_args(KivError *fail, const char *routine, int code,
                          std::initializer_list<MessageArg> args) {
    const char *format = code_template(code);
    if (format == nullptr) {
        kiv_report_error(nullptr, code, routine, fail);
        return;
    }
    std::string message = format_message(format, args);
    if (message.size() >= kMessageCapacity) message.resize(kMessageCapacity - 1);
    kiv_report_error(message.c_str(), code, routine, fail);
}

void report_text(KivError *fail, const char *routine, int code, const char *format, ...) {
    char buffer[kMessageCapacity];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    kiv_report_error(buffer, code, routine, fail);
}

}  // namespace kiv::rt

namespace {

// Writes one record to a unit: nothing for a negative unit; otherwise the
// text without its trailing blanks, and a line break, to standard output.
void write_record(int unit, const char *text, std::size_t length) {
    if (unit < 0) return;
    while (length > 0 && text[length - 1] == ' ') --length;
    kiv::platform::IoLock lock;
    std::fwrite(text, 1, length, stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

std::size_t bounded_length(const char *text, int length) {
    const std::size_t whole = std::strlen(text);
    if (length > 0 && static_cast<std::size_t>(length) < whole)
        return static_cast<std::size_t>(length);
    return whole;
}

}  // namespace

extern "C" {

KIV_API const char *kiv_error_name(int code) {
    return kiv::rt::code_name(code);
}

KIV_API void kiv_report_error(const char *message, int code, const char *routine, KivError *fail) {
    char generic[96];
    if (routine == nullptr) routine = "";
    if (message == nullptr) {
        message = kiv::rt::code_template(code);
        if (message == nullptr) {
            std::snprintf(generic, sizeof generic,
                          "NE_UNKNOWN_CODE:\n  Error code %d is not known to this library.", code);
            message = generic;
        }
    }

    if (code != 0 && (fail == nullptr || fail->print != 0)) {
        // Judge error or warning by the character after the first 'N' among
        // the first five; without one, by the sixth character.
        std::size_t at = 5;
        for (std::size_t i = 0; i < 5 && message[i] != '\0'; ++i) {
            if (message[i] == 'N') {
                at = i + 1;
                break;
            }
        }
        bool is_error = false;
        if (at == 5) {
            std::size_t len = std::strlen(message);
            is_error = len > 5 && message[5] == 'E';
        } else {
            is_error = message[at] == 'E';
        }
        std::fprintf(stderr,
                     is_error ? "Error detected by KIV routine %s:\n%s\n"
                              : "Warning from KIV routine %s:\n%s\n",
                     routine, message);
        std::fflush(stderr);
    }

    if (fail != nullptr) {
        fail->code = code;
        if (fail->handler != nullptr) fail->handler(message, code, routine);
        // Bounded copy: at most 511 characters and the terminator.
        std::size_t length = std::strlen(message);
        if (length >= sizeof fail->message) length = sizeof fail->message - 1;
        // The handler may have been given the record's own message field.
        std::memmove(fail->message, message, length);
        fail->message[length] = '\0';
    } else if (code != 0) {
        // What the program wrote to standard output before is not lost in
        // its buffer (a pipe or a file is fully buffered).
        std::fflush(stdout);
        std::fprintf(stderr, "...Program Aborted\n");
        std::fflush(stderr);
        std::abort();
    }
}

KIV_API int kiv_ifail_exit(int ifail, int ierror, const char *routine, int nrec,
                           const char *message, int routine_len, int message_len) {
    if (ierror == 0) return 0;
    if (routine == nullptr) routine = "";

    const long magnitude = ifail < 0 ? -static_cast<long>(ifail) : static_cast<long>(ifail);
    bool print = false;
    if (ifail == -1 || ifail == 0 || ifail == -13)
        print = true;
    else if (ifail > 0)
        print = (magnitude / 10) % 10 != 0;

    if (print) {
        int unit = -1;
        x04aaf(0, &unit);
        if (nrec != 0 && message != nullptr)
            write_record(unit, message, bounded_length(message, message_len));
        if (ifail == -13) return ierror;
        char line[160];
        const std::size_t name_length = bounded_length(routine, routine_len);
        std::snprintf(line, sizeof line,
                      " ** ABNORMAL EXIT from KIV Library routine %.*s: IFAIL =%6ld **",
                      static_cast<int>(name_length), routine, static_cast<long>(ierror));
        write_record(unit, line, std::strlen(line));
        if (magnitude % 10 == 1)
            write_record(unit, " ** KIV soft failure - control returned",
                         std::strlen(" ** KIV soft failure - control returned"));
        else
            write_record(unit, " ** KIV hard failure - execution terminated",
                         std::strlen(" ** KIV hard failure - execution terminated"));
    }
    // The termination hook of a hard failure does nothing in this build:
    // control returns to the caller in both cases.
    return ierror;
}

}  // extern "C"
