// Fuzz harness: descriptive statistics g01aac.
//
// n up to 64 with arrays of exactly n values, weights absent or present
// (zero, negative, NaN, huge), and n <= 0 (any magnitude) with null arrays,
// which must be rejected before anything is read. Contracts: consistent
// record; nvalid in [0, n]; on success xmin <= xmax for finite data and
// xsd is not negative.
#include "decode.hpp"

using namespace kiv::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    int nvalid = -1;
    double xmean = -1, xsd = -1, xskew = -1, xkurt = -1, xmin = -1, xmax = -1, wsum = -1;
    KivError fail = make_record(in);
    if (in.in_range(0, 7) == 0) {
        const int n = in.flag() ? -in.size(0, 3) : (in.flag() ? INT_MIN : 0);
        g01aac(n, nullptr, nullptr, &nvalid, &xmean, &xsd, &xskew, &xkurt, &xmin, &xmax, &wsum,
               &fail);
        KIV_REQUIRE(fail.code == NE_INT_ARG_LE && nvalid == 0 && xmean == -1 && wsum == -1);
        check_record(fail);
        return 0;
    }
    const int n = in.size(1, 64);
    const std::size_t count = static_cast<std::size_t>(n);
    Exact<double> x(count, in.reals(count));
    const bool weighted = in.flag();
    std::vector<double> weights(count);
    for (double &w : weights) {
        switch (in.in_range(0, 4)) {
            case 0:
                w = 0.0;
                break;
            case 1:
                w = in.real();
                break;
            default:
                w = in.probability() * 4.0;
                break;
        }
    }
    Exact<double> wt(count, weights);
    g01aac(n, x.get(), weighted ? wt.get() : nullptr, &nvalid, &xmean, &xsd, &xskew, &xkurt, &xmin,
           &xmax, &wsum, &fail);
    check_record(fail);
    KIV_REQUIRE(nvalid >= 0 && nvalid <= n);
    if (fail.code != 0) return 0;
    bool finite = true;
    for (std::size_t i = 0; i < count; ++i)
        if (!std::isfinite(x[i]) || (weighted && !std::isfinite(wt[i]))) finite = false;
    if (finite) KIV_REQUIRE(xmin <= xmax);
    KIV_REQUIRE(!(xsd < 0.0));
    return 0;
}
