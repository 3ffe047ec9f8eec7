// Benchmarks of the time-series routines: g13abc on a long series against a
// plain single-accumulator loop (the same one-pass mean and the same
// autocorrelation sums, one lag at a time), and g13acc / g13aac for scale.
// No peer library offers sample autocorrelations with this interface (GSL
// has none), so the plain loop is the reference.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "kiv.h"

namespace {

std::vector<double> ar1_series(std::size_t n) {
    std::vector<double> x(n);
    std::uint64_t state = 12345;
    double level = 0.0;
    for (double &value : x) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        level = 0.7 * level + static_cast<double>(state >> 11) * 0x1p-53 - 0.5;
        value = level;
    }
    return x;
}

// The plain implementation: one-pass mean and sum of squares, then each
// lag's sum with a single accumulator straight through the series.
void plain_autocorrelation(const double *x, int nx, int nk, double *xm, double *xv, double *r,
                           double *stat) {
    double mean = x[0];
    double s = 0.0;
    for (int i = 2; i <= nx; ++i) {
        const double d = x[i - 1] - mean;
        const double e = d / i;
        mean += e;
        s += (i - 1.0) * e * d;
    }
    *xm = mean;
    *xv = s / (nx - 1);
    double total = 0.0;
    for (int k = 1; k <= nk; ++k) {
        double c = 0.0;
        for (int i = 0; i < nx - k; ++i) c += (x[i + k] - mean) * (x[i] - mean);
        r[k - 1] = c / s;
        total += nx * (r[k - 1] * r[k - 1]);
    }
    *stat = total;
}

void BM_g13abc(benchmark::State &state) {
    const int nx = static_cast<int>(state.range(0));
    const int nk = static_cast<int>(state.range(1));
    const auto x = ar1_series(static_cast<std::size_t>(nx));
    std::vector<double> r(static_cast<std::size_t>(nk));
    double xm = 0, xv = 0, stat = 0;
    KivError fail{};
    for (auto _ : state) {
        g13abc(x.data(), nx, nk, &xm, &xv, r.data(), &stat, &fail);
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
    state.counters["ns_per_term"] = benchmark::Counter(
        static_cast<double>(nx) * nk,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_plain_loop(benchmark::State &state) {
    const int nx = static_cast<int>(state.range(0));
    const int nk = static_cast<int>(state.range(1));
    const auto x = ar1_series(static_cast<std::size_t>(nx));
    std::vector<double> r(static_cast<std::size_t>(nk));
    double xm = 0, xv = 0, stat = 0;
    for (auto _ : state) {
        plain_autocorrelation(x.data(), nx, nk, &xm, &xv, r.data(), &stat);
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
    state.counters["ns_per_term"] = benchmark::Counter(
        static_cast<double>(nx) * nk,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_g13acc(benchmark::State &state) {
    const int nl = static_cast<int>(state.range(0));
    std::vector<double> r(static_cast<std::size_t>(nl));
    double rho = 1.0;
    for (double &value : r) value = rho *= 0.8;
    std::vector<double> p(r.size()), v(r.size()), ar(r.size());
    int nvl = 0;
    KivError fail{};
    for (auto _ : state) {
        g13acc(r.data(), nl, nl, p.data(), v.data(), ar.data(), &nvl, &fail);
        benchmark::DoNotOptimize(ar.data());
    }
}

void BM_g13aac(benchmark::State &state) {
    const int nx = static_cast<int>(state.range(0));
    const auto x = ar1_series(static_cast<std::size_t>(nx));
    std::vector<double> xd(x.size());
    int nxd = 0;
    KivError fail{};
    for (auto _ : state) {
        g13aac(x.data(), nx, 1, 1, 12, xd.data(), &nxd, &fail);
        benchmark::DoNotOptimize(xd.data());
    }
}

}  // namespace

BENCHMARK(BM_g13abc)
    ->Args({1000000, 100})
    ->Args({1000000, 1})
    ->Args({10000, 20})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_plain_loop)->Args({1000000, 100})->Args({10000, 20})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_g13acc)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_g13aac)->Arg(1000000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
