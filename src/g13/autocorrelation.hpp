// Kernels of the autocorrelation routine g13abc, visible to the tests.
#pragma once

#include <cstddef>

namespace kiv::g13 {

// Mean and sum of squared deviations of x[0..n-1] (n >= 1) in one pass by
// updating (Welford / West).
void mean_and_sum_of_squares(const double *x, std::size_t n, double *mean, double *sum_squares);

// c[k-1] = sum_{i=0}^{n-k-1} dev[i+k] * dev[i] for k = 1 ... nk (nk < n),
// each summed in increasing i with a single accumulator.
// Uses four-lane vectors where the processor has them (x86-64 with AVX).
void lagged_products(const double *dev, std::size_t n, std::size_t nk, double *c);

// The same with two-lane vectors only (SSE2 or NEON), for every processor.
void lagged_products_portable(const double *dev, std::size_t n, std::size_t nk, double *c);

// The computation of g13abc without its argument checks and reports (the
// arguments already checked): ok, no_memory (the work array), or constant
// (a variance at or below 4 eps^2: r and stat undefined; xm and xv set).
enum class AutocorrelationStatus { ok, no_memory, constant };
AutocorrelationStatus autocorrelations(const double *x, int nx, int nk, double *xm, double *xv,
                                       double *r, double *stat);

}  // namespace kiv::g13
