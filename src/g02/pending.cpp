// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

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
