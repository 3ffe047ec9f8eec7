// g13aac: simple and seasonal differencing, its layout, its inversion and
// the translation of the core's fault text.
#include "g13/differencing.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "g13_support.hpp"
#include "kiv.h"

namespace {

using g13_test::quiet_record;

struct Result {
    std::vector<double> xd;
    int nxd = -1;
    KivError fail = quiet_record();
};

Result run(const std::vector<double> &x, int nx, int d, int ds, int s) {
    Result out;
    out.xd.assign(x.size(), -9.0);
    g13aac(x.data(), nx, d, ds, s, out.xd.data(), &out.nxd, &out.fail);
    return out;
}

std::int64_t binomial(int n, int k) {
    std::int64_t c = 1;
    for (int i = 1; i <= k; ++i) c = c * (n - k + i) / i;
    return c;
}

// Reference: w_t = sum_{i<=d} sum_{j<=ds} (-1)^(i+j) C(d,i) C(ds,j)
// x_{t+D-i-js}, D = d + ds s, in exact integer arithmetic.
std::vector<double> expanded_difference(const std::vector<std::int64_t> &x, int d, int ds, int s) {
    const int removed = d + ds * s;
    std::vector<double> w;
    for (int t = 0; t + removed < static_cast<int>(x.size()); ++t) {
        std::int64_t acc = 0;
        for (int i = 0; i <= d; ++i)
            for (int j = 0; j <= ds; ++j)
                acc += ((i + j) % 2 ? -1 : 1) * binomial(d, i) * binomial(ds, j) *
                       x[t + removed - i - j * s];
        w.push_back(static_cast<double>(acc));
    }
    return w;
}

// Undoes the differencing from the documented layout: seasonal stages last
// applied first, each rebuilt from its saved starting values.
std::vector<double> integrate(const std::vector<double> &xd, int nxd, int d, int ds, int s) {
    std::vector<double> series(xd.begin(), xd.begin() + nxd);
    auto undo = [&](std::size_t saved_at, int lag) {
        std::vector<double> rebuilt(xd.begin() + saved_at, xd.begin() + saved_at + lag);
        for (std::size_t t = 0; t < series.size(); ++t) rebuilt.push_back(rebuilt[t] + series[t]);
        series = rebuilt;
    };
    for (int j = ds - 1; j >= 0; --j) undo(nxd + d + j * s, s);
    for (int i = d - 1; i >= 0; --i) undo(nxd + i, 1);
    return series;
}

TEST(G13aac, MatchesExpandedOperatorAndInvertsExactly) {
    struct Case {
        int d, ds, s;
    };
    const Case cases[] = {{0, 0, 0}, {1, 0, 0},  {2, 0, 7}, {3, 0, 0}, {0, 1, 4},
                          {0, 2, 3}, {1, 1, 12}, {2, 1, 4}, {1, 2, 5}, {0, 1, 1}};
    g13_test::Uniform noise(7);
    std::vector<std::int64_t> integers(60);
    for (auto &v : integers) v = static_cast<std::int64_t>(noise() * 2000.0);
    const std::vector<double> x(integers.begin(), integers.end());
    for (const Case &c : cases) {
        Result out = run(x, 60, c.d, c.ds, c.s);
        ASSERT_EQ(out.fail.code, 0) << c.d << " " << c.ds << " " << c.s;
        const auto expected = expanded_difference(integers, c.d, c.ds, c.s);
        ASSERT_EQ(out.nxd, static_cast<int>(expected.size()));
        EXPECT_EQ(std::vector<double>(out.xd.begin(), out.xd.begin() + out.nxd), expected)
            << c.d << " " << c.ds << " " << c.s;
        if (out.nxd < 60) {
            EXPECT_EQ(out.xd[out.nxd], x[0]);  // the first saved value
        }
        EXPECT_EQ(integrate(out.xd, out.nxd, c.d, c.ds, c.s), x)
            << c.d << " " << c.ds << " " << c.s;
    }
}

// x_t = 10 + t/2 + pattern(t mod 4): one seasonal difference of period 4
// leaves the constant 4 * 1/2; a further simple difference leaves zero.
TEST(G13aac, RemovesKnownTrendAndSeasonalPattern) {
    const double pattern[] = {3.0, -1.0, 2.0, -4.0};
    std::vector<double> x(24);
    for (int t = 0; t < 24; ++t) x[t] = 10.0 + 0.5 * t + pattern[t % 4];
    Result seasonal = run(x, 24, 0, 1, 4);
    EXPECT_EQ(seasonal.nxd, 20);
    for (int t = 0; t < 20; ++t) EXPECT_EQ(seasonal.xd[t], 2.0);
    Result both = run(x, 24, 1, 1, 4);
    EXPECT_EQ(both.nxd, 19);
    for (int t = 0; t < 19; ++t) EXPECT_EQ(both.xd[t], 0.0);
    // The series may be differenced in place.
    std::vector<double> in_place = x;
    int nxd = 0;
    KivError fail = quiet_record();
    g13aac(in_place.data(), 24, 1, 1, 4, in_place.data(), &nxd, &fail);
    EXPECT_EQ(std::vector<double>(in_place.begin(), in_place.begin() + 19),
              std::vector<double>(both.xd.begin(), both.xd.begin() + 19));
}

TEST(G13aac, UnreadableFaultTextIsAnInternalError) {
    const char *internal =
        "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n  Check the "
        "function call and any array sizes. If the call is correct\n  then please consult KIV "
        "for assistance.";
    for (const char *text :
         {"", "garbage", "G13AAZ 1 99999 1", "G13AAZ 2 99995 4 5 1 1", "G13AAZ 1 12345 1 7"}) {
        KivError fail = quiet_record();
        kiv::g13::report_differencing_fault(3, text, "g13aac", &fail);
        EXPECT_EQ(fail.code, NE_INTERNAL_ERROR);
        EXPECT_STREQ(fail.message, internal);
        EXPECT_EQ(fail.errnum, 3);
    }
    char short_area[100];
    double xd[3];
    int nxd = 0;
    const double x[] = {1, 2, 3};
    EXPECT_EQ(kiv::g13::difference_series(x, 3, 1, 0, 0, xd, &nxd, short_area, sizeof short_area),
              -999);
}

}  // namespace
