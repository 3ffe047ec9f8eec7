// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

KIV_API void g02btc(Kiv_SumSquare mean, int m, double wt, const double x[], int incx, double *sw,
                    double xbar[], double c[], KivError *fail) {
    (void)mean;
    (void)m;
    (void)wt;
    (void)x;
    (void)incx;
    (void)sw;
    (void)xbar;
    (void)c;
    (void)fail;
    kiv::rt::report_text(fail, "g02btc", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g02btc");
}

KIV_API void g02buc(Kiv_SumSquare mean, Kiv_OrderType order, int n, int m, const double x[],
                    int pdx, const double wt[], double *sw, double wmean[], double c[],
                    KivError *fail) {
    (void)mean;
    (void)order;
    (void)n;
    (void)m;
    (void)x;
    (void)pdx;
    (void)wt;
    (void)sw;
    (void)wmean;
    (void)c;
    (void)fail;
    kiv::rt::report_text(fail, "g02buc", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g02buc");
}

KIV_API void g02bwc(int m, double r[], KivError *fail) {
    (void)m;
    (void)r;
    (void)fail;
    kiv::rt::report_text(fail, "g02bwc", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g02bwc");
}

KIV_API void g02byc(int m, int ny, int nx, const int isz[], const double r[], int tdr, double p[],
                    int tdp, KivError *fail) {
    (void)m;
    (void)ny;
    (void)nx;
    (void)isz;
    (void)r;
    (void)tdr;
    (void)p;
    (void)tdp;
    (void)fail;
    kiv::rt::report_text(fail, "g02byc", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g02byc");
}

}  // extern "C"
