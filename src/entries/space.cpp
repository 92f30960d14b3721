#include "trelvin/space.h"

#include "entries/door.h"
#include "space/frames.h"
#include "space/intersections.h"
#include "space/lines.h"
#include "space/planes.h"
#include "space/rotations.h"
#include "space/transformations.h"
#include "vectors/three_points.h"
#include "vectors/transforms.h"

using namespace trelvin;

/* Rotations ---------------------------------------------------------------------------------- */

namespace {

// Mode 1 turns back.
Turn turn_of(Integer mode, Real angle) {
  const Turn forward = turn_by(angle);
  return mode == 1 ? forward.back() : forward;
}

}  // namespace

TRELVIN_ROUTINE trvrot(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIn angle) {
  const Door door;
  turn({x, y}, n, turn_of(mode, angle));
}

TRELVIN_ROUTINE trvrotx(TrvIntIn mode, TrvArrayIn /*x*/, TrvArrayInOut y, TrvArrayInOut z,
                        TrvIntIn n, TrvIn angle) {
  const Door door;
  turn({y, z}, n, turn_of(mode, angle));
}

TRELVIN_ROUTINE trvroty(TrvIntIn mode, TrvArrayInOut x, TrvArrayIn /*y*/, TrvArrayInOut z,
                        TrvIntIn n, TrvIn angle) {
  const Door door;
  turn({x, z}, n, turn_of(mode, angle));  // x towards z, not z towards x: unlike its sisters
}

TRELVIN_ROUTINE trvrotz(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvArrayIn /*z*/,
                        TrvIntIn n, TrvIn angle) {
  const Door door;
  turn({x, y}, n, turn_of(mode, angle));
}

/* Frames and transformations ----------------------------------------------------------------- */

TRELVIN_ROUTINE trvpsl(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIntOut status) {
  const Door door;
  status = code_of(
      relation_of_three_points({x0, y0, z0}, {x1, y1, z1}, {x2, y2, z2}, retained.three_points));
}

TRELVIN_ROUTINE trv3tra(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn dx,
                        TrvIn dy, TrvIn dz) {
  const Door door;
  move_origin(SpaceArrays{X, Y, Z}, n, Vector3{dx, dy, dz});
}

TRELVIN_ROUTINE trvtrn(TrvArrayInOut p, TrvIn a1, TrvIn a2, TrvIn a3, TrvIn a4, TrvIn a5, TrvIn a6,
                       TrvIn a7, TrvIn a8, TrvIn a9, TrvIntIn mode) {
  const Door door;
  const Frame frame = {{a1, a2, a3}, {a4, a5, a6}, {a7, a8, a9}};
  if (mode == 1) {
    write(frame.global({p[0], p[1], p[2]}), p[0], p[1], p[2]);
  } else {
    write(frame.local({p[0], p[1], p[2]}), p[0], p[1], p[2]);
  }
}

TRELVIN_ROUTINE trvaxe(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut e1x, TrvOut e1y, TrvOut e1z, TrvOut e2x,
                       TrvOut e2y, TrvOut e2z, TrvOut e3x, TrvOut e3y, TrvOut e3z,
                       TrvIntOut status) {
  const Door door;
  const auto frame =
      frame_of_points({x0, y0, z0}, {x1, y1, z1}, {x2, y2, z2}, retained.three_points);
  const auto [e1, e2, e3] = frame.value_or(Frame{});
  write(e1, e1x, e1y, e1z);
  write(e2, e2x, e2y, e2z);
  write(e3, e3x, e3y, e3z);
  status = frame ? 0 : -2;
}

TRELVIN_ROUTINE trvaxel(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn angle,
                        TrvOut e1x, TrvOut e1y, TrvOut e1z, TrvOut e2x, TrvOut e2y, TrvOut e2z,
                        TrvOut e3x, TrvOut e3y, TrvOut e3z, TrvIntOut status) {
  const Door door;
  const auto frame = frame_of_axis({x0, y0, z0}, {x1, y1, z1}, turn_by(angle));
  const auto [e1, e2, e3] = frame.value_or(Frame{});
  write(e1, e1x, e1y, e1z);
  write(e2, e2x, e2y, e2z);
  write(e3, e3x, e3y, e3z);
  status = frame ? 0 : -2;
}

TRELVIN_ROUTINE trvptr(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn x0,
                       TrvIn y0, TrvIn z0, TrvIn ax, TrvIn ay, TrvIn az) {
  const Door door;
  shift_and_turn({X, Y, Z}, n, {x0, y0, z0}, {ax, ay, az});
}

TRELVIN_ROUTINE trvptrl(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                        TrvIn y2, TrvIn z2, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                        TrvIntIn n, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay, TrvIn az,
                        TrvIntOut status) {
  const Door door;
  const Point3 p0 = {x0, y0, z0};
  const auto frame = frame_of_points(p0, {x1, y1, z1}, {x2, y2, z2}, retained.three_points);
  if (frame) shift_and_turn({X, Y, Z}, n, *frame, p0, {dx, dy, dz}, turns_by(ax, ay, az));
  status = frame ? 0 : -2;
}

