// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

KIV_API double g05cac(void) {
    return 0;
}

KIV_API void g05caz(int *code, int **pieces, double **carries, double **buffer, double **scale) {
    (void)code;
    (void)pieces;
    (void)carries;
    (void)buffer;
    (void)scale;
}

KIV_API void g05cbc(int seed) {
    (void)seed;
}

KIV_API void g05ccc(void) {
}

KIV_API void g05cfc(int istate[9], double xstate[4]) {
    (void)istate;
    (void)xstate;
}

KIV_API void g05cgc(const int istate[9], const double xstate[4], KivError *fail) {
    (void)istate;
    (void)xstate;
    (void)fail;
    kiv::rt::report_text(fail, "g05cgc", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "g05cgc");
}

KIV_API double g05dac(double a, double b) {
    (void)a;
    (void)b;
    return 0;
}

KIV_API double g05dbc(double a) {
    (void)a;
    return 0;
}

KIV_API double g05ddc(double a, double b) {
    (void)a;
    (void)b;
    return 0;
}

KIV_API int g05dyc(int i, int j) {
    (void)i;
    (void)j;
    return 0;
}

KIV_API double g05kac(int igen, int iseed[4]) {
    (void)igen;
    (void)iseed;
    return 0;
}

KIV_API void g05kbc(int *igen, int iseed[4]) {
    (void)igen;
    (void)iseed;
}

KIV_API void g05kcc(int *igen, int iseed[4]) {
    (void)igen;
    (void)iseed;
}

KIV_API long x05aac(void) {
    return 0;
}

}  // extern "C"
