/* Runtime services: machine constants, workspace, error names and the
   error record with a handler of the caller's. */
#include <stdio.h>
#include <string.h>

#include "kiv.h"

static int calls;

static void handler(const char *message, int code, const char *routine) {
    ++calls;
    printf("handler: routine %s, code %d, message \"%s\"\n", routine, code, message);
}

int main(void) {
    KivError fail;
    double *block;

    printf("machine precision %.17g\n", x02ajc());
    printf("safe minimum      %.17g\n", x02akc());
    printf("largest double    %.17g\n", x02alc());

    block = (double *)x04bbc(100 * sizeof(double));
    printf("x04bbc: %s\n", block != NULL ? "allocated" : "failed");
    x04bdc((void **)&block);
    printf("x04bdc: pointer %s\n", block == NULL ? "cleared" : "kept");

    printf("code 73 is %s\n", kiv_error_name(73));

    memset(&fail, 0, sizeof fail);
    fail.handler = handler;
    kiv_report_error(NULL, 0, "example", &fail);
    printf("handler calls %d, code %d\n", calls, fail.code);
    return 0;
}
