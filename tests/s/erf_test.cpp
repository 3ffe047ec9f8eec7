// Error function and normal integrals: accuracy against MPFR, values known
// to full precision, the saturation thresholds and NaN, identities, and the
// batch forms' agreement with the scalar routines.
#include "s/erf.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <vector>

#include "g01/normal_test_support.hpp"
#include "kernels/exp_log_oracle.hpp"
#include "kiv.h"

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

#if KIV_HAVE_MPFR
using kiv::oracle::Real;

void exact_erfc(Real &r, double x) {
    mpfr_erfc(r.get(), Real(x).get(), MPFR_RNDN);
}
void exact_erf(Real &r, double x) {
    mpfr_erf(r.get(), Real(x).get(), MPFR_RNDN);
}
void exact_upper_tail(Real &r, double x) {
    kiv::oracle::normal_lower_tail(r, -x);
}

TEST(ErrorFunctions, RelativeErrorAgainstMpfr) {
    struct Case {
        const char *name;
        double (*routine)(double);
        void (*reference)(Real &, double);
        double low, high;
        double bound;  // measured maximum, rounded up
    };
    // The series of erfc is a fit good to about 3e-15 relative for large x;
    // the normal integrals add the rounding of x/sqrt 2, which costs up to
    // x^2 2^-53 relatively (1.5e-13 at x = 37.5).
    const Case cases[] = {
        {"s15adc", s15adc, exact_erfc, -6.25, 26.5, 5e-15},
        {"s15aec", s15aec, exact_erf, -6.25, 6.25, 1e-15},
        {"s15abc", s15abc, kiv::oracle::normal_lower_tail, -37.5, 37.5, 2.5e-13},
        {"s15acc", s15acc, exact_upper_tail, -37.5, 37.5, 2.5e-13},
    };
    for (const Case &c : cases) {
        kiv::oracle::Worst worst;
        Real exact;
        for (double x : kiv::oracle::dense_grid(c.low, c.high, 1500)) {
            c.reference(exact, x);
            if (mpfr_zero_p(exact.get())) continue;
            worst.update(kiv::oracle::relative_error(c.routine(x), exact), x);
        }
        std::printf("[ measured ] %s: relative error %.3g at %.17g\n", c.name, worst.error,
                    worst.at);
        EXPECT_LT(worst.error, c.bound) << c.name << " at " << worst.at;
    }
}
#endif  // KIV_HAVE_MPFR

TEST(ErrorFunctions, ValuesAndThresholds) {
    struct Case {
        const char *what;
        double computed;
        double expected;
        double ulps;  // 0: the exact bits
    };
    const Case cases[] = {
        {"erfc(0)", s15adc(0.0), 1.0, 0},
        {"erfc(1)", s15adc(1.0), 0.15729920705028513, 2},
        {"erfc(-1)", s15adc(-1.0), 1.842700792949715, 1},
        {"erfc(26.6) saturates", s15adc(26.6), 0.0, 0},
        {"erfc(inf)", s15adc(kInf), 0.0, 0},
        {"erfc(-6.25) saturates", s15adc(-6.25), 2.0, 0},
        {"erfc(-inf)", s15adc(-kInf), 2.0, 0},
        {"erfc(NaN) takes the x <= -6.25 branch", s15adc(kNaN), 2.0, 0},
        {"erf(0)", s15aec(0.0), 0.0, 0},
        {"erf(6.25)", s15aec(6.25), 1.0, 0},
        {"erf(-6.25)", s15aec(-6.25), -1.0, 0},
        {"erf(inf)", s15aec(kInf), 1.0, 0},
        {"erf(-inf)", s15aec(-kInf), -1.0, 0},
        {"P(0)", s15abc(0.0), 0.5, 0},
        {"Q(0)", s15acc(0.0), 0.5, 0},
        {"Q(-8.84) = 1: c x <= -6.25", s15acc(-8.84), 1.0, 0},
        {"Q(37.62) = 0: c x >= 26.6", s15acc(37.62), 0.0, 0},
        {"P(-37.62) = 0", s15abc(-37.62), 0.0, 0},
    };
    for (const Case &c : cases) {
        if (c.ulps == 0) {
            EXPECT_EQ(c.computed, c.expected) << c.what;
        } else {
            const double ulp = std::nextafter(c.expected, kInf) - c.expected;
            EXPECT_NEAR(c.computed, c.expected, c.ulps * ulp) << c.what;
        }
    }
    // erfc(26.5) is tiny but not zero; the true erfc(26.6) ~ 1.1e-309 is not
    // returned.
    EXPECT_NEAR(s15adc(26.5), 2.2109e-307, 1e-310);
    EXPECT_TRUE(std::isnan(s15aec(kNaN)));
    // The two multipliers differ: 1/sqrt 2 rounded to nearest (normal
    // integrals) and rounded up (g01eac) give different bits somewhere.
    int differing = 0;
    for (double x = -30.0; x < 30.0; x += 0.01)
        differing += s15abc(x) != g01eac(Kiv_LowerTail, x, nullptr);
    EXPECT_GT(differing, 0);
}

