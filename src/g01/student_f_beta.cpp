// g01ebc: tail probabilities of Student's t distribution with df > 0 degrees
// of freedom (real df; df = +inf is the normal distribution): lower
// P(T <= t), upper P(T >= t), two-tail significance P(|T| >= |t|) and
// two-tail confidence P(|T| <= |t|).
// g01edc: lower P(F <= f) and upper P(F >= f) of the F distribution with
// df1, df2 > 0; g01edf the same with the integer error-flag interface.
// g01eec: the beta distribution B(a, b): p = I_x(a, b), q = 1 - p and the
// density at x.
//
// Every probability comes from the regularized incomplete beta function of
// kernels/incomplete_beta.cpp, which computes the smaller tail directly:
// each tail keeps its relative accuracy deep into the tail (no 1 - cdf).
// With s = t^2, x = df/(df + s), y = s/(df + s):
//   P(|T| >= |t|) = I_x(df/2, 1/2),  P(|T| <= |t|) = I_y(1/2, df/2),
// F: x = df1 f/(df1 f + df2): P(F <= f) = I_x(df1/2, df2/2), upper I_y(df2/2, df1/2).
// Density of the beta distribution: x^(a-1) y^(b-1) / B(a, b), formed as
// the incomplete beta's prefactor over x y (at x = 0 or 1 its limit: 0, the
// finite value, or +inf).
//
// Reference: G. W. Hill, Algorithm 395: Student's t-distribution,
// Communications of the ACM 13 (1970), 617-619 (the reduction of the t
// distribution to the incomplete beta function); DiDonato and Morris (1992)
// for the incomplete beta function itself.
//
// Accuracy measured against 50-digit references (tests/g01/student_f_beta_test.cpp,
// docs/beta.md).
#include <cctype>
#include <cmath>
#include <cstdio>
#include <limits>

#include "kernels/incomplete_beta.hpp"
#include "kiv.h"
#include "runtime/checks.hpp"

namespace {

bool is_one_tail(Kiv_Tail tail) {
    return tail == Kiv_LowerTail || tail == Kiv_UpperTail;
}

bool is_t_tail(Kiv_Tail tail) {
    return is_one_tail(tail) || tail == Kiv_TwoTailSignif || tail == Kiv_TwoTailConfid;
}

double f_probability(bool lower, double f, double df1, double df2) {
    double p = 0.0, q = 0.0;
    kiv::kernels::f_tails(f, df1, df2, &p, &q);
    return lower ? p : q;
}

}  // namespace

extern "C" {

KIV_API double g01ebc(Kiv_Tail tail, double t, double df, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01ebc");
    if (!check.member("tail", is_t_tail(tail)) || !check.real_above("df", df, 0.0, "0.0"))
        return 0.0;
    if (std::isnan(t)) {
        check.report(NE_REAL, "t", t, "t must not be NaN");
        return 0.0;
    }
    double result = 0.0;
    if (std::isinf(df)) {
        KivError inner{};
        result = g01eac(tail, t, &inner);  // the normal limit
    } else if (tail == Kiv_LowerTail || tail == Kiv_UpperTail) {
        double lower = 0.0, upper = 0.0;
        kiv::kernels::student_t_tails(t, df, &lower, &upper);
        result = tail == Kiv_LowerTail ? lower : upper;
    } else {
        double beyond = 0.0, within = 0.0;
        kiv::kernels::student_t_two_tails(t, df, &beyond, &within);
        result = tail == Kiv_TwoTailSignif ? beyond : within;
    }
    check.success();
    return result;
}

KIV_API double g01edc(Kiv_Tail tail, double f, double df1, double df2, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01edc");
    if (!check.member("tail", is_one_tail(tail)) || !check.real_not_less("f", f, 0.0, "0.0") ||
        !check.real_above("df1", df1, 0.0, "0.0") || !check.real_above("df2", df2, 0.0, "0.0"))
        return 0.0;
    const double result = f_probability(tail == Kiv_LowerTail, f, df1, df2);
    check.success();
    return result;
}

KIV_API double g01edf(const char *tail, double f, double df1, double df2, int *ifail,
                      int tail_len) {
    int given = ifail != nullptr ? *ifail : 0;
    const char letter =
        tail != nullptr && tail_len > 0 ? static_cast<char>(std::toupper(*tail)) : '\0';
    int failure = 0;
    char message[160] = "";
    if (letter != 'L' && letter != 'U') {
        failure = 1;
        std::snprintf(message, sizeof message, " ** On entry, TAIL is not valid: TAIL = '%c'.",
                      letter == '\0' ? ' ' : letter);
    } else if (!(f >= 0.0)) {
        failure = 2;
        std::snprintf(message, sizeof message, " ** On entry, F < 0.0: F = %13.5e.", f);
    } else if (!(df1 > 0.0) || !(df2 > 0.0)) {
        failure = 3;
        std::snprintf(message, sizeof message,
                      " ** On entry, DF1 <= 0.0 or DF2 <= 0.0: DF1 = %13.5e, DF2 = %13.5e.", df1,
                      df2);
    }
    if (failure != 0) {
        const int length = static_cast<int>(std::char_traits<char>::length(message));
        const int code = kiv_ifail_exit(given, failure, "g01edf", 1, message, 6, length);
        if (ifail != nullptr) *ifail = code;
        return 0.0;
    }
    if (ifail != nullptr) *ifail = 0;
    return f_probability(letter == 'L', f, df1, df2);
}

KIV_API void g01eec(double x, double a, double b, double tol, double *p, double *q, double *pdf,
                    KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01eec");
    if (!check.real_not_less("x", x, 0.0, "0.0") || !check.real_not_above("x", x, 1.0, "1.0") ||
        !check.real_above("a", a, 0.0, "0.0") || !check.real_above("b", b, 0.0, "0.0") ||
        !check.real_below("a", a, std::numeric_limits<double>::infinity(), "inf") ||
        !check.real_below("b", b, std::numeric_limits<double>::infinity(), "inf") ||
        !check.real_not_less("tol", tol, 0.0, "0.0") || !check.given("p", p) ||
        !check.given("q", q) || !check.given("pdf", pdf))
        return;
    const double y = 1.0 - x;  // exact for x >= 1/2; x itself is the exact one below
    double lower = 0.0, upper = 0.0;
    const auto status = kiv::kernels::incomplete_beta(a, b, x, y, tol, &lower, &upper);
    double density;
    if (x == 0.0)
        density = a < 1.0 ? std::numeric_limits<double>::infinity() : a == 1.0 ? b : 0.0;
    else if (x == 1.0)
        density = b < 1.0 ? std::numeric_limits<double>::infinity() : b == 1.0 ? a : 0.0;
    else
        density = kiv::kernels::beta_prefactor(a, b, x, y) / (x * y);
    *p = lower;
    *q = upper;
    *pdf = density;
    if (status == kiv::kernels::IncompleteBetaStatus::not_converged) {
        check.report(NE_ALG_NOT_CONV, 100000L);
        return;
    }
    check.success();
}

}  // extern "C"
