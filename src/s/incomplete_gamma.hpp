// The regularised incomplete gamma functions P(a, x) and Q(a, x) without the
// error record: the arithmetic of s14bac, shared with the chi-square and
// gamma probabilities of g01, which would otherwise pay for a private record
// and two reports on every call. See incomplete_gamma.cpp for the method.
#pragma once

namespace kiv::special {

enum class IncompleteGammaStatus {
    ok,
    a_not_positive,  // a <= 0 or NaN; p, q untouched
    x_negative,      // x < 0 or NaN; p, q untouched
    both_infinite,   // a = x = +inf; p, q untouched
    not_converged,   // 600 iterations were not enough; p, q the last estimates
};

inline constexpr int kIncompleteGammaIterations = 600;

// P(a, x) and Q(a, x) to the relative accuracy tol (tol at or below machine
// precision, 0 included, asks for the best attainable; above 1e-3 it is taken
// as 1e-3).
IncompleteGammaStatus incomplete_gamma(double a, double x, double tol, double *p, double *q);

}  // namespace kiv::special
