// g02brc: Kendall and Spearman coefficients against an all-pairs reference
// built from the definitions in extended precision, a published value,
// identical and constant columns, selections, strides and NaN. Argument
// checks and allocation failures are in tests/reliability.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "g02_test_support.hpp"
#include "kiv.h"

namespace {

using kiv_test::quiet_record;

// The coefficients of two columns from their definitions: ranks by
// counting, S over all pairs, sums in long double from exact integers.
struct Reference {
    double kendall, spearman;
};

Reference reference(const std::vector<double> &a, const std::vector<double> &b) {
    const std::size_t n = a.size();
    // Average ranks from 0. A value tied t times contributes, per member,
    // t - 1 to twice the tied pairs and (t + 1)(t - 1) / 2 to Q's correction.
    auto ranks = [n](const std::vector<double> &v, long long &p, long double &q) {
        std::vector<long double> r(n);
        long long tied_twice = 0;
        q = static_cast<long double>(n + 1) * n * (n - 1) / 2;
        for (std::size_t i = 0; i < n; ++i) {
            long long less = 0, equal = 0;
            for (std::size_t j = 0; j < n; ++j) less += v[j] < v[i], equal += v[j] == v[i];
            r[i] = less + (equal - 1) / 2.0L;
            tied_twice += equal - 1;
            q -= static_cast<long double>(equal + 1) * (equal - 1) / 2;
        }
        p = static_cast<long long>(n * (n - 1) / 2) - tied_twice / 2;
        return r;
    };
    long long pa, pb;
    long double qa, qb;
    const auto ra = ranks(a, pa, qa), rb = ranks(b, pb, qb);
    long long s = 0;
    long double d = 0;
    for (std::size_t i = 0; i < n; ++i) {
        d += (rb[i] - ra[i]) * (rb[i] - ra[i]);
        for (std::size_t j = i + 1; j < n; ++j) {
            const long double da = ra[i] - ra[j], db = rb[i] - rb[j];
            if (da != 0 && db != 0) s += (da * db >= 0) ? 1 : -1;
        }
    }
    return {pa * pb > 0 ? static_cast<double>(s / std::sqrt(static_cast<long double>(pa) * pb)) : 0,
            qa * qb > 0 ? static_cast<double>((qa + qb - 6 * d) * 0.5L / std::sqrt(qa * qb)) : 0};
}

double ulps(double got, double want) {
    return kiv::test_support::ulps_between(got, want);
}

TEST(G02brc, MatchesAllPairsReferenceOnTiedSamples) {
    std::mt19937_64 engine(11);
    double worst = 0;
    for (int trial = 0; trial < 400; ++trial) {
        const int n = 2 + trial % 150, m = 3, tdx = 5;
        std::uniform_int_distribution<int> levels(1, 1 + trial % 40);
        std::vector<double> x(static_cast<std::size_t>(n * tdx), -99.0);
        std::vector<std::vector<double>> cols(m, std::vector<double>(static_cast<std::size_t>(n)));
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < m; ++j) {
                const double value = j == 2 ? cols[0][i] * 0.5 + levels(engine) : levels(engine);
                cols[j][i] = value;
                x[static_cast<std::size_t>(i * tdx + j)] = value;
            }
        std::vector<double> corr(static_cast<std::size_t>(m * 4));
        KivError fail = quiet_record();
        g02brc(n, m, x.data(), tdx, nullptr, nullptr, corr.data(), 4, &fail);
        ASSERT_EQ(fail.code, 0) << fail.message;
        for (int a = 0; a < m; ++a) {
            EXPECT_EQ(corr[static_cast<std::size_t>(a * 4 + a)], 1.0);
            for (int b = a + 1; b < m; ++b) {
                const Reference want = reference(cols[a], cols[b]);
                const double kendall = corr[static_cast<std::size_t>(b * 4 + a)];
                const double spearman = corr[static_cast<std::size_t>(a * 4 + b)];
                EXPECT_NEAR(kendall, want.kendall, 1e-15) << trial;
                EXPECT_NEAR(spearman, want.spearman, 1e-15) << trial;
                worst =
                    std::max({worst, ulps(kendall, want.kendall), ulps(spearman, want.spearman)});
            }
        }
    }
    EXPECT_LE(worst, 4.0);
    std::printf("g02brc worst error against the reference: %.2f ulp\n", worst);
}

