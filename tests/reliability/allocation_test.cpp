// Work-array allocation: every routine that allocates reports NE_ALLOC_FAIL
// when any of its allocations fails, frees what it had (the dev preset's
// LeakSanitizer checks), and gives its normal result once allocation is
// allowed again. Sizes whose byte count overflows size_t are refused
// before any allocation, never wrapped to a small block.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <set>
#include <string>
#include <thread>

#include "catalogue.hpp"
#include "runtime/testing.hpp"

// The huge requests below must come back from the heap as null (as they do
// from the C library's malloc) rather than stop AddressSanitizer.
extern "C" const char *__asan_default_options() {
    return "allocator_may_return_null=1";
}

namespace kiv::reliability {
namespace {

using kiv::rt::testing::fail_allocations_after;

constexpr char kAllocFail[] = "NE_ALLOC_FAIL:\n  Memory allocation failed.";

// Routines that must use work arrays whatever their data.
const std::set<std::string> kMustAllocate = {"g02brc", "g02buc", "g02bxc", "g02byc", "g13abc"};

TEST(AllocationFailure, EveryFailingAllocationIsReportedAndTheNextSucceeds) {
    // Per-thread generator state is created first, so that only the
    // routines' own work arrays meet the refusals.
    (void)g05cac();
    for (const Call &call : catalogue()) {
        if (!call.has_record) continue;
        Scratch expected;
        expected.reset();
        KivError expected_fail = quiet_record();
        call.run(expected, &expected_fail, 3);
        if (expected_fail.code != 0) {
            ADD_FAILURE() << call.routine << ": " << expected_fail.message;
            continue;
        }

        int failures = 0;
        for (long allowed = 0; allowed < 64; ++allowed) {
            Scratch scratch;
            scratch.reset();
            KivError fail = quiet_record();
            fail_allocations_after(allowed);
            call.run(scratch, &fail, 3);
            fail_allocations_after(-1);
            if (fail.code == NE_ALLOC_FAIL) {
                EXPECT_STREQ(fail.message, kAllocFail) << call.routine;
                ++failures;
                continue;
            }
            EXPECT_EQ(fail.code, 0) << call.routine << " with " << allowed << " allocations";
            EXPECT_TRUE(scratch.same_as(expected)) << call.routine;
            break;
        }
        if (kMustAllocate.count(call.routine) != 0) {
            EXPECT_GT(failures, 0) << call.routine << " never reported NE_ALLOC_FAIL";
        }
    }
}

// A thread whose first generator call cannot allocate its state does not
// crash: it gets NaN (no stream) or a number in (0, 1), and once memory is
// available again its calls work.
TEST(AllocationFailure, GeneratorsSurviveRefusalsOnFirstUse) {
    std::thread([] {
        fail_allocations_after(0);
        g05cbc(5);
        const double u = g05cac();
        int generator = 3, seeds[4] = {1, 2, 3, 4};
        g05kbc(&generator, seeds);
        fail_allocations_after(-1);
        EXPECT_TRUE(std::isnan(u) || (u > 0.0 && u < 1.0)) << u;
        g05cbc(0);
        EXPECT_EQ(g05cac(), 0.7951240249182501);
    }).join();
}

// Counts and strides at the top of the int range: the element counts and
// their byte sizes overflow 32-bit arithmetic, and n x m x 8 overflows
// 64-bit size_t too; requests that fit are too large for any heap. Each call
// is otherwise valid up to the allocation, and its arrays are tiny: the
// routine must refuse with NE_ALLOC_FAIL, never allocate a wrapped size
// and run over the arrays.
TEST(AllocationFailure, OverflowingSizesAreRefusedNotWrapped) {
    double tiny[4] = {};
    double sw = 0.0;
    KivError fail = quiet_record();

    // g02brc: n x m doubles of work space, 2^62 elements.
    g02brc(INT_MAX, INT_MAX, tiny, INT_MAX, nullptr, nullptr, tiny, INT_MAX, &fail);
    EXPECT_EQ(fail.code, NE_ALLOC_FAIL) << fail.message;

    // g02buc: a by-columns copy of n x m doubles stored by rows.
    fail = quiet_record();
    g02buc(Kiv_AboutMean, Kiv_RowMajor, INT_MAX, INT_MAX, tiny, INT_MAX, nullptr, &sw, tiny, tiny,
           &fail);
    EXPECT_EQ(fail.code, NE_ALLOC_FAIL) << fail.message;
}

// Without a record a failure prints and aborts the process, by design.
void refused_allocation_without_record() {
    double x[4] = {1, 2, 3, 4};
    double corr[4];
    fail_allocations_after(0);
    g02brc(2, 2, x, 2, nullptr, nullptr, corr, 2, nullptr);
}

TEST(AllocationFailureDeathTest, NullRecordAborts) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(refused_allocation_without_record(),
                 "Error detected by KIV routine g02brc:\nNE_ALLOC_FAIL:\n  Memory allocation "
                 "failed.\n...Program Aborted");
}

}  // namespace
}  // namespace kiv::reliability
