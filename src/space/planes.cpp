#include "space/planes.h"

#include "space/frames.h"
#include "vectors/angles.h"
#include "vectors/turns.h"

namespace trelvin {
namespace {

PlaneOfLinesStatus status_of(SpaceLineRelation relation) {
  switch (relation) {
    case SpaceLineRelation::same:
      return PlaneOfLinesStatus::same_line;
    case SpaceLineRelation::same_opposite:
      return PlaneOfLinesStatus::same_line_opposite;
    case SpaceLineRelation::null:
      return PlaneOfLinesStatus::null;
    default:
      return PlaneOfLinesStatus::done;
  }
}

}  // namespace

std::optional<Plane> plane_with_intercepts(Real x, Real y, Real z) {
  if (significant(x) && significant(y) && significant(z)) return Plane{1 / x, 1 / y, 1 / z, -1};
  return std::nullopt;
}

std::optional<Plane> turned_plane(Point3 p0, Point3 p1, Point3 p2, Real angle) {
  Point3 normal = {0, 0, 1};
  turn_by(angle).apply(normal.y, normal.z);
  // By way of a second point, which rounds the normal to the digits of p0.
  const Point3 tip = p0 + frame_of_plane(p0, p1, p2).global(normal);
  return plane_normal_to(tip - p0, p0);
}

PlaneOfLines plane_parallel_to(Point3 p, const SpaceLine &first, const SpaceLine &second,
                               LastCosine &last) {
  const PlaneOfLinesStatus status = status_of(relation_of_lines(first, second, last));
  if (status != PlaneOfLinesStatus::done) return {status, std::nullopt};
  return {status, plane_along(p, first.along(), second.along())};
}

PlaneOfLines plane_of_lines(const SpaceLine &first, const SpaceLine &second, LastCosine &last) {
  const SpaceLineRelation relation = relation_of_lines(first, second, last);
  if (relation == SpaceLineRelation::skew) return {PlaneOfLinesStatus::skew, std::nullopt};
  if (status_of(relation) != PlaneOfLinesStatus::done) return {status_of(relation), std::nullopt};
  const auto [status, plane] = plane_parallel_to(first.start, first, second, last);
  return {status, plane.value_or(Plane{})};
}

PlaneRelation relation_of_planes(const Plane &p, const Plane &q) {
  const DirectionRelation normals = relation_of_directions(p.normal(), q.normal());
  if (normals == DirectionRelation::oblique) return PlaneRelation::crossing;
  if (normals == DirectionRelation::perpendicular) return PlaneRelation::perpendicular;
  if (normals == DirectionRelation::null) return PlaneRelation::null;
  // One component at least is significant, or the normals would not be parallel but null.
  Real k = 0;
  if (significant(q.a)) k = p.a / q.a;
  if (significant(q.b)) k = p.b / q.b;
  if (significant(q.c)) k = p.c / q.c;
  const Real kd = significant(q.d) ? p.d / q.d : 0;
  const bool distinct = significant(k - kd) && (significant(p.d) || significant(q.d));
  if (normals == DirectionRelation::same) {
    return distinct ? PlaneRelation::parallel : PlaneRelation::coincident;
  }
  return distinct ? PlaneRelation::parallel_opposite : PlaneRelation::coincident_opposite;
}

PlanePosition position_of_plane(const Plane &plane) {
  using P = PlanePosition;
  const bool a_zero = negligible(plane.a);
  const bool b_zero = negligible(plane.b);
  const bool c_zero = negligible(plane.c);
  const bool through_origin = negligible(plane.d);
  // A normal of zeros is taken as one along y.
  if (a_zero && c_zero) return through_origin ? P::normal_to_y_through_origin : P::normal_to_y;
  if (b_zero && c_zero) return through_origin ? P::normal_to_x_through_origin : P::normal_to_x;
  if (a_zero && b_zero) return through_origin ? P::normal_to_z_through_origin : P::normal_to_z;
  if (a_zero) return P::parallel_to_x;
  if (b_zero) return P::parallel_to_y;
  return c_zero ? P::parallel_to_z : P::general;
}

Integer positions_by_residual(const SpaceList &points, Integer n, Plane &plane,
                              Integer *positions) {
  Integer found = 0;
  for (Integer i = 0; i < n; ++i) {
    plane.d = plane.d + points.x[i] * plane.a + points.y[i] * plane.b + points.z[i] * plane.c;
    if (plane.d == 0) positions[found++] = i + 1;
  }
  return found;
}

}  // namespace trelvin
