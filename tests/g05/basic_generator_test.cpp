// The basic generator: published values, the recurrence across refills,
// clock seeding, per-thread streams, the state accessor and the failure
// paths of a thread's first use.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <thread>
#include <vector>

#include "g05_reference.hpp"
#include "kiv.h"
#include "runtime/testing.hpp"

namespace {

namespace ref = g05_reference;

TEST(BasicGenerator, PublishedValuesAfterSeeding) {
    const struct {
        int seed;
        double first, second;
    } cases[] = {{0, 0.7951240249182501, 0.22571723577878883},
                 {1, 0.38537207475475027, 0.6771517073363665},
                 {-1, 0.38537207475475027, 0.6771517073363665}};
    for (const auto &c : cases) {
        g05cbc(c.seed);
        EXPECT_EQ(g05cac(), c.first) << c.seed;
        EXPECT_EQ(g05cac(), c.second) << c.seed;
    }
}

// Seeding with s gives x_0 = 2|s| + 1 and skips one step; every later number
// is the next term of the recurrence, whatever the buffer boundaries.
TEST(BasicGenerator, StreamFollowsTheRecurrenceAcrossRefills) {
    for (int seed : {0, 1, 7, 123456789, INT_MAX, INT_MIN, -98765}) {
        g05cbc(seed);
        const long long magnitude = std::llabs(static_cast<long long>(seed));
        std::uint64_t x = ref::step(static_cast<std::uint64_t>(2 * magnitude + 1));
        const int count = seed == 0 ? 100000 : 127;  // 63, 64 and 127 cross refills
        for (int k = 0; k < count; ++k) {
            const double u = g05cac();
            ASSERT_EQ(u, ref::uniform(x = ref::step(x))) << "seed " << seed << " draw " << k;
            ASSERT_TRUE(u > 0.0 && u < 1.0);
        }
    }
}

TEST(BasicGenerator, ClockSeedsInOneSecondDifferByOne) {
    // The inverse of 13^13 modulo 2^64 (Newton's iteration) undoes the one
    // step taken after seeding; x = 2t + 1 for the clock seed t.
    std::uint64_t inverse = ref::a;
    for (int k = 0; k < 6; ++k) inverse *= 2 - ref::a * inverse;
    std::uint64_t seeds[2];
    for (std::uint64_t &seed : seeds) {
        g05ccc();
        int istate[9];
        double xstate[4];
        g05cfc(istate, xstate);
        std::uint64_t x = 0;
        for (int k = 1; k <= 5; ++k) x = x * 4096 + static_cast<std::uint64_t>(istate[k]);
        seed = (((x * inverse) & ref::modulus_mask) - 1) / 2;
    }
    EXPECT_EQ(seeds[1], seeds[0] + 1);
    EXPECT_GE(static_cast<long>(seeds[0]), x05aac() - 5);
}

// Two new threads each get the default stream (its first two numbers are
// published), whatever the seeding of a third.
TEST(BasicGenerator, ThreadsHaveIndependentDefaultStreams) {
    constexpr int count = 300;
    std::vector<double> expected(count);
    std::uint64_t x = ref::default_x;
    for (double &u : expected) u = ref::uniform(x = ref::step(x));
    ASSERT_EQ(expected[0], 0.18629807732689174);
    ASSERT_EQ(expected[1], 0.1288061072480965);
    g05cbc(42);
    std::vector<double> streams[2];
    std::thread threads[2];
    for (int t = 0; t < 2; ++t)
        threads[t] = std::thread([&stream = streams[t]] {
            for (int k = 0; k < count; ++k) stream.push_back(g05cac());
        });
    for (std::thread &thread : threads) thread.join();
    EXPECT_EQ(streams[0], expected);
    EXPECT_EQ(streams[1], expected);
}

TEST(BasicGenerator, AccessorExposesTheThreadRecord) {
    g05cbc(5);
    int code = -1;
    int *pieces = nullptr;
    double *carries = nullptr, *buffer = nullptr, *scale = nullptr;
    g05caz(&code, &pieces, &carries, &buffer, &scale);
    EXPECT_EQ(code, 0);
    // Column 0 (the anchor) holds X = 4*5 + 2 in 15-bit pieces, rows of 64.
    EXPECT_EQ(pieces[0], 22);
    EXPECT_EQ(pieces[64] + pieces[128] + pieces[192], 0);
    EXPECT_EQ(carries[0], 1.0);
    EXPECT_EQ(carries[1], -1.0);
    EXPECT_EQ(*scale, 256.0);
    int index = 0;
    std::memcpy(&index, buffer + 63, sizeof index);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(g05cac(), buffer[1]);
}

// A refused licence writes nothing; no memory for the records gives
// NE_ALLOC_FAIL and NaN; either way the thread starts normally afterwards.
TEST(BasicGenerator, FailedFirstUseLeavesNoState) {
    std::thread([] {
        kiv::rt::testing::set_licence_refusal(true);
        int code = 17;
        int *pieces = nullptr;
        g05caz(&code, &pieces, nullptr, nullptr, nullptr);
        g05cbc(3);
        g05ccc();
        EXPECT_EQ(code, 17);
        EXPECT_EQ(pieces, nullptr);
        kiv::rt::testing::set_licence_refusal(false);
        kiv::rt::testing::fail_allocations_after(0);
        g05caz(&code, nullptr, nullptr, nullptr, nullptr);
        EXPECT_EQ(code, NE_ALLOC_FAIL);
        EXPECT_TRUE(std::isnan(g05cac()));
        EXPECT_TRUE(std::isnan(g05ddc(0.0, 1.0)));
        kiv::rt::testing::fail_allocations_after(-1);
        EXPECT_EQ(g05cac(), 0.18629807732689174);
    }).join();
}

}  // namespace
