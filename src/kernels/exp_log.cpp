// Scalar entry points of the exponential and logarithm kernels over the
// whole double range; the method, references and accuracy are described in
// exp_log.hpp, whose lane templates do the arithmetic.
#include "kernels/exp_log.hpp"

#include <cstdint>
#include <limits>

namespace kiv::kernels {

namespace {
// Beyond these e^x overflows, or rounds to zero (below half the smallest
// subnormal).
constexpr double kOverflowThreshold = 0x1.62e42fefa39efp+9;    // 709.782712893384
constexpr double kUnderflowThreshold = -0x1.74910d52d3051p+9;  // -745.1332191019411

// 2^e for -1022 <= e <= 1023.
double power_of_two(std::int64_t e) {
    return from_bits((e + 1023) << 52);
}
}  // namespace

double exp(double x) {
    if (x != x) return x + x;
    if (x > kOverflowThreshold) return std::numeric_limits<double>::infinity();
    if (x < kUnderflowThreshold) return 0.0;
    double shifted;
    const double y = exp_reduced(x, 0.0, shifted);
    const std::int64_t k = to_bits(shifted) - to_bits(detail::kRoundingShift);
    if (k > 1023) return y * 0x1.0p1023 * power_of_two(k - 1023);
    // Scale in two steps so that only the last multiplication rounds (into
    // the subnormal range).
    if (k < -1022) return (y * power_of_two(k + 1000)) * 0x1.0p-1000;
    return y * power_of_two(k);
}

double log(double x) {
    if (x != x) return x + x;
    if (x < 0.0) return std::numeric_limits<double>::quiet_NaN();
    if (x == 0.0) return -std::numeric_limits<double>::infinity();
    if (x == std::numeric_limits<double>::infinity()) return x;
    return log_positive(x);
}

}  // namespace kiv::kernels
