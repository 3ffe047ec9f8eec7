// Ranking with ties (ranks from 0, tied values sharing their average rank)
// and the tie sums that the Kendall and Spearman coefficients need.
//
// Ranks are kept doubled, 2k + t - 1 for a group of t equal values that
// starts at sorted position k, so that every rank is an integer and the
// sums built from them (squared rank differences, cubic tie sums) are
// exact. The cubic sum Q reaches n^3/2, beyond 64 bits for n above about
// 2.6 million, hence the 128-bit WideInt.
//
// Reference: M. G. Kendall and J. D. Gibbons, Rank Correlation Methods,
// 5th ed., Edward Arnold, London, 1990, Chapter 3 (tied ranks: the
// corrections sum t(t-1)/2 for Kendall's tau-b and sum (t^3 - t)/12 for
// Spearman's rho).
#include "kernels/rank.hpp"

namespace kiv::kernels {

WideInt WideInt::product(std::uint64_t a, std::uint64_t b) {
    constexpr std::uint64_t mask = 0xFFFFFFFFu;
    const std::uint64_t a_low = a & mask, a_high = a >> 32;
    const std::uint64_t b_low = b & mask, b_high = b >> 32;
    const std::uint64_t low_low = a_low * b_low;
    const std::uint64_t low_high = a_low * b_high;
    const std::uint64_t high_low = a_high * b_low;
    const std::uint64_t high_high = a_high * b_high;
    const std::uint64_t middle = (low_low >> 32) + (low_high & mask) + (high_low & mask);
    WideInt result;
    result.low = (middle << 32) | (low_low & mask);
    result.high = high_high + (low_high >> 32) + (high_low >> 32) + (middle >> 32);
    return result;
}

double WideInt::to_double() const {
    if (negative()) {
        const WideInt magnitude = WideInt{} - *this;
        return -magnitude.to_double();
    }
    constexpr double two_to_64 = 18446744073709551616.0;
    return static_cast<double>(high) * two_to_64 + static_cast<double>(low);
}

namespace {

// t(t-1)/2 and (t+1)t(t-1)/2 for a group (or sample) of size t.
std::uint64_t pairs_of(std::uint64_t t) {
    return t * (t - 1) / 2;
}

WideInt cubic_of(std::uint64_t t) {
    // (t+1) t (t-1) / 2: halve the even one of t and t+1 first.
    const std::uint64_t half = (t % 2 == 0) ? (t / 2) * (t + 1) : t * ((t + 1) / 2);
    return WideInt::product(half, t - 1);
}

}  // namespace

TieSums assign_ranks(const KeyedIndex *sorted, std::size_t n, std::uint32_t *doubled_rank) {
    TieSums sums;
    std::uint64_t tied_pairs = 0;
    WideInt tied_cubic;
    std::size_t start = 0;
    while (start < n) {
        std::size_t end = start + 1;
        while (end < n && sorted[end].key == sorted[start].key) ++end;
        const std::uint64_t t = end - start;
        const auto rank2 = static_cast<std::uint32_t>(2 * start + t - 1);
        for (std::size_t k = start; k < end; ++k) doubled_rank[sorted[k].index] = rank2;
        if (t > 1) {
            tied_pairs += pairs_of(t);
            tied_cubic += cubic_of(t);
        }
        start = end;
    }
    sums.tied_pairs = static_cast<std::int64_t>(tied_pairs);
    sums.untied_pairs = static_cast<std::int64_t>(pairs_of(n) - tied_pairs);
    sums.cubic = (n > 0 ? cubic_of(n) : WideInt{}) - tied_cubic;
    return sums;
}

}  // namespace kiv::kernels
