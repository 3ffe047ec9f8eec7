// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

KIV_API void s14bac(double a, double x, double tol, double *p, double *q, KivError *fail) {
    (void)a;
    (void)x;
    (void)tol;
    (void)p;
    (void)q;
    (void)fail;
    kiv::rt::report_text(fail, "s14bac", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "s14bac");
}

KIV_API double s14aac(double x, KivError *fail) {
    (void)x;
    (void)fail;
    kiv::rt::report_text(fail, "s14aac", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "s14aac");
    return 0;
}

KIV_API double s14abc(double x, KivError *fail) {
    (void)x;
    (void)fail;
    kiv::rt::report_text(fail, "s14abc", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "s14abc");
    return 0;
}

}  // extern "C"
