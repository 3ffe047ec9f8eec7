// Index sort of a vector of doubles (ascending), used by the rank
// correlations. See sort.cpp for the method.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kiv::kernels {

// A sort key with the index of the observation it came from.
struct KeyedIndex {
    std::uint64_t key;
    std::uint32_t index;
};

// Unsigned key whose integer order is a total order of the doubles:
// -0 and +0 give the same key, every NaN gives one key above +infinity.
std::uint64_t order_key(double value);

// Sorts items[0..n) by key, ascending and stably; scratch holds n items.
void sort_keyed(KeyedIndex *items, KeyedIndex *scratch, std::size_t n);

// Writes to items[0..n) the pairs (order_key(values[i]), i) sorted by key:
// items[k].index is the observation at sorted position k. scratch holds n
// items. n must be below 2^32.
void index_sort(const double *values, std::size_t n, KeyedIndex *items, KeyedIndex *scratch);

}  // namespace kiv::kernels
