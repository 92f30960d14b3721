#include "trelvin/frames.h"

#include "entries/door.h"
#include "space/frames.h"
#include "space/planes.h"
#include "space/transformations.h"
#include "vectors/three_points.h"
#include "vectors/turns.h"

using namespace trelvin;

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
