// The basic generator's per-thread records and the inline fast path shared
// by g05cac and the scalar variates (basic_generator.cpp, scalar_variates.cpp).
//
// x_{k+1} = A x_k mod 2^59, A = 13^13, x odd; stored doubled, X = 2x mod 2^60,
// as four 15-bit pieces (least significant first) in column c of `pieces`.
// Column 0 is the anchor (the seed); columns 1..63 hold the values behind
// the 63 buffered uniforms, buffer[k] coming from column k+1.
#pragma once

#include <cstdint>

#include "kernels/simd.hpp"

namespace kiv::g05 {

inline constexpr int buffer_length = 63;
inline constexpr int column_count = 64;
inline constexpr std::uint64_t mask60 = (std::uint64_t{1} << 60) - 1;
inline constexpr std::uint64_t multiplier = 302875106592253u;          // A = 13^13
inline constexpr std::uint64_t jump_multiplier = 240034304124223573u;  // A^63 mod 2^60

// The record through which the rest of chapter G05 reaches the stream; the
// field order is part of the interface (g05caz hands out pointers into it).
struct BasicGeneratorState {
    int initialise_pending;
    int pieces[4][column_count];
    int aux_word;
    int aux_spare[2];
    double carry_uniform;  // the uniform that the normal generator carries
    double carry_second;
    double buffer[buffer_length];
    int buffer_index;  // next entry to hand out; 63: spent
    double carry_scale;
};

struct FillConstants {
    int constants_pending;
    double ceiling;      // 1 - epsilon: the largest value ever returned
    double low_weight;   // 2^-60
    double high_weight;  // 2^-30
};

// The three per-thread records, allocated together on a thread's first use
// and released when the thread ends.
struct ThreadRecords {
    BasicGeneratorState basic;
    FillConstants fill;
    int uniform_code;  // completion code of g05caz as called for g05cac
};

// Initial-exec TLS: one load from the thread pointer, no call, also from
// the shared library (a pointer costs 8 bytes of the static TLS surplus).
#define KIV_G05_TLS_MODEL KIV_TLS_INITIAL_EXEC
extern constinit thread_local ThreadRecords *thread_records KIV_G05_TLS_MODEL;

// The slow path of a thread's first use: licence check, allocation, default
// state. nullptr when the licence check refuses or memory is exhausted.
ThreadRecords *create_thread_records();

// FillBuffer(reseed): refills the buffer and sets buffer_index to 0.
void fill_buffer(ThreadRecords &records, bool reseed);

// Sets the anchor to X = 4n + 2 (x = 2n + 1), resets the carried values and
// refills, skipping the first successor: the seeding of g05cbc and g05ccc.
void seed_from(ThreadRecords &records, std::uint64_t n);

inline ThreadRecords *current_records() {
    ThreadRecords *records = thread_records;
    if (records == nullptr) [[unlikely]]
        records = create_thread_records();
    return records;
}

// The next uniform of the thread's stream: a bounds test and a load. An
// index outside 0..62 (only a caller writing through g05caz can make one)
// counts as spent.
inline double next_uniform(ThreadRecords &records) {
    BasicGeneratorState &state = records.basic;
    auto index = static_cast<unsigned>(state.buffer_index);
    if (index >= static_cast<unsigned>(buffer_length)) [[unlikely]] {
        fill_buffer(records, false);
        index = 0;
    }
    state.buffer_index = static_cast<int>(index + 1);
    return state.buffer[index];
}

// X = p0 + p1 2^15 + p2 2^30 + p3 2^45 for the column `column` of pieces.
inline std::uint64_t column_value(const BasicGeneratorState &state, int column) {
    std::uint64_t value = 0;
    for (int row = 3; row >= 0; --row)
        value = (value << 15) + static_cast<std::uint32_t>(state.pieces[row][column]);
    return value & mask60;
}

inline void set_column(BasicGeneratorState &state, int column, std::uint64_t value) {
    for (int row = 0; row < 4; ++row)
        state.pieces[row][column] = static_cast<int>((value >> (15 * row)) & 0x7fff);
}

// Multiplication modulo 2^60 on the 15-bit pieces of a four-entry array,
// as g05kac keeps its generator-0 state.
inline std::uint64_t pieces_value(const int pieces[4]) {
    std::uint64_t value = 0;
    for (int row = 3; row >= 0; --row)
        value = (value << 15) + static_cast<std::uint32_t>(pieces[row]);
    return value & mask60;
}

inline void set_pieces(int pieces[4], std::uint64_t value) {
    for (int row = 0; row < 4; ++row)
        pieces[row] = static_cast<int>((value >> (15 * row)) & 0x7fff);
}

// X/2^60 rounded to the nearest double, never above 1 - epsilon: the two
// halves are exact in double, so their sum is rounded once.
inline double uniform_from(std::uint64_t value, double ceiling) {
    const double low = static_cast<double>(static_cast<std::uint32_t>(value & 0x3fffffff));
    const double high = static_cast<double>(static_cast<std::uint32_t>(value >> 30));
    const double u = low * 0x1p-60 + high * 0x1p-30;
    return u > ceiling ? ceiling : u;
}

// The 15-bit pieces of X = 4n + 2 for a seed magnitude n.
inline std::uint64_t seed_value(std::uint64_t n) {
    return (4 * n + 2) & mask60;
}

}  // namespace kiv::g05
