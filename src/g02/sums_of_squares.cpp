// Front ends of the layered sums-of-squares routines:
//   g02btc  update weighted means and packed sums of squares and
//           cross-products by one observation (add, or remove with a
//           negative weight);
//   g02buc  weighted means and packed sums of squares and cross-products of
//           a whole data matrix stored by rows or by columns;
//   g02bwc  packed sums of squares and cross-products to correlations.
// Each checks its enumerations and pointers, calls its computational core
// (sums_of_squares_core.cpp, where the mathematics and the choices for the
// open cases are described) with a failure indicator of 1 and a fault text
// of 200 characters, and translates a failure back into its own message:
// the text is read with "%6s %d %d" (core, indicator, identifier) and
// "%6s %d %d %d %19s" (plus an integer and the offending value as text).
// The indicator is kept in fail->errnum.
#include <cstdio>

#include "g02/sums_of_squares_core.hpp"
#include "kiv.h"
#include "runtime/checks.hpp"
#include "runtime/report.hpp"
#include "runtime/workspace.hpp"

namespace kiv::g02 {

void report_core_fault(KivError *fail, const char *routine, int indicator, const char *fault,
                       FaultTranslator translate) {
    if (fail != nullptr) fail->errnum = indicator;
    char core[7];
    int failure = 0, identifier = 0, integer = 0;
    char value[20];
    if (std::sscanf(fault, "%6s %d %d", core, &failure, &identifier) < 3 ||
        std::sscanf(fault, "%6s %d %d %d %19s", core, &failure, &identifier, &integer, value) < 5) {
        rt::report_code(fail, routine, NE_INTERNAL_ERROR);
        return;
    }
    if (!translate(fail, identifier, integer, value))
        rt::report_template(fail, routine, NE_INTERNAL_ERROR, identifier);
}

}  // namespace kiv::g02

namespace {

constexpr const char *kUpdate = "g02btc";
constexpr const char *kMatrix = "g02buc";
constexpr const char *kScale = "g02bwc";

bool translate_update(KivError *fail, int identifier, int, const char *value) {
    using namespace kiv::g02;
    switch (identifier) {
        case kFaultIncrement:
            kiv::rt::report_text(fail, kUpdate, NE_INT,
                                 "NE_INT:\n    On entry, incx = %s.\nConstraint: incx >= 1.",
                                 value);
            return true;
        case kFaultSumWeight:
            kiv::rt::report_text(fail, kUpdate, NE_SUM_WEIGHT,
                                 "NE_SUM_WEIGHT:\n    On entry, (*sw+wt) < 0.0: (*sw+wt) = %s.",
                                 value);
            return true;
        case kFaultSumOfWeights:
            kiv::rt::report_text(fail, kUpdate, NE_REAL,
                                 "NE_REAL:\n    On entry, *sw = %s.\nConstraint: *sw >= 0.0.",
                                 value);
            return true;
        case kFaultFirstSize:
            kiv::rt::report_text(fail, kUpdate, NE_INT,
                                 "NE_INT:\n    On entry, m = %s.\nConstraint: m >= 1.", value);
            return true;
        default:
            return false;
    }
}

bool translate_matrix(KivError *fail, int identifier, int integer, const char *value) {
    using namespace kiv::g02;
    switch (identifier) {
        case kFaultWeight:
            kiv::rt::report_text(fail, kMatrix, NE_REAL_ARRAY_ELEM_CONS,
                                 "NE_REAL_ARRAY_ELEM_CONS:\n    On entry, wt[%ld] < 0.0.",
                                 static_cast<long>(integer));
            return true;
        case kFaultStride: {
            char stride[16];
            std::snprintf(stride, sizeof stride, "%d", integer);
            kiv::rt::report_text(
                fail, kMatrix, NE_INT_2,
                "NE_INT_2:\n    On entry, pdx = %s, n = %s.\nConstraint: pdx >= n.", stride, value);
            return true;
        }
        case kFaultSecondSize:
            kiv::rt::report_text(fail, kMatrix, NE_INT,
                                 "NE_INT:\n    On entry, m = %s.\nConstraint: m >= 1.", value);
            return true;
        case kFaultFirstSize:
            kiv::rt::report_text(fail, kMatrix, NE_INT,
                                 "NE_INT:\n    On entry, n = %s.\nConstraint: n >= 1.", value);
            return true;
        default:
            return false;
    }
}

bool translate_scale(KivError *fail, int identifier, int, const char *value) {
    using namespace kiv::g02;
    switch (identifier) {
        case kFaultFirstSize:
            kiv::rt::report_text(fail, kScale, NE_INT,
                                 "NE_INT:\n    On entry, m = %s.\nConstraint: m >= 1.", value);
            return true;
        case kFaultSecondSize:
            kiv::rt::report_text(fail, kScale, NE_ZERO_VARIANCE,
                                 "NE_ZERO_VARIANCE:\n    On entry, a variable has zero variance.");
            return true;
        default:
            return false;
    }
}

// The core's letter for the sum-of-squares mode, or 0 for a bad value.
char mode_letter(Kiv_SumSquare mean) {
    if (mean == Kiv_AboutMean) return 'M';
    if (mean == Kiv_AboutZero) return 'Z';
    return 0;
}

// Reports the core's outcome: its fault, or success.
void finish(KivError *fail, const char *routine, int indicator, const char *fault,
            kiv::g02::FaultTranslator translate) {
    if (indicator != 0) {
        kiv::g02::report_core_fault(fail, routine, indicator, fault, translate);
        return;
    }
    kiv::rt::report_success(fail, routine);
}

}  // namespace

