// g01hbc: multivariate normal probabilities for X ~ N(xmu, sig), n >= 2,
// sig positive semi-definite (row stride tdsig): Kiv_LowerTail P(X <= b),
// Kiv_UpperTail P(X >= a), Kiv_Central P(a <= X <= b), to the absolute
// accuracy tol within at most maxpts evaluations of the integrand.
//
// Method (Genz 1992): the variables are ordered by increasing marginal
// probability of their interval, sig is factored as L L^T (Cholesky; a zero
// pivot of a semi-definite sig makes its variable a linear function of the
// earlier ones, whose limits then act as an indicator), and the
// probability becomes an integral over the unit cube of dimension n - 1 by
// the sequential conditioning transformation: with d_1 = Phi(a_1/l_11),
// e_1 = Phi(b_1/l_11) and, for i >= 2,
//   y_{i-1} = Phi^-1(d_{i-1} + w_{i-1} (e_{i-1} - d_{i-1})),
//   d_i, e_i = Phi((a_i or b_i - sum_{j<i} l_ij y_j) / l_ii),
// the integrand is prod_i (e_i - d_i). It is averaged over a randomised
// Richtmyer lattice (the fractional parts of k sqrt(p_j) for the first
// primes p_j, shifted at random, with the baker's transform), 12 shifts
// giving the error estimate (3.5 standard errors); the lattice grows by half
// until the estimate is within tol or maxpts would be passed (then the
// warning NE_ACC with the best estimate). The shifts come from the
// library's Wichmann-Hill generator 1 seeded with a fixed seed, so results
// do not depend on any earlier call. n = 2 is the bivariate distribution of
// g01hac, by inclusion and exclusion, exactly.
//
// References: A. Genz, Numerical computation of multivariate normal
// probabilities, J. Comput. Graph. Statist. 1 (1992) 141-149; A. Genz,
// F. Bretz, Computation of Multivariate Normal and t Probabilities, Springer
// (2009), chapters 4.1 and 4.2 (ordering, lattice rules).
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "kiv.h"
#include "runtime/checks.hpp"

namespace kiv::g01 {
double bivariate_normal(double x, double y, double rho);
}

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr int kShifts = 12;

double phi_inverse(double p) {
    p = std::clamp(p, 1e-300, 1.0 - 1e-16);
    KivError inner{};
    return g01cec(p, &inner);
}

// P(a <= X <= b) for a standardized bivariate normal with correlation rho,
// by inclusion and exclusion of lower probabilities.
double bivariate_rectangle(double a1, double b1, double a2, double b2, double rho) {
    using kiv::g01::bivariate_normal;
    const double p = bivariate_normal(b1, b2, rho) - bivariate_normal(a1, b2, rho) -
                     bivariate_normal(b1, a2, rho) + bivariate_normal(a1, a2, rho);
    return std::clamp(p, 0.0, 1.0);
}

constexpr double kPrimeRoots[] = {
    1.4142135623730951, 1.7320508075688772, 2.2360679774997898, 2.6457513110645907,
    3.3166247903553998, 3.6055512754639891, 4.1231056256176606, 4.3588989435406740,
    4.7958315233127191, 5.3851648071345037, 5.5677643628300215, 6.0827625302982193,
    6.4031242374328485, 6.5574385243020004, 6.8556546004010439, 7.2801098892805181,
    7.6811457478686078, 7.8102496759066540, 8.1853527718724504, 8.4261497731763581};
constexpr int kMaxLatticeDimension = sizeof kPrimeRoots / sizeof kPrimeRoots[0];

// The probability for arguments already checked: the estimate, its error
// estimate, and false when sig is not positive semi-definite.
struct Estimate {
    double value, error;
    bool semi_definite;
};

