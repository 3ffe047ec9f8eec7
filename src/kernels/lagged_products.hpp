// Lagged products of a series of deviations (see lagged_products.cpp).
#pragma once

#include <cstddef>

namespace kiv::kernels {

// c[k-1] = sum_{t=0}^{n-k-1} dev[t + k] dev[t] for k = 1..nk, the fastest
// path the processor allows; the same bits as lagged_products_portable.
void lagged_products(const double *dev, std::size_t n, std::size_t nk, double *c);
void lagged_products_portable(const double *dev, std::size_t n, std::size_t nk, double *c);

}  // namespace kiv::kernels
