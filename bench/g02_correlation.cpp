// Correlation benchmarks: g02brc (Kendall and Spearman with ties) and
// g02bxc (Pearson, row-major), against GSL where it is installed
// (gsl_stats_spearman for one pair; gsl_stats_correlation over every pair).
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "kiv.h"
#ifdef KIV_HAVE_GSL
#include <gsl/gsl_statistics_double.h>
#endif

namespace {

// n x m row-major data; with ties: integers on [0, n/4), about 4 per value.
std::vector<double> make_data(int n, int m, bool tied) {
    std::mt19937_64 engine(42);
    std::uniform_int_distribution<int> level(0, n / 4 - 1);
    std::normal_distribution<double> normal;
    std::vector<double> x(static_cast<std::size_t>(n) * m);
    for (int i = 0; i < n; ++i) {
        const double common = tied ? level(engine) : normal(engine);
        for (int j = 0; j < m; ++j)
            x[static_cast<std::size_t>(i) * m + j] =
                tied ? (j == 0 ? common : level(engine)) : common + normal(engine);
    }
    return x;
}

void BM_g02brc(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0)), m = static_cast<int>(state.range(1));
    const auto x = make_data(n, m, true);
    std::vector<double> corr(static_cast<std::size_t>(m) * m);
    KivError fail{};
    for (auto _ : state) {
        g02brc(n, m, x.data(), m, nullptr, nullptr, corr.data(), m, &fail);
        benchmark::DoNotOptimize(corr.data());
    }
}
BENCHMARK(BM_g02brc)->Args({1000000, 2})->Args({10000, 10})->Unit(benchmark::kMillisecond);

void BM_g02bxc(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0)), m = 10;
    const bool weighted = state.range(1) != 0;
    const auto x = make_data(n, m, false);
    std::vector<double> wt(static_cast<std::size_t>(n), 1.5);
    std::vector<int> sx(m, 1);
    std::vector<double> mean(m), sd(m), r(m * m), v(m * m);
    double sw;
    KivError fail{};
    for (auto _ : state) {
        g02bxc(n, m, x.data(), m, sx.data(), weighted ? wt.data() : nullptr, &sw, mean.data(),
               sd.data(), r.data(), m, v.data(), m, &fail);
        benchmark::DoNotOptimize(r.data());
    }
}
BENCHMARK(BM_g02bxc)->Args({1000000, 0})->Args({1000000, 1})->Unit(benchmark::kMillisecond);

#ifdef KIV_HAVE_GSL
void BM_gsl_spearman(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    const auto x = make_data(n, 2, true);
    std::vector<double> work(2 * static_cast<std::size_t>(n));
    for (auto _ : state)
        benchmark::DoNotOptimize(gsl_stats_spearman(x.data(), 2, x.data() + 1, 2, n, work.data()));
}
BENCHMARK(BM_gsl_spearman)->Arg(1000000)->Unit(benchmark::kMillisecond);

void BM_gsl_correlation_pairwise(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0)), m = 10;
    const auto x = make_data(n, m, false);
    std::vector<double> r(m * m);
    for (auto _ : state) {
        for (int a = 0; a < m; ++a)
            for (int b = a + 1; b < m; ++b)
                r[a * m + b] = gsl_stats_correlation(x.data() + a, m, x.data() + b, m, n);
        benchmark::DoNotOptimize(r.data());
    }
}
BENCHMARK(BM_gsl_correlation_pairwise)->Arg(1000000)->Unit(benchmark::kMillisecond);
#endif

}  // namespace

BENCHMARK_MAIN();
