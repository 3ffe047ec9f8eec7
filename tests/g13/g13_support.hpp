// Helpers shared by the time-series tests.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "kiv.h"
#include "support/support.hpp"

namespace g13_test {

using kiv::test_support::quiet_record;

// Deterministic uniform numbers on [-0.5, 0.5) from a 64-bit linear
// congruential generator (Knuth's MMIX constants): the same on every platform.
class Uniform {
public:
    explicit Uniform(std::uint64_t seed) : state_(seed) {}
    double operator()() {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(state_ >> 11) * 0x1p-53 - 0.5;
    }

private:
    std::uint64_t state_;
};

// n values of the AR(1) process y_t = phi y_{t-1} + e_t plus `offset`,
// with e_t uniform as above.
inline std::vector<double> ar1_series(std::size_t n, double phi, double offset,
                                      std::uint64_t seed) {
    Uniform noise(seed);
    std::vector<double> y(n);
    double level = 0.0;
    for (double &value : y) {
        level = phi * level + noise();
        value = offset + level;
    }
    return y;
}

}  // namespace g13_test
