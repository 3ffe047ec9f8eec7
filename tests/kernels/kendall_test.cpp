// Kendall's score by merge sort against the count over all pairs, on many
// random samples with heavy ties; tie sums and ranks against their
// definitions.
#include "kernels/kendall.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "kernels/rank.hpp"
#include "kernels/sort.hpp"

namespace {

using kiv::kernels::KeyedIndex;

struct Ranked {
    std::vector<std::uint32_t> order, rank2;
    kiv::kernels::TieSums ties;
};

Ranked rank_of(const std::vector<double> &values) {
    const std::size_t n = values.size();
    std::vector<KeyedIndex> items(n), scratch(n);
    kiv::kernels::index_sort(values.data(), n, items.data(), scratch.data());
    Ranked r{std::vector<std::uint32_t>(n), std::vector<std::uint32_t>(n), {}};
    r.ties = kiv::kernels::assign_ranks(items.data(), n, r.rank2.data());
    for (std::size_t k = 0; k < n; ++k) r.order[k] = items[k].index;
    return r;
}

int sign(double v) {
    return (v > 0) - (v < 0);
}

TEST(KendallScore, EqualsAllPairsCountOnTiedSamples) {
    std::mt19937_64 engine(7);
    for (int trial = 0; trial < 600; ++trial) {
        const std::size_t n = 1 + static_cast<std::size_t>(trial % 97) * 3;
        const int levels_a = 1 + trial % 11, levels_b = 1 + (trial / 11) % 13;
        std::uniform_int_distribution<int> da(0, levels_a), db(0, levels_b);
        std::vector<double> a(n), b(n);
        for (std::size_t i = 0; i < n; ++i) {
            a[i] = da(engine);
            b[i] = (trial % 5 == 0) ? -a[i] + db(engine) : db(engine);
        }
        std::int64_t expected = 0;
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t j = i + 1; j < n; ++j)
                expected += sign(a[i] - a[j]) * sign(b[i] - b[j]);
        const Ranked ra = rank_of(a), rb = rank_of(b);
        std::vector<std::uint32_t> seq(n), scratch(n);
        EXPECT_EQ(kiv::kernels::kendall_score(ra.order.data(), ra.rank2.data(), rb.rank2.data(), n,
                                              ra.ties.tied_pairs, rb.ties.tied_pairs, seq.data(),
                                              scratch.data()),
                  expected)
            << "trial " << trial;
    }
}

TEST(Ranks, AveragedTiesAndTieSums) {
    // Values 3 1 3 2 3 1: sorted 1 1 2 3 3 3, ranks (from 0) 0.5, 2, 4.
    const Ranked r = rank_of({3, 1, 3, 2, 3, 1});
    const std::vector<std::uint32_t> doubled = {8, 1, 8, 4, 8, 1};
    EXPECT_EQ(r.rank2, doubled);
    EXPECT_EQ(r.ties.tied_pairs, 1 + 3);
    EXPECT_EQ(r.ties.untied_pairs, 15 - 4);
    // Q = 7*6*5/2 - (3*2*1/2 + 4*3*2/2) = 105 - 15.
    EXPECT_EQ(r.ties.cubic.to_double(), 90.0);
}

TEST(WideInt, ProductsAndSignedSumsAreExact) {
    using kiv::kernels::WideInt;
    const std::uint64_t big = 0xFFFFFFFFFFFFFFFFu;
    const WideInt square = WideInt::product(big, big);  // 2^128 - 2^65 + 1
    EXPECT_EQ(square.low, 1u);
    EXPECT_EQ(square.high, big - 1);
    const WideInt difference = WideInt::from_unsigned(3) - WideInt::from_unsigned(10);
    EXPECT_TRUE(difference.negative());
    EXPECT_EQ(difference.to_double(), -7.0);
    EXPECT_EQ(WideInt::product(1ull << 40, 1ull << 40).to_double(), 0x1p80);
}

}  // namespace
