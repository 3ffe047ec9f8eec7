// Helpers shared by the error-function and normal-distribution tests: a
// quiet record, the invalid tails, messages, bit-for-bit comparison and the
// lane sets to try.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include "kernels/lanes.hpp"
#include "kiv.h"
#include "support/support.hpp"

namespace kiv::test {

using kiv::test_support::quiet_record;

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

// The same bits, or both NaN (a NaN's sign and payload are the processor's).
inline bool same_bits(double a, double b) {
    return (a != a && b != b) || std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// Baseline, and AVX2 where the processor has it.
inline std::vector<kiv::kernels::LaneSet> lane_sets() {
    std::vector<kiv::kernels::LaneSet> sets = {kiv::kernels::LaneSet::baseline};
    if (kiv::kernels::best_lane_set() == kiv::kernels::LaneSet::avx2)
        sets.push_back(kiv::kernels::LaneSet::avx2);
    return sets;
}

}  // namespace kiv::test
