// Computational cores of g02btc, g02buc and g02bwc: weighted means and
// sums of squares and cross-products (SSP), updated one observation at a
// time or computed for a whole data matrix, and their scaling to
// correlations. Matrices are packed: element (i, j), i <= j, at
// j(j+1)/2 + i.
//
// g02btz, update by one observation of weight w (West 1979). About the
// mean, with s' = sw + w, a = w / s', b = a sw:
//     c(i,j) += b (x_i - xbar_i)(x_j - xbar_j)  (old means),
//     xbar_j += a (x_j - xbar_j),  sw = s';
// a negative w removes an observation that was added with weight -w. About
// zero: c(i,j) += w x_i x_j and xbar_j += (w / s')(x_j - xbar_j).
// Decisions where the definition leaves a case open:
//   - w = 0 changes nothing;
//   - about zero with sw = 0 on entry (the first observation) starts the
//     sums from this observation: xbar = x and c(i,j) = w x_i x_j, whatever
//     c held before (about the mean, b = 0 and xbar = x, c unchanged);
//   - s' = 0 in either mode (the last observation removed) resets sw, every
//     mean and every element of c to zero.
//
// g02buz, whole matrix: sw = sum w_i and means xbar_j = sum w_i x_ij / sw,
// then the corrected two-pass sums (Chan, Golub & LeVeque 1983)
//     c(i,j) = sum w (x_i - xbar_i)(x_j - xbar_j)
//              - (sum w (x_i - xbar_i)) (sum w (x_j - xbar_j)) / sw
// about the mean, or c(i,j) = sum w x_i x_j about zero. Observations of
// weight zero contribute nothing (they are skipped, so an infinite or NaN
// value with weight zero does not reach the sums). When every weight is
// zero, sw, the means and c are all zero.
//
// g02bwz: s_i = 1/sqrt(c(i,i)) for c(i,i) > 0, off-diagonal c(i,j) becomes
// (c(i,j) s_i) s_j (in this order: no overflow for |c(i,j)| <= sqrt(c(i,i)
// c(j,j))), the diagonal 1. A variable with c(i,i) <= 0 (or NaN) has zero
// variance: its row, column and diagonal become 0, the others are completed,
// and the core ends with failure 2.
//
// Fault text: "%-6s %d %d %d %s": core name, failure number, identifier, an
// integer (an index or a size, else 0) and the offending value as text
// (integers as %d, reals as %g; never longer than 19 characters).
//
// References: D. H. D. West, Updating mean and variance estimates: an
// improved method, Communications of the ACM 22 (1979), 532-535. T. F. Chan,
// G. H. Golub and R. J. LeVeque, Algorithms for computing the sample
// variance: analysis and recommendations, The American Statistician 37
// (1983), 242-247.
#include "g02/sums_of_squares_core.hpp"

#include <cmath>
#include <cstddef>
#include <cstdio>

