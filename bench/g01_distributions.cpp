// Student's t, F and beta probabilities, their deviates, and the studentized
// range: ns per call against R's math library and Boost.Math (double) on the
// same inputs (t: t uniform on [-8, 8], df log-uniform on [1, 1000];
// beta: x uniform on (0, 1), a, b log-uniform on [0.5, 50]; deviates: p
// uniform on (0, 1)).
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "kiv.h"
#ifdef KIV_HAVE_RMATH
#include <Rmath.h>
#endif
#ifdef KIV_HAVE_BOOST
#include <boost/math/distributions/beta.hpp>
#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/students_t.hpp>
#endif

namespace {

constexpr std::size_t kPoints = 1024;

struct Inputs {
    std::vector<double> t, df, x, a, b, p;
    Inputs() : t(kPoints), df(kPoints), x(kPoints), a(kPoints), b(kPoints), p(kPoints) {
        std::mt19937_64 engine(2024);
        std::uniform_real_distribution<double> u(0.0, 1.0);
        for (std::size_t i = 0; i < kPoints; ++i) {
            t[i] = 16.0 * u(engine) - 8.0;
            df[i] = std::pow(1000.0, u(engine));
            x[i] = 0.001 + 0.998 * u(engine);
            a[i] = 0.5 * std::pow(100.0, u(engine));
            b[i] = 0.5 * std::pow(100.0, u(engine));
            p[i] = 0.001 + 0.998 * u(engine);
        }
    }
};
const Inputs in;

template <class F>
void run(benchmark::State &state, F f) {
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(f(i));
        i = (i + 1) % kPoints;
    }
}

void T_upper_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](std::size_t i) { return g01ebc(Kiv_UpperTail, in.t[i], in.df[i], &fail); });
}
void Beta_kiv(benchmark::State &s) {
    KivError fail{};
    double p, q, d;
    run(s, [&](std::size_t i) {
        g01eec(in.x[i], in.a[i], in.b[i], 0.0, &p, &q, &d, &fail);
        return p;
    });
}
void T_deviate_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](std::size_t i) { return g01fbc(Kiv_LowerTail, in.p[i], in.df[i], &fail); });
}
void ChiSquare_deviate_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](std::size_t i) { return g01fcc(in.p[i], in.df[i], &fail); });
}
void Beta_deviate_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](std::size_t i) { return g01fec(in.p[i], in.a[i], in.b[i], 0.0, &fail); });
}
void StudentizedRange_kiv(benchmark::State &s) {
    KivError fail{};
    run(s, [&](std::size_t i) { return g01emc(4.0 * in.x[i], 20.0, 4, &fail); });
}
BENCHMARK(T_upper_kiv);
BENCHMARK(Beta_kiv);
BENCHMARK(T_deviate_kiv);
BENCHMARK(ChiSquare_deviate_kiv);
BENCHMARK(Beta_deviate_kiv);
BENCHMARK(StudentizedRange_kiv);

#ifdef KIV_HAVE_RMATH
void T_upper_R(benchmark::State &s) {
    run(s, [&](std::size_t i) { return pt(in.t[i], in.df[i], 0, 0); });
}
void Beta_R(benchmark::State &s) {
    run(s, [&](std::size_t i) { return pbeta(in.x[i], in.a[i], in.b[i], 1, 0); });
}
void T_deviate_R(benchmark::State &s) {
    run(s, [&](std::size_t i) { return qt(in.p[i], in.df[i], 1, 0); });
}
void ChiSquare_deviate_R(benchmark::State &s) {
    run(s, [&](std::size_t i) { return qchisq(in.p[i], in.df[i], 1, 0); });
}
void Beta_deviate_R(benchmark::State &s) {
    run(s, [&](std::size_t i) { return qbeta(in.p[i], in.a[i], in.b[i], 1, 0); });
}
void StudentizedRange_R(benchmark::State &s) {
    run(s, [&](std::size_t i) { return ptukey(4.0 * in.x[i], 1.0, 4.0, 20.0, 1, 0); });
}
BENCHMARK(T_upper_R);
BENCHMARK(Beta_R);
BENCHMARK(T_deviate_R);
BENCHMARK(ChiSquare_deviate_R);
BENCHMARK(Beta_deviate_R);
BENCHMARK(StudentizedRange_R);
#endif

#ifdef KIV_HAVE_BOOST
void T_upper_boost(benchmark::State &s) {
    run(s, [&](std::size_t i) {
        return boost::math::cdf(boost::math::complement(
            boost::math::students_t_distribution<double>(in.df[i]), in.t[i]));
    });
}
void Beta_boost(benchmark::State &s) {
    run(s, [&](std::size_t i) { return boost::math::ibeta(in.a[i], in.b[i], in.x[i]); });
}
void T_deviate_boost(benchmark::State &s) {
    run(s, [&](std::size_t i) {
        return boost::math::quantile(boost::math::students_t_distribution<double>(in.df[i]),
                                     in.p[i]);
    });
}
void ChiSquare_deviate_boost(benchmark::State &s) {
    run(s, [&](std::size_t i) {
        return boost::math::quantile(boost::math::chi_squared_distribution<double>(in.df[i]),
                                     in.p[i]);
    });
}
void Beta_deviate_boost(benchmark::State &s) {
    run(s, [&](std::size_t i) { return boost::math::ibeta_inv(in.a[i], in.b[i], in.p[i]); });
}
BENCHMARK(T_upper_boost);
BENCHMARK(Beta_boost);
BENCHMARK(T_deviate_boost);
BENCHMARK(ChiSquare_deviate_boost);
BENCHMARK(Beta_deviate_boost);
#endif

}  // namespace

BENCHMARK_MAIN();
