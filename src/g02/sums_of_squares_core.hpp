// Computational cores of the sums-of-squares routines, with the error-flag
// interface: an integer failure indicator (in: 1, quiet soft failure; out:
// 0 on success, else the failure number) and a fault text of at least
// kFaultLength characters, "<core> <indicator> <identifier> <integer>
// <value>" (see sums_of_squares_core.cpp), which the front ends in
// sums_of_squares.cpp translate into their own messages.
#pragma once

#include "kiv.h"

namespace kiv::g02 {

constexpr int kFaultLength = 200;

// Fault identifiers written by the cores.
enum CoreFault : int {
    kFaultWeight = 99994,        // buz: a negative weight (integer: its index)
    kFaultIncrement = 99995,     // btz: incx < 1
    kFaultModeLetter = 99996,    // btz, buz: mean letter not M/m/Z/z
    kFaultStride = 99997,        // buz: ldx < n (integer: ldx, value: n)
    kFaultSumWeight = 99997,     // btz: sw + wt < 0
    kFaultSumOfWeights = 99998,  // btz: sw < 0
    kFaultSecondSize = 99998,    // buz: m < 1; bwz: a zero variance
    kFaultFirstSize = 99999,     // btz, bwz: m < 1; buz: n < 1
};

// Updates sw, xbar and the packed sums of squares c by one observation x
// (element j at x[j*incx]) of weight wt; mean 'M' about the mean, 'Z'
// about zero.
void g02btz(char mean, int m, double wt, const double *x, int incx, double *sw, double *xbar,
            double *c, int *ifail, char *fault, int fault_length);

// Weight sum, weighted means and packed sums of squares and cross-products
// of n observations of m variables stored by columns (element (i, j) at
// x[j*ldx + i]); wt may be null (all weights 1).
void g02buz(char mean, int n, int m, const double *x, int ldx, const double *wt, double *sw,
            double *wmean, double *c, int *ifail, char *fault, int fault_length);

// Packed sums of squares to correlations, in place.
void g02bwz(int m, double *r, int *ifail, char *fault, int fault_length);

// Front-end translation of a core's fault: for a known identifier, reports
// the routine's own message (with the integer field and value text read
// from the fault) and returns true; false for an unknown identifier.
using FaultTranslator = bool (*)(KivError *fail, int identifier, int integer, const char *value);

// Stores the indicator in fail->errnum, parses the fault text and reports
// the translation, or NE_INTERNAL_ERROR when the text does not parse or the
// identifier has no translation.
void report_core_fault(KivError *fail, const char *routine, int indicator, const char *fault,
                       FaultTranslator translate);

}  // namespace kiv::g02
