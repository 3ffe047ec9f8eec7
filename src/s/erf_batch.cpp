// Batch forms of the error functions: s15adc_v, and the scaled erfc and erf
// batches behind g01eac_v. Element i equals the scalar routine's result bit
// for bit: the lanes run the templates of erf.hpp, the same IEEE operations
// in the same order as s15adc and s15aec (see kernels/lanes.hpp for why this
// holds on SSE2 and AVX2 alike). The regions of the scalar routines become
// selections; a lane outside a region's domain is fed a harmless value
// whose result is discarded.
//
// Speed (bench/normal_bench.cpp, 262,144 values uniform on [-8, 8]): about
// 5.3 ns per value with AVX2 on a shared AMD EPYC (Zen 3), four interleaved
// groups of four values per iteration; see docs/normal.md.
#include "kiv.h"
#include "s/erf.hpp"

namespace kiv::special {

namespace {

using kernels::Lanes4;

#if defined(KIV_HAVE_LANES)
template <class V>
inline V scaled_argument(V x, double multiplier, bool take_absolute) {
    return (take_absolute ? kernels::absolute(x) : x) * multiplier;
}

// With AVX2, four interleaved groups of four (16 values) per step: the
// 23-step Horner chain of erfc is latency-bound, and four chains in flight
// fill the multiply and add units better than two (7.3 -> 5.3 ns per value;
// the Horner steps are kept in step across the groups, see lanes.hpp).
// The SSE2 baseline keeps the plain driver (two groups per step).
template <int Groups>
void erfc_scaled_lanes(int n, const double *x, double multiplier, bool take_absolute, double factor,
                       double *out) {
    const auto kernel = [=](auto v) {
        return erfc_all(scaled_argument(v, multiplier, take_absolute)) * factor;
    };
    if constexpr (Groups > 2) {
        kernels::apply_lane_groups<Groups>(n, x, out, 0.0, kernel);
    } else {
        kernels::apply_lanes(n, x, out, 0.0, kernel);
    }
}

void erf_scaled_lanes(int n, const double *x, double multiplier, double *out) {
    kernels::apply_lanes(n, x, out, 0.0,
                         [=](Lanes4 v) { return erf_all(scaled_argument(v, multiplier, true)); });
}
#endif

#if defined(KIV_HAVE_AVX2_LANES)
KIV_AVX2_DRIVER void erfc_scaled_avx2(int n, const double *x, double multiplier, bool take_absolute,
                                      double factor, double *out) {
    erfc_scaled_lanes<4>(n, x, multiplier, take_absolute, factor, out);
}

KIV_AVX2_DRIVER void erf_scaled_avx2(int n, const double *x, double multiplier, double *out) {
    erf_scaled_lanes(n, x, multiplier, out);
}
#endif

}  // namespace

void erfc_scaled(kernels::LaneSet lanes, int n, const double *x, double multiplier,
                 bool take_absolute, double factor, double *out) {
#if defined(KIV_HAVE_AVX2_LANES)
    if (lanes == kernels::LaneSet::avx2) {
        erfc_scaled_avx2(n, x, multiplier, take_absolute, factor, out);
        return;
    }
#endif
#if defined(KIV_HAVE_LANES)
    (void)lanes;
    erfc_scaled_lanes<2>(n, x, multiplier, take_absolute, factor, out);
#else
    (void)lanes;
    for (int i = 0; i < n; ++i)
        out[i] = s15adc((take_absolute ? kernels::absolute(x[i]) : x[i]) * multiplier) * factor;
#endif
}

void erf_scaled(kernels::LaneSet lanes, int n, const double *x, double multiplier, double *out) {
#if defined(KIV_HAVE_AVX2_LANES)
    if (lanes == kernels::LaneSet::avx2) {
        erf_scaled_avx2(n, x, multiplier, out);
        return;
    }
#endif
#if defined(KIV_HAVE_LANES)
    (void)lanes;
    erf_scaled_lanes(n, x, multiplier, out);
#else
    (void)lanes;
    for (int i = 0; i < n; ++i) out[i] = s15aec(kernels::absolute(x[i]) * multiplier);
#endif
}

}  // namespace kiv::special

extern "C" {

// out[i] = s15adc(x[i]) for 0 <= i < n; nothing happens for n <= 0 or a
// null array.
KIV_API void s15adc_v(int n, const double x[], double out[]) {
    if (n <= 0 || x == nullptr || out == nullptr) return;
    kiv::special::erfc_scaled(kiv::kernels::best_lane_set(), n, x, 1.0, false, 1.0, out);
}

}  // extern "C"
