// Helpers shared by the normal-distribution tests: a quiet record, the
// invalid tails, and the lane sets to try.
#pragma once

#include <string>

#include "kiv.h"

namespace kiv::test {

inline KivError quiet_record() {
    KivError fail{};
    fail.print = 0;
    fail.code = -99;  // must be overwritten
    return fail;
}

// Members of other enumerations next to Kiv_Tail, plain junk, and the two
// Kiv_Tail members that the normal routines refuse.
inline const int kInvalidTails[] = {0, -1, 1328, 1333, 1334, 1335};

inline const char *const kBadTailMessage =
    "NE_BAD_PARAM:\n  On entry, parameter tail had an illegal value.";

inline std::string at_most_zero_message(const char *name, const char *value) {
    return std::string("NE_REAL_ARG_LE:\n  On entry, ") + name +
           " must not be less than or equal to 0.0: " + name + " = " + value + ".";
}

inline std::string at_least_one_message(const char *name, const char *value) {
    return std::string("NE_REAL_ARG_GE:\n  On entry, ") + name +
           " must not be greater than or equal to 1.0: " + name + " = " + value + ".";
}

}  // namespace kiv::test
