// Scalar variates from the basic generator: g05dac (uniform on [a, b]),
// g05dbc (exponential with mean |a|), g05ddc (normal with mean a and
// standard deviation b) and g05dyc (uniform on the integers i..j).
//
// Each draws its uniforms u in (0, 1) from the calling thread's stream of
// g05cac, in the same order as calls of g05cac would (the buffer is read in
// place, without a call per uniform), so seeding with g05cbc or restoring
// with g05cgc reproduces them exactly. No argument is checked.
//
// g05dac: x = (1 - u) a + u b for every combination of signs (the weighted
//   form, never a + u (b - a)), then clamped into the closed interval
//   between a and b: below the lower end gives the lower end, then above
//   the upper end the upper end. a > b and a = b are allowed.
// g05dbc: -|a| ln u; finite, and positive unless a = 0.
// g05dyc: floor(u (|j - i| + 1) + min(i, j)), all in double arithmetic,
//   clamped into [min(i, j), max(i, j)] before conversion, so the full
//   32-bit range never overflows.
// g05ddc: von Neumann's comparison method (the method of Forsythe) on the
//   half-normal density cut at the halving quantiles D_0..D_40
//   (normal_table.hpp), interval i having probability 2^-i. The interval
//   index comes from the uniform carried from the previous call (doubled
//   while it is at most 1/2); within [lo, lo + w] a candidate x = lo + v,
//   v = w u, has exponent t = (x^2 - lo^2)/2 = v (lo + v/2) and is accepted
//   with probability e^-t by a chain of uniforms compared while they fall:
//   the chain stops at the first rise, and an odd stopping place accepts.
//   The two numbers of the last comparison, p < w, give a fresh uniform
//   (w - p)/(1 - p); on acceptance its first bit is the sign and the rest
//   becomes the carried uniform, on rejection it is the next candidate's u.
//   The tail beyond D_40 = 7.14 (probability 2^-40 per variate, merged into
//   the last interval) is not generated. The common state (carry in (0, 1],
//   two or more uniforms buffered) runs the method in registers and writes
//   only on acceptance; otherwise, or when the buffer runs out, the general
//   routine starts the call again and gets the same result. The latency
//   bound is the dependency from one call to the next (carry, interval, t,
//   1 - t, the division, carry), about 50 cycles.
//
// Accuracy: the variates are exact transforms of the uniforms (g05ddc's
// output is distributed as the half-normal restricted to [0, D_40] with a
// random sign). Measured at a fixed seed, 10^6 draws of each variate mapped
// through its distribution function into 40 equiprobable cells: chi-square
// statistics (39 degrees of freedom, 5% point 54.6) are listed in
// docs/random.md; all lie well inside the 10^-6 bound that the tests use.
// g05ddc agrees bit for bit with a direct transcription of the method that
// calls g05cac once per uniform, and its stream is frozen by hashes of 10^5
// variates from three seeds (tests/g05/variates_test.cpp). About 97
// instructions per variate (callgrind), refills included.
//
// References:
//   G. E. Forsythe, von Neumann's comparison method for random sampling from
//   the normal and other distributions, Mathematics of Computation 26 (1972)
//   817-826.
//   J. H. Ahrens and U. Dieter, Extensions of Forsythe's method for random
//   sampling from the normal distribution, Mathematics of Computation 27
//   (1973) 927-937.
//   L. Devroye, Non-Uniform Random Variate Generation, Springer, 1986,
//   Section IV.2.
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "g05/basic_generator.hpp"
#include "g05/normal_table.hpp"
#include "kernels/simd.hpp"
#include "kiv.h"

