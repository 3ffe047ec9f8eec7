// g13aac: simple and seasonal differencing of a time series.
//
// Definition. With the backward shift B (B x_t = x_{t-1}), the routine
// forms w_t = (1 - B)^d (1 - B^s)^ds x_t for the nx - d - ds*s indices t
// at which every term exists: d simple differences and ds seasonal
// differences of period s (Box and Jenkins, chapter 4). The two operators
// commute, so w does not depend on the order in which they are applied.
//
// Output layout (xd needs nx elements):
//   xd[0 .. nxd-1]            the differenced series w, nxd = nx - d - ds*s;
//   xd[nxd .. nx-1]           the d + ds*s values needed to undo the
//                             differencing, in the order they were produced:
//   xd[nxd + i], i < d        first value of the series after i simple
//                             differences (so xd[nxd] = x[0]);
//   xd[nxd + d + j*s + t]     value t (t < s) of the series after all d
//                             simple differences and j seasonal ones.
// Simple differences are applied first, then the seasonal ones. To recover
// x, undo the stages in reverse order: a stage of lag L with saved values
// y_0 ... y_{L-1} rebuilds y_t = y_{t-L} + w_{t-L} for t >= L, and the
// rebuilt series is the input of the previous stage.
//
// Method. xd is filled with x; each stage of lag L runs backwards over the
// current series, kept at the right end of xd, replacing y_t by
// y_t - y_{t-L}: the first L values of the stage's input stay in place and
// are exactly the values that undo it. A final rotation brings the
// differenced series to the front. Every difference is one rounded
// subtraction of the previous stage's values, so w is exact whenever the
// subtractions are (integers below 2^53, for example). No work space.
//
// Structure. A front end checks the pointers and calls the core, which
// checks the orders and writes a fault text "NAME indicator identifier
// count value..." into a 200-character area; the front end reads the text
// back with sscanf and reports its own messages.
//
// Accuracy (measured, tests/g13/differencing_test.cpp): integer-valued
// series are differenced and recovered exactly; a seasonal series with a
// linear trend is reduced to zero within 1 ulp of its magnitude.
//
// References.
// - G. E. P. Box, G. M. Jenkins, G. C. Reinsel and G. M. Ljung, Time Series
//   Analysis: Forecasting and Control, 5th ed., Wiley, Hoboken, 2015,
//   chapters 4 and 9 (nonstationary and seasonal models).
#include "g13/differencing.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "g13/arguments.hpp"
#include "kiv.h"
#include "runtime/report.hpp"

