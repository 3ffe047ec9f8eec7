// g01adc: mean, standard deviation, skewness and kurtosis of grouped data
// (class marks x[i] with frequencies ifreq[i] >= 0), with the divisors of
// g01aac for the data the frequencies stand for: sd^2 = m2/(n - 1),
// skewness = (m3/(n - 1))/sd^3, kurtosis = (m4/(n - 1))/sd^4 - 3, m_k the k-th
// sums of powers of the deviations from the mean, n the total frequency.
// g01aec: frequency table of n values in num_class >= 2 classes, class i
// holding cint[i-1] <= x < cint[i] (the first and last classes open-ended),
// the num_class - 1 boundaries computed equally spaced between the smallest
// and largest value (Kiv_ClassBoundaryComp) or given strictly increasing
// (Kiv_ClassBoundaryUser).
// g01alc: Tukey's five-number summary: minimum, lower hinge, median, upper
// hinge, maximum; with d = (n + 1)/2 the depth of the median, the hinges
// are at depth (floor(d) + 1)/2 from either end (the average of two order
// statistics at a half depth).
//
// Methods: two passes in long double for the grouped moments (the mean, then
// the sums of powers of the deviations); a binary search among the
// boundaries per value for the table (O(n log num_class)); the order
// statistics of the summary by selection (std::nth_element on a copy,
// expected O(n)), never a full sort.
//
// References: J. W. Tukey, Exploratory Data Analysis, Addison-Wesley (1977),
// chapter 2 (hinges); D. C. Hoaglin, F. Mosteller, J. W. Tukey,
// Understanding Robust and Exploratory Data Analysis, Wiley (1983), 2.
//
// Accuracy: tests/g01/summaries_test.cpp (exact rational arithmetic for the
// grouped moments, the definitions for the hinges and the table).
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "kiv.h"
#include "runtime/checks.hpp"
#include "runtime/workspace.hpp"

extern "C" {

KIV_API void g01adc(int k, const double x[], const int ifreq[], double *xmean, double *xsd,
                    double *xskew, double *xkurt, int *n, KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01adc");
    if (!check.int_not_less("k", k, 1, "1") || !check.given("x", x) ||
        !check.given("ifreq", ifreq) || !check.given("xmean", xmean) || !check.given("xsd", xsd) ||
        !check.given("xskew", xskew) || !check.given("xkurt", xkurt) || !check.given("n", n))
        return;
    long long total = 0;
    for (int i = 0; i < k; ++i) {
        if (ifreq[i] < 0) {
            char name[24];
            std::snprintf(name, sizeof name, "ifreq[%d]", i);
            check.int_not_less(name, ifreq[i], 0, "0");
            return;
        }
        total += ifreq[i];
    }
    if (total > 2147483647LL) {
        check.report(NE_INT_ARG_GT, "n", "2147483647", "n", total);
        return;
    }
    *n = static_cast<int>(total);
    *xmean = *xsd = *xskew = *xkurt = 0.0;
    if (total == 0) {
        check.report_code_only(NE_CASES_ZERO);
        return;
    }
    long double sum = 0.0L;
    for (int i = 0; i < k; ++i) sum += static_cast<long double>(ifreq[i]) * x[i];
    const long double mean = sum / total;
    long double m2 = 0.0L, m3 = 0.0L, m4 = 0.0L;
    for (int i = 0; i < k; ++i) {
        const long double d = x[i] - mean, d2 = d * d;
        m2 += ifreq[i] * d2;
        m3 += ifreq[i] * d2 * d;
        m4 += ifreq[i] * d2 * d2;
    }
    *xmean = static_cast<double>(mean);
    if (total == 1) {
        check.report_code_only(NE_CASES_ONE);
        return;
    }
    const long double variance = m2 / (total - 1);
    if (variance > 0.0L) {
        const long double sd = std::sqrt(variance);
        *xsd = static_cast<double>(sd);
        *xskew = static_cast<double>(m3 / (total - 1) / (sd * variance));
        *xkurt = static_cast<double>(m4 / (total - 1) / (variance * variance) - 3.0L);
    }
    check.success();
}

KIV_API void g01aec(int n, const double x[], int num_class, Kiv_ClassBoundary cltype, double cint[],
                    int ifreq[], double *xmin, double *xmax, KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01aec");
    if (!check.int_not_less("n", n, 1, "1") ||
        !check.int_not_less("num_class", num_class, 2, "2") ||
        !check.member("cltype",
                      cltype == Kiv_ClassBoundaryUser || cltype == Kiv_ClassBoundaryComp) ||
        !check.given("x", x) || !check.given("cint", cint) || !check.given("ifreq", ifreq) ||
        !check.given("xmin", xmin) || !check.given("xmax", xmax))
        return;
    const auto inner = static_cast<std::size_t>(num_class - 1);
    if (cltype == Kiv_ClassBoundaryUser) {
        for (std::size_t i = 0; i < inner; ++i)
            if (!std::isfinite(cint[i]) || (i > 0 && !(cint[i] > cint[i - 1]))) {
                check.report_code_only(NE_NOT_STRICTLY_INCREASING);
                return;
            }
    }
    const auto [low, high] = std::minmax_element(x, x + n);
    *xmin = *low;
    *xmax = *high;
    if (cltype == Kiv_ClassBoundaryComp) {
        const double width = (*high - *low) / num_class;
        for (std::size_t i = 0; i < inner; ++i) cint[i] = *low + static_cast<double>(i + 1) * width;
    }
    for (int c = 0; c < num_class; ++c) ifreq[c] = 0;
    for (int j = 0; j < n; ++j) {
        // The class of x: the number of boundaries at or below it.
        const auto at_or_below = std::upper_bound(cint, cint + inner, x[j]) - cint;
        ++ifreq[at_or_below];
    }
    check.success();
}

KIV_API void g01alc(int n, const double x[], double res[5], KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01alc");
    if (!check.int_not_less("n", n, 1, "1") || !check.given("x", x) || !check.given("res", res))
        return;
    kiv::rt::WorkArray<double> copy(n);
    if (!copy.ok()) {
        check.report_code_only(NE_ALLOC_FAIL);
        return;
    }
    double *v = copy.get();
    std::copy(x, x + n, v);
    // The order statistic of 1-based rank r (selection on the whole copy).
    auto order = [&](long long r) {
        std::nth_element(v, v + (r - 1), v + n);
        return v[r - 1];
    };
    // The value at a depth that may be a half: the mean of two ranks.
    auto at_depth = [&](long long twice_depth, bool from_top) {
        const long long lo = twice_depth / 2, hi = (twice_depth + 1) / 2;
        const long long rlo = from_top ? n + 1 - hi : lo, rhi = from_top ? n + 1 - lo : hi;
        const double a = order(rlo);
        const double b = rhi == rlo ? a : order(rhi);
        return 0.5 * a + 0.5 * b;
    };
    const long long median_twice = n + 1;           // 2 d, d = (n + 1)/2
    const long long hinge_twice = (n + 1) / 2 + 1;  // 2 (floor(d) + 1)/2
    const auto [low, high] = std::minmax_element(x, x + n);
    res[0] = *low;
    res[1] = at_depth(hinge_twice, false);
    res[2] = at_depth(median_twice, false);
    res[3] = at_depth(hinge_twice, true);
    res[4] = *high;
    check.success();
}

}  // extern "C"
