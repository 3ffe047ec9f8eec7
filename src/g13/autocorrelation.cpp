// g13abc: sample mean, variance and autocorrelations of a series, with the
// Box-Pierce portmanteau statistic.
//
// Definition. For a series x_1 ... x_n (n > 1) and lags 1 ... K (0 < K < n):
//   mean  xm = (1/n) sum x_i,    S = sum (x_i - xm)^2,    xv = S / (n - 1),
//   c_k   = sum_{i=1}^{n-k} (x_{i+k} - xm)(x_i - xm),
//   r_k   = c_k / S   (every lag over the divisor S of the whole series),
//   stat  = n * sum_{k=1}^{K} r_k^2   (Box-Pierce).
// A series whose variance is not above 4 eps^2 (eps = x02ajc()) is treated
// as constant: xm and xv are returned and NE_TIME_SERIES_IDEN is reported.
// NaN or infinite values are not rejected: they propagate through the
// arithmetic into xm, xv, r and stat (IEEE semantics, no trap).
//
// Method.
// - Mean and S in one pass by updating (Welford 1962, West 1979): xm = x_1,
//   S = 0; for i = 2 ... n: d = x_i - xm, e = d / i, xm += e,
//   S += (i - 1) e d. The divide is kept (no reciprocal) so that the update
//   is the textbook one, bit for bit.
// - The deviations x_i - xm are formed once into a work array; c_k is then
//   the straight sum over increasing i with one accumulator per lag, exactly
//   as written above. The straight sum of one lag is bound by the latency of
//   the floating-point add; instead of splitting a lag into several partial
//   sums (which changes the rounding), neighbouring lags are summed together,
//   one independent accumulator each, two or four lags per vector register
//   (lag blocking: blocks of 16 lags with SSE2/NEON, 32 with AVX, chosen at
//   run time on x86-64), over chunks of kChunk indices that stay in the
//   first-level cache. Each lag's accumulator still sees its terms in
//   increasing i and no fused multiply-add is used, so every c_k is
//   bit-identical to the single-accumulator sum; only the time changes.
//
// Accuracy (measured, n = 1e5, 63 lags; tests/g13/autocorrelation_test.cpp
// tests the bounds):
// - c_k equals the straight double sum bit for bit (both kernels);
// - against straight long double sums over the routine's S,
//   |r_k - c_k / S| <= 0.6 ulp(1) for white noise, 71 ulp(1) for AR(1) with
//   phi = 0.95 (large partial sums) and 15 ulp(1) for AR(1) with phi = -0.6
//   around 1e6; the test bound is 100 ulp(1);
// - xm, xv from the updating algorithm: xv within 1e-14 relative of a
//   two-pass long double value for series centred near zero, 2.6e-12 for the
//   series around 1e6 with standard deviation 0.36 (the error grows with
//   |mean| / sd; that error in S then dominates r_k: 8.4e3 ulp(1) against a
//   two-pass reference).
//
// References.
// - G. E. P. Box and D. A. Pierce, Distribution of residual autocorrelations
//   in autoregressive-integrated moving average time series models, Journal
//   of the American Statistical Association 65 (1970), 1509-1526.
// - B. P. Welford, Note on a method for calculating corrected sums of
//   squares and products, Technometrics 4 (1962), 419-420.
// - D. H. D. West, Updating mean and variance estimates: an improved method,
//   Communications of the ACM 22 (1979), 532-535.
// - N. J. Higham, Accuracy and Stability of Numerical Algorithms, 2nd ed.,
//   SIAM, Philadelphia, 2002, chapter 4 (summation).
#include "g13/autocorrelation.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "g13/arguments.hpp"
#include "kernels/lagged_products.hpp"
#include "kiv.h"
#include "runtime/checks.hpp"
#include "runtime/report.hpp"
#include "runtime/workspace.hpp"

namespace kiv::g13 {

void lagged_products(const double *dev, std::size_t n, std::size_t nk, double *c) {
    kiv::kernels::lagged_products(dev, n, nk, c);
}

void lagged_products_portable(const double *dev, std::size_t n, std::size_t nk, double *c) {
    kiv::kernels::lagged_products_portable(dev, n, nk, c);
}

void mean_and_sum_of_squares(const double *x, std::size_t n, double *mean, double *sum_squares) {
    double xm = x[0];
    double s = 0.0;
    for (std::size_t i = 2; i <= n; ++i) {
        const double count = static_cast<double>(i);
        const double d = x[i - 1] - xm;
        const double e = d / count;
        xm += e;
        s += (count - 1.0) * e * d;
    }
    *mean = xm;
    *sum_squares = s;
}

}  // namespace kiv::g13

namespace kiv::g13 {

AutocorrelationStatus autocorrelations(const double *x, int nx, int nk, double *xm, double *xv,
                                       double *r, double *stat) {
    const auto n = static_cast<std::size_t>(nx);
    const auto lags = static_cast<std::size_t>(nk);
    rt::WorkArray<double> deviations(nx);
    if (!deviations.ok()) return AutocorrelationStatus::no_memory;

    double sum_squares = 0.0;
    mean_and_sum_of_squares(x, n, xm, &sum_squares);
    *xv = sum_squares / static_cast<double>(nx - 1);
    const double eps = x02ajc();
    if (4.0 * eps * eps >= *xv) return AutocorrelationStatus::constant;

    const double mean = *xm;
    for (std::size_t i = 0; i < n; ++i) deviations[i] = x[i] - mean;
    lagged_products(deviations.get(), n, lags, r);
    double box_pierce = 0.0;
    for (std::size_t k = 0; k < lags; ++k) {
        r[k] /= sum_squares;
        box_pierce += static_cast<double>(nx) * (r[k] * r[k]);
    }
    *stat = box_pierce;
    return AutocorrelationStatus::ok;
}

}  // namespace kiv::g13

extern "C" {

KIV_API void g13abc(const double x[], int nx, int nk, double *xm, double *xv, double r[],
                    double *stat, KivError *fail) {
    using kiv::g13::AutocorrelationStatus;
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g13abc");
    if (!check.int_above("nx", nx, 1, "1") || !check.int_above("nk", nk, 0, "0")) return;
    if (nk >= nx) {
        check.report(NE_2_INT_ARG_LE, "nx", nx, "nk", nk, "nx", "nk");
        return;
    }
    if (kiv::g13::report_null_argument(
            fail, check.routine(), {{x, "x"}, {xm, "xm"}, {xv, "xv"}, {r, "r"}, {stat, "stat"}}))
        return;
    switch (kiv::g13::autocorrelations(x, nx, nk, xm, xv, r, stat)) {
        case AutocorrelationStatus::no_memory:
            check.report_code_only(NE_ALLOC_FAIL);
            return;
        case AutocorrelationStatus::constant:
            check.report(NE_TIME_SERIES_IDEN, "x");
            return;
        case AutocorrelationStatus::ok:
            check.success();
            return;
    }
}

}  // extern "C"
