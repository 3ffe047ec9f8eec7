// g02byc: partial correlations of ny variables given nx others, from a
// correlation (or variance-covariance) matrix r of m variables. isz[j] < 0
// marks a variable to be correlated, isz[j] > 0 one to be partialled out,
// 0 one left out. Output p (ny x ny, the y variables in column order):
//   S = R_yy - R_yx R_xx^-1 R_xy,   p(i,j) = S(i,j) / sqrt(S(i,i) S(j,j)).
//
// Method. The selected block is first scaled to unit diagonal (partial
// correlations do not depend on the scale of the variables, and the rank
// decision becomes scale-free); a variable with r(j,j) <= 0 cannot be
// scaled and counts as a rank defect (x) or a non-positive-definite input
// (y). R_xx P = Q R by Householder QR with column pivoting
// (kernels/qr), then R_xx^-1 R_xy = P R^-1 Q^T R_xy and S follows; S is
// symmetrised.
//
// Rank tolerance: R_xx counts as rank-deficient when a pivoted diagonal
// element |R_kk| <= 64 nx eps |R_00| (eps = 2^-53); for a correlation
// matrix that is a condition number beyond about 1e14 / nx, where the
// partial correlations would carry no correct digit. The same tolerance
// decides a zero partial variance: S(i,i) <= 64 nx eps (on the unit
// scale) gives NE_COR_MAT_POSDEF, as does |p(i,j)| > 1 + 64 nx eps; values
// beyond 1 by less than that (rounding) are set to +-1.
//
// Accuracy (measured, tests/g02): against partial correlations from the
// inverse of the correlation matrix in 50-digit arithmetic, absolute error
// below 1e-14 (the tested bound) for a well-conditioned 6 x 6 matrix with
// ny = 3, nx = 2, from correlations and from covariances.
//
// References: P. Businger and G. H. Golub, Linear least squares solutions
// by Householder transformations, Numerische Mathematik 7 (1965), 269-276.
// K. V. Mardia, J. T. Kent and J. M. Bibby, Multivariate Analysis,
// Academic Press, 1979, Section 6.5 (partial correlation).
#include <cmath>
#include <cstddef>

#include "kernels/qr.hpp"
#include "kiv.h"
#include "runtime/checks.hpp"
#include "runtime/report.hpp"
#include "runtime/workspace.hpp"

