// The bad-input table: every documented argument check of every routine,
// triggered one at a time in the documented order, with the exact code and
// message, the outputs that must stay untouched checked untouched, and one
// report per call. Texts built from values that a computational core
// formats itself are checked by their fixed beginning and end.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <string>

#include "catalogue.hpp"

namespace kiv::reliability {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

enum class Keep { kAll, kNone };

struct Case {
    const char *routine;
    std::function<void(Scratch &, KivError *)> call;
    int code;
    std::string message;  // exact text; or, with `ending`, its beginning
    std::string ending = {};
    Keep keep = Keep::kAll;
    std::function<void(const Scratch &)> check = {};
};

int handler_calls = 0;
void count_handler(const char *, int, const char *) {
    ++handler_calls;
}

std::string bad_param(const char *name) {
    return std::string("NE_BAD_PARAM:\n  On entry, parameter ") + name + " had an illegal value.";
}
std::string real_arg(const char *code, const char *relation, const char *name, const char *bound,
                     const char *value) {
    return std::string(code) + ":\n  On entry, " + name + " must not be " + relation + " " + bound +
           ": " + name + " = " + value + ".";
}
std::string lt(const char *n, const char *b, const char *v) {
    return real_arg("NE_REAL_ARG_LT", "less than", n, b, v);
}
std::string le(const char *n, const char *b, const char *v) {
    return real_arg("NE_REAL_ARG_LE", "less than or equal to", n, b, v);
}
std::string ge(const char *n, const char *b, const char *v) {
    return real_arg("NE_REAL_ARG_GE", "greater than or equal to", n, b, v);
}
std::string int_arg(const char *code, const char *relation, const char *name, const char *bound,
                    int value) {
    return std::string(code) + ":\n  On entry, " + name + " must not be " + relation + " " + bound +
           ": " + name + " = " + std::to_string(value) + ".";
}
std::string int_lt(const char *n, const char *b, int v) {
    return int_arg("NE_INT_ARG_LT", "less than", n, b, v);
}
std::string int_le(const char *n, const char *b, int v) {
    return int_arg("NE_INT_ARG_LE", "less than or equal to", n, b, v);
}
std::string two_int(const char *code, const char *a, int va, const char *b, int vb,
                    const char *relation) {
    char text[200];
    std::snprintf(text, sizeof text,
                  "%s:\n  On entry, %s = %2d while %s = %2d.\n  These parameters must satisfy "
                  "%s %s %s.",
                  code, a, va, b, vb, a, relation, b);
    return text;
}
std::string core_int(const char *name, const char *value, const char *constraint) {
    return std::string("NE_INT:\n    On entry, ") + name + " = " + value +
           ".\nConstraint: " + constraint + ".";
}

const char *const kInternal =
    "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n  Check the "
    "function call and any array sizes. If the call is correct\n  then please consult KIV for "
    "assistance.";

// ---- inputs shared by the cases -------------------------------------------

double x20[20] = {3, 1, 4, 1, 5, 9, 2, 6, 5, 3, 5, 8, 9, 7, 9, 3, 2, 3, 8, 4};
double wt20[20] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
int all1[20] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};

template <std::size_t N>
std::array<double, N> with(const double (&base)[N], int i, double v) {
    std::array<double, N> a;
    for (std::size_t k = 0; k < N; ++k) a[k] = base[k];
    a[i] = v;
    return a;
}
template <std::size_t N>
std::array<int, N> with(const int (&base)[N], int i, int v) {
    std::array<int, N> a;
    for (std::size_t k = 0; k < N; ++k) a[k] = base[k];
    a[i] = v;
    return a;
}

// ---- the table -------------------------------------------------------------

