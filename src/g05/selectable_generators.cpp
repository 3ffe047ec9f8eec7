// Selectable base generators with caller-held state: g05kac (next uniform),
// g05kbc (repeatable seeding) and g05kcc (seeding from the clock).
//
// Generator 0 is the basic generator of g05cac, x_{k+1} = 13^13 x_k mod
// 2^59, with X = 2x held in iseed[0..3] as four 15-bit pieces, least
// significant first; one call is one step (no buffer) and returns X/2^60
// rounded, at most 1 - epsilon. Generators 1..273 are four-component
// Wichmann-Hill combined generators: s_k = a_k s_k mod m_k for k = 0..3 and
//     u = frac(((s_0/m_0 + s_2/m_2) + s_1/m_1) + s_3/m_3),
// with the constants of record g of wichmann_hill_table.hpp (prime moduli
// just below 2^24, multipliers 112..127 that are primitive roots, so each
// component has period m_k - 1; the products stay below 2^31).
//
// Normalisation of the generator number, shared by all three routines:
// g <= 0 is generator 0 and g > 0 is folded into 1..273 as
// ((g + 272) mod 273) + 1, formed in 64-bit arithmetic. g05kbc and g05kcc
// write the folded number back; g05kac, which gets it by value, folds it
// the same way, so no generator number reads outside the table.
//
// Seeding (g05kbc): generator 0 takes n = |iseed[0]| (64-bit, so INT_MIN
// is n = 2^31), sets X = 4n + 2 and takes one step, as g05cbc does; a
// Wichmann-Hill seed outside 1..16909320 is replaced by
// ((|s| + 1) mod 16909320) + 1, formed in 64-bit arithmetic.
//
// Clock seeding (g05kcc): the clock seed mixes the local date and time
// (year mod 10, month, day, hour, minute, second in mixed radix 12, 31, 24,
// 60, 60), the processor time in microseconds modulo 10000, the component
// argument 4g + k, and a process-wide call counter (so that two calls in the
// same instant still differ) through the SplitMix64 finaliser, and reduces
// the result to 1..16718908, below every modulus, so every component seed is
// valid.
//
// Accuracy: generator 0 reproduces g05cac after g05cbc with the same seed
// bit for bit; the Wichmann-Hill stream is checked against an independent
// recomputation in the tests.
//
// References:
//   B. A. Wichmann and I. D. Hill, Generating good pseudo-random numbers,
//   Computational Statistics & Data Analysis 51 (2006) 1614-1622.
//   G. L. Steele, D. Lea and C. H. Flood, Fast splittable pseudorandom number
//   generators, OOPSLA 2014, ACM SIGPLAN Notices 49(10) (2014) 453-472.
#include <atomic>
#include <cstdint>

#include "g05/basic_generator.hpp"
#include "g05/wichmann_hill_table.hpp"
#include "kiv.h"
#include "runtime/platform.hpp"
#include "runtime/report.hpp"

