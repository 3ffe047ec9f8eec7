// s14bac: the regularised incomplete gamma functions
//   P(a, x) = gamma(a, x) / Gamma(a) = (1/Gamma(a)) int_0^x t^(a-1) e^-t dt,
//   Q(a, x) = Gamma(a, x) / Gamma(a) = 1 - P(a, x),
// together, for a > 0 and x >= 0, to the relative accuracy tol (tol <= machine
// precision, 0 included, asks for the best attainable; values above 1e-3 are
// taken as 1e-3). The smaller of P and Q is computed directly and the other as
// its complement, so the small one keeps its relative accuracy down to the
// underflow threshold.
//
// Method, region by region (after DiDonato & Morris):
//   a >= 20 (a >= 8 when tol > 1e-10), |x - a| <= 0.4 a: Temme's uniform
//     asymptotic expansion
//     Q = erfc(eta sqrt(a/2)) / 2 + e^(-a eta^2/2) / sqrt(2 pi a) sum_k C_k(eta) a^-k,
//     eta^2 / 2 = x/a - 1 - ln(x/a), eta with the sign of x - a; up to ten
//     orders, each a Taylor polynomial in eta (tables generated in
//     tools/generate/gamma_tables.py, rows cut where their terms fall below 1e-18,
//     or 1e-10 for a loose tol, at the largest eta in use), stopped at the
//     first order below tol. erfc(y) = e^(-y^2) R(y) with R the expansion
//     of s15adc, so that one exponential e^(-a eta^2/2) serves both terms.
//     Past erfc's argument 6 the common factor is formed in long double (in
//     double when tol is loose) and
//     erfc(y) e^(y^2) comes from its continued fraction (A&S 7.1.14), so
//     erfc's sensitivity to its argument does not reach the result.
//   a < 1, x < 1.5: P by the power series; when P > 1/2, Q directly as
//     Q = -(u + v + uv) - (1 + u)(1 + v) a sum_{n>=1} (-x)^n / (n! (a + n)),
//     u = 1/Gamma(1 + a) - 1, v = x^a - 1, both through expm1.
//   otherwise x < a + 1 (a < 20) or x < a (a >= 20): the power series
//     P = x^a e^-x / Gamma(a + 1) sum_{n>=0} x^n / ((a + 1)...(a + n)),
//     two terms per division;
//   otherwise: Legendre's continued fraction
//     Q = x^a e^-x / Gamma(a) / (x + 1 - a - 1(1 - a)/(x + 3 - a - 2(2 - a)/(...))),
//     by the forward (Wallis) recurrence with rescaling, two steps at a time,
//     which keeps divisions off the loop's dependency chain and halves it.
//   The factor x^a e^-x / Gamma(a + 1): for a < 10 as
//   e^(a ln x - x - ln Gamma(1 + r)) / (a (a - 1)...(r + 1)), r in (1/2, 3/2]
//   (exact factors); for a >= 10 in Temme's form e^(-a phi - ln Gamma*(a)) /
//   sqrt(2 pi a), phi = x/a - 1 - ln(x/a) computed without cancellation. The
//   exponent's rounding error, relative to its size, becomes the result's
//   relative error: when the exponent exceeds 100 (a result below 4e-44) and
//   tol asks for more than 1e-10, it is formed in long double and
//   exponentiated as exp(hi) (1 - lo); below, double costs at most 2.7e-14.
//   With a loose tol the exponent takes ln(x/a) directly and two terms of
//   Stirling's series. Long series are summed in four interleaved Horner
//   chains (no fused multiply-add: each Horner step is two dependent
//   operations). erfc and the double exponentials are the library's own
//   kernels; ln x in long double, x^a - 1 and 1/Gamma(1 + a) - 1 through expm1
//   come from the C library, so the last bits may differ between platforms
//   (docs/gamma.md, "Platform-dependent results").
//   Series and continued fraction stop when the rest falls below tol times the
//   sum; 600 iterations without that is NE_ALG_NOT_CONV (P and Q are then the
//   last estimates).
//
// References:
//   A. R. DiDonato, A. H. Morris, Computation of the incomplete gamma function
//     ratios and their inverse, ACM Trans. Math. Software 12 (1986) 377-393.
//   N. M. Temme, The asymptotic expansion of the incomplete gamma functions,
//     SIAM J. Math. Anal. 10 (1979) 757-766.
//   W. Gautschi, A computational procedure for incomplete gamma functions,
//     ACM Trans. Math. Software 5 (1979) 466-481.
//   W. H. Press et al., Numerical Recipes, 3rd ed., Cambridge (2007), 6.2 (the
//     continued fraction's even form); M. Abramowitz, I. A. Stegun, Handbook of
//     Mathematical Functions (1964), 6.5.29, 6.5.31, 7.1.14.
//
// Accuracy measured against MPFR (tests/s/gamma_incomplete_test.cpp, a in
// [1e-3, 1e5], x in [0, 1e5], 1434 points): the smaller of P and Q within
// 2.7e-14 relative for tol = 0 (at a = 158, x = 351, a double exponent near
// 100), within 4.75e-06 for tol = 5e-06. See docs/gamma.md.
#include "s/incomplete_gamma.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "kernels/exp_log.hpp"
#include "kernels/gamma_kernels.hpp"
#include "kernels/gamma_tables.hpp"
#include "kiv.h"
#include "runtime/report.hpp"
#include "s/erf.hpp"

