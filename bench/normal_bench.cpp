// Speed of the error function and normal-distribution routines against the
// peers on the machine, over the same 262,144 varied inputs: x uniform on
// [-8, 8]; p log-uniform on [1e-300, 1) and uniform on (0, 1). The counter
// ns_per_value is the time per call (or per batch element); run with
// --benchmark_repetitions=9 --benchmark_report_aggregates_only=true for
// medians.
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "kiv.h"

#if defined(KIV_HAVE_GSL)
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_sf_erf.h>
#endif
#if defined(KIV_HAVE_RMATH)
#include <Rmath.h>
#endif

namespace {

constexpr int kCount = 262144;

const std::vector<double> &deviates() {
    static const std::vector<double> values = [] {
        std::mt19937_64 engine(1);
        std::uniform_real_distribution<double> uniform(-8.0, 8.0);
        std::vector<double> v(kCount);
        for (double &x : v) x = uniform(engine);
        return v;
    }();
    return values;
}

const std::vector<double> &log_uniform_p() {
    static const std::vector<double> values = [] {
        std::mt19937_64 engine(2);
        std::uniform_real_distribution<double> exponent(std::log(1e-300), 0.0);
        std::vector<double> v(kCount);
        for (double &p : v) {
            p = std::exp(exponent(engine));
            if (p >= 1.0) p = 0.5;
        }
        return v;
    }();
    return values;
}

const std::vector<double> &uniform_p() {
    static const std::vector<double> values = [] {
        std::mt19937_64 engine(3);
        std::uniform_real_distribution<double> uniform(0.0, 1.0);
        std::vector<double> v(kCount);
        for (double &p : v) {
            p = uniform(engine);
            if (p <= 0.0) p = 0.5;
        }
        return v;
    }();
    return values;
}

void per_value(benchmark::State &state) {
    state.counters["ns_per_value"] = benchmark::Counter(
        kCount, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// One scalar function over every input.
template <class Function>
void run_scalar(benchmark::State &state, const std::vector<double> &in, Function f) {
    for (auto _ : state) {
        double sum = 0.0;
        for (double v : in) sum += f(v);
        benchmark::DoNotOptimize(sum);
    }
    per_value(state);
}

KivError quiet() {
    KivError fail{};
    fail.print = 0;
    return fail;
}

// ---- tail probability, x uniform on [-8, 8] ---------------------------------
void BM_g01eac_lower(benchmark::State &s) {
    KivError fail = quiet();
    run_scalar(s, deviates(), [&](double x) { return g01eac(Kiv_LowerTail, x, &fail); });
}
void BM_s15abc(benchmark::State &s) {
    run_scalar(s, deviates(), s15abc);
}
void BM_s15adc(benchmark::State &s) {
    run_scalar(s, deviates(), s15adc);
}
void BM_glibc_erfc(benchmark::State &s) {
    run_scalar(s, deviates(), [](double x) { return std::erfc(x); });
}
void BM_glibc_erfc_pnorm(benchmark::State &s) {
    run_scalar(s, deviates(), [](double x) { return 0.5 * std::erfc(-x / std::sqrt(2.0)); });
}
void BM_g01eac_v_lower(benchmark::State &s) {
    std::vector<double> out(kCount);
    KivError fail = quiet();
    for (auto _ : s) {
        g01eac_v(Kiv_LowerTail, kCount, deviates().data(), out.data(), &fail);
        benchmark::DoNotOptimize(out.data());
    }
    per_value(s);
}
void BM_s15adc_v(benchmark::State &s) {
    std::vector<double> out(kCount);
    for (auto _ : s) {
        s15adc_v(kCount, deviates().data(), out.data());
        benchmark::DoNotOptimize(out.data());
    }
    per_value(s);
}
BENCHMARK(BM_g01eac_lower);
BENCHMARK(BM_s15abc);
BENCHMARK(BM_s15adc);
BENCHMARK(BM_glibc_erfc);
BENCHMARK(BM_glibc_erfc_pnorm);
BENCHMARK(BM_g01eac_v_lower);
BENCHMARK(BM_s15adc_v);
#if defined(KIV_HAVE_GSL)
void BM_gsl_ugaussian_P(benchmark::State &s) {
    run_scalar(s, deviates(), gsl_cdf_ugaussian_P);
}
void BM_gsl_sf_erfc(benchmark::State &s) {
    run_scalar(s, deviates(), gsl_sf_erfc);
}
BENCHMARK(BM_gsl_ugaussian_P);
BENCHMARK(BM_gsl_sf_erfc);
#endif
#if defined(KIV_HAVE_RMATH)
void BM_R_pnorm(benchmark::State &s) {
    run_scalar(s, deviates(), [](double x) { return pnorm(x, 0.0, 1.0, 1, 0); });
}
BENCHMARK(BM_R_pnorm);
#endif

// ---- deviates, p log-uniform on [1e-300, 1) (arg 0) or uniform (arg 1) ------
const std::vector<double> &probabilities(const benchmark::State &s) {
    return s.range(0) == 0 ? log_uniform_p() : uniform_p();
}
void BM_g01fac_lower(benchmark::State &s) {
    KivError fail = quiet();
    run_scalar(s, probabilities(s), [&](double p) { return g01fac(Kiv_LowerTail, p, &fail); });
}
void BM_g01cec(benchmark::State &s) {
    KivError fail = quiet();
    run_scalar(s, probabilities(s), [&](double p) { return g01cec(p, &fail); });
}
void BM_g01fac_v_lower(benchmark::State &s) {
    std::vector<double> out(kCount);
    KivError fail = quiet();
    for (auto _ : s) {
        g01fac_v(Kiv_LowerTail, kCount, probabilities(s).data(), out.data(), &fail);
        benchmark::DoNotOptimize(out.data());
    }
    per_value(s);
}
BENCHMARK(BM_g01fac_lower)->Arg(0)->Arg(1);
BENCHMARK(BM_g01cec)->Arg(0)->Arg(1);
BENCHMARK(BM_g01fac_v_lower)->Arg(0)->Arg(1);
#if defined(KIV_HAVE_GSL)
void BM_gsl_ugaussian_Pinv(benchmark::State &s) {
    run_scalar(s, probabilities(s), gsl_cdf_ugaussian_Pinv);
}
BENCHMARK(BM_gsl_ugaussian_Pinv)->Arg(0)->Arg(1);
#endif
#if defined(KIV_HAVE_RMATH)
void BM_R_qnorm(benchmark::State &s) {
    run_scalar(s, probabilities(s), [](double p) { return qnorm(p, 0.0, 1.0, 1, 0); });
}
BENCHMARK(BM_R_qnorm)->Arg(0)->Arg(1);
#endif

}  // namespace

BENCHMARK_MAIN();
