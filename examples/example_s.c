/* Special functions: the error function, its complement and the normal
   integrals. Build: cc example_s.c $(pkg-config --cflags --libs kiv) */
#include <stdio.h>

#include "kiv.h"

int main(void) {
    const double x[] = {-1.0, 0.0, 0.5, 1.0};
    int i;
    printf("    x  erf(x)           erfc(x)\n");
    for (i = 0; i < 4; ++i) printf("%5.2f  %15.12f  %.12f\n", x[i], s15aec(x[i]), s15adc(x[i]));
    printf("P(X <= 1.96) = %.12f\n", s15abc(1.96));
    printf("Q(0)         = %.12f\n", s15acc(0.0));
    return 0;
}
