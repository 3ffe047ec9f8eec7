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
//   the last interval) is not generated.
//
// Accuracy: the variates are exact transforms of the uniforms (g05ddc's
// output is distributed as the half-normal restricted to [0, D_40] with a
// random sign). Measured at a fixed seed, 10^6 draws of each variate mapped
// through its distribution function into 40 equiprobable cells: chi-square
// statistics (39 degrees of freedom, 5% point 54.6) are listed in
// docs/random.md; all lie well inside the 10^-6 bound that the tests use.
// g05ddc agrees bit for bit with a direct transcription of the method that
// calls g05cac once per uniform (tests/g05/variates_test.cpp).
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
#include "kiv.h"

namespace {

using kiv::g05::BasicGeneratorState;
using kiv::g05::next_uniform;
using kiv::g05::ThreadRecords;

constexpr double no_state = std::numeric_limits<double>::quiet_NaN();

constexpr int normal_intervals = 40;

// The interval index: 1 plus the number of doublings that take the carried
// uniform c above 1/2, at most 40. For 0 < c <= 1 (bits 1..bits(1.0) as an
// unsigned integer) that number is 1022 - (exponent field of the bits of c
// less one) (a power of two borrows into the exponent), which saves a loop
// of unpredictable length; any other carried value takes the loop itself.
constexpr std::uint64_t one_bits = 0x3ff0000000000000u;
constexpr std::uint64_t half_bits = 0x3fe0000000000000u;

inline bool carry_in_unit_interval(std::uint64_t bits) {
    return bits - 1 < one_bits;
}

inline int interval_from_bits(std::uint64_t bits) {
    const auto doublings = 1022 - static_cast<int>((bits - 1) >> 52);
    return 1 + (doublings < normal_intervals - 1 ? doublings : normal_intervals - 1);
}

int interval_from(double carry) {
    const auto bits = std::bit_cast<std::uint64_t>(carry);
    if (carry_in_unit_interval(bits)) [[likely]]
        return interval_from_bits(bits);
    int interval = 1;
    for (double c = carry; c <= 0.5 && interval < normal_intervals; c += c) ++interval;
    return interval;
}

// Per-interval constants, formed at compile time by the same double
// operations as at run time: width = D_i - D_{i-1}, and half_width =
// width/2, so that half_width u = (width u)/2 exactly (a scaling by 1/2 of
// a product above 2^-64 is exact).
struct IntervalConstants {
    double lo, width, half_width;
};

constexpr auto interval_constants = [] {
    std::array<IntervalConstants, normal_intervals + 1> table{};
    for (int i = 1; i <= normal_intervals; ++i) {
        const double lo = kiv::g05::normal_table[i - 1];
        const double width = kiv::g05::normal_table[i] - lo;
        table[static_cast<std::size_t>(i)] = {lo, width, 0.5 * width};
    }
    return table;
}();

// The carry and the sign from the accepted fresh uniform r >= 0: carry 2r
// and sign + for r <= 1/2, carry 2r - 1 and sign - otherwise. The sign is
// a coin toss, so this is done without branches on the bits: for r >= 0,
// r > 1/2 as an integer comparison of the bits, 2r - 0 = 2r, and a + (-d)
// = a - d exactly.
inline double accept(double &carry, double fresh, double a, double deviation) {
    const std::uint64_t upper_half = std::bit_cast<std::uint64_t>(fresh) > half_bits;
    carry = (fresh + fresh) - std::bit_cast<double>((0 - upper_half) & one_bits);
    return a + std::bit_cast<double>(std::bit_cast<std::uint64_t>(deviation) ^ (upper_half << 63));
}

// One normal deviate of mean a and standard deviation b, for any state:
// every uniform bounds-tested, any carried value.
[[gnu::noinline]] double normal_deviate(ThreadRecords &records, double a, double b) {
    double &carry = records.basic.carry_uniform;
    double u = next_uniform(records);

    const IntervalConstants &interval = interval_constants[interval_from(carry)];
    const double lo = interval.lo, width = interval.width;

    for (;;) {
        const double v = width * u;
        const double t = v * (lo + 0.5 * v);
        // The chain t > u1 > u2 > ...: `accept` flips at every fall.
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

// The common case, about 85% of the calls: two uniforms left in the buffer,
// a carry in (0, 1] and acceptance at the first comparison (t <= u1). It
// writes nothing until it accepts, so any other case starts again in the
// general routine and gets the same result. The dependency from one call to
// the next (carry, interval, t, the division, carry) is all that remains of
// its latency.
inline double normal_deviate_fast(ThreadRecords &records, double a, double b) {
    BasicGeneratorState &state = records.basic;
    const auto index = static_cast<unsigned>(state.buffer_index);
    const auto carry_bits = std::bit_cast<std::uint64_t>(state.carry_uniform);
    if (index <= static_cast<unsigned>(kiv::g05::buffer_length - 2) &&
        carry_in_unit_interval(carry_bits)) [[likely]] {
        const double u = state.buffer[index];
        const double u1 = state.buffer[index + 1];
        const IntervalConstants &interval = interval_constants[interval_from_bits(carry_bits)];
        const double v = interval.width * u;
        const double t = v * (interval.lo + interval.half_width * u);
        if (t <= u1) [[likely]] {
            state.buffer_index = static_cast<int>(index + 2);
            const double fresh = (u1 - t) / (1.0 - t);
            return accept(state.carry_uniform, fresh, a, b * (interval.lo + v));
        }
    }
    return normal_deviate(records, a, b);
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
    return normal_deviate_fast(*records, a, b);
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
