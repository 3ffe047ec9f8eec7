/* A program outside the project, built against an installed libkiv. */
#include <kiv.h>
#include <stdio.h>

int main(void) {
    printf("%.17g %s\n", x02ajc(), kiv_error_name(NE_ALLOC_FAIL));
    return 0;
}
