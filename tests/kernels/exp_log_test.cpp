// The exponential and logarithm kernels against MPFR: error in ulps over
// dense grids, and special values. (Lanes agree with the scalar kernels bit
// for bit: see the batch tests of the error function and the deviate.)
#include "kernels/exp_log.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "kernels/exp_log_oracle.hpp"

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

#if KIV_HAVE_MPFR
using kiv::oracle::Real;
using kiv::oracle::Worst;

// Worst ulp error of `computed` against `reference` over `points`.
template <class Computed, class Reference>
Worst worst_ulps(const std::vector<double> &points, Computed computed, Reference reference) {
    Worst worst;
    Real exact;
    for (double x : points) {
        reference(exact, x);
        worst.update(kiv::oracle::ulp_error(computed(x), exact), x);
    }
    return worst;
}

TEST(ExpLogKernels, WithinOneUlpOfMpfr) {
    struct Case {
        const char *name;
        std::vector<double> points;
        double (*computed)(double);
        void (*reference)(Real &, double);
        double bound_ulps;  // measured maximum, rounded up
    };
    std::vector<double> log_points;
    std::mt19937_64 engine(7);
    std::uniform_real_distribution<double> log2_uniform(-1074.0, 1024.0);
    for (int i = 0; i < 20000; ++i) log_points.push_back(std::exp2(log2_uniform(engine)));
    for (double x : kiv::oracle::dense_grid(0.5, 2.0, 10000)) log_points.push_back(x);
    const Case cases[] = {
        // exp: results normal, x from -708.39 to the overflow threshold
        {"exp", kiv::oracle::dense_grid(-708.39, 709.78, 20000),
         [](double x) { return kiv::kernels::exp(x); },
         [](Real &r, double x) { mpfr_exp(r.get(), Real(x).get(), MPFR_RNDN); }, 0.9},
        {"exp near 0", kiv::oracle::dense_grid(-1.0, 1.0, 10000),
         [](double x) { return kiv::kernels::exp(x); },
         [](Real &r, double x) { mpfr_exp(r.get(), Real(x).get(), MPFR_RNDN); }, 0.9},
        // e^(-x^2) with x^2 exact, over the range erfc uses
        {"exp_neg_square", kiv::oracle::dense_grid(0.0, 26.6, 20000),
         [](double x) { return kiv::kernels::exp_neg_square(x); },
         [](Real &r, double x) {
             mpfr_sqr(r.get(), Real(x).get(), MPFR_RNDN);
             mpfr_neg(r.get(), r.get(), MPFR_RNDN);
             mpfr_exp(r.get(), r.get(), MPFR_RNDN);
         },
         0.9},
        {"log", log_points, [](double x) { return kiv::kernels::log(x); },
         [](Real &r, double x) { mpfr_log(r.get(), Real(x).get(), MPFR_RNDN); }, 0.85},
    };
    for (const Case &c : cases) {
        const Worst worst = worst_ulps(c.points, c.computed, c.reference);
        EXPECT_LT(worst.error, c.bound_ulps) << c.name << " at " << worst.at;
        std::printf("[ measured ] %s: %.3f ulp at %.17g\n", c.name, worst.error, worst.at);
    }
}
#endif  // KIV_HAVE_MPFR

TEST(ExpLogKernels, SpecialValues) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Case {
        const char *what;
        double computed, expected;
    } const cases[] = {
        {"exp(0)", kiv::kernels::exp(0.0), 1.0},
        {"exp(-0)", kiv::kernels::exp(-0.0), 1.0},
        {"exp(inf)", kiv::kernels::exp(kInf), kInf},
        {"exp(-inf)", kiv::kernels::exp(-kInf), 0.0},
        {"exp overflows", kiv::kernels::exp(709.79), kInf},
        {"exp underflows", kiv::kernels::exp(-745.14), 0.0},
        {"log(1)", kiv::kernels::log(1.0), 0.0},
        {"log(0)", kiv::kernels::log(0.0), -kInf},
        {"log(-0)", kiv::kernels::log(-0.0), -kInf},
        {"log(inf)", kiv::kernels::log(kInf), kInf},
    };
    for (const Case &c : cases) EXPECT_EQ(c.computed, c.expected) << c.what;
    for (double x : {nan, -1.0, -kInf}) EXPECT_TRUE(std::isnan(kiv::kernels::log(x))) << x;
    EXPECT_TRUE(std::isnan(kiv::kernels::exp(nan)));
    EXPECT_TRUE(std::isfinite(kiv::kernels::exp(709.78)));
#if KIV_HAVE_MPFR
    // Subnormal results within one subnormal ulp; log of the smallest
    // subnormal (-1074 ln 2) correctly rounded.
    Real exact;
    for (double x : {-709.0, -720.0, -740.0, -745.0}) {
        mpfr_exp(exact.get(), Real(x).get(), MPFR_RNDN);
        EXPECT_LE(kiv::oracle::ulp_error(kiv::kernels::exp(x), exact), 1.0) << x;
    }
    mpfr_log(exact.get(), Real(0x1.0p-1074).get(), MPFR_RNDN);
    EXPECT_LE(kiv::oracle::ulp_error(kiv::kernels::log(0x1.0p-1074), exact), 0.5);
#endif
}

}  // namespace
