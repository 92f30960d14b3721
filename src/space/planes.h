// Planes of space, as the coefficients of a*x + b*y + c*z + d = 0; the normal (a, b, c) is as long
// as the construction makes it.
#pragma once

#include <optional>

#include "space/lines.h"
#include "vectors/three_points.h"
#include "vectors/vectors.h"

namespace trelvin {

struct Plane {
  Real a, b, c, d;
  [[nodiscard]] Vector3 normal() const { return {a, b, c}; }
};

// Plane through p along u and w; all zeros if these are parallel.
inline Plane plane_along(Point3 p, Vector3 u, Vector3 w) {
  const Real yz = determinant(u.y, u.z, w.y, w.z);
  const Real xz = determinant(u.x, u.z, w.x, w.z);
  const Real xy = determinant(u.x, u.y, w.x, w.y);
  return {yz, -xz, xy, -(yz * p.x - xz * p.y + xy * p.z)};
}

inline Plane plane_through(Point3 p0, Point3 p1, Point3 p2) {
  return plane_along(p0, p1 - p0, p2 - p0);
}

inline std::optional<Plane> plane_normal_to(Vector3 normal, Point3 p) {
  if (negligible(normal)) return std::nullopt;
  return Plane{normal.x, normal.y, normal.z, -normal.x * p.x - normal.y * p.y - normal.z * p.z};
}

std::optional<Plane> plane_with_intercepts(Real x, Real y, Real z);

// The plane of three points that span one, rotated about the line of the first two.
std::optional<Plane> turned_plane(Point3 p0, Point3 p1, Point3 p2, Real angle);

enum class PlaneOfLinesStatus : Integer { done, same_line = 3, same_line_opposite, skew = 6, null };

struct PlaneOfLines {
  PlaneOfLinesStatus status;
  std::optional<Plane> plane;
};

// Through p, parallel to two lines, which may be skew.
PlaneOfLines plane_parallel_to(Point3 p, const SpaceLine &first, const SpaceLine &second,
                               LastCosine &last);

// The plane of two lines. Their relation is determined twice. If only the second time finds the same
// line, the result is that status with a plane of zeros.
PlaneOfLines plane_of_lines(const SpaceLine &first, const SpaceLine &second, LastCosine &last);

// The residual of a point in two groupings, whose last digits differ.
inline Real residual(const Plane &plane, Point3 p) {
  return plane.a * p.x + plane.b * p.y + plane.c * p.z + plane.d;
}
inline Real residual_with_d_second(const Plane &plane, Point3 p) {
  return plane.a * p.x + plane.d + plane.b * p.y + plane.c * p.z;
}

struct SpaceList {
  const Real *x, *y, *z;
};

// Positions, from 1, of the points at which the residual is exactly zero. The plane's d is the
// residual: it runs on from point to point and is left as the last one. Gives how many there are.
Integer positions_by_residual(const SpaceList &points, Integer n, Plane &plane, Integer *positions);

// Positive on the side that the normal points to.
inline Real signed_distance(const Plane &plane, Point3 p) {
  return residual(plane, p) / length(plane.normal());
}

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

enum class PlanePosition : Integer {
  general = 1,
  parallel_to_x,
  parallel_to_y,
  parallel_to_z,
  normal_to_z,
  normal_to_x,
  normal_to_y,
  normal_to_z_through_origin,
  normal_to_x_through_origin,
  normal_to_y_through_origin
};

PlanePosition position_of_plane(const Plane &plane);

}  // namespace trelvin
