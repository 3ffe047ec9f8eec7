// Independent references for the generator tests: the recurrence
// x_{k+1} = 13^13 x_k mod 2^59 in 128-bit integer arithmetic, the uniform
// x/2^59 formed by a single rounding of the integer, and the thread's
// carried uniform through the state accessor.
#pragma once

#include <cstdint>

#include "kiv.h"

namespace g05_reference {

__extension__ typedef unsigned __int128 u128;

inline constexpr std::uint64_t a = 302875106592253u;  // 13^13
inline constexpr std::uint64_t modulus_mask = (std::uint64_t{1} << 59) - 1;
inline constexpr std::uint64_t default_x = 123456789u * ((std::uint64_t{1} << 32) + 1);

inline std::uint64_t step(std::uint64_t x) {
    return static_cast<std::uint64_t>((u128{x} * a) & modulus_mask);
}

inline double uniform(std::uint64_t x) {
    const double u = static_cast<double>(x) * 0x1p-59;
    return u < 1.0 ? u : 1.0 - 0x1p-53;
}

// The carried uniform of the calling thread (carry_uniform).
inline double &carried_uniform() {
    int code = 0;
    int *pieces = nullptr;
    double *carries = nullptr, *buffer = nullptr, *scale = nullptr;
    g05caz(&code, &pieces, &carries, &buffer, &scale);
    return carries[0];
}

}  // namespace g05_reference
