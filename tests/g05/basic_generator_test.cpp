// The basic generator: published values, the recurrence across refills,
// seeding, clock seeding, per-thread streams and the state accessor.
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

// The generator value x behind the number delivered last, from g05cfc.
std::uint64_t saved_x() {
    int istate[9];
    double xstate[4];
    g05cfc(istate, xstate);
    std::uint64_t x = 0;
    for (int k = 1; k <= 5; ++k) x = x * 4096 + static_cast<std::uint64_t>(istate[k]);
    return x;
}

std::vector<double> draws(int count) {
    std::vector<double> out(count);
    for (double &u : out) u = g05cac();
    return out;
}

TEST(BasicGenerator, FreshThreadStartsInTheDefaultState) {
    std::vector<double> got;
    std::thread([&] { got = draws(2); }).join();
    EXPECT_EQ(got[0], 0.18629807732689174);
    EXPECT_EQ(got[1], 0.1288061072480965);
}

TEST(BasicGenerator, PublishedValuesAfterSeeding) {
    struct Case {
        int seed;
        double first, second;
    };
    const Case cases[] = {{0, 0.7951240249182501, 0.22571723577878883},
                          {1, 0.38537207475475027, 0.6771517073363665},
                          {-1, 0.38537207475475027, 0.6771517073363665}};
    for (const Case &c : cases) {
        g05cbc(c.seed);
        EXPECT_EQ(g05cac(), c.first) << c.seed;
        EXPECT_EQ(g05cac(), c.second) << c.seed;
    }
}

// Seeding with s gives x_0 = 2|s| + 1 and skips one step; every later number
// is the next term of the recurrence, whatever the buffer boundaries.
TEST(BasicGenerator, StreamFollowsTheRecurrenceAcrossRefills) {
    const int seeds[] = {0, 1, 7, 123456789, INT_MAX, INT_MIN, -98765};
    for (int seed : seeds) {
        g05cbc(seed);
        const long long magnitude = std::llabs(static_cast<long long>(seed));
        std::uint64_t x = ref::step(static_cast<std::uint64_t>(2 * magnitude + 1));
        const int count = seed == 0 ? 100000 : 127;  // 63, 64 and 127 cross refills
        for (int k = 0; k < count; ++k) {
            x = ref::step(x);
            const double u = g05cac();
            ASSERT_EQ(u, ref::uniform(x)) << "seed " << seed << " draw " << k;
            ASSERT_GT(u, 0.0);
            ASSERT_LT(u, 1.0);
        }
    }
}

TEST(BasicGenerator, ClockSeedsInOneSecondDifferByOne) {
    const std::uint64_t inverse = ref::inverse_a();
    g05ccc();
    const std::uint64_t first = (saved_x() * inverse) & ref::modulus_mask;
    g05ccc();
    const std::uint64_t second = (saved_x() * inverse) & ref::modulus_mask;
    EXPECT_EQ((second - 1) / 2, (first - 1) / 2 + 1);
    EXPECT_GE(static_cast<long>((first - 1) / 2), x05aac() - 5);
}

TEST(BasicGenerator, ThreadsHaveIndependentDefaultStreams) {
    constexpr int count = 300;
    std::vector<double> expected(count);
    std::uint64_t x = ref::default_x;
    for (double &u : expected) u = ref::uniform(x = ref::step(x));
    g05cbc(42);  // this thread's stream must not leak into the others
    std::vector<double> a, b;
    std::thread first([&] {
        for (int k = 0; k < count; ++k) a.push_back(g05cac());
    });
    std::thread second([&] {
        for (int k = 0; k < count; ++k) b.push_back(g05cac());
    });
    first.join();
    second.join();
    EXPECT_EQ(a, expected);
    EXPECT_EQ(b, expected);
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

TEST(BasicGenerator, RefusedLicenceWritesNothing) {
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
        EXPECT_EQ(g05cac(), 0.18629807732689174);
    }).join();
}

TEST(BasicGenerator, AllocationFailureGivesNaNAndNoState) {
    std::thread([] {
        kiv::rt::testing::fail_allocations_after(0);
        int code = 0;
        g05caz(&code, nullptr, nullptr, nullptr, nullptr);
        EXPECT_EQ(code, NE_ALLOC_FAIL);
        EXPECT_TRUE(std::isnan(g05cac()));
        EXPECT_TRUE(std::isnan(g05ddc(0.0, 1.0)));
        kiv::rt::testing::fail_allocations_after(-1);
        EXPECT_EQ(g05cac(), 0.18629807732689174);
    }).join();
}

}  // namespace
