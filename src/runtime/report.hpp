// Internal helpers through which every routine reports its outcome.
//
// A routine with a KivError record calls, in this order: licence_check();
// clear_code(fail); its argument checks, each failure reported with
// report_template() or report_text(); and on success report_success().
#pragma once

#include <atomic>
#include <cstring>

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

// Formats the table's template for `code` with the arguments (bounded to
// the record's 511 characters) and reports it under `routine`.
void report_template(KivError *fail, const char *routine, int code, ...);

// Formats a routine's own text with the arguments and reports it.
void report_text(KivError *fail, const char *routine, int code, const char *format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 4, 5)))
#endif
    ;

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
