// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

KIV_API void g01eac_v(Kiv_Tail tail, int n, const double x[], double out[], KivError *fail) {
    (void)tail;
    (void)n;
    (void)x;
    (void)out;
    (void)fail;
    kiv::rt::report_text(fail, "g01eac_v", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g01eac_v");
}

KIV_API void g01fac_v(Kiv_Tail tail, int n, const double p[], double out[], KivError *fail) {
    (void)tail;
    (void)n;
    (void)p;
    (void)out;
    (void)fail;
    kiv::rt::report_text(fail, "g01fac_v", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g01fac_v");
}

KIV_API double g01eac(Kiv_Tail tail, double x, KivError *fail) {
    (void)tail;
    (void)x;
    (void)fail;
    kiv::rt::report_text(fail, "g01eac", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g01eac");
    return 0;
}

KIV_API double g01fac(Kiv_Tail tail, double p, KivError *fail) {
    (void)tail;
    (void)p;
    (void)fail;
    kiv::rt::report_text(fail, "g01fac", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g01fac");
    return 0;
}

KIV_API double g01cec(double p, KivError *fail) {
    (void)p;
    (void)fail;
    kiv::rt::report_text(fail, "g01cec", NE_NOT_AVAILABLE,
                         "NE_NOT_AVAILABLE:\n  Routine %s is not available in this library.",
                         "g01cec");
    return 0;
}

}  // extern "C"
