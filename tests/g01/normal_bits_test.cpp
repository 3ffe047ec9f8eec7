// Frozen results: a 64-bit digest of the bits every error-function and
// normal-distribution routine returns over a large fixed input set, and of
// the exponential and logarithm kernels behind them. The digests were taken
// from the straightforward evaluation (each routine's formula summed in the
// documented order, before any speed work); any change to any result bit,
// through reordering, contraction into fused multiply-add, a different
// exponential or a changed threshold, changes a digest. The inputs come from
// the 64-bit Mersenne Twister through exact IEEE operations only, so they are
// the same on every platform.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <vector>

#include "kernels/exp_log.hpp"
#include "kiv.h"

namespace {

constexpr int kCount = 1 << 18;

// Uniform on [low, low + width): 53 random bits scaled exactly, then one
// rounded multiplication and one rounded addition.
std::vector<double> uniform(std::uint64_t seed, double low, double width) {
    std::mt19937_64 engine(seed);
    std::vector<double> v(kCount);
    for (double &x : v) x = low + width * (static_cast<double>(engine() >> 11) * 0x1.0p-53);
    return v;
}

// Random bit patterns with exponents from 2^-1074 to 2^0 (every binade of
// (0, 1), subnormals included), and the complements 1 - p.
std::vector<double> probabilities(std::uint64_t seed) {
    std::mt19937_64 engine(seed);
    std::vector<double> v(kCount);
    for (std::size_t i = 0; i < v.size(); ++i) {
        const std::uint64_t bits = engine();
        const std::uint64_t exponent = (bits >> 52) % 1023;  // biased 0 ... 1022
        const double p = std::bit_cast<double>((exponent << 52) | (bits & 0xFFFFFFFFFFFFF));
        v[i] = (i % 4 == 3) ? 1.0 - p : p;
    }
    return v;
}

// Thresholds, their neighbours, signed zeros, infinities, NaN, subnormals.
std::vector<double> specials() {
    const double inf = std::numeric_limits<double>::infinity();
    std::vector<double> v = {
        0.0,         -0.0,        inf,    -inf, std::numeric_limits<double>::quiet_NaN(),
        0x1.0p-1074, 0x1.0p-1022, 1e-300, 1.0,  0x1.fffffffffffffp-1};
    for (double t : {26.6, 6.25, 2.0, 3.75, 37.62, 8.84, 0.3, 0.42, 0.5, 0.8, 0.08, 0.2, 0.92})
        for (double s : {t, -t})
            v.insert(v.end(), {s, std::nextafter(s, inf), std::nextafter(s, -inf)});
    return v;
}

// FNV-1a over the 8 bytes of each result (every NaN counted as one pattern:
// its sign and payload are the processor's choice).
std::uint64_t digest(const std::vector<double> &inputs, double (*f)(double)) {
    std::uint64_t h = 0xcbf29ce484222325u;
    for (double x : inputs) {
        const double y = f(x);
        std::uint64_t bits = y != y ? 0x7ff8000000000000u : std::bit_cast<std::uint64_t>(y);
        for (int byte = 0; byte < 8; ++byte, bits >>= 8) h = (h ^ (bits & 0xFF)) * 0x100000001b3u;
    }
    return h;
}

template <Kiv_Tail tail>
double tail_probability(double x) {
    return g01eac(tail, x, nullptr);
}
template <Kiv_Tail tail>
double deviate(double p) {
    KivError fail{};
    return g01fac(tail, p, &fail);
}

TEST(NormalFrozenBits, DigestsOfEveryResult) {
    std::vector<double> wide = uniform(1, -40.0, 80.0);
    std::vector<double> narrow = uniform(2, -8.0, 16.0);
    std::vector<double> p = probabilities(3);
    std::vector<double> exp_arguments = uniform(4, -745.5, 1455.5);
    const std::vector<double> extra = specials();
    for (std::vector<double> *v : {&wide, &narrow, &p, &exp_arguments})
        v->insert(v->end(), extra.begin(), extra.end());
    struct Case {
        const char *name;
        const std::vector<double> &inputs;
        double (*f)(double);
        std::uint64_t expected;
    } const cases[] = {
        {"s15adc wide", wide, s15adc, 0x745ff100a29e8391u},
        {"s15adc narrow", narrow, s15adc, 0x439b9ca4b17b622du},
        {"s15aec", narrow, s15aec, 0xfc2a763deda50e88u},
        {"s15abc", wide, s15abc, 0x17b8b3c1af9eb2b8u},
        {"s15acc", wide, s15acc, 0xa509773aeb0d1728u},
        {"g01eac lower", wide, tail_probability<Kiv_LowerTail>, 0xec56d624015187c9u},
        {"g01eac upper", narrow, tail_probability<Kiv_UpperTail>, 0x572eea86878504e4u},
        {"g01eac signif", wide, tail_probability<Kiv_TwoTailSignif>, 0x57e16553d2e7344cu},
        {"g01eac confid", narrow, tail_probability<Kiv_TwoTailConfid>, 0xedb1f8f0ff0f3fecu},
        {"g01fac lower", p, deviate<Kiv_LowerTail>, 0x63f3931cee26bbd1u},
        {"g01fac upper", p, deviate<Kiv_UpperTail>, 0x81a3dacac90db951u},
        {"g01fac signif", p, deviate<Kiv_TwoTailSignif>, 0x87cf564f8e8cc2ecu},
        {"g01fac confid", p, deviate<Kiv_TwoTailConfid>, 0xddb1465321a67001u},
        {"g01cec", p,
         [](double q) {
             KivError fail{};
             return g01cec(q, &fail);
         },
         0x63f3931cee26bbd1u},
        {"exp", exp_arguments, [](double x) { return kiv::kernels::exp(x); }, 0x35ddaf5b7ef0a352u},
        {"log", p, [](double x) { return kiv::kernels::log(x); }, 0x51b9e96adb57f37eu},
    };
    for (const Case &c : cases) {
        const std::uint64_t h = digest(c.inputs, c.f);
        EXPECT_EQ(h, c.expected) << c.name << ": 0x" << std::hex << h;
    }
}

}  // namespace
