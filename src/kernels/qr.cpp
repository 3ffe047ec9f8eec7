// Householder QR factorisation with column pivoting (Businger and Golub
// 1965): at step k the remaining column of largest norm is swapped to
// position k and a reflector H_k = I - tau v v^T zeroes it below the
// diagonal. The remaining column norms are recomputed at every step (the
// matrices here are small, and recomputation avoids the cancellation of
// norm downdating). With pivoting, |R_00| >= |R_11| >= ... and the rank is
// decided by comparing |R_kk| with tolerance * |R_00|; the caller chooses
// the tolerance.
//
// The reflector follows Golub and Van Loan, Algorithm 5.1.1: for the
// column x (x_0 on the diagonal) with norm s, beta = -sign(x_0) s, v =
// (1, x_1..)/(x_0 - beta), tau = (beta - x_0)/beta, so that no cancellation
// occurs.
//
// References: P. Businger and G. H. Golub, Linear least squares solutions
// by Householder transformations, Numerische Mathematik 7 (1965), 269-276.
// G. H. Golub and C. F. Van Loan, Matrix Computations, 4th ed., Johns
// Hopkins University Press, 2013, Sections 5.1 and 5.4.
#include "kernels/qr.hpp"

#include <cmath>
#include <cstddef>
#include <utility>

namespace kiv::kernels {

namespace {

double &at(double *a, int lda, int i, int j) {
    return a[static_cast<std::size_t>(i) * static_cast<std::size_t>(lda) +
             static_cast<std::size_t>(j)];
}
double at(const double *a, int lda, int i, int j) {
    return a[static_cast<std::size_t>(i) * static_cast<std::size_t>(lda) +
             static_cast<std::size_t>(j)];
}

// Norm of column j from row k down, scaled against overflow.
double column_norm(const double *a, int rows, int lda, int k, int j) {
    double scale = 0.0, sum = 1.0;
    for (int i = k; i < rows; ++i) {
        const double value = std::fabs(at(a, lda, i, j));
        if (value == 0.0) continue;
        if (scale < value) {
            sum = 1.0 + sum * (scale / value) * (scale / value);
            scale = value;
        } else {
            sum += (value / scale) * (value / scale);
        }
    }
    return scale * std::sqrt(sum);
}

// Applies H = I - tau v v^T (v stored in column k of a below row k, v_k = 1)
// to the columns [first, last) of c (row stride ldc), rows k .. rows-1.
void reflect(const double *a, int rows, int lda, int k, double tau, double *c, int ldc, int first,
             int last) {
    if (tau == 0.0) return;
    for (int j = first; j < last; ++j) {
        double dot = at(c, ldc, k, j);
        for (int i = k + 1; i < rows; ++i) dot += at(a, lda, i, k) * at(c, ldc, i, j);
        dot *= tau;
        at(c, ldc, k, j) -= dot;
        for (int i = k + 1; i < rows; ++i) at(c, ldc, i, j) -= dot * at(a, lda, i, k);
    }
}

}  // namespace

int qr_pivoted(double *a, int rows, int cols, int lda, int *perm, double *tau, double *work,
               double tolerance) {
    for (int j = 0; j < cols; ++j) perm[j] = j;
    for (int k = 0; k < cols; ++k) {
        int best = k;
        for (int j = k; j < cols; ++j) {
            work[j] = column_norm(a, rows, lda, k, j);
            if (work[j] > work[best]) best = j;
        }
        if (best != k) {
            for (int i = 0; i < rows; ++i) std::swap(at(a, lda, i, k), at(a, lda, i, best));
            std::swap(perm[k], perm[best]);
            std::swap(work[k], work[best]);
        }
        const double norm = work[k], x0 = at(a, lda, k, k);
        if (norm == 0.0) {
            tau[k] = 0.0;
            continue;
        }
        const double beta = x0 >= 0.0 ? -norm : norm;
        const double scale = 1.0 / (x0 - beta);
        for (int i = k + 1; i < rows; ++i) at(a, lda, i, k) *= scale;
        tau[k] = (beta - x0) / beta;
        at(a, lda, k, k) = beta;
        reflect(a, rows, lda, k, tau[k], a, lda, k + 1, cols);
    }
    const double lead = cols > 0 ? std::fabs(at(a, lda, 0, 0)) : 0.0;
    int rank = 0;
    while (rank < cols && lead > 0.0 && std::fabs(at(a, lda, rank, rank)) > tolerance * lead)
        ++rank;
    return rank;
}

void apply_qt(const double *a, int rows, int k, int lda, const double *tau, double *b, int nrhs,
              int ldb) {
    for (int step = 0; step < k; ++step) reflect(a, rows, lda, step, tau[step], b, ldb, 0, nrhs);
}

void solve_upper(const double *a, int k, int lda, double *b, int nrhs, int ldb) {
    for (int j = 0; j < nrhs; ++j) {
        for (int i = k - 1; i >= 0; --i) {
            double sum = at(b, ldb, i, j);
            for (int l = i + 1; l < k; ++l) sum -= at(a, lda, i, l) * at(b, ldb, l, j);
            at(b, ldb, i, j) = sum / at(a, lda, i, i);
        }
    }
}

}  // namespace kiv::kernels
