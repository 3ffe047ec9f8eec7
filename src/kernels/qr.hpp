// Householder QR factorisation with column pivoting and a rank decision.
// See qr.cpp.
#pragma once

namespace kiv::kernels {

// Factorises the rows x cols matrix a (row-major, row stride lda; rows >=
// cols) in place as A P = Q R: R in the upper triangle, the Householder
// vectors below it (unit leading element implied), their scalars in tau,
// the column permutation in perm (perm[k] is the original column at
// position k). work holds cols doubles. Returns the numerical rank: the
// number of leading diagonal elements with |R_kk| > tolerance * |R_00|
// (0 for a zero matrix).
int qr_pivoted(double *a, int rows, int cols, int lda, int *perm, double *tau, double *work,
               double tolerance);

// Overwrites the rows x nrhs matrix b (row stride ldb) with Q^T b, Q being
// the product of the first k reflectors stored in a and tau.
void apply_qt(const double *a, int rows, int k, int lda, const double *tau, double *b, int nrhs,
              int ldb);

// Solves R z = b in place for the leading k x k upper triangle of a; b has
// nrhs columns (row stride ldb).
void solve_upper(const double *a, int k, int lda, double *b, int nrhs, int ldb);

}  // namespace kiv::kernels