namespace {

constexpr const char *kRoutine = "g02byc";

struct Blocks {
    int ny, nx;
    const int *y, *x;  // column numbers
    double *xx;        // nx x nx, then its QR factors
    double *xy;        // nx x ny, then the solution
    double *yy;        // ny x ny, then S
    double *yx;        // nx x ny: R_xy kept for the product
};

double element(const double *r, std::size_t tdr, int i, int j) {
    return r[static_cast<std::size_t>(i) * tdr + static_cast<std::size_t>(j)];
}

// Fills the blocks scaled to unit diagonal. Returns the code of a
// non-positive diagonal element, or 0.
int scaled_blocks(const double *r, std::size_t tdr, const Blocks &b, double *scale_x,
                  double *scale_y) {
    for (int k = 0; k < b.nx; ++k) {
        const double d = element(r, tdr, b.x[k], b.x[k]);
        if (!(d > 0.0)) return NE_COR_MAT_RANK;
        scale_x[k] = 1.0 / std::sqrt(d);
    }
    for (int k = 0; k < b.ny; ++k) {
        const double d = element(r, tdr, b.y[k], b.y[k]);
        if (!(d > 0.0)) return NE_COR_MAT_POSDEF;
        scale_y[k] = 1.0 / std::sqrt(d);
    }
    const std::size_t nx = static_cast<std::size_t>(b.nx), ny = static_cast<std::size_t>(b.ny);
    for (std::size_t i = 0; i < nx; ++i) {
        for (std::size_t j = 0; j < nx; ++j)
            b.xx[i * nx + j] = element(r, tdr, b.x[i], b.x[j]) * scale_x[i] * scale_x[j];
        for (std::size_t j = 0; j < ny; ++j)
            b.xy[i * ny + j] = b.yx[i * ny + j] =
                element(r, tdr, b.x[i], b.y[j]) * scale_x[i] * scale_y[j];
    }
    for (std::size_t i = 0; i < ny; ++i)
        for (std::size_t j = 0; j < ny; ++j)
            b.yy[i * ny + j] = element(r, tdr, b.y[i], b.y[j]) * scale_y[i] * scale_y[j];
    return 0;
}

// The computation of g02byc for arguments already checked: the partial
// correlations of the ny variables marked isz < 0 given the nx marked > 0,
// by a pivoted QR of the scaled R_xx block. Returns 0, or the code of the
// fault (NE_ALLOC_FAIL, NE_COR_MAT_RANK, NE_COR_MAT_POSDEF, or the defect
// found while scaling the blocks).
int partial_correlations(int m, int ny, int nx, const int isz[], const double r[], int tdr,
                         double p[], int tdp) {
    // ny + nx <= m < 2^31, so the block sizes below cannot overflow 64 bits.
    const long long x_count = nx, y_count = ny;
    kiv::rt::WorkArray<double> work(x_count * x_count + 2 * x_count * y_count + y_count * y_count +
                                    3 * x_count + y_count);
    kiv::rt::WorkArray<int> index(work.ok() ? 2LL * m : -1);
    if (!index.ok()) return NE_ALLOC_FAIL;
    int *y = index.get(), *x = index.get() + ny, *perm = index.get() + m;
    for (int j = 0, cy = 0, cx = 0; j < m; ++j) {
        if (isz[j] < 0) y[cy++] = j;
        if (isz[j] > 0) x[cx++] = j;
    }
    double *cursor = work.get();
    auto take = [&cursor](long long count) {
        double *block = cursor;
        cursor += count;
        return block;
    };
    const Blocks b{ny,
                   nx,
                   y,
                   x,
                   take(x_count * x_count),
                   take(x_count * y_count),
                   take(y_count * y_count),
                   take(x_count * y_count)};
    double *tau = take(x_count), *norms = take(x_count), *scale_x = take(x_count);
    double *scale_y = take(y_count);

    const std::size_t sx = static_cast<std::size_t>(nx), sy = static_cast<std::size_t>(ny);
    const double tolerance = 64.0 * nx * 0x1p-53;
    const int defect = scaled_blocks(r, static_cast<std::size_t>(tdr), b, scale_x, scale_y);
    if (defect == 0 &&
        kiv::kernels::qr_pivoted(b.xx, nx, nx, nx, perm, tau, norms, tolerance) < nx) {
        return NE_COR_MAT_RANK;
    }
    if (defect != 0) return defect;
    kiv::kernels::apply_qt(b.xx, nx, nx, nx, tau, b.xy, ny, ny);
    kiv::kernels::solve_upper(b.xx, nx, nx, b.xy, ny, ny);
    // S = R_yy - (P^T R_xy)^T Z, Z = R^-1 Q^T R_xy.
    for (std::size_t i = 0; i < sy; ++i)
        for (std::size_t j = 0; j < sy; ++j) {
            double sum = 0.0;
            for (std::size_t k = 0; k < sx; ++k)
                sum += b.yx[static_cast<std::size_t>(perm[k]) * sy + i] * b.xy[k * sy + j];
            b.yy[i * sy + j] -= sum;
        }
    for (std::size_t i = 0; i < sy; ++i) {
        if (!(b.yy[i * sy + i] > tolerance)) {
            return NE_COR_MAT_POSDEF;
        }
    }
    const std::size_t stride = static_cast<std::size_t>(tdp);
    for (std::size_t i = 0; i < sy; ++i) {
        p[i * stride + i] = 1.0;
        for (std::size_t j = 0; j < i; ++j) {
            const double s = 0.5 * (b.yy[i * sy + j] + b.yy[j * sy + i]);
            double value = s / (std::sqrt(b.yy[i * sy + i]) * std::sqrt(b.yy[j * sy + j]));
            if (std::fabs(value) > 1.0 + tolerance) {
                return NE_COR_MAT_POSDEF;
            }
            if (value > 1.0) value = 1.0;  // rounding beyond +-1; a NaN stays NaN
            if (value < -1.0) value = -1.0;
            p[i * stride + j] = p[j * stride + i] = value;
        }
    }
    return 0;
}

}  // namespace

extern "C" KIV_API void g02byc(int m, int ny, int nx, const int isz[], const double r[], int tdr,
                               double p[], int tdp, KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, kRoutine);
    if (!check.int_not_less("m", m, 3, "3") || !check.int_not_less("ny", ny, 2, "2") ||
        !check.int_not_less("nx", nx, 1, "1"))
        return;
    if (static_cast<long long>(ny) + nx > m) {
        check.report(NE_3_INT_ARG_CONS, "ny", ny, "nx", nx, "m", m, "ny + nx <= m");
        return;
    }
    if (!check.stride_at_least("tdr", tdr, "m", m) ||
        !check.stride_at_least("tdp", tdp, "ny", ny) || !check.given("isz", isz) ||
        !check.given("r", r) || !check.given("p", p))
        return;
    long negatives = 0, positives = 0;
    for (int j = 0; j < m; ++j) negatives += isz[j]<0, positives += isz[j]> 0;
    if (negatives != ny) {
        check.report(NE_BAD_NY_SET, ny, negatives);
        return;
    }
    if (positives != nx) {
        check.report(NE_BAD_NX_SET, nx);
        return;
    }

    if (const int fault = partial_correlations(m, ny, nx, isz, r, tdr, p, tdp); fault != 0) {
        check.report_code_only(fault);
        return;
    }
    check.success();
}
