// The one place for what depends on the compiler and the processor's
// instruction sets, as the platform files are for the operating system:
// attribute macros, the run-time CPU checks, the small vector types, and the
// few kernels written with intrinsics. Code elsewhere uses these names and
// has no #if on an instruction set or a compiler of its own.
#pragma once

#include <bit>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// ---- attributes -----------------------------------------------------------------

#if defined(__GNUC__)
// printf-style checking of a function's format argument.
#define KIV_PRINTF_FORMAT(format_index, first_argument) \
    __attribute__((format(printf, format_index, first_argument)))
#else
#define KIV_PRINTF_FORMAT(format_index, first_argument)
#endif

// Initial-exec TLS where the object format has it: one load from the thread
// pointer, no call, also from the shared library.
#if defined(__ELF__)
#define KIV_TLS_INITIAL_EXEC __attribute__((tls_model("initial-exec")))
#else
#define KIV_TLS_INITIAL_EXEC
#endif

// Code compiled for AVX or AVX2 in a function of its own (chosen at run time
// with the checks below); elsewhere the function is the baseline code again.
#if defined(__GNUC__) && defined(__x86_64__)
#define KIV_TARGET_AVX2 __attribute__((target("avx2")))
#if !defined(_WIN32)
#define KIV_TARGET_AVX __attribute__((target("avx")))
#define KIV_HAVE_AVX_TARGET 1
#endif
#endif
#if !defined(KIV_TARGET_AVX2)
#define KIV_TARGET_AVX2
#endif
#if !defined(KIV_TARGET_AVX)
#define KIV_TARGET_AVX
#endif

// Inlined into the caller whatever the optimiser thinks.
#if defined(__GNUC__)
#define KIV_FORCE_INLINE [[gnu::always_inline]] inline
#else
#define KIV_FORCE_INLINE inline
#endif

namespace kiv::kernels {

// ---- run-time processor checks (cached) --------------------------------------------

inline bool cpu_has_avx() {
#if defined(KIV_HAVE_AVX_TARGET)
    static const bool has = __builtin_cpu_supports("avx");
    return has;
#else
    return false;
#endif
}

inline bool cpu_has_avx2() {
#if defined(__GNUC__) && defined(__x86_64__)
    static const bool has = __builtin_cpu_supports("avx2");
    return has;
#else
    return false;
#endif
}

// ---- small vectors (GCC and Clang vector extension) -------------------------------

#if defined(__GNUC__)
inline constexpr bool kHaveVectors = true;
using Pair = double __attribute__((vector_size(16)));  // SSE2, NEON
using Quad = double __attribute__((vector_size(32)));  // AVX
#else
inline constexpr bool kHaveVectors = false;
struct Pair {};
struct Quad {};
#endif
inline constexpr bool kHaveAvxQuads =
#if defined(KIV_HAVE_AVX_TARGET)
    true;
#else
    false;
#endif

// ---- kernels with intrinsics -----------------------------------------------------------

// The carry and the signed deviate of the normal generator from an accepted
// fresh uniform r >= 0: carry 2r and +deviation for r <= 1/2, carry 2r - 1
// and -deviation otherwise, without branches (the sign is a coin toss);
// returns a + (+-deviation). SSE2 where there is SSE2, bit operations
// otherwise; the same results.
inline double signed_carry(double &carry, double fresh, double a, double deviation) {
#if defined(__SSE2__)
    const __m128d r = _mm_set_sd(fresh);
    const __m128d upper_half = _mm_cmplt_sd(_mm_set_sd(0.5), r);
    carry = _mm_cvtsd_f64(_mm_sub_sd(_mm_add_sd(r, r), _mm_and_pd(upper_half, _mm_set_sd(1.0))));
    const __m128d sign = _mm_and_pd(upper_half, _mm_set_sd(-0.0));
    return a + _mm_cvtsd_f64(_mm_xor_pd(_mm_set_sd(deviation), sign));
#else
    constexpr std::uint64_t half_bits = 0x3fe0000000000000u, one_bits = 0x3ff0000000000000u;
    const std::uint64_t upper_half = std::bit_cast<std::uint64_t>(fresh) > half_bits;
    carry = (fresh + fresh) - std::bit_cast<double>((0 - upper_half) & one_bits);
    return a + std::bit_cast<double>(std::bit_cast<std::uint64_t>(deviation) ^ (upper_half << 63));
#endif
}

}  // namespace kiv::kernels