namespace kiv::g02 {

namespace {

// Ends a core: on failure writes the fault text and returns the failure
// number through the library's error-flag exit (quiet for indicator 1).
void core_exit(const char *core, int failure, int identifier, int integer, const char *value,
               int *ifail, char *fault) {
    if (failure != 0)
        std::snprintf(fault, kFaultLength, "%-6s %d %d %d %s", core, failure, identifier, integer,
                      value);
    *ifail = kiv_ifail_exit(*ifail, failure, core, failure != 0 ? 1 : 0, fault, 6, kFaultLength);
}

// The argument checks of a core routine: refuse() tests one condition and,
// when it holds, writes the offending value as text into the fault area
// (with core_exit) and returns true.
class CoreChecks {
public:
    CoreChecks(const char *core, int *ifail, char *fault)
        : core_(core), ifail_(ifail), fault_(fault) {}
    bool refuse(bool bad, int identifier, long value, int integer = 0) const {
        if (!bad) return false;
        char text[32];
        std::snprintf(text, sizeof text, "%ld", value);
        core_exit(core_, 1, identifier, integer, text, ifail_, fault_);
        return true;
    }
    bool refuse(bool bad, int identifier, double value, int integer = 0) const {
        if (!bad) return false;
        char text[32];
        std::snprintf(text, sizeof text, "%g", value);
        core_exit(core_, 1, identifier, integer, text, ifail_, fault_);
        return true;
    }

private:
    const char *core_;
    int *ifail_;
    char *fault_;
};

bool fault_area_too_short(int fault_length, int *ifail) {
    if (fault_length >= kFaultLength) return false;
    *ifail = -999;  // no room for a fault text
    return true;
}

bool about_mean(char mean) {
    return mean == 'M' || mean == 'm';
}
bool valid_mode(char mean) {
    return about_mean(mean) || mean == 'Z' || mean == 'z';
}

std::size_t packed(std::size_t i, std::size_t j) {
    return j * (j + 1) / 2 + i;
}

void reset(int m, double *sw, double *xbar, double *c) {
    *sw = 0.0;
    const std::size_t count = static_cast<std::size_t>(m);
    for (std::size_t j = 0; j < count; ++j) xbar[j] = 0.0;
    for (std::size_t k = 0; k < count * (count + 1) / 2; ++k) c[k] = 0.0;
}

}  // namespace

void g02btz(char mean, int m, double wt, const double *x, int incx, double *sw, double *xbar,
            double *c, int *ifail, char *fault, int fault_length) {
    constexpr const char *core = "g02btz";
    if (fault_area_too_short(fault_length, ifail)) return;
    const CoreChecks check(core, ifail, fault);
    if (check.refuse(!valid_mode(mean), kFaultModeLetter, static_cast<long>(mean)) ||
        check.refuse(incx < 1, kFaultIncrement, static_cast<long>(incx)) ||
        check.refuse(m < 1, kFaultFirstSize, static_cast<long>(m)) ||
        check.refuse(!(*sw >= 0.0), kFaultSumOfWeights, *sw))
        return;
    const double total = *sw + wt;
    if (check.refuse(!(total >= 0.0), kFaultSumWeight, total)) return;
    const std::size_t count = static_cast<std::size_t>(m);
    const std::size_t step = static_cast<std::size_t>(incx);
    if (wt == 0.0) return core_exit(core, 0, 0, 0, "", ifail, fault);
    if (total == 0.0) {
        reset(m, sw, xbar, c);
        return core_exit(core, 0, 0, 0, "", ifail, fault);
    }
    if (about_mean(mean)) {
        const double a = wt / total, b = a * *sw;
        for (std::size_t j = 0; j < count; ++j) {
            const double dj = b * (x[j * step] - xbar[j]);
            for (std::size_t i = 0; i <= j; ++i) c[packed(i, j)] += dj * (x[i * step] - xbar[i]);
        }
        for (std::size_t j = 0; j < count; ++j) xbar[j] += a * (x[j * step] - xbar[j]);
    } else if (*sw == 0.0) {
        for (std::size_t j = 0; j < count; ++j) {
            xbar[j] = x[j * step];
            for (std::size_t i = 0; i <= j; ++i) c[packed(i, j)] = wt * x[i * step] * x[j * step];
        }
    } else {
        const double a = wt / total;
        for (std::size_t j = 0; j < count; ++j) {
            const double wxj = wt * x[j * step];
            for (std::size_t i = 0; i <= j; ++i) c[packed(i, j)] += x[i * step] * wxj;
        }
        for (std::size_t j = 0; j < count; ++j) xbar[j] += a * (x[j * step] - xbar[j]);
    }
    *sw = total;
    core_exit(core, 0, 0, 0, "", ifail, fault);
}

void g02buz(char mean, int n, int m, const double *x, int ldx, const double *wt, double *sw,
            double *wmean, double *c, int *ifail, char *fault, int fault_length) {
    constexpr const char *core = "g02buz";
    if (fault_area_too_short(fault_length, ifail)) return;
    const CoreChecks check(core, ifail, fault);
    if (check.refuse(!valid_mode(mean), kFaultModeLetter, static_cast<long>(mean)) ||
        check.refuse(n < 1, kFaultFirstSize, static_cast<long>(n)) ||
        check.refuse(m < 1, kFaultSecondSize, static_cast<long>(m)) ||
        check.refuse(ldx < n, kFaultStride, static_cast<long>(n), ldx))
        return;
    const std::size_t rows = static_cast<std::size_t>(n), cols = static_cast<std::size_t>(m);
    const std::size_t ld = static_cast<std::size_t>(ldx);
    if (wt != nullptr) {
        for (std::size_t i = 0; i < rows; ++i) {
            if (check.refuse(!(wt[i] >= 0.0), kFaultWeight, wt[i], static_cast<int>(i))) return;
        }
    }
    auto weight = [wt](std::size_t i) { return wt == nullptr ? 1.0 : wt[i]; };
    double total = 0.0;
    for (std::size_t i = 0; i < rows; ++i) total += weight(i);
    if (total == 0.0) {
        reset(m, sw, wmean, c);
        return core_exit(core, 0, 0, 0, "", ifail, fault);
    }
    for (std::size_t j = 0; j < cols; ++j) {
        const double *column = x + j * ld;
        double sum = 0.0;
        for (std::size_t i = 0; i < rows; ++i)
            if (weight(i) != 0.0) sum += weight(i) * column[i];
        wmean[j] = sum / total;
    }
    const bool centred = about_mean(mean);
    for (std::size_t j = 0; j < cols; ++j) {
        const double *xj = x + j * ld;
        const double mj = centred ? wmean[j] : 0.0;
        for (std::size_t i = 0; i <= j; ++i) {
            const double *xi = x + i * ld;
            const double mi = centred ? wmean[i] : 0.0;
            double products = 0.0, sum_i = 0.0, sum_j = 0.0;
            for (std::size_t k = 0; k < rows; ++k) {
                const double w = weight(k);
                if (w == 0.0) continue;
                const double di = xi[k] - mi, dj = xj[k] - mj;
                products += w * di * dj;
                sum_i += w * di;
                sum_j += w * dj;
            }
            c[packed(i, j)] = centred ? products - sum_i * sum_j / total : products;
        }
    }
    *sw = total;
    core_exit(core, 0, 0, 0, "", ifail, fault);
}

void g02bwz(int m, double *r, int *ifail, char *fault, int fault_length) {
    constexpr const char *core = "g02bwz";
    if (fault_area_too_short(fault_length, ifail)) return;
    if (CoreChecks(core, ifail, fault).refuse(m < 1, kFaultFirstSize, static_cast<long>(m))) return;
    const std::size_t count = static_cast<std::size_t>(m);
    bool zero_variance = false;
    for (std::size_t j = 0; j < count; ++j) {
        double &d = r[packed(j, j)];
        if (d > 0.0) {
            d = 1.0 / std::sqrt(d);
        } else {
            d = 0.0;
            zero_variance = true;
        }
    }
    for (std::size_t j = 0; j < count; ++j) {
        const double sj = r[packed(j, j)];
        for (std::size_t i = 0; i < j; ++i) {
            const double si = r[packed(i, i)];
            r[packed(i, j)] = (si == 0.0 || sj == 0.0) ? 0.0 : (r[packed(i, j)] * si) * sj;
        }
    }
    for (std::size_t j = 0; j < count; ++j) {
        double &d = r[packed(j, j)];
        d = d > 0.0 ? 1.0 : 0.0;
    }
    if (zero_variance) return core_exit(core, 2, kFaultSecondSize, 0, "0", ifail, fault);
    core_exit(core, 0, 0, 0, "", ifail, fault);
}

}  // namespace kiv::g02
