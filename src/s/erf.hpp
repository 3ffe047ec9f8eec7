// Error function family: the arithmetic of erfc (s15adc) and erf (s15aec)
// as lane templates (kernels/lanes.hpp), shared by the scalar routines in
// erf.cpp and the batch forms in erf_batch.cpp so that both give the same
// bits. The method and its sources are described in erf.cpp.
#pragma once

#include "kernels/exp_log.hpp"
#include "kernels/lanes.hpp"

namespace kiv::special {

// Coefficient provenance: the three tables below are the published
// coefficients of the method (Clenshaw 1962, Schonfelder 1978; see erf.cpp),
// given to 16 significant digits and written exactly as given, not refitted
// here; the accuracy they reach is measured in tests/s/erf_test.cpp and
// stated in erf.cpp (erfc within 4.6e-15 relative on [-6.25, 26.5]).
//
// erfc(x) = e^(-x^2) y(t), t = (|x| - 3.75)/(|x| + 3.75), for x >= 0:
// coefficients c_0 ... c_22 of y(t), constant term first.
inline constexpr double kErfcSeries[] = {
    0.1455897212750385,     -0.273421931495426,     0.2260080669166197,     -0.1635718955239687,
    0.1026043120322792,     -0.05480232669380236,   0.02414322397093253,    -0.008220621168415435,
    0.001802962431316418,   -2.553523453642242e-05, -0.0001524627476123466, 4.789838226695987e-05,
    3.584014089915968e-06,  -6.182369348098529e-06, 7.47831710178579e-07,   6.575825478226343e-07,
    -1.822565715362025e-07, -7.043998994397452e-08, 3.026547320064576e-08,  7.532536116142436e-09,
    -4.066088879757269e-09, -5.718639670776992e-10, 3.328130055126039e-10,
};

// Chebyshev coefficients of erf(x)/x in s = x^2 - 2 for |x| <= 2, a_0 first.
inline constexpr double kErfSmall[] = {
    1.4831105640848037,
    -0.301071073386595,
    0.0689948306898316,
    -0.0139162712647222,
    0.0024207995224335,
    -0.0003658639685849,
    4.86209844323e-05,
    -5.749256558e-06,
    6.113243578e-07,
    -5.89910153e-08,
    5.2070091e-09,
    -4.232976e-10,
    3.18811e-11,
    -2.2361e-12,
    1.467e-13,
    -9e-15,
    5e-16,
};

// Chebyshev coefficients of |x| e^(x^2) erfc(|x|) sqrt(pi) in
// s = 2 - 20/(|x| + 3) for 2 < |x| < 6.25, a_0 first.
inline constexpr double kErfLarge[] = {
    1.9449071068178803,
    0.0420186582324414,
    -0.0186866103976769,
    0.0051281061839107,
    -0.0010683107461726,
    0.0001744737872522,
    -2.15642065714e-05,
    1.7282657974e-06,
    -2.00479241e-08,
    -1.64782105e-08,
    2.0008475e-09,
    2.57716e-11,
    -3.06343e-11,
    1.9158e-12,
    3.703e-13,
    -5.43e-14,
    -4e-15,
    1.2e-15,
};

inline constexpr double kErfcZeroFrom = 26.6;  // x >= this: erfc(x) = 0
inline constexpr double kErfcTwoUpTo = -6.25;  // x <= this: erfc(x) = 2
inline constexpr double kErfOneFrom = 6.25;    // |x| >= this: erf(x) = +-1
inline constexpr double kErfSmallUpTo = 2.0;   // |x| <= this: small series
inline constexpr double kOneOverSqrtPi = 0.5641895835477563;

// Clenshaw's recurrence in the doubled-argument form, s in [-2, 2]:
// b_k = s b_(k+1) - b_(k+2) + a_k from k = n down to 0 (b_(n+1) = b_(n+2)
// = 0), sum (b_0 - b_2)/2. b_n = a_n is taken directly: s*0 - 0 + a_n is
// a_n for every finite s.
template <class V, std::size_t N>
inline V chebyshev_sum(V s, const double (&a)[N]) {
    V b_next = kernels::broadcast(0.0, s);
    V b = kernels::broadcast(a[N - 1], s);
    V b_after = b_next;
    for (std::size_t k = N - 1; k-- > 0;) {
        b_after = b_next;
        b_next = b;
        b = s * b_next - b_after + a[k];
    }
    return (b - b_after) * 0.5;
}

// e^(-x^2) y(t) for 0 <= ax < 26.6: erfc(ax).
template <class V>
inline V erfc_nonnegative(V ax) {
    const V t = 1.0 - 7.5 / (ax + 3.75);
    return kernels::exp_neg_square(ax) * kernels::polynomial(t, kErfcSeries);
}

// erfc for every x, branch free (lanes). A NaN compares false with both
// thresholds and so lands on 2.0, as in the scalar routine.
template <class V>
inline V erfc_all(V x) {
    const auto zero = x >= kErfcZeroFrom;
    const auto two = kernels::complement(x > kErfcTwoUpTo);
    const V ax = kernels::select(zero | two, 0.0, kernels::absolute(x));
    const V r = erfc_nonnegative(ax);
    const V result = kernels::select(x < 0.0, 2.0 - r, r);
    return kernels::select(zero, 0.0, kernels::select(two, 2.0, result));
}

// x S(x^2 - 2) for |x| <= 2: erf(x).
template <class V>
inline V erf_small(V x) {
    return x * chebyshev_sum(x * x - 2.0, kErfSmall);
}

// 1 - E, E = e^(-x^2) S / |x| / sqrt(pi), for 2 < ax < 6.25: erf(ax).
template <class V>
inline V erf_large(V ax) {
    const V sum = chebyshev_sum(2.0 - 20.0 / (ax + 3.0), kErfLarge);
    return 1.0 - kernels::exp_neg_square(ax) * sum / ax * kOneOverSqrtPi;
}

// erf for every x, branch free (lanes); each series is summed only when a
// lane needs it.
template <class V>
inline V erf_all(V x) {
    const V ax = kernels::absolute(x);
    const auto one = ax >= kErfOneFrom;
    const auto small = kernels::complement(ax > kErfSmallUpTo);
    const auto large = kernels::complement(one | small);
    V result = kernels::select(x > 0.0, 1.0, kernels::broadcast(-1.0, x));
    if (kernels::any(small)) result = kernels::select(small, erf_small(x), result);
    if (kernels::any(large)) {
        const V e = erf_large(kernels::select(large, ax, kernels::broadcast(3.0, x)));
        result = kernels::select(large, kernels::select(x > 0.0, e, -e), result);
    }
    return result;
}

// The scalar routines s15adc and s15aec, inline for the routines of the
// library that call them.
inline double erfc_value(double x) {
    if (x >= kErfcZeroFrom) return 0.0;
    if (!(x > kErfcTwoUpTo)) return 2.0;
    const double r = erfc_nonnegative(kernels::absolute(x));
    return x < 0.0 ? 2.0 - r : r;
}

inline double erf_value(double x) {
    const double ax = kernels::absolute(x);
    if (ax >= kErfOneFrom) return x > 0.0 ? 1.0 : -1.0;
    if (!(ax > kErfSmallUpTo)) return erf_small(x);
    const double e = erf_large(ax);
    return x > 0.0 ? e : -e;
}

// Batch forms used by the normal-distribution routines, for i < n:
//   erfc_scaled: out[i] = s15adc(v * multiplier) * factor, v = x[i] or |x[i]|
//   erf_scaled:  out[i] = s15aec(|x[i]| * multiplier)
void erfc_scaled(kernels::LaneSet lanes, int n, const double *x, double multiplier, bool absolute,
                 double factor, double *out);
void erf_scaled(kernels::LaneSet lanes, int n, const double *x, double multiplier, double *out);

}  // namespace kiv::special
