// Fuzz harness: normal distribution (g01eac, g01fac, g01cec) and the batch
// forms g01eac_v and g01fac_v.
//
// Any tail value, any double, quiet records with and without handlers.
// Contracts: every record is filled consistently (check_record); a failed
// call returns 0.0; probabilities lie in [0, 1]; g01fac of a valid p gives a
// number; the batch forms equal the scalar routines bit for bit.
#include "decode.hpp"

using namespace kiv::fuzz;

namespace {

void scalar(Decoder &in) {
    const int tail = in.enumeration(Kiv_LowerTail, Kiv_Central);
    const int which = in.in_range(0, 2);
    const double arg = which == 0 ? in.real() : in.probability();
    KivError fail = make_record(in);
    double result = 0.0;
    switch (which) {
        case 0:
            result = g01eac(static_cast<Kiv_Tail>(tail), arg, &fail);
            if (fail.code == 0 && !std::isnan(arg)) KIV_REQUIRE(in_unit_interval(result));
            break;
        case 1:
            result = g01fac(static_cast<Kiv_Tail>(tail), arg, &fail);
            if (fail.code == 0) KIV_REQUIRE(!std::isnan(result));
            break;
        default:
            result = g01cec(arg, &fail);
            if (fail.code == 0) KIV_REQUIRE(std::isfinite(result));
            break;
    }
    check_record(fail);
    if (fail.code != 0 && fail.code != NE_INTERNAL_ERROR) KIV_REQUIRE(result == 0.0);
}

void batch(Decoder &in) {
    const int tail = in.enumeration(Kiv_LowerTail, Kiv_Central);
    const bool deviates = in.flag();
    const int n = in.flag() ? in.size(1, 64) : -in.size(0, 3);
    KivError fail = make_record(in);
    if (n <= 0) {  // nothing to read or write: null arrays are fine
        if (deviates)
            g01fac_v(static_cast<Kiv_Tail>(tail), n, nullptr, nullptr, &fail);
        else
            g01eac_v(static_cast<Kiv_Tail>(tail), n, nullptr, nullptr, &fail);
        check_record(fail);
        return;
    }
    const std::size_t count = static_cast<std::size_t>(n);
    std::vector<double> values(count);
    for (double &v : values) v = deviates ? in.probability() : in.real();
    Exact<double> x(count, values);
    Exact<double> out(count);
    if (deviates)
        g01fac_v(static_cast<Kiv_Tail>(tail), n, x.get(), out.get(), &fail);
    else
        g01eac_v(static_cast<Kiv_Tail>(tail), n, x.get(), out.get(), &fail);
    check_record(fail);
    if (fail.code != 0) return;
    for (std::size_t i = 0; i < count; ++i) {
        KivError single{};
        const double expected = deviates ? g01fac(static_cast<Kiv_Tail>(tail), x[i], &single)
                                         : g01eac(static_cast<Kiv_Tail>(tail), x[i], &single);
        if (single.code == 0) KIV_REQUIRE(same_bits(out[i], expected));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    if (in.flag())
        scalar(in);
    else
        batch(in);
    return 0;
}