Estimate multivariate_normal(Kiv_Tail tail, int n, const double a[], const double b[],
                             const double xmu[], const double sig[], int tdsig, double tol,
                             int maxpts) {
    const auto size = static_cast<std::size_t>(n);
    std::vector<double> lower(size), upper(size), scale(size);
    for (std::size_t i = 0; i < size; ++i) {
        const double mean = xmu[i];
        lower[i] = tail == Kiv_LowerTail ? -kInf : a[i] - mean;
        upper[i] = tail == Kiv_UpperTail ? kInf : b[i] - mean;
        scale[i] = sig[i * static_cast<std::size_t>(tdsig) + i];
        if (!(scale[i] >= 0.0)) {
            return {0.0, 0.0, false};
        }
    }
    auto element = [&](std::size_t i, std::size_t j) {
        return sig[std::min(i, j) * static_cast<std::size_t>(tdsig) + std::max(i, j)];
    };
    // Order by increasing marginal probability of the interval.
    std::vector<std::size_t> order(size);
    std::iota(order.begin(), order.end(), 0);
    auto marginal = [&](std::size_t i) {
        const double s = std::sqrt(scale[i]);
        if (s == 0.0) return lower[i] <= 0.0 && 0.0 <= upper[i] ? 1.0 : 0.0;
        return s15abc(upper[i] / s) - s15abc(lower[i] / s);
    };
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t i, std::size_t j) { return marginal(i) < marginal(j); });

    if (n == 2) {
        const std::size_t i = order[0], j = order[1];
        const double si = std::sqrt(scale[i]), sj = std::sqrt(scale[j]);
        if (si > 0.0 && sj > 0.0) {
            const double rho = std::clamp(element(i, j) / (si * sj), -1.0, 1.0);
            return {bivariate_rectangle(lower[i] / si, upper[i] / si, lower[j] / sj, upper[j] / sj,
                                        rho),
                    0.0, true};
        }
    }

    // Cholesky factor of the reordered matrix, semi-definite allowed.
    std::vector<double> l(size * size, 0.0);
    const double largest = *std::max_element(scale.begin(), scale.end());
    const double negligible = 1e-12 * std::max(largest, 1e-300);
    for (std::size_t c = 0; c < size; ++c) {
        double pivot = element(order[c], order[c]);
        for (std::size_t k = 0; k < c; ++k) pivot -= l[c * size + k] * l[c * size + k];
        if (pivot < -negligible * static_cast<double>(size)) {
            return {0.0, 0.0, false};
        }
        const double root = pivot > negligible ? std::sqrt(pivot) : 0.0;
        l[c * size + c] = root;
        for (std::size_t r = c + 1; r < size; ++r) {
            double v = element(order[r], order[c]);
            for (std::size_t k = 0; k < c; ++k) v -= l[r * size + k] * l[c * size + k];
            l[r * size + c] = root > 0.0 ? v / root : 0.0;
        }
    }
    std::vector<double> lo(size), hi(size);
    for (std::size_t c = 0; c < size; ++c) {
        lo[c] = lower[order[c]];
        hi[c] = upper[order[c]];
    }

    std::vector<double> y(size);
    auto integrand = [&](const double *w) {
        double product = 1.0;
        for (std::size_t i = 0; i < size; ++i) {
            double s = 0.0;
            for (std::size_t j = 0; j < i; ++j) s += l[i * size + j] * y[j];
            const double root = l[i * size + i];
            double d, e;
            if (root > 0.0) {
                d = lo[i] == -kInf ? 0.0 : s15abc((lo[i] - s) / root);
                e = hi[i] == kInf ? 1.0 : s15abc((hi[i] - s) / root);
            } else {
                d = 0.0;
                e = lo[i] <= s && s <= hi[i] ? 1.0 : 0.0;
            }
            product *= e - d;
            if (product <= 0.0) return 0.0;
            if (i + 1 < size) y[i] = root > 0.0 ? phi_inverse(d + w[i] * (e - d)) : 0.0;
        }
        return product;
    };

    // Randomised Richtmyer lattice, fixed-seed shifts.
    int generator = 1;
    int seeds[4] = {1, 2, 3, 4};
    g05kbc(&generator, seeds);
    std::vector<double> shift(size * kShifts), w(size);
    for (double &s : shift) s = g05kac(generator, seeds);
    const std::size_t dims = size - 1;
    long long points = std::clamp(static_cast<long long>(maxpts) / kShifts, 1LL, 64LL), used = 0;
    double estimate = 0.0, error = kInf;
    while (true) {
        double sum = 0.0, sum_squares = 0.0;
        for (int m = 0; m < kShifts; ++m) {
            double mean = 0.0;
            for (long long k = 1; k <= points; ++k) {
                for (std::size_t j = 0; j < dims; ++j) {
                    const double x = std::fmod(static_cast<double>(k) * kPrimeRoots[j] +
                                                   shift[static_cast<std::size_t>(m) * size + j],
                                               1.0);
                    w[j] = std::fabs(2.0 * x - 1.0);
                }
                mean += (integrand(w.data()) - mean) / static_cast<double>(k);
            }
            sum += mean;
            sum_squares += mean * mean;
        }
        used += points * kShifts;
        estimate = sum / kShifts;
        const double variance =
            std::max(0.0, (sum_squares - kShifts * estimate * estimate) / (kShifts - 1));
        error = 3.5 * std::sqrt(variance / kShifts);
        if (error <= tol) break;
        const long long next = points + points / 2;
        if (used + next * kShifts > maxpts) break;
        points = next;
    }
    return {std::clamp(estimate, 0.0, 1.0), error, true};
}

}  // namespace

extern "C" {

KIV_API double g01hbc(Kiv_Tail tail, int n, const double a[], const double b[], const double xmu[],
                      const double sig[], int tdsig, double tol, int maxpts, KivError *fail) {
    if (!kiv::rt::licence_check()) return 0.0;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01hbc");
    if (!check.member("tail",
                      tail == Kiv_LowerTail || tail == Kiv_UpperTail || tail == Kiv_Central) ||
        !check.int_not_less("n", n, 2, "2") ||
        !check.given("a", tail == Kiv_LowerTail ? &n : static_cast<const void *>(a)) ||
        !check.given("b", tail == Kiv_UpperTail ? &n : static_cast<const void *>(b)) ||
        !check.given("xmu", xmu) || !check.given("sig", sig) ||
        !check.stride_at_least("tdsig", tdsig, "n", n))
        return 0.0;
    if (tail == Kiv_Central)
        for (int i = 0; i < n; ++i)
            if (!(a[i] <= b[i])) {
                char na[24], nb[24];
                std::snprintf(na, sizeof na, "a[%d]", i);
                std::snprintf(nb, sizeof nb, "b[%d]", i);
                check.report(NE_2_REAL_ARG_GT, na, a[i], nb, b[i], na, nb);
                return 0.0;
            }
    if (!check.real_above("tol", tol, 0.0, "0.0") || !check.int_not_less("maxpts", maxpts, 1, "1"))
        return 0.0;
    if (n > kMaxLatticeDimension + 1) {
        check.report(NE_INT_ARG_GT, "n", std::to_string(kMaxLatticeDimension + 1).c_str(), "n", n);
        return 0.0;
    }

    const Estimate result = multivariate_normal(tail, n, a, b, xmu, sig, tdsig, tol, maxpts);
    if (!result.semi_definite) {
        check.report_code_only(NE_NOT_POS_SEM_DEF);
        return 0.0;
    }
    if (result.error > tol) {
        check.report_code_only(NE_ACC);
        return result.value;
    }
    check.success();
    return result.value;
}

}  // extern "C"
