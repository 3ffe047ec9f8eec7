// Fuzz harness: correlation and sums of squares (g02brc, g02btc, g02buc,
// g02bwc, g02bxc, g02byc).
//
// Sizes are decoded small (at most 24 observations, 12 variables) and every
// array is allocated with exactly the extent that the arguments claim, so a
// read or write past it is reported by AddressSanitizer; strides range from
// below the row length (which must be rejected) to a few beyond it, and the
// optional arrays are sometimes null. A second mode passes huge, negative
// and extreme sizes together with one argument that makes the call invalid,
// with tiny or null arrays: the routine must reject it before touching them.
// Contract: every record is filled consistently.
#include "decode.hpp"

using namespace kiv::fuzz;

namespace {

constexpr int kMaxObservations = 24;
constexpr int kMaxVariables = 12;

std::size_t packed(int m) {
    return m <= 0 ? 0 : static_cast<std::size_t>(m) * static_cast<std::size_t>(m + 1) / 2;
}
std::size_t count(int n) {
    return n <= 0 ? 0 : static_cast<std::size_t>(n);
}

int stride(Decoder &in, int length) {
    return length + in.in_range(-2, 3);
}

void rank_correlation(Decoder &in, KivError &fail) {
    const int n = in.size(-1, kMaxObservations);
    const int m = in.size(-1, kMaxVariables);
    const int tdx = stride(in, m), tdc = stride(in, m);
    Exact<double> x(extent(n, tdx), in.reals(extent(n, tdx)));
    Exact<int> svar(count(m), in.integers(count(m), -1, 2));
    Exact<int> sobs(count(n), in.integers(count(n), -1, 2));
    Exact<double> corr(extent(m, tdc));
    g02brc(n, m, x.get(), tdx, in.flag() ? svar.get() : nullptr, in.flag() ? sobs.get() : nullptr,
           corr.get(), tdc, &fail);
}

void update(Decoder &in, KivError &fail) {
    const int mean = in.enumeration(Kiv_AboutMean, Kiv_AboutZero);
    const int m = in.size(-1, kMaxVariables);
    const int incx = in.size(-1, 3);
    const std::size_t x_extent = (m >= 1 && incx >= 1) ? count((m - 1) * incx + 1) : 0;
    Exact<double> x(x_extent, in.reals(x_extent));
    Exact<double> xbar(count(m), in.reals(count(m)));
    Exact<double> c(packed(m), in.reals(packed(m)));
    double sw = in.flag() ? in.real() : in.probability() * 10;
    const double wt = in.flag() ? in.real() : in.probability() * 3;
    const int nulls = in.in_range(0, 8);
    g02btc(static_cast<Kiv_SumSquare>(mean), m, wt, nulls == 1 ? nullptr : x.get(), incx,
           nulls == 2 ? nullptr : &sw, nulls == 3 ? nullptr : xbar.get(),
           nulls == 4 ? nullptr : c.get(), &fail);
}

void sums_of_squares(Decoder &in, KivError &fail) {
    const int mean = in.enumeration(Kiv_AboutMean, Kiv_AboutZero);
    const int order = in.enumeration(Kiv_RowMajor, Kiv_ColMajor);
    const int n = in.size(-1, kMaxObservations);
    const int m = in.size(-1, kMaxVariables);
    const bool by_rows = order != Kiv_ColMajor;
    const int pdx = stride(in, by_rows ? m : n);
    const std::size_t x_extent = by_rows ? extent(n, pdx) : extent(m, pdx);
    Exact<double> x(x_extent, in.reals(x_extent));
    Exact<double> wt(count(n), in.reals(count(n)));
    Exact<double> wmean(count(m));
    Exact<double> c(packed(m));
    double sw = -1.0;
    const int nulls = in.in_range(0, 8);
    g02buc(static_cast<Kiv_SumSquare>(mean), static_cast<Kiv_OrderType>(order), n, m,
           nulls == 1 ? nullptr : x.get(), pdx, in.flag() ? wt.get() : nullptr,
           nulls == 2 ? nullptr : &sw, nulls == 3 ? nullptr : wmean.get(),
           nulls == 4 ? nullptr : c.get(), &fail);
}

void correlation_from_sums(Decoder &in, KivError &fail) {
    const int m = in.size(-1, kMaxVariables);
    Exact<double> r(packed(m), in.reals(packed(m)));
    g02bwc(m, in.in_range(0, 8) == 0 ? nullptr : r.get(), &fail);
}

void pearson(Decoder &in, KivError &fail) {
    const int n = in.size(-1, kMaxObservations);
    const int m = in.size(-1, kMaxVariables);
    const int tdx = stride(in, m), tdr = stride(in, m), tdv = stride(in, m);
    Exact<double> x(extent(n, tdx), in.reals(extent(n, tdx)));
    Exact<int> sx(count(m), in.integers(count(m), -1, 2));
    Exact<double> wt(count(n), in.reals(count(n)));
    Exact<double> wmean(count(m)), std_dev(count(m));
    Exact<double> r(extent(m, tdr)), v(extent(m, tdv));
    double sw = -1.0;
    g02bxc(n, m, x.get(), tdx, sx.get(), in.flag() ? wt.get() : nullptr, &sw, wmean.get(),
           std_dev.get(), r.get(), tdr, v.get(), tdv, &fail);
}

void partial(Decoder &in, KivError &fail) {
    const int m = in.size(-1, kMaxVariables);
    const int ny = in.size(-1, 6);
    const int nx = in.size(-1, 8);
    const int tdr = stride(in, m), tdp = stride(in, ny);
    Exact<int> isz(count(m), in.integers(count(m), -2, 2));
    std::vector<double> values = in.reals(extent(m, tdr));
    if (in.flag()) {  // mostly a correlation matrix with a unit diagonal
        for (int i = 0; i < m && tdr >= m; ++i) values[i * tdr + i] = 1.0;
    }
    Exact<double> r(extent(m, tdr), values);
    Exact<double> p(extent(ny, tdp));
    g02byc(m, ny, nx, isz.get(), r.get(), tdr, p.get(), tdp, &fail);
}

// Extreme sizes with one argument that makes the call invalid before any
// array may be read; the arrays are tiny or null.
void extreme(Decoder &in, KivError &fail) {
    static constexpr int kHuge[] = {INT_MAX, INT_MIN, INT_MAX - 1, 46341, 65536, 1 << 30, -1};
    const int a = in.flag() ? in.integer() : in.pick(kHuge);
    const int b = in.flag() ? in.integer() : in.pick(kHuge);
    const int c = in.flag() ? in.integer() : in.pick(kHuge);
    double tiny[1] = {0.0};
    int tiny_int[1] = {1};
    double sw = 0.0;
    switch (in.in_range(0, 6)) {
        case 0:  // g02brc: n < 2, or tdx < m, or tdc < m
            switch (in.in_range(0, 2)) {
                case 0:
                    g02brc(std::min(a, 1), b, tiny, c, nullptr, nullptr, tiny, c, &fail);
                    break;
                case 1:
                    g02brc(a, std::max(b, 2), tiny, std::min(c, std::max(b, 2) - 1), nullptr,
                           nullptr, tiny, b, &fail);
                    break;
                default:
                    g02brc(a, std::min(b, 1), tiny, c, nullptr, nullptr, tiny, c, &fail);
                    break;
            }
            KIV_REQUIRE(fail.code == NE_INT_ARG_LT || fail.code == NE_2_INT_ARG_LT);
            break;
        case 1:  // g02btc: incx < 1 or m < 1
            g02btc(Kiv_AboutMean, in.flag() ? std::min(a, 0) : a, 1.0, tiny, std::min(c, 0), &sw,
                   tiny, tiny, &fail);
            KIV_REQUIRE(fail.code == NE_INT);
            break;
        case 2:  // g02buc: m < 1 or n < 1
            g02buc(Kiv_AboutMean, Kiv_RowMajor, in.flag() ? std::min(a, 0) : a, std::min(b, 0),
                   tiny, c, nullptr, &sw, tiny, tiny, &fail);
            KIV_REQUIRE(fail.code != 0);
            break;
        case 3:  // g02bwc: m < 1
            g02bwc(std::min(a, 0), tiny, &fail);
            KIV_REQUIRE(fail.code == NE_INT);
            break;
        case 4:  // g02bxc: n < 2 or m < 1 or a stride below m
            if (in.flag())
                g02bxc(std::min(a, 1), b, tiny, c, tiny_int, nullptr, &sw, tiny, tiny, tiny, c,
                       tiny, c, &fail);
            else
                g02bxc(a, std::max(b, 1), tiny, std::min(c, std::max(b, 1) - 1), tiny_int, nullptr,
                       &sw, tiny, tiny, tiny, b, tiny, b, &fail);
            KIV_REQUIRE(fail.code == NE_INT_ARG_LE || fail.code == NE_INT_ARG_LT ||
                        fail.code == NE_2_INT_ARG_LT);
            break;
        case 5:  // g02byc: m < 3, or ny + nx > m
            if (in.flag())
                g02byc(std::min(a, 2), b, c, tiny_int, tiny, a, tiny, b, &fail);
            else
                g02byc(3, std::max(b, 2), std::max(c, 2), tiny_int, tiny, 3, tiny, b, &fail);
            KIV_REQUIRE(fail.code != 0);
            break;
        default:  // g02bxc with a negative observation count
            g02bxc(std::min(a, 1), a, nullptr, a, nullptr, nullptr, &sw, nullptr, nullptr, nullptr,
                   a, nullptr, a, &fail);
            KIV_REQUIRE(fail.code == NE_INT_ARG_LE);
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Decoder in(data, size);
    KivError fail = make_record(in);
    switch (in.in_range(0, 6)) {
        case 0:
            rank_correlation(in, fail);
            break;
        case 1:
            update(in, fail);
            break;
        case 2:
            sums_of_squares(in, fail);
            break;
        case 3:
            correlation_from_sums(in, fail);
            break;
        case 4:
            pearson(in, fail);
            break;
        case 5:
            partial(in, fail);
            break;
        default:
            extreme(in, fail);
            break;
    }
    check_record(fail);
    return 0;
}
