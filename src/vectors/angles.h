// Angles between vectors.
#pragma once

#include <cmath>
#include <optional>

#include "numeric/functions.h"
#include "vectors/vectors.h"

namespace trelvin {

// In [0, pi], or 0 if a vector's length is negligible. The cosine is not clamped: NaN if rounding takes
// it beyond 1 or -1.
template <class Vector>
Real angle_between(Vector u, Vector v) {
  const Real length_u = length(u);
  const Real length_v = length(v);
  if (negligible(length_u) || negligible(length_v)) return 0;
  return arc_cosine(dot(u, v) / length_u / length_v);
}

// Angle between two lines by their directions, in [0, pi/2]; nothing if a length is negligible.
inline std::optional<Real> angle_of_lines(Vector3 u, Vector3 v) {
  const Real length_u = length(u);
  const Real length_v = length(v);
  if (negligible(length_u) || negligible(length_v)) return std::nullopt;
  return arc_cosine(std::fabs(dot(u, v)) / length_u / length_v);
}

inline Real cosine_between(Vector3 u, Vector3 v) { return dot(u, v) / length(u) / length(v); }
inline Real sine_between(Vector3 u, Vector3 v) {
  return length(cross(u, v)) / length(u) / length(v);
}

enum class DirectionRelation : Integer { oblique, same, opposite, perpendicular, null };

inline DirectionRelation relation_of_directions(Vector3 u, Vector3 v) {
  if (negligible(u) || negligible(v)) return DirectionRelation::null;
  const Real cosine = cosine_between(u, v);
  if (negligible(cosine)) return DirectionRelation::perpendicular;
  if (negligible(1 + cosine)) return DirectionRelation::opposite;
  if (negligible(cosine - 1)) return DirectionRelation::same;
  return DirectionRelation::oblique;
}

// Angle from the x axis, negative if y is significantly below 0.
inline Real angle_from_x_axis(Vector2 v) {
  const Real angle = angle_between(Vector2{1, 0}, v);
  return significant(v.y) ? angle * v.y / std::fabs(v.y) : angle;
}

// Directed angle from u to v in [0, 2*pi), counter-clockwise as seen against the normal u x v turned
// so that the first of its components y, z, x that counts is positive.
Real directed_angle(Point3 vertex, Point3 p1, Point3 p2);

}  // namespace trelvin
