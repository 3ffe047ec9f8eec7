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
#include "runtime/report.hpp"
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
    using namespace kiv::rt;
    if (!licence_check()) return 0.0;
    clear_code(fail);
    if (!(x >= 0.0)) {
        report_template(fail, "g01ecc", NE_REAL_ARG_LT, "x", "0.0", "x", x);
        return 0.0;
    }
    if (!(df > 0.0)) {
        report_template(fail, "g01ecc", NE_REAL_ARG_LE, "df", "0.0", "df", df);
        return 0.0;
    }
    if (!is_one_tail(tail)) {
        report_template(fail, "g01ecc", NE_BAD_PARAM, "tail");
        return 0.0;
    }
    clear_code(fail);
    double p = 0.0;
    double q = 0.0;
    const IncompleteGammaStatus status =
        kiv::special::incomplete_gamma(df * 0.5, x * 0.5, kChiSquareTolerance, &p, &q);
    const double result = tail == Kiv_LowerTail ? p : q;
    if (status == IncompleteGammaStatus::not_converged)
        report_code(fail, "g01ecc", NE_ALG_NOT_CONV);
    report_success(fail, "g01ecc");
    return result;
}

KIV_API double g01efc(Kiv_Tail tail, double g, double a, double b, KivError *fail) {
    using namespace kiv::rt;
    if (!licence_check()) return 0.0;
    clear_code(fail);
    if (!is_one_tail(tail)) {
        report_template(fail, "g01efc", NE_BAD_PARAM, "tail");
        return 0.0;
    }
    if (!(g >= 0.0)) {
        report_template(fail, "g01efc", NE_REAL_ARG_LT, "g", "0.0", "g", g);
        return 0.0;
    }
    if (!(a > 0.0)) {
        report_template(fail, "g01efc", NE_REAL_ARG_LE, "a", "0.0", "a", a);
        return 0.0;
    }
    if (!(b > 0.0)) {
        report_template(fail, "g01efc", NE_REAL_ARG_LE, "b", "0.0", "b", b);
        return 0.0;
    }
    clear_code(fail);
    double p = 0.0;
    double q = 0.0;
    const IncompleteGammaStatus status = kiv::special::incomplete_gamma(a, g / b, 0.0, &p, &q);
    if (status == IncompleteGammaStatus::not_converged)
        report_text(fail, "g01efc", NE_ALG_NOT_CONV,
                    "NE_ALG_NOT_CONV:\n  The algorithm has failed to converge in %1ld iterations.",
                    static_cast<long>(kiv::special::kIncompleteGammaIterations));
    const double result = tail == Kiv_LowerTail ? p : q;
    report_success(fail, "g01efc");
    return result;
}

}  // extern "C"
