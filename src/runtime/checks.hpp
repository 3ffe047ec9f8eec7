// Typed argument checks. A routine makes one Checks for its call (its record
// and its name) and then reads as the list of its checks in their documented
// order: each check names the parameter once, tests it, and on failure fills
// the record from the code table's template and returns false.
//
//   const kiv::rt::Checks check(fail, "g01ecc");
//   if (!check.real_not_less("x", x, 0.0, "0.0") ||
//       !check.real_above("df", df, 0.0, "0.0")) return 0.0;
//
// A NaN fails every real check (the comparisons are written so).
#pragma once

#include "kiv.h"
#include "runtime/report.hpp"

namespace kiv::rt {

class Checks {
public:
    Checks(KivError *fail, const char *routine) : fail_(fail), routine_(routine) {}

    // value >= bound, else NE_REAL_ARG_LT "name must not be less than bound".
    bool real_not_less(const char *name, double value, double bound, const char *bound_text) const {
        return value >= bound || fault(NE_REAL_ARG_LT, name, bound_text, value);
    }
    // value > bound, else NE_REAL_ARG_LE.
    bool real_above(const char *name, double value, double bound, const char *bound_text) const {
        return value > bound || fault(NE_REAL_ARG_LE, name, bound_text, value);
    }
    // value < bound, else NE_REAL_ARG_GE.
    bool real_below(const char *name, double value, double bound, const char *bound_text) const {
        return value < bound || fault(NE_REAL_ARG_GE, name, bound_text, value);
    }
    // value <= bound, else NE_REAL_ARG_GT.
    bool real_not_above(const char *name, double value, double bound,
                        const char *bound_text) const {
        return value <= bound || fault(NE_REAL_ARG_GT, name, bound_text, value);
    }
    // value >= bound, else NE_INT_ARG_LT.
    bool int_not_less(const char *name, long value, long bound, const char *bound_text) const {
        return value >= bound || fault(NE_INT_ARG_LT, name, bound_text, value);
    }
    // value > bound, else NE_INT_ARG_LE.
    bool int_above(const char *name, long value, long bound, const char *bound_text) const {
        return value > bound || fault(NE_INT_ARG_LE, name, bound_text, value);
    }
    // A row stride at least a count, else NE_2_INT_ARG_LT.
    bool stride_at_least(const char *stride_name, long stride, const char *count_name,
                         long count) const {
        if (stride >= count) return true;
        report_template(fail_, routine_, NE_2_INT_ARG_LT, stride_name, stride, count_name, count,
                        stride_name, count_name);
        return false;
    }
    // A member of its enumeration that the routine accepts, else NE_BAD_PARAM.
    bool member(const char *name, bool accepted) const {
        if (accepted) return true;
        report_template(fail_, routine_, NE_BAD_PARAM, name);
        return false;
    }
    // A pointer that must be given, else NE_BAD_PARAM naming it.
    bool given(const char *name, const void *pointer) const {
        return member(name, pointer != nullptr);
    }

    // Reports `code` with the table's template filled with `args`.
    template <typename... Args>
    void report(int code, const Args &...args) const {
        report_template(fail_, routine_, code, args...);
    }
    // Reports `code` with the table's text as it stands.
    void report_code_only(int code) const { kiv::rt::report_code(fail_, routine_, code); }
    void success() const { report_success(fail_, routine_); }

    KivError *record() const { return fail_; }
    const char *routine() const { return routine_; }

private:
    template <typename Value>
    bool fault(int code, const char *name, const char *bound_text, Value value) const {
        report_template(fail_, routine_, code, name, bound_text, name, value);
        return false;
    }

    KivError *fail_;
    const char *routine_;
};

}  // namespace kiv::rt
