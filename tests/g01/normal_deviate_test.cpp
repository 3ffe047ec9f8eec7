// g01cec, g01fac and g01fac_v: the lower-tail probability of the returned
// deviate against p (MPFR), seams and extreme p, every failure with its
// exact message, the relations between tails, and the batch form.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "g01/normal_test_support.hpp"
#include "kernels/exp_log_oracle.hpp"
#include "kiv.h"

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kBelowOne = 0x1.fffffffffffffp-1;
constexpr Kiv_Tail kTails[] = {Kiv_LowerTail, Kiv_UpperTail, Kiv_TwoTailSignif, Kiv_TwoTailConfid};

#if KIV_HAVE_MPFR
using kiv::oracle::Real;

// Worst relative error of Phi(g01cec(p)) against p over `points`.
kiv::oracle::Worst round_trip_error(const std::vector<double> &points) {
    kiv::oracle::Worst worst;
    Real phi;
    for (double p : points) {
        kiv::oracle::normal_lower_tail(phi, g01cec(p, nullptr));
        Real exact(p);
        worst.update(kiv::oracle::relative_error(mpfr_get_d(phi.get(), MPFR_RNDN), exact), p);
    }
    return worst;
}

TEST(NormalDeviate, ProbabilityOfTheDeviateAgainstMpfr) {
    std::vector<double> log_uniform;
    for (double e : kiv::oracle::dense_grid(std::log(1e-20), std::log(0.5), 1500))
        log_uniform.push_back(std::exp(e));
    struct Case {
        const char *name;
        std::vector<double> points;
        double bound;  // measured maximum, rounded up
    } const cases[] = {
        {"p log-uniform on [1e-20, 0.5]", log_uniform, 3.5e-11},
        {"p uniform on [0.02, 0.98]", kiv::oracle::dense_grid(0.02, 0.98, 1500), 2.5e-12},
        {"p uniform on [0.2, 0.8]", kiv::oracle::dense_grid(0.2, 0.8, 1500), 1e-12},
        {"p uniform on [0.5, 1 - 1e-6]", kiv::oracle::dense_grid(0.5, 1 - 1e-6, 1500), 3e-13},
    };
    for (const Case &c : cases) {
        const kiv::oracle::Worst worst = round_trip_error(c.points);
        std::printf("[ measured ] g01cec %s: relative error %.3g at p = %.17g\n", c.name,
                    worst.error, worst.at);
        EXPECT_LT(worst.error, c.bound) << c.name << " at " << worst.at;
    }
}
#endif  // KIV_HAVE_MPFR

TEST(NormalDeviate, SeamsAndExtremes) {
    KivError fail = kiv::test::quiet_record();
    const double centre = g01cec(0.5, &fail);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(centre), 0u);  // +0.0 exactly
    EXPECT_EQ(fail.code, NE_NOERROR);
    // q = 0.8 - 0.5 rounds above 0.3: the intermediate region starts at C(0).
    EXPECT_NEAR(g01cec(0.8, nullptr), 0.8416212335729143, 1e-12);
    EXPECT_NEAR(g01cec(std::nextafter(0.8, 0.0), nullptr), 0.8416212335729143, 1e-12);
    EXPECT_NEAR(g01cec(0.08, nullptr), -1.4050715603096329, 1e-12);
    EXPECT_NEAR(g01cec(std::nextafter(0.08, 0.0), nullptr), -1.4050715603096329, 1e-12);
    // Far tail: finite, no error; the probability still within 4e-5.
    for (double p : {1e-300, 0x1.0p-1022, 0x1.0p-1074, 1e-310}) {
        fail = kiv::test::quiet_record();
        const double x = g01cec(p, &fail);
        EXPECT_EQ(fail.code, NE_NOERROR) << p;
#if KIV_HAVE_MPFR
        Real phi;
        kiv::oracle::normal_lower_tail(phi, x);
        EXPECT_LT(kiv::oracle::relative_error(p, phi), 4e-5) << p;
#else
        EXPECT_TRUE(std::isfinite(x)) << p;
#endif
    }
    EXPECT_NEAR(g01cec(1e-300, nullptr), -37.047, 5e-4);
    EXPECT_NEAR(g01cec(kBelowOne, nullptr), 8.2095361516013838, 1e-6);
}

