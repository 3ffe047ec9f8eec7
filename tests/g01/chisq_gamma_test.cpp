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

// g01efc returns s14bac's ratios bit for bit; g01ecc at (2g/b, 2a) the same
// ratios to its 5e-06 (exactly where they are 0 or 1). Rows: moderate values;
// g = 0; huge and infinite deviates and shapes, where a fault of s14bac
// (a = x = inf) is ignored and leaves the results 0.
TEST(ChiSquareGamma, TailsAreTheIncompleteGammaRatios) {
    const double cases[][3] = {{0.5, 1.0, 1.0},      {3.0, 2.5, 0.5},          {80.0, 40.0, 2.0},
                               {1e-3, 0.1, 10.0},    {400.0, 180.0, 1.5},      {0.0, 1e-3, 2.0},
                               {0.0, 1e6, 3.0},      {1e300, 1e300, 1.0},      {HUGE_VAL, 2.0, 1.0},
                               {1.0, HUGE_VAL, 1.0}, {HUGE_VAL, HUGE_VAL, 1.0}};
    const auto expect_close = [](double value, double reference) {
        if (reference == 0.0 || reference == 1.0) {
            EXPECT_EQ(value, reference);
        } else {
            EXPECT_NEAR(value / reference, 1.0, 5e-6);
        }
    };
    for (const auto &c : cases) {
        const double g = c[0], a = c[1], b = c[2];
        double p = 0.0, q = 0.0;
        KivError inner{};
        s14bac(a, g / b, 0.0, &p, &q, &inner);
        if (g == 0.0) {
            EXPECT_TRUE(p == 0.0 && q == 1.0);
        }
        KivError fail{};
        EXPECT_EQ(g01efc(Kiv_LowerTail, g, a, b, &fail), p) << g << " " << a;
        EXPECT_EQ(g01efc(Kiv_UpperTail, g, a, b, &fail), q) << g << " " << a;
        expect_close(g01ecc(Kiv_LowerTail, 2.0 * g / b, 2.0 * a, &fail), p);
        expect_close(g01ecc(Kiv_UpperTail, 2.0 * g / b, 2.0 * a, &fail), q);
        EXPECT_EQ(fail.code, 0) << g << " " << a;
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
