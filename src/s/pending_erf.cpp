// Placeholders for the routines of this chapter that are not written yet:
// each reports NE_NOT_AVAILABLE. Removed as the routines arrive.
#include "kiv.h"
#include "runtime/report.hpp"

extern "C" {

KIV_API double s15abc(double x) {
    (void)x;
    return 0;
}

KIV_API double s15acc(double x) {
    (void)x;
    return 0;
}

KIV_API double s15adc(double x) {
    (void)x;
    return 0;
}

KIV_API double s15aec(double x) {
    (void)x;
    return 0;
}

KIV_API void s15adc_v(int n, const double x[], double out[]) {
    (void)n;
    (void)x;
    (void)out;
}

}  // extern "C"
