// Deviates (quantiles) of the Student's t (g01fbc), chi-square (g01fcc),
// F (g01fdc), beta (g01fec) and gamma (g01ffc) distributions.
//
// Method: a starting value from a classical approximation, then a
// safeguarded Newton iteration on the logarithm of the probability in its
// own tail: for a lower-tail probability p <= 1/2 the equation
// ln P(X <= x) = ln p, otherwise ln P(X >= x) = ln q with q = 1 - p (exact
// for p >= 1/2, so no rounded complement enters). The logarithm keeps the
// Newton steps well scaled down to tails of 1e-300, and its derivative is
// the density over the tail. Every step keeps a bracket of the root; a step
// that leaves the bracket is replaced by bisection (geometric for a bracket
// spanning several binades), so the iteration cannot diverge, and it stops
// when a step changes x by less than its relative tolerance (at least
// 2 eps), or after 300 steps with NE_ALG_NOT_CONV and the best value.
// The probabilities are those of g01ebc, g01edc, g01eec (the incomplete beta
// function, kernels/incomplete_beta.cpp) and s14bac (the incomplete gamma
// function), each tail computed directly.
//
// Starting values: the normal deviate z of the tail probability, then
//   gamma(a):  Wilson and Hilferty's a (1 - 1/(9a) + z/(3 sqrt a))^3, or
//              (p Gamma(a + 1))^(1/a) in the lower tail when that is smaller;
//   t(df):     the exact forms for df = 1 and 2, otherwise the Cornish-Fisher
//              expansion z + (z^3 + z)/(4 df) + (5z^5 + 16z^3 + 3z)/(96 df^2);
//   beta, F:   the normal approximation of the mean and variance, clamped
//              into the bracket (F through the beta deviate: f = (df2/df1) x/y).
//
// References: E. B. Wilson, M. M. Hilferty, The distribution of chi-square,
// Proc. Nat. Acad. Sci. 17 (1931) 684-688; G. W. Hill, Algorithm 396:
// Student's t-quantiles, CACM 13 (1970) 619-620; M. Abramowitz, I. A. Stegun,
// Handbook of Mathematical Functions (1964), 26.7.5 and 26.5.22.
//
// Accuracy: tests/g01/deviates_test.cpp (the probability at the returned
// deviate against the one asked, in 50 digits); docs/deviates.md.
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "kernels/gamma_kernels.hpp"
#include "kernels/incomplete_beta.hpp"
#include "kiv.h"
#include "runtime/checks.hpp"
#include "s/incomplete_gamma.hpp"

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kEps = std::numeric_limits<double>::epsilon();
constexpr int kMaxSteps = 300;

// ln of a probability (the tail, or minus infinity for 0).
double log_of(double value) {
    return value > 0.0 ? std::log(value) : -kInf;
}

// The tail to solve: at x, ln of the tail probability and its derivative
// in x (the density over the tail, with the sign of the tail's slope).
struct TailValue {
    double log_tail;
    double slope;
};

struct Solution {
    double x;
    bool converged;
};

