#include <cmath>

#include "circles/arc.h"
#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/circles.h"
#include "trelvin/plane.h"

using namespace trelvin;

namespace {

// Lengths on an arc are compared with more than the library's tolerance.
constexpr Real arc_tolerance = 0.001F;

bool off_the_arc(const ArcLengths &lengths) {
  return lengths.radius <= arc_tolerance ||
         std::fabs(lengths.radius - lengths.radius_b) > arc_tolerance;
}

bool off_the_chord(const ArcLengths &lengths, Real d) {
  return lengths.chord <= arc_tolerance || d <= arc_tolerance || lengths.chord - d <= arc_tolerance;
}

// The intersections of the projecting line and the circle. A routine keeps them between calls: what
// trvlci does not find is what the call before found.
struct Crossings {
  Point q1, q2;
};

Point station_on_chord(const Arc &arc, Real t) {
  Point p;
  Real z;
  Integer coincident;  // not asked: the chord is longer than the arc's tolerance
  trv123(arc.a.x, arc.a.y, 0, arc.b.x, arc.b.y, 0, t, p.x, p.y, z, coincident);
  return p;
}

Line perpendicular_to_chord(const Arc &arc, const Point &p) {
  const Line chord = line_through(arc.a, arc.b);
  Line m;
  trvln4(p.x, p.y, chord.a, chord.b, 0, m.a, m.b, m.c);
  return m;
}

// Projects along `m` onto the circle and picks one of the crossings by the side of the first.
Point project(const Arc &arc, Real radius, const Line &m, Integer side, Crossings &kept) {
  Real D;
  Real E;
  Real F;
  Integer n;
  trvcer(arc.c.x, arc.c.y, radius, D, E, F);
  trvlci(m.a, m.b, m.c, D, E, F, n, kept.q1.x, kept.q1.y, kept.q2.x, kept.q2.y);
  Real cross[3];
  trvpre(arc.c.x, arc.c.y, 0, arc.a.x, arc.a.y, 0, arc.c.x, arc.c.y, 0, kept.q1.x, kept.q1.y, 0,
         cross);
  return static_cast<Real>(side) * cross[2] < 0 ? kept.q1 : kept.q2;
}

}  // namespace

TRELVIN_ROUTINE trvcer3(TrvIn x0, TrvIn y0, TrvInOut x, TrvInOut y, TrvIn angle, TrvOut xr,
                        TrvOut yr, TrvIntOut status) {
  status = 1;
  trvtra(&x, &y, 1, x0, y0);
  const Real radius = square_root(x * x + y * y);
  if (radius <= tolerance) {
    status = 0;  // the point stays relative to the centre
    return;
  }
  Real phi = arc_tangent(y / x);
  if (x < 0) phi += pi;
  if (x >= 0 && y < 0) phi += two_pi;
  const auto [s, c] = sine_cosine(phi + angle);
  xr = radius * c;
  yr = radius * s;
  trvtra(&xr, &yr, 1, -x0, -y0);
  trvtra(&x, &y, 1, -x0, -y0);
}

TRELVIN_ROUTINE trvcer8(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status) {
  static Crossings kept;

  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const ArcLengths lengths = measure(arc);
  if (off_the_arc(lengths) || off_the_chord(lengths, d)) {
    status = 0;
    return;
  }
  status = 1;
  const Point p = station_on_chord(arc, d / lengths.chord);
  const Point q = project(arc, lengths.radius, perpendicular_to_chord(arc, p), side, kept);
  x = q.x;
  y = q.y;
}

TRELVIN_ROUTINE trvcer6(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status) {
  static Crossings kept;

  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const ArcLengths lengths = measure(arc);
  if (off_the_arc(lengths) || off_the_chord(lengths, d) ||
      std::fabs(d - 2 * lengths.radius) < arc_tolerance) {
    status = 0;
    return;
  }
  status = 1;
  const Point p = station_on_chord(arc, d / lengths.chord);
  const Point q = project(arc, lengths.radius, line_through(arc.c, p), side, kept);
  x = q.x;
  y = q.y;
}

TRELVIN_ROUTINE trvcer9(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvIn w, TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2,
                        TrvIntOut status) {
  static Crossings kept;

  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const ArcLengths lengths = measure(arc);
  const Real c = lengths.chord;
  const Real h = w * 0.5F;
  const bool long_enough = c > arc_tolerance && d > arc_tolerance && w > arc_tolerance;
  if (off_the_arc(lengths) || !long_enough || c - d <= arc_tolerance || d - h < arc_tolerance ||
      c - d - h < arc_tolerance) {
    status = 0;
    return;
  }
  status = 1;
  const auto edge = [&](Real station) {
    const Point p = station_on_chord(arc, station / c);
    return project(arc, lengths.radius, perpendicular_to_chord(arc, p), side, kept);
  };
  const Point q1 = edge(d - h);
  const Point q2 = edge(h + d);
  x1 = q1.x;
  y1 = q1.y;
  x2 = q2.x;
  y2 = q2.y;
}
