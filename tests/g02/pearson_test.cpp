// g02bxc: weighted Pearson correlations against a 50-digit two-pass
// reference, zero weights as removed observations, a zero-variance
// variable, selections and strides. Argument checks and allocation
// failures are in tests/reliability.
#include <gtest/gtest.h>

#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>
#include <random>
#include <vector>

#include "g02_test_support.hpp"
#include "kiv.h"

namespace {

using kiv_test::quiet_record;
using Big = boost::multiprecision::cpp_bin_float_50;

struct Moments {
    std::vector<double> mean, std, r, v;  // r, v: k x k
    double sw = 0;
};

// Two-pass weighted moments of the given columns in 50-digit arithmetic.
Moments reference(const std::vector<double> &x, int n, int tdx, const std::vector<int> &cols,
                  const std::vector<double> &wt) {
    const std::size_t k = cols.size();
    Big sw = 0;
    std::vector<Big> mean(k, Big(0));
    for (int i = 0; i < n; ++i) {
        const Big w = wt.empty() ? 1.0 : wt[i];
        sw += w;
        for (std::size_t c = 0; c < k; ++c) mean[c] += w * x[i * tdx + cols[c]];
    }
    for (auto &mu : mean) mu /= sw;
    std::vector<Big> cross(k * k, Big(0));
    for (int i = 0; i < n; ++i) {
        const Big w = wt.empty() ? 1.0 : wt[i];
        for (std::size_t a = 0; a < k; ++a)
            for (std::size_t b = 0; b < k; ++b)
                cross[a * k + b] +=
                    w * (x[i * tdx + cols[a]] - mean[a]) * (x[i * tdx + cols[b]] - mean[b]);
    }
    Moments out;
    out.sw = static_cast<double>(sw);
    for (std::size_t a = 0; a < k; ++a) {
        out.mean.push_back(static_cast<double>(mean[a]));
        out.std.push_back(static_cast<double>(sqrt(cross[a * k + a] / (sw - 1))));
        for (std::size_t b = 0; b < k; ++b) {
            out.v.push_back(static_cast<double>(cross[a * k + b] / (sw - 1)));
            out.r.push_back(
                static_cast<double>(cross[a * k + b] / sqrt(cross[a * k + a] * cross[b * k + b])));
        }
    }
    return out;
}

double relative(double got, double want) {
    return want == 0 ? std::fabs(got) : std::fabs(got - want) / std::fabs(want);
}

TEST(G02bxc, AgreesWithTwoPassReferenceWeightedAndUnweighted) {
    const int n = 1000, m = 4, tdx = 6, tdr = 5, tdv = 7;
    std::mt19937_64 engine(3);
    std::normal_distribution<double> normal(0.0, 1.0);
    std::uniform_int_distribution<int> weight(0, 3);
    std::vector<double> x(n * tdx, NAN), wt(n);
    for (int i = 0; i < n; ++i) {
        const double common = normal(engine);
        x[i * tdx + 0] = 1e3 + common + 0.1 * normal(engine);  // offset: stresses the pass
        x[i * tdx + 1] = NAN;                                  // not selected
        x[i * tdx + 2] = -common + normal(engine);
        x[i * tdx + 3] = 5.0 * normal(engine);
        wt[i] = weight(engine);
    }
    const int sx[m] = {1, 0, 2, 1};
    const std::vector<int> cols = {0, 2, 3};
    double worst = 0;
    for (bool weighted : {false, true}) {
        const Moments want = reference(x, n, tdx, cols, weighted ? wt : std::vector<double>{});
        double sw, wmean[m], std[m], r[m * tdr], v[m * tdv];
        KivError fail = quiet_record();
        g02bxc(n, m, x.data(), tdx, sx, weighted ? wt.data() : nullptr, &sw, wmean, std, r, tdr, v,
               tdv, &fail);
        ASSERT_EQ(fail.code, 0) << fail.message;
        EXPECT_EQ(sw, want.sw);
        for (std::size_t a = 0; a < 3; ++a) {
            worst =
                std::max({worst, relative(wmean[a], want.mean[a]), relative(std[a], want.std[a])});
            EXPECT_EQ(r[a * tdr + a], 1.0);
            for (std::size_t b = 0; b < 3; ++b) {
                EXPECT_EQ(r[a * tdr + b], r[b * tdr + a]);
                // r on its absolute scale (|r| <= 1), v relative to sqrt(v_aa v_bb).
                const double scale = std::sqrt(want.v[a * 4] * want.v[b * 4]);
                worst = std::max({worst, std::fabs(r[a * tdr + b] - want.r[a * 3 + b]),
                                  std::fabs(v[a * tdv + b] - want.v[a * 3 + b]) / scale});
            }
        }
    }
    EXPECT_LT(worst, 1e-13);  // n = 1000, column 0 has mean / sd = 1000
    std::printf("g02bxc worst relative error against the reference: %.3g\n", worst);
}

TEST(G02bxc, ZeroVarianceVariableGivesWarningAndZeroCorrelations) {
    const double x[] = {1, 5, 2, 2, 5, 4, 3, 5, 7, 4, 5, 7};  // column 1 constant
    const int sx[] = {1, 1, 1};
    double sw, wmean[3], std[3], r[9], v[9];
    KivError fail = quiet_record();
    g02bxc(4, 3, x, 3, sx, nullptr, &sw, wmean, std, r, 3, v, 3, &fail);
    EXPECT_EQ(fail.code, NE_VAR_EQ_ZERO);
    EXPECT_STREQ(fail.message,
                 "NE_VAR_EQ_ZERO:\n  At least one variable has zero variance. In this case v "
                 "and std are as \n  calculated, but r will contain zero for any correlation "
                 "involving a \n  variable with zero variance.");
    EXPECT_EQ(std[1], 0.0);
    EXPECT_EQ(wmean[1], 5.0);
    EXPECT_DOUBLE_EQ(v[0], 5.0 / 3.0);  // 1 2 3 4: variance 5/3
    EXPECT_DOUBLE_EQ(v[2], 3.0);        // deviations (-1.5 -.5 .5 1.5) (-3 -1 2 2)
    for (int j = 0; j < 3; ++j) {
        EXPECT_EQ(r[1 * 3 + j], 0.0);
        EXPECT_EQ(r[j * 3 + 1], 0.0);
    }
}

}  // namespace
