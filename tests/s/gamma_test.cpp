// s14aac (Gamma) and s14abc (ln |Gamma|) against MPFR at 200 bits, and their
// error paths.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <cmath>
#include <random>
#include <string>

#include "kiv.h"
#include "support/support.hpp"

namespace {

using kiv::test_support::ulps_between;

double mpfr_reference(double x, bool logarithm) {
    mpfr_t arg, value;
    mpfr_inits2(200, arg, value, static_cast<mpfr_ptr>(nullptr));
    mpfr_set_d(arg, x, MPFR_RNDN);
    int sign = 0;
    if (logarithm)
        mpfr_lgamma(value, &sign, arg, MPFR_RNDN);
    else
        mpfr_gamma(value, arg, MPFR_RNDN);
    const double result = mpfr_get_d(value, MPFR_RNDN);
    mpfr_clears(arg, value, static_cast<mpfr_ptr>(nullptr));
    return result;
}

struct Region {
    double low, high;
    double gamma_ulps, log_ulps;  // bounds; log bound < 0: absolute test instead
};

// Random points per region, log-uniform where the region spans decades.
TEST(Gamma, AgreesWithMpfrRegionByRegion) {
    const Region regions[] = {
        {1e-300, 1e-10, 2, 2}, {1e-10, 0.5, 2, 2},   {0.5, 2.5, 2, 4},
        {2.5, 10.0, 2, 3},     {10.0, 171.6, 2, 2},  {171.7, 1e300, 0, 2},
        {-0.5, -1e-10, 2, 2},  {-10.0, -0.5, 3, -1}, {-183.0, -10.0, 2, -1},
    };
    std::mt19937_64 engine(20240611);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (const Region &r : regions) {
        const bool logspaced = r.low * r.high > 0 && r.high / r.low > 100;
        double worst_gamma = 0.0, worst_log = 0.0;
        for (int i = 0; i < 600; ++i) {
            const double u = unit(engine);
            const double x = logspaced ? std::copysign(std::exp(std::log(std::fabs(r.low)) +
                                                                u * std::log(r.high / r.low)),
                                                       r.low)
                                       : r.low + u * (r.high - r.low);
            KivError fail{};
            const double gamma = s14aac(x, &fail);
            if (r.gamma_ulps > 0 && fail.code == 0)
                worst_gamma = std::max(worst_gamma, ulps_between(gamma, mpfr_reference(x, false)));
            const double log_gamma = s14abc(x, &fail);
            ASSERT_EQ(fail.code, 0) << x;
            const double reference = mpfr_reference(x, true);
            if (r.log_ulps > 0) {
                worst_log = std::max(worst_log, ulps_between(log_gamma, reference));
            } else {  // near the roots of ln|Gamma| only an absolute bound holds
                EXPECT_LE(std::fabs(log_gamma - reference),
                          4e-16 * std::max(1.0, std::fabs(reference)))
                    << x;
            }
        }
        EXPECT_LE(worst_gamma, r.gamma_ulps) << "Gamma on [" << r.low << ", " << r.high << "]";
        EXPECT_LE(worst_log, std::max(0.0, r.log_ulps))
            << "ln Gamma on [" << r.low << ", " << r.high << "]";
    }
}

TEST(Gamma, ExactValuesAtIntegersAndHalfIntegers) {
    double factorial = 1.0;
    for (int n = 1; n <= 23; ++n) {  // (n-1)! is exact in double up to 22!
        KivError fail{};
        EXPECT_EQ(s14aac(n, &fail), factorial) << n;
        EXPECT_EQ(s14abc(n <= 2 ? n : 1, &fail), 0.0);
        factorial *= n;
    }
    KivError fail{};
    EXPECT_NEAR(s14aac(0.5, &fail), std::sqrt(M_PI), 4.5e-16);
    EXPECT_NEAR(s14aac(-0.5, &fail), -2.0 * std::sqrt(M_PI), 9e-16);
}

struct Fault {
    double x;
    int gamma_code;
    int log_code;
    double gamma_result;  // NaN: expect NaN
    const char *gamma_message;
};

TEST(Gamma, FaultsAreReportedWithTheirCodesAndResults) {
    const double largest = x02alc();
    const Fault faults[] = {
        {std::nan(""), NE_REAL, NE_REAL, std::nan(""),
         "NE_REAL:\n  On entry, x = nan.\n  Constraint: x must be finite."},
        {-HUGE_VAL, NE_REAL, NE_REAL, std::nan(""), nullptr},
        {HUGE_VAL, NE_OVERFLOW_LIKELY, NE_OVERFLOW_LIKELY, largest,
         "NE_OVERFLOW_LIKELY:\n  On entry, x = inf.\n  The result would overflow."},
        {0.0, NE_REAL_ARG_NEG_INT, NE_REAL_ARG_NEG_INT, 0.0,
         "NE_REAL_ARG_NEG_INT:\n  On entry, x = 0.\n  Constraint: x must not be zero or a "
         "negative integer."},
        {-3.0, NE_REAL_ARG_NEG_INT, NE_REAL_ARG_NEG_INT, 0.0, nullptr},
        {-0x1p53 - 2, NE_REAL_ARG_NEG_INT, NE_REAL_ARG_NEG_INT, 0.0, nullptr},
        {171.7, NE_OVERFLOW_LIKELY, 0, largest, nullptr},
        {1e-309, NE_REAL_ARG_TOO_SMALL, 0, largest,
         "NE_REAL_ARG_TOO_SMALL:\n  On entry, x = 1e-309.\n  Constraint: |x| > 1/x02alc()."},
        {-1e-309, NE_REAL_ARG_TOO_SMALL, 0, -largest, nullptr},
        {-190.5, NE_UNDERFLOW_LIKELY, 0, 0.0,
         "NE_UNDERFLOW_LIKELY:\n  On entry, x = -190.5.\n  The result would underflow."},
        {3e305, NE_OVERFLOW_LIKELY, NE_OVERFLOW_LIKELY, largest, nullptr},
    };
    for (const Fault &f : faults) {
        KivError fail{};
        const double gamma = s14aac(f.x, &fail);
        EXPECT_EQ(fail.code, f.gamma_code) << f.x;
        if (std::isnan(f.gamma_result))
            EXPECT_TRUE(std::isnan(gamma)) << f.x;
        else
            EXPECT_EQ(gamma, f.gamma_result) << f.x;
        if (f.gamma_message != nullptr) {
            EXPECT_STREQ(fail.message, f.gamma_message);
        }
        KivError log_fail{};
        s14abc(f.x, &log_fail);
        EXPECT_EQ(log_fail.code, f.log_code) << f.x;
    }
}

}  // namespace
