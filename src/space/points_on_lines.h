// Whether a point lies on a line of space.
#pragma once

#include "space/planes.h"
#include "vectors/vectors.h"

namespace trelvin {

// The line through p0 along d: which components of d count, and whether p is on it.
struct PointOnLine {
  Components counting;
  bool on;
};
PointOnLine point_on_line(Point3 p0, Vector3 d, Point3 p, Real tol);

// The station at which the line of two planes was met last. It can become infinite or NaN, and then
// stays so.
struct LastStation {
  Real x = 0, y = 0, z = 0;
};

// Direction of the line of two planes as far as it is computed: x, and y with its sign turned.
inline Vector2 direction_of_planes(const Plane &p, const Plane &q) {
  return {p.b * q.c - p.c * q.b, p.a * q.c - p.c * q.a};
}

// Whether p agrees with the line of two planes along e at the station of the call before, which
// gives way to what this call computes there.
bool agrees_at_last_station(const Plane &p1, const Plane &p2, Vector3 e, Point3 p, Real tol,
                            LastStation &last);

}  // namespace trelvin
