// A catalogue of calls with valid arguments, one per routine, shared by the
// thread, allocation-failure and licence tests. Every call reads inputs made
// from its variant number and writes its results into a Scratch area whose
// contents, with the record, are the call's whole observable outcome.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "kiv.h"
#include "support/support.hpp"

namespace kiv::reliability {

inline constexpr double kSentinel = -7777.25;
inline constexpr int kIntSentinel = -7777;

struct Scratch {
    std::array<double, 400> out;
    std::array<int, 16> iout;
    double result;

    void reset() {
        out.fill(kSentinel);
        iout.fill(kIntSentinel);
        result = kSentinel;
    }
    // No output written; with `zero_results`, slots holding 0.0 count as
    // untouched too (a refused scalar routine returns 0.0, which the
    // catalogue stores like an output).
    bool untouched(bool zero_results = false) const {
        for (double v : out)
            if (std::bit_cast<std::uint64_t>(v) != std::bit_cast<std::uint64_t>(kSentinel) &&
                !(zero_results && std::bit_cast<std::uint64_t>(v) == 0))
                return false;
        for (int v : iout)
            if (v != kIntSentinel) return false;
        return true;
    }
    bool same_as(const Scratch &other) const {
        for (std::size_t i = 0; i < out.size(); ++i)
            if (std::bit_cast<std::uint64_t>(out[i]) != std::bit_cast<std::uint64_t>(other.out[i]))
                return false;
        return iout == other.iout &&
               std::bit_cast<std::uint64_t>(result) == std::bit_cast<std::uint64_t>(other.result);
    }
};

struct Call {
    const char *routine;
    bool has_record;  // takes a KivError and runs the licence check
    std::function<void(Scratch &scratch, KivError *fail, int variant)> run;
    // The call prints the routine's outputs through the kiv tool's table (its
    // record's example) and keeps only a digest of the text in the scratch
    // area: "untouched" has no meaning for it.
    bool digest_only = false;
};

// Every routine of the library, with valid arguments.
const std::vector<Call> &catalogue();

// A reproducible value in [-1, 1) from (variant, index).
double sample(int variant, int index);

// A quiet record.
inline KivError quiet_record() {
    return kiv::test_support::plain_record();
}

}  // namespace kiv::reliability