std::vector<Case> normal_cases() {
    auto eac = [](int tail, double x) {
        return
            [=](Scratch &s, KivError *f) { s.result = g01eac(static_cast<Kiv_Tail>(tail), x, f); };
    };
    auto fac = [](int tail, double p) {
        return
            [=](Scratch &s, KivError *f) { s.result = g01fac(static_cast<Kiv_Tail>(tail), p, f); };
    };
    auto cec = [](double p) { return [=](Scratch &s, KivError *f) { s.result = g01cec(p, f); }; };
    auto zero = [](const Scratch &s) { EXPECT_EQ(s.result, 0.0); };
    return {
        {"g01eac", eac(1328, 1.0), NE_BAD_PARAM, bad_param("tail"), {}, Keep::kNone, zero},
        {"g01eac", eac(Kiv_TwoTail, 1.0), NE_BAD_PARAM, bad_param("tail"), {}, Keep::kNone, zero},
        {"g01eac", eac(Kiv_Central, kNaN), NE_BAD_PARAM, bad_param("tail"), {}, Keep::kNone, zero},
        {"g01eac", eac(1335, 0.0), NE_BAD_PARAM, bad_param("tail"), {}, Keep::kNone, zero},
        {"g01fac", fac(1333, 0.0), NE_REAL_ARG_LE, le("p", "0.0", "0"), {}, Keep::kNone, zero},
        {"g01fac",
         fac(Kiv_LowerTail, kNaN),
         NE_REAL_ARG_LE,
         le("p", "0.0", "nan"),
         {},
         Keep::kNone,
         zero},
        {"g01fac",
         fac(Kiv_LowerTail, -1.0),
         NE_REAL_ARG_LE,
         le("p", "0.0", "-1"),
         {},
         Keep::kNone,
         zero},
        {"g01fac", fac(1328, 1.0), NE_REAL_ARG_GE, ge("p", "1.0", "1"), {}, Keep::kNone, zero},
        {"g01fac",
         fac(Kiv_UpperTail, kInf),
         NE_REAL_ARG_GE,
         ge("p", "1.0", "inf"),
         {},
         Keep::kNone,
         zero},
        {"g01fac", fac(Kiv_Central, 0.5), NE_BAD_PARAM, bad_param("tail"), {}, Keep::kNone, zero},
        {"g01fac", fac(Kiv_TwoTailConfid, 0x1.fffffffffffffp-1), NE_INTERNAL_ERROR, kInternal},
        {"g01cec", cec(0.0), NE_REAL_ARG_LE, le("p", "0.0", "0"), {}, Keep::kNone, zero},
        {"g01cec", cec(-kInf), NE_REAL_ARG_LE, le("p", "0.0", "-inf"), {}, Keep::kNone, zero},
        {"g01cec", cec(kNaN), NE_REAL_ARG_LE, le("p", "0.0", "nan"), {}, Keep::kNone, zero},
        {"g01cec", cec(1.0), NE_REAL_ARG_GE, ge("p", "1.0", "1"), {}, Keep::kNone, zero},
        {"g01cec", cec(2.5), NE_REAL_ARG_GE, ge("p", "1.0", "2.5"), {}, Keep::kNone, zero},
    };
}

