// Where a third point lies on the line of two others, if it does.
#pragma once

#include "vectors/angles.h"
#include "vectors/vectors.h"

namespace trelvin {

// The cosine that the three-point test found last; it decides again if a test finds none.
struct LastCosine {
  Real value = 0;
};

enum class ThreePoints : Integer {
  span_plane,
  at_first,
  at_second,
  between,
  beyond_first,
  beyond_second
};

inline ThreePoints relation_of_three_points(Point3 p0, Point3 p1, Point3 p2, LastCosine &last) {
  // A point that coincides with P0 or P1 by coordinates gives no cosine, but its distance may be above
  // the tolerance. The cosine of the last test then decides.
  if (!coincide(p0, p2) && !coincide(p1, p2)) last.value = cosine_between(p2 - p0, p2 - p1);
  const Real d0 = distance(p0, p2);
  const Real d1 = distance(p1, p2);
  if (d0 <= tolerance) return ThreePoints::at_first;
  if (d1 <= tolerance) return ThreePoints::at_second;
  if (negligible(last.value - 1)) {
    if (d0 > d1) return ThreePoints::beyond_second;
    if (d1 > d0) return ThreePoints::beyond_first;
  }
  return negligible(1 + last.value) ? ThreePoints::between : ThreePoints::span_plane;
}

inline bool span_plane(Point3 p0, Point3 p1, Point3 p2, LastCosine &last) {
  return relation_of_three_points(p0, p1, p2, last) == ThreePoints::span_plane;
}

}  // namespace trelvin
