// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

KIV_API double g01ecc(Kiv_Tail tail, double x, double df, KivError *fail) {
    (void)tail;
    (void)x;
    (void)df;
    (void)fail;
    kiv::rt::report_text(fail, "g01ecc", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "g01ecc");
    return 0;
}

KIV_API double g01efc(Kiv_Tail tail, double g, double a, double b, KivError *fail) {
    (void)tail;
    (void)g;
    (void)a;
    (void)b;
    (void)fail;
    kiv::rt::report_text(fail, "g01efc", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "g01efc");
    return 0;
}

KIV_API void g01aac(int n, const double x[], const double wt[], int *nvalid, double *xmean, double *xsd, double *xskew, double *xkurt, double *xmin, double *xmax, double *wsum, KivError *fail) {
    (void)n;
    (void)x;
    (void)wt;
    (void)nvalid;
    (void)xmean;
    (void)xsd;
    (void)xskew;
    (void)xkurt;
    (void)xmin;
    (void)xmax;
    (void)wsum;
    (void)fail;
    kiv::rt::report_text(fail, "g01aac", NE_NOT_AVAILABLE, "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.", "g01aac");
}

}  // extern "C"
