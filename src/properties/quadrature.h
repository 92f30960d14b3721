// Integrals of sampled functions.
#pragma once

#include "numeric/real.h"

namespace trelvin {

// The trapezoidal rule over equal steps, but the last interior sample stays out of the sum.
inline Real integral_by_trapezoids(const Real *f, Integer n, Real a, Real b) {
  const Real h = (b - a) / static_cast<Real>(n - 1);
  Real sum = (f[0] + f[n - 1]) * 0.5F;
  for (Integer i = 2; i <= n - 2; ++i) sum += f[i - 1];
  return h * sum;
}

}  // namespace trelvin
