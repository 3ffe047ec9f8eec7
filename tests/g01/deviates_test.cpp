// Deviates of t, chi-square, F, beta and gamma (g01fbc .. g01ffc): the
// relative error of the returned deviate, judged by 50-digit references of
// the distribution function and density at it, |F(x) - p| / (x f(x)), by
// region; the tails given as the routines take them; published values.
#include <gtest/gtest.h>

#include <algorithm>
#include <boost/math/distributions.hpp>
#include <boost/multiprecision/cpp_bin_float.hpp>
#include <cmath>
#include <exception>

#include "kiv.h"

namespace {

using Big = boost::multiprecision::cpp_bin_float_50;
constexpr double kEps = 2.220446049250313e-16;

// The deviate's relative error in eps: the 50-digit probability at x in the
// tail p belongs to, against p, over x times the density.
template <class Distribution>
double deviate_error(const Distribution &d, double x, double p) {
    try {
        const Big at(x);
        const Big gap = p <= 0.5 ? cdf(d, at) - Big(p) : cdf(complement(d, at)) - (Big(1) - Big(p));
        return static_cast<double>(abs(gap / (pdf(d, at) * at))) / kEps;
    } catch (const std::exception &error) {
        ADD_FAILURE() << "reference at x = " << x << ", p = " << p << ": " << error.what();
        return 0.0;
    }
}

constexpr double kProbabilities[] = {1e-10, 1e-5, 0.01, 0.1,      0.3,
                                     0.7,   0.9,  0.99, 1 - 1e-5, 1 - 1e-10};

TEST(Deviates, WithinTheirBoundsAgainstFiftyDigitReferences) {
    struct Row {
        const char *what;
        double worst, bound;
    };
    std::vector<Row> rows;
    double worst = 0.0;
    for (double df : {0.5, 1.0, 2.0, 3.5, 10.0, 100.0, 1e4})
        for (double p : kProbabilities) {
            KivError fail{};
            const double t = g01fbc(Kiv_LowerTail, p, df, &fail);
            ASSERT_EQ(fail.code, 0) << fail.message;
            worst = std::max(
                worst, deviate_error(boost::math::students_t_distribution<Big>(Big(df)), t, p));
        }
    rows.push_back({"t", worst, 24});
    worst = 0.0;
    for (double df : {0.5, 1.0, 2.0, 3.5, 10.0, 100.0, 1e4})
        for (double p : kProbabilities) {
            KivError fail{};
            const double x = g01fcc(p, df, &fail);
            ASSERT_EQ(fail.code, 0) << fail.message;
            worst = std::max(
                worst, deviate_error(boost::math::chi_squared_distribution<Big>(Big(df)), x, p));
        }
    rows.push_back({"chi-square", worst, 32});
    worst = 0.0;
    for (double a : {0.1, 0.5, 2.5, 10.0, 100.0})
        for (double b : {0.1, 0.5, 2.5, 10.0, 100.0})
            for (double p : kProbabilities) {
                KivError fail{};
                const double x = g01fec(p, a, b, 0.0, &fail);
                ASSERT_EQ(fail.code, 0) << fail.message;
                // A quantile within 1e-16 of 1 rounds to 1 (and F to +inf):
                // right, and no reference density there.
                if (x == 1.0) continue;
                worst = std::max(
                    worst,
                    deviate_error(boost::math::beta_distribution<Big>(Big(a), Big(b)), x, p));
                const double f = g01fdc(p, 2 * a, 2 * b, &fail);
                ASSERT_EQ(fail.code, 0) << fail.message;
                worst = std::max(worst, deviate_error(boost::math::fisher_f_distribution<Big>(
                                                          Big(2 * a), Big(2 * b)),
                                                      f, p));
            }
    rows.push_back({"beta and F", worst, 128});
    for (const Row &row : rows) {
        EXPECT_LE(row.worst, row.bound) << row.what;
        std::printf("deviates %-12s worst %.1f eps\n", row.what, row.worst);
    }
}

// The extreme probabilities: the smallest subnormal and the largest double
// below 1 give finite deviates, at once (no long search).
TEST(Deviates, ExtremeProbabilitiesGiveFiniteDeviates) {
    const double smallest = 4.9406564584124654e-324, largest = 1.0 - 0x1p-53;
    for (double p : {smallest, largest}) {
        KivError fail{};
        EXPECT_TRUE(std::isfinite(g01fbc(Kiv_LowerTail, p, 3.0, &fail))) << p;
        EXPECT_TRUE(std::isfinite(g01fcc(p, 3.0, &fail))) << p;
        EXPECT_TRUE(std::isfinite(g01fec(p, 2.0, 3.0, 0.0, &fail))) << p;
        EXPECT_TRUE(std::isfinite(g01ffc(p, 2.0, 3.0, 0.0, &fail))) << p;
        EXPECT_GE(g01fdc(p, 2.0, 3.0, &fail), 0.0) << p;
    }
}

// Tails as g01fac takes them, the gamma scale, and published percentage
// points (t 0.975 at 10 df, chi-square 0.95 at 3 df, F 0.95 at (4, 20)).
TEST(Deviates, TailsScaleAndPublishedPoints) {
    KivError fail{};
    const double t = g01fbc(Kiv_UpperTail, 0.025, 10.0, &fail);
    EXPECT_NEAR(t, 2.2281388519862735, 4 * kEps * t);
    EXPECT_EQ(g01fbc(Kiv_LowerTail, 0.025, 10.0, &fail), -t);
    EXPECT_NEAR(g01fbc(Kiv_TwoTailSignif, 0.05, 10.0, &fail), t, 4 * kEps * t);
    EXPECT_NEAR(g01fbc(Kiv_TwoTailConfid, 0.95, 10.0, &fail), t, 4 * kEps * t);
    EXPECT_NEAR(g01fcc(0.95, 3.0, &fail), 7.8147279032511765, 4 * kEps * 7.82);
    EXPECT_NEAR(g01fdc(0.95, 4.0, 20.0, &fail), 2.8660814020156593, 8 * kEps * 2.87);
    EXPECT_EQ(g01ffc(0.3, 2.5, 4.0, 0.0, &fail), 4.0 * g01ffc(0.3, 2.5, 1.0, 0.0, &fail));
    EXPECT_EQ(g01fbc(Kiv_UpperTail, 0.5, 3.0, &fail), 0.0);
    EXPECT_EQ(g01fbc(Kiv_UpperTail, 0.025, HUGE_VAL, &fail), g01fac(Kiv_UpperTail, 0.025, &fail));
    // Round trips through the library's own probabilities, deep in a tail.
    for (double p : {1e-300, 1e-100, 1e-20}) {
        const double x = g01fcc(p, 7.0, &fail);
        EXPECT_NEAR(g01ecc(Kiv_LowerTail, x, 7.0, &fail) / p, 1.0, 1e-4);  // g01ecc: 5e-6 relative
    }
    for (double p : {1e-3, 1e-9, 1e-14}) {
        const double q = 1.0 - (1.0 - p);  // the upper tail that 1 - p stands for, exactly
        const double f = g01fdc(1.0 - p, 5.0, 9.0, &fail);
        EXPECT_NEAR(g01edc(Kiv_UpperTail, f, 5.0, 9.0, &fail) / q, 1.0, 1e-12);
    }
}

}  // namespace
