// Kernels of the gamma family.
//
//   log1pmx(z) = ln(1 + z) - z. With t = z / (2 + z), ln(1 + z) = 2 atanh t and
//     z - 2t = z t, so ln(1 + z) - z = t (2 t^2 sum_k t^(2k) / (2k + 3) - z): no
//     cancellation for -0.6 <= z <= 1 (|t| <= 0.43), 8, 16 or 24 terms by |t|;
//     direct log1p(z) - z outside.
//   ln Gamma(2 + z), |z| <= 1/2: the Taylor series (1 - g) z +
//     sum_{k>=2} (-1)^k (zeta(k) - 1) z^k / k (Abramowitz & Stegun 6.1.33 moved
//     by one), 30 terms; its terms fall like (z/2)^k, so the root at z = 0 keeps
//     full relative accuracy.
//   ln Gamma(1 + z) = ln Gamma(2 + z) - ln(1 + z) = -g z - log1pmx(z) + the same
//     zeta terms: again no cancellation at the root z = 0.
//   ln Gamma*(a), a >= 10: Stirling's series sum B_2k / (2k (2k - 1) a^(2k-1)),
//     10 terms (last term below 2e-19 at a = 10).
//   The series (zeta, log1pmx, Stirling) are summed in four interleaved
//   Horner chains (polynomial_four_chains in gamma_kernels.hpp).
//   Gamma(x), x > 0: (0, 1/2) exp(ln Gamma(1 + x)) / x; [1/2, 5/2) exp of the
//     series above (absolute error of the exponent below 1e-17); [5/2, 10) the
//     recurrence Gamma(x) = (x - 1)(x - 2)...(r) Gamma(r), r in [3/2, 5/2), whose
//     factors x - k are exact, multiplied in long double; [10, 171.62)
//     exp((x - 1/2) ln x - x + ln sqrt(2 pi) + ln Gamma*(x)) evaluated in long
//     double (64-bit significand on x86), so the exponent's rounding error,
//     amplified by its size up to 709, stays below 2^-53 of the result.
//   sin(pi x): reduced exactly to |r| <= 1/4 about a multiple of 1/2, then sin
//     or cos in long double.
//   The exponentials, logarithms, log1p, sin and cos here are the C library's
//   (std::), in double and long double: results may differ in their last bits
//   between C libraries and where long double is not the x87 format
//   (docs/gamma.md, "Platform-dependent results").
//   ln Gamma(x), x > 0: (0, 1/2) ln Gamma(1 + x) - ln x; [1/2, 5/2) the series;
//     [5/2, 10) the recurrence as a logarithm of the product; [10, 1e17)
//     (x - 1/2) ln x - x + ln sqrt(2 pi) + ln Gamma*(x) in long double; beyond,
//     x (ln x - 1) - ln(x)/2 + ln sqrt(2 pi) in double.
//
// References: M. Abramowitz, I. A. Stegun, Handbook of Mathematical Functions,
// NBS Applied Mathematics Series 55 (1964), 6.1.33, 6.1.40, 6.1.41.
// W. J. Cody, K. E. Hillstrom, Chebyshev approximations for the natural
// logarithm of the gamma function, Math. Comp. 21 (1967) 198-203 (the split of
// the positive axis at 1/2, 3/2 and 5/2 around the two roots).
//
// Measured against MPFR (tests/s/gamma_test.cpp): see docs/gamma.md.
#include "kernels/gamma_kernels.hpp"

#include <array>
#include <cmath>

#include "kernels/gamma_tables.hpp"

namespace kiv::kernels {

namespace {

// ln Gamma(2 + z) - (1 - g) z = z^2 sum_k kZetaSeries[k] z^k.
double zeta_tail(double z) {
    return polynomial_four_chains(z, gamma_tables::kZetaSeries) * z * z;
}

// 1 / (2k + 3), k = 0, 1, ...: the series of log1pmx (each correctly
// rounded by the compiler).
constexpr auto kOddReciprocals = [] {
    std::array<double, 24> table{};
    for (std::size_t k = 0; k < table.size(); ++k) table[k] = 1.0 / static_cast<double>(2 * k + 3);
    return table;
}();

}  // namespace

double log1pmx(double z) {
    if (z < -0.6 || z > 1.0) return std::log1p(z) - z;
    const double t = z / (2.0 + z);
    const double t2 = t * t;
    // sum_k t^(2k) / (2k + 3) by Horner's rule, cut where the next term
    // t2^n / (2n + 3) falls below 2^-60 of the sum (1/3 or more).
    const std::size_t terms = t2 <= 0.0025 ? 8 : t2 <= 0.0625 ? 16 : 24;
    const double sum = polynomial_four_chains(t2, kOddReciprocals.data(), terms);
    return t * (2.0 * t2 * sum - z);
}

double log_gamma_2p(double z) {
    return (1.0 - kEulerGamma) * z + zeta_tail(z);
}

double log_gamma_1p(double z) {
    return (-kEulerGamma * z + zeta_tail(z)) - log1pmx(z);
}

double stirling_correction(double a) {
    using gamma_tables::kStirling;
    const double inverse = 1.0 / a;
    if (a > 1e8) return kStirling[0] * inverse;
    return polynomial_four_chains(inverse * inverse, kStirling) * inverse;
}

long double sin_pi(double x) {
    // x = 2m + r with the sign folded in, reduced exactly: fmod is exact, and
    // so are the differences below by Sterbenz's lemma.
    double r = std::fmod(std::fabs(x), 2.0);
    long double sign = x < 0.0 ? -1.0L : 1.0L;
    if (r >= 1.0) {
        r -= 1.0;
        sign = -sign;
    }
    if (r > 0.5) r = 1.0 - r;
    if (r <= 0.25) return sign * std::sin(kPiLong * r);
    return sign * std::cos(kPiLong * (0.5 - r));
}

long double log_gamma_stirling(double x) {
    return (x - 0.5L) * std::log(static_cast<long double>(x)) - x + kHalfLogTwoPiLong +
           stirling_correction(x);
}

double gamma_positive(double x) {
    if (x < 0.5) return std::exp(log_gamma_1p(x)) / x;
    if (x < 1.5) return std::exp(log_gamma_1p(x - 1.0));
    if (x < 2.5) return std::exp(log_gamma_2p(x - 2.0));
    if (x < 10.0) {
        const double steps = std::floor(x - 1.5);
        long double product = 1.0L;
        for (double k = 1.0; k <= steps; k += 1.0) product *= x - k;
        return static_cast<double>(product * std::exp(log_gamma_2p(x - steps - 2.0)));
    }
    if (x > 171.625) return HUGE_VAL;
    return static_cast<double>(std::exp(log_gamma_stirling(x)));
}

double log_gamma_positive(double x) {
    if (x < 0.5) return log_gamma_1p(x) - std::log(x);
    if (x < 1.5) return log_gamma_1p(x - 1.0);
    if (x < 2.5) return log_gamma_2p(x - 2.0);
    if (x < 10.0) {
        const double steps = std::floor(x - 1.5);
        double product = 1.0;
        for (double k = 1.0; k <= steps; k += 1.0) product *= x - k;
        return std::log(product) + log_gamma_2p(x - steps - 2.0);
    }
    if (x > 1e17) {
        if (std::isinf(x)) return x;
        const double log_x = std::log(x);
        return x * (log_x - 1.0) - 0.5 * log_x + kHalfLogTwoPi;
    }
    return static_cast<double>(log_gamma_stirling(x));
}

}  // namespace kiv::kernels
