// Fuzz harness: time-series autocorrelation (g13aac, g13abc, g13acc).
//
// Series of up to 64 values in arrays of exactly the claimed length, lags
// and differencing orders around and beyond their limits, and a mode with
// extreme orders (INT_MAX, INT_MIN) whose combination d + ds*s must be
// formed without overflow and rejected before the series is read.
// Contracts: consistent record; g13acc's order reached lies in [0, nl];
// g13aac's output length is nx - d - ds*s on success.
#include "decode.hpp"

using namespace kiv::fuzz;

namespace {

std::size_t count(int n) {
    return n <= 0 ? 0 : static_cast<std::size_t>(n);
}

void differencing(Decoder &in, KivError &fail) {
    const int nx = in.size(-1, 64);
    const bool extreme = in.in_range(0, 3) == 0;
    const int d = extreme ? in.integer() : in.size(-1, 4);
    const int ds = extreme ? in.integer() : in.size(-1, 3);
    const int s = extreme ? in.integer() : in.size(-1, 12);
    Exact<double> x(count(nx), in.reals(count(nx)));
    Exact<double> xd(count(nx));
    int nxd = -1;
    g13aac(x.get(), nx, d, ds, s, xd.get(), &nxd, &fail);
    if (fail.code == 0) {
        KIV_REQUIRE(d >= 0 && ds >= 0 && s >= 0);
        KIV_REQUIRE(static_cast<long long>(nxd) ==
                    static_cast<long long>(nx) - d - static_cast<long long>(ds) * s);
    }
}

void autocorrelation(Decoder &in, KivError &fail) {
    const int nx = in.size(-1, 64);
    const int nk = in.flag() ? in.size(-1, 66) : in.integer();
    Exact<double> x(count(nx), in.reals(count(nx)));
    // r has nk entries when the call may be valid (0 < nk < nx <= 64).
    const std::size_t r_extent = (nk > 0 && nk < nx) ? count(nk) : 0;
    Exact<double> r(r_extent);
    double xm = -1, xv = -1, stat = -1;
    g13abc(x.get(), nx, nk, &xm, &xv, r.get(), &stat, &fail);
    if (fail.code == 0) KIV_REQUIRE(!(stat < 0.0) && !(xv < 0.0));
}

void partial_autocorrelation(Decoder &in, KivError &fail) {
    const int nk = in.flag() ? in.size(-1, 40) : in.integer();
    int nl = in.flag() ? in.size(-1, 40) : in.integer();
    const bool sized = nk >= 1 && nk <= 40;
    if (!sized && nk >= 1) nl = (nk == INT_MAX || in.flag()) ? -in.size(0, 3) : nk + 1;
    std::vector<double> values = in.reals(sized ? count(nk) : 0);
    if (in.flag())
        for (double &v : values) v = std::fmod(v, 1.0);
    Exact<double> r(sized ? count(nk) : 0, values);
    const std::size_t out = (nl >= 1 && nl <= nk && sized) ? count(nl) : 0;
    Exact<double> p(out), v(out), ar(out);
    int nvl = -1;
    g13acc(r.get(), nk, nl, p.get(), v.get(), ar.get(), &nvl, &fail);
    if (fail.code == 0 || fail.code == NE_CORR_NOT_POS_DEF) KIV_REQUIRE(nvl >= 1 && nvl <= nl);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    KivError fail = make_record(in);
    switch (in.in_range(0, 2)) {
        case 0:
            differencing(in, fail);
            break;
        case 1:
            autocorrelation(in, fail);
            break;
        default:
            partial_autocorrelation(in, fail);
            break;
    }
    check_record(fail);
    return 0;
}
