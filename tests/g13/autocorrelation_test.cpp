// g13abc: sample mean, variance, autocorrelations and Box-Pierce statistic.
#include "g13/autocorrelation.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "g13_support.hpp"
#include "kiv.h"

namespace {

using g13_test::quiet_record;

struct Result {
    double xm = -1.0, xv = -1.0, stat = -1.0;
    std::vector<double> r;
    KivError fail = quiet_record();
};

Result run(const std::vector<double> &x, int nx, int nk) {
    Result out;
    out.r.assign(static_cast<std::size_t>(nk > 0 ? nk : 1), -1.0);
    g13abc(x.data(), nx, nk, &out.xm, &out.xv, out.r.data(), &out.stat, &out.fail);
    return out;
}

TEST(G13abc, StatedExamples) {
    // x = 1, 2, 3, 4: S = 5, c_1 = 1.25.
    Result a = run({1, 2, 3, 4}, 4, 1);
    EXPECT_EQ(a.fail.code, 0);
    EXPECT_STREQ(a.fail.message, "NE_NOERROR:\n  No error.");
    EXPECT_EQ(a.xm, 2.5);
    EXPECT_DOUBLE_EQ(a.xv, 5.0 / 3.0);
    EXPECT_EQ(a.r[0], 0.25);
    EXPECT_EQ(a.stat, 0.25);
    // The smallest case nx = 2, nk = 1: x = 1, 3 gives S = 2, c_1 = -1.
    Result b = run({1, 3}, 2, 1);
    EXPECT_EQ(b.fail.code, 0);
    EXPECT_EQ(b.xm, 2.0);
    EXPECT_EQ(b.xv, 2.0);
    EXPECT_EQ(b.r[0], -0.5);
    EXPECT_EQ(b.stat, 0.5);
}

// The luteinizing hormone series (48 values at 10-minute intervals; Diggle,
// Time Series: A Biostatistical Introduction, 1990) with mean, variance,
// autocorrelations and Box-Pierce statistic computed independently in R
// (mean, var, acf, Box.test) and frozen here.
TEST(G13abc, AgreesWithIndependentReferenceOnPublishedSeries) {
    const std::vector<double> lh = {2.4, 2.4, 2.4, 2.2, 2.1, 1.5, 2.3, 2.3, 2.5, 2.0, 1.9, 1.7,
                                    2.2, 1.8, 3.2, 3.2, 2.7, 2.2, 2.2, 1.9, 1.9, 1.8, 2.7, 3.0,
                                    2.3, 2.0, 2.0, 2.9, 2.9, 2.7, 2.7, 2.3, 2.6, 2.4, 1.8, 1.7,
                                    1.5, 1.4, 2.1, 3.3, 3.5, 3.5, 3.1, 2.6, 2.1, 3.4, 3.0, 2.9};
    const double acf[] = {0.5755244755244755,    0.18181818181818182,   -0.14475524475524471,
                          -0.17482517482517487,  -0.14965034965034971,  -0.020979020979021035,
                          -0.020279720279720321, -0.004195804195804299, -0.13566433566433569,
                          -0.1538461538461538};
    Result out = run(lh, 48, 10);
    ASSERT_EQ(out.fail.code, 0);
    EXPECT_NEAR(out.xm, 2.4, 4e-16);
    EXPECT_NEAR(out.xv, 0.30425531914893617, 2e-16);
    for (int k = 0; k < 10; ++k) EXPECT_NEAR(out.r[k], acf[k], 1e-15) << "lag " << k + 1;
    EXPECT_NEAR(out.stat, 23.094809526138196, 5e-14);
}

// Straight single-accumulator sums in long double of the deviations from
// the routine's own mean: the reference for the blocked lag sums.
std::vector<long double> straight_lagged_sums(const std::vector<double> &dev, int nk) {
    std::vector<long double> c(static_cast<std::size_t>(nk) + 1, 0.0L);
    const std::size_t n = dev.size();
    for (std::size_t k = 0; k <= static_cast<std::size_t>(nk); ++k)
        for (std::size_t i = 0; i + k < n; ++i)
            c[k] += static_cast<long double>(dev[i + k]) * static_cast<long double>(dev[i]);
    return c;
}

// Long series of different character (n = 1e5, 63 lags). Bounds tested:
// - every lagged sum is bit-identical to the single-accumulator double sum
//   in increasing index (the lag blocking does not change the rounding);
// - |r_k - c_k(long double) / S| <= 100 ulp(1): the error of the straight
//   double sum itself (measured worst 0.6, 71 and 15 ulp(1) for the three
//   series; strongly correlated series have the largest partial sums);
// - mean and variance, from the one-pass update, within
//   2 sqrt(n) eps (|mean| + sd) and 2 sqrt(n) eps (1 + |mean| / sd) relative
//   of a two-pass long double computation (the offset series is the
//   ill-conditioned one: measured 2.6e-12 relative in xv).
TEST(G13abc, LongSeriesAgreeWithStraightSums) {
    struct Case {
        const char *name;
        double phi, offset;
    };
    const Case cases[] = {{"white noise", 0.0, 0.0},
                          {"AR(1) 0.95", 0.95, 0.0},
                          {"AR(1) -0.6 with offset 1e6", -0.6, 1e6}};
    constexpr int n = 100000;
    constexpr int nk = 63;  // blocks of 32, 16, 8, 4, 2 and 1 lags
    const double eps = std::numeric_limits<double>::epsilon() / 2;
    for (const Case &c : cases) {
        const auto x = g13_test::ar1_series(n, c.phi, c.offset, 2024);
        Result out = run(x, n, nk);
        ASSERT_EQ(out.fail.code, 0) << c.name;

        long double mean = 0.0L;
        for (double v : x) mean += v;
        mean /= n;
        long double ss = 0.0L;
        for (double v : x) ss += (v - mean) * (v - mean);
        const double sd = std::sqrt(static_cast<double>(ss / (n - 1)));
        const double growth = 2.0 * std::sqrt(double{n}) * eps;
        EXPECT_LE(std::fabs(static_cast<double>(out.xm - mean)),
                  growth * (std::fabs(static_cast<double>(mean)) + sd))
            << c.name;
        EXPECT_LE(std::fabs(out.xv / static_cast<double>(ss / (n - 1)) - 1.0),
                  growth * (1.0 + std::fabs(static_cast<double>(mean)) / sd))
            << c.name;

        std::vector<double> dev(x.size());
        for (std::size_t i = 0; i < x.size(); ++i) dev[i] = x[i] - out.xm;
        const auto reference = straight_lagged_sums(dev, nk);
        std::vector<double> blocked(nk), portable(nk);
        kiv::g13::lagged_products(dev.data(), dev.size(), nk, blocked.data());
        kiv::g13::lagged_products_portable(dev.data(), dev.size(), nk, portable.data());
        const double sum_squares = out.xv * (n - 1);
        for (std::size_t k = 1; k <= nk; ++k) {
            double straight = 0.0;
            for (std::size_t i = 0; i + k < dev.size(); ++i) straight += dev[i + k] * dev[i];
            EXPECT_EQ(blocked[k - 1], straight) << c.name << " lag " << k;
            EXPECT_EQ(portable[k - 1], straight) << c.name << " lag " << k;
            EXPECT_NEAR(out.r[k - 1], static_cast<double>(reference[k] / sum_squares),
                        100 * 2 * eps)
                << c.name << " lag " << k;
        }
    }
}

TEST(G13abc, ZeroVarianceThresholdIsFourEpsilonSquared) {
    // The threshold is 4 eps^2 = 2^-104 (1 + 2^-51): x = 0, a gives xv = a^2 / 2,
    // so a = 2^-52 (xv = 2^-105) is constant and a = 2^-51 (xv = 2^-103) is not.
    EXPECT_EQ(run({0.0, 0x1p-52}, 2, 1).fail.code, NE_TIME_SERIES_IDEN);
    EXPECT_EQ(run({0.0, 0x1p-51}, 2, 1).fail.code, 0);
}

TEST(G13abc, NanPropagatesWithoutAFault) {
    Result out = run({1.0, std::nan(""), 3.0, 4.0}, 4, 2);
    EXPECT_EQ(out.fail.code, 0);
    EXPECT_TRUE(std::isnan(out.xm));
    EXPECT_TRUE(std::isnan(out.r[0]));
    EXPECT_TRUE(std::isnan(out.stat));
}

}  // namespace
