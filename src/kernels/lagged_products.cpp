// The lagged products c[k-1] = sum_t dev[t + k] dev[t], k = 1..nk, of a
// series of deviations (the numerators of the autocorrelations of g13abc),
// each lag summed in increasing t with one accumulator, so that every
// processor path gives the bits of the plain double loop: chunks of the
// series that stay in the first-level cache, blocks of lags side by side in
// vector registers (SSE2 pairs, or AVX quads chosen at run time).
#include "kernels/lagged_products.hpp"

#include <algorithm>
#include <cstring>

#include "kernels/simd.hpp"

namespace kiv::kernels {

namespace {

// Indices per chunk: two 16 KiB windows of the deviations (around i and
// around i + k) stay in the first-level cache while all lags visit them.
constexpr std::size_t kChunk = 2048;

// Lags side by side in one vector register (Pair, Quad of simd.hpp): element
// j of a vector only ever meets element j of another, so each lag keeps its
// own in-order sum. Four lags per AVX register are chosen at run time on
// processors with AVX (no fused multiply-add: the rounding stays that of the
// plain loop).

// The main loop of a block: indices [begin, common_end) of Lags lags, all of
// which have terms there. One accumulator per lag, terms in increasing i,
// Vec holding sizeof(Vec) / 8 neighbouring lags.
template <class Vec, std::size_t Lags>
KIV_FORCE_INLINE void accumulate_common(const double *dev, std::size_t first, std::size_t begin,
                                        std::size_t common_end, double *acc) {
    const double *ahead = dev + first;
    constexpr std::size_t kLanes = sizeof(Vec) / sizeof(double);
    if constexpr (kHaveVectors && kLanes > 0 && Lags % kLanes == 0) {
        constexpr std::size_t kVectors = Lags / kLanes;
        Vec sums[kVectors];
        std::memcpy(sums, acc, sizeof sums);
        for (std::size_t i = begin; i < common_end; ++i) {
            const Vec lead = Vec{} + dev[i];
            for (std::size_t j = 0; j < kVectors; ++j) {
                Vec later;
                std::memcpy(&later, ahead + i + kLanes * j, sizeof later);
                sums[j] += later * lead;
            }
        }
        std::memcpy(acc, sums, sizeof sums);
        return;
    }
    for (std::size_t i = begin; i < common_end; ++i) {
        const double lead = dev[i];
        for (std::size_t j = 0; j < Lags; ++j) acc[j] += ahead[i + j] * lead;
    }
}

// Adds to c[j] (lag first + j) the terms of indices [begin, end) of each of
// Lags consecutive lags, one accumulator per lag, in increasing index.
template <class Vec, std::size_t Lags>
KIV_FORCE_INLINE void accumulate_lag_block(const double *dev, std::size_t n, std::size_t first,
                                           std::size_t begin, std::size_t end, double *c) {
    const std::size_t last = first + Lags - 1;
    // Indices at which all Lags lags still have terms.
    const std::size_t common_end = n > last ? std::max(begin, std::min(end, n - last)) : begin;
    double acc[Lags];
    for (std::size_t j = 0; j < Lags; ++j) acc[j] = c[j];
    accumulate_common<Vec, Lags>(dev, first, begin, common_end, acc);
    // The shorter lags have a few terms more at the end of the series.
    for (std::size_t j = 0; j < Lags; ++j) {
        const std::size_t lag = first + j;
        const std::size_t stop = n > lag ? std::min(end, n - lag) : begin;
        for (std::size_t t = common_end; t < stop; ++t) acc[j] += dev[t + lag] * dev[t];
        c[j] = acc[j];
    }
}

// All lags, chunk by chunk: blocks of Block lags (eight vector accumulators,
// enough to hide the latency of the add), then halving blocks for the rest.
template <class Vec, std::size_t Block>
KIV_FORCE_INLINE void lagged_products_by_blocks(const double *dev, std::size_t n, std::size_t nk,
                                                double *c) {
    std::fill(c, c + nk, 0.0);
    for (std::size_t begin = 0; begin < n; begin += kChunk) {
        const std::size_t end = std::min(n, begin + kChunk);
        std::size_t lag = 1;
        for (; lag + Block - 1 <= nk; lag += Block)
            accumulate_lag_block<Vec, Block>(dev, n, lag, begin, end, c + lag - 1);
        if constexpr (Block > 16) {
            if (lag + 15 <= nk) {
                accumulate_lag_block<Vec, 16>(dev, n, lag, begin, end, c + lag - 1);
                lag += 16;
            }
        }
        if (lag + 7 <= nk) {
            accumulate_lag_block<Vec, 8>(dev, n, lag, begin, end, c + lag - 1);
            lag += 8;
        }
        if (lag + 3 <= nk) {
            accumulate_lag_block<Vec, 4>(dev, n, lag, begin, end, c + lag - 1);
            lag += 4;
        }
        if (lag + 1 <= nk) {
            accumulate_lag_block<Pair, 2>(dev, n, lag, begin, end, c + lag - 1);
            lag += 2;
        }
        if (lag <= nk) accumulate_lag_block<Pair, 1>(dev, n, lag, begin, end, c + lag - 1);
    }
}

KIV_TARGET_AVX void lagged_products_avx(const double *dev, std::size_t n, std::size_t nk,
                                        double *c) {
    if constexpr (kHaveAvxQuads) lagged_products_by_blocks<Quad, 32>(dev, n, nk, c);
}

}  // namespace

void lagged_products(const double *dev, std::size_t n, std::size_t nk, double *c) {
    if (kHaveAvxQuads && cpu_has_avx()) {
        lagged_products_avx(dev, n, nk, c);
        return;
    }
    lagged_products_portable(dev, n, nk, c);
}

void lagged_products_portable(const double *dev, std::size_t n, std::size_t nk, double *c) {
    lagged_products_by_blocks<Pair, 16>(dev, n, nk, c);
}

}  // namespace kiv::kernels
