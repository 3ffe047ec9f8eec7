// Kendall's score S in O(n log n). See kendall.cpp.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kiv::kernels {

// Number of pairs i < j with seq[i] > seq[j] (strictly); sorts seq
// ascending on the way, using scratch (n entries).
std::uint64_t count_inversions(std::uint32_t *seq, std::uint32_t *scratch, std::size_t n);

// Kendall's score of two ranked variables a and b of n observations:
// S = sum over pairs i < j of sign(a_i - a_j) * sign(b_i - b_j), pairs tied
// in either variable adding nothing. order_a lists the observations in
// increasing order of a; rank_a and rank_b are (doubled) ranks, equal for
// tied values; tied_pairs_a and tied_pairs_b are sum t(t-1)/2 over each
// variable's groups of ties. sequence and scratch hold n entries each.
std::int64_t kendall_score(const std::uint32_t *order_a, const std::uint32_t *rank_a,
                           const std::uint32_t *rank_b, std::size_t n, std::int64_t tied_pairs_a,
                           std::int64_t tied_pairs_b, std::uint32_t *sequence,
                           std::uint32_t *scratch);

}  // namespace kiv::kernels
