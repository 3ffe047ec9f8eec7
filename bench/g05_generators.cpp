// Uniform and normal generators per number, side by side with peers:
// g05cac (basic generator, per-thread buffer) against GSL's taus2 and
// mt19937, std::mt19937_64 with uniform_real_distribution and a bare 64-bit
// LCG (the floor); g05kac (Wichmann-Hill, caller-held state) against a plain
// implementation behind the same interface; g05ddc against
// std::normal_distribution and GSL's ziggurat.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>

#include "g05/normal_table.hpp"
#include "g05/wichmann_hill_table.hpp"
#include "kiv.h"
#if defined(KIV_HAVE_GSL)
#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>
#endif

namespace {

void BM_g05cac(benchmark::State &state) {
    g05cbc(1);
    for (auto _ : state) benchmark::DoNotOptimize(g05cac());
}
BENCHMARK(BM_g05cac);

void BM_bare_lcg64(benchmark::State &state) {
    std::uint64_t x = 88172645463325252u;
    for (auto _ : state) {
        x = x * 6364136223846793005u + 1442695040888963407u;
        benchmark::DoNotOptimize(static_cast<double>(x >> 11) * 0x1p-53);
    }
}
BENCHMARK(BM_bare_lcg64);

void BM_std_mt19937_64(benchmark::State &state) {
    std::mt19937_64 engine(1);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    for (auto _ : state) benchmark::DoNotOptimize(uniform(engine));
}
BENCHMARK(BM_std_mt19937_64);

#if defined(KIV_HAVE_GSL)
void gsl_uniform(benchmark::State &state, const gsl_rng_type *type) {
    gsl_rng *rng = gsl_rng_alloc(type);
    for (auto _ : state) benchmark::DoNotOptimize(gsl_rng_uniform(rng));
    gsl_rng_free(rng);
}
BENCHMARK_CAPTURE(gsl_uniform, gsl_taus2, gsl_rng_taus2);
BENCHMARK_CAPTURE(gsl_uniform, gsl_mt19937, gsl_rng_mt19937);
#endif

// The plain Wichmann-Hill step: a call that is not inlined, the state in
// the caller's array, the constants read from the table.
[[gnu::noinline]] double plain_wichmann_hill(int g, int s[4]) {
    const auto &record = kiv::g05::wichmann_hill_table[g];
    for (int k = 0; k < 4; ++k) s[k] = record.multiplier[k] * s[k] % record.modulus[k];
    const double u = static_cast<double>(s[0]) / record.modulus[0] +
                     static_cast<double>(s[2]) / record.modulus[2] +
                     static_cast<double>(s[1]) / record.modulus[1] +
                     static_cast<double>(s[3]) / record.modulus[3];
    return u - static_cast<int>(u);
}

void BM_g05kac_wichmann_hill(benchmark::State &state) {
    int g = 17, seed[4] = {1, 2, 3, 4};
    g05kbc(&g, seed);
    for (auto _ : state) benchmark::DoNotOptimize(g05kac(g, seed));
}
BENCHMARK(BM_g05kac_wichmann_hill);

void BM_plain_wichmann_hill(benchmark::State &state) {
    int g = 17, seed[4] = {1, 2, 3, 4};
    g05kbc(&g, seed);
    for (auto _ : state) benchmark::DoNotOptimize(plain_wichmann_hill(g, seed));
}
BENCHMARK(BM_plain_wichmann_hill);

void BM_g05kac_basic(benchmark::State &state) {
    int g = 0, seed[4] = {1, 0, 0, 0};
    g05kbc(&g, seed);
    for (auto _ : state) benchmark::DoNotOptimize(g05kac(0, seed));
}
BENCHMARK(BM_g05kac_basic);

void BM_g05ddc(benchmark::State &state) {
    g05cbc(1);
    for (auto _ : state) benchmark::DoNotOptimize(g05ddc(0.0, 1.0));
}
BENCHMARK(BM_g05ddc);

// The same normal method written plainly: a call of g05cac per uniform and
// the interval found by the doubling loop (bit-identical to g05ddc).
[[gnu::noinline]] double plain_normal(double a, double b) {
    int code = 0;
    int *pieces = nullptr;
    double *carries = nullptr, *buffer = nullptr, *scale = nullptr;
    g05caz(&code, &pieces, &carries, &buffer, &scale);
    double u = g05cac();
    int i = 1;
    for (double c = carries[0]; c <= 0.5 && i < 40; c += c) ++i;
    const double lo = kiv::g05::normal_table[i - 1], width = kiv::g05::normal_table[i] - lo;
    for (;;) {
        const double v = width * u, t = v * (lo + v / 2);
        double p = t, w = g05cac();
        bool accept = true;
        while (p > w) {
            p = w;
            w = g05cac();
            accept = !accept;
        }
        const double r = (w - p) / (1 - p);
        if (!accept) {
            u = r;
            continue;
        }
        if (r <= 0.5) {
            carries[0] = 2 * r;
            return a + b * (lo + v);
        }
        carries[0] = 2 * r - 1;
        return a - b * (lo + v);
    }
}

void BM_plain_normal(benchmark::State &state) {
    g05cbc(1);
    for (auto _ : state) benchmark::DoNotOptimize(plain_normal(0.0, 1.0));
}
BENCHMARK(BM_plain_normal);

void BM_std_normal_distribution(benchmark::State &state) {
    std::mt19937_64 engine(1);
    std::normal_distribution<double> normal(0.0, 1.0);
    for (auto _ : state) benchmark::DoNotOptimize(normal(engine));
}
BENCHMARK(BM_std_normal_distribution);

#if defined(KIV_HAVE_GSL)
void BM_gsl_ran_gaussian_ziggurat(benchmark::State &state) {
    gsl_rng *rng = gsl_rng_alloc(gsl_rng_mt19937);
    for (auto _ : state) benchmark::DoNotOptimize(gsl_ran_gaussian_ziggurat(rng, 1.0));
    gsl_rng_free(rng);
}
BENCHMARK(BM_gsl_ran_gaussian_ziggurat);
#endif

void BM_g05dbc(benchmark::State &state) {
    g05cbc(1);
    for (auto _ : state) benchmark::DoNotOptimize(g05dbc(1.0));
}
BENCHMARK(BM_g05dbc);

void BM_g05dyc(benchmark::State &state) {
    g05cbc(1);
    for (auto _ : state) benchmark::DoNotOptimize(g05dyc(1, 6));
}
BENCHMARK(BM_g05dyc);

}  // namespace

BENCHMARK_MAIN();