TEST(NormalDeviate, FailuresInOrderWithExactMessages) {
    struct Case {
        Kiv_Tail tail;
        double p;
        int code;
        std::string message;
    } const cases[] = {
        {Kiv_LowerTail, 0.0, NE_REAL_ARG_LE, kiv::test::at_most_zero_message("p", "0")},
        {Kiv_LowerTail, -1.0, NE_REAL_ARG_LE, kiv::test::at_most_zero_message("p", "-1")},
        {Kiv_LowerTail, -kInf, NE_REAL_ARG_LE, kiv::test::at_most_zero_message("p", "-inf")},
        {Kiv_LowerTail, kNaN, NE_REAL_ARG_LE, kiv::test::at_most_zero_message("p", "nan")},
        {Kiv_LowerTail, 1.0, NE_REAL_ARG_GE, kiv::test::at_least_one_message("p", "1")},
        {Kiv_LowerTail, kInf, NE_REAL_ARG_GE, kiv::test::at_least_one_message("p", "inf")},
        {Kiv_LowerTail, 1.5, NE_REAL_ARG_GE, kiv::test::at_least_one_message("p", "1.5")},
        // p is checked before the tail.
        {static_cast<Kiv_Tail>(0), 0.0, NE_REAL_ARG_LE, kiv::test::at_most_zero_message("p", "0")},
    };
    for (const Case &c : cases) {
        KivError fail = kiv::test::quiet_record();
        EXPECT_EQ(g01fac(c.tail, c.p, &fail), 0.0);
        EXPECT_EQ(fail.code, c.code) << c.p;
        EXPECT_EQ(fail.message, c.message);
        fail = kiv::test::quiet_record();
        EXPECT_EQ(g01cec(c.p, &fail), 0.0);
        EXPECT_EQ(fail.code, c.code) << c.p;
        EXPECT_EQ(fail.message, c.message);
    }
    for (int tail : kiv::test::kInvalidTails) {
        KivError fail = kiv::test::quiet_record();
        EXPECT_EQ(g01fac(static_cast<Kiv_Tail>(tail), 0.3, &fail), 0.0);
        EXPECT_EQ(fail.code, NE_BAD_PARAM);
        EXPECT_STREQ(fail.message, kiv::test::kBadTailMessage);
    }
    // The kernel's own failure becomes NE_INTERNAL_ERROR with the table's text:
    // (p + 1)/2 rounds to 1, and p/2 rounds to 0.
    const char *internal =
        "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n  Check the "
        "function call and any array sizes. If the call is correct\n  then please consult KIV "
        "for assistance.";
    KivError fail = kiv::test::quiet_record();
    const double confid = g01fac(Kiv_TwoTailConfid, kBelowOne, &fail);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(confid), std::bit_cast<std::uint64_t>(0.0));
    EXPECT_EQ(fail.code, NE_INTERNAL_ERROR);
    EXPECT_STREQ(fail.message, internal);
    fail = kiv::test::quiet_record();
    const double signif = g01fac(Kiv_TwoTailSignif, 0x1.0p-1074, &fail);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(signif), std::bit_cast<std::uint64_t>(-0.0));
    EXPECT_EQ(fail.code, NE_INTERNAL_ERROR);
    // The other tails accept the extreme p.
    for (Kiv_Tail tail : {Kiv_LowerTail, Kiv_UpperTail, Kiv_TwoTailSignif}) {
        fail = kiv::test::quiet_record();
        EXPECT_TRUE(std::isfinite(g01fac(tail, kBelowOne, &fail)));
        EXPECT_EQ(fail.code, NE_NOERROR);
    }
}

