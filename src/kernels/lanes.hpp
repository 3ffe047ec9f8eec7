// Lane arithmetic: one source for a numerical kernel, evaluated either on a
// single double or on four doubles at once, with identical IEEE operations
// in identical order on every lane.
//
// A kernel is written once as a template over its number type V, using only
// + - * / on V, comparisons, select(mask, a, b) and the bit helpers below.
// Instantiated with V = double it is the scalar routine; instantiated with
// V = Lanes4 (a GCC/Clang vector of four doubles) it is the batch form. Each
// lane then performs exactly the operations of the scalar evaluation, all of
// them correctly rounded (add, subtract, multiply, divide, square root), so
// the results agree bit for bit. Operations that only move bits (building
// 2^k, taking an exponent apart) are exact, so they may differ in how they
// are done between the two forms.
//
// Lanes4 is a generic vector: in an ordinary function the compiler lowers it
// to pairs of SSE2 operations (the x86-64 baseline); inside a function
// compiled with __attribute__((target("avx2"))) it becomes one AVX register.
// The AVX2 target enables no fused multiply-add (that is the separate "fma"
// target), so no product can be contracted into an addition: a contracted
// a*b + c is rounded once instead of twice and would break the agreement
// with the scalar form. The library is compiled without -march, so the same
// holds for the scalar code; a build that enables FMA must also pass
// -ffp-contract=off.
//
// On 32-bit x86 the scalar code must use SSE2 arithmetic (-msse2
// -mfpmath=sse), not the x87 unit, whose extended precision would change
// results.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "kernels/simd.hpp"

