// Saving and restoring the basic generator's per-thread state: g05cfc
// writes it into istate[9] and xstate[4], g05cgc reads it back.
//
// Layout: istate[1..5] hold x (the 59-bit generator value behind the number
// delivered last) in base 4096, most significant digit first; istate[6..8]
// the auxiliary word in base 4096 (signed, truncating divisions);
// xstate[1..3] the carried scale, uniform and second value. The checksums
// are istate[0] = sum of istate[1..8] and
//     xstate[0] = istate[0] 2^-12 + xstate[1] + xstate[2] + xstate[3],
// summed left to right.
//
// Restoring checks only the two checksums (the istate sum is formed exactly,
// in 64-bit arithmetic; xstate[0] must agree with the recomputed sum to
// within 4 epsilon relative, strictly, so NaN, infinities and an all-zero
// xstate fail). The digits are then used without range checks: x is rebuilt
// modulo 2^59 in unsigned arithmetic and the auxiliary word as
// (istate[6] 64 + istate[7]) 4096 + istate[8] modulo 2^32, the weighting of
// istate[6] by 2^18 (not 2^24) being kept on purpose, so arbitrary arrays
// never overflow or read out of bounds. After a restore the next number is
// the successor of the one delivered last before the save; the carried
// uniform of the normal generator comes back too, so normal streams resume
// exactly.
#include <cmath>
#include <cstdint>

#include "g05/basic_generator.hpp"
#include "kiv.h"
#include "runtime/report.hpp"

namespace {

using kiv::g05::BasicGeneratorState;

constexpr double checksum_weight = 0.000244140625;  // 2^-12

// xstate[0] as g05cfc forms it, from istate[0] and xstate[1..3].
double xstate_checksum(int istate_sum, const double xstate[4]) {
    double sum = static_cast<double>(istate_sum) * checksum_weight;
    sum += xstate[1];
    sum += xstate[2];
    sum += xstate[3];
    return sum;
}

bool checksums_hold(const int istate[9], const double xstate[4]) {
    long long sum = 0;
    for (int k = 1; k <= 8; ++k) sum += istate[k];
    if (sum != istate[0]) return false;
    const double expected = xstate_checksum(istate[0], xstate);
    return std::fabs(xstate[0] - expected) < 4.0 * x02ajc() * std::fabs(xstate[0]);
}

}  // namespace

extern "C" {

KIV_API void g05cfc(int istate[9], double xstate[4]) {
    if (!kiv::rt::licence_check()) return;
    kiv::g05::ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr || istate == nullptr || xstate == nullptr) return;
    const BasicGeneratorState &state = records->basic;

    auto column = static_cast<unsigned>(state.buffer_index);
    if (column >= static_cast<unsigned>(kiv::g05::column_count)) column = 0;
    std::uint64_t x = kiv::g05::column_value(state, static_cast<int>(column)) >> 1;
    for (int k = 5; k >= 1; --k) {
        istate[k] = static_cast<int>(x % 4096);
        x /= 4096;
    }
    istate[6] = (state.aux_word / (1 << 24)) % 4096;
    istate[7] = (state.aux_word / 4096) % 4096;
    istate[8] = state.aux_word % 4096;
    int sum = 0;
    for (int k = 1; k <= 8; ++k) sum += istate[k];
    istate[0] = sum;

    xstate[1] = state.carry_scale;
    xstate[2] = state.carry_uniform;
    xstate[3] = state.carry_second;
    xstate[0] = xstate_checksum(istate[0], xstate);
}

KIV_API void g05cgc(const int istate[9], const double xstate[4], KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    if (istate == nullptr || xstate == nullptr || !checksums_hold(istate, xstate)) {
        kiv::rt::report_code(fail, "g05cgc", NE_STATE_CORRUPT);
        return;
    }
    kiv::g05::ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) {
        kiv::rt::report_code(fail, "g05cgc", NE_ALLOC_FAIL);
        return;
    }
    BasicGeneratorState &state = records->basic;

    std::uint64_t x = 0;
    for (int k = 1; k <= 5; ++k)
        x = x * 4096 + static_cast<std::uint64_t>(static_cast<long long>(istate[k]));
    kiv::g05::set_column(state, 0, (2 * x) & kiv::g05::mask60);
    const long long aux = (static_cast<long long>(istate[6]) * 64 + istate[7]) * 4096 + istate[8];
    state.aux_word = static_cast<int>(aux);

    state.carry_scale = xstate[1];
    state.carry_uniform = xstate[2];
    state.carry_second = xstate[3];
    kiv::g05::fill_buffer(*records, true);
    kiv::rt::report_success(fail, "g05cgc");
}

}  // extern "C"
