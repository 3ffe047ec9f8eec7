// Cost of a call through the interpreter module: a host argument list of
// value addresses, the export's frame (handle slot, argument fetches,
// handler substitution, restore, close) and the routine, against the
// direct C call of the same routine, in ns per call.
//
// The host here is the smallest possible one: an argument list is an array
// of value addresses and the cursor a pointer into it, so the figures are
// the module's own overhead, not an interpreter's.
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

#include "binding/ch_host.h"
#include "kiv.h"

extern "C" {

ChVaList_t __builtin_Ch_VaStart(ChInterp_t *interp, void *varg) {
    *interp = varg;
    return varg;
}

void *__builtin_Ch_VaArg_kernel(ChInterp_t, ChVaList_t *ap) {
    auto *slot = static_cast<void **>(*ap);
    *ap = slot + 1;
    return *slot;
}

void Ch_VaEnd(ChInterp_t, ChVaList_t) {}

int Ch_CallFuncByAddr(ChInterp_t, void *, void *, ...) {
    return 0;
}

}  // extern "C"

namespace {

template <class F>
F module_export(const char *name) {
    static void *module = [] {
        void *handle = dlopen(KIV_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
        if (handle == nullptr) {
            std::fprintf(stderr, "%s\n", dlerror());
            std::exit(1);
        }
        return handle;
    }();
    return reinterpret_cast<F>(dlsym(module, name));
}

void direct_x02ajc(benchmark::State &state) {
    for (auto _ : state) benchmark::DoNotOptimize(x02ajc());
}
void module_x02ajc(benchmark::State &state) {
    auto wrapper = module_export<double (*)(void *)>("x02ajc_chdl");
    for (auto _ : state) benchmark::DoNotOptimize(wrapper(nullptr));
}

void direct_s15adc(benchmark::State &state) {
    double x = 0.75;
    for (auto _ : state) {
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(s15adc(x));
    }
}
void module_s15adc(benchmark::State &state) {
    auto wrapper = module_export<double (*)(void *)>("s15adc_chdl");
    double x = 0.75;
    void *list[] = {&x};
    for (auto _ : state) benchmark::DoNotOptimize(wrapper(list));
}

// A record interface routine with a quiet record whose handler is unset.
void direct_g01eac(benchmark::State &state) {
    KivError fail{};
    Kiv_Tail tail = Kiv_LowerTail;
    double x = 1.96;
    for (auto _ : state) {
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(g01eac(tail, x, &fail));
    }
}
void module_g01eac(benchmark::State &state) {
    auto wrapper = module_export<double (*)(void *)>("g01eac_chdl");
    KivError fail{};
    KivError *record = &fail;
    Kiv_Tail tail = Kiv_LowerTail;
    double x = 1.96;
    void *list[] = {&tail, &x, &record};
    for (auto _ : state) benchmark::DoNotOptimize(wrapper(list));
}

BENCHMARK(direct_x02ajc);
BENCHMARK(module_x02ajc);
BENCHMARK(direct_s15adc);
BENCHMARK(module_s15adc);
BENCHMARK(direct_g01eac);
BENCHMARK(module_g01eac);

}  // namespace

BENCHMARK_MAIN();
