// Chi-square and gamma tail probabilities, ns per call, against R's math
// library, GSL and Boost.Math, on the same inputs: x uniform on [0, 200] and
// df uniform on [1, 100] (gamma: g = x/2, shape df/2, scale 1). Also Gamma
// and ln Gamma for reference.
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "kiv.h"
#ifdef KIV_HAVE_RMATH
#include <Rmath.h>
#endif
#ifdef KIV_HAVE_GSL
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_sf_gamma.h>
#endif
#ifdef KIV_HAVE_BOOST
#include <boost/math/special_functions/gamma.hpp>
#endif

namespace {

constexpr std::size_t kPoints = 4096;

struct Inputs {
    std::vector<double> x, df;
    Inputs() : x(kPoints), df(kPoints) {
        std::mt19937_64 engine(12345);
        std::uniform_real_distribution<double> xs(0.0, 200.0), dfs(1.0, 100.0);
        for (std::size_t i = 0; i < kPoints; ++i) x[i] = xs(engine), df[i] = dfs(engine);
    }
};
const Inputs inputs;

template <class F>
void run(benchmark::State &state, F f) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(f(inputs.x[i], inputs.df[i]));
        i = (i + 1) % kPoints;
    }
}

void ChiSquareUpper_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](double x, double df) { return g01ecc(Kiv_UpperTail, x, df, &fail); });
}
void GammaLower_kiv(benchmark::State &s) {
    KivError fail{};
    run(s,
        [&](double x, double df) { return g01efc(Kiv_LowerTail, 0.5 * x, 0.5 * df, 1.0, &fail); });
}
void GammaUpper_kiv(benchmark::State &s) {
    KivError fail{};
    run(s,
        [&](double x, double df) { return g01efc(Kiv_UpperTail, 0.5 * x, 0.5 * df, 1.0, &fail); });
}
BENCHMARK(ChiSquareUpper_kiv);
BENCHMARK(GammaLower_kiv);
BENCHMARK(GammaUpper_kiv);

#ifdef KIV_HAVE_RMATH
void ChiSquareUpper_R(benchmark::State &s) {
    run(s, [](double x, double df) { return pchisq(x, df, 0, 0); });
}
void GammaLower_R(benchmark::State &s) {
    run(s, [](double x, double df) { return pgamma(0.5 * x, 0.5 * df, 1.0, 1, 0); });
}
BENCHMARK(ChiSquareUpper_R);
BENCHMARK(GammaLower_R);
#endif

#ifdef KIV_HAVE_GSL
void ChiSquareUpper_GSL(benchmark::State &s) {
    run(s, [](double x, double df) { return gsl_cdf_chisq_Q(x, df); });
}
void GammaLower_GSL(benchmark::State &s) {
    run(s, [](double x, double df) { return gsl_cdf_gamma_P(0.5 * x, 0.5 * df, 1.0); });
}
BENCHMARK(ChiSquareUpper_GSL);
BENCHMARK(GammaLower_GSL);
#endif

#ifdef KIV_HAVE_BOOST
using DoublePolicy = boost::math::policies::policy<boost::math::policies::promote_double<false>>;
void GammaUpper_Boost(benchmark::State &s) {
    run(s, [](double x, double df) {
        return boost::math::gamma_q(0.5 * df, 0.5 * x, DoublePolicy());
    });
}
void GammaLower_Boost(benchmark::State &s) {
    run(s, [](double x, double df) {
        return boost::math::gamma_p(0.5 * df, 0.5 * x, DoublePolicy());
    });
}
BENCHMARK(GammaUpper_Boost);
BENCHMARK(GammaLower_Boost);
#endif

// Gamma and ln Gamma at x uniform on (0, 170).
void Gamma_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](double x, double) { return s14aac(0.85 * x + 1e-3, &fail); });
}
void LogGamma_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](double x, double) { return s14abc(0.85 * x + 1e-3, &fail); });
}
void Gamma_libm(benchmark::State &s) {
    run(s, [](double x, double) { return std::tgamma(0.85 * x + 1e-3); });
}
BENCHMARK(Gamma_kiv);
BENCHMARK(LogGamma_kiv);
BENCHMARK(Gamma_libm);

}  // namespace

BENCHMARK_MAIN();
