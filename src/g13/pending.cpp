// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

KIV_API void g13aac(const double x[], int nx, int d, int ds, int s, double xd[], int *nxd, KivError *fail) {
    (void)x;
    (void)nx;
    (void)d;
    (void)ds;
    (void)s;
    (void)xd;
    (void)nxd;
    (void)fail;
    kiv::rt::report_text(fail, "g13aac", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "g13aac");
}

KIV_API void g13abc(const double x[], int nx, int nk, double *xm, double *xv, double r[], double *stat, KivError *fail) {
    (void)x;
    (void)nx;
    (void)nk;
    (void)xm;
    (void)xv;
    (void)r;
    (void)stat;
    (void)fail;
    kiv::rt::report_text(fail, "g13abc", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "g13abc");
}

KIV_API void g13acc(const double r[], int nk, int nl, double p[], double v[], double ar[], int *nvl, KivError *fail) {
    (void)r;
    (void)nk;
    (void)nl;
    (void)p;
    (void)v;
    (void)ar;
    (void)nvl;
    (void)fail;
    kiv::rt::report_text(fail, "g13acc", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "g13acc");
}

}  // extern "C"
