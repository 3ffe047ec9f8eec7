// Error function and normal integrals.
//
//   s15adc(x) = erfc(x) = (2/sqrt(pi)) * integral from x to inf of e^(-u^2) du
//   s15aec(x) = erf(x)  = 1 - erfc(x)
//   s15abc(x) = P(x) = 0.5 erfc(-x/sqrt(2)), the standard normal lower tail
//   s15acc(x) = Q(x) = 0.5 erfc(+x/sqrt(2)), the upper tail
//
// Every double is accepted; none of these routines reports anything.
//
// erfc, by regions of x:
//   x >= 26.6             0 (from 26.6 on; erfc(26.6) ~ 1.1e-309 is dropped)
//   x <= -6.25, and NaN   2 (NaN fails the test "x > -6.25")
//   otherwise             r = e^(-x^2) y(t), t = 1 - 7.5/(|x| + 3.75), and
//                         erfc(x) = r for x >= 0, 2 - r for x < 0.
// y is a polynomial of degree 22 in t, summed by Horner's rule from the
// highest power down; it is the expansion of e^(x^2) erfc(x) in the variable
// t = (x - 3.75)/(x + 3.75) that maps [0, inf) onto [-1, 1), after
//   C. W. Clenshaw, Chebyshev Series for Mathematical Functions, National
//     Physical Laboratory Mathematical Tables 5, HMSO, London, 1962;
//   J. Schonfelder, Chebyshev expansions for the error and related
//     functions, Mathematics of Computation 32 (1978), 1232-1240.
// e^(-x^2) comes from the library's own kernel (kernels/exp_log.hpp), with
// x^2 carried exactly in two doubles, so no rounding of x^2 enters.
//
// erf, by regions of |x| (NaN takes the middle one and gives NaN):
//   |x| >= 6.25           sign(x) (-1 for x = -0 is impossible: -0 < 6.25)
//   |x| <= 2              x S_B(x^2 - 2), a 17-term Chebyshev series
//   2 < |x| < 6.25        +-(1 - e^(-x^2) S_A(2 - 20/(|x| + 3)) / |x| / sqrt(pi))
// with both Chebyshev series summed by Clenshaw's recurrence
//   C. W. Clenshaw, A note on the summation of Chebyshev series,
//     Mathematical Tables and Other Aids to Computation 9 (1955), 118-120.
//
// The normal integrals multiply x by -c or +c, c = 0x1.6a09e667f3bccp-1 (the
// double nearest 1/sqrt 2), and halve erfc of the product. The
// normal-distribution routine g01eac uses the next double up,
// 0x1.6a09e667f3bcdp-1; the two are kept apart on purpose (results differ
// in the last bit).
//
// Accuracy measured against MPFR (tests/s/erf_test.cpp, dense grids),
// relative error:
//   s15adc on [-6.25, 26.5]          4.6e-15  (the series' own fit error,
//                                              ~3e-15 for x > 12, dominates)
//   s15aec on [-6.25, 6.25]          6.2e-16
//   s15abc, s15acc on [-37.5, 37.5]  2.2e-13  (rounding c x costs up to
//                                              x^2 2^-53 relatively)
#include "s/erf.hpp"

#include "kiv.h"

namespace {

// 1/sqrt(2) rounded to nearest, as the normal integrals use it.
constexpr double kNormalIntegralScale = 0x1.6a09e667f3bccp-1;

}  // namespace

extern "C" {

KIV_API double s15adc(double x) {
    return kiv::special::erfc_value(x);
}

KIV_API double s15aec(double x) {
    return kiv::special::erf_value(x);
}

KIV_API double s15abc(double x) {
    return kiv::special::erfc_value(x * -kNormalIntegralScale) * 0.5;
}

KIV_API double s15acc(double x) {
    return kiv::special::erfc_value(x * kNormalIntegralScale) * 0.5;
}

}  // extern "C"
