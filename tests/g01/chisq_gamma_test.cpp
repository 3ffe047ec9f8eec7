// g01ecc and g01efc: check orders, messages, results against s14bac and
// against each other.
#include <gtest/gtest.h>

#include <cmath>

#include "kiv.h"

namespace {

constexpr Kiv_Tail kBadTail = static_cast<Kiv_Tail>(1333);

struct Fault {
    const char *routine;
    Kiv_Tail tail;
    double x, a, b;  // g01ecc: x, df = a
    int code;
    const char *message;
};

double call(const Fault &f, KivError *fail) {
    if (f.routine[4] == 'c') return g01ecc(f.tail, f.x, f.a, fail);
    return g01efc(f.tail, f.x, f.a, f.b, fail);
}

TEST(ChiSquareGamma, ChecksRunInTheirOwnOrders) {
    const double nan = std::nan("");
    const Fault faults[] = {
        {"g01ecc", kBadTail, -1.0, 2.0, 0, NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, x must not be less than 0.0: x = -1."},
        {"g01ecc", Kiv_LowerTail, nan, 2.0, 0, NE_REAL_ARG_LT, nullptr},
        {"g01ecc", kBadTail, 1.0, 0.0, 0, NE_REAL_ARG_LE,
         "NE_REAL_ARG_LE:\n  On entry, df must not be less than or equal to 0.0: df = 0."},
        {"g01ecc", Kiv_UpperTail, 1.0, nan, 0, NE_REAL_ARG_LE, nullptr},
        {"g01ecc", kBadTail, 1.0, 2.0, 0, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter tail had an illegal value."},
        {"g01efc", kBadTail, -1.0, 2.0, 1.0, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter tail had an illegal value."},
        {"g01efc", Kiv_LowerTail, -1.0, -2.0, 1.0, NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, g must not be less than 0.0: g = -1."},
        {"g01efc", Kiv_LowerTail, 1.0, nan, -1.0, NE_REAL_ARG_LE,
         "NE_REAL_ARG_LE:\n  On entry, a must not be less than or equal to 0.0: a = nan."},
        {"g01efc", Kiv_UpperTail, 1.0, 2.0, 0.0, NE_REAL_ARG_LE,
         "NE_REAL_ARG_LE:\n  On entry, b must not be less than or equal to 0.0: b = 0."},
        {"g01efc", Kiv_UpperTail, nan, 2.0, 1.0, NE_REAL_ARG_LT, nullptr},
    };
    for (const Fault &f : faults) {
        KivError fail{};
        EXPECT_EQ(call(f, &fail), 0.0) << f.routine;
        EXPECT_EQ(fail.code, f.code) << f.routine << " " << f.x << " " << f.a;
        if (f.message != nullptr) {
            EXPECT_STREQ(fail.message, f.message);
        }
    }
}

TEST(ChiSquareGamma, ZeroDeviateGivesZeroAndOne) {
    for (double df : {1e-3, 1.0, 7.5, 1e6}) {
        KivError fail{};
        EXPECT_EQ(g01ecc(Kiv_LowerTail, 0.0, df, &fail), 0.0);
        EXPECT_EQ(g01ecc(Kiv_UpperTail, 0.0, df, &fail), 1.0);
        EXPECT_EQ(g01efc(Kiv_LowerTail, 0.0, df, 2.0, &fail), 0.0);
        EXPECT_EQ(g01efc(Kiv_UpperTail, 0.0, df, 2.0, &fail), 1.0);
        EXPECT_EQ(fail.code, 0);
    }
}

TEST(ChiSquareGamma, TailsAreTheIncompleteGammaRatios) {
    const double cases[][3] = {{0.5, 1.0, 1.0},
                               {3.0, 2.5, 0.5},
                               {80.0, 40.0, 2.0},
                               {1e-3, 0.1, 10.0},
                               {400.0, 180.0, 1.5}};
    for (const auto &c : cases) {
        const double g = c[0], a = c[1], b = c[2];
        double p = 0.0, q = 0.0;
        KivError inner{};
        s14bac(a, g / b, 0.0, &p, &q, &inner);
        KivError fail{};
        EXPECT_EQ(g01efc(Kiv_LowerTail, g, a, b, &fail), p);
        EXPECT_EQ(g01efc(Kiv_UpperTail, g, a, b, &fail), q);
        // Chi-square with 2a degrees of freedom at 2g/b: the same ratios to 5e-06.
        const double lower = g01ecc(Kiv_LowerTail, 2.0 * g / b, 2.0 * a, &fail);
        const double upper = g01ecc(Kiv_UpperTail, 2.0 * g / b, 2.0 * a, &fail);
        EXPECT_EQ(fail.code, 0);
        EXPECT_NEAR(lower / p, 1.0, 5e-6) << g << " " << a;
        EXPECT_NEAR(upper / q, 1.0, 5e-6) << g << " " << a;
    }
}

TEST(ChiSquareGamma, PublishedChiSquareValues) {
    // Upper 5% points of chi-square (Abramowitz & Stegun, Table 26.8).
    const double points[][2] = {{1, 3.84146}, {5, 11.0705}, {10, 18.3070}, {30, 43.7730}};
    for (const auto &pt : points) {
        KivError fail{};
        EXPECT_NEAR(g01ecc(Kiv_UpperTail, pt[1], pt[0], &fail), 0.05, 2e-6) << pt[0];
    }
}

}  // namespace