namespace {

using kiv::g05::BasicGeneratorState;
using kiv::g05::next_uniform;
using kiv::g05::ThreadRecords;

constexpr double no_state = std::numeric_limits<double>::quiet_NaN();

constexpr int normal_intervals = 40;

// The interval index i: 1 plus the number of doublings that take the
// carried uniform c above 1/2, at most 40. For 0 < c <= 1 (bits 1..bits(1.0)
// as an unsigned integer) that number is 1022 - e, e the exponent field of
// the bits of c less one (a power of two borrows into the exponent), which
// saves a loop of unpredictable length; any other carried value takes the
// loop itself.
constexpr std::uint64_t one_bits = 0x3ff0000000000000u;
constexpr std::uint64_t last_exponent = 1022 - (normal_intervals - 1);  // i = 40 at and below

inline bool carry_in_unit_interval(std::uint64_t bits) {
    return bits - 1 < one_bits;
}

int interval_from(double carry) {
    const auto bits = std::bit_cast<std::uint64_t>(carry);
    if (carry_in_unit_interval(bits)) [[likely]] {
        const std::uint64_t exponent = (bits - 1) >> 52;
        return static_cast<int>(1022 - (exponent > last_exponent ? exponent : last_exponent)) + 1;
    }
    int interval = 1;
    for (double c = carry; c <= 0.5 && interval < normal_intervals; c += c) ++interval;
    return interval;
}

// Per-interval constants, formed at compile time by the same double
// operations as at run time: width = D_i - D_{i-1}, and half_width =
// width/2, so that half_width u = (width u)/2 exactly: scaling by 1/2 is
// exact above the subnormal range, and width u is 0 or above 2^-70 for
// every uniform u and every recycled (u2 - u1)/(1 - u1). Entry 40 - i holds
// interval i, so that the clamped exponent indexes the table directly;
// 32-byte entries make the index a shift.
struct alignas(32) IntervalConstants {
    double lo, width, half_width;
};

constexpr auto interval_constants = [] {
    std::array<IntervalConstants, normal_intervals> table{};
    for (int i = 1; i <= normal_intervals; ++i) {
        const double lo = kiv::g05::normal_table[i - 1];
        const double width = kiv::g05::normal_table[i] - lo;
        table[static_cast<std::size_t>(normal_intervals - i)] = {lo, width, 0.5 * width};
    }
    return table;
}();

inline const IntervalConstants &constants_of_interval(int interval) {
    return interval_constants[static_cast<std::size_t>(normal_intervals - interval)];
}

// The same for a carry in (0, 1], from its bits: the clamped exponent field
// less 983 is the table entry (the compiler folds the bias into the base
// address).
inline const IntervalConstants &constants_of_carry(std::uint64_t bits) {
    const std::uint64_t exponent = (bits - 1) >> 52;
    const std::uint64_t clamped = exponent > last_exponent ? exponent : last_exponent;
    return interval_constants[static_cast<std::size_t>(clamped - last_exponent)];
}

// The carry and the sign from the accepted fresh uniform (kernels/simd.hpp).
inline double accept(double &carry, double fresh, double a, double deviation) {
    return kiv::kernels::signed_carry(carry, fresh, a, deviation);
}

// One normal deviate of mean a and standard deviation b, for any state:
// every uniform through next_uniform (refilling when spent), any carried
// value.
[[gnu::noinline]] double normal_deviate(ThreadRecords &records, double a, double b) {
    double &carry = records.basic.carry_uniform;
    double u = next_uniform(records);

    const IntervalConstants &interval = constants_of_interval(interval_from(carry));
    const double lo = interval.lo, width = interval.width;

    for (;;) {
        const double v = width * u;
        const double t = v * (lo + 0.5 * v);
        // The chain t > u1 > u2 > ...: `accepted` flips at every fall.
        double previous = t;
        double current = next_uniform(records);
        bool accepted = true;
        while (previous > current) {
            previous = current;
            current = next_uniform(records);
            accepted = !accepted;
        }
        const double fresh = (current - previous) / (1.0 - previous);
        if (accepted) return accept(carry, fresh, a, b * (lo + v));
        u = fresh;
    }
}

// The same method for the common state, more than 95% of the calls: a
// carry in (0, 1] and enough uniforms left in the buffer. The buffer is
// read through a local index, in registers and without calls; the state is
// written only on acceptance, so when the buffer runs out the general
// routine starts the call again from the same state and gets the same
// result. What remains of the latency is the dependency from one call to
// the next: carry, interval, t, the division, carry.
inline double normal_deviate_buffered(ThreadRecords &records, double a, double b) {
    BasicGeneratorState &state = records.basic;
    const double *const buffer = state.buffer;
    constexpr auto end = static_cast<unsigned>(kiv::g05::buffer_length);
    auto index = static_cast<unsigned>(state.buffer_index);
    const auto carry_bits = std::bit_cast<std::uint64_t>(state.carry_uniform);
    if (index >= end - 1 || !carry_in_unit_interval(carry_bits)) [[unlikely]]
        return normal_deviate(records, a, b);
    const IntervalConstants &interval = constants_of_carry(carry_bits);

    double u = buffer[index++];
    for (;;) {
        const double v = interval.width * u;
        const double t = v * (interval.lo + interval.half_width * u);
        double previous = t;
        double current = buffer[index++];
        bool accepted = true;
        while (previous > current) {
            if (index >= end) [[unlikely]]
                return normal_deviate(records, a, b);
            previous = current;
            current = buffer[index++];
            accepted = !accepted;
        }
        const double fresh = (current - previous) / (1.0 - previous);
        if (accepted) [[likely]] {
            state.buffer_index = static_cast<int>(index);
            return accept(state.carry_uniform, fresh, a, b * (interval.lo + v));
        }
        if (index >= end) [[unlikely]]
            return normal_deviate(records, a, b);
        u = fresh;
    }
}

}  // namespace

extern "C" {

KIV_API double g05dac(double a, double b) {
    ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) return no_state;
    const double u = next_uniform(*records);
    const double x = (1.0 - u) * a + u * b;
    const double lower = a < b ? a : b;
    const double upper = a < b ? b : a;
    if (x < lower) return lower;
    if (x > upper) return upper;
    return x;
}

KIV_API double g05dbc(double a) {
    ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) return no_state;
    return -std::fabs(a) * std::log(next_uniform(*records));
}

KIV_API double g05ddc(double a, double b) {
    ThreadRecords *records = kiv::g05::current_records();
    if (records == nullptr) return no_state;
    return normal_deviate_buffered(*records, a, b);
}

KIV_API int g05dyc(int i, int j) {
    ThreadRecords *records = kiv::g05::current_records();
    const int lower = i < j ? i : j;
    const int upper = i < j ? j : i;
    if (records == nullptr) return lower;
    const double u = next_uniform(*records);
    const double span = std::fabs(static_cast<double>(j) - static_cast<double>(i)) + 1.0;
    double x = std::floor(u * span + static_cast<double>(lower));
    if (x < lower) x = lower;
    if (x > upper) x = upper;
    return static_cast<int>(x);
}

}  // extern "C"
