// g02byc: partial correlations against the inverse of the correlation
// matrix in 50-digit arithmetic (p_ab.x = -W_ab / sqrt(W_aa W_bb), W the
// inverse of the block of a, b and the x variables), the one-variable
// textbook formula. Argument checks and the rank and positive-definiteness
// failures are in tests/reliability.
#include <gtest/gtest.h>

#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>
#include <random>
#include <vector>

#include "g02_test_support.hpp"
#include "kiv.h"

namespace {

using Big = boost::multiprecision::cpp_bin_float_50;
using kiv_test::quiet_record;

// Partial correlation of variables a, b given xs from the full matrix r.
double reference(const std::vector<double> &r, int m, int a, int b, const std::vector<int> &xs) {
    std::vector<int> vars = {a, b};
    vars.insert(vars.end(), xs.begin(), xs.end());
    const std::size_t k = vars.size();
    std::vector<Big> w(k * 2 * k, Big(0));  // [block | identity], Gauss-Jordan
    for (std::size_t i = 0; i < k; ++i) {
        for (std::size_t j = 0; j < k; ++j) w[i * 2 * k + j] = r[vars[i] * m + vars[j]];
        w[i * 2 * k + k + i] = 1;
    }
    for (std::size_t c = 0; c < k; ++c) {
        const Big pivot = w[c * 2 * k + c];
        for (std::size_t j = 0; j < 2 * k; ++j) w[c * 2 * k + j] /= pivot;
        for (std::size_t i = 0; i < k; ++i) {
            if (i == c) continue;
            const Big f = w[i * 2 * k + c];
            for (std::size_t j = 0; j < 2 * k; ++j) w[i * 2 * k + j] -= f * w[c * 2 * k + j];
        }
    }
    auto inv = [&](std::size_t i, std::size_t j) { return w[i * 2 * k + k + j]; };
    return static_cast<double>(-inv(0, 1) / sqrt(inv(0, 0) * inv(1, 1)));
}

TEST(G02byc, MatchesInverseOfCorrelationMatrix) {
    const int n = 60, m = 6, tdr = 7, tdp = 4;
    std::mt19937_64 engine(21);
    std::normal_distribution<double> normal;
    std::vector<double> x(n * m);
    for (int i = 0; i < n; ++i) {
        const double f = normal(engine);
        for (int j = 0; j < m; ++j) x[i * m + j] = f * (j + 1) * 0.3 + normal(engine);
    }
    const int sx[m] = {1, 1, 1, 1, 1, 1};
    double sw, mean[m], sd[m], v[m * m];
    std::vector<double> r(m * tdr), full(m * m);
    KivError fail = quiet_record();
    g02bxc(n, m, x.data(), m, sx, nullptr, &sw, mean, sd, r.data(), tdr, v, m, &fail);
    ASSERT_EQ(fail.code, 0);
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < m; ++j) full[i * m + j] = r[i * tdr + j];
    // Variance-covariance input (v) gives the same partial correlations.
    for (bool covariance : {false, true}) {
        const int isz[m] = {-1, 2, 0, -1, 1, -1};  // y = 0, 3, 5; x = 1, 4
        std::vector<double> input = covariance ? std::vector<double>(v, v + m * m) : r;
        const int stride = covariance ? m : tdr;
        double p[3 * tdp];
        g02byc(m, 3, 2, isz, input.data(), stride, p, tdp, &fail);
        ASSERT_EQ(fail.code, 0) << fail.message;
        const int ys[3] = {0, 3, 5};
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(p[i * tdp + i], 1.0);
            for (int j = 0; j < i; ++j) {
                EXPECT_NEAR(p[i * tdp + j], reference(full, m, ys[i], ys[j], {1, 4}), 1e-14);
                EXPECT_EQ(p[i * tdp + j], p[j * tdp + i]);
            }
        }
    }
    // One x variable: (r_ab - r_ac r_bc) / sqrt((1 - r_ac^2)(1 - r_bc^2)).
    const double r3[9] = {1, 0.5, 0.3, 0.5, 1, 0.4, 0.3, 0.4, 1};
    const int isz3[3] = {-1, -1, 1};
    double p[4];
    g02byc(3, 2, 1, isz3, r3, 3, p, 2, &fail);
    EXPECT_NEAR(p[1], (0.5 - 0.12) / std::sqrt((1 - 0.09) * (1 - 0.16)), 1e-15);
}

}  // namespace
