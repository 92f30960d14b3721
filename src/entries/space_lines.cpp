#include "trelvin/space_lines.h"

#include "entries/door.h"
#include "space/intersections.h"
#include "space/lines.h"
#include "space/planes.h"

using namespace trelvin;

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