// Solves ln tail(x) = target for x in (lo, hi), 0 <= lo, starting from x0,
// with the tail monotone (increasing when `increasing`). Newton's steps are
// taken in ln x (ln tail is close to linear in ln x in both tails, so the
// steps cross hundreds of binades at once); a step leaving the bracket is
// replaced by a geometric bisection (or a factor of 16 towards an open end).
Solution solve(const std::function<TailValue(double)> &tail, double target, double lo, double hi,
               double x0, bool increasing, double tol) {
    const double accuracy = std::max(tol, 2.0 * kEps);
    double x = x0;
    if (!(x > lo && x < hi)) x = hi < kInf ? 0.5 * (lo + hi) : lo + 1.0;
    for (int step = 0; step < kMaxSteps; ++step) {
        const TailValue value = tail(x);
        const double gap = value.log_tail - target;
        if (gap == 0.0) return {x, true};
        // Bracket: below the root the tail is too small when increasing.
        if ((gap < 0.0) == increasing)
            lo = x;
        else
            hi = x;
        const double log_slope = x * value.slope;  // d ln tail / d ln x
        double next = std::numeric_limits<double>::quiet_NaN();
        if (std::isfinite(gap) && std::isfinite(log_slope) && log_slope != 0.0)
            next = x * std::exp(std::clamp(-gap / log_slope, -700.0, 700.0));
        if (!(next > lo && next < hi)) {
            if (lo == 0.0)
                next = std::min(x, hi) / 16.0;
            else if (hi == kInf)
                next = std::min(16.0 * std::max(x, lo), std::numeric_limits<double>::max());
            else
                next = hi > 4.0 * lo ? std::sqrt(lo) * std::sqrt(hi) : 0.5 * (lo + hi);
        }
        if (std::fabs(next - x) <= accuracy * next || (hi - lo) <= accuracy * lo)
            return {next, true};
        x = next;
    }
    return {x, false};
}

double normal_deviate(double p) {
    KivError inner{};
    return g01cec(p, &inner);
}

// ---- gamma(a), unit scale ------------------------------------------------------

// ln of the gamma density x^(a-1) e^-x / Gamma(a), in long double.
double log_gamma_density(double a, double x) {
    return static_cast<double>((static_cast<long double>(a) - 1.0L) *
                                   std::log(static_cast<long double>(x)) -
                               x - kiv::kernels::log_gamma_positive(a));
}

Solution gamma_deviate(double a, double p, double tol) {
    const bool lower = p <= 0.5;
    const double target = lower ? log_of(p) : log_of(1.0 - p);
    const double z = normal_deviate(p);
    double start = a * std::pow(1.0 - 1.0 / (9.0 * a) + z / (3.0 * std::sqrt(a)), 3.0);
    if (lower) {
        const double small =
            std::exp((std::log(p) + kiv::kernels::log_gamma_positive(a + 1.0)) / a);
        if (!(start > 0.0) || small < start) start = small;
    }
    if (!(start > 0.0) || !std::isfinite(start)) start = a;
    auto tail = [a, lower](double x) -> TailValue {
        double pl = 0.0, pu = 0.0;
        kiv::special::incomplete_gamma(a, x, 0.0, &pl, &pu);
        const double t = lower ? pl : pu;
        const double density = std::exp(log_gamma_density(a, x));
        return {log_of(t), (lower ? 1.0 : -1.0) * density / t};
    };
    return solve(tail, target, 0.0, kInf, start, lower, tol);
}

// ---- beta(a, b) -------------------------------------------------------------------

// The beta deviate as x and y = 1 - x, the one solved for being the tail's
// own variable (x in the lower tail, y in the upper), so that both are
// accurate.
struct BetaDeviate {
    double x, y;
    bool converged;
};

BetaDeviate beta_deviate(double a, double b, double p, double tol) {
    const bool lower = p <= 0.5;
    const double target = lower ? log_of(p) : log_of(1.0 - p);
    // Start: the normal approximation on the mean and variance.
    const double mean = a / (a + b);
    const double sd = std::sqrt(a * b / ((a + b) * (a + b) * (a + b + 1.0)));
    const double z = normal_deviate(p);
    double start_x = std::clamp(mean + z * sd, 1e-3 * mean, 1.0 - 1e-3 * (1.0 - mean));
    // Solve in the smaller of x and y at the root, so that both come out
    // accurate: judged from the start, and solved again in the other
    // variable when the root turns out to lie beyond 1/2.
    auto solve_in = [a, b, lower, target, tol](bool in_y, double start) {
        const bool increasing = lower != in_y;
        auto tail = [a, b, lower, in_y, increasing](double v) -> TailValue {
            const double x = in_y ? 1.0 - v : v, y = in_y ? v : 1.0 - v;
            double w = 0.0, w1 = 0.0;
            kiv::kernels::incomplete_beta(a, b, x, y, 0.0, &w, &w1);
            const double t = lower ? w : w1;
            const double density = kiv::kernels::beta_prefactor(a, b, x, y) / (x * y);
            return {log_of(t), (increasing ? 1.0 : -1.0) * density / t};
        };
        return solve(tail, target, 0.0, 1.0, start, increasing, tol);
    };
    bool in_y = start_x > 0.5;
    Solution s = solve_in(in_y, in_y ? 1.0 - start_x : start_x);
    if (s.x > 0.5) {
        in_y = !in_y;
        s = solve_in(in_y, 1.0 - s.x);
    }
    return in_y ? BetaDeviate{1.0 - s.x, s.x, s.converged}
                : BetaDeviate{s.x, 1.0 - s.x, s.converged};
}

