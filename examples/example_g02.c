/* Correlation: Pearson (g02bxc) and the Kendall and Spearman rank
   correlations (g02brc) of three variables over six observations. */
#include <stdio.h>

#include "kiv.h"

#define N 6
#define M 3

int main(void) {
    const double x[N][M] = {{1, 2, 6.5}, {2, 1, 5}, {3, 4, 4}, {4, 3, 2}, {5, 6, 3}, {6, 5, 1}};
    const int sx[M] = {1, 1, 1};
    double sw, mean[M], sd[M], r[M][M], v[M][M], corr[M][M];
    KivError fail = {0};
    int i, j;

    g02bxc(N, M, &x[0][0], M, sx, NULL, &sw, mean, sd, &r[0][0], M, &v[0][0], M, &fail);
    printf("means %.6f %.6f %.6f\n", mean[0], mean[1], mean[2]);
    printf("sds   %.6f %.6f %.6f\n", sd[0], sd[1], sd[2]);
    printf("Pearson:\n");
    for (i = 0; i < M; ++i) {
        for (j = 0; j < M; ++j) printf(" %10.6f", r[i][j]);
        printf("\n");
    }

    g02brc(N, M, &x[0][0], M, NULL, NULL, &corr[0][0], M, &fail);
    printf("Kendall (below the diagonal) and Spearman (above):\n");
    for (i = 0; i < M; ++i) {
        for (j = 0; j < M; ++j) printf(" %10.6f", corr[i][j]);
        printf("\n");
    }
    return 0;
}
