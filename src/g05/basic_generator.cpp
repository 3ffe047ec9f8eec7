// The basic generator of chapter G05: g05caz (state accessor), g05cac (next
// uniform), g05cbc (repeatable seeding), g05ccc (seeding from the clock) and
// x05aac (calendar time in seconds).
//
// Generator: the multiplicative congruential generator
//     x_{k+1} = A x_k mod 2^59,  A = 13^13 = 302875106592253,  x odd,
// period 2^57; u_k = x_k / 2^59 rounded to the nearest double, so u >= 2^-59
// is never 0, and values that round to 1 are returned as 1 - epsilon (the
// largest double below 1). Each thread has its own stream, which starts in
// the default state x_0 = 123456789 (2^32 + 1).
//
// Method: the state is kept doubled, X = 2x mod 2^60, as four 15-bit pieces
// in 64 columns: column 0 the anchor (seed), columns 1..63 the values behind
// a buffer of 63 uniforms. A refill advances every column by 63 steps with
// the jump multiplier A^63 mod 2^60, so the 63 columns again hold the next 63
// consecutive values. The refill multiplies in 15-bit pieces with 32-bit
// lanes (the classical column-by-column product with carries), so the 63
// independent columns run in vector registers (AVX2 chosen at load time on
// x86-64, 8 columns per instruction); seeding walks the 63 successors of the
// anchor in native 64-bit arithmetic modulo 2^60, which gives the same
// values. A call of g05cac is then a bounds test and one load.
//
// Seeding with s sets x = 2|s| + 1 and skips its first successor, so the
// first number after g05cbc(s) is A^2 (2|s| + 1) / 2^59. |s| is formed in
// 64-bit arithmetic: g05cbc(INT_MIN) seeds with n = 2^31 (x = 2^32 + 1), the
// natural continuation of the rule, without overflow.
//
// Per-thread records live on the heap behind an initial-exec thread-local
// pointer; a thread-local owner frees them when the thread ends. The
// process-wide last clock seed is a std::atomic, advanced by compare and swap.
//
// Accuracy: every delivered number is X/2^60 correctly rounded (checked in
// the tests against 128-bit recomputation of the recurrence over 10^5 steps
// and across buffer refills); the published first numbers of a fresh thread
// and after seeds 0, 1 and -1 are reproduced bit for bit.
//
// References:
//   D. E. Knuth, The Art of Computer Programming, Vol. 2: Seminumerical
//   Algorithms, 3rd ed., Addison-Wesley, 1997, Sections 3.2.1 and 3.3.4.
//   G. S. Fishman, Multiplicative congruential random number generators with
//   modulus 2^beta: an exhaustive analysis for beta = 32 and a partial
//   analysis for beta = 48, Mathematics of Computation 54 (1990) 331-344.
#include "g05/basic_generator.hpp"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "kiv.h"
#include "runtime/platform.hpp"
#include "runtime/report.hpp"
#include "runtime/workspace.hpp"

// The refill has a baseline and an AVX2 version (kernels/simd.hpp), chosen
// on first use (an explicit dispatch rather than an ifunc, whose resolver
// would run before sanitizer runtimes are initialised).

