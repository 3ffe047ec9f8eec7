// Fuzz harness: error function family (s15abc, s15acc, s15adc, s15aec) and
// the batch form s15adc_v.
//
// Contracts checked beyond memory safety: erfc in [0, 2], erf in [-1, 1]
// and odd, the normal integrals in [0, 1]; NaN only from NaN (erf), and the
// batch form equal to the scalar routine bit for bit, also for n <= 0 with
// null arrays (nothing is touched).
#include "decode.hpp"

using namespace kiv::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    if (in.flag()) {
        const double x = in.real();
        const double erfc_x = s15adc(x);
        const double erf_x = s15aec(x);
        const double lower = s15abc(x);
        const double upper = s15acc(x);
        KIV_REQUIRE(erfc_x >= 0.0 && erfc_x <= 2.0);  // NaN gives 2.0 by its comparisons
        if (!std::isnan(x)) {
            KIV_REQUIRE(erf_x >= -1.0 && erf_x <= 1.0);
            KIV_REQUIRE(same_bits(s15aec(-x), -erf_x));
        }
        KIV_REQUIRE(in_unit_interval(lower) && in_unit_interval(upper));
        return 0;
    }
    const int n = in.flag() ? in.size(0, 64) : -in.size(0, 3);
    if (n <= 0) {
        s15adc_v(n, nullptr, nullptr);
        return 0;
    }
    const std::size_t count = static_cast<std::size_t>(n);
    Exact<double> x(count, in.reals(count));
    Exact<double> out(count);
    s15adc_v(n, x.get(), out.get());
    for (std::size_t i = 0; i < count; ++i) KIV_REQUIRE(same_bits(out[i], s15adc(x[i])));
    return 0;
}
