// The regularized incomplete beta function I_x(a, b) and its complement,
// the beta density, and the Student's t and F distribution functions built
// on them. No argument checks here: the callers validate. See
// incomplete_beta.cpp for the method.
#pragma once

namespace kiv::kernels {

enum class IncompleteBetaStatus { ok, not_converged };

// I_x(a, b) into *w and 1 - I_x(a, b) into *w1, for a, b > 0 (finite),
// 0 <= x <= 1 and y = 1 - x given by the caller exactly (so that x near 1
// loses nothing). The smaller of the two is computed directly, so each keeps
// its relative accuracy deep in its tail. tol: the relative accuracy asked
// (0 = best).
IncompleteBetaStatus incomplete_beta(double a, double b, double x, double y, double tol, double *w,
                                     double *w1);

// The same with ln x and ln y supplied by the caller in long double (the
// distributions form them from their own arguments, which is more accurate
// than from x and y rounded to double).
IncompleteBetaStatus incomplete_beta_logs(double a, double b, double x, double y, long double log_x,
                                          long double log_y, double tol, double *w, double *w1);

// x^a y^b / B(a, b) without overflow or underflow on the way (y = 1 - x).
double beta_prefactor(double a, double b, double x, double y);

// Student's t with df > 0 degrees of freedom (df = +inf: the normal):
// lower = P(T <= t), upper = P(T >= t), each computed directly.
void student_t_tails(double t, double df, double *lower, double *upper);
// P(|T| >= |t|) and P(|T| <= |t|) of Student's t (df finite), each direct.
void student_t_two_tails(double t, double df, double *beyond, double *within);

// The F distribution, df1, df2 > 0, f >= 0: lower = P(F <= f),
// upper = P(F >= f), each computed directly.
void f_tails(double f, double df1, double df2, double *lower, double *upper);

}  // namespace kiv::kernels