extern "C" {

KIV_API void g02btc(Kiv_SumSquare mean, int m, double wt, const double x[], int incx, double *sw,
                    double xbar[], double c[], KivError *fail) {
    namespace g02 = kiv::g02;
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, kUpdate);
    const char letter = mode_letter(mean);
    if (letter == 0) return kiv::rt::report_template(fail, kUpdate, NE_BAD_PARAM, "mean");
    if (!check.given("x", x) || !check.given("sw", sw) || !check.given("xbar", xbar) ||
        !check.given("c", c))
        return;
    int indicator = 1;
    char fault[g02::kFaultLength] = "";
    g02::g02btz(letter, m, wt, x, incx, sw, xbar, c, &indicator, fault, g02::kFaultLength);
    finish(fail, kUpdate, indicator, fault, translate_update);
}

KIV_API void g02buc(Kiv_SumSquare mean, Kiv_OrderType order, int n, int m, const double x[],
                    int pdx, const double wt[], double *sw, double wmean[], double c[],
                    KivError *fail) {
    namespace g02 = kiv::g02;
    using kiv::rt::report_template;
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, kMatrix);
    const char letter = mode_letter(mean);
    const bool by_rows = order == Kiv_RowMajor;
    if (letter == 0) return report_template(fail, kMatrix, NE_BAD_PARAM, "mean");
    if (!by_rows && order != Kiv_ColMajor)
        return report_template(fail, kMatrix, NE_BAD_PARAM, "order");
    if (m < 1) return report_template(fail, kMatrix, NE_INT, "m", static_cast<long>(m), "m >= 1");
    if (n < 1) return report_template(fail, kMatrix, NE_INT, "n", static_cast<long>(n), "n >= 1");
    if (pdx <= 0)
        return report_template(fail, kMatrix, NE_INT, "pdx", static_cast<long>(pdx), "pdx > 0");
    if (by_rows && pdx < m)
        return report_template(fail, kMatrix, NE_INT_2, "pdx", static_cast<long>(pdx), "m",
                               static_cast<long>(m), "pdx>=m");
    if (!check.given("x", x) || !check.given("sw", sw) || !check.given("wmean", wmean) ||
        !check.given("c", c))
        return;

    auto run_core = [&](const double *by_columns, int leading) {
        int indicator = 1;
        char fault[g02::kFaultLength] = "";
        g02::g02buz(letter, n, m, by_columns, leading, wt, sw, wmean, c, &indicator, fault,
                    g02::kFaultLength);
        finish(fail, kMatrix, indicator, fault, translate_matrix);
    };
    if (!by_rows) return run_core(x, pdx);
    // Data stored by rows are copied by columns for the core.
    kiv::rt::WorkArray<double> columns(kiv::rt::checked_count(n, m));
    if (!columns.ok()) return kiv::rt::report_code(fail, kMatrix, NE_ALLOC_FAIL);
    const std::size_t rows = static_cast<std::size_t>(n), stride = static_cast<std::size_t>(pdx);
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < static_cast<std::size_t>(m); ++j)
            columns[j * rows + i] = x[i * stride + j];
    run_core(columns.get(), n);
}

KIV_API void g02bwc(int m, double r[], KivError *fail) {
    namespace g02 = kiv::g02;
    if (!kiv::rt::licence_check()) return;
    kiv::rt::clear_code(fail);
    const kiv::rt::Checks check(fail, kScale);
    if (!check.given("r", r)) return;
    int indicator = 1;
    char fault[g02::kFaultLength] = "";
    g02::g02bwz(m, r, &indicator, fault, g02::kFaultLength);
    finish(fail, kScale, indicator, fault, translate_scale);
}

}  // extern "C"
