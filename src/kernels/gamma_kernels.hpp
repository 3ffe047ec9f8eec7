// Kernels of the gamma family shared by the gamma, log-gamma and incomplete
// gamma routines: ln(1 + z) - z, ln Gamma near 1 and 2, the Stirling
// correction, sin(pi x), and Gamma and ln Gamma for positive arguments.
// No argument checks here: the callers validate. See gamma_kernels.cpp.
#pragma once

#include <cstddef>

namespace kiv::kernels {

inline constexpr double kEulerGamma = 0.57721566490153286061;
inline constexpr double kPi = 3.14159265358979323846;
inline constexpr double kSqrtTwoPi = 2.50662827463100050242;
inline constexpr double kHalfLogTwoPi = 0.91893853320467274178;
inline constexpr long double kPiLong = 3.14159265358979323846264338327950288L;
inline constexpr long double kHalfLogTwoPiLong = 0.918938533204672741780329736405617639L;

// sum_{j<n} c[j] x^j as four interleaved Horner chains in x^4. Without
// fused multiply-add each Horner step costs a multiplication and an addition
// in sequence, so a long polynomial is latency bound; four chains take a
// quarter of the steps, and the rounding stays that of Horner's rule when
// the terms decrease (as in every series here).
inline double polynomial_four_chains(double x, const double *c, std::size_t n) {
    const double x2 = x * x;
    const double x4 = x2 * x2;
    // The top block of n mod 4 coefficients starts the chains; full blocks
    // follow without tests.
    std::size_t b = n & ~std::size_t{3};
    const std::size_t top = n - b;
    double s0 = top > 0 ? c[b] : 0.0;
    double s1 = top > 1 ? c[b + 1] : 0.0;
    double s2 = top > 2 ? c[b + 2] : 0.0;
    double s3 = 0.0;
    while (b > 0) {
        b -= 4;
        s0 = s0 * x4 + c[b];
        s1 = s1 * x4 + c[b + 1];
        s2 = s2 * x4 + c[b + 2];
        s3 = s3 * x4 + c[b + 3];
    }
    return (s0 + x * s1) + x2 * (s2 + x * s3);
}

template <std::size_t N>
inline double polynomial_four_chains(double x, const double (&c)[N]) {
    return polynomial_four_chains(x, c, N);
}

// ln(1 + z) - z for z > -1, with small relative error also near z = 0.
double log1pmx(double z);

// ln Gamma(1 + z) for |z| <= 0.5 and ln Gamma(2 + z) for |z| <= 0.5.
double log_gamma_1p(double z);
double log_gamma_2p(double z);

// ln Gamma*(a) = ln Gamma(a) - (a - 1/2) ln a + a - ln sqrt(2 pi), a >= 10.
double stirling_correction(double a);

// sin(pi x) with the argument reduced exactly, for |x| < 2^52; long double.
long double sin_pi(double x);

// ln Gamma(x) for x >= 10 by Stirling's series, in long double.
long double log_gamma_stirling(double x);

// Gamma(x) for 0 < x (+inf past the overflow threshold 171.62...).
double gamma_positive(double x);

// ln Gamma(x) for 0 < x (+inf past the overflow threshold 2.55e305).
double log_gamma_positive(double x);

}  // namespace kiv::kernels
