// Ranking with ties, and the exact integer tie sums of the rank
// correlations. See rank.cpp for the definitions.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/sort.hpp"

namespace kiv::kernels {

// Signed 128-bit integer (two's complement in two words), enough for the
// cubic tie sums and squared rank differences of up to 2^31 observations.
// Written out because 32-bit targets have no built-in 128-bit type.
struct WideInt {
    std::uint64_t low = 0;
    std::uint64_t high = 0;

    static WideInt from_unsigned(std::uint64_t value) { return WideInt{value, 0}; }
    static WideInt product(std::uint64_t a, std::uint64_t b);  // exact a*b

    WideInt &operator+=(const WideInt &other) {
        const std::uint64_t sum = low + other.low;
        high += other.high + (sum < low ? 1 : 0);
        low = sum;
        return *this;
    }
    WideInt &operator-=(const WideInt &other) {
        WideInt negated{~other.low, ~other.high};
        negated += WideInt{1, 0};
        return *this += negated;
    }
    friend WideInt operator+(WideInt a, const WideInt &b) { return a += b; }
    friend WideInt operator-(WideInt a, const WideInt &b) { return a -= b; }
    bool negative() const { return (high >> 63) != 0; }
    double to_double() const;  // correctly rounded to within one unit
};

// Tie sums of one ranked variable of n observations, the sums running over
// the groups of t tied values:
//   untied_pairs P = n(n-1)/2 - sum t(t-1)/2,
//   tied_pairs       sum t(t-1)/2,
//   cubic Q        = (n+1)n(n-1)/2 - sum (t+1)t(t-1)/2.
struct TieSums {
    std::int64_t untied_pairs = 0;
    std::int64_t tied_pairs = 0;
    WideInt cubic;
};

// Given the items of index_sort (sorted by key), writes twice the rank of
// each observation: an untied value at sorted position k has rank k, a
// group of t equal keys starting at k has the average rank k + (t-1)/2, so
// doubled_rank[items[k].index] = 2k + t - 1 (an integer below 2n). Returns
// the tie sums. n must be below 2^31.
TieSums assign_ranks(const KeyedIndex *sorted, std::size_t n, std::uint32_t *doubled_rank);

}  // namespace kiv::kernels