std::vector<Case> gamma_cases() {
    auto ecc = [](int tail, double x, double df) {
        return [=](Scratch &s, KivError *f) {
            s.result = g01ecc(static_cast<Kiv_Tail>(tail), x, df, f);
        };
    };
    auto efc = [](int tail, double g, double a, double b) {
        return [=](Scratch &s, KivError *f) {
            s.result = g01efc(static_cast<Kiv_Tail>(tail), g, a, b, f);
        };
    };
    auto zero = [](const Scratch &s) { EXPECT_EQ(s.result, 0.0); };
    const Keep n = Keep::kNone;
    return {
        {"g01ecc", ecc(1333, -1.0, 2.0), NE_REAL_ARG_LT, lt("x", "0.0", "-1"), {}, n, zero},
        {"g01ecc",
         ecc(Kiv_LowerTail, kNaN, 2.0),
         NE_REAL_ARG_LT,
         lt("x", "0.0", "nan"),
         {},
         n,
         zero},
        {"g01ecc", ecc(1333, 1.0, 0.0), NE_REAL_ARG_LE, le("df", "0.0", "0"), {}, n, zero},
        {"g01ecc",
         ecc(Kiv_LowerTail, 1.0, kNaN),
         NE_REAL_ARG_LE,
         le("df", "0.0", "nan"),
         {},
         n,
         zero},
        {"g01ecc",
         ecc(Kiv_LowerTail, 1.0, -kInf),
         NE_REAL_ARG_LE,
         le("df", "0.0", "-inf"),
         {},
         n,
         zero},
        {"g01ecc", ecc(Kiv_TwoTailSignif, 1.0, 2.0), NE_BAD_PARAM, bad_param("tail"), {}, n, zero},
        {"g01efc", efc(1333, -1.0, 0.0, 0.0), NE_BAD_PARAM, bad_param("tail"), {}, n, zero},
        {"g01efc",
         efc(Kiv_UpperTail, -1.0, 0.0, 0.0),
         NE_REAL_ARG_LT,
         lt("g", "0.0", "-1"),
         {},
         n,
         zero},
        {"g01efc",
         efc(Kiv_UpperTail, kNaN, 1.0, 1.0),
         NE_REAL_ARG_LT,
         lt("g", "0.0", "nan"),
         {},
         n,
         zero},
        {"g01efc",
         efc(Kiv_UpperTail, 1.0, -2.5, 0.0),
         NE_REAL_ARG_LE,
         le("a", "0.0", "-2.5"),
         {},
         n,
         zero},
        {"g01efc",
         efc(Kiv_LowerTail, 1.0, kNaN, 1.0),
         NE_REAL_ARG_LE,
         le("a", "0.0", "nan"),
         {},
         n,
         zero},
        {"g01efc",
         efc(Kiv_LowerTail, 1.0, 1.0, 0.0),
         NE_REAL_ARG_LE,
         le("b", "0.0", "0"),
         {},
         n,
         zero},
        {"g01efc",
         efc(Kiv_LowerTail, 1.0, 1.0, kNaN),
         NE_REAL_ARG_LE,
         le("b", "0.0", "nan"),
         {},
         n,
         zero},
    };
}

std::vector<Case> moments_cases() {
    auto call = [](int n, std::array<double, 20> wt, bool weighted) {
        return [=](Scratch &s, KivError *f) {
            g01aac(n, x20, weighted ? wt.data() : nullptr, &s.iout[0], &s.out[0], &s.out[1],
                   &s.out[2], &s.out[3], &s.out[4], &s.out[5], &s.out[6], f);
        };
    };
    std::array<double, 20> zeros{};
    // nvalid becomes 0, every other output stays as the caller had it.
    auto only_nvalid = [](const Scratch &s) {
        Scratch copy = s;
        EXPECT_EQ(copy.iout[0], 0);
        copy.iout[0] = kIntSentinel;
        EXPECT_TRUE(copy.untouched());
    };
    const Keep n = Keep::kNone;
    return {
        {"g01aac", call(0, {}, false), NE_INT_ARG_LE, int_le("n", "0", 0), {}, n, only_nvalid},
        {"g01aac", call(-3, {}, true), NE_INT_ARG_LE, int_le("n", "0", -3), {}, n, only_nvalid},
        {"g01aac",
         call(20, with(wt20, 1, -1.0), true),
         NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, wt[  1] must not be less than 0: wt[  1] = -1.",
         {},
         n,
         only_nvalid},
        {"g01aac",
         call(13, with(wt20, 12, kNaN), true),
         NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, wt[ 12] must not be less than 0: wt[ 12] = nan.",
         {},
         n,
         only_nvalid},
        {"g01aac",
         call(20, zeros, true),
         NE_CASES_ZERO,
         "NE_CASES_ZERO:\n  Number of valid cases is 0.",
         {},
         n,
         only_nvalid},
    };
}