TEST(G02brc, PublishedKendallTauAndSpearmanOfRanks) {
    // x = (12, 2, 1, 12, 2), y = (1, 4, 7, 1, 0): tau_b = -0.47140452079103173
    // (the example of scipy.stats.kendalltau). Spearman's rho is the Pearson
    // correlation of the average ranks (3.5 1.5 0 3.5 1.5) and (1.5 3 4 1.5 0),
    // worked by hand: Sxy = -5, Sxx = 9, Syy = 9.5, rho = -5 / sqrt(85.5).
    const double x[] = {12, 1, 2, 4, 1, 7, 12, 1, 2, 0};
    double corr[4];
    KivError fail = quiet_record();
    g02brc(5, 2, x, 2, nullptr, nullptr, corr, 2, &fail);
    ASSERT_EQ(fail.code, 0);
    EXPECT_NEAR(corr[2], -0.47140452079103173, 2e-16);
    EXPECT_NEAR(corr[1], -5.0 / std::sqrt(85.5), 2e-16);
}

TEST(G02brc, SpecialColumnsSelectionsAndStrides) {
    // Columns: a (tied), a again, constant, b; observations 0..7, stride 6.
    const int n = 8, m = 4, tdx = 6, tdc = 5;
    const double a[n] = {3, 1, 3, 2, 5, 1, 4, 3}, b[n] = {1, 2, 3, 4, 5, 6, 7, 8};
    std::vector<double> x(n * tdx, 1e300);
    for (int i = 0; i < n; ++i) {
        x[i * tdx + 0] = a[i];
        x[i * tdx + 1] = a[i];
        x[i * tdx + 2] = 7.0;
        x[i * tdx + 3] = b[i];
    }
    std::vector<double> corr(m * tdc, -5.0);
    KivError fail = quiet_record();
    g02brc(n, m, x.data(), tdx, nullptr, nullptr, corr.data(), tdc, &fail);
    ASSERT_EQ(fail.code, 0);
    EXPECT_EQ(corr[0 * tdc + 1], 1.0);  // identical tied columns: Spearman
    EXPECT_EQ(corr[1 * tdc + 0], 1.0);  // and Kendall
    for (int other : {0, 1, 3}) {
        EXPECT_EQ(corr[std::min(other, 2) * tdc + std::max(other, 2)], 0.0);
        EXPECT_EQ(corr[std::max(other, 2) * tdc + std::min(other, 2)], 0.0);
    }
    EXPECT_EQ(corr[4], -5.0);  // beyond the m columns: untouched

    // Selecting columns 0 and 3 and observations 1..6 equals the reference
    // on the sub-sample, written to the leading 2 x 2 block.
    const int svar[m] = {1, 0, 0, 2};
    const int sobs[n] = {0, 1, 1, 3, 1, 1, 1, 0};
    g02brc(n, m, x.data(), tdx, svar, sobs, corr.data(), tdc, &fail);
    ASSERT_EQ(fail.code, 0);
    const Reference want = reference({1, 3, 2, 5, 1, 4}, {2, 3, 4, 5, 6, 7});
    EXPECT_NEAR(corr[1 * tdc + 0], want.kendall, 1e-15);
    EXPECT_NEAR(corr[0 * tdc + 1], want.spearman, 1e-15);
    EXPECT_EQ(corr[0], 1.0);
    EXPECT_EQ(corr[tdc + 1], 1.0);

    // One selected variable: corr[0] = 1 and no error.
    const int one[m] = {0, 0, 4, 0};
    corr[0] = 0;
    g02brc(n, m, x.data(), tdx, one, nullptr, corr.data(), tdc, &fail);
    EXPECT_EQ(fail.code, 0);
    EXPECT_EQ(corr[0], 1.0);
}

TEST(G02brc, NaNRanksAboveEveryNumber) {
    const double nan = NAN;
    const double x[] = {1, 1, nan, 3, 2, 2, nan, 4};  // column 0: 1 nan 2 nan
    double corr[4];
    KivError fail = quiet_record();
    g02brc(4, 2, x, 2, nullptr, nullptr, corr, 2, &fail);
    ASSERT_EQ(fail.code, 0);
    const Reference want = reference({1, 9, 2, 9}, {1, 3, 2, 4});
    EXPECT_NEAR(corr[2], want.kendall, 1e-15);
    EXPECT_NEAR(corr[1], want.spearman, 1e-15);
}

}  // namespace
