// Fuzz harness: random numbers (chapter G05).
//
// Drives the per-thread basic generator (g05cbc with any int, including
// INT_MIN; g05cac; the variates g05dac, g05dbc, g05ddc, g05dyc with any
// arguments), the state save/restore pair (g05cgc with arbitrary and with
// slightly damaged arrays), and the selectable generators (g05kac with any
// generator number and seeds, also numbers that were never normalised;
// g05kbc and g05kcc with any number and seeds).
// Contracts: uniforms in (0, 1); g05dyc within its bounds; g05dac within
// its interval; g05kbc folds the number into 0..273 and its stream stays in
// [0, 1); a restore that succeeds continues the saved stream exactly; a
// failed restore leaves the state as it was.
#include "decode.hpp"

using namespace kiv::fuzz;

namespace {

void basic(Decoder &in) {
    g05cbc(in.integer());
    const int steps = in.in_range(0, 130);
    for (int i = 0; i < steps; ++i) {
        const double u = g05cac();
        KIV_REQUIRE(u > 0.0 && u < 1.0);
    }
    for (int k = in.in_range(0, 8); k > 0; --k) {
        const double a = in.real();
        const double b = in.real();
        switch (in.in_range(0, 3)) {
            case 0: {
                const double x = g05dac(a, b);
                if (std::isfinite(a) && std::isfinite(b))
                    KIV_REQUIRE(x >= std::fmin(a, b) && x <= std::fmax(a, b));
                break;
            }
            case 1: {
                const double x = g05dbc(a);
                KIV_REQUIRE(!(x < 0.0));
                break;
            }
            case 2:
                (void)g05ddc(a, b);
                break;
            default: {
                const int i = in.integer();
                const int j = in.integer();
                const int k2 = g05dyc(i, j);
                KIV_REQUIRE(k2 >= std::min(i, j) && k2 <= std::max(i, j));
                break;
            }
        }
    }
}

void save_restore(Decoder &in) {
    g05cbc(in.integer());
    for (int k = in.in_range(0, 70); k > 0; --k) (void)g05cac();
    int istate[9];
    double xstate[4];
    g05cfc(istate, xstate);
    const double next = g05cac();
    // Damage the saved arrays, or replace them with anything at all.
    if (in.flag()) {
        for (int &v : istate) v = in.integer();
        for (double &v : xstate) v = in.real();
    } else if (in.flag()) {
        istate[in.in_range(0, 8)] ^= 1 << in.in_range(0, 30);
    } else if (in.flag()) {
        xstate[in.in_range(0, 3)] = in.real();
    }
    int probe_state[9];
    double probe_xstate[4];
    g05cfc(probe_state, probe_xstate);  // the state before the restore
    KivError fail = make_record(in);
    g05cgc(istate, xstate, &fail);
    check_record(fail);
    if (fail.code == 0) {
        return;  // any checksummed state is accepted; the stream is defined by it
    }
    KIV_REQUIRE(fail.code == NE_STATE_CORRUPT);
    int after[9];
    double xafter[4];
    g05cfc(after, xafter);
    for (int i = 0; i < 9; ++i) KIV_REQUIRE(after[i] == probe_state[i]);
    for (int i = 0; i < 4; ++i) KIV_REQUIRE(same_bits(xafter[i], probe_xstate[i]));
    (void)next;
}

void round_trip(Decoder &in) {
    g05cbc(in.integer());
    for (int k = in.in_range(0, 140); k > 0; --k) (void)g05cac();
    (void)g05ddc(0.0, 1.0);
    int istate[9];
    double xstate[4];
    g05cfc(istate, xstate);
    const double expected_uniform = g05cac();
    const double expected_normal = g05ddc(0.0, 1.0);
    KivError fail{};
    g05cgc(istate, xstate, &fail);
    KIV_REQUIRE(fail.code == 0);
    KIV_REQUIRE(same_bits(g05cac(), expected_uniform));
    KIV_REQUIRE(same_bits(g05ddc(0.0, 1.0), expected_normal));
}

void selectable(Decoder &in) {
    int generator = in.integer();
    int seeds[4];
    for (int &s : seeds) s = in.integer();
    switch (in.in_range(0, 3)) {
        case 0:  // never normalised: must stay inside the table
            for (int k = in.in_range(1, 4); k > 0; --k) (void)g05kac(generator, seeds);
            return;
        case 1:
            g05kcc(&generator, seeds);
            break;
        default:
            g05kbc(&generator, seeds);
            break;
    }
    KIV_REQUIRE(generator >= 0 && generator <= 273);
    for (int k = in.in_range(1, 70); k > 0; --k) {
        const double u = g05kac(generator, seeds);
        KIV_REQUIRE(u >= 0.0 && u < 1.0);
        if (generator == 0) KIV_REQUIRE(u > 0.0);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    switch (in.in_range(0, 3)) {
        case 0:
            basic(in);
            break;
        case 1:
            save_restore(in);
            break;
        case 2:
            round_trip(in);
            break;
        default:
            selectable(in);
            break;
    }
    return 0;
}
