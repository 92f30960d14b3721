// Integrals over polygons, positive for a counter-clockwise outline; each is rounded once.
#pragma once

#include "properties/edge_sums.h"
#include "properties/moments.h"

namespace trelvin {

// Makes the element behind the last vertex the first one, which the integrals expect. Written for
// every n: one below 0 writes before the arrays.
inline void close_outline(PlaneArrays vertices, Integer n) { vertices.set(n, vertices[0]); }

inline Real area_of_polygon(PlaneArrays closed, Integer n) {
  return static_cast<Real>(area_sum(closed.x, closed.y, n).values[0] * 0.5);
}

inline FirstMoments first_moments_of_polygon(PlaneArrays closed, Integer n) {
  const FirstMomentSums sums = first_moment_sums(closed.x, closed.y, n);
  return {static_cast<Real>(sums.values[0] / 6), static_cast<Real>(sums.values[1] / 6)};
}

inline SecondMoments second_moments_of_polygon(PlaneArrays closed, Integer n) {
  const SecondMomentSums sums = second_moment_sums(closed.x, closed.y, n);
  return {static_cast<Real>(sums.values[0] / 12), static_cast<Real>(sums.values[1] / 12),
          static_cast<Real>(sums.values[2] / 24)};
}

}  // namespace trelvin
