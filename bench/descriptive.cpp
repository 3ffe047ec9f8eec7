// g01aac on 10^7 normal values, unweighted and weighted: ns per value.
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "kiv.h"

namespace {

constexpr int kValues = 10'000'000;

struct Sample {
    std::vector<double> x, w;
    Sample() : x(kValues), w(kValues) {
        std::mt19937_64 engine(7);
        std::normal_distribution<double> normal(10.0, 3.0);
        std::uniform_real_distribution<double> weight(0.5, 2.0);
        for (int i = 0; i < kValues; ++i) x[i] = normal(engine), w[i] = weight(engine);
    }
};

void Describe(benchmark::State &state, bool weighted) {
    static const Sample sample;
    int nvalid = 0;
    double mean, sd, skew, kurt, min, max, wsum;
    KivError fail{};
    for (auto _ : state) {
        g01aac(kValues, sample.x.data(), weighted ? sample.w.data() : nullptr, &nvalid, &mean, &sd,
               &skew, &kurt, &min, &max, &wsum, &fail);
        benchmark::DoNotOptimize(kurt);
    }
    state.counters["ns_per_value"] = benchmark::Counter(
        static_cast<double>(kValues) * 1e-9,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Describe_unweighted(benchmark::State &s) {
    Describe(s, false);
}
void Describe_weighted(benchmark::State &s) {
    Describe(s, true);
}
BENCHMARK(Describe_unweighted)->Unit(benchmark::kMillisecond);
BENCHMARK(Describe_weighted)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
