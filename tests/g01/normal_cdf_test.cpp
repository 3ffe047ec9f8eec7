// g01eac and g01eac_v: each tail against MPFR, exact values, bad tails,
// the success report, and the batch form's agreement with the scalar one.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "g01/normal_common.hpp"
#include "g01/normal_test_support.hpp"
#include "kernels/exp_log_oracle.hpp"
#include "kiv.h"
#include "runtime/code_table.hpp"
#include "runtime/report.hpp"
#include "runtime/testing.hpp"

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr Kiv_Tail kTails[] = {Kiv_LowerTail, Kiv_UpperTail, Kiv_TwoTailSignif, Kiv_TwoTailConfid};

#if KIV_HAVE_MPFR
using kiv::oracle::Real;

TEST(NormalTailProbability, EachTailAgainstMpfr) {
    // One reference Phi(-|x|) per point serves every tail.
    kiv::oracle::Worst worst[4];
    Real small_tail, reference;
    for (double x : kiv::oracle::dense_grid(-37.5, 37.5, 1500)) {
        kiv::oracle::normal_lower_tail(small_tail, -std::fabs(x));
        for (int t = 0; t < 4; ++t) {
            mpfr_set(reference.get(), small_tail.get(), MPFR_RNDN);
            const bool small_side = (kTails[t] == Kiv_LowerTail) == (x < 0);
            if (kTails[t] == Kiv_TwoTailSignif || kTails[t] == Kiv_TwoTailConfid)
                mpfr_mul_2ui(reference.get(), reference.get(), 1, MPFR_RNDN);
            if (kTails[t] == Kiv_TwoTailConfid || (!small_side && kTails[t] != Kiv_TwoTailSignif))
                mpfr_ui_sub(reference.get(), 1, reference.get(), MPFR_RNDN);
            if (mpfr_zero_p(reference.get()) || mpfr_get_d(reference.get(), MPFR_RNDN) < 1e-300)
                continue;
            worst[t].update(kiv::oracle::relative_error(g01eac(kTails[t], x, nullptr), reference),
                            x);
        }
    }
    // The rounding of x/sqrt 2 costs up to x^2 2^-53 relatively in the far
    // tails; the erfc series' fit error is about 3e-15.
    const double bounds[4] = {2.5e-13, 2.5e-13, 2.5e-13, 1e-15};
    for (int t = 0; t < 4; ++t) {
        std::printf("[ measured ] g01eac %s: relative error %.3g at %.17g\n",
                    kiv::rt::enum_member_name(kTails[t]), worst[t].error, worst[t].at);
        EXPECT_LT(worst[t].error, bounds[t]) << kTails[t];
    }
}
#endif  // KIV_HAVE_MPFR

TEST(NormalTailProbability, ExactValues) {
    struct Case {
        Kiv_Tail tail;
        double x;
        double expected;
    } const cases[] = {
        {Kiv_LowerTail, 0.0, 0.5},
        {Kiv_UpperTail, 0.0, 0.5},
        {Kiv_TwoTailConfid, 0.0, 0.0},
        {Kiv_TwoTailSignif, 0.0, 1.0},
        {Kiv_LowerTail, -kInf, 0.0},
        {Kiv_LowerTail, kInf, 1.0},
        {Kiv_UpperTail, kInf, 0.0},
        {Kiv_TwoTailSignif, -kInf, 0.0},
        {Kiv_TwoTailConfid, kInf, 1.0},
        {Kiv_TwoTailConfid, -kInf, 1.0},
        // NaN goes to the error functions: erfc(NaN) = 2.
        {Kiv_LowerTail, kNaN, 1.0},
        {Kiv_UpperTail, kNaN, 1.0},
        {Kiv_TwoTailSignif, kNaN, 2.0},
    };
    for (const Case &c : cases) {
        KivError fail = kiv::test::quiet_record();
        EXPECT_EQ(g01eac(c.tail, c.x, &fail), c.expected) << c.tail << " " << c.x;
        EXPECT_EQ(fail.code, NE_NOERROR);
    }
    EXPECT_TRUE(std::isnan(g01eac(Kiv_TwoTailConfid, kNaN, nullptr)));
    EXPECT_NEAR(g01eac(Kiv_LowerTail, 1.96, nullptr), 0.97500210485177952, 2e-16);
    for (double x : kiv::oracle::dense_grid(-10.0, 10.0, 500))
        ASSERT_EQ(g01eac(Kiv_TwoTailSignif, -x, nullptr), g01eac(Kiv_TwoTailSignif, x, nullptr));
}

std::vector<std::string> handler_log;
void log_handler(const char *message, int code, const char *routine) {
    handler_log.push_back(std::string(routine) + "|" + std::to_string(code) + "|" + message);
}

