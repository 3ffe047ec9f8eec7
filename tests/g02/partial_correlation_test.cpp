// g02byc: partial correlations against the inverse of the correlation
// matrix in 50-digit arithmetic (p_ab.x = -W_ab / sqrt(W_aa W_bb), W the
// inverse of the block of a, b and the x variables), the one-variable
// textbook formula, rank and positive-definiteness failures, error paths.
#include <gtest/gtest.h>

#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>
#include <random>
#include <vector>

#include "g02_test_support.hpp"
#include "kiv.h"
#include "runtime/testing.hpp"

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

namespace errors {
const int isz4[4] = {-1, -1, 1, 1}, isz3[3] = {-1, -1, 1};
const int too_many_y[4] = {-1, -1, -1, 1}, too_few_x[4] = {-1, -1, 0, 1};
const double r[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
double p[4];
}  // namespace errors

TEST(G02byc, FailuresAndErrorPaths) {
    using namespace errors;
    const double singular[16] = {1,   0.2, 0.3, 0.3, 0.2, 1,   0.1, 0.1,
                                 0.3, 0.1, 1,   1,   0.3, 0.1, 1,   1};  // x block rank 1
    const double indefinite[9] = {1, -0.9, 0.9, -0.9, 1, 0.9, 0.9, 0.9, 1};
    auto call = [](int m, int ny, int nx, const int *isz, int tdr, int tdp,
                   const double *matrix = errors::r) {
        return [=](KivError *fail) { g02byc(m, ny, nx, isz, matrix, tdr, p, tdp, fail); };
    };
    kiv_test::expect_errors({
        {"m", call(2, 2, 1, isz4, 4, 2), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, m must not be less than 3: m = 2."},
        {"ny", call(4, 1, 1, isz4, 4, 2), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, ny must not be less than 2: ny = 1."},
        {"nx", call(4, 2, 0, isz4, 4, 2), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, nx must not be less than 1: nx = 0."},
        {"ny+nx", call(4, 3, 2, isz4, 4, 2), NE_3_INT_ARG_CONS,
         "NE_3_INT_ARG_CONS:\n  On entry, ny = 3, nx = 2 and m = 4.\n  Constraint: ny + nx <= m."},
        {"tdr", call(4, 2, 2, isz4, 3, 2), NE_2_INT_ARG_LT,
         "NE_2_INT_ARG_LT:\n  On entry, tdr =  3 while m =  4.\n"
         "  These parameters must satisfy tdr >= m."},
        {"tdp", call(4, 2, 2, isz4, 4, 1), NE_2_INT_ARG_LT,
         "NE_2_INT_ARG_LT:\n  On entry, tdp =  1 while ny =  2.\n"
         "  These parameters must satisfy tdp >= ny."},
        {"isz", call(4, 2, 2, nullptr, 4, 2), NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter isz had an illegal value."},
        {"ny set", call(4, 2, 1, too_many_y, 4, 2), NE_BAD_NY_SET,
         "NE_BAD_NY_SET:\n  On entry, ny = 2 and there are not exactly ny values of isz < 0.\n"
         "  Number of values of isz < 0 = 3."},
        {"nx set", call(4, 2, 2, too_few_x, 4, 2), NE_BAD_NX_SET,
         "NE_BAD_NX_SET:\n  On entry, nx = 2 and there are not exactly nx values of isz < 0."},
        {"rank", call(4, 2, 2, isz4, 4, 2, singular), NE_COR_MAT_RANK,
         "NE_COR_MAT_RANK:\n  On entry, either the variance-covariance matrix or the "
         "correlation\n  matrix is not of full rank. Try removing some of the x variables by\n"
         "  setting the appropriate elements of isz to zero."},
        {"posdef", call(3, 2, 1, isz3, 3, 2, indefinite), NE_COR_MAT_POSDEF,
         "NE_COR_MAT_POSDEF:\n  Either a diagonal element of the partial variance-covariance "
         "matrix is zero\n  and/or a computed partial correlation coefficient is greater than "
         "one. Both\n  indicate that the matrix input in r was not positive-definite."},
    });
    for (long successes = 0; successes < 2; ++successes) {
        KivError fail = quiet_record();
        kiv::rt::testing::fail_allocations_after(successes);
        call(4, 2, 2, isz4, 4, 2)(&fail);
        kiv::rt::testing::fail_allocations_after(-1);
        EXPECT_EQ(fail.code, NE_ALLOC_FAIL) << successes;
    }
}

}  // namespace
