// Student's t, F and beta probabilities (g01ebc, g01edc, g01edf, g01eec)
// against 50-digit references (Boost.Math on cpp_bin_float_50), by region,
// with the bounds measured for the continued-fraction kernel; identities
// between the families; exact values of polynomial cases.
#include <gtest/gtest.h>

#include <algorithm>
#include <boost/math/distributions/fisher_f.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <boost/math/special_functions/beta.hpp>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>
#include <cstring>

#include "kiv.h"

namespace {

using Big = boost::multiprecision::cpp_bin_float_50;
constexpr double kEps = 2.220446049250313e-16;

// Relative error in units of 2^-52 (values below 1e-300 not counted).
double error_of(double got, const Big &want) {
    if (want < Big(1e-300)) return 0.0;
    return static_cast<double>(abs((Big(got) - want) / want)) / kEps;
}

double t_probability(Kiv_Tail tail, double t, double df) {
    KivError fail{};
    const double p = g01ebc(tail, t, df, &fail);
    EXPECT_EQ(fail.code, 0) << fail.message;
    return p;
}

struct Region {
    const char *what;
    double lowest, highest;  // df (t), or the smaller and larger of a, b
    double bound;            // worst relative error allowed, in eps
};

// Both tails of t over t = +-10^(k/10 - 2), k = 0..60, per df band.
TEST(StudentT, BothTailsAgainstFiftyDigitsByDegreesOfFreedom) {
    const Region regions[] = {
        {"df 0.1 to 10", 0.1, 10, 8},
        {"df 33.3 to 1e4", 33.3, 1e4, 64},
        {"df 1e5 to 1e6", 1e5, 1e6, 160},
    };
    const double dfs[] = {0.1, 0.5, 1, 2.5, 7, 10, 33.3, 100, 1000, 1e4, 1e5, 1e6};
    for (const Region &region : regions) {
        double worst = 0.0;
        for (double df : dfs) {
            if (df < region.lowest || df > region.highest) continue;
            boost::math::students_t_distribution<Big> d{Big(df)};
            for (int k = -60; k <= 60; ++k) {
                const double t =
                    k == 0 ? 0.0 : (k > 0 ? 1 : -1) * std::pow(10.0, std::abs(k) / 10.0 - 2.0);
                worst = std::max(
                    {worst, error_of(t_probability(Kiv_LowerTail, t, df), cdf(d, Big(t))),
                     error_of(t_probability(Kiv_UpperTail, t, df), cdf(complement(d, Big(t))))});
            }
        }
        EXPECT_LE(worst, region.bound) << region.what;
        std::printf("t %-16s worst %.1f eps\n", region.what, worst);
    }
}

TEST(FDistribution, BothTailsAgainstFiftyDigits) {
    const double dfs[] = {0.1, 0.5, 1, 2.5, 7, 10, 33.3, 100, 1000, 1e4};
    double worst = 0.0;
    for (double d1 : dfs)
        for (double d2 : dfs) {
            boost::math::fisher_f_distribution<Big> d{Big(d1), Big(d2)};
            for (int k = -30; k <= 30; k += 3) {
                const double f = std::pow(10.0, k / 5.0);
                KivError fail{};
                const double lower = g01edc(Kiv_LowerTail, f, d1, d2, &fail);
                const double upper = g01edc(Kiv_UpperTail, f, d1, d2, &fail);
                worst = std::max({worst, error_of(lower, cdf(d, Big(f))),
                                  error_of(upper, cdf(complement(d, Big(f))))});
            }
        }
    EXPECT_LE(worst, 80.0);
    std::printf("F worst %.1f eps\n", worst);
}

TEST(BetaDistribution, BothTailsAgainstFiftyDigits) {
    const double shapes[] = {0.1, 0.5, 1, 2.5, 7, 10, 33.3, 100, 1000};
    double worst = 0.0;
    for (double a : shapes)
        for (double b : shapes)
            for (int k = 1; k < 40; ++k) {
                double x = k / 40.0;
                if (k <= 4) x = std::pow(10.0, -3 * k);
                if (k >= 35) x = 1.0 - std::pow(10.0, -(k - 33));
                double p = 0, q = 0, pdf = 0;
                KivError fail{};
                g01eec(x, a, b, 0.0, &p, &q, &pdf, &fail);
                ASSERT_EQ(fail.code, 0) << fail.message;
                worst = std::max(
                    {worst, error_of(p, boost::math::ibeta(Big(a), Big(b), Big(x))),
                     error_of(q, boost::math::ibetac(Big(a), Big(b), Big(x))),
                     error_of(pdf, boost::math::ibeta_derivative(Big(a), Big(b), Big(x)))});
            }
    EXPECT_LE(worst, 100.0);
    std::printf("beta worst %.1f eps\n", worst);
}

// Identities: t symmetry exactly; F(1, df) at t^2 is the two-tail
// confidence of t; the polynomial case a = 2, b = 5 exactly.
TEST(StudentFBeta, IdentitiesAndExactValues) {
    for (double df : {0.7, 3.0, 25.0, 1e3})
        for (double t : {0.01, 0.5, 2.0, 7.5, 60.0}) {
            EXPECT_EQ(t_probability(Kiv_LowerTail, -t, df), t_probability(Kiv_UpperTail, t, df));
            KivError fail{};
            const double f = g01edc(Kiv_LowerTail, t * t, 1.0, df, &fail);
            EXPECT_NEAR(f / t_probability(Kiv_TwoTailConfid, t, df), 1.0, 64 * kEps);
            const double upper = t_probability(Kiv_UpperTail, t, df);
            if (upper > 1e-290) {
                EXPECT_NEAR(t_probability(Kiv_TwoTailSignif, t, df) / (2.0 * upper), 1.0, 8 * kEps);
            }
        }
    // I_x(2, 5) = 1 - (1 - x)^5 (1 + 5x): at 0.3 it is 0.579825.
    double p = 0, q = 0, pdf = 0;
    KivError fail{};
    g01eec(0.3, 2.0, 5.0, 0.0, &p, &q, &pdf, &fail);
    EXPECT_NEAR(p, 0.579825, 2 * kEps);
    EXPECT_NEAR(q, 0.420175, 2 * kEps);
    EXPECT_NEAR(pdf, 30 * 0.3 * std::pow(0.7, 4), 8 * kEps);
    // df = +inf is the normal distribution.
    EXPECT_EQ(t_probability(Kiv_UpperTail, 1.96, HUGE_VAL), g01eac(Kiv_UpperTail, 1.96, &fail));
    // Ends and infinities.
    EXPECT_EQ(t_probability(Kiv_UpperTail, HUGE_VAL, 3.0), 0.0);
    EXPECT_EQ(t_probability(Kiv_LowerTail, HUGE_VAL, 3.0), 1.0);
    EXPECT_EQ(g01edc(Kiv_UpperTail, HUGE_VAL, 2.0, 3.0, &fail), 0.0);
    EXPECT_EQ(g01edc(Kiv_LowerTail, 0.0, 2.0, 3.0, &fail), 0.0);
    g01eec(0.0, 0.5, 2.0, 0.0, &p, &q, &pdf, &fail);
    EXPECT_TRUE(p == 0.0 && q == 1.0 && std::isinf(pdf));
}

// The error-flag form: the failure numbers, and a soft silent failure
// returning 0.
TEST(FDistribution, ErrorFlagFormNumbersItsFailures) {
    struct Row {
        const char *tail;
        double f, df1, df2;
        int ifail;
    };
    const Row rows[] = {{"x", 1, 2, 3, 1},
                        {"l", -1, 2, 3, 2},
                        {"U", 1, 0, 3, 3},
                        {"U", 1, 2, std::nan(""), 3},
                        {"lower", 1, 2, 3, 0}};
    for (const Row &row : rows) {
        int ifail = 1;
        const double p = g01edf(row.tail, row.f, row.df1, row.df2, &ifail,
                                static_cast<int>(std::strlen(row.tail)));
        EXPECT_EQ(ifail, row.ifail) << row.tail;
        if (row.ifail != 0) {
            EXPECT_EQ(p, 0.0);
        }
    }
    KivError fail{};
    int ifail = 1;
    EXPECT_EQ(g01edf("u", 3.5, 4, 20, &ifail, 1), g01edc(Kiv_UpperTail, 3.5, 4, 20, &fail));
}

}  // namespace