TEST(NormalTailProbability, SuccessReportFillsTheRecordAsTheReporterDoes) {
    EXPECT_STREQ(kiv::rt::kNoErrorText, kiv::rt::code_template(NE_NOERROR));
    KivError fail = kiv::test::quiet_record();
    std::memset(fail.message, 'x', sizeof fail.message);
    g01eac(Kiv_LowerTail, 1.0, &fail);
    EXPECT_EQ(fail.code, NE_NOERROR);
    EXPECT_STREQ(fail.message, "NE_NOERROR:\n  No error.");
    handler_log.clear();
    fail.handler = log_handler;
    g01eac(Kiv_UpperTail, 1.0, &fail);
    ASSERT_EQ(handler_log.size(), 1u);
    EXPECT_EQ(handler_log[0], "g01eac|0|NE_NOERROR:\n  No error.");
    // A refused licence writes nothing.
    KivError untouched = kiv::test::quiet_record();
    kiv::rt::testing::set_licence_refusal(true);
    EXPECT_EQ(g01eac(Kiv_LowerTail, 1.0, &untouched), 0.0);
    double out = 7.0;
    g01eac_v(Kiv_LowerTail, 1, &out, &out, &untouched);
    kiv::rt::testing::set_licence_refusal(false);
    EXPECT_EQ(untouched.code, -99);
    EXPECT_EQ(out, 7.0);
}

TEST(NormalTailProbability, BatchMatchesScalarBitForBit) {
    std::vector<double> x = {0.0, -0.0, kInf, -kInf, kNaN, 8.84, -8.84, 37.62, -37.62, 1e-300};
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> uniform(-40.0, 40.0);
    for (int i = 0; i < 20000; ++i) x.push_back(uniform(engine));
    for (Kiv_Tail tail : kTails) {
        for (int n : {static_cast<int>(x.size()), 0, 1, 6, 11}) {
            std::vector<double> out(n + 1, 7.0);
            KivError fail = kiv::test::quiet_record();
            g01eac_v(tail, n, x.data(), out.data(), &fail);
            EXPECT_EQ(fail.code, NE_NOERROR);
            for (int i = 0; i < n; ++i)
                ASSERT_TRUE(kiv::test::same_bits(out[i], g01eac(tail, x[i], nullptr)))
                    << tail << " " << x[i];
            EXPECT_EQ(out[n], 7.0);
        }
    }
}

TEST(NormalTailProbability, BadTailAndBatchChecks) {
    double x[3] = {1.0, 2.0, 3.0}, out[3] = {7.0, 7.0, 7.0};
    struct Case {
        Kiv_Tail tail;
        int n;
        const double *x;
        double *out;
        int code;
        const char *message;
    } const cases[] = {
        {Kiv_LowerTail, -1, x, out, NE_INT, "NE_INT:\n  On entry, n = -1.\n  Constraint: n >= 0."},
        {Kiv_LowerTail, 3, nullptr, out, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter x had an illegal value."},
        {Kiv_LowerTail, 3, x, nullptr, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter out had an illegal value."},
        {static_cast<Kiv_Tail>(1333), -1, x, out, NE_INT,
         "NE_INT:\n  On entry, n = -1.\n  Constraint: n >= 0."},
        {Kiv_LowerTail, 0, nullptr, nullptr, NE_NOERROR, "NE_NOERROR:\n  No error."},
    };
    for (const Case &c : cases) {
        KivError fail = kiv::test::quiet_record();
        g01eac_v(c.tail, c.n, c.x, c.out, &fail);
        EXPECT_EQ(fail.code, c.code);
        EXPECT_STREQ(fail.message, c.message);
        EXPECT_EQ(out[0], 7.0);
    }
    // An invalid tail: result 0 and the same report, scalar and batch.
    for (int tail : kiv::test::kInvalidTails) {
        KivError fail = kiv::test::quiet_record();
        EXPECT_EQ(g01eac(static_cast<Kiv_Tail>(tail), 1.0, &fail), 0.0) << tail;
        EXPECT_EQ(fail.code, NE_BAD_PARAM);
        EXPECT_STREQ(fail.message, kiv::test::kBadTailMessage);
        fail = kiv::test::quiet_record();
        g01eac_v(static_cast<Kiv_Tail>(tail), 3, x, out, &fail);
        EXPECT_EQ(fail.code, NE_BAD_PARAM);
        EXPECT_STREQ(fail.message, kiv::test::kBadTailMessage);
        EXPECT_EQ(out[0], 0.0);
        EXPECT_EQ(out[2], 0.0);
    }
}

}  // namespace
