// The table of routines that `kiv <code> ARGS...` calls. Each entry lists
// the inputs in the order of the C parameter list (outputs left out) and a
// call that checks the array lengths the routine will read, runs it and
// names its outputs.
#include "routines.hpp"

#include <algorithm>

namespace kiv::tool {

namespace {

using In = const Inputs &;

// Elements read from a matrix of `rows` rows of `cols` values with row
// stride `stride` (0 when either count is not positive).
long long span_of(long long rows, long long cols, long long stride) {
    if (rows <= 0 || cols <= 0) return 0;
    return (rows - 1) * std::max(stride, 0LL) + cols;
}

long long packed(long long m) {
    return m > 0 ? m * (m + 1) / 2 : 0;
}

long long nonneg(long long n) {
    return std::max(n, 0LL);
}

template <typename T>
std::span<const T> first(const std::vector<T> &values, long long count) {
    const auto n = static_cast<std::size_t>(std::clamp(count, 0LL, (long long)values.size()));
    return {values.data(), n};
}

Kiv_Tail tail_of(In in, std::size_t k) {
    return static_cast<Kiv_Tail>(in.integer(k));
}

// One double in, one double out, no record.
template <double (*f)(double)>
RoutineSpec plain(const char *name, const char *summary) {
    return {name, summary, {{"x", ArgKind::Double}}, false, [](In in, Outputs &out, KivError *) {
                out.scalar("result", f(in.real(0)));
            }};
}

// One double in, one double out, with a record.
template <double (*f)(double, KivError *)>
RoutineSpec with_record(const char *name, const char *summary) {
    return {name, summary, {{"x", ArgKind::Double}}, true, [](In in, Outputs &out, KivError *fail) {
                out.scalar("result", f(in.real(0), fail));
            }};
}

template <double (*f)()>
RoutineSpec constant(const char *name, const char *summary) {
    return {
        name, summary, {}, false, [](In, Outputs &out, KivError *) { out.scalar("result", f()); }};
}

// Batch form of a tail routine: tail, n, values -> out[n].
template <void (*f)(Kiv_Tail, int, const double[], double[], KivError *)>
RoutineSpec tail_batch(const char *name, const char *summary, const char *values) {
    return {name,
            summary,
            {{"tail", ArgKind::Tail}, {"n", ArgKind::Int}, {values, ArgKind::Doubles}},
            true,
            [](In in, Outputs &out, KivError *fail) {
                const int n = in.integer(1);
                auto result = out_doubles(n);
                f(tail_of(in, 0), n, in.doubles(2, "values", n), result.data(), fail);
                out.vector("out", first(result, n));
            }};
}

// Selectable generators: the generator number and seed array in, both
// (updated) out.
template <void (*f)(int *, int[4])>
RoutineSpec seeding(const char *name, const char *summary) {
    return {name,
            summary,
            {{"igen", ArgKind::Int}, {"iseed", ArgKind::Ints}},
            false,
            [](In in, Outputs &out, KivError *) {
                int igen = in.integer(0);
                const int *given = in.ints(1, "iseed", 4);
                int iseed[4] = {given[0], given[1], given[2], given[3]};
                f(&igen, iseed);
                out.integer("igen", igen);
                out.vector("iseed", std::span<const int>(iseed, 4));
            }};
}

std::vector<RoutineSpec> make_table() {
    std::vector<RoutineSpec> table;
    // ---- S: special functions
    table.push_back(plain<s15abc>("s15abc", "normal lower tail P(x)"));
    table.push_back(plain<s15acc>("s15acc", "normal upper tail Q(x)"));
    table.push_back(plain<s15adc>("s15adc", "complementary error function erfc(x)"));
    table.push_back(plain<s15aec>("s15aec", "error function erf(x)"));
    table.push_back(with_record<s14aac>("s14aac", "gamma function"));
    table.push_back(with_record<s14abc>("s14abc", "logarithm of the gamma function"));
    table.push_back({"s14bac",
                     "regularized incomplete gamma functions P(a,x) and Q(a,x)",
                     {{"a", ArgKind::Double}, {"x", ArgKind::Double}, {"tol", ArgKind::Double}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         double p = 0.0, q = 0.0;
                         s14bac(in.real(0), in.real(1), in.real(2), &p, &q, fail);
                         out.scalar("p", p);
                         out.scalar("q", q);
                     }});
    table.push_back({"s15adc_v",
                     "erfc of each of n values",
                     {{"n", ArgKind::Int}, {"x", ArgKind::Doubles}},
                     false,
                     [](In in, Outputs &out, KivError *) {
                         const int n = in.integer(0);
                         auto result = out_doubles(n);
                         s15adc_v(n, in.doubles(1, "x", n), result.data());
                         out.vector("out", first(result, n));
                     }});
    // ---- G01: distributions and descriptive statistics
    table.push_back({"g01eac",
                     "standard normal tail probability",
                     {{"tail", ArgKind::Tail}, {"x", ArgKind::Double}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         out.scalar("result", g01eac(tail_of(in, 0), in.real(1), fail));
                     }});
    table.push_back({"g01fac",
                     "standard normal deviate for a tail probability",
                     {{"tail", ArgKind::Tail}, {"p", ArgKind::Double}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         out.scalar("result", g01fac(tail_of(in, 0), in.real(1), fail));
                     }});
    table.push_back(with_record<g01cec>("g01cec", "standard normal deviate with P(X <= x) = p"));
    table.back().inputs[0].name = "p";
    table.push_back(tail_batch<g01eac_v>("g01eac_v", "g01eac for each of n values", "x"));
    table.push_back(tail_batch<g01fac_v>("g01fac_v", "g01fac for each of n values", "p"));
    table.push_back({"g01ecc",
                     "chi-square tail probability",
                     {{"tail", ArgKind::Tail}, {"x", ArgKind::Double}, {"df", ArgKind::Double}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         out.scalar("result", g01ecc(tail_of(in, 0), in.real(1), in.real(2), fail));
                     }});
    table.push_back(
        {"g01efc",
         "gamma tail probability (shape a, scale b)",
         {{"tail", ArgKind::Tail},
          {"g", ArgKind::Double},
          {"a", ArgKind::Double},
          {"b", ArgKind::Double}},
         true,
         [](In in, Outputs &out, KivError *fail) {
             out.scalar("result", g01efc(tail_of(in, 0), in.real(1), in.real(2), in.real(3), fail));
         }});
    table.push_back({"g01aac",
                     "mean, sd, skewness, kurtosis, min, max of a weighted sample",
                     {{"n", ArgKind::Int}, {"x", ArgKind::Doubles}, {"wt", ArgKind::OptDoubles}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int n = in.integer(0);
                         int nvalid = 0;
                         double mean = 0, sd = 0, skew = 0, kurt = 0, lo = 0, hi = 0, wsum = 0;
                         g01aac(n, in.doubles(1, "x", n), in.doubles(2, "wt", n), &nvalid, &mean,
                                &sd, &skew, &kurt, &lo, &hi, &wsum, fail);
                         out.integer("nvalid", nvalid);
                         out.scalar("xmean", mean);
                         out.scalar("xsd", sd);
                         out.scalar("xskew", skew);
                         out.scalar("xkurt", kurt);
                         out.scalar("xmin", lo);
                         out.scalar("xmax", hi);
                         out.scalar("wsum", wsum);
                     }});
    // ---- G05: random numbers (each run of kiv starts from the default state)
    table.push_back(constant<g05cac>("g05cac", "next uniform number in (0,1)"));
    table.push_back({"g05cbc",
                     "seed the basic generator repeatably",
                     {{"seed", ArgKind::Int}},
                     false,
                     [](In in, Outputs &, KivError *) { g05cbc(in.integer(0)); }});
    table.push_back({"g05ccc",
                     "seed the basic generator from the clock",
                     {},
                     false,
                     [](In, Outputs &, KivError *) { g05ccc(); }});
    table.push_back({"g05cfc",
                     "save the state of the basic generator",
                     {},
                     false,
                     [](In, Outputs &out, KivError *) {
                         int istate[9] = {};
                         double xstate[4] = {};
                         g05cfc(istate, xstate);
                         out.vector("istate", std::span<const int>(istate, 9));
                         out.vector("xstate", std::span<const double>(xstate, 4));
                     }});
    table.push_back({"g05cgc",
                     "restore a state saved by g05cfc",
                     {{"istate", ArgKind::Ints}, {"xstate", ArgKind::Doubles}},
                     true,
                     [](In in, Outputs &, KivError *fail) {
                         g05cgc(in.ints(0, "istate", 9), in.doubles(1, "xstate", 4), fail);
                     }});
    table.push_back(
        {"x05aac", "calendar time in seconds", {}, false, [](In, Outputs &out, KivError *) {
             out.integer("result", x05aac());
         }});
    table.push_back({"g05dac",
                     "uniform between a and b",
                     {{"a", ArgKind::Double}, {"b", ArgKind::Double}},
                     false,
                     [](In in, Outputs &out, KivError *) {
                         out.scalar("result", g05dac(in.real(0), in.real(1)));
                     }});
    table.push_back(
        {"g05dbc",
         "exponential with mean |a|",
         {{"a", ArgKind::Double}},
         false,
         [](In in, Outputs &out, KivError *) { out.scalar("result", g05dbc(in.real(0))); }});
    table.push_back({"g05ddc",
                     "normal with mean a and standard deviation b",
                     {{"a", ArgKind::Double}, {"b", ArgKind::Double}},
                     false,
                     [](In in, Outputs &out, KivError *) {
                         out.scalar("result", g05ddc(in.real(0), in.real(1)));
                     }});
    table.push_back({"g05dyc",
                     "uniform integer between i and j",
                     {{"i", ArgKind::Int}, {"j", ArgKind::Int}},
                     false,
                     [](In in, Outputs &out, KivError *) {
                         out.integer("result", g05dyc(in.integer(0), in.integer(1)));
                     }});
    table.push_back({"g05kac",
                     "uniform from a selectable generator (seed array updated)",
                     {{"igen", ArgKind::Int}, {"iseed", ArgKind::Ints}},
                     false,
                     [](In in, Outputs &out, KivError *) {
                         const int *given = in.ints(1, "iseed", 4);
                         int iseed[4] = {given[0], given[1], given[2], given[3]};
                         out.scalar("result", g05kac(in.integer(0), iseed));
                         out.vector("iseed", std::span<const int>(iseed, 4));
                     }});
    table.push_back(seeding<g05kbc>("g05kbc", "seed a selectable generator repeatably"));
    table.push_back(seeding<g05kcc>("g05kcc", "seed a selectable generator from the clock"));
    // ---- G02: correlation
    table.push_back({"g02brc",
                     "Kendall (below the diagonal) and Spearman (above) rank correlations",
                     {{"n", ArgKind::Int},
                      {"m", ArgKind::Int},
                      {"x", ArgKind::Doubles},
                      {"tdx", ArgKind::Int},
                      {"svar", ArgKind::OptInts},
                      {"sobs", ArgKind::OptInts},
                      {"tdc", ArgKind::Int}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int n = in.integer(0), m = in.integer(1), tdx = in.integer(3);
                         const int tdc = in.integer(6);
                         auto corr = out_doubles(nonneg(m) * nonneg(tdc));
                         g02brc(n, m, in.doubles(2, "x", span_of(n, m, tdx)), tdx,
                                in.ints(4, "svar", m), in.ints(5, "sobs", n), corr.data(), tdc,
                                fail);
                         out.matrix("corr", corr.data(), m, m, tdc);
                     }});
    table.push_back({"g02btc",
                     "update means and sums of squares by one weighted observation",
                     {{"mean", ArgKind::SumSquare},
                      {"m", ArgKind::Int},
                      {"wt", ArgKind::Double},
                      {"x", ArgKind::Doubles},
                      {"incx", ArgKind::Int},
                      {"sw", ArgKind::Double},
                      {"xbar", ArgKind::Doubles},
                      {"c", ArgKind::Doubles}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int m = in.integer(1), incx = in.integer(4);
                         double sw = in.real(5);
                         const double *xbar_in = in.doubles(6, "xbar", m);
                         const double *c_in = in.doubles(7, "c", packed(m));
                         std::vector<double> xbar(xbar_in, xbar_in + nonneg(m));
                         std::vector<double> c(c_in, c_in + packed(m));
                         xbar.push_back(0.0);
                         c.push_back(0.0);
                         g02btc(static_cast<Kiv_SumSquare>(in.integer(0)), m, in.real(2),
                                in.doubles(3, "x", span_of(m, 1, incx)), incx, &sw, xbar.data(),
                                c.data(), fail);
                         out.scalar("sw", sw);
                         out.vector("xbar", first(xbar, m));
                         out.vector("c", first(c, packed(m)));
                     }});
    table.push_back({"g02buc",
                     "weighted means and sums of squares and cross-products of a data matrix",
                     {{"mean", ArgKind::SumSquare},
                      {"order", ArgKind::Order},
                      {"n", ArgKind::Int},
                      {"m", ArgKind::Int},
                      {"x", ArgKind::Doubles},
                      {"pdx", ArgKind::Int},
                      {"wt", ArgKind::OptDoubles}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const auto order = static_cast<Kiv_OrderType>(in.integer(1));
                         const int n = in.integer(2), m = in.integer(3), pdx = in.integer(5);
                         const long long need =
                             order == Kiv_ColMajor ? span_of(m, n, pdx) : span_of(n, m, pdx);
                         double sw = 0.0;
                         auto wmean = out_doubles(m);
                         auto c = out_doubles(packed(m));
                         g02buc(static_cast<Kiv_SumSquare>(in.integer(0)), order, n, m,
                                in.doubles(4, "x", need), pdx, in.doubles(6, "wt", n), &sw,
                                wmean.data(), c.data(), fail);
                         out.scalar("sw", sw);
                         out.vector("wmean", first(wmean, m));
                         out.vector("c", first(c, packed(m)));
                     }});
    table.push_back({"g02bwc",
                     "correlation matrix from packed sums of squares",
                     {{"m", ArgKind::Int}, {"r", ArgKind::Doubles}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int m = in.integer(0);
                         const double *given = in.doubles(1, "r", packed(m));
                         std::vector<double> r(given, given + packed(m));
                         r.push_back(0.0);
                         g02bwc(m, r.data(), fail);
                         out.vector("r", first(r, packed(m)));
                     }});
    table.push_back({"g02bxc",
                     "weighted Pearson correlations, variances and standard deviations",
                     {{"n", ArgKind::Int},
                      {"m", ArgKind::Int},
                      {"x", ArgKind::Doubles},
                      {"tdx", ArgKind::Int},
                      {"sx", ArgKind::Ints},
                      {"wt", ArgKind::OptDoubles},
                      {"tdr", ArgKind::Int},
                      {"tdv", ArgKind::Int}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int n = in.integer(0), m = in.integer(1), tdx = in.integer(3);
                         const int tdr = in.integer(6), tdv = in.integer(7);
                         double sw = 0.0;
                         auto wmean = out_doubles(m), sd = out_doubles(m);
                         auto r = out_doubles(nonneg(m) * nonneg(tdr));
                         auto v = out_doubles(nonneg(m) * nonneg(tdv));
                         g02bxc(n, m, in.doubles(2, "x", span_of(n, m, tdx)), tdx,
                                in.ints(4, "sx", m), in.doubles(5, "wt", n), &sw, wmean.data(),
                                sd.data(), r.data(), tdr, v.data(), tdv, fail);
                         out.scalar("sw", sw);
                         out.vector("wmean", first(wmean, m));
                         out.vector("std", first(sd, m));
                         out.matrix("r", r.data(), m, m, tdr);
                         out.matrix("v", v.data(), m, m, tdv);
                     }});
    table.push_back({"g02byc",
                     "partial correlations of ny variables given nx others",
                     {{"m", ArgKind::Int},
                      {"ny", ArgKind::Int},
                      {"nx", ArgKind::Int},
                      {"isz", ArgKind::Ints},
                      {"r", ArgKind::Doubles},
                      {"tdr", ArgKind::Int},
                      {"tdp", ArgKind::Int}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int m = in.integer(0), ny = in.integer(1), tdr = in.integer(5);
                         const int tdp = in.integer(6);
                         auto p = out_doubles(nonneg(ny) * nonneg(tdp));
                         g02byc(m, ny, in.integer(2), in.ints(3, "isz", m),
                                in.doubles(4, "r", span_of(m, m, tdr)), tdr, p.data(), tdp, fail);
                         out.matrix("p", p.data(), ny, ny, tdp);
                     }});
    // ---- G13: time series
    table.push_back({"g13aac",
                     "simple and seasonal differencing of a series",
                     {{"x", ArgKind::Doubles},
                      {"nx", ArgKind::Int},
                      {"d", ArgKind::Int},
                      {"ds", ArgKind::Int},
                      {"s", ArgKind::Int}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int nx = in.integer(1);
                         // Room for the differenced series and whatever values the
                         // routine keeps for undoing the differencing.
                         auto xd = out_doubles(2 * nonneg(nx) + 16);
                         int nxd = 0;
                         g13aac(in.doubles(0, "x", nx), nx, in.integer(2), in.integer(3),
                                in.integer(4), xd.data(), &nxd, fail);
                         out.vector("xd", first(xd, nxd));
                         out.integer("nxd", nxd);
                     }});
    table.push_back({"g13abc",
                     "sample autocorrelations and the portmanteau statistic",
                     {{"x", ArgKind::Doubles}, {"nx", ArgKind::Int}, {"nk", ArgKind::Int}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int nx = in.integer(1), nk = in.integer(2);
                         double xm = 0.0, xv = 0.0, stat = 0.0;
                         auto r = out_doubles(nk);
                         g13abc(in.doubles(0, "x", nx), nx, nk, &xm, &xv, r.data(), &stat, fail);
                         out.scalar("xm", xm);
                         out.scalar("xv", xv);
                         out.vector("r", first(r, nk));
                         out.scalar("stat", stat);
                     }});
    table.push_back({"g13acc",
                     "partial autocorrelations by the Durbin-Levinson recursion",
                     {{"r", ArgKind::Doubles}, {"nk", ArgKind::Int}, {"nl", ArgKind::Int}},
                     true,
                     [](In in, Outputs &out, KivError *fail) {
                         const int nk = in.integer(1), nl = in.integer(2);
                         auto p = out_doubles(nl), v = out_doubles(nl), ar = out_doubles(nl);
                         int nvl = 0;
                         g13acc(in.doubles(0, "r", nk), nk, nl, p.data(), v.data(), ar.data(), &nvl,
                                fail);
                         out.vector("p", first(p, nl));
                         out.vector("v", first(v, nl));
                         out.vector("ar", first(ar, nvl));
                         out.integer("nvl", nvl);
                     }});
    // ---- X02: machine constants
    table.push_back(constant<x02ajc>("x02ajc", "machine precision"));
    table.push_back(constant<x02akc>("x02akc", "smallest positive normalised double"));
    table.push_back(constant<x02alc>("x02alc", "largest finite double"));
    return table;
}

}  // namespace

const std::vector<RoutineSpec> &routines() {
    static const std::vector<RoutineSpec> table = make_table();
    return table;
}

}  // namespace kiv::tool