TEST(NormalDeviate, RelationsBetweenTails) {
    for (double p : kiv::oracle::dense_grid(1e-6, 1 - 1e-6, 2000)) {
        const double lower = g01fac(Kiv_LowerTail, p, nullptr);
        ASSERT_EQ(lower, g01cec(p, nullptr));
        ASSERT_EQ(g01fac(Kiv_UpperTail, p, nullptr), -lower);
        ASSERT_EQ(g01fac(Kiv_TwoTailSignif, p, nullptr), -g01cec(p / 2, nullptr));
        ASSERT_EQ(g01fac(Kiv_TwoTailConfid, p, nullptr), g01cec((p + 1) / 2, nullptr));
        ASSERT_GE(g01fac(Kiv_TwoTailConfid, p, nullptr), 0.0);
        ASSERT_GE(g01fac(Kiv_TwoTailSignif, p, nullptr), 0.0);
        // Round trip through the tail probability.
        ASSERT_NEAR(g01eac(Kiv_LowerTail, lower, nullptr), p, 1e-11 * p + 1e-15);
    }
}

TEST(NormalDeviate, BatchMatchesScalarBitForBit) {
    std::vector<double> p = {0.5,  0.8,       0.08, 0.3, 0.2, 1e-300, 0x1.0p-1074,
                             1e-6, kBelowOne, 0.92, 0.7, 0.0, 1.0,    kNaN};
    std::mt19937_64 engine(9);
    std::uniform_real_distribution<double> uniform(0.0, 1.0), exponent(-300.0, 0.0);
    for (int i = 0; i < 20000; ++i)
        p.push_back(i % 2 ? uniform(engine) : std::pow(10.0, exponent(engine)));
    for (Kiv_Tail tail : kTails) {
        std::vector<double> out(p.size());
        KivError fail = kiv::test::quiet_record();
        g01fac_v(tail, static_cast<int>(p.size()), p.data(), out.data(), &fail);
        for (std::size_t i = 0; i < p.size(); ++i)
            ASSERT_TRUE(kiv::test::same_bits(out[i], g01fac(tail, p[i], &fail)))
                << tail << " " << p[i];
    }
    // The first failing element is reported with its index; all are computed.
    const double some[] = {0.25, 0.75, kBelowOne, -2.0, 0.5};
    double out[5];
    KivError fail = kiv::test::quiet_record();
    g01fac_v(Kiv_TwoTailConfid, 5, some, out, &fail);
    EXPECT_STREQ(fail.message,
                 "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function at "
                 "p[2].\n  Check the function call and any array sizes. If the call is "
                 "correct\n  then please consult KIV for assistance.");
    EXPECT_EQ(out[2], 0.0);
    EXPECT_EQ(out[3], 0.0);
    EXPECT_EQ(out[1], g01fac(Kiv_TwoTailConfid, 0.75, nullptr));
    const double one[] = {0.5, 1.0};
    struct Case {
        Kiv_Tail tail;
        int n;
        const double *p;
        std::string message;
    } const cases[] = {
        {Kiv_LowerTail, 5, some, kiv::test::at_most_zero_message("p[3]", "-2")},
        {Kiv_LowerTail, 2, one, kiv::test::at_least_one_message("p[1]", "1")},
        {Kiv_LowerTail, -3, one, "NE_INT:\n  On entry, n = -3.\n  Constraint: n >= 0."},
        {Kiv_LowerTail, 2, nullptr, "NE_BAD_PARAM:\n  On entry, parameter p had an illegal value."},
        {static_cast<Kiv_Tail>(1334), 2, one, kiv::test::kBadTailMessage},
    };
    for (const Case &c : cases) {
        fail = kiv::test::quiet_record();
        g01fac_v(c.tail, c.n, c.p, out, &fail);
        EXPECT_EQ(fail.message, c.message);
    }
    EXPECT_EQ(out[0], 0.0);
}

}  // namespace