std::vector<Case> correlation_cases() {
    // g02brc
    auto brc = [](int n, int m, int tdx, int tdc, std::array<int, 20> svar,
                  std::array<int, 20> sobs) {
        return [=](Scratch &s, KivError *f) {
            g02brc(n, m, x20, tdx, svar.data(), sobs.data(), s.out.data(), tdc, f);
        };
    };
    std::array<int, 20> ones = with(all1, 0, 1), no_var{}, one_obs{};
    one_obs[3] = 1;
    // g02btc
    auto btc = [](int mean, int m, double wt, bool x, int incx, double sw, bool bar, bool c) {
        return [=](Scratch &s, KivError *f) {
            s.out[0] = sw;
            g02btc(static_cast<Kiv_SumSquare>(mean), m, wt, x ? x20 : nullptr, incx, &s.out[0],
                   bar ? &s.out[1] : nullptr, c ? &s.out[10] : nullptr, f);
        };
    };
    auto sw_kept = [](double sw) {
        return [=](const Scratch &s) {
            Scratch copy = s;
            EXPECT_EQ(copy.out[0], sw);
            copy.out[0] = kSentinel;
            EXPECT_TRUE(copy.untouched());
        };
    };
    auto btc_null_sw = [](Scratch &s, KivError *f) {
        g02btc(Kiv_AboutMean, 4, 1.0, x20, 1, nullptr, &s.out[1], &s.out[10], f);
    };
    // g02buc (4 variables, 5 observations)
    auto buc = [](int mean, int order, int n, int m, int pdx, std::array<double, 20> wt,
                  int null_at) {
        return [=](Scratch &s, KivError *f) {
            g02buc(static_cast<Kiv_SumSquare>(mean), static_cast<Kiv_OrderType>(order), n, m, x20,
                   pdx, wt.data(), null_at == 1 ? nullptr : &s.out[0],
                   null_at == 2 ? nullptr : &s.out[1], null_at == 3 ? nullptr : &s.out[10], f);
        };
    };
    const std::array<double, 20> w = with(wt20, 0, 1.0);
    // g02bwc
    auto bwc = [](int m, bool r) {
        return [=](Scratch &s, KivError *f) { g02bwc(m, r ? &s.out[0] : nullptr, f); };
    };
    // g02bxc (n = 5, m = 4)
    auto bxc = [](int n, int m, int tdx, int tdr, int tdv, std::array<int, 20> sx,
                  std::array<double, 20> wt) {
        return [=](Scratch &s, KivError *f) {
            g02bxc(n, m, x20, tdx, sx.data(), wt.data(), &s.out[0], &s.out[1], &s.out[10],
                   &s.out[20], tdr, &s.out[50], tdv, f);
        };
    };
    std::array<double, 20> light{};
    light.fill(0.1);
    // g02byc (m = 5, ny = 2, nx = 2)
    static double r25[25];
    for (int i = 0; i < 25; ++i) r25[i] = i % 6 == 0 ? 1.0 : 0.1;
    auto byc = [](int m, int ny, int nx, std::array<int, 20> isz, int tdr, int tdp) {
        return [=](Scratch &s, KivError *f) {
            g02byc(m, ny, nx, isz.data(), r25, tdr, s.out.data(), tdp, f);
        };
    };
    const std::array<int, 20> isz = {-1, 1, -1, 1, 0};
    return {
        {"g02brc", brc(1, 2, 2, 2, ones, ones), NE_INT_ARG_LT, int_lt("n", "2", 1)},
        {"g02brc", brc(5, 1, 1, 1, ones, ones), NE_INT_ARG_LT, int_lt("m", "2", 1)},
        {"g02brc", brc(5, 3, 2, 3, ones, ones), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdx", 2, "m", 3, ">=")},
        {"g02brc", brc(5, 3, 3, 2, ones, ones), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdc", 2, "m", 3, ">=")},
        {"g02brc", brc(5, 3, 3, 3, ones, with(all1, 2, -1)), NE_INT_ARRAY_1,
         "NE_INT_ARRAY_1:\n  On entry, sobs contains the value -1 at index 2.\n  Constraint: "
         "sobs[i] >= 0."},
        {"g02brc", brc(5, 3, 3, 3, ones, one_obs), NE_SOBS_LOW,
         "NE_SOBS_LOW:\n  Too few observations have been selected.\n  On entry, sobs must contain "
         "at least 2 positive elements."},
        {"g02brc", brc(5, 3, 3, 3, with(all1, 1, -2), ones), NE_INT_ARRAY_1,
         "NE_INT_ARRAY_1:\n  On entry, svar contains the value -2 at index 1.\n  Constraint: "
         "svar[i] >= 0."},
        {"g02brc", brc(5, 3, 3, 3, no_var, ones), NE_SVAR_LOW,
         "NE_SVAR_LOW:\n  No variables have been selected.\n  On entry, svar must contain at least "
         "1 positive element."},

        {"g02btc",
         btc(1364, 4, 1.0, true, 1, 0.0, true, true),
         NE_BAD_PARAM,
         bad_param("mean"),
         {},
         Keep::kNone,
         sw_kept(0.0)},
        {"g02btc",
         btc(Kiv_AboutMean, 4, 1.0, false, 1, 0.0, true, true),
         NE_BAD_PARAM,
         bad_param("x"),
         {},
         Keep::kNone,
         sw_kept(0.0)},
        {"g02btc", btc_null_sw, NE_BAD_PARAM, bad_param("sw")},
        {"g02btc",
         btc(Kiv_AboutMean, 4, 1.0, true, 1, 0.0, false, true),
         NE_BAD_PARAM,
         bad_param("xbar"),
         {},
         Keep::kNone,
         sw_kept(0.0)},
        {"g02btc",
         btc(Kiv_AboutMean, 4, 1.0, true, 1, 0.0, true, false),
         NE_BAD_PARAM,
         bad_param("c"),
         {},
         Keep::kNone,
         sw_kept(0.0)},
        {"g02btc",
         btc(Kiv_AboutZero, 4, 1.0, true, 0, 0.0, true, true),
         NE_INT,
         core_int("incx", "0", "incx >= 1"),
         {},
         Keep::kNone,
         sw_kept(0.0)},
        {"g02btc",
         btc(Kiv_AboutMean, 0, 1.0, true, 1, 0.0, true, true),
         NE_INT,
         core_int("m", "0", "m >= 1"),
         {},
         Keep::kNone,
         sw_kept(0.0)},
        {"g02btc", btc(Kiv_AboutMean, 4, 1.0, true, 1, -1.0, true, true), NE_REAL,
         "NE_REAL:\n    On entry, *sw = ", ".\nConstraint: *sw >= 0.0.", Keep::kNone,
         sw_kept(-1.0)},
        {"g02btc", btc(Kiv_AboutMean, 4, -2.0, true, 1, 1.0, true, true), NE_SUM_WEIGHT,
         "NE_SUM_WEIGHT:\n    On entry, (*sw+wt) < 0.0: (*sw+wt) = ", ".", Keep::kNone,
         sw_kept(1.0)},

        {"g02buc", buc(1361, Kiv_RowMajor, 5, 4, 4, w, 0), NE_BAD_PARAM, bad_param("mean")},
        {"g02buc", buc(Kiv_AboutMean, 1502, 5, 4, 4, w, 0), NE_BAD_PARAM, bad_param("order")},
        {"g02buc", buc(Kiv_AboutMean, Kiv_RowMajor, 5, 0, 4, w, 0), NE_INT,
         "NE_INT:\n  On entry, m = 0.\n  Constraint: m >= 1."},
        {"g02buc", buc(Kiv_AboutMean, Kiv_RowMajor, 0, 4, 4, w, 0), NE_INT,
         "NE_INT:\n  On entry, n = 0.\n  Constraint: n >= 1."},
        {"g02buc", buc(Kiv_AboutMean, Kiv_ColMajor, 5, 4, 0, w, 0), NE_INT,
         "NE_INT:\n  On entry, pdx = 0.\n  Constraint: pdx > 0."},
        {"g02buc", buc(Kiv_AboutMean, Kiv_RowMajor, 5, 4, 3, w, 0), NE_INT_2,
         "NE_INT_2:\n  On entry, pdx = 3, m = 4.\n  Constraint: pdx>=m."},
        {"g02buc", buc(Kiv_AboutMean, Kiv_RowMajor, 5, 4, 4, w, 1), NE_BAD_PARAM, bad_param("sw")},
        {"g02buc", buc(Kiv_AboutMean, Kiv_RowMajor, 5, 4, 4, w, 2), NE_BAD_PARAM,
         bad_param("wmean")},
        {"g02buc", buc(Kiv_AboutMean, Kiv_RowMajor, 5, 4, 4, w, 3), NE_BAD_PARAM, bad_param("c")},
        {"g02buc", buc(Kiv_AboutZero, Kiv_ColMajor, 5, 4, 4, w, 0), NE_INT_2,
         "NE_INT_2:\n    On entry, pdx = 4, n = 5.\nConstraint: pdx >= n."},
        {"g02buc", buc(Kiv_AboutZero, Kiv_RowMajor, 5, 4, 4, with(wt20, 2, -1.0), 0),
         NE_REAL_ARRAY_ELEM_CONS, "NE_REAL_ARRAY_ELEM_CONS:\n    On entry, wt[", "] < 0.0.",
         Keep::kNone},

        {"g02bwc", bwc(0, true), NE_INT, core_int("m", "0", "m >= 1")},
        {"g02bwc", bwc(-2, true), NE_INT, core_int("m", "-2", "m >= 1")},
        {"g02bwc", bwc(3, false), NE_BAD_PARAM, bad_param("r")},

        {"g02bxc", bxc(1, 4, 4, 4, 4, ones, w), NE_INT_ARG_LE, int_le("n", "1", 1)},
        {"g02bxc", bxc(5, 0, 4, 4, 4, ones, w), NE_INT_ARG_LT, int_lt("m", "1", 0)},
        {"g02bxc", bxc(5, 4, 3, 4, 4, ones, w), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdx", 3, "m", 4, ">=")},
        {"g02bxc", bxc(5, 4, 4, 4, 3, ones, w), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdv", 3, "m", 4, ">=")},
        {"g02bxc", bxc(5, 4, 4, 3, 4, ones, w), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdr", 3, "m", 4, ">=")},
        {"g02bxc", bxc(5, 4, 4, 4, 4, ones, with(wt20, 4, -0.5)), NE_NEG_WEIGHT,
         "NE_NEG_WEIGHT:\n  On entry, at least one of the weights is negative."},
        {"g02bxc", bxc(5, 4, 4, 4, 4, with(all1, 2, -1), w), NE_NEG_SX,
         "NE_NEG_SX:\n  On entry, at least one element of sx is negative."},
        {"g02bxc", bxc(5, 4, 4, 4, 4, no_var, w), NE_POS_SX,
         "NE_POS_SX:\n  On entry, sx does not contain a positive element."},
        {"g02bxc",
         bxc(5, 4, 4, 4, 4, ones, light),
         NE_SW_LT_ONE,
         "NE_SW_LT_ONE:\n  On entry, the sum of weights is less than 1.0.",
         {},
         Keep::kNone},

        {"g02byc", byc(2, 2, 1, isz, 5, 2), NE_INT_ARG_LT, int_lt("m", "3", 2)},
        {"g02byc", byc(5, 1, 2, isz, 5, 2), NE_INT_ARG_LT, int_lt("ny", "2", 1)},
        {"g02byc", byc(5, 2, 0, isz, 5, 2), NE_INT_ARG_LT, int_lt("nx", "1", 0)},
        {"g02byc", byc(5, 3, 3, isz, 5, 3), NE_3_INT_ARG_CONS, "NE_3_INT_ARG_CONS:\n  On entry, ",
         " and m = 5.\n  Constraint: ny + nx <= m."},
        {"g02byc", byc(5, 2, 2, isz, 4, 2), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdr", 4, "m", 5, ">=")},
        {"g02byc", byc(5, 2, 2, isz, 5, 1), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdp", 1, "ny", 2, ">=")},
        {"g02byc", byc(5, 2, 2, with(all1, 0, -1), 5, 2), NE_BAD_NY_SET,
         "NE_BAD_NY_SET:\n  On entry, ny = 2 and there are not exactly ny values of isz < 0.\n  "
         "Number of values of isz < 0 = 1."},
        {"g02byc", byc(5, 2, 2, {-1, -1, 0, 1, 0}, 5, 2), NE_BAD_NX_SET,
         "NE_BAD_NX_SET:\n  On entry, nx = 2 and there are not exactly nx values of isz < 0."},
    };
}

std::vector<Case> time_series_cases() {
    auto aac = [](int nx, int d, int ds, int s_) {
        return [=](Scratch &s, KivError *f) {
            g13aac(x20, nx, d, ds, s_, s.out.data(), &s.iout[0], f);
        };
    };
    auto abc = [](const double *x, int nx, int nk) {
        return [=](Scratch &s, KivError *f) {
            g13abc(x, nx, nk, &s.out[0], &s.out[1], &s.out[2], &s.out[30], f);
        };
    };
    static const double constant[6] = {2.5, 2.5, 2.5, 2.5, 2.5, 2.5};
    auto iden = [](const Scratch &s) {
        Scratch copy = s;
        EXPECT_EQ(copy.out[0], 2.5);
        EXPECT_EQ(copy.out[1], 0.0);
        copy.out[0] = copy.out[1] = kSentinel;
        EXPECT_TRUE(copy.untouched()) << "r and stat are left alone";
    };
    auto acc = [](std::array<double, 6> r, int nk, int nl) {
        return [=](Scratch &s, KivError *f) {
            g13acc(r.data(), nk, nl, &s.out[0], &s.out[10], &s.out[20], &s.iout[0], f);
        };
    };
    auto order_reached = [](int nvl) {
        return [=](const Scratch &s) { EXPECT_EQ(s.iout[0], nvl); };
    };
    auto nvl_zero_only = [](const Scratch &s) {
        Scratch copy = s;
        EXPECT_EQ(copy.iout[0], 0);
        copy.iout[0] = kIntSentinel;
        EXPECT_TRUE(copy.untouched());
    };
    const std::array<double, 6> r = {0.5, 0.25, 0.125, 0.0625, 0.03, 0.01};
    const Keep n = Keep::kNone;
    return {
        {"g13aac", aac(20, -1, 0, 0), NE_INT, core_int("d", "-1", "d >= 0")},
        {"g13aac", aac(20, 1, -1, 4), NE_INT, core_int("ds", "-1", "ds >= 0")},
        {"g13aac", aac(20, 1, 1, -1), NE_INT, core_int("s", "-1", "s >= 0")},
        {"g13aac", aac(20, 1, 1, 0), NE_INT_2,
         "NE_INT_2:\n    On entry, s = 0 and ds > 0:\n    ds =1."},
        {"g13aac", aac(10, 2, 2, 4), NE_INT_4,
         "NE_INT_4:\n    On entry, nx <= d+(ds*s):\n    nx =10, d =2\n    ds =2, s =4."},
        {"g13abc", abc(x20, 1, 1), NE_INT_ARG_LE, int_le("nx", "1", 1)},
        {"g13abc", abc(x20, 20, 0), NE_INT_ARG_LE, int_le("nk", "0", 0)},
        {"g13abc", abc(x20, 5, 5), NE_2_INT_ARG_LE,
         two_int("NE_2_INT_ARG_LE", "nx", 5, "nk", 5, ">")},
        {"g13abc",
         abc(constant, 6, 2),
         NE_TIME_SERIES_IDEN,
         "NE_TIME_SERIES_IDEN:\n  On entry, all values of x are practically identical,\n  giving "
         "zero variance. In this case r and stat are undefined on exit.",
         {},
         n,
         iden},
        {"g13acc", acc(r, 0, 1), NE_INT_ARG_LE, int_le("nk", "0", 0)},
        {"g13acc", acc(r, 6, 0), NE_INT_ARG_LE, int_le("nl", "0", 0)},
        {"g13acc", acc(r, 2, 3), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "nk", 2, "nl", 3, ">=")},
        {"g13acc",
         acc({1.0, 0.5}, 2, 2),
         NE_INVALID_AUTOCO_COEF,
         "NE_INVALID_AUTOCO_COEF:\n  On entry, the autocorrelation coefficient of lag 1 has an "
         "absolute\n  value greater than or equal to 1.0; no recursions could be performed.",
         {},
         n,
         nvl_zero_only},
        {"g13acc",
         acc({0.9, 0.0}, 2, 2),
         NE_CORR_NOT_POS_DEF,
         "NE_CORR_NOT_POS_DEF:\n  Recursion has been prematurely terminated; the supplied "
         "autocorrelation\n  coefficients do not form a positive-definite sequence.",
         {},
         n,
         order_reached(1)},
    };
}

std::vector<Case> all_cases() {
    std::vector<Case> cases;
    for (auto part :
         {normal_cases, gamma_cases, moments_cases, correlation_cases, time_series_cases})
        for (Case &c : part()) cases.push_back(std::move(c));
    return cases;
}

TEST(BadInput, EveryDocumentedCheckGivesItsCodeAndExactMessage) {
    std::map<std::string, int> per_routine;
    for (const Case &c : all_cases()) {
        const int index = ++per_routine[c.routine];
        SCOPED_TRACE(std::string(c.routine) + " case " + std::to_string(index));
        Scratch scratch;
        scratch.reset();
        KivError fail = quiet_record();
        fail.handler = count_handler;
        fail.errnum = -5;
        handler_calls = 0;
        c.call(scratch, &fail);
        EXPECT_EQ(fail.code, c.code) << fail.message;
        if (c.ending.empty()) {
            EXPECT_EQ(std::string(fail.message), c.message);
        } else {
            const std::string got = fail.message;
            EXPECT_EQ(got.substr(0, c.message.size()), c.message) << got;
            EXPECT_GE(got.size(), c.message.size() + c.ending.size()) << got;
            EXPECT_EQ(got.substr(got.size() - std::min(got.size(), c.ending.size())), c.ending)
                << got;
        }
        EXPECT_EQ(handler_calls, 1) << "one report per call";
        if (c.keep == Keep::kAll) {
            EXPECT_TRUE(scratch.untouched()) << "outputs written";
        }
        if (c.check) c.check(scratch);
    }
    for (const auto &[routine, count] : per_routine)
        std::printf("bad-input cases %-8s %d\n", routine.c_str(), count);
}

// A corrupt saved state is refused and the current stream goes on as if
// the call had not been made.
TEST(BadInput, CorruptGeneratorStateLeavesTheStreamAlone) {
    struct Damage {
        int index;
        int istate_delta;
        double xstate_delta;
    } damages[] = {{3, 1, 0.0}, {8, -5, 0.0}, {1, 0, 1.0}, {-1, 0, 0.0}};
    for (const Damage &damage : damages) {
        g05cbc(11);
        int istate[9];
        double xstate[4];
        g05cfc(istate, xstate);
        if (damage.index < 0) {
            for (double &v : xstate) v = 0.0;
        } else if (damage.istate_delta != 0) {
            istate[damage.index] += damage.istate_delta;
        } else {
            xstate[damage.index] += damage.xstate_delta;
        }
        g05cbc(12);
        const double expected = [] {
            g05cbc(12);
            return g05cac();
        }();
        g05cbc(12);
        KivError fail = quiet_record();
        g05cgc(istate, xstate, &fail);
        EXPECT_EQ(fail.code, NE_STATE_CORRUPT);
        EXPECT_STREQ(fail.message,
                     "NE_STATE_CORRUPT:\n  istate or xstate has been corrupted since the previous "
                     "call to \n  kiv_save_random_state (g05cfc).");
        EXPECT_EQ(g05cac(), expected);
    }
}

}  // namespace
}  // namespace kiv::reliability
