#include "sections/figures.h"

#include <algorithm>
#include <cmath>

#include "numeric/functions.h"

namespace trelvin {

PrincipalAxes principal_axes(double Ix, double Iy, double Ixy) {
  // Sums that should cancel leave some rounding, which must not turn the axes.
  const double rounding = 1e-8 * (Ix + Iy);
  if (!(std::fabs(Ixy) > rounding)) return {Ix, Iy, 0};

  const double d = Iy - Ix;
  const double greater = (Ix + Iy) / 2 + std::sqrt(d * d / 4 + Ixy * Ixy);
  // For a slender section the difference of mean and radius would lose most digits.
  const double smaller = std::max((Ix * Iy - Ixy * Ixy) / greater, 0.0);
  const bool equal = std::fabs(d) <= rounding;
  const double alpha =
      equal ? full_turn / 8 : arc_tangent(d < 0 ? -2 * Ixy : 2 * Ixy, std::fabs(d)) / 2;
  const bool first_is_greater = equal ? Ixy < 0 : d < 0;
  if (first_is_greater) return {greater, smaller, alpha};
  return {smaller, greater, alpha};
}

}  // namespace trelvin
