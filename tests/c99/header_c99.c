/* Compiled with -std=c99 -pedantic -Werror: the public header is C99. */
#include <kiv.h>

double kiv_header_c99_probe(void);

double kiv_header_c99_probe(void) {
    KivError fail;
    Kiv_Tail tail = Kiv_LowerTail;
    fail.code = NE_NOERROR;
    fail.print = 0;
    fail.handler = 0;
    (void)tail;
    return x02ajc() + (double)fail.code + (double)NE_NOT_AVAILABLE;
}