namespace kiv::kernels {

#if defined(__GNUC__)
// Kernels that must be inlined into their caller (a vector value never
// crosses a call between baseline and AVX2 code).
#define KIV_ALWAYS_INLINE inline __attribute__((always_inline))
#define KIV_HAVE_LANES 1
// GCC notes that a 32-byte vector passed by value without AVX uses another
// calling convention than with AVX. No such call crosses between the two:
// the AVX2 drivers have every helper inlined into them (flatten), and the
// baseline code calls only baseline code.
#pragma GCC diagnostic ignored "-Wpsabi"

// Four doubles and the matching 64-bit integer lanes (masks, bit patterns).
typedef double Lanes4 __attribute__((vector_size(32)));
typedef std::int64_t Mask4 __attribute__((vector_size(32)));
#else
#define KIV_ALWAYS_INLINE inline
#endif

// ---- single value -----------------------------------------------------------

inline double select(bool mask, double if_true, double if_false) {
    return mask ? if_true : if_false;
}

inline std::int64_t to_bits(double x) {
    return std::bit_cast<std::int64_t>(x);
}
inline double from_bits(std::int64_t bits) {
    return std::bit_cast<double>(bits);
}
inline double absolute(double x) {
    return from_bits(to_bits(x) & INT64_MAX);
}
inline double square_root(double x) {
    return __builtin_sqrt(x);
}
inline bool any(bool mask) {
    return mask;
}
inline bool complement(bool mask) {
    return !mask;
}
inline double broadcast(double x, double) {
    return x;
}

// ---- four lanes -------------------------------------------------------------

#if defined(KIV_HAVE_LANES)
inline Lanes4 select(Mask4 mask, Lanes4 if_true, Lanes4 if_false) {
    return mask ? if_true : if_false;
}

inline Mask4 to_bits(Lanes4 x) {
    return (Mask4)x;
}
inline Lanes4 from_bits(Mask4 bits) {
    return (Lanes4)bits;
}
inline Lanes4 absolute(Lanes4 x) {
    return from_bits(to_bits(x) & INT64_MAX);
}
inline Lanes4 square_root(Lanes4 x) {
    Lanes4 root;
    for (int i = 0; i < 4; ++i) root[i] = __builtin_sqrt(x[i]);
    return root;
}
inline Lanes4 select(Mask4 mask, double if_true, Lanes4 if_false) {
    return mask ? Lanes4{if_true, if_true, if_true, if_true} : if_false;
}
inline Lanes4 select(Mask4 mask, Lanes4 if_true, double if_false) {
    return mask ? if_true : Lanes4{if_false, if_false, if_false, if_false};
}
inline Mask4 complement(Mask4 mask) {
    return ~mask;
}
inline bool any(Mask4 mask) {
    return (mask[0] | mask[1] | mask[2] | mask[3]) != 0;
}
inline Lanes4 broadcast(double x, Lanes4) {
    return Lanes4{x, x, x, x};
}

// Loads `count` (1 to 4) values, filling the remaining lanes with `fill`.
inline Lanes4 load_partial(const double *source, int count, double fill) {
    Lanes4 v = {fill, fill, fill, fill};
    for (int i = 0; i < count; ++i) v[i] = source[i];
    return v;
}
inline void store_partial(double *target, int count, Lanes4 v) {
    for (int i = 0; i < count; ++i) target[i] = v[i];
}
inline Lanes4 load(const double *source) {
    Lanes4 v;
    std::memcpy(&v, source, sizeof v);
    return v;
}
inline void store(double *target, Lanes4 v) {
    std::memcpy(target, &v, sizeof v);
}

// out[i] = kernel(in[i]) for i < n, eight at a time as two independent
// groups of four (so that one group's latency-bound chains overlap the
// other's), then four, then the rest; the lanes beyond n in the last group
// hold `fill`, a value inside the kernel's domain.
template <class Kernel>
inline void apply_lanes(int n, const double *in, double *out, double fill, Kernel kernel) {
    int i = 0;
    for (; i + 8 <= n; i += 8) {
        const Lanes4 first = kernel(load(in + i));
        const Lanes4 second = kernel(load(in + i + 4));
        store(out + i, first);
        store(out + i + 4, second);
    }
    for (; i + 4 <= n; i += 4) store(out + i, kernel(load(in + i)));
    if (i < n) store_partial(out + i, n - i, kernel(load_partial(in + i, n - i, fill)));
}

// ---- groups of four lanes ---------------------------------------------------

// N independent groups of four lanes as one number type. Every operation is
// applied group by group, so the N dependency chains of a kernel are emitted
// interleaved and the out-of-order window of the processor overlaps them
// (GCC scalarises comparisons and selections on generic vectors wider than a
// register, so the groups are spelled out here).
template <int N>
struct MaskGroup {
    Mask4 part[N];
};
template <int N>
struct LaneGroup {
    Lanes4 part[N];
};

#define KIV_GROUP_EACH(expression)                            \
    do {                                                      \
        for (int group = 0; group < N; ++group) (expression); \
    } while (0)

#define KIV_GROUP_BINARY(Result, Left, Right, op, left_part, right_part) \
    template <int N>                                                     \
    KIV_ALWAYS_INLINE Result<N> operator op(Left a, Right b) {           \
        Result<N> r;                                                     \
        KIV_GROUP_EACH(r.part[group] = (left_part)op(right_part));       \
        return r;                                                        \
    }
#define KIV_GROUP_ARITHMETIC(op)                                                              \
    KIV_GROUP_BINARY(LaneGroup, LaneGroup<N>, LaneGroup<N>, op, a.part[group], b.part[group]) \
    KIV_GROUP_BINARY(LaneGroup, LaneGroup<N>, double, op, a.part[group], b)                   \
    KIV_GROUP_BINARY(LaneGroup, double, LaneGroup<N>, op, a, b.part[group])
#define KIV_GROUP_COMPARISON(op)                                                              \
    KIV_GROUP_BINARY(MaskGroup, LaneGroup<N>, LaneGroup<N>, op, a.part[group], b.part[group]) \
    KIV_GROUP_BINARY(MaskGroup, LaneGroup<N>, double, op, a.part[group], b)
#define KIV_GROUP_BITS(op)                                                                    \
    KIV_GROUP_BINARY(MaskGroup, MaskGroup<N>, MaskGroup<N>, op, a.part[group], b.part[group]) \
    KIV_GROUP_BINARY(MaskGroup, MaskGroup<N>, std::int64_t, op, a.part[group], b)

KIV_GROUP_ARITHMETIC(+)
KIV_GROUP_ARITHMETIC(-)
KIV_GROUP_ARITHMETIC(*)
KIV_GROUP_ARITHMETIC(/)
KIV_GROUP_COMPARISON(<)
KIV_GROUP_COMPARISON(<=)
KIV_GROUP_COMPARISON(>)
KIV_GROUP_COMPARISON(>=)
KIV_GROUP_BITS(&)
KIV_GROUP_BITS(|)
KIV_GROUP_BITS(+)
KIV_GROUP_BITS(-)
KIV_GROUP_BITS(<<)
KIV_GROUP_BITS(>>)

#undef KIV_GROUP_BITS
#undef KIV_GROUP_COMPARISON
#undef KIV_GROUP_ARITHMETIC
#undef KIV_GROUP_BINARY

template <int N>
KIV_ALWAYS_INLINE LaneGroup<N> operator-(LaneGroup<N> a) {
    KIV_GROUP_EACH(a.part[group] = -a.part[group]);
    return a;
}
template <int N>
KIV_ALWAYS_INLINE MaskGroup<N> complement(MaskGroup<N> mask) {
    KIV_GROUP_EACH(mask.part[group] = ~mask.part[group]);
    return mask;
}
template <int N>
KIV_ALWAYS_INLINE bool any(MaskGroup<N> mask) {
    Mask4 all = mask.part[0];
    for (int group = 1; group < N; ++group) all |= mask.part[group];
    return any(all);
}
template <int N>
KIV_ALWAYS_INLINE LaneGroup<N> broadcast(double x, LaneGroup<N>) {
    LaneGroup<N> r;
    KIV_GROUP_EACH(r.part[group] = broadcast(x, Lanes4{}));
    return r;
}
template <int N>
KIV_ALWAYS_INLINE MaskGroup<N> to_bits(LaneGroup<N> x) {
    MaskGroup<N> r;
    KIV_GROUP_EACH(r.part[group] = to_bits(x.part[group]));
    return r;
}
template <int N>
KIV_ALWAYS_INLINE LaneGroup<N> from_bits(MaskGroup<N> bits) {
    LaneGroup<N> r;
    KIV_GROUP_EACH(r.part[group] = from_bits(bits.part[group]));
    return r;
}
template <int N>
KIV_ALWAYS_INLINE LaneGroup<N> absolute(LaneGroup<N> x) {
    KIV_GROUP_EACH(x.part[group] = absolute(x.part[group]));
    return x;
}
template <int N>
KIV_ALWAYS_INLINE LaneGroup<N> select(MaskGroup<N> mask, LaneGroup<N> if_true,
                                      LaneGroup<N> if_false) {
    KIV_GROUP_EACH(if_false.part[group] =
                       select(mask.part[group], if_true.part[group], if_false.part[group]));
    return if_false;
}
template <int N>
KIV_ALWAYS_INLINE LaneGroup<N> select(MaskGroup<N> mask, double if_true, LaneGroup<N> if_false) {
    KIV_GROUP_EACH(if_false.part[group] = select(mask.part[group], if_true, if_false.part[group]));
    return if_false;
}
template <int N>
KIV_ALWAYS_INLINE LaneGroup<N> select(MaskGroup<N> mask, LaneGroup<N> if_true, double if_false) {
    KIV_GROUP_EACH(if_true.part[group] = select(mask.part[group], if_true.part[group], if_false));
    return if_true;
}

// Horner's rule on N groups, step by step across the groups. An empty asm
// statement after each step takes every group's partial sum as input and
// output: it emits no instruction and changes no value, but GCC must then
// finish step k of all groups before step k + 1 of any, so the N chains
// stay interleaved (left alone, its scheduler emits them one after another
// to save registers, and the processor's window cannot hold several whole
// chains).
// Unoptimised builds keep every value in memory, where the register
// constraint cannot be met (and the order does not matter): no tie there.
// Clang checks the constraint against the enclosing function's target
// before inlining and refuses it; it schedules on its own.
template <int N>
KIV_ALWAYS_INLINE void keep_in_step([[maybe_unused]] LaneGroup<N> &sum) {
#if defined(__OPTIMIZE__) && !defined(__clang__)
    if constexpr (N == 4) {
        __asm__("" : "+x"(sum.part[0]), "+x"(sum.part[1]), "+x"(sum.part[2]), "+x"(sum.part[3]));
    } else if constexpr (N == 3) {
        __asm__("" : "+x"(sum.part[0]), "+x"(sum.part[1]), "+x"(sum.part[2]));
    } else if constexpr (N == 2) {
        __asm__("" : "+x"(sum.part[0]), "+x"(sum.part[1]));
    }
#endif
}
template <int N, std::size_t M, std::size_t... I>
KIV_ALWAYS_INLINE LaneGroup<N> horner_steps(LaneGroup<N> x, const double (&c)[M],
                                            std::index_sequence<I...>) {
    LaneGroup<N> sum = broadcast(c[M - 1], x);
    ((sum = sum * x + c[M - 2 - I], keep_in_step(sum)), ...);
    return sum;
}
#undef KIV_GROUP_EACH

// out[i] = kernel(in[i]) for i < n, with a generic kernel (a lambda taking
// auto): 4 N values at a time as N interleaved groups of four, then groups
// of four, then the rest (lanes beyond n hold `fill`).
template <int N, class Kernel>
inline void apply_lane_groups(int n, const double *in, double *out, double fill, Kernel kernel) {
    int i = 0;
    for (; i + 4 * N <= n; i += 4 * N) {
        LaneGroup<N> v;
        for (int group = 0; group < N; ++group) v.part[group] = load(in + i + 4 * group);
        const LaneGroup<N> r = kernel(v);
        for (int group = 0; group < N; ++group) store(out + i + 4 * group, r.part[group]);
    }
    for (; i + 4 <= n; i += 4) store(out + i, kernel(load(in + i)));
    if (i < n) store_partial(out + i, n - i, kernel(load_partial(in + i, n - i, fill)));
}
#endif

// The instruction sets a batch routine can run on: SSE2 (the x86-64
// baseline, or plain scalar code elsewhere), and AVX2 where the processor
// and the operating system support it. 32-bit Windows is left on the
// baseline: its stack is not kept 32-byte aligned for spilled AVX registers.
enum class LaneSet { baseline, avx2 };

#if defined(KIV_HAVE_LANES) && (defined(__x86_64__) || defined(__i386__)) && \
    !(defined(_WIN32) && !defined(_WIN64))
#define KIV_HAVE_AVX2_LANES 1
// A batch driver compiled for AVX2 with every kernel inlined into it.
#define KIV_AVX2_DRIVER __attribute__((target("avx2"), flatten))
#endif

inline LaneSet best_lane_set() {
#if defined(KIV_HAVE_AVX2_LANES)
    return cpu_has_avx2() ? LaneSet::avx2 : LaneSet::baseline;
#else
    return LaneSet::baseline;
#endif
}

// Horner's rule for c[0] + c[1] x + ... + c[N-1] x^(N-1), a table listed
// from the constant term up, evaluated from the highest power down:
// ((c[N-1] x + c[N-2]) x + ...) x + c[0]. Written as a fold so that the
// steps are unrolled: a loop's counter and compare would add instructions
// to a latency-bound chain and crowd the window in which independent calls
// overlap.
template <class V, std::size_t N, std::size_t... I>
KIV_ALWAYS_INLINE V horner_steps(V x, const double (&c)[N], std::index_sequence<I...>) {
    V sum = broadcast(c[N - 1], x);
    ((sum = sum * x + c[N - 2 - I]), ...);
    return sum;
}
template <class V, std::size_t N>
KIV_ALWAYS_INLINE V polynomial(V x, const double (&c)[N]) {
    return horner_steps(x, c, std::make_index_sequence<N - 1>());
}

// 2^k from s = k + 0x1.8p52 (the sum that rounded k to an integer): the low
// bits of s hold k in two's complement. Exact for -1022 <= k <= 1023.
template <class V>
inline V power_of_two_from_shifted(V shifted) {
    constexpr std::int64_t kShiftBits = 0x4338000000000000;  // bits of 0x1.8p52
    return from_bits((to_bits(shifted) - kShiftBits + 1023) << 52);
}

// For positive finite normal x = 2^e * m with m in [1, 2): the mantissa m
// and the exponent e as a double. Both exact.
template <class V>
inline V mantissa_of(V x) {
    constexpr std::int64_t kFractionBits = 0x000FFFFFFFFFFFFF;
    constexpr std::int64_t kOneBits = 0x3FF0000000000000;
    return from_bits((to_bits(x) & kFractionBits) | kOneBits);
}
template <class V>
inline V exponent_of(V x) {
    // 2^52 + e' (e' the biased exponent) is exact; subtracting 2^52 + 1023
    // leaves e.
    constexpr std::int64_t kTwo52Bits = 0x4330000000000000;
    return from_bits((to_bits(x) >> 52) | kTwo52Bits) - 0x1.00000000003FFp52;
}

}  // namespace kiv::kernels
