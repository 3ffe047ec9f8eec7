// Internal helpers through which every routine reports its outcome.
//
// A routine with a KivError record calls, in this order: licence_check();
// clear_code(fail); its argument checks, each failure reported with
// report_template() or report_text(); and on success report_success().
#pragma once

#include <atomic>
#include <cstring>
#include <initializer_list>
#include <string>
#include <type_traits>

#include "kernels/simd.hpp"
#include "kiv.h"

namespace kiv::rt {

namespace detail {
// Set only by the test hook (testing.hpp); read on every call, so a plain
// process-wide flag rather than a thread-local (which costs a call into the
// dynamic loader per access in a shared library).
extern std::atomic<bool> refuse_calls;
}  // namespace detail

// The licence check that every top-level routine runs first. This library
// admits every call; tests can make it refuse (see testing.hpp).
inline bool licence_check() {
    return !detail::refuse_calls.load(std::memory_order_relaxed);
}

inline void clear_code(KivError *fail) {
    if (fail != nullptr) fail->code = 0;
}

// One argument of a message template: a text, an integer or a real, kept
// with its type, so that the template's conversions never read an argument
// of another type (as a C variadic list with a hand cast could).
class MessageArg {
public:
    MessageArg(const char *text) : kind_(Kind::text), text_(text) {}
    template <typename T>
    requires std::is_integral_v<T> MessageArg(T value)
        : kind_(Kind::integer), integer_(static_cast<long long>(value)) {}
    MessageArg(double value) : kind_(Kind::real), real_(value) {}

    // Appends the argument as the conversion `conversion` ('s', 'g' or 'd')
    // with a minimum `width` would print it.
    void append_to(std::string &out, char conversion, int width) const;

private:
    enum class Kind { text, integer, real };
    Kind kind_;
    const char *text_ = nullptr;
    long long integer_ = 0;
    double real_ = 0.0;
};

// The template `format` filled with `args`: the conversions of the code
// table (%s, %g, %ld, with an optional width) take the arguments in order;
// %% is a percent sign; missing arguments leave the conversion as written.
std::string format_message(const char *format, std::initializer_list<MessageArg> args);

// Formats the table's template for `code` with the arguments (bounded to
// the record's 511 characters) and reports it under `routine`.
void report_template_args(KivError *fail, const char *routine, int code,
                          std::initializer_list<MessageArg> args);

template <typename... Args>
void report_template(KivError *fail, const char *routine, int code, const Args &...args) {
    report_template_args(fail, routine, code, {MessageArg(args)...});
}

// Formats a routine's own text with the arguments and reports it.
void report_text(KivError *fail, const char *routine, int code, const char *format, ...)
    KIV_PRINTF_FORMAT(4, 5);

// Reports `code` with no message of its own: the reporter uses the
// table's text unformatted.
inline void report_code(KivError *fail, const char *routine, int code) {
    kiv_report_error(nullptr, code, routine, fail);
}

// The text that kiv_report_error stores on success (the code table's entry
// for NE_NOERROR).
inline constexpr char kNoErrorText[] = "NE_NOERROR:\n  No error.";

// Reports success (code 0) when a record is given and its code is still 0,
// exactly as kiv_report_error(nullptr, 0, routine, fail) does, without its
// table lookup and string scan on the common path: for code 0 the reporter
// prints nothing and stores the code (already 0) and the text; a handler
// set in the record is called through the reporter as usual.
inline void report_success(KivError *fail, const char *routine) {
    if (fail == nullptr || fail->code != 0) return;
    if (fail->handler != nullptr) {
        kiv_report_error(nullptr, 0, routine, fail);
        return;
    }
    std::memcpy(fail->message, kNoErrorText, sizeof kNoErrorText);
}

// A zero-filled record for a routine's private call of another routine.
inline KivError private_record() {
    KivError record{};
    return record;
}

}  // namespace kiv::rt
