// g13acc: partial autocorrelations by the Durbin-Levinson recursion.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "g13_support.hpp"
#include "kiv.h"

namespace {

using g13_test::quiet_record;

struct Result {
    std::vector<double> p, v, ar;
    int nvl = -1;
    KivError fail = quiet_record();
};

Result run(const std::vector<double> &r, int nk, int nl) {
    Result out;
    const std::size_t size = nl > 0 ? static_cast<std::size_t>(nl) : 1;
    out.p.assign(size, -9.0);
    out.v.assign(size, -9.0);
    out.ar.assign(size, -9.0);
    g13acc(r.data(), nk, nl, out.p.data(), out.v.data(), out.ar.data(), &out.nvl, &out.fail);
    return out;
}

TEST(G13acc, StatedExamples) {
    // r = 0.5, 0.25 is the autocorrelation sequence of an AR(1) with phi = 0.5.
    Result a = run({0.5, 0.25}, 2, 2);
    EXPECT_EQ(a.fail.code, 0);
    EXPECT_EQ(a.nvl, 2);
    EXPECT_EQ(a.p, (std::vector<double>{0.5, 0.0}));
    EXPECT_EQ(a.ar, (std::vector<double>{0.5, 0.0}));
    EXPECT_EQ(a.v, (std::vector<double>{0.75, 0.75}));
    // r = 0.9, 0.0 is not positive definite: phi_22 = -0.81 / 0.19.
    Result b = run({0.9, 0.0}, 2, 2);
    EXPECT_EQ(b.fail.code, NE_CORR_NOT_POS_DEF);
    EXPECT_EQ(b.nvl, 1);
    EXPECT_EQ(b.p, (std::vector<double>{0.9, 0.0}));
    EXPECT_EQ(b.ar, (std::vector<double>{0.9, 0.0}));
    EXPECT_EQ(b.v[0], (1.0 + 0.9) * (1.0 - 0.9));
    EXPECT_EQ(b.v[1], 0.0);
}

// Theoretical autocorrelations of AR(2) processes x_t = a x_{t-1} + b x_{t-2}
// + e_t (rho_1 = a / (1 - b), rho_k = a rho_{k-1} + b rho_{k-2}, computed in
// long double): partial autocorrelations rho_1, b, then zero; coefficients a,
// b, then zero; v_1 = 1 - rho_1^2, v_k = v_1 (1 - b^2) for k >= 2. AR(1) is
// the case b = 0. Orders up to 11 exercise both the even and the odd
// (middle element) coefficient updates.
TEST(G13acc, AutoregressionsHaveVanishingPartialsBeyondTheirOrder) {
    struct Case {
        double a, b;
    };
    const Case cases[] = {{0.5, 0.0}, {0.9, 0.0},  {-0.7, 0.0},
                          {0.5, 0.3}, {1.2, -0.5}, {-0.4, 0.45}};
    constexpr int nl = 11;
    for (const Case &c : cases) {
        std::vector<long double> rho(nl + 1);
        rho[0] = 1.0L;
        rho[1] = static_cast<long double>(c.a) / (1.0L - c.b);
        for (int k = 2; k <= nl; ++k) rho[k] = c.a * rho[k - 1] + c.b * rho[k - 2];
        std::vector<double> r(nl);
        for (int k = 0; k < nl; ++k) r[k] = static_cast<double>(rho[k + 1]);

        Result out = run(r, nl, nl);
        ASSERT_EQ(out.fail.code, 0) << c.a << " " << c.b;
        EXPECT_EQ(out.nvl, nl);
        const double v1 = static_cast<double>(1.0L - rho[1] * rho[1]);
        EXPECT_NEAR(out.p[0], r[0], 1e-16);
        EXPECT_NEAR(out.v[0], v1, 2e-16);
        for (int k = 1; k < nl; ++k) {
            const double partial = k == 1 ? c.b : 0.0;
            EXPECT_NEAR(out.p[k], partial, 1e-15) << c.a << " " << c.b << " lag " << k + 1;
            EXPECT_NEAR(out.v[k], v1 * (1.0 - c.b * c.b), 1e-15) << "lag " << k + 1;
        }
        EXPECT_NEAR(out.ar[0], c.a, 2e-15) << c.a << " " << c.b;
        EXPECT_NEAR(out.ar[1], c.b, 2e-15) << c.a << " " << c.b;
        for (int k = 2; k < nl; ++k) EXPECT_NEAR(out.ar[k], 0.0, 2e-15) << "coefficient " << k;
    }
}

// Partial autocorrelations of the luteinizing hormone series from R's pacf
// (frozen; see the autocorrelation test), given R's acf as input. None of
// them vanishes, so every coefficient update matters: the coefficients
// must satisfy the Yule-Walker equations sum_j ar_j rho_|i-j| = rho_i+1
// (residuals summed in long double).
TEST(G13acc, AgreesWithIndependentReferenceOnPublishedSeries) {
    const std::vector<double> acf = {
        0.5755244755244755,   0.18181818181818182,   -0.14475524475524471,  -0.17482517482517487,
        -0.14965034965034971, -0.020979020979021035, -0.020279720279720321, -0.004195804195804299,
        -0.13566433566433569, -0.1538461538461538};
    const double pacf[] = {0.5755244755244755,   -0.22340997286429734,  -0.22694020165024134,
                           0.10276837700622211,  -0.075934419653310048, 0.067557934525966201,
                           -0.10417025122780975, 0.012013676148550527,  -0.18768722846113858,
                           0.0025510411197388078};
    Result out = run(acf, 10, 10);
    ASSERT_EQ(out.fail.code, 0);
    for (int k = 0; k < 10; ++k) EXPECT_NEAR(out.p[k], pacf[k], 1e-15) << "lag " << k + 1;
    auto rho = [&](int lag) { return lag == 0 ? 1.0L : static_cast<long double>(acf[lag - 1]); };
    for (int i = 0; i < 10; ++i) {
        long double residual = -rho(i + 1);
        for (int j = 0; j < 10; ++j) residual += out.ar[j] * rho(std::abs(i - j));
        EXPECT_NEAR(static_cast<double>(residual), 0.0, 2e-15) << "equation " << i;
    }
}

TEST(G13acc, NanPropagatesWithoutAFault) {
    Result out = run({std::nan(""), 0.1}, 2, 2);
    EXPECT_EQ(out.fail.code, 0);
    EXPECT_TRUE(std::isnan(out.p[1]));
}

}  // namespace
