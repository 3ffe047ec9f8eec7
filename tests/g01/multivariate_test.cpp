// Bivariate and multivariate normal (g01hac, g01hbc), von Mises (g01erc) and
// the studentized range (g01emc, g01emf, g01fmc): exact values, identities
// that tie each to an independent routine, published percentage points.
#include <gtest/gtest.h>

#include <boost/math/quadrature/gauss_kronrod.hpp>
#include <boost/math/special_functions/bessel.hpp>
#include <cmath>
#include <vector>

#include "kiv.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

double bvn(double x, double y, double rho) {
    KivError fail{};
    const double p = g01hac(x, y, rho, &fail);
    EXPECT_EQ(fail.code, 0) << fail.message;
    return p;
}

TEST(BivariateNormal, ExactValuesAndIdentities) {
    for (double rho : {-0.999, -0.9, -0.5, 0.0, 0.3, 0.8, 0.95, 0.9999}) {
        // The orthant: 1/4 + asin(rho)/(2 pi).
        EXPECT_NEAR(bvn(0, 0, rho), 0.25 + std::asin(rho) / (2 * kPi), 2e-16);
        for (double x : {-3.0, -0.7, 0.4, 2.5})
            for (double y : {-2.0, 0.1, 1.7}) {
                // P(x, y; rho) + P(x, -y; -rho) = Phi(x).
                EXPECT_NEAR(bvn(x, y, rho) + bvn(x, -y, -rho), s15abc(x), 4e-16);
                // Symmetric in x and y.
                EXPECT_NEAR(bvn(x, y, rho), bvn(y, x, rho), 2e-16);
            }
    }
    EXPECT_EQ(bvn(0.3, -1.2, 0.0), s15abc(0.3) * s15abc(-1.2));
    EXPECT_EQ(bvn(0.3, -1.2, 1.0), s15abc(-1.2));
    EXPECT_EQ(bvn(0.3, -1.2, -1.0), 0.0);
    EXPECT_EQ(bvn(0.3, 1.2, -1.0), s15abc(0.3) - s15abc(-1.2));
    EXPECT_EQ(bvn(-HUGE_VAL, 1.0, 0.5), 0.0);
    EXPECT_EQ(bvn(HUGE_VAL, 1.0, 0.5), s15abc(1.0));
}

TEST(MultivariateNormal, AgainstExactCasesWithinTheTolerance) {
    // Trivariate orthant, equal correlations: 1/8 + 3 asin(rho)/(4 pi).
    const double rho = 0.5;
    const std::vector<double> sig3 = {1, rho, rho, rho, 1, rho, rho, rho, 1};
    const std::vector<double> zero(3, 0.0);
    KivError fail{};
    const double p3 = g01hbc(Kiv_LowerTail, 3, nullptr, zero.data(), zero.data(), sig3.data(), 3,
                             1e-5, 2000000, &fail);
    EXPECT_EQ(fail.code, 0) << fail.message;
    EXPECT_NEAR(p3, 0.125 + 3 * std::asin(rho) / (4 * kPi), 1e-5);
    // Reproducible: the same call gives the same bits.
    EXPECT_EQ(p3, g01hbc(Kiv_LowerTail, 3, nullptr, zero.data(), zero.data(), sig3.data(), 3, 1e-5,
                         2000000, &fail));
    // n = 2 is g01hac exactly (means and variances standardised).
    const std::vector<double> a2 = {-1.0, 0.5}, b2 = {2.0, 3.0}, mu2 = {0.5, 1.0};
    const std::vector<double> sig2 = {4.0, 1.2, 1.2, 1.0};
    const double p2 =
        g01hbc(Kiv_Central, 2, a2.data(), b2.data(), mu2.data(), sig2.data(), 2, 1e-8, 1000, &fail);
    const double r = 1.2 / 2.0, x1 = (a2[0] - 0.5) / 2, x2 = (b2[0] - 0.5) / 2;
    const double y1 = a2[1] - 1.0, y2 = b2[1] - 1.0;
    EXPECT_NEAR(p2, bvn(x2, y2, r) - bvn(x1, y2, r) - bvn(x2, y1, r) + bvn(x1, y1, r), 1e-15);
    // Block diagonal: the product of two bivariate probabilities.
    const std::vector<double> sig4 = {1, 0.3, 0, 0, 0.3, 1, 0, 0, 0, 0, 1, -0.4, 0, 0, -0.4, 1};
    const std::vector<double> b4 = {0.5, 1.0, -0.2, 0.8}, mu4(4, 0.0);
    const double p4 = g01hbc(Kiv_LowerTail, 4, nullptr, b4.data(), mu4.data(), sig4.data(), 4, 1e-5,
                             5000000, &fail);
    EXPECT_NEAR(p4, bvn(0.5, 1.0, 0.3) * bvn(-0.2, 0.8, -0.4), 1e-5);
    // Semi-definite: a repeated variable adds nothing.
    const std::vector<double> sig_rep = {1, 1, 0.5, 1, 1, 0.5, 0.5, 0.5, 1};
    const std::vector<double> b_rep = {0.3, 0.3, -0.4};
    const double p_rep = g01hbc(Kiv_LowerTail, 3, nullptr, b_rep.data(), zero.data(),
                                sig_rep.data(), 3, 1e-5, 2000000, &fail);
    EXPECT_EQ(fail.code, 0) << fail.message;
    EXPECT_NEAR(p_rep, bvn(0.3, -0.4, 0.5), 1e-5);
    // Too few points for the tolerance: the warning with the estimate.
    const double rough = g01hbc(Kiv_LowerTail, 3, nullptr, zero.data(), zero.data(), sig3.data(), 3,
                                1e-12, 1000, &fail);
    EXPECT_EQ(fail.code, NE_ACC);
    EXPECT_NEAR(rough, 0.25, 1e-2);
}

