// Where lines of space meet planes and each other.
#pragma once

#include "space/planes.h"
#include "vectors/angles.h"
#include "vectors/three_points.h"
#include "vectors/vectors.h"

namespace trelvin {

struct PlaneIntersection {
  DirectionRelation relation;  // of the line and the normal
  Point3 point;                // unless they are perpendicular, or one is null

  explicit operator bool() const {
    return relation != DirectionRelation::perpendicular && relation != DirectionRelation::null;
  }
};

inline PlaneIntersection intersect(Point3 p, Vector3 u, const Plane &plane) {
  PlaneIntersection found = {relation_of_directions(u, plane.normal()), {}};
  if (found) {
    const Real t = -residual(plane, p) / dot(plane.normal(), u);
    found.point = {p.x + u.x * t, p.y + u.y * t, p.z + u.z * t};
  }
  return found;
}

struct SpaceIntersection {
  PlaneOfLinesStatus status;
  Vector3 a, c;  // the lines' points, from the first of them
  Point3 point;

  explicit operator bool() const { return status == PlaneOfLinesStatus::done; }
};

// Intersection of the lines from a along u and from c along w. If they are parallel, the point is
// `instead`, in local coordinates.
SpaceIntersection intersect(Point3 a, Vector3 u, Point3 c, Vector3 w, Point2 instead,
                            LastCosine &last);

}  // namespace trelvin
