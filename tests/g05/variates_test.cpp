// Scalar variates: bounds and clamping, the normal table against an MPFR
// oracle, reproducibility, and fixed-seed goodness-of-fit tests.
#include <gtest/gtest.h>
#if KIV_HAVE_MPFR
#include <mpfr.h>
#endif

#include <bit>
#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/normal.hpp>
#include <climits>
#include <cmath>
#include <cstdint>
#include <functional>
#include <vector>

#include "g05/normal_table.hpp"
#include "g05_reference.hpp"
#include "kiv.h"

namespace {

TEST(NormalTable, PublishedEntriesAndQuantilesToSixteenDigits) {
    struct Entry {
        int k;
        double value;
    };
    // clang-format off
    const Entry published[] = {{0, 0.0}, {1, 0.674489750196082}, {2, 1.150349380376008},
        {3, 1.534120544352546}, {10, 3.297193345691964}, {39, 7.047700256664409}, {40, 7.14355203435219}};
    // clang-format on
    for (const auto &entry : published) EXPECT_EQ(kiv::g05::normal_table[entry.k], entry.value);
#if KIV_HAVE_MPFR
    // Oracle: Q(D_k) = erfc(D_k / sqrt 2) / 2 = 2^-(k+1) at 200 bits; the
    // table holds 15 decimals, so |D_k - quantile| <= 1.5e-15 (the published
    // D_10 and D_40 are one unit of the last decimal off the rounded value).
    mpfr_t x, q;
    mpfr_inits2(200, x, q, static_cast<mpfr_ptr>(nullptr));
    for (int k = 1; k <= 40; ++k) {
        const double d = kiv::g05::normal_table[k];
        mpfr_set_d(x, d, MPFR_RNDN);
        mpfr_div_d(x, x, std::sqrt(2.0), MPFR_RNDN);  // only a scale: errors below 1e-16
        mpfr_erfc(q, x, MPFR_RNDN);
        mpfr_mul_2si(q, q, k, MPFR_RNDN);  // 2^(k+1) Q(D_k) = 1 + (D_k - quantile) phi/Q
        const double relative_q = mpfr_get_d(q, MPFR_RNDN) - 1.0;
        const double density = std::exp(-d * d / 2) / std::sqrt(2 * M_PI);
        const double error = -relative_q * std::ldexp(1.0, -(k + 1)) / density;
        EXPECT_LT(std::fabs(error), 1.5e-15 + 4e-16 * d) << "D_" << k;
    }
    mpfr_clears(x, q, static_cast<mpfr_ptr>(nullptr));
#endif
}

// Reversed and equal bounds, the full integer range, every integer of a
// reversed range reached, and g05dbc using |a|.
TEST(Variates, BoundsAndSigns) {
    g05cbc(11);
    int seen[5] = {};
    for (int k = 0; k < 20000; ++k) {
        const double u = g05dac(2.0, 1.0);
        ASSERT_TRUE(u >= 1.0 && u <= 2.0) << u;
        ASSERT_EQ(g05dac(-3.5, -3.5), -3.5);
        ASSERT_TRUE(std::isfinite(g05dac(-1e300, 1e300)));
        const int n = g05dyc(7, 3);
        ASSERT_TRUE(n >= 3 && n <= 7) << n;
        ++seen[n - 3];
        ASSERT_EQ(g05dyc(5, 5), 5);
        ASSERT_EQ(g05dyc(INT_MAX, INT_MAX), INT_MAX);
        g05dyc(INT_MAX, INT_MIN);  // no overflow (sanitizer build)
    }
    for (int count : seen) EXPECT_GT(count, 3000);
    for (const double mean : {2.0, -2.0}) {
        g05cbc(3);
        const double first = g05dbc(mean);
        g05cbc(3);
        EXPECT_EQ(g05dbc(-mean), first);
        EXPECT_TRUE(first > 0.0 && std::isfinite(first));
    }
}

// The first call after seeding uses interval 1; one interleaved uniform
// changes the normal stream.
TEST(Variates, NormalStartsInTheFirstIntervalAndSharesTheStream) {
    for (int seed : {0, 1, 2, 3, 99, 123456}) {
        g05cbc(seed);
        EXPECT_LT(std::fabs(g05ddc(0.0, 1.0)), kiv::g05::normal_table[1]) << seed;
    }
    std::vector<double> first;
    g05cbc(8);
    for (int k = 0; k < 1000; ++k) first.push_back(g05ddc(3.0, -0.5));
    g05cbc(8);
    g05cac();
    int same = 0;
    for (int k = 0; k < 1000; ++k) same += g05ddc(3.0, -0.5) == first[k];
    EXPECT_LT(same, 10);
}

// The comparison method written directly from its description, one g05cac
// call per uniform: g05ddc must give the same bits from any carried value.
double reference_normal(double a, double b) {
    double &carry = g05_reference::carried_uniform();
    double u = g05cac();
    int i = 1;
    for (double c = carry; c <= 0.5 && i < 40; c = 2 * c) ++i;
    const double lo = kiv::g05::normal_table[i - 1], width = kiv::g05::normal_table[i] - lo;
    for (;;) {
        const double v = width * u, t = v * (lo + v / 2);
        double p = t, w = g05cac();
        int place = 1;
        for (; p > w; ++place) {
            p = w;
            w = g05cac();
        }
        const double r = (w - p) / (1 - p);
        if (place % 2 == 0) {
            u = r;
            continue;
        }
        carry = r <= 0.5 ? 2 * r : 2 * r - 1;
        return r <= 0.5 ? a + b * (lo + v) : a - b * (lo + v);
    }
}

TEST(Variates, NormalMatchesTheComparisonMethodFromAnyCarry) {
    const double carries[] = {1.0,    0.75,    0.5,     0.5000000000000001,    0.25,
                              0.3,    0x1p-38, 0x1p-39, 0x1.0000000000001p-39, 0x1p-40,
                              1e-310, 0.0,     -1.0,    std::nan(""),          2.0};
    for (double carry : carries) {
        std::vector<double> got;
        g05cbc(606);
        g05_reference::carried_uniform() = carry;
        for (int k = 0; k < 2000; ++k) got.push_back(g05ddc(-1.5, 0.25 + k % 3));
        g05cbc(606);
        g05_reference::carried_uniform() = carry;
        for (int k = 0; k < 2000; ++k)
            ASSERT_EQ(got[k], reference_normal(-1.5, 0.25 + k % 3)) << carry << " " << k;
    }
}

// Frozen output of g05ddc: 10^5 variates from each seed, hashed bit for bit
// (FNV-1a over the results, then the carried uniform and the next uniform,
// which pin the number of uniforms consumed).
TEST(Variates, NormalStreamIsFrozen) {
    const struct {
        int seed;
        std::uint64_t hash;
    } cases[] = {
        {1, 0xa07c644bd878a78au}, {606, 0x5a4656b16da1a1deu}, {-2024, 0xdd9c163e48a39ddbu}};
    for (const auto &c : cases) {
        g05cbc(c.seed);
        std::uint64_t hash = 0xcbf29ce484222325u;
        const auto mix = [&](double x) {
            hash = (hash ^ std::bit_cast<std::uint64_t>(x)) * 0x100000001b3u;
        };
        for (int k = 0; k < 100000; ++k) mix(g05ddc(0.5 * (k % 5), 1.0 + k % 3));
        mix(g05_reference::carried_uniform());
        mix(g05cac());
        EXPECT_EQ(hash, c.hash) << std::hex << hash << " seed " << std::dec << c.seed;
    }
}

// Each variate is mapped through its distribution function and the results
// binned into 40 equiprobable cells: 10^6 draws from a fixed seed. The bound
// is the chi-square(39) quantile at 1 - 10^-6, so a correct generator fails
// with probability 10^-6 per seed chosen.
TEST(Variates, GoodnessOfFitAtFixedSeeds) {
    const boost::math::normal standard;
    const struct {
        const char *name;
        std::function<double()> to_uniform;
    } cases[] = {
        {"g05cac", [] { return g05cac(); }},
        {"g05ddc", [&] { return boost::math::cdf(standard, (g05ddc(1.0, 3.0) - 1.0) / 3.0); }},
        {"g05dbc", [] { return 1.0 - std::exp(-g05dbc(0.5) / 0.5); }},
        {"g05dac", [] { return (g05dac(4.0, -6.0) + 6.0) / 10.0; }},
        {"g05dyc", [] { return (g05dyc(-20, 19) + 20 + 0.5) / 40.0; }},
    };
    constexpr int cells = 40, draws = 1000000;
    const double bound =
        boost::math::quantile(boost::math::complement(boost::math::chi_squared(cells - 1), 1e-6));
    for (const auto &c : cases) {
        g05cbc(20240601);
        std::vector<double> count(cells, 0.0);
        for (int k = 0; k < draws; ++k) {
            const double u = c.to_uniform();
            ASSERT_TRUE(u >= 0.0 && u <= 1.0) << c.name;
            count[std::min(cells - 1, static_cast<int>(u * cells))] += 1;
        }
        double chi2 = 0;
        const double expected = static_cast<double>(draws) / cells;
        for (double n : count) chi2 += (n - expected) * (n - expected) / expected;
        EXPECT_LT(chi2, bound) << c.name;
    }
}

}  // namespace
