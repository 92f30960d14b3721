// Closed outlines of the plane.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

// By its vertices, one after the other.
struct Outline {
  const Real *x, *y;
  Integer n;

  Point2 operator[](Integer i) const { return {x[i], y[i]}; }
  [[nodiscard]] Integer after(Integer i) const { return i + 1 < n ? i + 1 : 0; }
};

enum class Convexity : Integer { refused = -1, not_convex = 0, convex = 1 };

Convexity convexity(const Outline &outline);

}  // namespace trelvin
