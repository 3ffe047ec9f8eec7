// Saving and restoring the basic generator's state: round trips (with
// normal deviates interleaved) and detection of corrupted arrays.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "kiv.h"

namespace {

struct Saved {
    int istate[9];
    double xstate[4];
};

Saved save() {
    Saved s{};
    g05cfc(s.istate, s.xstate);
    return s;
}

int restore(const Saved &s) {
    KivError fail{};
    fail.code = -1;
    g05cgc(s.istate, s.xstate, &fail);
    return fail.code;
}

// A mixture of uniforms and normals, so that the carried uniform matters.
std::vector<double> mixed_draws(int count) {
    std::vector<double> out;
    for (int k = 0; k < count; ++k) out.push_back(k % 3 == 0 ? g05cac() : g05ddc(1.0, 2.0));
    return out;
}

TEST(StateSave, RestoreResumesTheStreamAfterAnyNumberOfDraws) {
    for (int before : {0, 1, 2, 62, 63, 64, 126, 127, 500}) {
        g05cbc(2024);
        mixed_draws(before);
        const Saved saved = save();
        const std::vector<double> expected = mixed_draws(200);
        g05cbc(99);
        mixed_draws(7);
        ASSERT_EQ(restore(saved), NE_NOERROR);
        EXPECT_EQ(mixed_draws(200), expected) << before << " draws before saving";
    }
}

// Every element of istate and xstate is guarded (NaN, infinite and all-zero
// xstate included), with the table's message, and a failed restore leaves
// the stream untouched.
TEST(StateSave, EveryCorruptedElementIsDetected) {
    g05cbc(4242);
    g05cac();
    const Saved good = save();
    const double after = g05cac();
    std::vector<Saved> bad(13 + 3, good);
    for (int k = 0; k <= 8; ++k) bad[static_cast<std::size_t>(k)].istate[k] += 1;
    for (int k = 0; k <= 3; ++k)
        bad[static_cast<std::size_t>(9 + k)].xstate[k] += 1e-12 * std::fabs(good.xstate[0]);
    const double specials[] = {0.0, std::nan(""), HUGE_VAL};
    for (int k = 0; k < 3; ++k)
        for (double &x : bad[static_cast<std::size_t>(13 + k)].xstate) x = specials[k];
    for (std::size_t k = 0; k < bad.size(); ++k) {
        KivError fail{};
        g05cbc(4242);
        g05cac();
        g05cgc(bad[k].istate, bad[k].xstate, &fail);
        EXPECT_EQ(fail.code, NE_STATE_CORRUPT) << "case " << k;
        EXPECT_STREQ(fail.message,
                     "NE_STATE_CORRUPT:\n  istate or xstate has been corrupted since the "
                     "previous call to \n  kiv_save_random_state (g05cfc).");
        EXPECT_EQ(g05cac(), after);
    }
}

// The auxiliary word is rebuilt with istate[6] weighted by 2^18; arbitrary
// digits (negative, huge) are accepted when the checksums agree, and never
// overflow or crash.
TEST(StateSave, ArbitraryDigitsWithValidChecksumsAreAccepted) {
    const int digit_sets[][8] = {{1, 2, 3, 4, 5, 1, 0, 0},
                                 {-7, 4095, 100000, -1, 3, INT32_MAX / 8, -5, 9},
                                 {2047, 4095, 4095, 4095, 4095, 4095, 4095, 4095}};
    for (const auto &digits : digit_sets) {
        Saved s{};
        long long sum = 0;
        for (int k = 1; k <= 8; ++k) sum += s.istate[k] = digits[k - 1];
        s.istate[0] = static_cast<int>(sum);
        s.xstate[1] = 256.0;
        s.xstate[2] = 0.5;
        s.xstate[3] = -1.0;
        s.xstate[0] = ((s.istate[0] * 0x1p-12 + s.xstate[1]) + s.xstate[2]) + s.xstate[3];
        ASSERT_EQ(restore(s), NE_NOERROR);
        const Saved back = save();
        const long long aux =
            (static_cast<long long>(digits[5]) * 64 + digits[6]) * 4096 + digits[7];
        const auto word = static_cast<int>(aux);
        EXPECT_EQ(back.istate[6], (word / (1 << 24)) % 4096);
        EXPECT_EQ(back.istate[7], (word / 4096) % 4096);
        EXPECT_EQ(back.istate[8], word % 4096);
        const double u = g05cac();
        EXPECT_TRUE(u >= 0.0 && u < 1.0);
    }
}

}  // namespace
