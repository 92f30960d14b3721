#include "trelvin/space_planes.h"

#include "entries/door.h"
#include "space/lines.h"
#include "space/planes.h"
#include "vectors/three_points.h"

using namespace trelvin;

namespace {

void write(const Plane &plane, TrvOut a, TrvOut b, TrvOut c, TrvOut d) {
  a = plane.a;
  b = plane.b;
  c = plane.c;
  d = plane.d;
}

}  // namespace

TRELVIN_ROUTINE trvplg(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn wx, TrvIn wy,
                       TrvIn wz, TrvOut a, TrvOut b, TrvOut c, TrvOut d) {
  const Door door;
  write(plane_along({x, y, z}, {ux, uy, uz}, {wx, wy, wz}), a, b, c, d);
}

TRELVIN_ROUTINE trvpl1(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status) {
  const Door door;
  const Point3 p0 = {x0, y0, z0};
  const Point3 p1 = {x1, y1, z1};
  const Point3 p2 = {x2, y2, z2};
  const ThreePoints place = relation_of_three_points(p0, p1, p2, retained.three_points);
  write(place == ThreePoints::span_plane ? plane_through(p0, p1, p2) : Plane{}, a, b, c, d);
  status = code_of(place);
}

TRELVIN_ROUTINE trvpl2(TrvIn x, TrvIn y, TrvIn z, TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb,
                       TrvIn zb, TrvIn xc, TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd,
                       TrvOut a, TrvOut b, TrvOut c, TrvOut d, TrvIntOut status) {
  const Door door;
  const SpaceLine first = {{xa, ya, za}, {xb, yb, zb}};
  const SpaceLine second = {{xc, yc, zc}, {xd, yd, zd}};
  const PlaneOfLines found = plane_parallel_to({x, y, z}, first, second, retained.three_points);
  write(found.plane.value_or(Plane{}), a, b, c, d);
  status = code_of(found.status);
}

TRELVIN_ROUTINE trvpl3(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvOut a, TrvOut b,
                       TrvOut c, TrvOut d, TrvIntOut status) {
  const Door door;
  const SpaceLine first = {{xa, ya, za}, {xb, yb, zb}};
  const SpaceLine second = {{xc, yc, zc}, {xd, yd, zd}};
  const PlaneOfLines found = plane_parallel_to(first.start, first, second, retained.three_points);
  write(found.plane.value_or(Plane{}), a, b, c, d);
  status = code_of(found.status);
}

TRELVIN_ROUTINE trvpl4(TrvIn x, TrvIn y, TrvIn z, TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb,
                       TrvIn zb, TrvOut a, TrvOut b, TrvOut c, TrvOut d, TrvIntOut status) {
  const Door door;
  const auto plane = plane_normal_to(Point3{xb, yb, zb} - Point3{xa, ya, za}, {x, y, z});
  write(plane.value_or(Plane{}), a, b, c, d);
  status = plane ? 0 : 1;
}

TRELVIN_ROUTINE trvpl5(TrvIn ix, TrvIn iy, TrvIn iz, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status) {
  const Door door;
  const auto plane = plane_with_intercepts(ix, iy, iz);
  write(plane.value_or(Plane{}), a, b, c, d);
  status = plane ? 0 : 1;
}

TRELVIN_ROUTINE trvpl6(TrvIn xa, TrvIn ya, TrvIn za, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn wx, TrvIn wy, TrvIn wz, TrvOut a, TrvOut b,
                       TrvOut c, TrvOut d, TrvIntOut status) {
  const Door door;
  const Point3 start = {xa, ya, za};
  const Point3 other = {xc, yc, zc};
  const PlaneOfLines found =
      plane_of_lines({start, start + Vector3{ux, uy, uz}}, {other, other + Vector3{wx, wy, wz}},
                     retained.three_points);
  if (found.plane) write(*found.plane, a, b, c, d);
  status = code_of(found.status);
}

TRELVIN_ROUTINE trvpl7(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn angle, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status) {
  const Door door;
  const Point3 p0 = {x0, y0, z0};
  const Point3 p1 = {x1, y1, z1};
  const Point3 p2 = {x2, y2, z2};
  const ThreePoints place = relation_of_three_points(p0, p1, p2, retained.three_points);
  if (place != ThreePoints::span_plane) {
    write(Plane{}, a, b, c, d);
    status = code_of(place);
    return;
  }
  const auto plane = turned_plane(p0, p1, p2, angle);
  write(plane.value_or(Plane{}), a, b, c, d);
  status = plane ? 0 : 1;
}

TRELVIN_ROUTINE trvpsp(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x, TrvIn y, TrvIn z, TrvIn tol, TrvIntOut status) {
  const Door door;
  const Point3 p0 = {x0, y0, z0};
  const Point3 p1 = {x1, y1, z1};
  const Point3 p2 = {x2, y2, z2};
  const bool on = span_plane(p0, p1, p2, retained.three_points) &&
                  within(tol, residual_with_d_second(plane_through(p0, p1, p2), {x, y, z}));
  status = on ? 0 : -1;
}

TRELVIN_ROUTINE trvpld(TrvIn x, TrvIn y, TrvIn z, TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut dist) {
  const Door door;
  dist = signed_distance(Plane{a, b, c, d}, {x, y, z});
}

TRELVIN_ROUTINE trvpspg(TrvIn x, TrvIn y, TrvIn z, TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvIn tol,
                        TrvIntOut status) {
  const Door door;
  const Plane plane = {a, b, c, d};
  if (is_zero(plane.normal())) {
    status = 1;
  } else {
    status = within(tol, signed_distance(plane, {x, y, z})) ? 0 : -1;
  }
}

TRELVIN_ROUTINE trvplv(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn wx, TrvIn wy, TrvIn wz, TrvIn /*v7*/,
                       TrvIn /*v8*/, TrvIntOut status) {
  const Door door;
  if (is_zero({ux, uy, uz})) {  // u alone: a zero w is left to the relation
    status = -1;
    return;
  }
  status = code_of(
      relation_of_lines({origin, {ux, uy, uz}}, {origin, {wx, wy, wz}}, retained.three_points));
}

TRELVIN_ROUTINE trvpnp(TrvArrayIn X, TrvArrayIn Y, TrvArrayIn Z, TrvIn a, TrvIn b, TrvIn c,
                       TrvInOut d, TrvIntIn n, TrvIntOut count, TrvIntArrayOut index) {
  const Door door;
  const Integer points = n;
  Plane plane = {a, b, c, d};
  count = positions_by_residual({X, Y, Z}, points, plane, index);
  if (points >= 1) d = plane.d;
}
