#include "trelvin/plane.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "entries/door.h"
#include "numeric/tables.h"
#include "plane/lines.h"
#include "plane/outlines.h"
#include "space/planes.h"
#include "space/points_on_lines.h"
#include "vectors/angles.h"

using namespace trelvin;

/* Points and vectors ------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvpds(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut d) {
  const Door door;
  d = distance(Point3{x1, y1, z1}, Point3{x2, y2, z2});
}

TRELVIN_ROUTINE trvpri(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut s) {
  const Door door;
  s = dot(Point3{x2, y2, z2} - Point3{x1, y1, z1}, Point3{x4, y4, z4} - Point3{x3, y3, z3});
}

TRELVIN_ROUTINE trvpre(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvArrayOut c) {
  const Door door;
  const Vector3 product =
      cross(Point3{x2, y2, z2} - Point3{x1, y1, z1}, Point3{x4, y4, z4} - Point3{x3, y3, z3});
  write(product, c[0], c[1], c[2]);
}

TRELVIN_ROUTINE trvcnt(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut dx,
                       TrvOut dy, TrvOut dz, TrvIntOut status) {
  const Door door;
  const Vector3 difference = Point3{x2, y2, z2} - Point3{x1, y1, z1};
  write(difference, dx, dy, dz);
  status = negligible(difference) ? 1 : 0;
}

TRELVIN_ROUTINE trvcnt1(TrvIn dx, TrvIn dy, TrvIn dz, TrvIntOut status) {
  const Door door;
  status = is_zero(Vector3{dx, dy, dz}) ? 1 : 0;
}

TRELVIN_ROUTINE trv123(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn t,
                       TrvOut x, TrvOut y, TrvOut z, TrvIntOut status) {
  const Door door;
  const auto point = point_along(Point3{x1, y1, z1}, Point3{x2, y2, z2}, t);
  status = point ? 0 : 1;
  if (point) write(*point, x, y, z);
}

TRELVIN_ROUTINE trvmed(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut xm,
                       TrvOut ym, TrvOut zm) {
  const Door door;
  write(midpoint(Point3{x1, y1, z1}, Point3{x2, y2, z2}), xm, ym, zm);
}

TRELVIN_ROUTINE trvdtr2(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut det) {
  const Door door;
  det = determinant(a, b, c, d);
}

TRELVIN_ROUTINE trvdtr3(TrvIn a1, TrvIn a2, TrvIn a3, TrvIn b1, TrvIn b2, TrvIn b3, TrvIn c1,
                        TrvIn c2, TrvIn c3, TrvOut det) {
  const Door door;
  det = determinant({a1, a2, a3}, {b1, b2, b3}, {c1, c2, c3});
}

TRELVIN_ROUTINE trvgrc(TrvIn a, TrvIn b, TrvIn c, TrvOut q1, TrvOut q2) {
  const Door door;
  const bool divides = significant(a);
  const Real last = divides ? c / a : 0;
  const Real middle = divides ? b / a : 0;
  q1 = last;
  q2 = middle;
}

TRELVIN_ROUTINE trvint(TrvIn x1, TrvIn x2, TrvIn y1, TrvIn y2, TrvIn x, TrvOut y) {
  const Door door;
  y = interpolate(x1, x2, y1, y2, x);
}

TRELVIN_ROUTINE trvvin(TrvIn /*u1*/, TrvIn v, TrvIn /*u3*/, TrvIn /*u4*/, TrvIn /*u5*/,
                       TrvIntOut status) {
  const Door door;
  status = v > 0 ? 1 : 2;
}

TRELVIN_ROUTINE trvpos(TrvIntIn n, TrvArrayIn A, TrvIn x, TrvIntOut i) {
  const Door door;
  i = interval_of(A, n, x);
}

TRELVIN_ROUTINE trvpos1(TrvIntIn n, TrvArrayIn A, TrvIn x, TrvIntOut status, TrvIntOut i) {
  const Door door;
  const TablePlace place = place_in_table(A, n, x);
  status = code_of(place.match);
  i = place.position;
}

/* Straight lines ----------------------------------------------------------------------------- */

