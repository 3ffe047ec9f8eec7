// Argument checks shared by the correlation routines. Each reports its
// fault with the code table's template and returns false, so that a routine
// reads as its list of checks in their documented order.
#pragma once

#include "kiv.h"
#include "runtime/report.hpp"

namespace kiv::g02 {

// value >= bound, else NE_INT_ARG_LT:
// "On entry, <name> must not be less than <bound>: <name> = <value>."
inline bool at_least(KivError *fail, const char *routine, const char *name, int value,
                     const char *bound_text, int bound) {
    if (value >= bound) return true;
    rt::report_template(fail, routine, NE_INT_ARG_LT, name, bound_text, name,
                        static_cast<long>(value));
    return false;
}

// A row stride at least the number of columns, else NE_2_INT_ARG_LT.
inline bool stride_at_least(KivError *fail, const char *routine, const char *stride_name,
                            int stride, const char *count_name, int count) {
    if (stride >= count) return true;
    rt::report_template(fail, routine, NE_2_INT_ARG_LT, stride_name, static_cast<long>(stride),
                        count_name, static_cast<long>(count), stride_name, count_name);
    return false;
}

// A pointer that must be given, else NE_BAD_PARAM naming it.
inline bool given(KivError *fail, const char *routine, const void *pointer, const char *name) {
    if (pointer != nullptr) return true;
    rt::report_template(fail, routine, NE_BAD_PARAM, name);
    return false;
}

}  // namespace kiv::g02