namespace kiv::g05 {

constinit thread_local ThreadRecords *thread_records KIV_G05_TLS_MODEL = nullptr;

namespace {

// The default anchor: X = 1060485742695258666, x = 123456789 (2^32 + 1).
constexpr std::uint64_t default_anchor = 1060485742695258666u;

// Frees the thread's records when the thread ends; set up on first use.
constinit thread_local bool records_released KIV_G05_TLS_MODEL = false;

struct ThreadRecordsOwner {
    ~ThreadRecordsOwner() {
        void *block = thread_records;
        thread_records = nullptr;
        records_released = true;
        x04bdc(&block);
    }
};

std::atomic<long long> last_clock_seed{0};

// The clock time, or one more than the last clock seed of the process when
// the clock has not moved past it; always at least 1.
long long next_clock_seed(long long now) {
    long long last = last_clock_seed.load(std::memory_order_relaxed);
    long long seed = 0;
    do {
        seed = now > last ? now : last + 1;
    } while (!last_clock_seed.compare_exchange_weak(last, seed, std::memory_order_relaxed));
    return seed;
}

void set_default_state(ThreadRecords &records) {
    BasicGeneratorState &state = records.basic;
    set_column(state, 0, default_anchor);
    state.aux_word = 0;
    state.aux_spare[0] = 0;
    state.aux_spare[1] = 0;
    state.carry_uniform = 1.0;
    state.carry_second = -1.0;
    state.carry_scale = 256.0;
    state.initialise_pending = 0;
    fill_buffer(records, true);
}

// The ordinary refill: each of columns 1..63 times A^63 mod 2^60 by the
// column-by-column product of 15-bit pieces (unsigned 32-bit sums wrap, and
// only the low 15 bits of each are kept, which are exact), then the uniform
// of each column. Rows are contiguous in the column index, so the loop runs
// in 32-bit vector lanes; on x86-64 an AVX2 version is chosen at load time.
KIV_FORCE_INLINE void advance_columns_body(BasicGeneratorState &state, double ceiling) {
    constexpr std::uint32_t a0 = 85, a1 = 3703, a2 = 6070, a3 = 6822;  // A^63, 15-bit pieces
    static_assert(a0 + (a1 << 15) + (std::uint64_t{a2} << 30) + (std::uint64_t{a3} << 45) ==
                  jump_multiplier);
    for (int column = 1; column < column_count; ++column) {
        const auto x0 = static_cast<std::uint32_t>(state.pieces[0][column]);
        const auto x1 = static_cast<std::uint32_t>(state.pieces[1][column]);
        const auto x2 = static_cast<std::uint32_t>(state.pieces[2][column]);
        const auto x3 = static_cast<std::uint32_t>(state.pieces[3][column]);
        const std::uint32_t t0 = a0 * x0;
        const std::uint32_t t1 = a0 * x1 + a1 * x0 + (t0 >> 15);
        const std::uint32_t t2 = a0 * x2 + a1 * x1 + a2 * x0 + (t1 >> 15);
        const std::uint32_t t3 = a0 * x3 + a1 * x2 + a2 * x1 + a3 * x0 + (t2 >> 15);
        const auto p0 = static_cast<int>(t0 & 0x7fff), p1 = static_cast<int>(t1 & 0x7fff);
        const auto p2 = static_cast<int>(t2 & 0x7fff), p3 = static_cast<int>(t3 & 0x7fff);
        state.pieces[0][column] = p0;
        state.pieces[1][column] = p1;
        state.pieces[2][column] = p2;
        state.pieces[3][column] = p3;
        const double low = static_cast<double>(p1 * 32768 + p0);
        const double high = static_cast<double>(p3 * 32768 + p2);
        const double u = low * 0x1p-60 + high * 0x1p-30;
        state.buffer[column - 1] = u > ceiling ? ceiling : u;
    }
}

KIV_TARGET_AVX2 void advance_columns_avx2(BasicGeneratorState &state, double ceiling) {
    advance_columns_body(state, ceiling);
}

void advance_columns(BasicGeneratorState &state, double ceiling) {
    if (kiv::kernels::cpu_has_avx2()) {
        advance_columns_avx2(state, ceiling);
        return;
    }
    advance_columns_body(state, ceiling);
}

}  // namespace

ThreadRecords *create_thread_records() {
    if (!rt::licence_check()) return nullptr;
    auto *records = rt::allocate<ThreadRecords>(1);
    if (records == nullptr) return nullptr;
    *records = ThreadRecords{};
    records->basic.initialise_pending = 1;
    records->fill.constants_pending = 1;
    set_default_state(*records);
    thread_records = records;
    // A thread whose records were already released (a thread-exit handler
    // running after ours) keeps the new ones to the end of the process.
    if (!records_released) {
        thread_local ThreadRecordsOwner owner;
        (void)owner;
    }
    return records;
}

void fill_buffer(ThreadRecords &records, bool reseed) {
    BasicGeneratorState &state = records.basic;
    FillConstants &constants = records.fill;
    if (constants.constants_pending != 0 || reseed) {
        constants.constants_pending = 0;
        constants.ceiling = 1.0 - x02ajc();
        double power = 1.0;
        for (int k = 0; k < 30; ++k) power *= 0.5;
        constants.high_weight = power;
        constants.low_weight = power * power;
        std::uint64_t value = column_value(state, 0);
        for (int column = 1; column < column_count; ++column) {
            value = (value * multiplier) & mask60;
            set_column(state, column, value);
            state.buffer[column - 1] = uniform_from(value, constants.ceiling);
        }
    } else {
        advance_columns(state, constants.ceiling);
    }
    state.buffer_index = 0;
}

void seed_from(ThreadRecords &records, std::uint64_t n) {
    BasicGeneratorState &state = records.basic;
    set_column(state, 0, seed_value(n));
    state.carry_uniform = 1.0;
    state.carry_second = -1.0;
    state.carry_scale = 256.0;
    fill_buffer(records, true);
    state.buffer_index = 1;
}

}  // namespace kiv::g05

using kiv::g05::ThreadRecords;

extern "C" {

KIV_API void g05caz(int *code, int **pieces, double **carries, double **buffer, double **scale) {
    if (!kiv::rt::licence_check()) return;
    ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) {
        if (code != nullptr) *code = NE_ALLOC_FAIL;
        return;
    }
    kiv::g05::BasicGeneratorState &state = records->basic;
    if (pieces != nullptr) *pieces = &state.pieces[0][0];
    if (carries != nullptr) *carries = &state.carry_uniform;
    if (buffer != nullptr) *buffer = state.buffer;
    if (scale != nullptr) *scale = &state.carry_scale;
    if (code != nullptr) *code = 0;
}

KIV_API double g05cac(void) {
    ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) [[unlikely]]
        return std::numeric_limits<double>::quiet_NaN();
    return kiv::g05::next_uniform(*records);
}

KIV_API void g05cbc(int seed) {
    if (!kiv::rt::licence_check()) return;
    ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) return;
    const long long wide = seed;
    kiv::g05::seed_from(*records, static_cast<std::uint64_t>(wide < 0 ? -wide : wide));
}

KIV_API long x05aac(void) {
    const long seconds = kiv::platform::calendar_seconds();
    if (seconds == -1) {
        // No record of the caller's: the message is shown, and the caller
        // goes on with -1.
        KivError record = kiv::rt::private_record();
        record.print = 1;
        kiv::rt::report_code(&record, "x05aac", NE_SYSTEM_TIME);
    }
    return seconds;
}

KIV_API void g05ccc(void) {
    if (!kiv::rt::licence_check()) return;
    ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) return;
    const long long seed = kiv::g05::next_clock_seed(x05aac());
    kiv::g05::seed_from(*records, static_cast<std::uint64_t>(seed));
}

}  // extern "C"