TEST(VonMises, AgainstQuadratureOfTheDensity) {
    for (double kappa : {0.01, 2.5, 100.0, 1e4}) {
        const long double norm = 2.0L * kPi *
                                 boost::math::cyl_bessel_i(0, static_cast<long double>(kappa)) /
                                 std::exp(static_cast<long double>(kappa));
        for (double t : {-3.0, -0.1, 2.0}) {
            auto density = [kappa](long double x) {
                return std::exp(kappa * (std::cos(x) - 1.0L));
            };
            const long double integral =
                boost::math::quadrature::gauss_kronrod<long double, 61>::integrate(
                    density, -static_cast<long double>(kPi), t, 12, 1e-17L);
            KivError fail{};
            EXPECT_NEAR(g01erc(t, kappa, &fail), static_cast<double>(integral / norm), 4e-16)
                << "kappa " << kappa << " t " << t;
        }
    }
    KivError fail{};
    EXPECT_EQ(g01erc(0.0, 3.0, &fail), 0.5);
    EXPECT_NEAR(g01erc(1.0, 3.0, &fail) + g01erc(-1.0, 3.0, &fail), 1.0, 2e-16);
    EXPECT_NEAR(g01erc(1.0 + 2 * kPi, 3.0, &fail), g01erc(1.0, 3.0, &fail), 1e-15);
}

TEST(StudentizedRange, IdentitiesAndPublishedPoints) {
    KivError fail{};
    // Two groups: Q = sqrt(2) |T|, so P(Q <= q) = P(|T| <= q / sqrt(2)).
    for (double v : {1.0, 4.5, 30.0})
        for (double q : {0.5, 2.0, 5.0})
            EXPECT_NEAR(
                g01emc(q, v, 2, &fail) / g01ebc(Kiv_TwoTailConfid, q / std::sqrt(2.0), v, &fail),
                1.0, 1e-9);
    // Infinite degrees of freedom, two groups: 2 Phi(q / sqrt 2) - 1.
    EXPECT_NEAR(g01emc(2.0, HUGE_VAL, 2, &fail), 2 * s15abc(std::sqrt(2.0)) - 1, 1e-12);
    // Upper 5% points (Harter 1960 tables, three decimals).
    struct Point {
        int groups;
        double v, q;
    };
    for (const Point &point : {Point{3, 10, 3.877}, Point{4, 20, 3.958}, Point{5, 30, 4.102},
                               Point{10, 60, 4.646}, Point{2, HUGE_VAL, 2.772}}) {
        EXPECT_NEAR(g01fmc(0.95, point.v, point.groups, &fail), point.q, 6e-4) << point.groups;
        EXPECT_NEAR(
            g01emc(g01fmc(0.95, point.v, point.groups, &fail), point.v, point.groups, &fail), 0.95,
            1e-11);
    }
    int ifail = 1;
    EXPECT_EQ(g01emf(-1.0, 10.0, 3, &ifail), 0.0);
    EXPECT_EQ(ifail, 1);
    ifail = 1;
    g01emf(1.0, 0.5, 3, &ifail);
    EXPECT_EQ(ifail, 2);
    ifail = 1;
    EXPECT_EQ(g01emf(3.5, 20.0, 4, &ifail), g01emc(3.5, 20.0, 4, &fail));
    EXPECT_EQ(ifail, 0);
}

}  // namespace
