/* Distributions and descriptive statistics: a normal tail probability and
   its inverse, a chi-square tail, and a weighted sample summary. */
#include <stdio.h>

#include "kiv.h"

int main(void) {
    const double x[] = {1.0, 2.0, 3.0, 10.0};
    const double wt[] = {1.0, 3.0, 0.5, 2.0};
    double mean, sd, skew, kurt, xmin, xmax, wsum;
    int nvalid;
    KivError fail = {0};

    printf("P(X <= 1.96)      = %.12f\n", g01eac(Kiv_LowerTail, 1.96, &fail));
    printf("x with P = 0.975  = %.8f\n", g01fac(Kiv_LowerTail, 0.975, &fail));
    /* 3.841458820694124 is the 95% point of chi-square with 1 degree of
       freedom; g01ecc works to a relative accuracy of 5e-6. */
    printf("Q(chi2 = 3.8415)  = %.5f\n", g01ecc(Kiv_UpperTail, 3.841458820694124, 1.0, &fail));

    g01aac(4, x, wt, &nvalid, &mean, &sd, &skew, &kurt, &xmin, &xmax, &wsum, &fail);
    printf("weighted sample: nvalid %d, mean %.7f, sd %.7f\n", nvalid, mean, sd);
    printf("  skewness %.7f, kurtosis %.7f, min %g, max %g, wsum %g\n", skew, kurt, xmin, xmax,
           wsum);

    /* A record with print = 0 receives the error quietly. */
    fail.print = 0;
    g01eac(Kiv_TwoTail, 1.0, &fail);
    printf("g01eac with Kiv_TwoTail: code %d\n%s\n", fail.code, fail.message);
    return 0;
}
