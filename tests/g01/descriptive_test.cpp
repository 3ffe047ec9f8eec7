// g01aac against exact rational arithmetic and the published examples, and
// its error paths.
#include <gtest/gtest.h>

#include <boost/multiprecision/cpp_int.hpp>
#include <cmath>
#include <random>
#include <vector>

#include "kiv.h"

namespace {

using Rational = boost::multiprecision::cpp_rational;

struct Summary {
    int nvalid = -1;
    double mean = -1, sd = -1, skew = -1, kurt = -1, min = -1, max = -1, wsum = -1;
    KivError fail{};
};

Summary describe(const std::vector<double> &x, const double *wt) {
    Summary s;
    g01aac(static_cast<int>(x.size()), x.data(), wt, &s.nvalid, &s.mean, &s.sd, &s.skew, &s.kurt,
           &s.min, &s.max, &s.wsum, &s.fail);
    return s;
}

// Exact weighted moments with the divisor W - sum w^2 / W, as doubles.
void exact_moments(const std::vector<double> &x, const std::vector<double> &w, double &mean,
                   double &variance, double &skew_numerator, double &kurt_numerator) {
    Rational total = 0, squares = 0, first = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        total += Rational(w[i]);
        squares += Rational(w[i]) * Rational(w[i]);
        first += Rational(w[i]) * Rational(x[i]);
    }
    const Rational m = first / total;
    Rational s2 = 0, s3 = 0, s4 = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const Rational d = Rational(x[i]) - m;
        s2 += Rational(w[i]) * d * d;
        s3 += Rational(w[i]) * d * d * d;
        s4 += Rational(w[i]) * d * d * d * d;
    }
    const Rational c = total / (total * total - squares);
    mean = static_cast<double>(m);
    variance = static_cast<double>(c * s2);
    skew_numerator = static_cast<double>(c * s3);
    kurt_numerator = static_cast<double>(c * s4);
}

TEST(Descriptive, PublishedExamples) {
    const Summary plain = describe({1, 2, 3, 4}, nullptr);
    EXPECT_EQ(plain.fail.code, 0);
    EXPECT_EQ(plain.nvalid, 4);
    EXPECT_DOUBLE_EQ(plain.mean, 2.5);
    EXPECT_DOUBLE_EQ(plain.sd, std::sqrt(5.0 / 3.0));
    EXPECT_NEAR(plain.skew, 0.0, 1e-15);
    EXPECT_DOUBLE_EQ(plain.kurt, -1.77);
    EXPECT_EQ(plain.wsum, 4.0);

    const double weights[] = {1, 3, 0.5, 2};
    const Summary weighted = describe({1, 2, 3, 10}, weights);
    EXPECT_EQ(weighted.nvalid, 4);
    EXPECT_NEAR(weighted.mean, 4.3846154, 5e-8);
    EXPECT_NEAR(weighted.sd, 4.6348833, 5e-8);
    EXPECT_NEAR(weighted.skew, 0.6373324, 5e-8);
    EXPECT_NEAR(weighted.kurt, -1.8839230, 5e-8);
    EXPECT_EQ(weighted.wsum, 6.5);
    EXPECT_EQ(weighted.min, 1.0);
    EXPECT_EQ(weighted.max, 10.0);
}

TEST(Descriptive, AgreesWithExactRationalArithmetic) {
    std::mt19937_64 engine(77);
    std::uniform_real_distribution<double> value(-50.0, 150.0), weight(0.1, 5.0);
    for (int trial = 0; trial < 40; ++trial) {
        const std::size_t n = 2 + trial % 15;
        std::vector<double> x(n), w(n);
        for (std::size_t i = 0; i < n; ++i) x[i] = value(engine), w[i] = weight(engine);
        const bool weighted = trial % 2 == 1;
        if (!weighted) std::fill(w.begin(), w.end(), 1.0);
        double mean, variance, m3, m4;
        exact_moments(x, w, mean, variance, m3, m4);
        const Summary s = describe(x, weighted ? w.data() : nullptr);
        ASSERT_EQ(s.fail.code, 0);
        const double sd = std::sqrt(variance);
        EXPECT_NEAR(s.mean, mean, 1e-14 * 150);
        EXPECT_NEAR(s.sd / sd, 1.0, 1e-14);
        EXPECT_NEAR(s.skew, m3 / (sd * variance), 1e-13);
        EXPECT_NEAR(s.kurt, m4 / (variance * variance) - 3.0, 1e-13);
    }
}

