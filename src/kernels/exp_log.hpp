// The library's own exponential and natural logarithm.
//
// Why our own: the batch forms of the normal-distribution routines must give
// the same bits as the scalar routines, and every platform and C library the
// same bits as every other. Each kernel is therefore a template over the lane
// type of kernels/lanes.hpp (a double, or four doubles) using only correctly
// rounded IEEE operations in a fixed order.
//
// Exponential. Cody and Waite's reduction: k = nearest integer to x/ln 2,
// r = x - k ln 2 with ln 2 split in two parts (the high part has 32 trailing
// zero bits, so k * ln2_high is exact), |r| <= ln 2 / 2. Then, after Tang's
// and Sun's fdlibm scheme, e^r = 1 + r + r c / (2 - c) with
// c = r - r^2 P(r^2), where P approximates (r coth(r/2) - 2) / r^2; the small
// part of r is folded in at the last addition. A second input word lo lets
// callers pass an argument carried in two doubles (hi + lo), which
// exp_neg_square uses for e^(-x^2) with x^2 split exactly by Dekker's product.
//
// Logarithm. x = 2^k m with m in [sqrt(2)/2, sqrt(2)); f = m - 1 (exact);
// s = f / (2 + f); log(1 + f) = 2 atanh(s) = f - s (f - R) with
// R = s^2 Q(s^2) approximating 2 s^2/3 + 2 s^4/5 + ...; then
// log x = k ln2_high - ((f^2/2 - (s (f^2/2 + R) + k ln2_low)) - f).
//
// References:
//   W. J. Cody and W. Waite, Software Manual for the Elementary Functions,
//     Prentice-Hall, 1980, chapters 5 and 6.
//   P. T. P. Tang, Table-driven implementation of the exponential function in
//     IEEE floating-point arithmetic, ACM Transactions on Mathematical
//     Software 15 (1989), 144-157.
//   T. J. Dekker, A floating-point technique for extending the available
//     precision, Numerische Mathematik 18 (1971), 224-242.
//
// Coefficients (fitted by us): P (5 terms, degree 4 in r^2) and Q (7 terms,
// degree 6 in s^2) are Chebyshev interpolants computed with mpmath (chebyfit,
// 60 digits) on [0, (ln 2 / 2)^2] and [0, ((sqrt 2 - 1)/(sqrt 2 + 1))^2] and
// rounded to double; tools/generate/exp_log_coefficients.py repeats the fit
// and measures these tables: errors 6.5e-17 and 3.2e-16 absolute as rounded
// (5.1e-17 and 3.1e-16 before rounding), which changes the results by less
// than 1e-17 relative. Not to be edited by hand.
//
// Accuracy measured against MPFR (tests/kernels/exp_log_test.cpp): exp and
// exp_neg_square below 0.88 ulp, log below 0.81 ulp, over their whole
// ranges (normal results).
#pragma once

#include "kernels/lanes.hpp"

namespace kiv::kernels {

// e^x for every double: overflow gives +inf, underflow a subnormal or 0,
// NaN gives NaN.
double exp(double x);

// Natural logarithm for every double: log(0) = -inf, log(x < 0) = NaN,
// log(+inf) = +inf, NaN gives NaN; subnormal x are handled exactly.
double log(double x);

namespace detail {

inline constexpr double kLog2E = 0x1.71547652b82fep0;     // 1/ln 2
inline constexpr double kLn2High = 0x1.62e42feep-1;       // 32 trailing zeros
inline constexpr double kLn2Low = 0x1.a39ef35793c76p-33;  // ln 2 - kLn2High
inline constexpr double kRoundingShift = 0x1.8p52;        // x + shift - shift rounds x

// P(z), z = r^2: (r coth(r/2) - 2)/z on [0, 0.1201], constant term first.
inline constexpr double kExpP[] = {
    0x1.5555555555553p-3,   -0x1.6c16c16c0abf9p-9, 0x1.1566ab5c1473dp-14,
    -0x1.bbd532227cf4dp-20, 0x1.63f27409701ecp-25,
};

// Q(z), z = s^2: (2 atanh(s)/s - 2)/z on [0, 0.02944], constant term first.
inline constexpr double kLogQ[] = {
    0x1.5555555555558p-1, 0x1.99999999952d7p-2, 0x1.2492492df281ap-2, 0x1.c71c62e3f11e6p-3,
    0x1.7462b51cb66b1p-3, 0x1.39fe51a7c18f9p-3, 0x1.2b5900de53b32p-3,
};

}  // namespace detail

// e^(hi + lo) = y * 2^k with y in [0.7, 1.42], for |lo| <= ulp(hi) and
// |hi| < 2^51: returns y and sets `shifted` to k + 0x1.8p52 (k in its low
// bits, see power_of_two_from_shifted).
template <class V>
inline V exp_reduced(V hi, V lo, V &shifted) {
    using namespace detail;
    shifted = hi * kLog2E + kRoundingShift;
    const V k = shifted - kRoundingShift;
    const V reduced_high = hi - k * kLn2High;
    const V reduced_low = k * kLn2Low - lo;
    const V r = reduced_high - reduced_low;
    const V z = r * r;
    const V c = r - z * polynomial(z, kExpP);
    return 1.0 - ((reduced_low - (r * c) / (2.0 - c)) - reduced_high);
}

// e^(hi + lo) for hi in [-708.39, 709.43] (k from -1022 to 1023, so that
// 2^k is a normal double).
template <class V>
inline V exp_pair(V hi, V lo) {
    V shifted;
    const V y = exp_reduced(hi, lo, shifted);
    return y * power_of_two_from_shifted(shifted);
}

// e^(-x^2) for |x| < 26.6 (x^2 < 708), with x^2 carried exactly in two
// doubles so that rounding x^2 costs nothing (x^2 rounded would cost up to
// x^2 * 2^-53, 8e-14 relative at x = 26.5).
template <class V>
inline V exp_neg_square(V x) {
    constexpr double kSplitter = 0x1.0p27 + 1.0;  // Dekker's splitting constant
    const V square = x * x;
    const V scaled = x * kSplitter;
    const V x_high = scaled - (scaled - x);
    const V x_low = x - x_high;
    const V square_low = ((x_high * x_high - square) + 2.0 * x_high * x_low) + x_low * x_low;
    return exp_pair(-square, -square_low);
}

// log x for positive finite x (normal or subnormal).
template <class V>
inline V log_positive(V x) {
    using namespace detail;
    // Subnormal: scale by 2^54 (exact) and remember it in the exponent.
    const auto subnormal = x < 0x1.0p-1022;
    x = select(subnormal, x * 0x1.0p54, x);
    V e = exponent_of(x) - select(subnormal, broadcast(54.0, x), broadcast(0.0, x));
    V m = mantissa_of(x);
    const auto high = m > 0x1.6a09e667f3bcdp0;  // sqrt(2)
    m = select(high, m * 0.5, m);
    e = select(high, e + 1.0, e);
    const V f = m - 1.0;
    const V s = f / (2.0 + f);
    const V z = s * s;
    const V r = z * polynomial(z, kLogQ);
    const V half_square = 0.5 * f * f;
    return e * kLn2High - ((half_square - (s * (half_square + r) + e * kLn2Low)) - f);
}

}  // namespace kiv::kernels