// ---- Student's t --------------------------------------------------------------------

// t >= 0 with P(T >= t) = q (q <= 1/2).
Solution t_upper_deviate(double df, double q) {
    const double z = -normal_deviate(q);
    double start;
    if (df == 1.0)
        start = std::tan(kiv::kernels::kPi * (0.5 - q));
    else if (df == 2.0)
        start = (1.0 - 2.0 * q) / std::sqrt(2.0 * q * (1.0 - q));
    else
        start = z + (z * z * z + z) / (4.0 * df) +
                (5.0 * std::pow(z, 5) + 16.0 * z * z * z + 3.0 * z) / (96.0 * df * df);
    if (!(start > 0.0) || !std::isfinite(start)) start = 1.0;
    auto tail = [df](double t) -> TailValue {
        double beyond = 0.0, within = 0.0;
        kiv::kernels::student_t_two_tails(t, df, &beyond, &within);
        const double upper = 0.5 * beyond;
        // The density f(t) = x^(df/2) y^(1/2) / (B(df/2, 1/2) t), x, y as in
        // the tail (d/dt of I_x(df/2, 1/2)/2).
        const double s = t * t;
        const double x = df / (df + s), y = s / (df + s);
        const double density = t == 0.0
                                   ? std::exp(kiv::kernels::log_gamma_positive(0.5 * (df + 1.0)) -
                                              kiv::kernels::log_gamma_positive(0.5 * df)) /
                                         std::sqrt(df * kiv::kernels::kPi)
                                   : kiv::kernels::beta_prefactor(0.5 * df, 0.5, x, y) / t;
        return {log_of(upper), -density / upper};
    };
    return solve(tail, std::log(q), 0.0, kInf, start, false, 0.0);
}

// t >= 0 with P(|T| <= t) = p (the central probability, any p in (0, 1)).
Solution t_central_deviate(double df, double p) {
    if (p > 0.5) return t_upper_deviate(df, 0.5 * (1.0 - p));
    auto tail = [df](double t) -> TailValue {
        double beyond = 0.0, within = 0.0;
        kiv::kernels::student_t_two_tails(t, df, &beyond, &within);
        const double s = t * t;
        const double x = df / (df + s), y = s / (df + s);
        // d/dt P(|T| <= t) = 2 f(t), f(t) = prefactor(df/2, 1/2, x, y) / t.
        const double density2 =
            t == 0.0 ? kInf : 2.0 * kiv::kernels::beta_prefactor(0.5 * df, 0.5, x, y) / t;
        return {log_of(within), density2 / within};
    };
    const double start = std::max(normal_deviate(0.5 + 0.5 * p), 1e-300);
    return solve(tail, std::log(p), 0.0, kInf, start, true, 0.0);
}

void report_not_converged(const kiv::rt::Checks &check, bool converged) {
    if (!converged) check.report(NE_ALG_NOT_CONV, static_cast<long>(kMaxSteps));
}

bool probability_ok(const kiv::rt::Checks &check, double p) {
    return check.real_above("p", p, 0.0, "0.0") && check.real_below("p", p, 1.0, "1.0");
}