TEST(Descriptive, ScalingTheWeightsChangesOnlyTheirSum) {
    const std::vector<double> x{1, 2, 3, 10};
    const double twos[] = {2, 2, 2, 2};
    const Summary plain = describe(x, nullptr), doubled = describe(x, twos);
    EXPECT_DOUBLE_EQ(doubled.mean, plain.mean);
    EXPECT_DOUBLE_EQ(doubled.sd, plain.sd);
    EXPECT_NEAR(doubled.skew, plain.skew, 1e-15);
    EXPECT_NEAR(doubled.kurt, plain.kurt, 1e-15);
    EXPECT_EQ(doubled.wsum, 8.0);
}

TEST(Descriptive, ZeroWeightsAreNotCases) {
    const double weights[] = {0, 1, 0, 1, 1, 0};
    const Summary s = describe({-100, 1, 50, 2, 3, 1000}, weights);
    const Summary reference = describe({1, 2, 3}, nullptr);
    EXPECT_EQ(s.nvalid, 3);
    EXPECT_EQ(s.min, 1.0);
    EXPECT_EQ(s.max, 3.0);
    EXPECT_EQ(s.mean, reference.mean);
    EXPECT_EQ(s.sd, reference.sd);
}

TEST(Descriptive, ConstantSampleHasNoSpread) {
    const Summary s = describe({4.25, 4.25, 4.25}, nullptr);
    EXPECT_EQ(s.fail.code, 0);
    EXPECT_EQ(s.sd, 0.0);
    EXPECT_EQ(s.skew, 0.0);
    EXPECT_EQ(s.kurt, 0.0);
}

TEST(Descriptive, OneValidCase) {
    const double one_weight[] = {0, 2.5, 0};
    for (const double *wt : {static_cast<const double *>(nullptr), one_weight}) {
        const std::vector<double> x =
            wt == nullptr ? std::vector<double>{7.5} : std::vector<double>{1, 7.5, 3};
        const Summary s = describe(x, wt);
        EXPECT_EQ(s.fail.code, NE_CASES_ONE);
        EXPECT_STREQ(s.fail.message, "NE_CASES_ONE:\n  Number of valid cases is 1.");
        EXPECT_EQ(s.nvalid, 1);
        EXPECT_EQ(s.mean, 7.5);
        EXPECT_EQ(s.min, 7.5);
        EXPECT_EQ(s.max, 7.5);
        EXPECT_EQ(s.wsum, wt == nullptr ? 1.0 : 2.5);
        EXPECT_EQ(s.sd, 0.0);
        EXPECT_EQ(s.skew, 0.0);
        EXPECT_EQ(s.kurt, 0.0);
    }
}

struct Fault {
    int n;
    std::vector<double> weights;  // empty: no weights
    int code;
    const char *message;
};

TEST(Descriptive, FaultsWriteOnlyNvalid) {
    const double nan = std::nan("");
    const Fault faults[] = {
        {0,
         {},
         NE_INT_ARG_LE,
         "NE_INT_ARG_LE:\n  On entry, n must not be less than or equal to 0: n = 0."},
        {-3, {}, NE_INT_ARG_LE, nullptr},
        {4,
         {1, 1, -0.5, 1},
         NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, wt[  2] must not be less than 0: wt[  2] = -0.5."},
        {4,
         {1, 2, 3, nan},
         NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, wt[  3] must not be less than 0: wt[  3] = nan."},
        {3, {0, 0, 0}, NE_CASES_ZERO, "NE_CASES_ZERO:\n  Number of valid cases is 0."},
    };
    const std::vector<double> x{1, 2, 3, 4};
    for (const Fault &f : faults) {
        Summary s;
        g01aac(f.n, x.data(), f.weights.empty() ? nullptr : f.weights.data(), &s.nvalid, &s.mean,
               &s.sd, &s.skew, &s.kurt, &s.min, &s.max, &s.wsum, &s.fail);
        EXPECT_EQ(s.fail.code, f.code);
        if (f.message != nullptr) {
            EXPECT_STREQ(s.fail.message, f.message);
        }
        EXPECT_EQ(s.nvalid, 0);
        for (double untouched : {s.mean, s.sd, s.skew, s.kurt, s.min, s.max, s.wsum})
            EXPECT_EQ(untouched, -1.0);
    }
}

}  // namespace