TEST(ErrorFunctions, Identities) {
    for (double x : kiv::oracle::dense_grid(-7.0, 7.0, 3000)) {
        ASSERT_EQ(s15aec(-x), -s15aec(x)) << x;
        ASSERT_EQ(s15abc(x), s15acc(-x)) << x;
        if (std::fabs(x) < 5.0) {
            ASSERT_NEAR(s15abc(x) + s15acc(x), 1.0, 4e-16) << x;
        }
    }
    // erf is continuous across the change of series at |x| = 2.
    EXPECT_NEAR(s15aec(2.0), s15aec(std::nextafter(2.0, 3.0)), 1e-15);
}

// Every lane set, every length modulo 16, the same bits as the scalar
// routines over every region, threshold and non-finite value.
TEST(ErrorFunctions, BatchMatchesScalarBitForBit) {
    std::vector<double> x = {0.0,  -0.0, 1.0,   -1.0, 2.0,   -2.0, 6.25,   -6.25,  26.5, 26.6,
                             -6.2, 37.6, -8.84, kInf, -kInf, kNaN, 1e-300, 5e-324, 3.75};
    std::mt19937_64 engine(3);
    std::uniform_real_distribution<double> uniform(-40.0, 40.0);
    for (int i = 0; i < 30000; ++i) x.push_back(uniform(engine));
    const double c = 0x1.6a09e667f3bcdp-1;
    for (kiv::kernels::LaneSet lanes : kiv::test::lane_sets()) {
        for (int n : {static_cast<int>(x.size()), 1, 2, 3, 5, 7, 9, 12, 15, 16, 21, 35}) {
            std::vector<double> erfc_out(n), lower(n), erf_out(n);
            kiv::special::erfc_scaled(lanes, n, x.data(), 1.0, false, 1.0, erfc_out.data());
            kiv::special::erfc_scaled(lanes, n, x.data(), -c, false, 0.5, lower.data());
            kiv::special::erf_scaled(lanes, n, x.data(), c, erf_out.data());
            for (int i = 0; i < n; ++i) {
                ASSERT_TRUE(kiv::test::same_bits(erfc_out[i], s15adc(x[i]))) << x[i];
                ASSERT_TRUE(kiv::test::same_bits(lower[i], s15adc(x[i] * -c) * 0.5)) << x[i];
                ASSERT_TRUE(kiv::test::same_bits(erf_out[i], s15aec(std::fabs(x[i]) * c))) << x[i];
            }
        }
    }
    // The public form, in place; nothing happens for n <= 0 or null arrays.
    std::vector<double> values = x;
    s15adc_v(static_cast<int>(values.size()), values.data(), values.data());
    for (std::size_t i = 0; i < x.size(); ++i) ASSERT_EQ(values[i], s15adc(x[i]));
    double untouched = 7.0;
    s15adc_v(0, x.data(), &untouched);
    s15adc_v(-1, x.data(), &untouched);
    s15adc_v(1, nullptr, &untouched);
    s15adc_v(1, x.data(), nullptr);
    EXPECT_EQ(untouched, 7.0);
}

}  // namespace