namespace {

using namespace kiv::kernels;
using kiv::kernels::gamma_tables::kStirling;
using kiv::special::kIncompleteGammaIterations;

constexpr int kIterationLimit = kIncompleteGammaIterations;
constexpr double kTemmeMinimumA = 20.0;
// With a loose tol Temme's expansion serves from a = 8: measured against MPFR
// on a in [8, 20), |x - a| <= 0.4 a, within 2.5e-06 at tol = 5e-06.
constexpr double kTemmeMinimumALoose = 8.0;
constexpr double kTemmeBand = 0.4;
constexpr double kLongExponent = 100.0;  // exponents beyond this go through long double
constexpr double kUnderflowExponent = 746.0;
constexpr double kLooseTolerance = 1e-10;  // above this, no long double is needed

struct Tails {
    double p = 0.0;
    double q = 1.0;
    bool converged = true;
};

// e^-(hi + lo) for an exponent held as a long double.
double exp_negative(long double exponent) {
    if (exponent > kUnderflowExponent) return 0.0;
    const double hi = static_cast<double>(exponent);
    const double lo = static_cast<double>(exponent - hi);
    return kiv::kernels::exp(-hi) * (1.0 - lo);
}

// ln(1 + z) - z in long double, |z| < 0.6 (the series of log1pmx).
long double log1pmx_long(long double z) {
    const long double t = z / (2.0L + z);
    const long double t2 = t * t;
    long double power = 1.0L;
    long double sum = 1.0L / 3.0L;
    for (int k = 1; k < 60; ++k) {
        power *= t2;
        const long double term = power / (2 * k + 3);
        sum += term;
        if (term < 0x1p-66L * sum) break;
    }
    return t * (2.0L * t2 * sum - z);
}

// phi(x/a) = x/a - 1 - ln(x/a) >= 0, with mu = (x - a)/a.
double phi_of(double a, double x, double mu) {
    if (mu > -0.6 && mu < 1.0) return -log1pmx(mu);
    return mu - kiv::kernels::log(x / a);
}

long double a_phi_long(double a, double x) {
    const long double mu = (static_cast<long double>(x) - a) / a;
    if (mu > -0.6L && mu < 0.6L) return -a * log1pmx_long(mu);
    return a * (mu - std::log(static_cast<long double>(x) / a));
}

// ln Gamma(1 + a) for 0 < a.
double log_gamma_1p_any(double a) {
    if (a <= 0.5) return log_gamma_1p(a);
    if (a <= 1.5) return log_gamma_2p(a - 1.0);
    return log_gamma_positive(a) + kiv::kernels::log(a);
}

// Gamma(1 + a) = product * e^(returned), 0 < a < 10: the product is
// a (a - 1) ... (r + 1) with r in (1/2, 3/2] (factors a - k exact, at most
// nine roundings), and the exponent ln Gamma(1 + r); for a <= 1/2 the product
// is 1 and the exponent ln Gamma(1 + a).
double log_gamma_1p_reduced(double a, double &product) {
    product = 1.0;
    if (a <= 0.5) return log_gamma_1p(a);
    double r = a;
    while (r > 1.5) {
        product *= r;
        r -= 1.0;
    }
    return log_gamma_2p(r - 1.0);
}

// x^a e^-x / Gamma(a + 1), accurate relative to its value; 0 on underflow.
// The exponent's rounding error, relative to its size (up to 746), becomes
// the relative error of the result: below 25 (a result above 1e-11), or when
// epsilon is loose, double suffices; beyond, the exponent is formed in long
// double.
double series_prefactor(double a, double x, double epsilon) {
    const bool loose = epsilon > kLooseTolerance;
    if (a >= 10.0) {
        const double mu = (x - a) / a;
        double exponent;
        if (loose) {
            // Absolute errors near 1e-16 a in the exponent are far below epsilon:
            // ln(x/a) directly, and two terms of Stirling's series (the third is
            // below 1e-8 for a >= 10).
            const double inverse_a2 = 1.0 / (a * a);
            exponent = a * std::max(0.0, mu - kiv::kernels::log(x / a)) +
                       (kStirling[0] + kStirling[1] * inverse_a2) / a;
        } else {
            exponent = a * phi_of(a, x, mu) + stirling_correction(a);
        }
        if (!(exponent > kLongExponent) || (loose && exponent < kUnderflowExponent))
            return kiv::kernels::exp(-exponent) / std::sqrt(2.0 * kPi * a);
        if (exponent > 2.0 * kUnderflowExponent) return 0.0;
        return exp_negative(a_phi_long(a, x) + stirling_correction(a)) / std::sqrt(2.0 * kPi * a);
    }
    const double exponent = a * kiv::kernels::log(x) - x;
    if (exponent > -kLongExponent && exponent < 700.0) {
        double product;
        const double log_gamma = log_gamma_1p_reduced(a, product);
        return kiv::kernels::exp(exponent - log_gamma) / product;
    }
    if (exponent < -2.0 * kUnderflowExponent) return 0.0;
    if (loose && exponent < 700.0) return kiv::kernels::exp(exponent - log_gamma_1p_any(a));
    return exp_negative(x - a * std::log(static_cast<long double>(x)) + log_gamma_1p_any(a));
}

// P by the power series.
Tails power_series(double a, double x, double epsilon) {
    Tails result;
    const double prefactor = series_prefactor(a, x, epsilon);
    if (prefactor == 0.0) return result;
    // Terms t_n = t_(n-1) x / (a + n) two at a time with one division:
    // t_n + t_(n+1) = t_(n-1) x (a + n + 1 + x) / ((a + n)(a + n + 1)).
    const double x2 = x * x;
    double term = 1.0;
    double sum = 1.0;
    int n = 1;
    double low = a + 1.0;
    for (; n <= kIterationLimit; n += 2, low += 2.0) {
        const double high = low + 1.0;
        const double inverse = 1.0 / (low * high);
        sum += term * x * (high + x) * inverse;
        term *= x2 * inverse;
        // The rest is below term r / (1 - r), r = x / (high + 1) < 1.
        if (term * x <= epsilon * sum * (high + 1.0 - x)) break;
    }
    result.converged = n <= kIterationLimit;
    result.p = prefactor * sum;
    result.q = 1.0 - result.p;
    return result;
}

// Q by Legendre's continued fraction, forward recurrence.
Tails continued_fraction(double a, double x, double epsilon) {
    Tails result{1.0, 0.0, true};
    const double prefactor = a * series_prefactor(a, x, epsilon);
    if (prefactor == 0.0) return result;
    // Convergents may differ by less than the remaining error; a looser
    // request is therefore tightened sixteenfold. At full precision the
    // convergents two apart need only agree to 2^-51: the rest of the
    // fraction, a fraction of that difference, stays below 2^-53 where the
    // pairs converge at least twofold (measured: no change on the test grid,
    // one pair fewer on average).
    const double step_tolerance = std::max(epsilon / 16.0, 0x1p-51);
    // Two steps of the recurrence y_n = b_n y_(n-1) + a_n y_(n-2) at a time,
    //   y_n     = b_n y_(n-1) + a_n y_(n-2),
    //   y_(n+1) = (b_(n+1) b_n + a_(n+1)) y_(n-1) + b_(n+1) a_n y_(n-2),
    // both from the same pair, so the loop's dependency chain is one
    // multiplication and one addition per two steps; convergents two apart
    // are compared.
    double numerator_old = 1.0;
    double numerator = x + 1.0 - a;
    double denominator_old = 0.0;
    double denominator = 1.0;
    double value = numerator;
    int n = 1;
    double index = 1.0;  // n as a double
    const double x_minus_a = x - a;
    for (; n <= kIterationLimit; n += 2, index += 2.0) {
        const double step_b = x_minus_a + (2.0 * index + 1.0);
        const double step_a = index * (a - index);
        const double next_a = (index + 1.0) * (a - (index + 1.0));
        const double next_b = step_b + 2.0;
        const double combined_b = next_b * step_b + next_a;
        const double combined_a = next_b * step_a;
        const double numerator_mid = step_b * numerator + step_a * numerator_old;
        const double denominator_mid = step_b * denominator + step_a * denominator_old;
        numerator = combined_b * numerator + combined_a * numerator_old;
        denominator = combined_b * denominator + combined_a * denominator_old;
        numerator_old = numerator_mid;
        denominator_old = denominator_mid;
        if (std::fabs(numerator) > 0x1p500 || std::fabs(denominator) > 0x1p500) {
            numerator *= 0x1p-500;
            numerator_old *= 0x1p-500;
            denominator *= 0x1p-500;
            denominator_old *= 0x1p-500;
        }
        const double next = numerator / denominator;
        const bool done = std::fabs(next - value) <= step_tolerance * std::fabs(next);
        value = next;
        if (done) break;
    }
    result.converged = n <= kIterationLimit;
    result.q = prefactor / value;
    result.p = 1.0 - result.q;
    return result;
}

// Q for a < 1 and x < 1.5 (Q the smaller of the two).
double small_shape_q(double a, double x, double epsilon) {
    const double u = std::expm1(-log_gamma_1p_any(a));
    const double v = std::expm1(a * std::log(x));
    double term = 1.0;
    double sum = 0.0;
    for (int n = 1; n < 60; ++n) {
        term *= -x / n;
        const double contribution = term / (a + n);
        sum += contribution;
        if (std::fabs(contribution) <= epsilon * std::fabs(sum)) break;
    }
    return -(u + v + u * v) - (1.0 + u) * (1.0 + v) * a * sum;
}

// erfc(y) e^(y^2) for y >= 6 by the continued fraction (A&S 7.1.14).
double scaled_erfc_large(double y) {
    double tail = y;
    for (int k = 16; k >= 1; --k) tail = y + 0.5 * k / tail;
    return 1.0 / (tail * 1.7724538509055160273);
}

// erfc(y) e^(y^2), 0 <= y < 6: the expansion of s15adc (e^(-y^2) times a
// polynomial in t = (y - 3.75)/(y + 3.75)), summed in four chains.
double erfc_scaled(double y) {
    const double t = 1.0 - 7.5 / (y + 3.75);
    return polynomial_four_chains(t, kiv::special::kErfcSeries);
}

// Lengths of the rows of kTemme with every term below `threshold` once
// scaled by eta_max^j a_min^-k dropped: the generator cut each row where
// |d_(k,j)| 2^-j 20^-k < 1e-20 for every later j.
constexpr auto temme_lengths(double eta_max, double inverse_a_min, double threshold) {
    using namespace kiv::kernels::gamma_tables;
    std::array<std::size_t, kTemmeOrders> lengths{};
    double order_scale = 1.0;
    for (int k = 0; k < kTemmeOrders; ++k) {
        double power = 1.0;
        for (int j = 0; j < kTemmeLength[k]; ++j) {
            const double d = kTemme[k][j] < 0.0 ? -kTemme[k][j] : kTemme[k][j];
            if (d * power * order_scale >= threshold) lengths[k] = static_cast<std::size_t>(j) + 1;
            power *= eta_max;
        }
        order_scale *= inverse_a_min;
    }
    return lengths;
}

// At full precision (a >= 20): terms below 1e-18, against a sum near 1/3 and
// an erfc term at least a third of the result, move it by less than 1e-17
// relative in all; for |eta| < 1/2 (|x - a| <= 0.4 a) 136 terms instead of
// 162, for |eta| <= 1/4 98.
constexpr auto kTemmeLengthWide = temme_lengths(0.5, 1.0 / 20.0, 1e-18);
constexpr auto kTemmeLengthNarrow = temme_lengths(0.25, 1.0 / 20.0, 1e-18);
// For a loose tol (a >= 8, |eta| < 1/2): terms below 1e-10 against a sum near
// 1/3 move the result by less than 1e-9 relative, far below tol; about half
// the terms of the full rows, and the last orders vanish.
constexpr auto kTemmeLengthLoose = temme_lengths(0.5, 1.0 / 8.0, 1e-10);

// Temme's expansion for a >= 20, |mu| <= 0.4.
Tails temme(double a, double x, double epsilon) {
    using namespace kiv::kernels::gamma_tables;
    const double mu = (x - a) / a;
    const double phi = -log1pmx(mu);
    const double eta = std::copysign(std::sqrt(2.0 * phi), mu);
    const double inverse_a = 1.0 / a;
    double sum = 0.0;
    double inverse_power = 1.0;
    const bool loose = epsilon > kLooseTolerance;
    const bool narrow = std::fabs(eta) <= 0.25;
    for (int k = 0; k < kTemmeOrders; ++k) {
        const std::size_t length = loose    ? kTemmeLengthLoose[k]
                                   : narrow ? kTemmeLengthNarrow[k]
                                            : kTemmeLengthWide[k];
        const double term = polynomial_four_chains(eta, kTemme[k], length) * inverse_power;
        sum += term;
        if (k > 0 && std::fabs(term) <= epsilon * std::fabs(sum)) break;
        inverse_power *= inverse_a;
    }
    const double a_phi = a * phi;
    const double y = std::sqrt(a_phi);
    const double scale = 1.0 / std::sqrt(2.0 * kPi * a);
    double small;  // Q when x >= a, P when x < a
    const double sign = mu >= 0.0 ? 1.0 : -1.0;
    if (y < 6.0) {
        // erfc(y) = e^(-y^2) R(y): one exponential serves both terms.
        const double factor = kiv::kernels::exp(-a_phi);
        small = factor * (0.5 * erfc_scaled(y) + sign * scale * sum);
    } else {
        const double factor =
            epsilon > kLooseTolerance ? kiv::kernels::exp(-a_phi) : exp_negative(a_phi_long(a, x));
        small = factor * (0.5 * scaled_erfc_large(y) + sign * scale * sum);
    }
    Tails result;
    if (mu >= 0.0) {
        result.q = small;
        result.p = 1.0 - small;
    } else {
        result.p = small;
        result.q = 1.0 - small;
    }
    return result;
}

Tails tails_of(double a, double x, double epsilon) {
    if (x == 0.0) return Tails{0.0, 1.0, true};
    if (std::isinf(x)) return Tails{1.0, 0.0, true};
    if (std::isinf(a)) return Tails{0.0, 1.0, true};
    const double temme_from = epsilon > kLooseTolerance ? kTemmeMinimumALoose : kTemmeMinimumA;
    if (a >= temme_from && std::fabs(x - a) <= kTemmeBand * a) return temme(a, x, epsilon);
    if (a < 1.0 && x < 1.5) {
        Tails result = power_series(a, x, epsilon);
        if (result.p > 0.5) {
            result.q = small_shape_q(a, x, epsilon);
            result.p = 1.0 - result.q;
        }
        return result;
    }
    const bool series = a < kTemmeMinimumA ? x < a + 1.0 : x < a;
    if (!series) return continued_fraction(a, x, epsilon);
    // Near and past x = a the series may give the larger tail, whose complement Q (above
    // about 0.1 here) needs a proportionally smaller absolute error.
    return power_series(a, x, x > 0.7 * a ? std::max(epsilon / 16.0, 0x1p-53) : epsilon);
}

}  // namespace

