// g01aac: descriptive statistics of a sample x[0..n-1] with optional weights
// wt (null: every weight 1): the number of valid cases (weight > 0), the
// weighted mean, standard deviation, coefficients of skewness and kurtosis
// (excess), minimum, maximum and the sum of the weights W.
//
// Method: one pass of running updates of the mean and of the central moment
// sums S2, S3, S4 (sums of w (x - mean)^k), no sums of raw powers. For a new
// value x with weight w, d = x - mean, e = w d (set to zero when |e| is below
// x02akc()^(1/4), so that e^4 cannot underflow in the sums), r = e / W
// (W including w), B = e (d - r):
//   S4 += B (d^2 - 3 B / W) + r (6 r S2 - 4 S3)
//   S3 += B (d - 2 r) - 3 r S2
//   S2 += B,   mean += r,
// in this order and with the old S2 and S3 on the right-hand sides. With
// A = W^2 - sum w^2 and c = W / A, the variance is c S2 and the skewness and
// kurtosis are c S3 / sd^3 and c S4 / var^2 - 3: for unit weights c = 1/(n - 1),
// the divisor n - 1 for all three moments, deliberately.
//
// References: D. H. D. West, Updating mean and variance estimates: an improved
// method, Comm. ACM 22 (1979) 532-535; P. Pebay, Formulas for robust, one-pass
// parallel computation of covariances and arbitrary-order statistical moments,
// Sandia report SAND2008-6212 (2008).
//
// Accuracy: agrees with exact rational arithmetic to a few ulps on small
// samples (tests/g01/descriptive_test.cpp). Speed: about one division latency
// per value (the division r = e / W lies on the chain through the mean).
#include <cmath>
#include <cstdio>
#include <utility>

#include "kiv.h"
#include "runtime/checks.hpp"

namespace {

struct Moments {
    double mean;
    double weight_total;  // W
    double pair_weight;   // A = W^2 - sum w^2
    double s2 = 0.0;
    double s3 = 0.0;
    double s4 = 0.0;
    double minimum;
    double maximum;
};

inline void add_value(Moments &m, double x, double w, double tiny) {
    if (x < m.minimum) m.minimum = x;
    if (x > m.maximum) m.maximum = x;
    m.pair_weight = m.pair_weight + 2.0 * w * m.weight_total;
    m.weight_total = m.weight_total + w;
    const double d = x - m.mean;
    double e = w * d;
    if (std::fabs(e) <= tiny) e = 0.0;
    const double r = e / m.weight_total;
    const double b = e * (d - r);
    m.s4 = m.s4 + b * (d * d - 3.0 * b / m.weight_total) + r * (6.0 * r * m.s2 - 4.0 * m.s3);
    m.s3 = m.s3 + b * (d - 2.0 * r) - 3.0 * r * m.s2;
    m.s2 = m.s2 + b;
    m.mean = m.mean + r;
}

// The weighted moments of the observations with a positive weight (all of
// them when wt is null), first valid observation at `first`, `valid` of them:
// one pass of the updates above, then the coefficients (0 for a constant
// sample or a single observation).
struct Summary {
    double mean, sd, skewness, kurtosis, minimum, maximum, weight_total;
};

Summary weighted_moments(int n, const double *x, const double *wt, int first, int valid) {
    Moments m{};
    m.mean = m.minimum = m.maximum = x[first];
    m.weight_total = wt != nullptr ? wt[first] : 1.0;
    m.pair_weight = 0.0;
    if (valid > 1) {
        const double tiny = std::sqrt(std::sqrt(x02akc()));
        if (wt == nullptr) {
            for (int i = 1; i < n; ++i) add_value(m, x[i], 1.0, tiny);
        } else {
            for (int i = first + 1; i < n; ++i)
                if (wt[i] > 0.0) add_value(m, x[i], wt[i], tiny);
        }
    }
    Summary out{m.mean, 0.0, 0.0, 0.0, m.minimum, m.maximum, m.weight_total};
    if (valid > 1 && m.s2 > 0.0) {
        const double c = m.weight_total / m.pair_weight;
        const double variance = c * m.s2;
        const double sd = std::sqrt(variance);
        out.sd = sd;
        out.skewness = c * m.s3 / (sd * variance);
        out.kurtosis = c * m.s4 / (variance * variance) - 3.0;
    }
    return out;
}

}  // namespace

extern "C" {

KIV_API void g01aac(int n, const double x[], const double wt[], int *nvalid, double *xmean,
                    double *xsd, double *xskew, double *xkurt, double *xmin, double *xmax,
                    double *wsum, KivError *fail) {
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, "g01aac");
    if (!check.int_above("n", n, 0, "0")) {
        if (nvalid != nullptr) *nvalid = 0;
        return;
    }
    // A required array or output given as a null pointer is reported by name
    // (wt alone may be null: unit weights).
    const std::pair<const void *, const char *> required[] = {
        {x, "x"},         {nvalid, "nvalid"}, {xmean, "xmean"}, {xsd, "xsd"},  {xskew, "xskew"},
        {xkurt, "xkurt"}, {xmin, "xmin"},     {xmax, "xmax"},   {wsum, "wsum"}};
    for (const auto &[pointer, name] : required)
        if (!check.given(name, pointer)) return;

    // The weights: none negative (or NaN), at least one positive.
    int valid = n;
    int first = 0;
    if (wt != nullptr) {
        valid = 0;
        first = -1;
        for (int i = 0; i < n; ++i) {
            if (!(wt[i] >= 0.0)) {
                *nvalid = 0;
                char label[24];
                std::snprintf(label, sizeof label, "wt[%3ld]", static_cast<long>(i));
                check.real_not_less(label, wt[i], 0.0, "0");
                return;
            }
            if (wt[i] > 0.0) {
                if (first < 0) first = i;
                ++valid;
            }
        }
        if (valid == 0) {
            *nvalid = 0;
            check.report_code_only(NE_CASES_ZERO);
            return;
        }
    }

    const Summary summary = weighted_moments(n, x, wt, first, valid);
    *nvalid = valid;
    *xmean = summary.mean;
    *xmin = summary.minimum;
    *xmax = summary.maximum;
    *wsum = summary.weight_total;
    *xsd = summary.sd;
    *xskew = summary.skewness;
    *xkurt = summary.kurtosis;
    if (valid == 1) {
        check.report_code_only(NE_CASES_ONE);
        return;
    }
    check.success();
}

}  // extern "C"
