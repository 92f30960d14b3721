#include "trelvin/circles.h"

#include "circles/arcs.h"
#include "circles/chords.h"
#include "circles/circles.h"
#include "circles/classification.h"
#include "circles/corners.h"
#include "circles/station_lines.h"
#include "circles/stations.h"
#include "entries/door.h"
#include "plane/segments.h"
#include "vectors/angles.h"

using namespace trelvin;

/* Equations and intersections ---------------------------------------------------------------- */

namespace {

void write(const Crossings &crossings, TrvIntOut n, TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2) {
  n = crossings.count;
  if (crossings.count > 0) write(crossings.first, x1, y1);
  if (crossings.count > 1) write(crossings.second, x2, y2);
}

}  // namespace

TRELVIN_ROUTINE trvcer(TrvIn xc, TrvIn yc, TrvIn r, TrvOut D, TrvOut E, TrvOut F) {
  const Door door;
  const Circle circle = circle_about({xc, yc}, r);
  D = circle.D;
  E = circle.E;
  F = circle.F;
}

TRELVIN_ROUTINE trvlci(TrvIn a, TrvIn b, TrvIn c, TrvIn D, TrvIn E, TrvIn F, TrvIntOut n, TrvOut x1,
                       TrvOut y1, TrvOut x2, TrvOut y2) {
  const Door door;
  write(crossings_of(Line{a, b, c}, Circle{D, E, F}), n, x1, y1, x2, y2);
}

TRELVIN_ROUTINE trvc12(TrvIn D1, TrvIn E1, TrvIn F1, TrvIn D2, TrvIn E2, TrvIn F2, TrvIntOut n,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2) {
  const Door door;
  write(crossings_of(Circle{D1, E1, F1}, Circle{D2, E2, F2}), n, x1, y1, x2, y2);
}

TRELVIN_ROUTINE trvcer2(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn r, TrvOut xa,
                        TrvOut ya, TrvOut xb, TrvOut yb, TrvOut xc, TrvOut yc, TrvIntOut n) {
  const Door door;
  const auto centres = centres_of_radius({x1, y1}, {x2, y2}, side, r);
  n = centres ? centres->candidates.count : 0;
  if (!centres) return;
  write(centres->candidates.first, xa, ya);
  write(centres->candidates.second, xb, yb);
  if (centres->chosen) write(*centres->chosen, xc, yc);
}

TRELVIN_ROUTINE trvcer1(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn h, TrvOut r,
                        TrvOut xc, TrvOut yc, TrvIntOut n) {
  const Door door;
  const Point2 p1 = {x1, y1};
  const Point2 p2 = {x2, y2};
  if (h < tolerance) {
    n = 0;
    return;
  }
  const Real radius = radius_of_sagitta(distance(p1, p2), h);
  const auto centres = centres_of_radius(p1, p2, side, radius);
  r = radius;
  n = centres ? centres->candidates.count : 0;
  if (centres && centres->chosen) write(*centres->chosen, xc, yc);
}

TRELVIN_ROUTINE trvcin(TrvArrayIn X, TrvArrayIn Y, TrvIn a, TrvIn b, TrvIn c, TrvIntOut position,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2) {
  const Door door;
  const Classification found = classify({X[0], Y[0]}, {X[1], Y[1]}, {a, b, c});
  Integer n = 0;  // which the position tells
  write(found.crossings, n, x1, y1, x2, y2);
  position = code_of(found.position);
  retained.trace_file.append(record_of(found));
}