namespace kiv::g13 {

namespace {

constexpr const char *kCoreName = "G13AAZ";

// Writes the fault text of one integer value and returns the indicator.
int fault_one(char *fault, std::size_t length, int indicator, int identifier, long value) {
    std::snprintf(fault, length, "%-6s %d %d %d %ld", kCoreName, indicator, identifier, 1, value);
    return kiv_ifail_exit(1, indicator, kCoreName, 1, fault, 6, static_cast<int>(length));
}

// Replaces y_t by y_t - y_{t-lag} for the series xd[begin .. end-1],
// running backwards so that every y_{t-lag} read is still the input.
void difference_in_place(double *xd, std::size_t begin, std::size_t end, std::size_t lag) {
    for (std::size_t t = end; t-- > begin + lag;) xd[t] -= xd[t - lag];
}

}  // namespace

int difference_series(const double *x, int nx, int d, int ds, int s, double *xd, int *nxd,
                      char *fault, std::size_t fault_length) {
    if (fault == nullptr || fault_length < kFaultTextLength) return -999;
    if (d < 0) return fault_one(fault, fault_length, 1, kFaultNegativeD, d);
    if (ds < 0) return fault_one(fault, fault_length, 1, kFaultNegativeDs, ds);
    if (s < 0) return fault_one(fault, fault_length, 1, kFaultNegativeS, s);
    if (s == 0 && ds > 0) return fault_one(fault, fault_length, 1, kFaultSeasonalWithoutPeriod, ds);
    const std::int64_t removed = std::int64_t{d} + std::int64_t{ds} * std::int64_t{s};
    if (std::int64_t{nx} <= removed) {
        std::snprintf(fault, fault_length, "%-6s %d %d %d %d %d %d %d", kCoreName, 2,
                      kFaultSeriesTooShort, 4, nx, d, ds, s);
        return kiv_ifail_exit(1, 2, kCoreName, 1, fault, 6, static_cast<int>(fault_length));
    }

    const auto n = static_cast<std::size_t>(nx);
    if (xd != x) std::memmove(xd, x, n * sizeof(double));
    std::size_t begin = 0;
    for (int stage = 0; stage < d; ++stage, begin += 1) difference_in_place(xd, begin, n, 1);
    const auto period = static_cast<std::size_t>(s);
    for (int stage = 0; stage < ds; ++stage, begin += period)
        difference_in_place(xd, begin, n, period);
    std::rotate(xd, xd + begin, xd + n);
    *nxd = static_cast<int>(n - begin);
    return 0;
}

void report_differencing_fault(int indicator, const char *fault, const char *routine,
                               KivError *fail) {
    if (fail != nullptr) fail->errnum = indicator;
    char name[7] = {};
    int read_indicator = 0;
    int identifier = 0;
    int count = 0;
    char value[4][20] = {};
    if (std::sscanf(fault, "%6s %d %d", name, &read_indicator, &identifier) < 3) {
        kiv::rt::report_code(fail, routine, NE_INTERNAL_ERROR);
        return;
    }
    const bool four_values = identifier == kFaultSeriesTooShort;
    const int fields =
        four_values ? std::sscanf(fault, "%6s %d %d %d %19s %19s %19s %19s", name, &read_indicator,
                                  &identifier, &count, value[0], value[1], value[2], value[3])
                    : std::sscanf(fault, "%6s %d %d %d %19s", name, &read_indicator, &identifier,
                                  &count, value[0]);
    if (fields < (four_values ? 8 : 5)) {
        kiv::rt::report_code(fail, routine, NE_INTERNAL_ERROR);
        return;
    }
    switch (identifier) {
        case kFaultNegativeD:
            kiv::rt::report_text(fail, routine, NE_INT,
                                 "NE_INT:\n    On entry, d = %s.\nConstraint: d >= 0.", value[0]);
            return;
        case kFaultNegativeDs:
            kiv::rt::report_text(fail, routine, NE_INT,
                                 "NE_INT:\n    On entry, ds = %s.\nConstraint: ds >= 0.", value[0]);
            return;
        case kFaultNegativeS:
            kiv::rt::report_text(fail, routine, NE_INT,
                                 "NE_INT:\n    On entry, s = %s.\nConstraint: s >= 0.", value[0]);
            return;
        case kFaultSeasonalWithoutPeriod:
            kiv::rt::report_text(fail, routine, NE_INT_2,
                                 "NE_INT_2:\n    On entry, s = 0 and ds > 0:\n    ds =%s.",
                                 value[0]);
            return;
        case kFaultSeriesTooShort:
            kiv::rt::report_text(fail, routine, NE_INT_4,
                                 "NE_INT_4:\n    On entry, nx <= d+(ds*s):\n    nx =%s, d =%s\n"
                                 "    ds =%s, s =%s.",
                                 value[0], value[1], value[2], value[3]);
            return;
        default:
            kiv::rt::report_template(fail, routine, NE_INTERNAL_ERROR, identifier);
            return;
    }
}

}  // namespace kiv::g13

extern "C" {

KIV_API void g13aac(const double x[], int nx, int d, int ds, int s, double xd[], int *nxd,
                    KivError *fail) {
    static constexpr const char *kRoutine = "g13aac";
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    if (kiv::g13::report_null_argument(fail, kRoutine, {{x, "x"}, {xd, "xd"}, {nxd, "nxd"}}))
        return;

    char fault[kiv::g13::kFaultTextLength] = {};
    const int indicator =
        kiv::g13::difference_series(x, nx, d, ds, s, xd, nxd, fault, sizeof fault);
    if (indicator != 0) {
        kiv::g13::report_differencing_fault(indicator, fault, kRoutine, fail);
        return;
    }
    kiv::rt::report_success(fail, kRoutine);
}

}  // extern "C"
