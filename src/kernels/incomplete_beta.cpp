// The regularized incomplete beta function
//   I_x(a, b) = (1 / B(a, b)) int_0^x t^(a-1) (1 - t)^(b-1) dt,  a, b > 0,
// with its complement 1 - I_x(a, b) = I_y(b, a), y = 1 - x, and the Student's
// t and F distribution functions that reduce to it.
//
// Method.
//   One shape large (>= 30), the other at most 10, x near the large one's end:
//   the expansion in 1/a described at large_a_expansion below.
//   Side: for x < (a + 1)/(a + b + 2) the function is computed as I_x(a, b),
//   otherwise as I_y(b, a); the value computed is the smaller tail (up to
//   about 1/2), and the other is 1 minus it, which loses nothing.
//   I_x(a, b) = P / (a K), P = x^a y^b / B(a, b), with K the continued
//   fraction 1/(1 + d_1/(1 + d_2/(1 + ...))) of DLMF 8.17.22,
//     d_2m = m (b - m) x / ((a + 2m - 1)(a + 2m)),
//     d_2m+1 = -(a + m)(a + b + m) x / ((a + 2m)(a + 2m + 1)),
//   evaluated by the modified Lentz algorithm; on the chosen side it
//   converges in O(sqrt(max(a, b))) terms.
//   The prefactor P carries the difficulty for large a and b: formed as
//   exp(a ln x + b ln y - ln B(a, b)) its exponent cancels and its rounding
//   error is amplified by the exponent's size. It is formed in long double
//   (64-bit significand on x86), and
//     a, b >= 10:  P = sqrt(a b / (2 pi (a + b))) exp(a log1pmx(u) + b log1pmx(v)
//                      + mu(a + b) - mu(a) - mu(b)),
//                  u = (x (a + b) - a) / a, v = -(x (a + b) - a) / b, free of
//                  cancellation (Temme's form; mu the Stirling correction);
//     one of a, b >= 10 (say b): ln Gamma(b) - ln Gamma(a + b) =
//                  -(b - 1/2) log1p(a/b) - a ln(a + b) + a + mu(b) - mu(a + b);
//     both < 10:   ln B from ln Gamma directly.
//   The exponent is split as hi + lo and P = e^hi (1 + lo) with the library's
//   own exponential.
//
//   Student's t, df degrees of freedom, t^2 = s: with x = df/(df + s) and
//   y = s/(df + s) (each formed without cancellation),
//     P(|T| >= |t|) = I_x(df/2, 1/2),   P(|T| <= |t|) = I_y(1/2, df/2),
//   and the one-sided tails are half the first and 1/2 plus half the second.
//   df = +inf is the normal distribution.
//   F(df1, df2): with x = df1 f/(df1 f + df2), y = df2/(df1 f + df2),
//     P(F <= f) = I_x(df1/2, df2/2),   P(F >= f) = I_y(df2/2, df1/2).
//
// References:
//   A. R. DiDonato, A. H. Morris, Algorithm 708: Significant digit
//     computation of the incomplete beta function ratios, ACM Transactions on
//     Mathematical Software 18 (1992), 360-373 (the regions and the
//     prefactor without cancellation).
//   N. M. Temme, Special Functions: An Introduction to the Classical
//     Functions of Mathematical Physics, Wiley (1996), 11.3.
//   NIST Digital Library of Mathematical Functions, 8.17.22 (the continued
//     fraction), 8.17(i) (symmetry).
//   W. J. Lentz, Generating Bessel functions in Mie scattering calculations
//     using continued fractions, Applied Optics 15 (1976), 668-671;
//     I. J. Thompson, A. R. Barnett, J. Comput. Phys. 64 (1986), 490-509
//     (the modified Lentz algorithm).
//
// Accuracy measured against MPFR (tests/kernels/incomplete_beta_test.cpp);
// see docs/beta.md. The long double logarithms are the C library's, so the
// last bits may differ between platforms.
#include "kernels/incomplete_beta.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kernels/exp_log.hpp"
#include "kernels/gamma_kernels.hpp"
#include "kiv.h"
#include "s/incomplete_gamma.hpp"

