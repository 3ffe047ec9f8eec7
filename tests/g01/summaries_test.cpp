// Grouped moments (g01adc) against g01aac on the expanded data, Tukey's
// five-number summary (g01alc) against its definition on a full sort, and
// the frequency table (g01aec) against counting, for both boundary types.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "kiv.h"

namespace {

TEST(GroupedMoments, AgreeWithTheExpandedData) {
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> mark(-3.0, 7.0);
    std::uniform_int_distribution<int> count(0, 9);
    for (int k : {1, 2, 5, 40}) {
        std::vector<double> x(k), expanded;
        std::vector<int> f(k);
        for (int i = 0; i < k; ++i) {
            x[i] = mark(engine);
            f[i] = count(engine) + (i == 0 ? 2 : 0);
            expanded.insert(expanded.end(), f[i], x[i]);
        }
        double mean, sd, skew, kurt;
        int n = 0;
        KivError fail{};
        g01adc(k, x.data(), f.data(), &mean, &sd, &skew, &kurt, &n, &fail);
        ASSERT_EQ(n, static_cast<int>(expanded.size()));
        int nvalid;
        double m2, s2, k2, lo, hi, w;
        KivError other{};
        g01aac(n, expanded.data(), nullptr, &nvalid, &m2, &s2, &k2, &kurt, &lo, &hi, &w, &other);
        EXPECT_NEAR(mean, m2, 1e-14 * std::fabs(m2) + 1e-15);
        if (k > 1) {
            EXPECT_NEAR(sd, s2, 1e-13 * s2 + 1e-15);
            EXPECT_NEAR(skew, k2, 1e-12);
        }
    }
}

TEST(FiveNumberSummary, TukeysHingesOnAFullSort) {
    std::mt19937_64 engine(9);
    std::normal_distribution<double> draw;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 10, 11, 100, 1001}) {
        std::vector<double> x(n);
        for (double &v : x) v = std::round(draw(engine) * 4.0);  // ties too
        std::vector<double> s = x;
        std::sort(s.begin(), s.end());
        // depth of the median d = (n + 1)/2, of the hinges (floor(d) + 1)/2
        auto at = [&](double depth, bool top) {
            const double lo = s[static_cast<std::size_t>(std::floor(depth)) - 1];
            const double hi = s[static_cast<std::size_t>(std::ceil(depth)) - 1];
            const double v = 0.5 * lo + 0.5 * hi;
            if (!top) return v;
            const double tlo = s[n - static_cast<std::size_t>(std::floor(depth))];
            const double thi = s[n - static_cast<std::size_t>(std::ceil(depth))];
            return 0.5 * tlo + 0.5 * thi;
        };
        const double d = (n + 1) / 2.0, h = (std::floor(d) + 1) / 2.0;
        double res[5];
        KivError fail{};
        g01alc(n, x.data(), res, &fail);
        ASSERT_EQ(fail.code, 0) << fail.message;
        const double want[5] = {s.front(), at(h, false), at(d, false), at(h, true), s.back()};
        for (int i = 0; i < 5; ++i) EXPECT_EQ(res[i], want[i]) << "n " << n << " item " << i;
    }
}

TEST(FrequencyTable, CountsByClassForBothBoundaryTypes) {
    const std::vector<double> x = {0.5, 1.0, 1.0, 2.5, 3.0, 9.0, -4.0, 2.0};
    std::vector<double> cint = {1.0, 2.0, 3.0};
    std::vector<int> freq(4);
    double lo, hi;
    KivError fail{};
    g01aec(8, x.data(), 4, Kiv_ClassBoundaryUser, cint.data(), freq.data(), &lo, &hi, &fail);
    // x < 1: -4, 0.5; [1, 2): 1, 1; [2, 3): 2.5, 2; >= 3: 3, 9
    EXPECT_EQ(freq, (std::vector<int>{2, 2, 2, 2}));
    EXPECT_EQ(lo, -4.0);
    EXPECT_EQ(hi, 9.0);
    g01aec(8, x.data(), 2, Kiv_ClassBoundaryComp, cint.data(), freq.data(), &lo, &hi, &fail);
    EXPECT_EQ(cint[0], 2.5);  // -4 + 13/2
    EXPECT_EQ(freq[0] + freq[1], 8);
    EXPECT_EQ(freq[1], 3);  // 2.5, 3, 9
    cint = {1.0, 1.0, 3.0};
    g01aec(8, x.data(), 4, Kiv_ClassBoundaryUser, cint.data(), freq.data(), &lo, &hi, &fail);
    EXPECT_EQ(fail.code, NE_NOT_STRICTLY_INCREASING);
}

}  // namespace

#if KIV_HAVE_MPFR
#include <mpfr.h>

namespace {

// phi(x) / (1 - Phi(x)) in 200 bits.
double reference_hazard(double x) {
    mpfr_t v, q, d;
    mpfr_inits2(200, v, q, d, static_cast<mpfr_ptr>(nullptr));
    mpfr_set_d(v, x, MPFR_RNDN);
    mpfr_set_d(q, x, MPFR_RNDN);
    mpfr_sqrt_ui(d, 2, MPFR_RNDN);
    mpfr_div(q, q, d, MPFR_RNDN);
    mpfr_erfc(q, q, MPFR_RNDN);  // 2 Q(x)
    mpfr_sqr(d, v, MPFR_RNDN);
    mpfr_div_si(d, d, -2, MPFR_RNDN);
    mpfr_exp(d, d, MPFR_RNDN);  // e^(-x^2/2)
    mpfr_const_pi(v, MPFR_RNDN);
    mpfr_mul_ui(v, v, 2, MPFR_RNDN);
    mpfr_sqrt(v, v, MPFR_RNDN);
    mpfr_div(d, d, v, MPFR_RNDN);  // phi(x)
    mpfr_mul_ui(d, d, 2, MPFR_RNDN);
    mpfr_div(d, d, q, MPFR_RNDN);
    const double result = mpfr_get_d(d, MPFR_RNDN);
    mpfr_clears(v, q, d, static_cast<mpfr_ptr>(nullptr));
    return result;
}

TEST(MillsRatio, ReciprocalWithinAFewUlpsForEveryX) {
    double worst = 0.0;
    for (double x = -37.0; x <= 60.0; x += 0.0371) {
        const double want = reference_hazard(x);
        if (want < 1e-300) continue;
        const double e = std::fabs(g01mbc(x) - want) / want / 2.220446049250313e-16;
        worst = std::max(worst, e);
    }
    EXPECT_LE(worst, 16.0);  // measured 12.5 (near x = 1, the continued fraction's longest)
    std::printf("g01mbc worst %.1f eps\n", worst);
    EXPECT_EQ(g01mbc(-HUGE_VAL), 0.0);
    EXPECT_EQ(g01mbc(HUGE_VAL), HUGE_VAL);
    EXPECT_TRUE(std::isnan(g01mbc(std::nan(""))));
}

}  // namespace
#endif
