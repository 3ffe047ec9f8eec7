// Licence refusal: a refused call returns at once and writes neither its
// outputs nor the record (the handler is not called either). The generator
// routines, whose state accessor sets nothing on refusal, must still not
// crash, and the seeding routines leave the caller's arrays alone.
#include <gtest/gtest.h>

#include <cstring>
#include <thread>

#include "catalogue.hpp"
#include "runtime/testing.hpp"

namespace kiv::reliability {
namespace {

using kiv::rt::testing::set_licence_refusal;

int handler_calls = 0;
void count_handler(const char *, int, const char *) {
    ++handler_calls;
}

TEST(LicenceRefusal, RefusedCallsWriteNothing) {
    for (const Call &call : catalogue()) {
        if (!call.has_record) continue;
        Scratch scratch;
        scratch.reset();
        KivError fail = quiet_record();
        fail.code = 4242;
        std::strcpy(fail.message, "untouched");
        fail.errnum = 99;
        fail.handler = count_handler;
        handler_calls = 0;
        set_licence_refusal(true);
        call.run(scratch, &fail, 1);
        set_licence_refusal(false);
        // Inputs that the call itself prepares in the scratch area (g02btc's
        // running sums, g02bwc's matrix) are not outputs of the refused call.
        const bool prepares_inputs =
            std::strcmp(call.routine, "g02btc") == 0 || std::strcmp(call.routine, "g02bwc") == 0;
        const bool returns_value =
            std::strncmp(call.routine, "s14a", 4) == 0 ||
            std::strcmp(call.routine, "g01eac") == 0 || std::strcmp(call.routine, "g01fac") == 0 ||
            std::strcmp(call.routine, "g01cec") == 0 || std::strcmp(call.routine, "g01ecc") == 0 ||
            std::strcmp(call.routine, "g01efc") == 0;
        if (!prepares_inputs && !call.digest_only) {
            EXPECT_TRUE(scratch.untouched(returns_value)) << call.routine;
        }
        EXPECT_EQ(fail.code, 4242) << call.routine;
        EXPECT_STREQ(fail.message, "untouched") << call.routine;
        EXPECT_EQ(fail.errnum, 99) << call.routine;
        EXPECT_EQ(handler_calls, 0) << call.routine;
    }
}

TEST(LicenceRefusal, SeedingRoutinesLeaveTheirArgumentsAlone) {
    set_licence_refusal(true);
    int generator = 300;
    int seeds[4] = {-1, 0, 16909321, 7};
    g05kbc(&generator, seeds);
    g05kcc(&generator, seeds);
    set_licence_refusal(false);
    EXPECT_EQ(generator, 300);
    EXPECT_EQ(seeds[0], -1);
    EXPECT_EQ(seeds[1], 0);
    EXPECT_EQ(seeds[2], 16909321);
    EXPECT_EQ(seeds[3], 7);
}

TEST(LicenceRefusal, BasicGeneratorDoesNotCrash) {
    auto refused_calls = [] {
        set_licence_refusal(true);
        g05cbc(3);
        (void)g05cac();
        (void)g05ddc(0.0, 1.0);
        int istate[9] = {};
        double xstate[4] = {};
        g05cfc(istate, xstate);
        set_licence_refusal(false);
        g05cbc(0);
        EXPECT_EQ(g05cac(), 0.7951240249182501);
    };
    std::thread(refused_calls).join();  // before the thread's state exists
    refused_calls();                    // and after
}

}  // namespace
}  // namespace kiv::reliability
