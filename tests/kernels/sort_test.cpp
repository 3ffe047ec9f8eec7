// Index sort of doubles: ascending order, every index once, the total
// order of the keys (signed zeros tie, NaNs last), on all three size paths.
#include "kernels/sort.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace {

using kiv::kernels::KeyedIndex;

std::vector<KeyedIndex> sorted_items(const std::vector<double> &values) {
    std::vector<KeyedIndex> items(values.size()), scratch(values.size());
    kiv::kernels::index_sort(values.data(), values.size(), items.data(), scratch.data());
    return items;
}

TEST(IndexSort, AscendingPermutationOnEverySizePath) {
    std::mt19937_64 engine(20240607);
    for (std::size_t n : {0u, 1u, 2u, 31u, 32u, 255u, 256u, 5000u}) {
        std::uniform_int_distribution<int> small(-50, 50);
        std::normal_distribution<double> normal(0.0, 1e3);
        std::vector<double> values(n);
        for (std::size_t i = 0; i < n; ++i)
            values[i] = (i % 3 == 0) ? small(engine) : normal(engine);
        const auto items = sorted_items(values);
        std::vector<bool> seen(n, false);
        for (std::size_t k = 0; k < n; ++k) {
            ASSERT_LT(items[k].index, n);
            EXPECT_FALSE(seen[items[k].index]);
            seen[items[k].index] = true;
            if (k > 0) {
                EXPECT_LE(values[items[k - 1].index], values[items[k].index]) << n << " " << k;
            }
        }
    }
}

TEST(IndexSort, TotalOrderWithZerosInfinitiesAndNaN) {
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(kiv::kernels::order_key(-0.0), kiv::kernels::order_key(0.0));
    EXPECT_EQ(kiv::kernels::order_key(nan), kiv::kernels::order_key(-nan));
    const double ladder[] = {-inf, -1e308, -1.0, -5e-324, 0.0, 5e-324, 1.0, 1e308, inf, nan};
    for (std::size_t i = 1; i < std::size(ladder); ++i)
        EXPECT_LT(kiv::kernels::order_key(ladder[i - 1]), kiv::kernels::order_key(ladder[i]));
    // On the radix path too: NaNs come last whatever their sign.
    std::vector<double> values(1000);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = (i % 7 == 0) ? (i % 2 ? nan : -nan) : std::sin(static_cast<double>(i));
    const auto items = sorted_items(values);
    const std::size_t finite =
        values.size() - static_cast<std::size_t>(std::count_if(
                            values.begin(), values.end(), [](double v) { return std::isnan(v); }));
    for (std::size_t k = 0; k < values.size(); ++k)
        EXPECT_EQ(std::isnan(values[items[k].index]), k >= finite);
}

}  // namespace
