// Deviates of the standard normal distribution: g01cec (lower tail) and
// g01fac (any tail).
//
// g01cec(p) returns x with P(X <= x) = p for a standard normal X, 0 < p < 1,
// from rational approximations in three regions of q = p - 0.5, with every
// polynomial summed by Horner's rule from the highest power down:
//   |q| <= 0.3          x = t A(s)/B(s), t = q sqrt(2 pi), s = t^2
//                       (degree 7 over degree 7)
//   0.3 < |q| <= 0.42   x = sign(q) C(u)/D(u), u = |q| - 0.3
//                       (degree 5 over degree 5; C(0) is the deviate of 0.8,
//                       so the pieces meet)
//   |q| > 0.42          x = sign(q) (v + E(v)/F(v)), v = sqrt(-2 ln min(p, 1-p))
//                       (degree 6 over degree 6)
// sign(q) is -1 for q = 0 (never used there: q = 0 is central). The boundary
// values |q| = 0.3 and 0.42 belong to the lower region. No refinement step
// follows. The forms are those of
//   R. E. Odeh and J. O. Evans, Algorithm AS 70: The percentage points of
//     the normal distribution, Applied Statistics 23 (1974), 96-97;
//   M. J. Wichura, Algorithm AS 241: The percentage points of the normal
//     distribution, Applied Statistics 37 (1988), 477-484;
// with coefficients of their own. ln is the library's kernel
// (kernels/exp_log.hpp).
//
// g01fac(tail, p) maps the tail onto a lower-tail probability and calls the
// kernel: Kiv_LowerTail x(p), Kiv_UpperTail -x(p) (never x(1 - p)),
// Kiv_TwoTailConfid x((p + 1)/2), Kiv_TwoTailSignif -x(p/2). p is checked
// before the tail. The kernel's own outcome is kept in a private code that
// stands for the zero-filled private record of an inner call (it is never
// shown); when it is an error, g01fac reports NE_INTERNAL_ERROR with the
// table's text and returns what the kernel returned (0 or -0). That happens
// when (p + 1)/2 rounds to 1 (Kiv_TwoTailConfid, p within an ulp of 1), and
// also when p/2 rounds to 0 (Kiv_TwoTailSignif, p the smallest subnormal).
//
// Failures (result 0): p <= 0 or NaN: NE_REAL_ARG_LE; p >= 1: NE_REAL_ARG_GE;
// tail not one of the four normal tails: NE_BAD_PARAM.
//
// Accuracy measured against MPFR (tests/g01/normal_deviate_test.cpp): the
// relative error of P(X <= x) against p is at most 9.8e-13 for p in
// [0.2, 0.8], 2.4e-12 in [0.02, 0.98], and grows in the far tails, where a
// deviate error dx costs |x| dx relatively: at most 3.1e-11 over p in
// [1e-20, 1 - 1e-6]. See docs/normal.md.
#include "g01/normal_deviate.hpp"

#include "g01/normal_common.hpp"
#include "kiv.h"
#include "runtime/checks.hpp"
#include "runtime/report.hpp"

namespace kiv::g01 {

bool report_if_outside_unit_interval(double p, KivError *fail, const char *routine,
                                     const char *name) {
    const rt::Checks check(fail, routine);
    return !check.real_above(name, p, 0.0, "0.0") || !check.real_below(name, p, 1.0, "1.0");
}

bool report_if_bad_batch(int n, const double *in, const char *in_name, const double *out,
                         KivError *fail, const char *routine) {
    if (n < 0) {
        rt::report_template(fail, routine, NE_INT, "n", static_cast<long>(n), "n >= 0");
        return true;
    }
    if (n > 0 && (in == nullptr || out == nullptr)) {
        rt::report_template(fail, routine, NE_BAD_PARAM, in == nullptr ? in_name : "out");
        return true;
    }
    return false;
}

}  // namespace kiv::g01

namespace {

// g01cec as g01fac calls it: the checks of g01cec, with the outcome left in
// `code` instead of a record.
double lower_tail_deviate(double p, int &code) {
    if (!(p > 0.0)) {
        code = NE_REAL_ARG_LE;
        return 0.0;
    }
    if (p >= 1.0) {
        code = NE_REAL_ARG_GE;
        return 0.0;
    }
    return kiv::g01::deviate_value(p);
}

}  // namespace

extern "C" {

KIV_API double g01cec(double p, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    if (kiv::g01::report_if_outside_unit_interval(p, fail, "g01cec", "p")) return 0.0;
    const double x = kiv::g01::deviate_value(p);
    kiv::rt::report_success(fail, "g01cec");
    return x;
}

KIV_API double g01fac(Kiv_Tail tail, double p, KivError *fail) {
    constexpr const char *kRoutine = "g01fac";
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    if (kiv::g01::report_if_outside_unit_interval(p, fail, kRoutine, "p")) return 0.0;
    int inner_code = NE_NOERROR;
    double x;
    switch (tail) {
        case Kiv_LowerTail:
            x = lower_tail_deviate(p, inner_code);
            break;
        case Kiv_UpperTail:
            x = -lower_tail_deviate(p, inner_code);
            break;
        case Kiv_TwoTailConfid:
            x = lower_tail_deviate((p + 1.0) * 0.5, inner_code);
            break;
        case Kiv_TwoTailSignif:
            x = -lower_tail_deviate(p * 0.5, inner_code);
            break;
        default:
            kiv::rt::report_template(fail, kRoutine, NE_BAD_PARAM, "tail");
            return 0.0;
    }
    if (inner_code != NE_NOERROR) {
        kiv::rt::report_code(fail, kRoutine, NE_INTERNAL_ERROR);
        return x;
    }
    kiv::rt::report_success(fail, kRoutine);
    return x;
}

}  // extern "C"