TRELVIN_ROUTINE trvpra(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvArrayInOut X,
                       TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn angle,
                       TrvIntOut status) {
  const Door door;
  const Point3 p0 = {x0, y0, z0};
  constexpr Turn none = {1, 0};
  const auto frame = frame_of_axis(p0, {x1, y1, z1}, none);
  if (frame) turn_about_axis({X, Y, Z}, n, *frame, p0, turn_by(angle));
  status = frame ? 0 : -2;
}

TRELVIN_ROUTINE trvppc(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay,
                       TrvIn az, TrvIntIn n, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                       TrvIn tol, TrvIntOut status) {
  const Door door;
  const Point3 p0 = {x0, y0, z0};
  const Point3 p1 = {x1, y1, z1};
  const Point3 p2 = {x2, y2, z2};
  if (!span_plane(p0, p1, p2, retained.three_points)) {
    status = -1;
    return;
  }
  const Integer off = first_off_plane({X, Y, Z}, n, plane_through(p0, p1, p2), tol);
  if (off == 0) {
    turn_and_shift({X, Y, Z}, n, frame_of_plane(p0, p1, p2), p0, turns_by(ax, ay, az),
                   {dx, dy, dz});
  }
  status = off;
}

/* Planes ------------------------------------------------------------------------------------- */

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

/* Lines -------------------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvdirl(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                        TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvIntOut status) {
  const Door door;
  const SpaceLine first = {{xa, ya, za}, {xb, yb, zb}};
  const SpaceLine second = {{xc, yc, zc}, {xd, yd, zd}};
  status = code_of(relation_of_lines(first, second, retained.three_points));
}

TRELVIN_ROUTINE trv3sp(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvIn xe, TrvIn ye,
                       TrvIn ze, TrvIn xf, TrvIn yf, TrvIn zf, TrvIntOut status) {
  const Door door;
  const bool spans =
      span_space(Point3{xb, yb, zb} - Point3{xa, ya, za}, Point3{xd, yd, zd} - Point3{xc, yc, zc},
                 Point3{xf, yf, zf} - Point3{xe, ye, ze});
  status = spans ? 1 : 0;
}

TRELVIN_ROUTINE trv3ldb(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist) {
  const Door door;
  dist = distance_by_start_y(SpaceLine{{xa, ya, za}, {xb, yb, zb}}, {xq, yq, zq});
  status = 0;
}

TRELVIN_ROUTINE trv3lda(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist) {
  const Door door;
  dist =
      signed_distance(SpaceLine{{xa, ya, za}, {xb, yb, zb}}, {xq, yq, zq}, retained.three_points);
  status = 0;
}

TRELVIN_ROUTINE trv3lni(TrvInOut xa, TrvInOut ya, TrvInOut za, TrvIn ux, TrvIn uy, TrvIn uz,
                        TrvInOut xc, TrvInOut yc, TrvInOut zc, TrvIn wx, TrvIn wy, TrvIn wz,
                        TrvIntOut status, TrvInOut xi, TrvInOut yi, TrvOut zi) {
  const Door door;
  // Parallel lines have no point of their own: the caller's xi and yi are read for it.
  const SpaceIntersection found = intersect(Point3{xa, ya, za}, {ux, uy, uz}, Point3{xc, yc, zc},
                                            {wx, wy, wz}, Point2{xi, yi}, retained.three_points);
  if (found) {
    write(found.a, xa, ya, za);
    write(found.c, xc, yc, zc);
    write(found.point, xi, yi, zi);
  }
  status = code_of(found.status);
}

TRELVIN_ROUTINE trvpli(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn a, TrvIn b,
                       TrvIn c, TrvIn d, TrvOut xi, TrvOut yi, TrvOut zi, TrvIntOut status) {
  const Door door;
  const PlaneIntersection found = intersect({x, y, z}, {ux, uy, uz}, {a, b, c, d});
  if (found) write(found.point, xi, yi, zi);
  status = found ? 0 : code_of(found.relation);
}

TRELVIN_ROUTINE trvplp(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvIntOut position) {
  const Door door;
  position = code_of(position_of_plane({a, b, c, d}));
}

TRELVIN_ROUTINE trvpnl(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvArrayIn X,
                       TrvArrayIn Y, TrvFunctionIn zf, TrvIntIn n, TrvIn tol, TrvIntOut status,
                       TrvIntOut count, TrvIntArrayOut index) {
  Door door;
  const SpaceLine line = {{xa, ya, za}, {xb, yb, zb}};
  const Integer points = n;
  const auto height = [&](Integer i) { return door.outside([&] { return zf(i); }); };
  const Integer found = positions_near(line, X, Y, height, points, tol, index);
  if (points >= 1) status = 0;
  count = found;
}

TRELVIN_ROUTINE trvlpc(TrvIn xp, TrvIn yp, TrvIn zp, TrvIn x1, TrvIn y1, TrvIn z1, TrvInOut x2,
                       TrvInOut y2, TrvInOut z2, TrvIn dxp, TrvIn dyp, TrvIn dzp, TrvIn dx1,
                       TrvIn dy1, TrvIn dz1, TrvIntOut status) {
  const Door door;
  const auto carried = carry_along({xp, yp, zp}, {x1, y1, z1}, {x2, y2, z2}, {dxp, dyp, dzp},
                                   {dx1, dy1, dz1}, retained.three_points);
  if (carried) write(carried->point, x2, y2, z2);
  status = carried ? code_of(carried->relation) : 0;
}