namespace kiv::special {

IncompleteGammaStatus incomplete_gamma(double a, double x, double tol, double *p, double *q) {
    if (!(a > 0.0)) return IncompleteGammaStatus::a_not_positive;
    if (!(x >= 0.0)) return IncompleteGammaStatus::x_negative;
    if (std::isinf(a) && std::isinf(x)) return IncompleteGammaStatus::both_infinite;
    constexpr double machine = 0x1.0000000000001p-53;  // x02ajc()
    const double epsilon = tol > machine ? std::min(tol, 1e-3) : machine;
    const Tails tails = tails_of(a, x, epsilon);
    *p = tails.p;
    *q = tails.q;
    return tails.converged ? IncompleteGammaStatus::ok : IncompleteGammaStatus::not_converged;
}

}  // namespace kiv::special

extern "C" {

KIV_API void s14bac(double a, double x, double tol, double *p, double *q, KivError *fail) {
    using namespace kiv::rt;
    using kiv::special::IncompleteGammaStatus;
    if (!licence_check()) return;
    clear_code(fail);
    // The kernel writes into locals, so that the null outputs are reported
    // after the argument checks and p, q stay untouched after any fault.
    double lower = 0.0, upper = 0.0;
    const IncompleteGammaStatus status = kiv::special::incomplete_gamma(a, x, tol, &lower, &upper);
    if (status != IncompleteGammaStatus::a_not_positive &&
        status != IncompleteGammaStatus::x_negative &&
        status != IncompleteGammaStatus::both_infinite && (p == nullptr || q == nullptr)) {
        report_template(fail, "s14bac", NE_BAD_PARAM, p == nullptr ? "p" : "q");
        return;
    }
    if (status == IncompleteGammaStatus::ok || status == IncompleteGammaStatus::not_converged) {
        *p = lower;
        *q = upper;
    }
    switch (status) {
        case IncompleteGammaStatus::a_not_positive:
            report_template(fail, "s14bac", NE_REAL_ARG_LE, "a", "0.0", "a", a);
            return;
        case IncompleteGammaStatus::x_negative:
            report_template(fail, "s14bac", NE_REAL_ARG_LT, "x", "0.0", "x", x);
            return;
        case IncompleteGammaStatus::both_infinite:
            report_template(fail, "s14bac", NE_REAL_2, "a", a, "x", x,
                            "a and x must not both be infinite");
            return;
        case IncompleteGammaStatus::not_converged:
            report_template(fail, "s14bac", NE_ALG_NOT_CONV, static_cast<long>(kIterationLimit));
            return;
        case IncompleteGammaStatus::ok:
            break;
    }
    report_success(fail, "s14bac");
}

}  // extern "C"