namespace {

constexpr int generator_count = 273;
constexpr long long seed_limit = 16909320;
constexpr std::uint64_t clock_seed_range = 16718908;  // below every modulus

int normalised_generator(int g) {
    if (g <= 0) return 0;
    return static_cast<int>((static_cast<long long>(g) + (generator_count - 1)) % generator_count) +
           1;
}

double basic_step(int iseed[4]) {
    const std::uint64_t value =
        (kiv::g05::pieces_value(iseed) * kiv::g05::multiplier) & kiv::g05::mask60;
    kiv::g05::set_pieces(iseed, value);
    return kiv::g05::uniform_from(value, 1.0 - x02ajc());
}

double wichmann_hill_step(int g, int iseed[4]) {
    const kiv::g05::WichmannHillRecord &record = kiv::g05::wichmann_hill_table[g];
    // a s < 2^31 for every seed the seeding routines make; unsigned
    // arithmetic keeps any other array defined (it wraps).
    const auto next = [&](int k) {
        const std::uint32_t product =
            static_cast<std::uint32_t>(record.multiplier[k]) * static_cast<std::uint32_t>(iseed[k]);
        return static_cast<int>(product % static_cast<std::uint32_t>(record.modulus[k]));
    };
    const int s0 = next(0), s1 = next(1), s2 = next(2), s3 = next(3);
    iseed[0] = s0;
    iseed[1] = s1;
    iseed[2] = s2;
    iseed[3] = s3;
    const auto part = [&](int s, int k) {
        return static_cast<double>(s) / static_cast<double>(record.modulus[k]);
    };
    const double u = ((part(s0, 0) + part(s2, 2)) + part(s1, 1)) + part(s3, 3);
    return u - static_cast<double>(static_cast<int>(u));
}

void seed_basic(int iseed[4], long long seed) {
    const auto n = static_cast<std::uint64_t>(seed < 0 ? -seed : seed);
    kiv::g05::set_pieces(iseed, kiv::g05::seed_value(n));
    basic_step(iseed);
}

std::uint64_t splitmix64(std::uint64_t z) {
    z += 0x9e3779b97f4a7c15u;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
}

std::atomic<std::uint64_t> clock_seed_calls{0};

// A seed in 1..16718908 from the date, the time of day, the processor time
// and `argument`.
int clock_seed(int argument) {
    kiv::platform::LocalTime now{};
    std::uint64_t date = 0;
    if (kiv::platform::local_time(now)) {
        const int fields[] = {now.year % 10, now.month - 1, now.day - 1,
                              now.hour,      now.minute,    now.second};
        const int radix[] = {1, 12, 31, 24, 60, 60};
        for (int k = 0; k < 6; ++k)
            date =
                date * static_cast<std::uint64_t>(radix[k]) + static_cast<std::uint64_t>(fields[k]);
    }
    const auto micro = static_cast<std::uint64_t>(kiv::platform::processor_seconds() * 1000000.0);
    const std::uint64_t call = clock_seed_calls.fetch_add(1, std::memory_order_relaxed);
    std::uint64_t mixed = splitmix64(date * 10000 + micro % 10000);
    mixed = splitmix64(mixed ^ static_cast<std::uint64_t>(static_cast<unsigned>(argument)));
    mixed = splitmix64(mixed ^ call);
    return static_cast<int>(mixed % clock_seed_range) + 1;
}

}  // namespace

extern "C" {

KIV_API double g05kac(int igen, int iseed[4]) {
    if (iseed == nullptr) [[unlikely]]
        return 0.0;
    const auto g = static_cast<unsigned>(igen) - 1u;
    if (g < static_cast<unsigned>(generator_count)) [[likely]]
        return wichmann_hill_step(igen, iseed);
    const int folded = normalised_generator(igen);
    return folded == 0 ? basic_step(iseed) : wichmann_hill_step(folded, iseed);
}

KIV_API void g05kbc(int *igen, int iseed[4]) {
    if (!kiv::rt::licence_check()) return;
    if (igen == nullptr || iseed == nullptr) return;
    *igen = normalised_generator(*igen);
    if (*igen == 0) {
        seed_basic(iseed, iseed[0]);
        return;
    }
    for (int k = 0; k < 4; ++k) {
        const long long seed = iseed[k];
        if (seed < 1 || seed > seed_limit)
            iseed[k] = static_cast<int>(((seed < 0 ? -seed : seed) + 1) % seed_limit) + 1;
    }
}

KIV_API void g05kcc(int *igen, int iseed[4]) {
    if (!kiv::rt::licence_check()) return;
    if (igen == nullptr || iseed == nullptr) return;
    *igen = normalised_generator(*igen);
    if (*igen == 0) {
        seed_basic(iseed, clock_seed(0));
        return;
    }
    for (int k = 0; k < 4; ++k) iseed[k] = clock_seed(4 * *igen + k);
    wichmann_hill_step(*igen, iseed);
}

}  // extern "C"
