/* Random numbers: the default stream, repeatable seeding, saving and
   restoring the state, and the selectable generators. */
#include <stdio.h>

#include "kiv.h"

int main(void) {
    int istate[9], i, igen, iseed[4];
    double xstate[4], first, again;
    KivError fail = {0};

    printf("first number of the default stream: %.17g\n", g05cac());

    g05cbc(0);
    printf("after g05cbc(0): %.17g", g05cac());
    printf(" %.17g\n", g05cac());
    g05cbc(-1);
    printf("after g05cbc(-1): %.17g", g05cac());
    printf(" %.17g\n", g05cac());

    /* Save, draw, restore, draw again: the same number. */
    g05cfc(istate, xstate);
    first = g05cac();
    g05cgc(istate, xstate, &fail);
    again = g05cac();
    printf("restored stream repeats: %s (code %d)\n", first == again ? "yes" : "no", fail.code);

    /* A corrupted save is refused. */
    istate[3] += 1;
    fail.print = 0;
    g05cgc(istate, xstate, &fail);
    printf("corrupted state: %s\n", fail.message);

    /* Integers from 1 to 6 always lie in range. */
    g05cbc(42);
    for (i = 0; i < 1000; ++i) {
        int k = g05dyc(1, 6);
        if (k < 1 || k > 6) printf("out of range: %d\n", k);
    }

    /* Generator numbers are folded into 0..273 and seeds repaired. */
    igen = 274;
    iseed[0] = 0;
    iseed[1] = 5;
    iseed[2] = 16909321;
    iseed[3] = 16909320;
    g05kbc(&igen, iseed);
    printf("g05kbc: generator %d, seeds %d %d %d %d\n", igen, iseed[0], iseed[1], iseed[2],
           iseed[3]);
    return 0;
}
