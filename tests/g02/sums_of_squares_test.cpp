// g02btc, g02buc, g02bwc: a hand-worked weighted example, one-at-a-time
// updates (with a removal by negative weight) against the whole-matrix
// routine in both storage orders, correlations against g02bxc, and the
// fault text round trip. Argument checks are in tests/reliability.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "g02/sums_of_squares_core.hpp"
#include "g02_test_support.hpp"
#include "kiv.h"

namespace {

using kiv_test::quiet_record;

struct Sums {
    double sw = 0;
    std::vector<double> mean, c;
};

// g02buc on row-major data with row stride pdx (or by columns, stride pdx).
Sums whole(Kiv_SumSquare mode, Kiv_OrderType order, int n, int m, const double *x, int pdx,
           const double *wt) {
    Sums s{0, std::vector<double>(m), std::vector<double>(m * (m + 1) / 2)};
    KivError fail = quiet_record();
    g02buc(mode, order, n, m, x, pdx, wt, &s.sw, s.mean.data(), s.c.data(), &fail);
    EXPECT_EQ(fail.code, 0) << fail.message;
    return s;
}

TEST(G02buc, HandWorkedWeightedExampleBothModesBothOrders) {
    const double rows[] = {1, 2, -7, 3, 4, -7, 5, 9, -7};  // row stride 3
    const double cols[] = {1, 3, 5, -7, 2, 4, 9, -7};      // column stride 4
    const double wt[] = {1, 2, 1};
    for (Kiv_OrderType order : {Kiv_RowMajor, Kiv_ColMajor}) {
        const double *x = order == Kiv_RowMajor ? rows : cols;
        const int pdx = order == Kiv_RowMajor ? 3 : 4;
        const Sums about_mean = whole(Kiv_AboutMean, order, 3, 2, x, pdx, wt);
        EXPECT_EQ(about_mean.sw, 4.0);
        EXPECT_EQ(about_mean.mean, (std::vector<double>{3.0, 4.75}));
        EXPECT_EQ(about_mean.c, (std::vector<double>{8.0, 14.0, 26.75}));
        const Sums about_zero = whole(Kiv_AboutZero, order, 3, 2, x, pdx, wt);
        EXPECT_EQ(about_zero.mean, (std::vector<double>{3.0, 4.75}));
        EXPECT_EQ(about_zero.c, (std::vector<double>{44.0, 71.0, 117.0}));
    }
    // All weights zero: everything zero, no error.
    const double none[] = {0, 0, 0};
    const Sums empty = whole(Kiv_AboutMean, Kiv_RowMajor, 3, 2, rows, 3, none);
    EXPECT_EQ(empty.sw, 0.0);
    EXPECT_EQ(empty.c, (std::vector<double>{0, 0, 0}));
}

TEST(G02btc, UpdatesAndRemovalAgreeWithWholeMatrix) {
    const int n = 40, m = 3, incx = 2;
    std::mt19937_64 engine(5);
    std::normal_distribution<double> normal(10.0, 2.0);
    std::vector<double> x(n * m), wt(n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < m; ++j) x[i * m + j] = normal(engine) * (j + 1);
        wt[i] = (i % 7 == 3) ? 0.0 : 0.5 + i % 3;
    }
    for (Kiv_SumSquare mode : {Kiv_AboutMean, Kiv_AboutZero}) {
        Sums step{0, std::vector<double>(m, 0.0), std::vector<double>(6, 0.0)};
        KivError fail = quiet_record();
        std::vector<double> strided(m * incx);
        auto add = [&](int i, double w) {
            for (int j = 0; j < m; ++j) strided[j * incx] = x[i * m + j];
            g02btc(mode, m, w, strided.data(), incx, &step.sw, step.mean.data(), step.c.data(),
                   &fail);
            ASSERT_EQ(fail.code, 0) << fail.message;
        };
        for (int i = 0; i < n; ++i) add(i, wt[i]);
        add(1, -wt[1]);  // remove observation 1 again
        std::vector<double> kept = wt;
        kept[1] = 0.0;
        const Sums want = whole(mode, Kiv_RowMajor, n, m, x.data(), m, kept.data());
        EXPECT_DOUBLE_EQ(step.sw, want.sw);
        for (int j = 0; j < m; ++j) EXPECT_NEAR(step.mean[j], want.mean[j], 1e-12);
        for (int k = 0; k < 6; ++k) EXPECT_NEAR(step.c[k], want.c[k], 1e-11 * std::fabs(want.c[k]));
    }
}