namespace kiv::kernels {

namespace {

constexpr int kMaxTerms = 100000;
constexpr long double kLogZero = -std::numeric_limits<long double>::infinity();  // ln 0
constexpr long double kHalfLogTwoPiL = 0.918938533204672741780329736405617639L;

// The Stirling correction mu(a) = ln Gamma(a) - (a - 1/2) ln a + a - ln sqrt(2 pi),
// for a >= 10.
long double mu(double a) {
    return stirling_correction(a);
}

// ln Gamma(b) - ln Gamma(a + b) for b >= 10 (any a > 0).
long double log_gamma_ratio(double a, double b) {
    const long double la = a, lb = b, s = la + lb;
    return -(lb - 0.5L) * std::log1p(la / lb) - la * std::log(s) + la + mu(b) -
           (s >= 10.0L ? mu(static_cast<double>(s)) : 0.0L);
}

// e^E for an exponent held in long double: e^hi (1 + lo).
double exp_long(long double exponent) {
    if (exponent < -745.2L) return 0.0;
    if (exponent > 709.8L) return std::numeric_limits<double>::infinity();
    const double hi = static_cast<double>(exponent);
    const double lo = static_cast<double>(exponent - hi);
    return kiv::kernels::exp(hi) * (1.0 + lo);
}

// ln x and ln y for x + y = 1: the logarithm of the larger through log1p of
// the smaller, which is the exact one when the caller formed the other as
// its complement.
long double log_of(double value, double complement) {
    return complement < 0.5 ? std::log1p(-static_cast<long double>(complement))
                            : std::log(static_cast<long double>(value));
}

// e^L - 1 - L in long double, without cancellation for small |L|.
long double expm1mx_long(long double L) {
    if (std::fabs(L) > 0.5L) return std::expm1(L) - L;
    long double term = L * L / 2.0L;
    long double sum = term;
    for (int k = 3; k < 40; ++k) {
        term *= L / k;
        sum += term;
        if (std::fabs(term) < 0x1p-66L * std::fabs(sum)) break;
    }
    return sum;
}

// ln (x^a y^b / B(a, b)) in long double, from ln x and ln y (which the
// callers form from their own exact arguments).
long double log_prefactor(double a, double b, long double log_x, long double log_y) {
    if (a >= 10.0 && b >= 10.0) {
        // a (ln(1 + u) - u) + b (ln(1 + v) - v), 1 + u = x (a + b)/a,
        // 1 + v = y (a + b)/b, each bracket as -(e^L - 1 - L) of its
        // logarithm L: free of cancellation near the mean (u, v near 0).
        const long double la = a, lb = b, s = la + lb;
        const long double term_a = -la * expm1mx_long(log_x + std::log1p(lb / la));
        const long double term_b = -lb * expm1mx_long(log_y + std::log1p(la / lb));
        return 0.5L * std::log(la * lb / s) - kHalfLogTwoPiL + term_a + term_b +
               mu(static_cast<double>(s)) - mu(a) - mu(b);
    }
    const long double terms =
        static_cast<long double>(a) * log_x + static_cast<long double>(b) * log_y;
    if (b >= 10.0) return terms - log_gamma_positive(a) - log_gamma_ratio(a, b);
    if (a >= 10.0) return terms - log_gamma_positive(b) - log_gamma_ratio(b, a);
    const double sum = a + b;
    return terms - log_gamma_positive(a) - log_gamma_positive(b) + log_gamma_positive(sum);
}

// The continued fraction K of I_x(a, b) = P / (a K), modified Lentz, in
// long double: the product of its hundreds of factors would otherwise
// gather tens of units of rounding in the last place.
bool continued_fraction(double a_in, double b_in, double x_in, double tol, long double *value) {
    using Real = long double;
    const Real a = a_in, b = b_in, x = x_in;
    const Real tiny = 1e-4000L;
    const Real qab = a + b, qap = a + 1.0L, qam = a - 1.0L;
    Real c = 1.0L;
    Real d = 1.0L - qab * x / qap;
    if (std::fabs(d) < tiny) d = tiny;
    d = 1.0L / d;
    Real h = d;
    for (int m = 1; m <= kMaxTerms; ++m) {
        const Real m2 = 2.0L * m;
        Real aa = m * (b - m) * x / ((qam + m2) * (a + m2));
        d = 1.0L + aa * d;
        if (std::fabs(d) < tiny) d = tiny;
        c = 1.0L + aa / c;
        if (std::fabs(c) < tiny) c = tiny;
        d = 1.0L / d;
        h *= d * c;
        aa = -(a + m) * (qab + m) * x / ((a + m2) * (qap + m2));
        d = 1.0L + aa * d;
        if (std::fabs(d) < tiny) d = tiny;
        c = 1.0L + aa / c;
        if (std::fabs(c) < tiny) c = tiny;
        d = 1.0L / d;
        const Real delta = d * c;
        h *= delta;
        if (std::fabs(delta - 1.0L) <= tol) {
            *value = h;
            return true;
        }
    }
    *value = h;
    return false;
}

// For a large and b moderate, x >= 1/2: with t = e^(-v), z = -a ln x,
//   I_x(a, b) = (1/B(a, b)) int_{-ln x}^inf e^(-a v) v^(b-1) phi(v)^(b-1) dv,
// phi(v) = (1 - e^-v)/v = sum e_n v^n raised to b - 1, integrated term by
// term:
//   I_x(a, b) = G sum_n e_n (b)_n Q(b + n, z) / a^n,  G = Gamma(a+b)/(Gamma(a) a^b),
// and 1 - I_x(a, b) the same sum with P(b + n, z): each from the library's
// incomplete gamma functions, which give the small one directly. The
// expansion in 1/a converges quickly for a >= 30 (the series of phi has
// radius 2 pi; the weight e^(-a v) keeps v near -ln x <= ln 2). This is the
// region where the continued fraction is badly conditioned (Temme 1987;
// DiDonato and Morris 1992, BGRAT).
bool large_a_expansion(double a, double b, long double log_x, double *w, double *w1) {
    constexpr int kTerms = 30;
    // ln phi(v) = -v/2 + ln(sinh(v/2)/(v/2)) = -v/2 + sum_k l_2k v^2k,
    // l_2k = B_2k / (2k (2k)!) (Bernoulli numbers), and e_n from
    // exp((b - 1) ln phi) by the recurrence for the exponential of a series.
    static constexpr long double kLogSinhc[] = {0.0L,
                                                0.0L,
                                                1.0L / 24,
                                                0.0L,
                                                -1.0L / 2880,
                                                0.0L,
                                                1.0L / 181440,
                                                0.0L,
                                                -1.0L / 9676800,
                                                0.0L,
                                                1.0L / 479001600,
                                                0.0L,
                                                -691.0L / 15692092416000,
                                                0.0L,
                                                1.0L / 1046139494400,
                                                0.0L,
                                                -3617.0L / 1.6946043827241e+17L,
                                                0.0L,
                                                43867.0L / 8.3803447316551e+19L,
                                                0.0L,
                                                -174611.0L / 3.1215282902047e+22L};
    constexpr int kLogTerms = sizeof kLogSinhc / sizeof kLogSinhc[0];
    long double l[kTerms + 1] = {};
    l[1] = -0.5L;
    for (int k = 2; k < kLogTerms && k <= kTerms; ++k) l[k] = kLogSinhc[k];
    long double e[kTerms + 1] = {1.0L};
    const long double bm1 = static_cast<long double>(b) - 1.0L;
    const double z = static_cast<double>(-static_cast<long double>(a) * log_x);
    // Q(b + n, z) and P(b + n, z) from one incomplete gamma function and the
    // recurrences Q(s + 1) = Q(s) + t(s), P(s) = P(s + 1) + t(s),
    // t(s) = e^-z z^s / Gamma(s + 1): the smaller of the two tails is summed,
    // with Q recurred upwards (for the small Q) or P downwards from b + kTerms
    // (for the small P): each adds positive terms and loses nothing.
    long double t[kTerms + 1];
    t[0] = std::exp(-static_cast<long double>(z) + b * std::log(static_cast<long double>(z)) -
                    log_gamma_positive(b + 1.0));
    for (int n = 0; n < kTerms; ++n) t[n + 1] = t[n] * z / (b + n + 1.0);
    double p0 = 0.0, q0 = 0.0;
    kiv::special::incomplete_gamma(b, z, 0.0, &p0, &q0);
    const bool sum_upper = q0 <= 0.5;  // the tail I_x(a, b) is the small one
    long double tail[kTerms + 1];
    if (sum_upper) {
        tail[0] = q0;
        for (int n = 0; n < kTerms; ++n) tail[n + 1] = tail[n] + t[n];
    } else {
        double pt = 0.0, qt = 0.0;
        kiv::special::incomplete_gamma(b + kTerms, z, 0.0, &pt, &qt);
        tail[kTerms] = pt;
        for (int n = kTerms - 1; n >= 0; --n) tail[n] = tail[n + 1] + t[n];
    }
    long double sum = 0.0L, rising = 1.0L, power = 1.0L;
    bool done = false;
    for (int n = 0; n <= kTerms; ++n) {
        if (n > 0) {  // e_n of exp((b - 1) ln phi), built as far as needed
            long double acc = 0.0L;
            for (int k = 1; k <= n; ++k) acc += k * l[k] * e[n - k];
            e[n] = bm1 * acc / n;
        }
        const long double term = e[n] * rising * power * tail[n];
        sum += term;
        if (n > 2 && std::fabs(term) <= 0x1p-64L * std::fabs(sum)) {
            done = true;
            break;
        }
        rising *= b + n;
        power /= a;
    }
    const long double log_g = -log_gamma_ratio(b, a) -
                              static_cast<long double>(b) * std::log(static_cast<long double>(a));
    const double small = static_cast<double>(std::exp(log_g) * sum);
    *w = sum_upper ? small : 1.0 - small;
    *w1 = sum_upper ? 1.0 - small : small;
    return done;
}

}  // namespace

double beta_prefactor(double a, double b, double x, double y) {
    if (x <= 0.0 || y <= 0.0) return 0.0;
    return exp_long(log_prefactor(a, b, log_of(x, y), log_of(y, x)));
}

IncompleteBetaStatus incomplete_beta(double a, double b, double x, double y, double tol, double *w,
                                     double *w1) {
    constexpr long double kMinusInf = -std::numeric_limits<long double>::infinity();
    const long double log_x = x > 0.0 ? log_of(x, y) : kMinusInf;
    const long double log_y = y > 0.0 ? log_of(y, x) : kMinusInf;
    return incomplete_beta_logs(a, b, x, y, log_x, log_y, tol, w, w1);
}

IncompleteBetaStatus incomplete_beta_logs(double a, double b, double x, double y, long double log_x,
                                          long double log_y, double tol, double *w, double *w1) {
    // x or y may have underflowed to 0 in double while its logarithm is
    // finite: the logarithms decide.
    if (x <= 0.0 && std::isfinite(log_x)) x = std::numeric_limits<double>::denorm_min();
    if (y <= 0.0 && std::isfinite(log_y)) y = std::numeric_limits<double>::denorm_min();
    if (x <= 0.0) {
        *w = 0.0;
        *w1 = 1.0;
        return IncompleteBetaStatus::ok;
    }
    if (y <= 0.0) {
        *w = 1.0;
        *w1 = 0.0;
        return IncompleteBetaStatus::ok;
    }
    // One shape large, the other moderate, near the large one's end: the
    // expansion in 1/a, where the continued fraction loses digits.
    // (near the mean: z = -a ln x up to a few times b; farther out the
    // continued fraction converges fast and well.)
    if (a >= 30.0 && b <= 10.0 && x >= 0.5 &&
        -a * log_x <= std::max(40.0 + 2.0 * b, 2.0 * std::sqrt(a)) &&
        large_a_expansion(a, b, log_x, w, w1))
        return IncompleteBetaStatus::ok;
    if (b >= 30.0 && a <= 10.0 && y >= 0.5 &&
        -b * log_y <= std::max(40.0 + 2.0 * a, 2.0 * std::sqrt(b)) &&
        large_a_expansion(b, a, log_y, w1, w))
        return IncompleteBetaStatus::ok;
    const double eps = std::numeric_limits<double>::epsilon() * 0.5;
    const double accuracy = std::max(tol, eps);
    // Compute the tail on the side where the continued fraction converges.
    const bool swap = x >= (a + 1.0) / (a + b + 2.0);
    const double pa = swap ? b : a, pb = swap ? a : b, px = swap ? y : x;
    const long double plx = swap ? log_y : log_x, ply = swap ? log_x : log_y;
    long double fraction = 0.0L;
    const bool converged = continued_fraction(pa, pb, px, accuracy * 0x1p-11, &fraction);
    const double tail = exp_long(log_prefactor(pa, pb, plx, ply) -
                                 std::log(static_cast<long double>(pa) / fraction));
    const double other = 1.0 - tail;
    *w = swap ? other : tail;
    *w1 = swap ? tail : other;
    return converged ? IncompleteBetaStatus::ok : IncompleteBetaStatus::not_converged;
}

void student_t_two_tails(double t, double df, double *beyond, double *within) {
    const double at = std::fabs(t);
    // x = df / (df + t^2), y = t^2 / (df + t^2), with their logarithms formed
    // in long double from t and df themselves (t^2 to 64 bits).
    const long double s = static_cast<long double>(at) * at, n = df;
    double x, y;
    long double log_x, log_y;
    if (std::isinf(at)) {
        x = 0.0;
        y = 1.0;
        log_x = kLogZero;
        log_y = 0.0L;
    } else {
        x = static_cast<double>(n / (n + s));
        y = static_cast<double>(s / (n + s));
        log_x = -std::log1p(s / n);
        log_y = at == 0.0 ? kLogZero : -std::log1p(n / s);
    }
    incomplete_beta_logs(0.5 * df, 0.5, x, y, log_x, log_y, 0.0, beyond, within);
}

void student_t_tails(double t, double df, double *lower, double *upper) {
    if (std::isinf(df)) {
        *lower = s15abc(t);
        *upper = s15acc(t);
        return;
    }
    double w = 0.0, w1 = 0.0;  // P(|T| >= |t|), P(|T| <= |t|)
    student_t_two_tails(t, df, &w, &w1);
    const double beyond = 0.5 * w;         // P(T >= |t|)
    const double within = 0.5 + 0.5 * w1;  // P(T <= |t|)
    *upper = t >= 0.0 ? beyond : within;
    *lower = t >= 0.0 ? within : beyond;
}

void f_tails(double f, double df1, double df2, double *lower, double *upper) {
    if (std::isinf(f)) {
        *lower = 1.0;
        *upper = 0.0;
        return;
    }
    // x = df1 f / (df1 f + df2), y = df2 / (df1 f + df2), and their
    // logarithms in long double from f and the degrees of freedom.
    const long double scaled = static_cast<long double>(df1) * f, n2 = df2;
    const double x = static_cast<double>(scaled / (scaled + n2));
    const double y = static_cast<double>(n2 / (scaled + n2));
    const long double log_x = f == 0.0 ? kLogZero : -std::log1p(n2 / scaled);
    const long double log_y = -std::log1p(scaled / n2);
    incomplete_beta_logs(0.5 * df1, 0.5 * df2, x, y, log_x, log_y, 0.0, lower, upper);
}

}  // namespace kiv::kernels
