// s14aac: the gamma function Gamma(x); s14abc: ln |Gamma(x)|, for every
// double x that is not a pole.
//
// Domain and conventions:
//   Gamma has poles at 0 and the negative integers (every double of magnitude
//   2^52 or more is an integer); they are reported as NE_REAL_ARG_NEG_INT and
//   both routines then return 0.0.
//   s14aac overflows for x > 171.6243769563027 and for 0 < |x| < 1/x02alc()
//   (NE_OVERFLOW_LIKELY and NE_REAL_ARG_TOO_SMALL; the result is x02alc() with
//   the sign of Gamma), and underflows below the normalised range for x below
//   about -184 (NE_UNDERFLOW_LIKELY, result 0.0). s14abc overflows for
//   x > 2.55e305 (NE_OVERFLOW_LIKELY, result x02alc()).
//   A NaN or -inf argument is NE_REAL and gives NaN; +inf is an overflow.
//
// Method: positive x through the kernels of kernels/gamma_kernels.cpp (series
// about 1 and 2, the recurrence, Stirling's formula). Negative non-integers by
// the reflection formula Gamma(x) Gamma(-x) = -pi / (x sin(pi x)) with
// sin(pi x) after an exact reduction, and -x exact, evaluated in long double
// (so that Gamma(-x) does not overflow before the division); for |x| < 1/2
// directly Gamma(x) = Gamma(1 + x) / x.
//
// exp, log, sin and cos are the C library's (long double), so the last bits
// may differ between platforms (docs/gamma.md, "Platform-dependent results").
//
// Measured accuracy against MPFR (tests/s/gamma_test.cpp, docs/gamma.md).
#include <cmath>

#include "kernels/gamma_kernels.hpp"
#include "kiv.h"
#include "runtime/report.hpp"

namespace {

using kiv::kernels::gamma_positive;
using kiv::kernels::log_gamma_positive;
using kiv::kernels::sin_pi;

constexpr double kAllIntegers = 0x1p52;

bool is_pole(double x) {
    return x <= 0.0 && (x <= -kAllIntegers || x == std::floor(x));
}

// Reports the argument faults shared by both routines; true when one was
// reported and the routine must return `result`.
bool report_argument_fault(double x, const char *routine, KivError *fail, double &result) {
    using namespace kiv::rt;
    if (std::isnan(x) || x == -HUGE_VAL) {
        report_template(fail, routine, NE_REAL, "x", x, "x must be finite");
        result = std::nan("");
        return true;
    }
    if (is_pole(x)) {
        report_template(fail, routine, NE_REAL_ARG_NEG_INT, "x", x, "x");
        result = 0.0;
        return true;
    }
    return false;
}

// Gamma(x) for a negative non-integer x <= -1/2: the reflection formula in
// long double, where Gamma(-x) neither overflows nor loses its last bits.
double gamma_reflected(double x) {
    const long double reflection = -kiv::kernels::kPiLong / (x * sin_pi(x));
    const double opposite = -x;
    if (opposite < 10.0) return static_cast<double>(reflection / gamma_positive(opposite));
    return static_cast<double>(reflection / std::exp(kiv::kernels::log_gamma_stirling(opposite)));
}

}  // namespace

extern "C" {

KIV_API double s14aac(double x, KivError *fail) {
    using namespace kiv::rt;
    if (!licence_check()) return 0.0;
    clear_code(fail);
    double result = 0.0;
    if (report_argument_fault(x, "s14aac", fail, result)) return result;

    if (x > 0.0) {
        result = gamma_positive(x);
    } else if (x > -0.5) {
        result = std::exp(kiv::kernels::log_gamma_1p(x)) / x;
    } else {
        result = gamma_reflected(x);
    }

    if (std::isinf(result)) {
        const double largest = std::copysign(x02alc(), result);
        if (std::fabs(x) < 1.0)
            report_template(fail, "s14aac", NE_REAL_ARG_TOO_SMALL, "x", x, "|x| > 1/x02alc()");
        else
            report_template(fail, "s14aac", NE_OVERFLOW_LIKELY, "x", x);
        return largest;
    }
    if (std::fabs(result) < x02akc()) {
        report_template(fail, "s14aac", NE_UNDERFLOW_LIKELY, "x", x);
        return 0.0;
    }
    report_success(fail, "s14aac");
    return result;
}

KIV_API double s14abc(double x, KivError *fail) {
    using namespace kiv::rt;
    if (!licence_check()) return 0.0;
    clear_code(fail);
    double result = 0.0;
    if (report_argument_fault(x, "s14abc", fail, result)) return result;

    if (x > 0.0) {
        result = log_gamma_positive(x);
    } else if (x > -0.5) {
        result = kiv::kernels::log_gamma_1p(x) - std::log(-x);
    } else {
        // ln |Gamma(x)| = ln(pi / |x sin(pi x)|) - ln Gamma(-x).
        result = static_cast<double>(std::log(kiv::kernels::kPiLong / std::fabs(x * sin_pi(x))) -
                                     log_gamma_positive(-x));
    }

    if (std::isinf(result)) {
        report_template(fail, "s14abc", NE_OVERFLOW_LIKELY, "x", x);
        return x02alc();
    }
    report_success(fail, "s14abc");
    return result;
}

}  // extern "C"
