// Fuzz harness: chi-square and gamma probabilities (g01ecc, g01efc) and the
// gamma-function family under them (s14aac, s14abc, s14bac).
//
// Any tail, any doubles (NaN, infinities, subnormals, huge shapes), any
// tolerance. Contracts: consistent record; a rejected call returns 0.0; a
// successful probability lies in [0, 1]; s14bac returns P and Q in [0, 1].
#include "decode.hpp"

using namespace kiv::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    KivError fail = make_record(in);
    const int tail = in.enumeration(Kiv_LowerTail, Kiv_Central);
    const double a = in.real();
    const double b = in.real();
    const double c = in.real();
    switch (in.in_range(0, 4)) {
        case 0: {
            const double p = g01ecc(static_cast<Kiv_Tail>(tail), a, b, &fail);
            check_record(fail);
            if (fail.code == 0) KIV_REQUIRE(in_unit_interval(p) || std::isnan(p));
            if (fail.code != 0 && fail.code != NE_ALG_NOT_CONV) KIV_REQUIRE(p == 0.0);
            break;
        }
        case 1: {
            const double p = g01efc(static_cast<Kiv_Tail>(tail), a, b, c, &fail);
            check_record(fail);
            if (fail.code == 0) KIV_REQUIRE(in_unit_interval(p) || std::isnan(p));
            if (fail.code != 0 && fail.code != NE_ALG_NOT_CONV) KIV_REQUIRE(p == 0.0);
            break;
        }
        case 2: {
            double p = -1.0, q = -1.0;
            s14bac(a, b, c, &p, &q, &fail);
            check_record(fail);
            if (fail.code == 0) KIV_REQUIRE(in_unit_interval(p) && in_unit_interval(q));
            break;
        }
        case 3:
            (void)s14aac(a, &fail);
            check_record(fail);
            break;
        default:
            (void)s14abc(a, &fail);
            check_record(fail);
            break;
    }
    return 0;
}
