// Planes of space, as the coefficients of a*x + b*y + c*z + d = 0; the normal (a, b, c) is as long as
// the construction makes it.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

struct Plane {
  Real a, b, c, d;
  [[nodiscard]] Vector3 normal() const { return {a, b, c}; }
};

enum class PlaneRelation : Integer {
  crossing,
  parallel,
  parallel_opposite,
  coincident,
  coincident_opposite,
  perpendicular,
  null
};

PlaneRelation relation_of_planes(const Plane &p, const Plane &q);

}  // namespace trelvin
