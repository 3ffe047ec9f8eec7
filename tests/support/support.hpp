// Helpers shared by every test suite: a quiet record whose fields show
// whether a routine wrote them, and the distance of a result from its
// reference in units in the last place.
#pragma once

#include <cmath>

#include "kiv.h"

namespace kiv::test_support {

// A record that keeps failures quiet (nothing printed, no abort); its code
// and errnum are sentinels that a routine must overwrite (code) or leave
// (errnum) as documented.
inline KivError quiet_record() {
    KivError fail{};
    fail.print = 0;
    fail.code = -99;
    fail.errnum = -7;
    return fail;
}

// A record with nothing set but print = 0: a zero code, as a caller's
// zero-initialised record has.
inline KivError plain_record() {
    KivError fail{};
    fail.print = 0;
    return fail;
}

// |computed - reference| in units of the spacing of doubles at |reference|
// (0 when both are equal, infinities included).
inline double ulps_between(double computed, double reference) {
    if (computed == reference) return 0.0;
    const double magnitude = std::fabs(reference);
    return std::fabs(computed - reference) / (std::nextafter(magnitude, HUGE_VAL) - magnitude);
}

}  // namespace kiv::test_support
