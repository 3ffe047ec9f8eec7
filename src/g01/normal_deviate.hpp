// The normal deviate kernel behind g01cec and g01fac as lane templates
// (kernels/lanes.hpp), shared by the scalar routines (normal_deviate.cpp)
// and the batch form (normal_deviate_batch.cpp) so that both give the same
// bits. The method and its sources are described in normal_deviate.cpp.
#pragma once

#include <cmath>

#include "kernels/exp_log.hpp"
#include "kernels/lanes.hpp"

namespace kiv::g01 {

// Rational approximations, numerator and denominator, constant term first.
// Coefficient provenance: given with the method in the forms of Odeh and Evans
// (AS 70) and Wichura (AS 241) (see normal_deviate.cpp), written exactly as
// given, not refitted here; their accuracy is measured in
// tests/g01/normal_deviate_test.cpp (Phi(x) against p within 9.8e-13 relative
// on [0.2, 0.8], 3.1e-11 on [1e-20, 1 - 1e-6]).
// Central region, in s = t^2 with t = q sqrt(2 pi):
inline constexpr double kCentralNumerator[] = {
    1.0,
    -41.63362762616374,
    64.94128979404664,
    -36.89355386573687,
    8.984374887949292,
    -0.8486205099916682,
    0.01799227452322391,
    0.00012434847784254828,
};
inline constexpr double kCentralDenominator[] = {
    1.0,
    -41.80029429283041,
    71.84967217618504,
    -46.45534714071778,
    13.57696314152835,
    -1.714887182301168,
    0.06929108687616727,
    1.5e-9,
};
// Intermediate region, in u = |q| - 0.3:
inline constexpr double kMiddleNumerator[] = {
    0.8416212335733377, -6.002063030711376, -0.4722617278101355,
    68.25030402764662,  -96.23966784668193, -10.47655255702662,
};
inline constexpr double kMiddleDenominator[] = {
    1.0,
    -11.37563668160269,
    41.33878042998575,
    -43.59278882675467,
    -21.25589975172773,
    25.0861060307781,
};
// Tail region, correction to v = sqrt(-2 ln r):
inline constexpr double kTailNumerator[] = {
    -3.012472607913056, 2.982419254309647,    22.70676420727861,     7.670763790822552,
    0.5519186629029667, 0.007985443046076538, 4.150184151574655e-06,
};
inline constexpr double kTailDenominator[] = {
    1.0,
    1.239758125817922,
    -12.05350980555889,
    -12.023590582199258,
    -2.373035796200643,
    -0.11934402820315079,
    -0.001216250189896074,
};

inline constexpr double kCentralUpTo = 0.3;  // |q| <= 0.3: central region
inline constexpr double kMiddleUpTo = 0.42;  // 0.3 < |q| <= 0.42: intermediate

// sqrt(2 pi), taken with a square root as the method prescribes (the
// compiler folds it; the value is the correctly rounded root either way).
inline const double kSqrtTwoPi = std::sqrt(6.283185307179586);

// Central region, |q| <= 0.3.
template <class V>
inline V deviate_central(V q) {
    const V t = q * kSqrtTwoPi;
    const V s = t * t;
    return t * kernels::polynomial(s, kCentralNumerator) /
           kernels::polynomial(s, kCentralDenominator);
}

// Intermediate region, 0.3 < |q| <= 0.42; sign is +1 or -1.
template <class V>
inline V deviate_middle(V abs_q, V sign) {
    const V u = abs_q - kCentralUpTo;
    return sign * kernels::polynomial(u, kMiddleNumerator) /
           kernels::polynomial(u, kMiddleDenominator);
}

// Tail region, |q| > 0.42: r = min(p, 1 - p) in (0, 0.08).
template <class V>
inline V deviate_tail(V p, V sign) {
    const V complement = 1.0 - p;
    const V r = kernels::select(p < complement, p, complement);
    const V v = kernels::square_root(-2.0 * kernels::log_positive(r));
    return sign *
           (v + kernels::polynomial(v, kTailNumerator) / kernels::polynomial(v, kTailDenominator));
}

// The deviate x with P(X <= x) = p, for 0 < p < 1.
inline double deviate_value(double p) {
    const double q = p - 0.5;
    const double abs_q = std::fabs(q);
    if (abs_q <= kCentralUpTo) return deviate_central(q);
    const double sign = q > 0.0 ? 1.0 : -1.0;
    if (abs_q <= kMiddleUpTo) return deviate_middle(abs_q, sign);
    return deviate_tail(p, sign);
}

#if defined(KIV_HAVE_LANES)
// The same for four lanes, each 0 < p < 1; a region is evaluated only when
// one of the lanes lies in it.
inline kernels::Lanes4 deviate_all(kernels::Lanes4 p) {
    using kernels::select;
    const kernels::Lanes4 q = p - 0.5;
    const kernels::Lanes4 abs_q = kernels::absolute(q);
    const kernels::Lanes4 sign = select(q > 0.0, 1.0, kernels::broadcast(-1.0, q));
    const kernels::Mask4 middle = (abs_q > kCentralUpTo) & (abs_q <= kMiddleUpTo);
    const kernels::Mask4 tail = abs_q > kMiddleUpTo;
    kernels::Lanes4 x = deviate_central(q);
    if (kernels::any(middle)) x = select(middle, deviate_middle(abs_q, sign), x);
    if (kernels::any(tail)) x = select(tail, deviate_tail(p, sign), x);
    return x;
}
#endif

}  // namespace kiv::g01
