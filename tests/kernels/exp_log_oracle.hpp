// MPFR oracle for the accuracy tests of the exponential, logarithm, error
// functions and normal distribution: references at 128 bits, and errors
// measured in ulps or relative to the reference. The grids and the worst-error
// record do not need MPFR and are there in every build (KIV_HAVE_MPFR is 0
// where MPFR is missing).
#pragma once

#if KIV_HAVE_MPFR
#include <mpfr.h>
#endif

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <vector>

namespace kiv::oracle {

#if KIV_HAVE_MPFR
// An MPFR number at 128 bits, freed at scope exit.
class Real {
public:
    Real() { mpfr_init2(value_, 128); }
    explicit Real(double x) : Real() { mpfr_set_d(value_, x, MPFR_RNDN); }
    Real(const Real &) = delete;
    Real &operator=(const Real &) = delete;
    ~Real() { mpfr_clear(value_); }
    mpfr_ptr get() { return value_; }
    mpfr_srcptr get() const { return value_; }
    double to_double() const { return mpfr_get_d(value_, MPFR_RNDN); }

private:
    mpfr_t value_;
};

using Reference = std::function<void(Real &result, double x)>;

// |computed - exact| in ulps of the exact value's binade (2^-1074 for
// subnormal values).
inline double ulp_error(double computed, const Real &exact) {
    Real difference;
    mpfr_sub_d(difference.get(), exact.get(), computed, MPFR_RNDN);
    mpfr_abs(difference.get(), difference.get(), MPFR_RNDN);
    const double rounded = std::fabs(exact.to_double());
    int exponent = 0;
    std::frexp(rounded, &exponent);  // rounded = m 2^exponent, m in [0.5, 1)
    const int ulp_exponent = std::max(exponent - 53, -1074);
    return std::ldexp(mpfr_get_d(difference.get(), MPFR_RNDN), -ulp_exponent);
}

// |computed - exact| / |exact|.
inline double relative_error(double computed, const Real &exact) {
    Real difference;
    mpfr_sub_d(difference.get(), exact.get(), computed, MPFR_RNDN);
    mpfr_div(difference.get(), difference.get(), exact.get(), MPFR_RNDN);
    return std::fabs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

// Phi(x) = erfc(-x / sqrt 2) / 2, the standard normal lower tail, at 128 bits.
inline void normal_lower_tail(Real &result, double x) {
    Real root_two;
    mpfr_sqrt_ui(root_two.get(), 2, MPFR_RNDN);
    mpfr_set_d(result.get(), -x, MPFR_RNDN);
    mpfr_div(result.get(), result.get(), root_two.get(), MPFR_RNDN);
    mpfr_erfc(result.get(), result.get(), MPFR_RNDN);
    mpfr_div_2ui(result.get(), result.get(), 1, MPFR_RNDN);
}
#endif  // KIV_HAVE_MPFR

// The worst error over the points and where it occurred.
struct Worst {
    double error = 0.0;
    double at = 0.0;
    void update(double e, double x) {
        if (e > error) {
            error = e;
            at = x;
        }
    }
};

// `count` points: an even grid on [low, high] with both ends, then as many
// again drawn uniformly (fixed seed).
inline std::vector<double> dense_grid(double low, double high, int count) {
    std::vector<double> points;
    for (int i = 0; i <= count; ++i) points.push_back(low + (high - low) * i / count);
    std::mt19937_64 engine(20240917);
    std::uniform_real_distribution<double> uniform(low, high);
    for (int i = 0; i < count; ++i) points.push_back(uniform(engine));
    return points;
}

}  // namespace kiv::oracle
