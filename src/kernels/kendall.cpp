// Kendall's score S = (concordant pairs) - (discordant pairs) of two
// ranked variables in O(n log n) time, with ties.
//
// Method (Knight 1966, extended to ties): list the observations in
// increasing order of a, breaking ties in a by increasing b. A pair is then
// discordant exactly when its b values stand in strictly decreasing order,
// so the number of discordant pairs is the number of strict inversions of
// the b sequence, counted by a merge sort (insertion sort on blocks of 16,
// then bottom-up merges; a merge that takes from the right half while the
// left still holds k larger values adds k). With n0 = n(n-1)/2 pairs in
// all, n1 and n2 the pairs tied in a and in b, and n3 the pairs tied in
// both (runs of equal (a, b) in the listing),
//
//     concordant + discordant = n0 - n1 - n2 + n3,
//     S = n0 - n1 - n2 + n3 - 2 * discordant,
//
// the same integer as the count over all n(n-1)/2 pairs. Every count is a
// 64-bit integer: for n = 10^6, n0 is already 5 * 10^11.
//
// Reference: W. R. Knight, A computer method for calculating Kendall's tau
// with ungrouped data, Journal of the American Statistical Association 61
// (1966), 436-439.
#include "kernels/kendall.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kiv::kernels {

namespace {

constexpr std::size_t kBlock = 16;

// Insertion sort of seq[0..n), returning the number of strict inversions.
std::uint64_t insertion_count(std::uint32_t *seq, std::size_t n) {
    std::uint64_t inversions = 0;
    for (std::size_t i = 1; i < n; ++i) {
        const std::uint32_t value = seq[i];
        std::size_t j = i;
        while (j > 0 && seq[j - 1] > value) {
            seq[j] = seq[j - 1];
            --j;
        }
        inversions += i - j;
        seq[j] = value;
    }
    return inversions;
}

// Merges the sorted runs from[lo..mid) and from[mid..hi) into to[lo..hi).
std::uint64_t merge_count(const std::uint32_t *from, std::uint32_t *to, std::size_t lo,
                          std::size_t mid, std::size_t hi) {
    if (from[mid - 1] <= from[mid]) {  // already in order
        std::memcpy(to + lo, from + lo, (hi - lo) * sizeof(std::uint32_t));
        return 0;
    }
    std::uint64_t inversions = 0;
    std::size_t i = lo, j = mid, k = lo;
    while (i < mid && j < hi) {
        if (from[j] < from[i]) {
            inversions += mid - i;
            to[k++] = from[j++];
        } else {
            to[k++] = from[i++];
        }
    }
    while (i < mid) to[k++] = from[i++];
    while (j < hi) to[k++] = from[j++];
    return inversions;
}

}  // namespace

std::uint64_t count_inversions(std::uint32_t *seq, std::uint32_t *scratch, std::size_t n) {
    std::uint64_t inversions = 0;
    for (std::size_t lo = 0; lo < n; lo += kBlock)
        inversions += insertion_count(seq + lo, std::min(kBlock, n - lo));
    std::uint32_t *from = seq;
    std::uint32_t *to = scratch;
    for (std::size_t width = kBlock; width < n; width *= 2) {
        for (std::size_t lo = 0; lo < n; lo += 2 * width) {
            const std::size_t mid = std::min(lo + width, n);
            const std::size_t hi = std::min(lo + 2 * width, n);
            if (mid < hi) {
                inversions += merge_count(from, to, lo, mid, hi);
            } else {
                std::memcpy(to + lo, from + lo, (hi - lo) * sizeof(std::uint32_t));
            }
        }
        std::swap(from, to);
    }
    if (from != seq) std::memcpy(seq, from, n * sizeof(std::uint32_t));
    return inversions;
}

std::int64_t kendall_score(const std::uint32_t *order_a, const std::uint32_t *rank_a,
                           const std::uint32_t *rank_b, std::size_t n, std::int64_t tied_pairs_a,
                           std::int64_t tied_pairs_b, std::uint32_t *sequence,
                           std::uint32_t *scratch) {
    for (std::size_t k = 0; k < n; ++k) sequence[k] = rank_b[order_a[k]];

    // Within each group tied in a, order by b and count the pairs tied in both.
    std::uint64_t tied_both = 0;
    std::size_t start = 0;
    while (start < n) {
        const std::uint32_t group_rank = rank_a[order_a[start]];
        std::size_t end = start + 1;
        while (end < n && rank_a[order_a[end]] == group_rank) ++end;
        if (end - start > 1) {
            std::sort(sequence + start, sequence + end);
            std::size_t run = start;
            for (std::size_t k = start + 1; k <= end; ++k) {
                if (k == end || sequence[k] != sequence[run]) {
                    const std::uint64_t t = k - run;
                    tied_both += t * (t - 1) / 2;
                    run = k;
                }
            }
        }
        start = end;
    }

    const std::uint64_t discordant = count_inversions(sequence, scratch, n);
    const auto all_pairs = static_cast<std::int64_t>(static_cast<std::uint64_t>(n) * (n - 1) / 2);
    return all_pairs - tied_pairs_a - tied_pairs_b + static_cast<std::int64_t>(tied_both) -
           2 * static_cast<std::int64_t>(discordant);
}

}  // namespace kiv::kernels
