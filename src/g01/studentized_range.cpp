// g01emc: the distribution function of the studentized range, P(Q <= q), for
// ir >= 2 groups and v >= 1 (real) degrees of freedom of the standard
// deviation (v = +inf: the range of ir standard normals); g01emf the same
// with the integer error-flag interface; g01fmc its deviate.
//
// Method: with W(w) = P(range of ir standard normals <= w),
//   W(w) = ir int phi(z) (Phi(z) - Phi(z - w))^(ir-1) dz,
//   P(Q <= q) = int_0^inf W(q s) g_v(s) ds,
// g_v the density of s = sqrt(chi^2_v / v) (its logarithm in closed form),
// both integrals by adaptive Gauss-Kronrod quadrature (kernels/quadrature.hpp)
// over the ranges where the integrands exceed 1e-30 of their scale, to a
// tolerance of 1e-13 relative to a first estimate (Copenhaver and Holland's
// formulation). The deviate: the root of P(Q <= q) = p by the Illinois
// variant of regula falsi in a bracket that is first widened by doubling,
// to a relative tolerance of 1e-12.
//
// References: M. D. Copenhaver, B. Holland, Computation of the distribution
// of the maximum studentized range statistic with application to multiple
// significance testing of simple effects, J. Statist. Comput. Simul. 30
// (1988) 1-15; R. E. Lund, J. R. Lund, Algorithm AS 190, Appl. Statist. 32
// (1983) 204-210.
//
// Accuracy: tests/g01/multivariate_test.cpp (published percentage points and
// a 50-digit reference), docs/multivariate.md.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "kernels/gamma_kernels.hpp"
#include "kernels/quadrature.hpp"
#include "kiv.h"
#include "runtime/checks.hpp"

namespace {

// P(range of `groups` standard normals <= w), w >= 0.
double normal_range(double w, int groups, double tolerance) {
    if (w <= 0.0) return 0.0;
    const int power = groups - 1;
    auto integrand = [w, power](double z) {
        const double inside = s15abc(z) - s15abc(z - w);
        if (inside <= 0.0) return 0.0;
        return std::exp(-0.5 * z * z) * std::pow(inside, power);
    };
    bool ok = true;
    const double scale = static_cast<double>(groups) / kiv::kernels::kSqrtTwoPi;
    const double value = kiv::kernels::integrate(integrand, -9.0, 9.0 + w, tolerance / scale, &ok);
    return std::min(1.0, scale * value);
}

// ln of the density of s = sqrt(chi^2_v / v) at s > 0.
double log_scale_density(double s, double v) {
    return 0.5 * v * std::log(v) + (v - 1.0) * std::log(s) - 0.5 * v * s * s -
           (0.5 * v - 1.0) * std::log(2.0) - kiv::kernels::log_gamma_positive(0.5 * v);
}

double studentized_range_cdf_tol(double q, double v, int groups, double tolerance) {
    if (q <= 0.0) return 0.0;
    // Beyond 1e12 degrees of freedom the scale is 1 to within 1e-12: the
    // range of normals itself.
    if (v > 1e12) return normal_range(q, groups, tolerance);
    const double sigma = 1.0 / std::sqrt(2.0 * v);
    const double lo = std::max(0.0, 1.0 - 14.0 * sigma), hi = 1.0 + 14.0 * sigma + 8.0 / v;
    auto integrand = [q, v, groups, tolerance](double s) {
        if (s <= 0.0) return 0.0;
        return normal_range(q * s, groups, tolerance) * std::exp(log_scale_density(s, v));
    };
    bool ok = true;
    return std::min(1.0, kiv::kernels::integrate(integrand, lo, hi, tolerance, &ok));
}

}  // namespace

namespace kiv::g01 {

double studentized_range_cdf(double q, double v, int groups) {
    const double estimate = studentized_range_cdf_tol(q, v, groups, 1e-6);
    return studentized_range_cdf_tol(q, v, groups, std::max(1e-11 * estimate, 1e-300));
}

}  // namespace kiv::g01

extern "C" {

KIV_API double g01emc(double q, double v, int ir, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01emc");
    if (!check.real_not_less("q", q, 0.0, "0.0") || !check.real_not_less("v", v, 1.0, "1.0") ||
        !check.int_not_less("ir", ir, 2, "2"))
        return 0.0;
    const double p = std::isinf(q) ? 1.0 : kiv::g01::studentized_range_cdf(q, v, ir);
    check.success();
    return p;
}

KIV_API double g01emf(double q, double v, int ir, int *ifail) {
    const int given = ifail != nullptr ? *ifail : 0;
    int failure = 0;
    char message[160] = "";
    if (!(q >= 0.0)) {
        failure = 1;
        std::snprintf(message, sizeof message, " ** On entry, Q < 0.0: Q = %13.5e.", q);
    } else if (!(v >= 1.0) || ir < 2) {
        failure = 2;
        std::snprintf(message, sizeof message,
                      " ** On entry, V < 1.0 or IR < 2: V = %13.5e, IR = %d.", v, ir);
    }
    if (failure != 0) {
        const int code = kiv_ifail_exit(given, failure, "g01emf", 1, message, 6,
                                        static_cast<int>(std::strlen(message)));
        if (ifail != nullptr) *ifail = code;
        return 0.0;
    }
    if (ifail != nullptr) *ifail = 0;
    return std::isinf(q) ? 1.0 : kiv::g01::studentized_range_cdf(q, v, ir);
}

KIV_API double g01fmc(double p, double v, int ir, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01fmc");
    if (!check.real_above("p", p, 0.0, "0.0") || !check.real_below("p", p, 1.0, "1.0") ||
        !check.real_not_less("v", v, 1.0, "1.0") || !check.int_not_less("ir", ir, 2, "2"))
        return 0.0;
    // Bracket [lo, hi] with P(lo) < p <= P(hi), widened by doubling.
    double lo = 0.0, flo = -p;
    double hi = 4.0, fhi = kiv::g01::studentized_range_cdf(hi, v, ir) - p;
    int steps = 0;
    while (fhi < 0.0 && steps++ < 60) {
        lo = hi;
        flo = fhi;
        hi *= 2.0;
        fhi = kiv::g01::studentized_range_cdf(hi, v, ir) - p;
    }
    // Illinois regula falsi.
    int side = 0;
    double x = hi, previous = lo;
    bool converged = false;
    for (int step = 0; step < 200; ++step) {
        x = (lo * fhi - hi * flo) / (fhi - flo);
        if (!(x > lo && x < hi)) x = 0.5 * (lo + hi);
        const double fx = kiv::g01::studentized_range_cdf(x, v, ir) - p;
        if (fx == 0.0 || hi - lo <= 1e-12 * x || std::fabs(x - previous) <= 1e-13 * x) {
            converged = true;
            break;
        }
        if ((fx < 0.0) == (flo < 0.0)) {
            lo = x;
            flo = fx;
            if (side == -1) fhi *= 0.5;
            side = -1;
        } else {
            hi = x;
            fhi = fx;
            if (side == 1) flo *= 0.5;
            side = 1;
        }
        previous = x;
    }
    if (!converged) check.report(NE_ALG_NOT_CONV, 200L);
    check.success();
    return x;
}

}  // extern "C"
