// Batch form of the normal deviate: g01fac_v(tail, n, p, out, fail) sets
// out[i] = g01fac(tail, p[i]) bit for bit for every i < n, and reports once.
//
// Lanes run the kernel templates of normal_deviate.hpp (the same IEEE
// operations in the same order as g01cec; kernels/lanes.hpp explains why
// SSE2 and AVX2 lanes agree with the scalar code). A lane whose probability
// is outside (0, 1) gets 0.5 for the computation and the scalar routine's
// result (0, or -0 where the scalar routine negates the kernel's 0) after.
//
// Checks, in order: n >= 0 (NE_INT); p and out not null when n > 0
// (NE_BAD_PARAM naming the array); the tail (NE_BAD_PARAM; out is then all
// 0, the scalar results). Then the elements: every element is computed, and
// the first that fails is reported with its index, in the table's words:
//   NE_REAL_ARG_LE:\n  On entry, p[i] must not be less than or equal to 0.0: p[i] = %g.
//   NE_REAL_ARG_GE:\n  On entry, p[i] must not be greater than or equal to 1.0: p[i] = %g.
//   NE_INTERNAL_ERROR for the element whose mapped probability left (0, 1),
//   with the table's text naming the element (see kInternalErrorAt).
#include <cstdio>

#include "g01/normal_common.hpp"
#include "g01/normal_deviate.hpp"
#include "kiv.h"
#include "runtime/report.hpp"

namespace {

constexpr const char *kRoutine = "g01fac_v";

constexpr const char *kInternalErrorAt =
    "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function at p[%d].\n"
    "  Check the function call and any array sizes. If the call is correct\n"
    "  then please consult KIV for assistance.";

// The tails whose deviate is the kernel's, negated.
bool negates(Kiv_Tail tail) {
    return tail == Kiv_UpperTail || tail == Kiv_TwoTailSignif;
}

// The kernel argument exactly as g01fac forms it.
template <class V>
inline V mapped(V p, Kiv_Tail tail) {
    if (tail == Kiv_TwoTailConfid) return (p + 1.0) * 0.5;
    if (tail == Kiv_TwoTailSignif) return p * 0.5;
    return p;
}

#if defined(KIV_HAVE_LANES)
using kiv::kernels::Lanes4;
using kiv::kernels::Mask4;

inline Mask4 inside_unit_interval(Lanes4 p) {
    return (p > 0.0) & (p < 1.0);
}

// Computes every element; true when some element failed.
bool deviates_lanes(Kiv_Tail tail, int n, const double *p, double *out) {
    const bool negate = negates(tail);
    bool failed = false;
    kiv::kernels::apply_lanes(n, p, out, 0.5, [&](Lanes4 v) {
        const Lanes4 argument = mapped(v, tail);
        const Mask4 p_ok = inside_unit_interval(v);
        const Mask4 argument_ok = inside_unit_interval(argument);
        const Mask4 ok = p_ok & argument_ok;
        failed = failed || kiv::kernels::any(kiv::kernels::complement(ok));
        Lanes4 x = kiv::g01::deviate_all(kiv::kernels::select(ok, argument, 0.5));
        x = kiv::kernels::select(argument_ok, x, 0.0);
        if (negate) x = -x;
        return kiv::kernels::select(p_ok, x, 0.0);
    });
    return failed;
}
#endif

#if defined(KIV_HAVE_AVX2_LANES)
KIV_AVX2_DRIVER bool deviates_avx2(Kiv_Tail tail, int n, const double *p, double *out) {
    return deviates_lanes(tail, n, p, out);
}
#endif

bool deviates(Kiv_Tail tail, int n, const double *p, double *out) {
#if defined(KIV_HAVE_AVX2_LANES)
    if (kiv::kernels::best_lane_set() == kiv::kernels::LaneSet::avx2)
        return deviates_avx2(tail, n, p, out);
#endif
#if defined(KIV_HAVE_LANES)
    return deviates_lanes(tail, n, p, out);
#else
    bool failed = false;
    for (int i = 0; i < n; ++i) {
        KivError record{};
        out[i] = g01fac(tail, p[i], &record);
        failed = failed || record.code != 0;
    }
    return failed;
#endif
}

// Reports the first failing element (there is one).
void report_first_failure(Kiv_Tail tail, int n, const double *p, KivError *fail) {
    for (int i = 0; i < n; ++i) {
        char name[32];
        std::snprintf(name, sizeof name, "p[%d]", i);
        if (kiv::g01::report_if_outside_unit_interval(p[i], fail, kRoutine, name)) return;
        const double argument = mapped(p[i], tail);
        if (!(argument > 0.0 && argument < 1.0)) {
            kiv::rt::report_text(fail, kRoutine, NE_INTERNAL_ERROR, kInternalErrorAt, i);
            return;
        }
    }
}

}  // namespace

extern "C" {

KIV_API void g01fac_v(Kiv_Tail tail, int n, const double p[], double out[], KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    if (kiv::g01::report_if_bad_batch(n, p, "p", out, fail, kRoutine)) return;
    if (!kiv::g01::is_normal_tail(tail)) {
        for (int i = 0; i < n; ++i) out[i] = 0.0;
        kiv::rt::report_template(fail, kRoutine, NE_BAD_PARAM, "tail");
        return;
    }
    if (deviates(tail, n, p, out)) {
        report_first_failure(tail, n, p, fail);
        return;
    }
    kiv::rt::report_success(fail, kRoutine);
}

}  // extern "C"