TEST(G02btc, ZeroWeightAndRemovalOfTheOnlyObservation) {
    const double x[] = {2.0, -3.0};
    for (Kiv_SumSquare mode : {Kiv_AboutMean, Kiv_AboutZero}) {
        double sw = 0, xbar[2] = {0, 0}, c[3] = {0, 0, 0};
        KivError fail = quiet_record();
        g02btc(mode, 2, 0.0, x, 1, &sw, xbar, c, &fail);  // weight 0: nothing
        EXPECT_EQ(sw, 0.0);
        EXPECT_EQ(xbar[0], 0.0);
        g02btc(mode, 2, 3.0, x, 1, &sw, xbar, c, &fail);
        EXPECT_EQ(sw, 3.0);
        EXPECT_EQ(xbar[1], -3.0);
        EXPECT_EQ(c[2], mode == Kiv_AboutZero ? 27.0 : 0.0);
        g02btc(mode, 2, -3.0, x, 1, &sw, xbar, c, &fail);  // remove it
        EXPECT_EQ(fail.code, 0);
        EXPECT_EQ(sw, 0.0);
        for (double v : {xbar[0], xbar[1], c[0], c[1], c[2]}) EXPECT_EQ(v, 0.0);
    }
}

TEST(G02bwc, CorrelationsAgreeWithPearsonAndZeroVariance) {
    const double x[] = {1, 2, 4, 3, 1, 5, 5, 3, 6, 2, 4, 9};  // 4 x 3
    Sums s = whole(Kiv_AboutMean, Kiv_RowMajor, 4, 3, x, 3, nullptr);
    KivError fail = quiet_record();
    g02bwc(3, s.c.data(), &fail);
    ASSERT_EQ(fail.code, 0);
    const int sx[] = {1, 1, 1};
    double sw, mean[3], sd[3], r[9], v[9];
    g02bxc(4, 3, x, 3, sx, nullptr, &sw, mean, sd, r, 3, v, 3, &fail);
    for (int j = 0; j < 3; ++j)
        for (int i = 0; i <= j; ++i) EXPECT_NEAR(s.c[j * (j + 1) / 2 + i], r[i * 3 + j], 1e-15);

    double packed[] = {4.0, 1.0, 0.0, 2.0, 0.0, 9.0};  // variable 1 has zero variance
    g02bwc(3, packed, &fail);
    EXPECT_EQ(fail.code, NE_ZERO_VARIANCE);
    EXPECT_EQ(fail.errnum, 2);
    EXPECT_STREQ(fail.message, "NE_ZERO_VARIANCE:\n    On entry, a variable has zero variance.");
    EXPECT_EQ(std::vector<double>(packed, packed + 6),
              (std::vector<double>{1.0, 0.0, 0.0, 2.0 / 6.0, 0.0, 1.0}));
}

TEST(LayeredRoutines, FaultTextRoundTrip) {
    auto never = [](KivError *, int, int, const char *) { return false; };
    const char *internal =
        "NE_INTERNAL_ERROR:\n  An internal error has occurred in this "
        "function.\n  Check the function call and any array sizes. If the "
        "call is correct\n  then please consult KIV for assistance.";
    for (const char *text : {"", "garbage", "g02btz 1 99998", "g02btz 1 12345 0 x"}) {
        KivError fail = quiet_record();
        kiv::g02::report_core_fault(&fail, "g02btc", 7, text, never);
        EXPECT_EQ(fail.code, NE_INTERNAL_ERROR) << text;
        EXPECT_EQ(fail.errnum, 7);
        EXPECT_STREQ(fail.message, internal);
    }
    // A fault area shorter than 200 characters is refused by the core.
    int indicator = 1;
    char small[10];
    kiv::g02::g02bwz(2, nullptr, &indicator, small, 10);
    EXPECT_NE(indicator, 0);
}

}  // namespace
