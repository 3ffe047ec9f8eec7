// Tail probabilities of the standard normal distribution: g01eac and its
// batch form g01eac_v.
//
// For a standard normal X and c = 0x1.6a09e667f3bcdp-1 (0.7071067811865476,
// 1/sqrt 2 rounded up; the normal integrals s15abc/s15acc use the double
// below it), always applied as a multiplier:
//   Kiv_LowerTail      P(X <= x)                   = erfc(x * -c) / 2
//   Kiv_UpperTail      P(X >= x)                   = erfc(x * c) / 2
//   Kiv_TwoTailSignif  P(|X| >= |x|)               = erfc(|x| c)
//   Kiv_TwoTailConfid  P(|X| <= |x|)               = erf(|x| c)
// The lower tail comes from erfc of the negated argument, never as 1 - upper,
// so it keeps full relative accuracy far into the lower tail. x is not
// checked: infinities and NaN go to the error functions (erfc(NaN) = 2, so
// the lower and upper tails of NaN are 1; erf(NaN) is NaN). Any other tail
// is refused with NE_BAD_PARAM and the result 0.
//
// The error functions are those of s/erf.hpp (s15adc, s15aec), inlined.
//
// Batch form g01eac_v(tail, n, x, out, fail): out[i] = g01eac(tail, x[i])
// bit for bit, one report per call. Checks, in order: n >= 0 (NE_INT), x and
// out not null when n > 0 (NE_BAD_PARAM naming the array), the tail
// (NE_BAD_PARAM; out is then filled with 0, the scalar routine's result).
//
// Accuracy measured against MPFR (tests/g01/normal_cdf_test.cpp), relative
// error of each tail over x in [-37.5, 37.5] where the result is normal:
// below 5e-15 (the erfc series' fit error); see docs/normal.md.
#include <cmath>

#include "g01/normal_common.hpp"
#include "kiv.h"
#include "runtime/report.hpp"
#include "s/erf.hpp"

namespace {

// 1/sqrt(2) rounded up, as g01eac uses it.
constexpr double kScale = 0x1.6a09e667f3bcdp-1;

}  // namespace

extern "C" {

KIV_API double g01eac(Kiv_Tail tail, double x, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    double probability;
    switch (tail) {
        case Kiv_LowerTail:
            probability = kiv::special::erfc_value(x * -kScale) * 0.5;
            break;
        case Kiv_UpperTail:
            probability = kiv::special::erfc_value(x * kScale) * 0.5;
            break;
        case Kiv_TwoTailConfid:
            probability = kiv::special::erf_value(std::fabs(x) * kScale);
            break;
        case Kiv_TwoTailSignif:
            probability = kiv::special::erfc_value(std::fabs(x) * kScale);
            break;
        default:
            kiv::rt::report_template(fail, "g01eac", NE_BAD_PARAM, "tail");
            return 0.0;
    }
    kiv::rt::report_success(fail, "g01eac");
    return probability;
}

KIV_API void g01eac_v(Kiv_Tail tail, int n, const double x[], double out[], KivError *fail) {
    constexpr const char *kRoutine = "g01eac_v";
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    if (kiv::g01::report_if_bad_batch(n, x, "x", out, fail, kRoutine)) return;
    const kiv::kernels::LaneSet lanes = kiv::kernels::best_lane_set();
    switch (tail) {
        case Kiv_LowerTail:
            kiv::special::erfc_scaled(lanes, n, x, -kScale, false, 0.5, out);
            break;
        case Kiv_UpperTail:
            kiv::special::erfc_scaled(lanes, n, x, kScale, false, 0.5, out);
            break;
        case Kiv_TwoTailConfid:
            kiv::special::erf_scaled(lanes, n, x, kScale, out);
            break;
        case Kiv_TwoTailSignif:
            kiv::special::erfc_scaled(lanes, n, x, kScale, true, 1.0, out);
            break;
        default:
            for (int i = 0; i < n; ++i) out[i] = 0.0;
            kiv::rt::report_template(fail, kRoutine, NE_BAD_PARAM, "tail");
            return;
    }
    kiv::rt::report_success(fail, kRoutine);
}

}  // extern "C"