bool is_normal_tail(Kiv_Tail tail) {
    return tail == Kiv_LowerTail || tail == Kiv_UpperTail || tail == Kiv_TwoTailSignif ||
           tail == Kiv_TwoTailConfid;
}

}  // namespace

extern "C" {

KIV_API double g01fbc(Kiv_Tail tail, double p, double df, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01fbc");
    if (!check.member("tail", is_normal_tail(tail)) || !probability_ok(check, p) ||
        !check.real_above("df", df, 0.0, "0.0"))
        return 0.0;
    if (std::isinf(df)) {
        KivError inner{};
        const double x = g01fac(tail, p, &inner);
        check.success();
        return x;
    }
    Solution s{0.0, true};
    double sign = 1.0;
    switch (tail) {
        case Kiv_LowerTail:  // P(T <= t) = p
        case Kiv_UpperTail:  // P(T >= t) = p
        {
            const double q = tail == Kiv_UpperTail ? p : 1.0 - p;  // upper-tail probability
            if (q == 0.5) {
                s = {0.0, true};
            } else if (q < 0.5) {
                s = t_upper_deviate(df, q);
            } else {
                s = t_upper_deviate(df, tail == Kiv_UpperTail ? 1.0 - p : p);
                sign = -1.0;
            }
            break;
        }
        case Kiv_TwoTailSignif:  // P(|T| >= t) = p: P(|T| <= t) = 1 - p, exact for p >= 1/2
            s = p >= 0.5 ? t_central_deviate(df, 1.0 - p) : t_upper_deviate(df, 0.5 * p);
            break;
        default:  // Kiv_TwoTailConfid: P(|T| <= t) = p
            s = t_central_deviate(df, p);
            break;
    }
    report_not_converged(check, s.converged);
    check.success();
    return sign * s.x;
}

KIV_API double g01fcc(double p, double df, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01fcc");
    if (!probability_ok(check, p) || !check.real_above("df", df, 0.0, "0.0")) return 0.0;
    const Solution s = gamma_deviate(0.5 * df, p, 0.0);
    report_not_converged(check, s.converged);
    check.success();
    return 2.0 * s.x;
}

KIV_API double g01ffc(double p, double a, double b, double tol, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01ffc");
    if (!probability_ok(check, p) || !check.real_above("a", a, 0.0, "0.0") ||
        !check.real_above("b", b, 0.0, "0.0") || !check.real_not_less("tol", tol, 0.0, "0.0"))
        return 0.0;
    const Solution s = gamma_deviate(a, p, tol);
    report_not_converged(check, s.converged);
    check.success();
    return b * s.x;
}

KIV_API double g01fec(double p, double a, double b, double tol, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01fec");
    if (!probability_ok(check, p) || !check.real_above("a", a, 0.0, "0.0") ||
        !check.real_above("b", b, 0.0, "0.0") || !check.real_below("a", a, kInf, "inf") ||
        !check.real_below("b", b, kInf, "inf") || !check.real_not_less("tol", tol, 0.0, "0.0"))
        return 0.0;
    const BetaDeviate d = beta_deviate(a, b, p, tol);
    report_not_converged(check, d.converged);
    check.success();
    return d.x;
}

KIV_API double g01fdc(double p, double df1, double df2, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01fdc");
    if (!probability_ok(check, p) || !check.real_above("df1", df1, 0.0, "0.0") ||
        !check.real_above("df2", df2, 0.0, "0.0") || !check.real_below("df1", df1, kInf, "inf") ||
        !check.real_below("df2", df2, kInf, "inf"))
        return 0.0;
    // F = (df2/df1) X/Y with X ~ beta(df1/2, df2/2), Y = 1 - X.
    const BetaDeviate d = beta_deviate(0.5 * df1, 0.5 * df2, p, 0.0);
    report_not_converged(check, d.converged);
    check.success();
    return d.y > 0.0 ? (df2 / df1) * (d.x / d.y) : kInf;
}

}  // extern "C"
