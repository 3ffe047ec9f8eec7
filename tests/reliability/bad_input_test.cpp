// The bad-input table: every documented argument check of every routine,
// triggered one at a time in the documented order (each case also breaks
// the checks that come after its own), with the exact code and message,
// one report per call, and the outputs that must stay untouched checked
// untouched.
#include <gtest/gtest.h>

#include <climits>
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

using Check = std::function<void(const Scratch &, const KivError &)>;

struct Case {
    const char *routine;
    std::function<void(Scratch &, KivError *)> call;
    int code;
    std::string message;
    Check check = {};  // by default: no output written
};

int handler_calls = 0;
void count_handler(const char *, int, const char *) {
    ++handler_calls;
}

// ---- message builders ------------------------------------------------------

std::string bad_param(const char *name) {
    return std::string("NE_BAD_PARAM:\n  On entry, parameter ") + name + " had an illegal value.";
}
std::string bound(const char *code, const char *relation, const char *name, const char *limit,
                  const std::string &value) {
    return std::string(code) + ":\n  On entry, " + name + " must not be " + relation + " " + limit +
           ": " + name + " = " + value + ".";
}
std::string lt(const char *n, const char *b, const char *v) {
    return bound("NE_REAL_ARG_LT", "less than", n, b, v);
}
std::string le(const char *n, const char *b, const char *v) {
    return bound("NE_REAL_ARG_LE", "less than or equal to", n, b, v);
}
std::string ge(const char *n, const char *b, const char *v) {
    return bound("NE_REAL_ARG_GE", "greater than or equal to", n, b, v);
}
std::string int_lt(const char *n, const char *b, int v) {
    return bound("NE_INT_ARG_LT", "less than", n, b, std::to_string(v));
}
std::string int_le(const char *n, const char *b, int v) {
    return bound("NE_INT_ARG_LE", "less than or equal to", n, b, std::to_string(v));
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
// The texts of the layered routines' computational cores.
std::string core_int(const char *name, int value, const char *constraint) {
    return std::string("NE_INT:\n    On entry, ") + name + " = " + std::to_string(value) +
           ".\nConstraint: " + constraint + ".";
}

const char *const kInternal =
    "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n  Check the "
    "function call and any array sizes. If the call is correct\n  then please consult KIV for "
    "assistance.";

// ---- checks of what a failing call wrote -------------------------------------

// A scalar routine returns 0.0 and writes nothing else.
void returns_zero(const Scratch &s, const KivError &) {
    EXPECT_EQ(s.result, 0.0);
    EXPECT_TRUE(s.untouched());
}
// Outputs may be written (what they hold is not documented).
void anything(const Scratch &, const KivError &) {}
// Exactly one double output (out[index]) holds `value`; nothing else written.
Check only_out(int index, double value) {
    return [=](const Scratch &s, const KivError &) {
        Scratch copy = s;
        EXPECT_EQ(copy.out[index], value);
        copy.out[index] = kSentinel;
        EXPECT_TRUE(copy.untouched());
    };
}
// Exactly one integer output (iout[0]) holds `value`; nothing else written.
Check only_iout(int value) {
    return [=](const Scratch &s, const KivError &) {
        Scratch copy = s;
        EXPECT_EQ(copy.iout[0], value);
        copy.iout[0] = kIntSentinel;
        EXPECT_TRUE(copy.untouched());
    };
}
// Nothing written, and the core's failure indicator in errnum.
Check indicator(int errnum) {
    return [=](const Scratch &s, const KivError &f) {
        EXPECT_TRUE(s.untouched());
        EXPECT_EQ(f.errnum, errnum);
    };
}

// ---- inputs shared by the cases -------------------------------------------

double x20[20] = {3, 1, 4, 1, 5, 9, 2, 6, 5, 3, 5, 8, 9, 7, 9, 3, 2, 3, 8, 4};
double wt20[20] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
int all1[20] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
// A 5 x 5 correlation matrix: ones on the diagonal, 0.1 elsewhere.
const std::array<double, 25> r25 = [] {
    std::array<double, 25> r;
    for (int i = 0; i < 25; ++i) r[i] = i % 6 == 0 ? 1.0 : 0.1;
    return r;
}();

template <class T, std::size_t N>
std::array<T, N> with(const T (&base)[N], int i, T v) {
    std::array<T, N> a;
    std::copy(base, base + N, a.begin());
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
    const Check zero = returns_zero;
    const int lower = Kiv_LowerTail, upper = Kiv_UpperTail;
    return {
        {"g01eac", eac(1328, 1.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01eac", eac(Kiv_TwoTail, 1.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01eac", eac(Kiv_Central, kNaN), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01eac", eac(1335, 0.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01fac", fac(1333, 0.0), NE_REAL_ARG_LE, le("p", "0.0", "0"), zero},
        {"g01fac", fac(lower, kNaN), NE_REAL_ARG_LE, le("p", "0.0", "nan"), zero},
        {"g01fac", fac(lower, -1.0), NE_REAL_ARG_LE, le("p", "0.0", "-1"), zero},
        {"g01fac", fac(1328, 1.0), NE_REAL_ARG_GE, ge("p", "1.0", "1"), zero},
        {"g01fac", fac(upper, kInf), NE_REAL_ARG_GE, ge("p", "1.0", "inf"), zero},
        {"g01fac", fac(Kiv_Central, 0.5), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01fac", fac(Kiv_TwoTailConfid, 0x1.fffffffffffffp-1), NE_INTERNAL_ERROR, kInternal},
        {"g01cec", cec(0.0), NE_REAL_ARG_LE, le("p", "0.0", "0"), zero},
        {"g01cec", cec(-kInf), NE_REAL_ARG_LE, le("p", "0.0", "-inf"), zero},
        {"g01cec", cec(kNaN), NE_REAL_ARG_LE, le("p", "0.0", "nan"), zero},
        {"g01cec", cec(1.0), NE_REAL_ARG_GE, ge("p", "1.0", "1"), zero},
        {"g01cec", cec(2.5), NE_REAL_ARG_GE, ge("p", "1.0", "2.5"), zero},
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
    const Check zero = returns_zero;
    const int lower = Kiv_LowerTail, upper = Kiv_UpperTail;
    return {
        {"g01ecc", ecc(1333, -1.0, 2.0), NE_REAL_ARG_LT, lt("x", "0.0", "-1"), zero},
        {"g01ecc", ecc(lower, kNaN, 2.0), NE_REAL_ARG_LT, lt("x", "0.0", "nan"), zero},
        {"g01ecc", ecc(1333, 1.0, 0.0), NE_REAL_ARG_LE, le("df", "0.0", "0"), zero},
        {"g01ecc", ecc(lower, 1.0, kNaN), NE_REAL_ARG_LE, le("df", "0.0", "nan"), zero},
        {"g01ecc", ecc(lower, 1.0, -kInf), NE_REAL_ARG_LE, le("df", "0.0", "-inf"), zero},
        {"g01ecc", ecc(Kiv_TwoTailSignif, 1.0, 2.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01efc", efc(1333, -1.0, 0.0, 0.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01efc", efc(upper, -1.0, 0.0, 0.0), NE_REAL_ARG_LT, lt("g", "0.0", "-1"), zero},
        {"g01efc", efc(upper, kNaN, 1.0, 1.0), NE_REAL_ARG_LT, lt("g", "0.0", "nan"), zero},
        {"g01efc", efc(upper, 1.0, -2.5, 0.0), NE_REAL_ARG_LE, le("a", "0.0", "-2.5"), zero},
        {"g01efc", efc(lower, 1.0, kNaN, 1.0), NE_REAL_ARG_LE, le("a", "0.0", "nan"), zero},
        {"g01efc", efc(lower, 1.0, 1.0, 0.0), NE_REAL_ARG_LE, le("b", "0.0", "0"), zero},
        {"g01efc", efc(lower, 1.0, 1.0, kNaN), NE_REAL_ARG_LE, le("b", "0.0", "nan"), zero},
    };
}

std::vector<Case> moments_cases() {
    auto call = [](int n, std::array<double, 20> wt, bool weighted) {
        return [=](Scratch &s, KivError *f) {
            g01aac(n, x20, weighted ? wt.data() : nullptr, &s.iout[0], &s.out[0], &s.out[1],
                   &s.out[2], &s.out[3], &s.out[4], &s.out[5], &s.out[6], f);
        };
    };
    const Check nvalid_zero = only_iout(0);  // nvalid becomes 0, nothing else written
    const std::array<double, 20> zeros{};
    return {
        {"g01aac", call(0, {}, false), NE_INT_ARG_LE, int_le("n", "0", 0), nvalid_zero},
        {"g01aac", call(-3, {}, true), NE_INT_ARG_LE, int_le("n", "0", -3), nvalid_zero},
        {"g01aac", call(20, with(wt20, 1, -1.0), true), NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, wt[  1] must not be less than 0: wt[  1] = -1.",
         nvalid_zero},
        {"g01aac", call(13, with(wt20, 12, kNaN), true), NE_REAL_ARG_LT,
         "NE_REAL_ARG_LT:\n  On entry, wt[ 12] must not be less than 0: wt[ 12] = nan.",
         nvalid_zero},
        {"g01aac", call(20, zeros, true), NE_CASES_ZERO,
         "NE_CASES_ZERO:\n  Number of valid cases is 0.", nvalid_zero},
    };
}

std::vector<Case> correlation_cases() {
    using Ints = std::array<int, 20>;
    using Reals = std::array<double, 20>;
    const Ints ones = with(all1, 0, 1), none{}, bad_var = with(all1, 1, -2),
               bad_obs = with(all1, 2, -1);
    Ints one_obs{};
    one_obs[3] = 1;
    const Reals w = with(wt20, 0, 1.0);

    auto brc = [](int n, int m, int tdx, int tdc, Ints svar, Ints sobs, int null_at = 0) {
        return [=](Scratch &s, KivError *f) {
            g02brc(n, m, null_at == 1 ? nullptr : x20, tdx, svar.data(), sobs.data(),
                   null_at == 2 ? nullptr : s.out.data(), tdc, f);
        };
    };
    // Running sums start from *sw = out[0]; null_at: 1 x, 2 sw, 3 xbar, 4 c.
    auto btc = [](int mean, int m, double wt, int incx, double sw, int null_at = 0) {
        return [=](Scratch &s, KivError *f) {
            s.out[0] = sw;
            g02btc(static_cast<Kiv_SumSquare>(mean), m, wt, null_at == 1 ? nullptr : x20, incx,
                   null_at == 2 ? nullptr : &s.out[0], null_at == 3 ? nullptr : &s.out[1],
                   null_at == 4 ? nullptr : &s.out[10], f);
        };
    };
    auto sw_kept = [](double sw, int errnum = -5) {
        return [=](const Scratch &s, const KivError &f) {
            only_out(0, sw)(s, f);
            EXPECT_EQ(f.errnum, errnum);
        };
    };
    // null_at: 1 sw, 2 wmean, 3 c.
    auto buc = [](int mean, int order, int n, int m, int pdx, Reals wt, int null_at = 0) {
        return [=](Scratch &s, KivError *f) {
            g02buc(static_cast<Kiv_SumSquare>(mean), static_cast<Kiv_OrderType>(order), n, m, x20,
                   pdx, wt.data(), null_at == 1 ? nullptr : &s.out[0],
                   null_at == 2 ? nullptr : &s.out[1], null_at == 3 ? nullptr : &s.out[10], f);
        };
    };
    auto bwc = [](int m, bool r) {
        return [=](Scratch &s, KivError *f) { g02bwc(m, r ? &s.out[0] : nullptr, f); };
    };
    auto bxc = [](int n, int m, int tdx, int tdr, int tdv, Ints sx, Reals wt, bool x = true) {
        return [=](Scratch &s, KivError *f) {
            g02bxc(n, m, x ? x20 : nullptr, tdx, sx.data(), wt.data(), &s.out[0], &s.out[1],
                   &s.out[10], &s.out[20], tdr, &s.out[50], tdv, f);
        };
    };
    static const double singular[16] = {1,   0.2, 0.3, 0.3, 0.2, 1,   0.1, 0.1,
                                        0.3, 0.1, 1,   1,   0.3, 0.1, 1,   1};  // x block rank 1
    static const double indefinite[9] = {1, -0.9, 0.9, -0.9, 1, 0.9, 0.9, 0.9, 1};
    auto byc = [](int m, int ny, int nx, Ints isz, int tdr, int tdp, const double *r = r25.data(),
                  bool isz_given = true) {
        return [=](Scratch &s, KivError *f) {
            g02byc(m, ny, nx, isz_given ? isz.data() : nullptr, r, tdr, s.out.data(), tdp, f);
        };
    };
    const Ints isz = {-1, 1, -1, 1, 0}, isz4 = {-1, -1, 1, 1}, isz3 = {-1, -1, 1};
    const Reals unit_sum = {0.5, 0.25, 0.25, 0.0, 0.0};  // sum of weights exactly 1
    const int mean = Kiv_AboutMean, zero = Kiv_AboutZero, rows = Kiv_RowMajor, cols = Kiv_ColMajor;
    return {
        {"g02brc", brc(1, 1, 0, 0, bad_var, bad_obs), NE_INT_ARG_LT, int_lt("n", "2", 1)},
        {"g02brc", brc(5, 1, 0, 0, bad_var, bad_obs), NE_INT_ARG_LT, int_lt("m", "2", 1)},
        {"g02brc", brc(5, 3, 2, 2, bad_var, bad_obs), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdx", 2, "m", 3, ">=")},
        {"g02brc", brc(5, 3, 3, 2, bad_var, bad_obs), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdc", 2, "m", 3, ">=")},
        {"g02brc", brc(5, 3, 3, 3, bad_var, bad_obs, 1), NE_BAD_PARAM, bad_param("x")},
        {"g02brc", brc(5, 3, 3, 3, bad_var, bad_obs, 2), NE_BAD_PARAM, bad_param("corr")},
        {"g02brc", brc(5, 3, 3, 3, bad_var, bad_obs), NE_INT_ARRAY_1,
         "NE_INT_ARRAY_1:\n  On entry, sobs contains the value -1 at index 2.\n  Constraint: "
         "sobs[i] >= 0."},
        {"g02brc", brc(5, 3, 3, 3, bad_var, one_obs), NE_SOBS_LOW,
         "NE_SOBS_LOW:\n  Too few observations have been selected.\n  On entry, sobs must contain "
         "at least 2 positive elements."},
        {"g02brc", brc(5, 3, 3, 3, bad_var, ones), NE_INT_ARRAY_1,
         "NE_INT_ARRAY_1:\n  On entry, svar contains the value -2 at index 1.\n  Constraint: "
         "svar[i] >= 0."},
        {"g02brc", brc(5, 3, 3, 3, none, ones), NE_SVAR_LOW,
         "NE_SVAR_LOW:\n  No variables have been selected.\n  On entry, svar must contain at least "
         "1 positive element."},

        {"g02btc", btc(1364, 0, 1, 0, -1, 1), NE_BAD_PARAM, bad_param("mean"), sw_kept(-1)},
        {"g02btc", btc(mean, 0, 1, 0, -1, 1), NE_BAD_PARAM, bad_param("x"), sw_kept(-1)},
        {"g02btc", btc(mean, 0, 1, 0, -1, 2), NE_BAD_PARAM, bad_param("sw"), sw_kept(-1)},
        {"g02btc", btc(mean, 0, 1, 0, -1, 3), NE_BAD_PARAM, bad_param("xbar"), sw_kept(-1)},
        {"g02btc", btc(mean, 0, 1, 0, -1, 4), NE_BAD_PARAM, bad_param("c"), sw_kept(-1)},
        {"g02btc", btc(zero, 0, 1, 0, -1), NE_INT, core_int("incx", 0, "incx >= 1"),
         sw_kept(-1, 1)},
        {"g02btc", btc(mean, 0, 1, 1, -1), NE_INT, core_int("m", 0, "m >= 1"), sw_kept(-1, 1)},
        {"g02btc", btc(mean, 4, 1, 1, -1), NE_REAL,
         "NE_REAL:\n    On entry, *sw = -1.\nConstraint: *sw >= 0.0.", sw_kept(-1, 1)},
        {"g02btc", btc(mean, 4, -2, 1, 1), NE_SUM_WEIGHT,
         "NE_SUM_WEIGHT:\n    On entry, (*sw+wt) < 0.0: (*sw+wt) = -1.", sw_kept(1, 1)},

        {"g02buc", buc(1361, 1502, 0, 0, 0, w), NE_BAD_PARAM, bad_param("mean")},
        {"g02buc", buc(mean, 1502, 0, 0, 0, w), NE_BAD_PARAM, bad_param("order")},
        {"g02buc", buc(mean, rows, 0, 0, 0, w), NE_INT,
         "NE_INT:\n  On entry, m = 0.\n  Constraint: m >= 1."},
        {"g02buc", buc(mean, rows, 0, 4, 0, w), NE_INT,
         "NE_INT:\n  On entry, n = 0.\n  Constraint: n >= 1."},
        {"g02buc", buc(mean, cols, 5, 4, 0, w), NE_INT,
         "NE_INT:\n  On entry, pdx = 0.\n  Constraint: pdx > 0."},
        {"g02buc", buc(mean, rows, 5, 4, 3, w, 1), NE_INT_2,
         "NE_INT_2:\n  On entry, pdx = 3, m = 4.\n  Constraint: pdx>=m."},
        {"g02buc", buc(mean, cols, 5, 4, 4, w, 1), NE_BAD_PARAM, bad_param("sw")},
        {"g02buc", buc(mean, cols, 5, 4, 4, w, 2), NE_BAD_PARAM, bad_param("wmean")},
        {"g02buc", buc(mean, cols, 5, 4, 4, w, 3), NE_BAD_PARAM, bad_param("c")},
        {"g02buc", buc(zero, cols, 5, 4, 4, with(wt20, 2, -1.0)), NE_INT_2,
         "NE_INT_2:\n    On entry, pdx = 4, n = 5.\nConstraint: pdx >= n."},
        {"g02buc", buc(zero, rows, 5, 4, 4, with(wt20, 2, -1.0)), NE_REAL_ARRAY_ELEM_CONS,
         "NE_REAL_ARRAY_ELEM_CONS:\n    On entry, wt[2] < 0.0.", anything},
        {"g02buc", buc(mean, cols, 5, 4, 5, with(wt20, 0, kNaN)), NE_REAL_ARRAY_ELEM_CONS,
         "NE_REAL_ARRAY_ELEM_CONS:\n    On entry, wt[0] < 0.0.", anything},

        {"g02bwc", bwc(0, false), NE_BAD_PARAM, bad_param("r")},
        {"g02bwc", bwc(0, true), NE_INT, core_int("m", 0, "m >= 1")},
        {"g02bwc", bwc(-2, true), NE_INT, core_int("m", -2, "m >= 1")},

        {"g02bxc", bxc(1, 0, 0, 0, 0, none, w), NE_INT_ARG_LE, int_le("n", "1", 1)},
        {"g02bxc", bxc(5, 0, 0, 0, 0, none, w), NE_INT_ARG_LT, int_lt("m", "1", 0)},
        {"g02bxc", bxc(5, 4, 3, 3, 3, none, w), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdx", 3, "m", 4, ">=")},
        {"g02bxc", bxc(5, 4, 4, 3, 3, none, w), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdv", 3, "m", 4, ">=")},
        {"g02bxc", bxc(5, 4, 4, 3, 4, none, w), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdr", 3, "m", 4, ">=")},
        {"g02bxc", bxc(5, 4, 4, 4, 4, bad_obs, with(wt20, 4, -0.5), false), NE_BAD_PARAM,
         bad_param("x")},
        {"g02bxc", bxc(5, 4, 4, 4, 4, bad_obs, with(wt20, 4, -0.5)), NE_NEG_WEIGHT,
         "NE_NEG_WEIGHT:\n  On entry, at least one of the weights is negative."},
        {"g02bxc", bxc(5, 4, 4, 4, 4, ones, with(wt20, 1, kNaN)), NE_NEG_WEIGHT,
         "NE_NEG_WEIGHT:\n  On entry, at least one of the weights is negative."},
        {"g02bxc", bxc(5, 4, 4, 4, 4, bad_obs, w), NE_NEG_SX,
         "NE_NEG_SX:\n  On entry, at least one element of sx is negative."},
        {"g02bxc", bxc(5, 4, 4, 4, 4, none, w), NE_POS_SX,
         "NE_POS_SX:\n  On entry, sx does not contain a positive element."},
        {"g02bxc", bxc(5, 4, 4, 4, 4, ones, unit_sum), NE_SW_LT_ONE,
         "NE_SW_LT_ONE:\n  On entry, the sum of weights is less than 1.0.", only_out(0, 1.0)},

        {"g02byc", byc(2, 1, 0, isz, 1, 1), NE_INT_ARG_LT, int_lt("m", "3", 2)},
        {"g02byc", byc(5, 1, 0, isz, 1, 1), NE_INT_ARG_LT, int_lt("ny", "2", 1)},
        {"g02byc", byc(5, 2, 0, isz, 1, 1), NE_INT_ARG_LT, int_lt("nx", "1", 0)},
        {"g02byc", byc(5, 3, 3, isz, 1, 1), NE_3_INT_ARG_CONS,
         "NE_3_INT_ARG_CONS:\n  On entry, ny = 3, nx = 3 and m = 5.\n  Constraint: ny + nx <= m."},
        {"g02byc", byc(5, 2, 2, isz, 4, 1), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdr", 4, "m", 5, ">=")},
        {"g02byc", byc(5, 2, 2, isz, 5, 1), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "tdp", 1, "ny", 2, ">=")},
        {"g02byc", byc(5, 2, 2, isz, 5, 2, r25.data(), false), NE_BAD_PARAM, bad_param("isz")},
        {"g02byc", byc(5, 2, 2, with(all1, 0, -1), 5, 2), NE_BAD_NY_SET,
         "NE_BAD_NY_SET:\n  On entry, ny = 2 and there are not exactly ny values of isz < 0.\n  "
         "Number of values of isz < 0 = 1."},
        {"g02byc", byc(5, 2, 2, {-1, -1, 0, 1, 0}, 5, 2), NE_BAD_NX_SET,
         "NE_BAD_NX_SET:\n  On entry, nx = 2 and there are not exactly nx values of isz < 0."},
        {"g02byc", byc(4, 2, 2, isz4, 4, 2, singular), NE_COR_MAT_RANK,
         "NE_COR_MAT_RANK:\n  On entry, either the variance-covariance matrix or the "
         "correlation\n  matrix is not of full rank. Try removing some of the x variables by\n"
         "  setting the appropriate elements of isz to zero."},
        {"g02byc", byc(3, 2, 1, isz3, 3, 2, indefinite), NE_COR_MAT_POSDEF,
         "NE_COR_MAT_POSDEF:\n  Either a diagonal element of the partial variance-covariance "
         "matrix is zero\n  and/or a computed partial correlation coefficient is greater than "
         "one. Both\n  indicate that the matrix input in r was not positive-definite.",
         anything},
    };
}

std::vector<Case> time_series_cases() {
    auto aac = [](int nx, int d, int ds, int s_, bool xd = true) {
        return [=](Scratch &s, KivError *f) {
            g13aac(x20, nx, d, ds, s_, xd ? s.out.data() : nullptr, &s.iout[0], f);
        };
    };
    auto abc = [](const double *x, int nx, int nk, bool r = true) {
        return [=](Scratch &s, KivError *f) {
            g13abc(x, nx, nk, &s.out[0], &s.out[1], r ? &s.out[2] : nullptr, &s.out[30], f);
        };
    };
    static const double constant[6] = {2.5, 2.5, 2.5, 2.5, 2.5, 2.5};
    // Mean and variance are set, r and stat left alone.
    auto identical = [](const Scratch &s, const KivError &f) {
        Scratch copy = s;
        EXPECT_EQ(copy.out[0], 2.5);
        copy.out[0] = kSentinel;
        only_out(1, 0.0)(copy, f);
    };
    auto acc = [](std::array<double, 6> r, int nk, int nl, bool nvl = true) {
        return [=](Scratch &s, KivError *f) {
            g13acc(r.data(), nk, nl, &s.out[0], &s.out[10], &s.out[20], nvl ? &s.iout[0] : nullptr,
                   f);
        };
    };
    // Partial results up to the order reached are documented; nvl tells it.
    auto order_reached = [](int nvl) {
        return [=](const Scratch &s, const KivError &) { EXPECT_EQ(s.iout[0], nvl); };
    };
    const std::array<double, 6> r = {0.5, 0.25, 0.125, 0.0625, 0.03, 0.01};
    const char *const kIdentical =
        "NE_TIME_SERIES_IDEN:\n  On entry, all values of x are practically identical,\n  giving "
        "zero variance. In this case r and stat are undefined on exit.";
    const char *const kUnitLag =
        "NE_INVALID_AUTOCO_COEF:\n  On entry, the autocorrelation coefficient of lag 1 has an "
        "absolute\n  value greater than or equal to 1.0; no recursions could be performed.";
    return {
        {"g13aac", aac(20, -1, 0, 0, false), NE_BAD_PARAM, bad_param("xd")},
        {"g13aac", aac(20, -1, -1, -1), NE_INT, core_int("d", -1, "d >= 0"), indicator(1)},
        {"g13aac", aac(20, 1, -1, -1), NE_INT, core_int("ds", -1, "ds >= 0"), indicator(1)},
        {"g13aac", aac(20, 1, 1, -1), NE_INT, core_int("s", -1, "s >= 0"), indicator(1)},
        {"g13aac", aac(20, 1, 1, 0), NE_INT_2,
         "NE_INT_2:\n    On entry, s = 0 and ds > 0:\n    ds =1.", indicator(1)},
        {"g13aac", aac(10, 2, 2, 4), NE_INT_4,
         "NE_INT_4:\n    On entry, nx <= d+(ds*s):\n    nx =10, d =2\n    ds =2, s =4.",
         indicator(2)},
        {"g13aac", aac(0, 0, 0, 0), NE_INT_4,
         "NE_INT_4:\n    On entry, nx <= d+(ds*s):\n    nx =0, d =0\n    ds =0, s =0.",
         indicator(2)},
        {"g13aac", aac(10, 0, INT_MAX, INT_MAX), NE_INT_4,
         "NE_INT_4:\n    On entry, nx <= d+(ds*s):\n    nx =10, d =0\n    ds =2147483647, "
         "s =2147483647.",
         indicator(2)},
        {"g13abc", abc(x20, 1, 0), NE_INT_ARG_LE, int_le("nx", "1", 1)},
        {"g13abc", abc(x20, 20, 0), NE_INT_ARG_LE, int_le("nk", "0", 0)},
        {"g13abc", abc(x20, 5, 5), NE_2_INT_ARG_LE,
         two_int("NE_2_INT_ARG_LE", "nx", 5, "nk", 5, ">")},
        {"g13abc", abc(x20, 3, 100), NE_2_INT_ARG_LE,
         two_int("NE_2_INT_ARG_LE", "nx", 3, "nk", 100, ">")},
        {"g13abc", abc(x20, 20, 2, false), NE_BAD_PARAM, bad_param("r")},
        {"g13abc", abc(constant, 6, 2), NE_TIME_SERIES_IDEN, kIdentical, identical},
        {"g13acc", acc(r, 0, 0), NE_INT_ARG_LE, int_le("nk", "0", 0)},
        {"g13acc", acc(r, 6, 0), NE_INT_ARG_LE, int_le("nl", "0", 0)},
        {"g13acc", acc(r, 2, 3), NE_2_INT_ARG_LT,
         two_int("NE_2_INT_ARG_LT", "nk", 2, "nl", 3, ">=")},
        {"g13acc", acc(r, 2, 2, false), NE_BAD_PARAM, bad_param("nvl")},
        {"g13acc", acc({1.0, 0.5}, 2, 2), NE_INVALID_AUTOCO_COEF, kUnitLag, only_iout(0)},
        {"g13acc", acc({-1.0, 0.5}, 2, 2), NE_INVALID_AUTOCO_COEF, kUnitLag, only_iout(0)},
        {"g13acc", acc({0.9, 0.0}, 2, 2), NE_CORR_NOT_POS_DEF,
         "NE_CORR_NOT_POS_DEF:\n  Recursion has been prematurely terminated; the supplied "
         "autocorrelation\n  coefficients do not form a positive-definite sequence.",
         order_reached(1)},
    };
}

// A required array or output given as a null pointer is reported by name
// (the G02 and G13 routines and the batch forms have such rows above).
std::vector<Case> null_pointer_cases() {
    auto moments = [](int null_at) {
        return [=](Scratch &s, KivError *f) {
            double *out[7];
            for (int k = 0; k < 7; ++k) out[k] = k + 1 == null_at ? nullptr : &s.out[k];
            g01aac(4, null_at == 0 ? nullptr : x20, nullptr, null_at == 9 ? nullptr : &s.iout[0],
                   out[0], out[1], out[2], out[3], out[4], out[5], out[6], f);
        };
    };
    auto incomplete = [](double a, bool p_null) {
        return [=](Scratch &s, KivError *f) {
            s14bac(a, 1.0, 0.0, p_null ? nullptr : &s.out[0], p_null ? &s.out[1] : nullptr, f);
        };
    };
    return {
        {"g01aac", moments(0), NE_BAD_PARAM, bad_param("x")},
        {"g01aac", moments(9), NE_BAD_PARAM, bad_param("nvalid")},
        {"g01aac", moments(1), NE_BAD_PARAM, bad_param("xmean")},
        {"g01aac", moments(7), NE_BAD_PARAM, bad_param("wsum")},
        {"s14bac", incomplete(2.0, true), NE_BAD_PARAM, bad_param("p")},
        {"s14bac", incomplete(2.0, false), NE_BAD_PARAM, bad_param("q")},
        // the argument checks come first
        {"s14bac", incomplete(-1.0, true), NE_REAL_ARG_LE, le("a", "0.0", "-1")},
    };
}

// Student's t, F and beta: every check in order, NaN and infinities.
std::vector<Case> student_f_beta_cases() {
    auto ebc = [](int tail, double t, double df) {
        return [=](Scratch &s, KivError *f) {
            s.result = g01ebc(static_cast<Kiv_Tail>(tail), t, df, f);
        };
    };
    auto edc = [](int tail, double x, double d1, double d2) {
        return [=](Scratch &s, KivError *f) {
            s.result = g01edc(static_cast<Kiv_Tail>(tail), x, d1, d2, f);
        };
    };
    auto eec = [](double x, double a, double b, double tol) {
        return [=](Scratch &s, KivError *f) {
            g01eec(x, a, b, tol, &s.out[0], &s.out[1], &s.out[2], f);
        };
    };
    const Check zero = returns_zero;
    const int lower = Kiv_LowerTail;
    return {
        {"g01ebc", ebc(1333, 1.0, 0.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01ebc", ebc(1328, 1.0, 2.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01ebc", ebc(lower, 1.0, 0.0), NE_REAL_ARG_LE, le("df", "0.0", "0"), zero},
        {"g01ebc", ebc(lower, 1.0, kNaN), NE_REAL_ARG_LE, le("df", "0.0", "nan"), zero},
        {"g01ebc", ebc(lower, 1.0, -kInf), NE_REAL_ARG_LE, le("df", "0.0", "-inf"), zero},
        {"g01ebc", ebc(lower, kNaN, 2.0), NE_REAL,
         "NE_REAL:\n  On entry, t = nan.\n  Constraint: t must not be NaN.", zero},
        {"g01edc", edc(Kiv_Central, 1.0, 2.0, 3.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01edc", edc(lower, -1.0, 0.0, 0.0), NE_REAL_ARG_LT, lt("f", "0.0", "-1"), zero},
        {"g01edc", edc(lower, kNaN, 2.0, 3.0), NE_REAL_ARG_LT, lt("f", "0.0", "nan"), zero},
        {"g01edc", edc(lower, 1.0, 0.0, 3.0), NE_REAL_ARG_LE, le("df1", "0.0", "0"), zero},
        {"g01edc", edc(lower, 1.0, 2.0, kNaN), NE_REAL_ARG_LE, le("df2", "0.0", "nan"), zero},
        {"g01eec", eec(-0.5, 0.0, 0.0, -1.0), NE_REAL_ARG_LT, lt("x", "0.0", "-0.5")},
        {"g01eec", eec(kNaN, 1.0, 1.0, 0.0), NE_REAL_ARG_LT, lt("x", "0.0", "nan")},
        {"g01eec", eec(1.5, 1.0, 1.0, 0.0), NE_REAL_ARG_GT,
         bound("NE_REAL_ARG_GT", "greater than", "x", "1.0", "1.5")},
        {"g01eec", eec(0.5, 0.0, 1.0, 0.0), NE_REAL_ARG_LE, le("a", "0.0", "0")},
        {"g01eec", eec(0.5, 1.0, kNaN, 0.0), NE_REAL_ARG_LE, le("b", "0.0", "nan")},
        {"g01eec", eec(0.5, kInf, 1.0, 0.0), NE_REAL_ARG_GE, ge("a", "inf", "inf")},
        {"g01eec", eec(0.5, 1.0, 1.0, -1e-3), NE_REAL_ARG_LT, lt("tol", "0.0", "-0.001")},
    };
}

// The deviates: the probability first (then the parameters), NaN included.
std::vector<Case> deviate_cases() {
    const Check zero = returns_zero;
    auto fbc = [](int tail, double p, double df) {
        return [=](Scratch &s, KivError *f) {
            s.result = g01fbc(static_cast<Kiv_Tail>(tail), p, df, f);
        };
    };
    auto fcc = [](double p, double df) {
        return [=](Scratch &s, KivError *f) { s.result = g01fcc(p, df, f); };
    };
    auto fdc = [](double p, double d1, double d2) {
        return [=](Scratch &s, KivError *f) { s.result = g01fdc(p, d1, d2, f); };
    };
    auto fec = [](double p, double a, double b, double tol) {
        return [=](Scratch &s, KivError *f) { s.result = g01fec(p, a, b, tol, f); };
    };
    auto ffc = [](double p, double a, double b, double tol) {
        return [=](Scratch &s, KivError *f) { s.result = g01ffc(p, a, b, tol, f); };
    };
    const int upper = Kiv_UpperTail;
    return {
        {"g01fbc", fbc(1333, 0.5, 2.0), NE_BAD_PARAM, bad_param("tail"), zero},
        {"g01fbc", fbc(upper, 0.0, 2.0), NE_REAL_ARG_LE, le("p", "0.0", "0"), zero},
        {"g01fbc", fbc(upper, kNaN, 2.0), NE_REAL_ARG_LE, le("p", "0.0", "nan"), zero},
        {"g01fbc", fbc(upper, 1.0, 2.0), NE_REAL_ARG_GE, ge("p", "1.0", "1"), zero},
        {"g01fbc", fbc(upper, 0.5, -1.0), NE_REAL_ARG_LE, le("df", "0.0", "-1"), zero},
        {"g01fcc", fcc(1.5, -1.0), NE_REAL_ARG_GE, ge("p", "1.0", "1.5"), zero},
        {"g01fcc", fcc(0.5, kNaN), NE_REAL_ARG_LE, le("df", "0.0", "nan"), zero},
        {"g01fdc", fdc(4.9406564584124654e-324, 0.0, 1.0), NE_REAL_ARG_LE, le("df1", "0.0", "0"),
         zero},
        {"g01fdc", fdc(0.5, 1.0, kInf), NE_REAL_ARG_GE, ge("df2", "inf", "inf"), zero},
        {"g01fec", fec(0.5, 1.0, 0.0, 0.0), NE_REAL_ARG_LE, le("b", "0.0", "0"), zero},
        {"g01fec", fec(0.5, 1.0, 1.0, -1.0), NE_REAL_ARG_LT, lt("tol", "0.0", "-1"), zero},
        {"g01ffc", ffc(-0.5, 1.0, 1.0, 0.0), NE_REAL_ARG_LE, le("p", "0.0", "-0.5"), zero},
        {"g01ffc", ffc(0.5, 1.0, 0.0, 0.0), NE_REAL_ARG_LE, le("b", "0.0", "0"), zero},
    };
}

// Studentized range, von Mises, bivariate and multivariate normal.
std::vector<Case> range_and_normal_cases() {
    const Check zero = returns_zero;
    auto emc = [](double q, double v, int ir) {
        return [=](Scratch &s, KivError *f) { s.result = g01emc(q, v, ir, f); };
    };
    auto fmc = [](double p, double v, int ir) {
        return [=](Scratch &s, KivError *f) { s.result = g01fmc(p, v, ir, f); };
    };
    auto erc = [](double t, double vk) {
        return [=](Scratch &s, KivError *f) { s.result = g01erc(t, vk, f); };
    };
    auto hac = [](double x, double y, double rho) {
        return [=](Scratch &s, KivError *f) { s.result = g01hac(x, y, rho, f); };
    };
    auto hbc = [](int tail, int n, bool a_null, int tdsig, double tol, int maxpts, double a0) {
        return [=](Scratch &s, KivError *f) {
            const double a[3] = {a0, 0, 0}, b[3] = {1, 1, 1}, mu[3] = {0, 0, 0};
            const double sig[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
            s.result = g01hbc(static_cast<Kiv_Tail>(tail), n, a_null ? nullptr : a, b, mu, sig,
                              tdsig, tol, maxpts, f);
        };
    };
    const int central = Kiv_Central;
    return {
        {"g01emc", emc(-1.0, 0.5, 1), NE_REAL_ARG_LT, lt("q", "0.0", "-1"), zero},
        {"g01emc", emc(1.0, 0.5, 1), NE_REAL_ARG_LT, lt("v", "1.0", "0.5"), zero},
        {"g01emc", emc(1.0, kNaN, 3), NE_REAL_ARG_LT, lt("v", "1.0", "nan"), zero},
        {"g01emc", emc(1.0, 5.0, 1), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, ir must not be less than 2: ir = 1.", zero},
        {"g01fmc", fmc(1.0, 5.0, 3), NE_REAL_ARG_GE, ge("p", "1.0", "1"), zero},
        {"g01fmc", fmc(0.5, 5.0, 0), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, ir must not be less than 2: ir = 0.", zero},
        {"g01erc", erc(kNaN, 1.0), NE_REAL,
         "NE_REAL:\n  On entry, t = nan.\n  Constraint: t must be finite.", zero},
        {"g01erc", erc(1.0, 0.0), NE_REAL_ARG_LE, le("vk", "0.0", "0"), zero},
        {"g01hac", hac(0.0, 0.0, 1.5), NE_REAL_ARG_GT,
         bound("NE_REAL_ARG_GT", "greater than", "rho", "1.0", "1.5"), zero},
        {"g01hac", hac(0.0, 0.0, kNaN), NE_REAL_ARG_LT, lt("rho", "-1.0", "nan"), zero},
        {"g01hbc", hbc(Kiv_TwoTailSignif, 3, false, 3, 1e-4, 1000, 0), NE_BAD_PARAM,
         bad_param("tail"), zero},
        {"g01hbc", hbc(central, 1, false, 3, 1e-4, 1000, 0), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, n must not be less than 2: n = 1.", zero},
        {"g01hbc", hbc(central, 3, true, 3, 1e-4, 1000, 0), NE_BAD_PARAM, bad_param("a"), zero},
        {"g01hbc", hbc(central, 3, false, 2, 1e-4, 1000, 0), NE_2_INT_ARG_LT,
         "NE_2_INT_ARG_LT:\n  On entry, tdsig =  2 while n =  3.\n  These parameters must "
         "satisfy tdsig >= n.",
         zero},
        {"g01hbc", hbc(central, 3, false, 3, 1e-4, 1000, 2.0), NE_2_REAL_ARG_GT,
         "NE_2_REAL_ARG_GT:\n  On entry, a[0] = 2 while b[0] = 1.\n  These parameters must "
         "satisfy a[0] <= b[0].",
         zero},
        {"g01hbc", hbc(central, 3, false, 3, 0.0, 1000, 0), NE_REAL_ARG_LE, le("tol", "0.0", "0"),
         zero},
        {"g01hbc",
         [](Scratch &s, KivError *f) {
             const double a[3] = {0, 0, 0}, b[3] = {1, 1, 1}, mu[3] = {0, 0, 0};
             const double sig[9] = {1, 2, 0, 2, 1, 0, 0, 0, 1};  // not positive semi-definite
             s.result = g01hbc(Kiv_Central, 3, a, b, mu, sig, 3, 1e-4, 1000, f);
         },
         NE_NOT_POS_SEM_DEF, "NE_NOT_POS_SEM_DEF:\n  Error: Not positive sem definite.", zero},
        {"g01hbc", hbc(central, 3, false, 3, 1e-4, 0, 0), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, maxpts must not be less than 1: maxpts = 0.", zero},
    };
}

// Grouped moments, frequency table, five-number summary.
std::vector<Case> summary_cases() {
    auto adc = [](int k, int f1) {
        return [=](Scratch &s, KivError *f) {
            const double x[2] = {1.0, 2.0};
            const int freq[2] = {3, f1};
            g01adc(k, x, freq, &s.out[0], &s.out[1], &s.out[2], &s.out[3], &s.iout[0], f);
        };
    };
    auto aec = [](int n, int classes, int type) {
        return [=](Scratch &s, KivError *f) {
            g01aec(n, x20, classes, static_cast<Kiv_ClassBoundary>(type), &s.out[0], &s.iout[0],
                   &s.out[10], &s.out[11], f);
        };
    };
    return {
        {"g01adc", adc(0, 1), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, k must not be less than 1: k = 0."},
        {"g01adc", adc(2, -2), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, ifreq[1] must not be less than 0: ifreq[1] = -2."},
        {"g01aec", aec(0, 3, Kiv_ClassBoundaryComp), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, n must not be less than 1: n = 0."},
        {"g01aec", aec(5, 1, Kiv_ClassBoundaryComp), NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, num_class must not be less than 2: num_class = 1."},
        {"g01aec", aec(5, 3, 1329), NE_BAD_PARAM, bad_param("cltype")},
        {"g01alc", [](Scratch &s, KivError *f) { g01alc(0, x20, &s.out[0], f); }, NE_INT_ARG_LT,
         "NE_INT_ARG_LT:\n  On entry, n must not be less than 1: n = 0."},
        {"g01alc", [](Scratch &s, KivError *f) { g01alc(3, nullptr, &s.out[0], f); }, NE_BAD_PARAM,
         bad_param("x")},
    };
}

std::vector<Case> all_cases() {
    std::vector<Case> cases;
    for (auto part : {normal_cases, gamma_cases, moments_cases, correlation_cases,
                      time_series_cases, null_pointer_cases, student_f_beta_cases, deviate_cases,
                      range_and_normal_cases, summary_cases})
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
        EXPECT_EQ(std::string(fail.message), c.message);
        EXPECT_EQ(handler_calls, 1) << "one report per call";
        if (c.check) {
            c.check(scratch, fail);
        } else {
            EXPECT_TRUE(scratch.untouched()) << "outputs written";
        }
    }
    for (const auto &[routine, count] : per_routine)
        std::printf("bad-input cases %-8s %d\n", routine.c_str(), count);
}

// Routines without a record do nothing with a null array.
TEST(BadInput, NullArraysOfRecordFreeRoutinesAreIgnored) {
    EXPECT_EQ(g05kac(1, nullptr), 0.0);
    g05kbc(nullptr, nullptr);
    g05cfc(nullptr, nullptr);
    s15adc_v(3, nullptr, nullptr);
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