namespace {

void write(const Line &line, TrvOut a, TrvOut b, TrvOut c) {
  a = line.a;
  b = line.b;
  c = line.c;
}

}  // namespace

TRELVIN_ROUTINE trvln3(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut a, TrvOut b, TrvOut c) {
  const Door door;
  write(line_through({x1, y1}, {x2, y2}), a, b, c);
}

TRELVIN_ROUTINE trvln1(TrvIn x0, TrvIn y0, TrvIn phi, TrvOut a, TrvOut b, TrvOut c) {
  const Door door;
  write(line_at_angle({x0, y0}, phi), a, b, c);
}

TRELVIN_ROUTINE trvln4(TrvIn x0, TrvIn y0, TrvIn dx, TrvIn dy, TrvIn /*u*/, TrvOut a, TrvOut b,
                       TrvOut c) {
  const Door door;
  write(line_along({x0, y0}, {dx, dy}), a, b, c);
}

TRELVIN_ROUTINE trvln2(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut a2, TrvOut b2, TrvOut c2) {
  const Door door;
  write(parallel_at({a, b, c}, d), a2, b2, c2);
}

TRELVIN_ROUTINE trvln5(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut a,
                       TrvOut b, TrvOut c) {
  const Door door;
  write(bisector({x0, y0}, {x1, y1}, {x2, y2}), a, b, c);
}

TRELVIN_ROUTINE trvlds(TrvIn x, TrvIn y, TrvIn a, TrvIn b, TrvIn c, TrvOut d) {
  const Door door;
  d = signed_distance(Line{a, b, c}, {x, y});
}

TRELVIN_ROUTINE trvlni(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn a2, TrvIn b2, TrvIn c2, TrvIntOut status,
                       TrvOut x, TrvOut y) {
  const Door door;
  const LineIntersection crossing = intersect({a1, b1, c1}, {a2, b2, c2});
  status = code_of(crossing.relation);
  if (crossing) write(crossing.point, x, y);
}

TRELVIN_ROUTINE trvlul(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn a2, TrvIn b2, TrvIn c2, TrvOut d,
                       TrvIntOut status) {
  const Door door;
  const Line l = {a1, b1, c1};
  const Line m = {a2, b2, c2};
  const LineRelation relation = intersect(l, m).relation;
  if (relation == LineRelation::same) d = 0;
  if (relation == LineRelation::parallel) d = distance_of_parallels(l, m);
  status = code_of(relation);
}

TRELVIN_ROUTINE trvpsn(TrvIn p1, TrvIn p2, TrvIn p3, TrvIn q1, TrvIn q2, TrvIn q3, TrvIntOut code) {
  const Door door;
  code = code_of(significant_components(Point3{q1, q2, q3} - Point3{p1, p2, p3}));
}

TRELVIN_ROUTINE trvln6(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn px,
                       TrvIn py, TrvIn pz, TrvIn tol, TrvIntOut code, TrvIntOut on) {
  const Door door;
  const PointOnLine found = point_on_line({x0, y0, z0}, {dx, dy, dz}, {px, py, pz}, tol);
  code = code_of(found.counting);
  on = found.on ? 1 : 0;
}

TRELVIN_ROUTINE trvln7(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn d1, TrvIn a2, TrvIn b2, TrvIn c2,
                       TrvIn d2, TrvIn px, TrvIn py, TrvIn pz, TrvOut ex, TrvOut ey, TrvIn ez,
                       TrvIn tol, TrvIntOut code, TrvIntOut on) {
  const Door door;
  const Plane p1 = {a1, b1, c1, d1};
  const Plane p2 = {a2, b2, c2, d2};
  const Vector2 known = direction_of_planes(p1, p2);
  const Vector3 e = {known.x, known.y, ez};
  const bool agrees = agrees_at_last_station(p1, p2, e, {px, py, pz}, tol, retained.line_of_planes);
  ex = e.x;
  ey = e.y;
  code = code_of(significant_components(e));
  on = agrees ? 1 : 0;
}

/* Angles and directions ---------------------------------------------------------------------- */

TRELVIN_ROUTINE trvphi(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut phi) {
  const Door door;
  const Point2 vertex = {x0, y0};
  phi = angle_between(Point2{x1, y1} - vertex, Point2{x2, y2} - vertex);
}

