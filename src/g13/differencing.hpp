// The computational core of the differencing routine g13aac and the
// translation of its fault text, visible to the tests.
#pragma once

#include <cstddef>

#include "kiv.h"

namespace kiv::g13 {

// Length of the fault text area that the core requires.
constexpr std::size_t kFaultTextLength = 200;

// Fault identifiers written by the core (third field of its fault text).
enum DifferencingFault : int {
    kFaultNegativeD = 99999,
    kFaultNegativeDs = 99998,
    kFaultNegativeS = 99997,
    kFaultSeasonalWithoutPeriod = 99996,
    kFaultSeriesTooShort = 99995,
};

// Differences x[0..nx-1] d times with lag 1 and ds times with lag s into xd
// (nx elements) and sets *nxd = nx - d - ds*s. Returns the failure
// indicator: 0 on success, 1 for a bad order or period, 2 for a series too
// short, -999 when the fault area is shorter than kFaultTextLength. On
// failure `fault` holds "NAME indicator identifier count value..." with
// count values (1, or 4 for a series too short) already formatted as text.
int difference_series(const double *x, int nx, int d, int ds, int s, double *xd, int *nxd,
                      char *fault, std::size_t fault_length);

// Stores `indicator` in fail->errnum, reads the core's fault text and
// reports the matching message of `routine` (NE_INTERNAL_ERROR when the
// text cannot be read or the identifier is unknown).
void report_differencing_fault(int indicator, const char *fault, const char *routine,
                               KivError *fail);

}  // namespace kiv::g13