/* Stations on an arc ------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvcer3(TrvIn x0, TrvIn y0, TrvInOut x, TrvInOut y, TrvIn angle, TrvOut xr,
                        TrvOut yr, TrvIntOut status) {
  const Door door;
  const TurnedPoint found = turn_about({x0, y0}, {x, y}, angle);
  write(found.point, x, y);
  if (found.turned) write(*found.turned, xr, yr);
  status = found.turned ? 1 : 0;
}

TRELVIN_ROUTINE trvcer8(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status) {
  const Door door;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const auto point = point_above_station(arc, side, d, retained.above_station);
  status = point ? 1 : 0;
  if (point) write(*point, x, y);
}

TRELVIN_ROUTINE trvcer6(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status) {
  const Door door;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const auto point = point_on_ray(arc, side, d, retained.on_ray);
  status = point ? 1 : 0;
  if (point) write(*point, x, y);
}

TRELVIN_ROUTINE trvcer9(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvIn w, TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2,
                        TrvIntOut status) {
  const Door door;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const auto points = points_above_strip(arc, side, d, w, retained.above_strip);
  status = points ? 1 : 0;
  if (!points) return;
  write(points->first, x1, y1);
  write(points->second, x2, y2);
}

/* Measures ----------------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvarc1(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvOut s1,
                        TrvOut s2, TrvIntOut status) {
  const Door door;
  const auto lengths = lengths_around({{xc, yc}, {xa, ya}, {xb, yb}});
  status = lengths ? 1 : 0;
  if (!lengths) return;
  s1 = lengths->shorter;
  s2 = lengths->longer;
}

TRELVIN_ROUTINE trvaxph(TrvIn dx, TrvIn dy, TrvOut phi) {
  const Door door;
  phi = angle_from_x_axis({dx, dy});
}

TRELVIN_ROUTINE trvhin(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x3, TrvIn y3, TrvIn z3, TrvOut h0, TrvOut s0,
                       TrvOut h3, TrvOut s3, TrvOut len) {
  const Door door;
  const Point3 p0 = {x0, y0, z0};
  const Point3 p1 = {x1, y1, z1};
  const Point3 p2 = {x2, y2, z2};
  const Point3 p3 = {x3, y3, z3};
  const Line line = line_through(p1.in_plane(), p2.in_plane());
  const Foot from_start = foot_on(line, p0.in_plane(), distance(p0, p1));
  const Foot from_end = foot_on(line, p3.in_plane(), distance(p3, p2));
  const Real length = distance(p1, p2);
  h0 = from_start.distance;
  s0 = from_start.along;
  h3 = from_end.distance;
  s3 = length - from_end.along;
  len = length;
}

TRELVIN_ROUTINE trvapp(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn n,
                       TrvArrayIn X, TrvArrayIn Y, TrvIntArrayOut mark) {
  const Door door;
  mark_by_sector({x0, y0}, {x1, y1}, {x2, y2}, X, Y, n, mark, retained.three_points);
}

/* Constructions on a chord ------------------------------------------------------------------- */

namespace {

void write(const Arc &arc, TrvOut xc, TrvOut yc, TrvOut xa, TrvOut ya, TrvOut xb, TrvOut yb) {
  write(arc.c, xc, yc);
  write(arc.a, xa, ya);
  write(arc.b, xb, yb);
}

}  // namespace

TRELVIN_ROUTINE trvcer4(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIn angle, TrvOut xo, TrvOut yo, TrvIntOut status) {
  const Door door;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const auto found = across_station(arc, s, angle, retained.across_station);
  status = found ? 1 : 0;
  if (!found) return;
  write(found->arc, xc, yc, xa, ya, xb, yb);
  write(found->point, xo, yo);
}

TRELVIN_ROUTINE trvcer10(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                         TrvInOut yb, TrvIn turn, TrvIn angle, TrvOut xo, TrvOut yo,
                         TrvIntOut status) {
  const Door door;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const auto crossing =
      below_turned_end(arc, turn, angle, retained.below_turned_end, retained.three_points);
  status = crossing ? code_of(crossing->relation) : 0;
  if (!crossing) return;
  write(crossing->found.arc, xc, yc, xa, ya, xb, yb);
  write(crossing->found.point, xo, yo);
}

TRELVIN_ROUTINE trvcer5(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvOut xo, TrvOut yo,
                        TrvIntOut status) {
  const Door door;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const auto [outcome, found] = towards_sagitta(arc, s, side, e, retained.towards_sagitta);
  status = outcome == SagittaPoint::done ? 1 : 0;
  if (outcome == SagittaPoint::touched) write(found.arc.a, xa, ya);
  if (outcome != SagittaPoint::done) return;
  write(found.arc, xc, yc, xa, ya, xb, yb);
  write(found.point, xo, yo);
}

TRELVIN_ROUTINE trvcer7(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvIn angle, TrvOut xp,
                        TrvOut yp, TrvOut xt, TrvOut yt, TrvOut xo, TrvOut yo, TrvOut len,
                        TrvIntOut status) {
  const Door door;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const auto line = line_through_station(arc, s, side, e, angle);
  status = line ? 1 : 0;
  if (!line) return;
  write(line->station, xp, yp);
  write(line->on_parallel, xt, yt);
  write(line->on_arc, xo, yo);
  len = line->length;
}

/* Corners and boxes -------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvard(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIn r,
                       TrvOut xc, TrvOut yc, TrvOut xt1, TrvOut yt1, TrvOut xt2, TrvOut yt2,
                       TrvIntOut status) {
  const Door door;
  const auto corner = round_corner({x0, y0}, {x1, y1}, {x2, y2}, r);
  status = corner ? 1 : 0;
  if (!corner) return;
  write(corner->centre, xc, yc);
  write(corner->touch1, xt1, yt1);
  write(corner->touch2, xt2, yt2);
}

TRELVIN_ROUTINE trvenv(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn sweep, TrvOut xmin,
                       TrvOut ymin, TrvOut xmax, TrvOut ymax) {
  const Door door;
  const Box box = box_of_sweep({xc, yc}, {xa, ya}, sweep);
  write(box.lower, xmin, ymin);
  write(box.upper, xmax, ymax);
}