TRELVIN_ROUTINE trvphi3(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                        TrvIn y2, TrvIn z2, TrvOut phi) {
  const Door door;
  const Point3 vertex = {x0, y0, z0};
  phi = angle_between(Point3{x1, y1, z1} - vertex, Point3{x2, y2, z2} - vertex);
}

TRELVIN_ROUTINE trvphi1(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvOut phi) {
  const Door door;
  phi = angle_between(Vector3{ux, uy, uz}, Vector3{vx, vy, vz});
}

TRELVIN_ROUTINE trvphip(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvOut phi,
                        TrvIntOut status) {
  const Door door;
  const auto angle = angle_of_lines({ux, uy, uz}, {vx, vy, vz});
  if (angle) {
    phi = *angle;
  } else {
    status = -1;
  }
}

TRELVIN_ROUTINE trvchi(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut chi, TrvIntOut status) {
  const Door door;
  const Point3 vertex = {x0, y0, z0};
  const Point3 p1 = {x1, y1, z1};
  const Point3 p2 = {x2, y2, z2};
  const bool refused = coincide(vertex, p1) || coincide(vertex, p2);
  if (!refused) chi = directed_angle(vertex, p1, p2);
  status = refused ? 1 : 0;
}

TRELVIN_ROUTINE trvcnv(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIntOut status) {
  const Door door;
  status = code_of(convexity({X, Y, n}));
}

TRELVIN_ROUTINE trvtrg(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut cphi, TrvOut sphi,
                       TrvIntOut status) {
  const Door door;
  const Vector3 u = Point3{x2, y2, z2} - Point3{x1, y1, z1};
  const Vector3 v = Point3{x4, y4, z4} - Point3{x3, y3, z3};
  if (negligible(u) || negligible(v)) {
    status = 1;
    return;
  }
  cphi = cosine_between(u, v);
  sphi = sine_between(u, v);
  status = 0;
}

TRELVIN_ROUTINE trvdir(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvIntOut code) {
  const Door door;
  code = code_of(relation_of_directions({ux, uy, uz}, {vx, vy, vz}));
}

TRELVIN_ROUTINE trvdirp(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn d1, TrvIn a2, TrvIn b2, TrvIn c2,
                        TrvIn d2, TrvIntOut code) {
  const Door door;
  code = code_of(relation_of_planes({a1, b1, c1, d1}, {a2, b2, c2, d2}));
}

TRELVIN_ROUTINE trvmov(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut ax, TrvOut ay,
                       TrvOut az) {
  const Door door;
  const Vector3 u = Point3{x2, y2, z2} - Point3{x1, y1, z1};
  const Vector3 v = Point3{x4, y4, z4} - Point3{x3, y3, z3};
  ax = angle_between(Vector2{u.y, u.z}, Vector2{v.y, v.z});
  ay = angle_between(Vector2{u.x, u.z}, Vector2{v.x, v.z});
  az = angle_between(Vector2{u.x, u.y}, Vector2{v.x, v.y});
}

TRELVIN_ROUTINE trvtra(TrvArrayInOut X, TrvArrayInOut Y, TrvIntIn n, TrvIn x0, TrvIn y0) {
  const Door door;
  move_origin(PlaneArrays{X, Y}, n, Vector2{x0, y0});
}

/* Arrays ------------------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvinv(TrvIntArrayInOut V, TrvIntIn n) {
  const Door door;
  const Integer size = n;  // which may be an element of the list
  if (size > 1) std::reverse(V, V + size);
}

TRELVIN_ROUTINE trvadr(TrvIntArrayInOut V, TrvIntInOut n, TrvIntIn k, TrvIntArrayIn A, TrvIntIn m) {
  const Door door;
  const Integer size = n;
  const Integer place = k;
  const Integer more = m;
  if (place < 0 || place > size || more < 1) return;
  const auto bytes = [](Integer elements) {
    return static_cast<std::size_t>(elements) * sizeof(Integer);
  };
  std::memmove(V + place + more, V + place, bytes(size - place));
  std::memmove(V + place, A, bytes(more));
  n = size + more;
}
