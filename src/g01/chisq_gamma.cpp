// g01ecc: lower or upper tail probability of the chi-square distribution
// with df degrees of freedom; g01efc: of the gamma distribution with shape a
// and scale b. Both reduce to the regularised incomplete gamma functions,
//   chi-square:  P(X <= x) = P(df/2, x/2),   P(X > x) = Q(df/2, x/2),
//   gamma:       P(G <= g) = P(a, g/b),      P(G > g) = Q(a, g/b),
// computed by the arithmetic of s14bac (s/incomplete_gamma.hpp) without its
// error record: the result and every report are those of a call of s14bac
// with a private record, without the cost of filling and reporting one. The two routines differ on
// purpose: g01ecc checks x, df and then the tail, and asks s14bac for the
// relative accuracy 5e-06 only; g01efc checks the tail first and asks for the
// best attainable accuracy (tol = 0). A failure of s14bac to converge is
// passed on as NE_ALG_NOT_CONV, by g01ecc with the code's own text and by
// g01efc with its iteration limit 600; other faults of s14bac cannot arise
// after these checks and are ignored.
//
// Accuracy: that of s14bac (docs/gamma.md): g01efc within 2.7e-14 relative
// in the smaller tail, g01ecc within its requested 5e-06 (4.75e-06 measured).
#include "kiv.h"
#include "runtime/checks.hpp"
#include "s/incomplete_gamma.hpp"

namespace {

constexpr double kChiSquareTolerance = 5e-06;
using kiv::special::IncompleteGammaStatus;

bool is_one_tail(Kiv_Tail tail) {
    return tail == Kiv_LowerTail || tail == Kiv_UpperTail;
}

}  // namespace

extern "C" {

KIV_API double g01ecc(Kiv_Tail tail, double x, double df, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01ecc");
    if (!check.real_not_less("x", x, 0.0, "0.0") || !check.real_above("df", df, 0.0, "0.0") ||
        !check.member("tail", is_one_tail(tail)))
        return 0.0;
    double p = 0.0;
    double q = 0.0;
    const IncompleteGammaStatus status =
        kiv::special::incomplete_gamma(df * 0.5, x * 0.5, kChiSquareTolerance, &p, &q);
    const double result = tail == Kiv_LowerTail ? p : q;
    if (status == IncompleteGammaStatus::not_converged) check.report_code_only(NE_ALG_NOT_CONV);
    check.success();
    return result;
}

KIV_API double g01efc(Kiv_Tail tail, double g, double a, double b, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01efc");
    if (!check.member("tail", is_one_tail(tail)) || !check.real_not_less("g", g, 0.0, "0.0") ||
        !check.real_above("a", a, 0.0, "0.0") || !check.real_above("b", b, 0.0, "0.0"))
        return 0.0;
    double p = 0.0;
    double q = 0.0;
    const IncompleteGammaStatus status = kiv::special::incomplete_gamma(a, g / b, 0.0, &p, &q);
    if (status == IncompleteGammaStatus::not_converged)
        kiv::rt::report_text(
            fail, "g01efc", NE_ALG_NOT_CONV,
            "NE_ALG_NOT_CONV:\n  The algorithm has failed to converge in %1ld iterations.",
            static_cast<long>(kiv::special::kIncompleteGammaIterations));
    const double result = tail == Kiv_LowerTail ? p : q;
    check.success();
    return result;
}

}  // extern "C"
