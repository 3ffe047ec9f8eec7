// Householder QR with column pivoting: A P = Q R reproduced, R's diagonal
// non-increasing in magnitude, and the rank of exactly rank-deficient
// matrices found.
#include "kernels/qr.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace {

TEST(QrPivoted, ReproducesTheMatrixAndFindsTheRank) {
    std::mt19937_64 engine(9);
    std::normal_distribution<double> normal;
    for (int rank_wanted : {4, 3, 1}) {
        const int n = 4;
        // A = B C with B 4 x rank, C rank x 4: rank exactly rank_wanted
        // (up to rounding); symmetric like the x block of a correlation matrix.
        std::vector<double> b(n * rank_wanted), a(n * n, 0.0);
        for (double &v : b) v = normal(engine);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j)
                for (int k = 0; k < rank_wanted; ++k)
                    a[i * n + j] += b[i * rank_wanted + k] * b[j * rank_wanted + k];
        std::vector<double> qr = a, tau(n), work(n);
        std::vector<int> perm(n);
        const int rank = kiv::kernels::qr_pivoted(qr.data(), n, n, n, perm.data(), tau.data(),
                                                  work.data(), 64.0 * n * 0x1p-53);
        EXPECT_EQ(rank, rank_wanted);
        for (int k = 1; k < n; ++k)
            EXPECT_LE(std::fabs(qr[k * n + k]), std::fabs(qr[(k - 1) * n + (k - 1)]) * (1 + 1e-12));
        // Q^T (A P) must equal R: apply Q^T to the permuted columns of A.
        std::vector<double> ap(n * n);
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k) ap[i * n + k] = a[i * n + perm[k]];
        kiv::kernels::apply_qt(qr.data(), n, n, n, tau.data(), ap.data(), n, n);
        for (int i = 0; i < n; ++i)
            for (int k = 0; k < n; ++k)
                EXPECT_NEAR(ap[i * n + k], k >= i ? qr[i * n + k] : 0.0, 1e-12) << i << k;
    }
}

TEST(QrPivoted, SolvesAFullRankSystem) {
    double a[9] = {4, 1, 2, 1, 3, 0, 2, 0, 5}, rhs[3] = {1, 2, 3}, tau[3], work[3];
    const double copy[9] = {4, 1, 2, 1, 3, 0, 2, 0, 5};
    int perm[3];
    ASSERT_EQ(kiv::kernels::qr_pivoted(a, 3, 3, 3, perm, tau, work, 1e-14), 3);
    kiv::kernels::apply_qt(a, 3, 3, 3, tau, rhs, 1, 1);
    kiv::kernels::solve_upper(a, 3, 3, rhs, 1, 1);
    double solution[3];
    for (int k = 0; k < 3; ++k) solution[perm[k]] = rhs[k];
    const double want[3] = {1, 2, 3};
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(copy[i * 3] * solution[0] + copy[i * 3 + 1] * solution[1] +
                        copy[i * 3 + 2] * solution[2],
                    want[i], 1e-14);
}

}  // namespace
