// Adaptive Gauss-Kronrod quadrature (7-point Gauss, 15-point Kronrod), for
// the distributions defined by integrals (bivariate normal, studentized
// range). The node and weight values are the published ones of the
// 15-point Kronrod extension of the 7-point Gauss rule (R. Piessens, E. de
// Doncker-Kapenga, C. W. Ueberhuber, D. K. Kahaner, QUADPACK, Springer
// 1983, routine QK15), written as given.
#pragma once

#include <algorithm>
#include <cmath>

namespace kiv::kernels {

namespace detail {
inline constexpr double kKronrodNodes[8] = {
    0.991455371120812639206854697526329, 0.949107912342758524526189684047851,
    0.864864423359769072789712788640926, 0.741531185599394439863864773280788,
    0.586087235467691130294144845693013, 0.405845151377397166906606412076961,
    0.207784955007898467600689403773245, 0.0};
inline constexpr double kKronrodWeights[8] = {
    0.022935322010529224963732008058970, 0.063092092629978553290700663189204,
    0.104790010322250183839876322541518, 0.140653259715525918745189590510238,
    0.169004726639267902826583426598550, 0.190350578064785409913256402421014,
    0.204432940075298892414161999234649, 0.209482141084727828012999174891714};
// Gauss weights at the Kronrod nodes 1, 3, 5 and 7 (the centre).
inline constexpr double kGaussWeights[4] = {
    0.129484966168869693270611432679082, 0.279705391489276667901467771423780,
    0.381830050505118944950369775488975, 0.417959183673469387755102040816327};

// One 15-point rule on [a, b]: the Kronrod value, and |Kronrod - Gauss|.
template <class F>
double kronrod15(const F &f, double a, double b, double *error) {
    const double centre = 0.5 * (a + b), half = 0.5 * (b - a);
    const double fc = f(centre);
    double kronrod = fc * kKronrodWeights[7];
    double gauss = fc * kGaussWeights[3];
    for (int j = 0; j < 7; ++j) {
        const double dx = half * kKronrodNodes[j];
        const double sum = f(centre - dx) + f(centre + dx);
        kronrod += kKronrodWeights[j] * sum;
        if (j % 2 == 1) gauss += kGaussWeights[j / 2] * sum;
    }
    *error = std::fabs((kronrod - gauss) * half);
    return kronrod * half;
}

// Bisects until each piece's error estimate is within its share of the
// tolerance or at the rounding level of its value; at most `budget` pieces
// in all.
template <class F>
double adaptive(const F &f, double a, double b, double tolerance, int depth, int &budget,
                bool *ok) {
    const double mid = 0.5 * (a + b);
    double e1 = 0.0, e2 = 0.0;
    const double left = kronrod15(f, a, mid, &e1);
    const double right = kronrod15(f, mid, b, &e2);
    const double sum = left + right;
    budget -= 2;
    const double rounding = 4e-16 * (std::fabs(left) + std::fabs(right));
    if (e1 + e2 <= std::max(tolerance, rounding) || mid == a || mid == b) return sum;
    if (depth >= 30 || budget <= 0) {
        *ok = false;
        return sum;
    }
    const double first = adaptive(f, a, mid, 0.5 * tolerance, depth + 1, budget, ok);
    return first + adaptive(f, mid, b, 0.5 * tolerance, depth + 1, budget, ok);
}
}  // namespace detail

// The integral of f over [a, b] to the absolute tolerance asked, or to the
// rounding level of the values (the error estimate of each piece is the
// difference of its Gauss and Kronrod values); *ok false when 30 halvings or
// 4000 pieces did not reach it.
template <class F>
double integrate(const F &f, double a, double b, double tolerance, bool *ok) {
    *ok = true;
    if (a == b) return 0.0;
    double error = 0.0;
    const double whole = detail::kronrod15(f, a, b, &error);
    if (error <= std::max(tolerance, 4e-16 * std::fabs(whole))) return whole;
    int budget = 4000;
    return detail::adaptive(f, a, b, tolerance, 0, budget, ok);
}

}  // namespace kiv::kernels
