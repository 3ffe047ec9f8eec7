/* Time series: sample autocorrelations (g13abc) and partial
   autocorrelations by the Durbin-Levinson recursion (g13acc). */
#include <stdio.h>

#include "kiv.h"

int main(void) {
    const double x[] = {1.0, 2.0, 3.0, 4.0};
    const double rho[] = {0.5, 0.25}; /* autocorrelations of an AR(1) with phi = 0.5 */
    double xm, xv, r[1], stat, p[2], v[2], ar[2];
    int nvl;
    KivError fail = {0};

    g13abc(x, 4, 1, &xm, &xv, r, &stat, &fail);
    printf("mean %.6f, variance %.6f, r1 %.6f, statistic %.6f\n", xm, xv, r[0], stat);

    g13acc(rho, 2, 2, p, v, ar, &nvl, &fail);
    printf("partial %.6f %.6f, variance ratios %.6f %.6f\n", p[0], p[1], v[0], v[1]);
    printf("AR order %d: %.6f %.6f\n", nvl, ar[0], ar[1]);

    fail.print = 0;
    g13abc(x, 4, 4, &xm, &xv, r, &stat, &fail);
    printf("nk = nx: %s\n", fail.message);
    return 0;
}
