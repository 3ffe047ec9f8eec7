// What the normal-distribution routines share: the tails they accept and the
// checks of the batch forms.
#pragma once

#include "kiv.h"

namespace kiv::g01 {

// The four tails of the normal-distribution routines (Kiv_TwoTail and
// Kiv_Central are members of Kiv_Tail too, but not accepted here).
inline bool is_normal_tail(Kiv_Tail tail) {
    return tail == Kiv_LowerTail || tail == Kiv_UpperTail || tail == Kiv_TwoTailSignif ||
           tail == Kiv_TwoTailConfid;
}

// Reports p <= 0 or NaN (NE_REAL_ARG_LE) and p >= 1 (NE_REAL_ARG_GE) under
// the parameter's name; true when it did.
bool report_if_outside_unit_interval(double p, KivError *fail, const char *routine,
                                     const char *name);

// The common checks of a batch form, in order: n >= 0 (NE_INT), the input
// and output arrays not null when n > 0 (NE_BAD_PARAM naming the array);
// true when one failed and was reported.
bool report_if_bad_batch(int n, const double *in, const char *in_name, const double *out,
                         KivError *fail, const char *routine);

}  // namespace kiv::g01
