// g01mbc: the reciprocal of Mills' ratio of the standard normal,
//   g(x) = phi(x) / (1 - Phi(x)),
// the hazard rate of the normal distribution, for every x: g(x) -> 0 as
// x -> -inf and g(x) ~ x as x -> +inf, with no overflow or underflow on the
// way.
//
// Method: for x <= 1, phi(x)/Q(x) with Q = s15acc (no cancellation: Q >= 0.158)
// and phi from the exact square of x;
// for x > 1, Laplace's continued fraction for Mills' ratio
//   Q(x)/phi(x) = 1/(x + 1/(x + 2/(x + 3/(x + ...)))),
// evaluated by the modified Lentz algorithm to the rounding level; it
// converges for every x > 0, the faster the larger x (about 60 terms at
// x = 1, 10 at x = 10), and never forms phi or Q themselves. NaN gives NaN;
// -inf gives 0 and +inf gives +inf.
//
// References: P. S. Laplace, Traite de mecanique celeste, vol. 4 (1805); M.
// Abramowitz, I. A. Stegun, Handbook of Mathematical Functions (1964),
// 26.2.14; W. J. Lentz, Applied Optics 15 (1976) 668-671.
//
// Accuracy: tests/g01/summaries_test.cpp (MPFR), docs/summaries.md.
#include <cmath>
#include <limits>

#include "kernels/exp_log.hpp"
#include "kernels/gamma_kernels.hpp"
#include "kiv.h"

namespace {

// Q(x)/phi(x) for x > 0 by Laplace's continued fraction, modified Lentz.
double mills_ratio(double x) {
    const double tiny = 1e-300;
    double f = x, c = x, d = 0.0;
    for (int k = 1; k < 5000; ++k) {
        d = x + k * d;
        if (d == 0.0) d = tiny;
        c = x + k / c;
        if (c == 0.0) c = tiny;
        d = 1.0 / d;
        const double delta = c * d;
        f *= delta;
        if (std::fabs(delta - 1.0) < 1e-17) break;
    }
    return 1.0 / f;
}

}  // namespace

extern "C" {

KIV_API double g01mbc(double x) {
    if (std::isnan(x)) return x;
    if (x == -std::numeric_limits<double>::infinity()) return 0.0;
    if (x == std::numeric_limits<double>::infinity()) return x;
    if (x <= 1.0) {
        // e^(-x^2/2) from x^2 held exactly in two doubles (Dekker's product),
        // so that the rounding of the square (up to 700 ulps of the result
        // at x = -37) does not enter.
        const double square = x * x;
        const double split = x * 134217729.0;
        const double high = split - (split - x), low = x - high;
        const double error = ((high * high - square) + 2.0 * high * low) + low * low;
        const double density =
            kiv::kernels::exp(-0.5 * square) * (1.0 - 0.5 * error) / kiv::kernels::kSqrtTwoPi;
        return density / s15acc(x);
    }
    return 1.0 / mills_ratio(x);
}

}  // extern "C"
