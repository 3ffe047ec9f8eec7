// Machine constants, workspace and output services.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "kiv.h"
#include "runtime/platform.hpp"
#include "runtime/testing.hpp"
#include "runtime/workspace.hpp"

namespace {

TEST(MachineConstants, BitPatterns) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(x02ajc()), 0x3CA0000000000001u);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(x02akc()), 0x0010000000000000u);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(x02alc()), 0x7FEFFFFFFFFFFFFFu);
    volatile double one = 1.0;
    EXPECT_GT(one + x02ajc(), 1.0);
    EXPECT_NE(x02ajc(), 0x1p-53);
}

TEST(Workspace, FreeClearsThePointerAndAcceptsNull) {
    void *block = x04bbc(64);
    ASSERT_NE(block, nullptr);
    block = x04bcc(block, 4096);
    ASSERT_NE(block, nullptr);
    x04bdc(&block);
    EXPECT_EQ(block, nullptr);
    x04bdc(&block);
    EXPECT_EQ(block, nullptr);
    x04bdc(nullptr);
}

TEST(Workspace, CheckedSizesNeverWrap) {
    EXPECT_EQ(kiv::rt::checked_bytes(0, 8), 8u);
    EXPECT_EQ(kiv::rt::checked_bytes(SIZE_MAX / 8 + 1, 8), 0u);
    EXPECT_EQ(kiv::rt::allocate<double>(-1), nullptr);
    EXPECT_EQ(kiv::rt::allocate<double>(static_cast<long long>(SIZE_MAX / 4)), nullptr);
    EXPECT_EQ(kiv::rt::checked_count(1LL << 40, 1LL << 40), -1);
    kiv::rt::WorkArray<double> one(0);
    EXPECT_TRUE(one.ok());
}

TEST(Workspace, TestHookFailsAllocationsAfterACount) {
    kiv::rt::testing::fail_allocations_after(1);
    void *first = x04bbc(16);
    void *second = x04bbc(16);
    kiv::rt::testing::fail_allocations_after(-1);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
    x04bdc(&first);
}

TEST(Output, UnitQueryAlwaysAnswersSix) {
    int unit = -1;
    x04aaf(0, &unit);
    EXPECT_EQ(unit, 6);
    unit = 9;
    x04aaf(1, &unit);
    EXPECT_EQ(unit, 9);
}

TEST(Output, AppendsToANamedFile) {
    const std::string path = testing::TempDir() + "kiv_x04bay_test.txt";
    std::remove(path.c_str());
    x04bay(path.c_str(), "first line\n");
    x04bay(path.c_str(), "second");
    std::ifstream in(path);
    std::stringstream contents;
    contents << in.rdbuf();
    EXPECT_EQ(contents.str(), "first line\nsecond");
    std::remove(path.c_str());
}

TEST(Output, WritesToStandardOutputWithoutALineBreak) {
    testing::internal::CaptureStdout();
    x04bay(nullptr, "text");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "text");
}

using OutputDeathTest = testing::Test;

TEST(OutputDeathTest, UnopenableFileExitsWithStatusOne) {
    EXPECT_EXIT(x04bay("/nonexistent-dir/kiv/out.txt", "x"), testing::ExitedWithCode(1),
                "Unable To Open Output File: /nonexistent-dir/kiv/out.txt\n");
}

TEST(OutputDeathTest, UnwritableFileExitsWithStatusOne) {
#ifdef _WIN32
    GTEST_SKIP() << "Windows has no device like /dev/full on which every write fails";
#endif
    // /dev/full opens but every write fails (on flush or close).
    EXPECT_EXIT(x04bay("/dev/full", "x"), testing::ExitedWithCode(1),
                "Unable To (Write to|Close) the Output File: /dev/full\n");
}

}  // namespace

namespace {

TEST(Locks, NamedLocksSerialiseThreadsAndCanBeRetaken) {
    int counter = 0;
    auto work = [&counter] {
        for (int i = 0; i < 200; ++i) {
            kiv::platform::IoLock io;
            kiv::platform::AllocatorLock allocator;
            ++counter;
        }
    };
    std::thread first(work), second(work);
    first.join();
    second.join();
    EXPECT_EQ(counter, 400);
}

}  // namespace
