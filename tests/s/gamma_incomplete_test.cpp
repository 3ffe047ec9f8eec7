// s14bac against MPFR: P by its power series at 192 bits (exact in effect,
// every term positive), Q by mpfr_gamma_inc; identities; error paths.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "kiv.h"

namespace {

// P(a, x) (lower) or Q(a, x) (upper) to 128 correct bits: Q as
// Gamma(a, x) / Gamma(a); P as x^a e^-x / Gamma(a + 1) times the series
// sum_n x^n / ((a + 1)...(a + n)), every term positive.
double reference(double a, double x, bool upper) {
    mpfr_t av, xv, value, term, sum, work;
    mpfr_inits2(192, av, xv, value, term, sum, work, static_cast<mpfr_ptr>(nullptr));
    mpfr_set_d(av, a, MPFR_RNDN);
    mpfr_set_d(xv, x, MPFR_RNDN);
    if (upper) {
        mpfr_gamma_inc(value, av, xv, MPFR_RNDN);
        mpfr_gamma(work, av, MPFR_RNDN);
        mpfr_div(value, value, work, MPFR_RNDN);
    } else {
        mpfr_set_ui(term, 1, MPFR_RNDN);
        mpfr_set_ui(sum, 1, MPFR_RNDN);
        for (long n = 1; mpfr_get_exp(term) > mpfr_get_exp(sum) - 140; ++n) {
            mpfr_add_si(work, av, n, MPFR_RNDN);
            mpfr_mul(term, term, xv, MPFR_RNDN);
            mpfr_div(term, term, work, MPFR_RNDN);
            mpfr_add(sum, sum, term, MPFR_RNDN);
        }
        mpfr_log(value, xv, MPFR_RNDN);
        mpfr_mul(value, value, av, MPFR_RNDN);
        mpfr_sub(value, value, xv, MPFR_RNDN);
        mpfr_add_ui(work, av, 1, MPFR_RNDN);
        mpfr_lngamma(work, work, MPFR_RNDN);
        mpfr_sub(value, value, work, MPFR_RNDN);
        mpfr_exp(value, value, MPFR_RNDN);
        mpfr_mul(value, value, sum, MPFR_RNDN);
    }
    const double result = mpfr_get_d(value, MPFR_RNDN);
    mpfr_clears(av, xv, value, term, sum, work, static_cast<mpfr_ptr>(nullptr));
    return result;
}

// a log-spaced over [1e-3, 1e5]; x = 0, log-spaced over [1e-4, 1e5], and
// points x = a (1 + k / (2 sqrt a)) about the transition; tol = 0 (bound 1e-13)
// and tol = 5e-06 (bound tol) against one reference per point. Points whose
// smaller tail is below e^-700 only have to be below 1e-290 (MPFR is slow there).
TEST(IncompleteGamma, RelativeErrorOfTheSmallerTailOnTheGrid) {
    const double tolerances[] = {0.0, 5e-6}, bounds[] = {1e-13, 5e-6};
    double worst[2] = {}, worst_a[2] = {}, worst_x[2] = {};
    int compared = 0;
    for (int i = 0; i <= 40; ++i) {
        const double a = std::pow(10.0, -3.0 + 8.0 * i / 40);
        std::vector<double> xs{0.0};
        for (int j = 0; j <= 44; ++j) xs.push_back(std::pow(10.0, -4.0 + 9.0 * j / 44));
        for (int k = -6; k <= 6; ++k)
            xs.push_back(a * (1.0 + 0.5 * k / std::sqrt(std::max(a, 1.0))));
        for (const double x : xs) {
            if (x < 0.0) continue;
            const double lambda = x / a;
            const bool underflows = x > 0.0 && a * (lambda - 1.0 - std::log(lambda)) > 700.0;
            double expected = 0.0;
            for (int t = 0; t < 2; ++t) {
                double p = -1.0, q = -1.0;
                KivError fail{};
                s14bac(a, x, tolerances[t], &p, &q, &fail);
                ASSERT_EQ(fail.code, 0) << a << " " << x;
                EXPECT_NEAR(p + q, 1.0, 2.3e-16) << a << " " << x;
                const double small = std::min(p, q);
                if (underflows) {
                    EXPECT_LT(small, 1e-290) << a << " " << x;
                    continue;
                }
                if (t == 0) expected = reference(a, x, q < p), ++compared;
                const double error = expected == 0.0 ? small : std::fabs(small / expected - 1.0);
                if (error > worst[t]) worst[t] = error, worst_a[t] = a, worst_x[t] = x;
            }
        }
    }
    EXPECT_GT(compared, 1000);
    for (int t = 0; t < 2; ++t) {
        std::printf("s14bac tol = %g: worst relative error %.3g at a = %.17g, x = %.17g\n",
                    tolerances[t], worst[t], worst_a[t], worst_x[t]);
        EXPECT_LE(worst[t], bounds[t]) << "tol " << tolerances[t];
    }
}

// Closed forms Q(1, x) = e^-x, Q(2, x) = (1 + x) e^-x, Q(1/2, x) = erfc(sqrt x)
// (erfc only to x = 10: beyond, erfc(sqrt x) itself loses 2x ulps), and the
// edges of the domain, exactly.
TEST(IncompleteGamma, ClosedFormsAndEdges) {
    for (double x : {1e-8, 0.3, 1.0, 2.5, 10.0, 40.0, 300.0}) {
        const double closed[][2] = {{1.0, std::exp(-x)},
                                    {2.0, (1.0 + x) * std::exp(-x)},
                                    {0.5, x > 10.0 ? 0.0 : std::erfc(std::sqrt(x))}};
        for (const auto &c : closed) {
            if (c[1] == 0.0) continue;
            double p = 0.0, q = 0.0;
            KivError fail{};
            s14bac(c[0], x, 0.0, &p, &q, &fail);
            EXPECT_NEAR(q / c[1], 1.0, 1e-14) << c[0] << " " << x;
        }
    }
    const double edges[][4] = {
        // a, x, P, Q
        {2.0, 0.0, 0.0, 1.0},      {1e-300, 0.0, 0.0, 1.0}, {3.0, HUGE_VAL, 1.0, 0.0},
        {HUGE_VAL, 5.0, 0.0, 1.0}, {1e300, 1.0, 0.0, 1.0},  {1.0, 1e300, 1.0, 0.0},
        {1e-300, 1e300, 1.0, 0.0},
    };
    for (const auto &e : edges) {
        double p = -1.0, q = -1.0;
        KivError fail{};
        s14bac(e[0], e[1], 0.0, &p, &q, &fail);
        EXPECT_EQ(fail.code, 0);
        EXPECT_EQ(p, e[2]) << e[0] << " " << e[1];
        EXPECT_EQ(q, e[3]) << e[0] << " " << e[1];
    }
    double p = 0.0, q = 0.0;  // a = x = 1e300: the median is a - 1/3 + ...
    KivError fail{};
    s14bac(1e300, 1e300, 0.0, &p, &q, &fail);
    EXPECT_EQ(fail.code, 0);
    EXPECT_NEAR(q, 0.5, 1e-15);
}

struct Fault {
    double a, x;
    int code;
    const char *message;
};

TEST(IncompleteGamma, FaultsLeaveTheResultsUntouched) {
    const Fault faults[] = {
        {0.0, 1.0, NE_REAL_ARG_LE,
         "NE_REAL_ARG_LE:\n  On entry, a must not be less than or equal to 0.0: a = 0."},
        {std::nan(""), 1.0, NE_REAL_ARG_LE, nullptr},
        {-HUGE_VAL, 1.0, NE_REAL_ARG_LE, nullptr},
        {1.0, -1.0, NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, x must not be less than 0.0: x = -1."},
        {1.0, std::nan(""), NE_REAL_ARG_LT, nullptr},
        {HUGE_VAL, HUGE_VAL, NE_REAL_2,
         "NE_REAL_2:\n  On entry, a = inf, x = inf.\n  Constraint: a and x must not both be "
         "infinite."},
    };
    for (const Fault &f : faults) {
        double p = 7.0, q = 7.0;
        KivError fail{};
        s14bac(f.a, f.x, 0.0, &p, &q, &fail);
        EXPECT_EQ(fail.code, f.code);
        if (f.message != nullptr) {
            EXPECT_STREQ(fail.message, f.message);
        }
        EXPECT_EQ(p, 7.0);
        EXPECT_EQ(q, 7.0);
    }
}

}  // namespace
