// Constructions in the frame of an arc's chord: A at the origin, B on the positive x axis.
#include <cmath>

#include "circles/arc.h"
#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/circles.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin;

namespace {

// The points of a construction: A, B, what it takes, and last its result, which is found in local
// coordinates and leaves with the rest.
template <int count>
struct ChordFrame {
  Real x[count];
  Real y[count];
  Real turned;

  [[nodiscard]] Point at(int i) const { return {x[i], y[i]}; }

  void set(int i, const Point &p) {
    x[i] = p.x;
    y[i] = p.y;
  }

  void give(int i, TrvOut x_out, TrvOut y_out) const {
    x_out = x[i];
    y_out = y[i];
  }

  void set_origin(const Point &p) { trvtra(x, y, count - 1, p.x, p.y); }

  void turn_by(Real angle) {
    turned = angle;
    trvrot(1, x, y, count - 1, turned);
  }

  void leave(const Point &origin) {
    trvrot(2, x, y, count, turned);
    trvtra(x, y, count, -origin.x, -origin.y);
  }
};

// Angle of the chord, once A is the origin.
Real chord_angle(const Point &b) {
  Real angle;
  trvphi3(0, 0, 0, 1, 0, 0, b.x, b.y, 0, angle);
  return b.y < 0 ? 0 - angle : angle;
}

bool is_arc(const ArcLengths &lengths, Real tol = tolerance) {
  return !(lengths.radius <= tol) && !(std::fabs(lengths.radius - lengths.radius_b) > tol) &&
         !(lengths.chord <= tol);
}

struct Crossings {
  Integer n;
  Point q1, q2;
};

Crossings cross_circle(const Point &c, Real radius, const Line &line) {
  Real D;
  Real E;
  Real F;
  Crossings crossings = {};
  trvcer(c.x, c.y, radius, D, E, F);
  trvlci(line.a, line.b, line.c, D, E, F, crossings.n, crossings.q1.x, crossings.q1.y,
         crossings.q2.x, crossings.q2.y);
  return crossings;
}

Real side_of(const Line &line, const Point &p) {
  Real d;
  trvlds(p.x, p.y, line.a, line.b, line.c, d);
  return d;
}

Line line_at_angle(const Point &p, Real angle) {
  Line line;
  trvln1(p.x, p.y, angle, line.a, line.b, line.c);
  return line;
}

}  // namespace

TRELVIN_ROUTINE trvcer4(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIn angle, TrvOut xo, TrvOut yo, TrvIntOut status) {
  // A line that misses the circle brings back the result of the call before.
  static struct { Point result; } kept;

  status = 0;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const ArcLengths lengths = measure(arc);
  if (!is_arc(lengths)) return;
  Point p;
  Real z;
  Integer coincident;
  trv123(xa, ya, 0, xb, yb, 0, s / lengths.chord, p.x, p.y, z, coincident);
  if (coincident == 1) return;

  enum { A, B, P, C, result, points };
  ChordFrame<points> local = {
      {xa, xb, p.x, xc, kept.result.x}, {ya, yb, p.y, yc, kept.result.y}, 0};
  local.set_origin(arc.a);
  local.turn_by(chord_angle(local.at(B)));

  const Crossings q = cross_circle(local.at(C), lengths.radius, line_at_angle(local.at(P), angle));
  if (q.n == 1) return;
  if (q.n == 2) {
    const Line chord = line_through(local.at(A), local.at(B));
    const bool across = side_of(chord, q.q1) * side_of(chord, local.at(C)) <= tolerance;
    local.set(result, across ? q.q1 : q.q2);
  }

  local.leave(arc.a);
  kept.result = local.at(result);
  local.give(A, xa, ya);
  local.give(B, xb, yb);
  local.give(C, xc, yc);
  local.give(result, xo, yo);
  status = 1;
}

TRELVIN_ROUTINE trvcer10(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                         TrvInOut yb, TrvIn turn, TrvIn angle, TrvOut xo, TrvOut yo,
                         TrvIntOut status) {
  // A line parallel to the chord leaves the crossing of the call before, in its frame.
  static struct { Point crossing; } kept;

  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  if (!is_arc(measure(arc))) {
    status = 0;
    return;
  }
  Point r;
  trvcer3(xc, yc, xa, ya, turn, r.x, r.y, status);  // which also rounds A on its way

  enum { A, B, R, C, result, points };
  ChordFrame<points> local = {{xa, xb, r.x, xc, 0}, {ya, yb, r.y, yc, 0}, 0};
  local.set_origin({xa, ya});
  local.turn_by(chord_angle(local.at(B)));

  const Line line = line_at_angle(local.at(R), angle);
  const Line chord = line_through(local.at(A), local.at(B));
  trvlni(line.a, line.b, line.c, chord.a, chord.b, chord.c, status, kept.crossing.x,
         kept.crossing.y);
  Integer place;
  trvpsl(local.x[A], local.y[A], 0, local.x[B], local.y[B], 0, kept.crossing.x, kept.crossing.y, 0,
         place);
  if (place > 2) status = 0;
  local.set(result, kept.crossing);

  local.leave(arc.a);
  local.give(A, xa, ya);
  local.give(B, xb, yb);
  local.give(C, xc, yc);
  local.give(result, xo, yo);
}

TRELVIN_ROUTINE trvcer5(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvOut xo, TrvOut yo,
                        TrvIntOut status) {
  // Ends that coincide by coordinates leave the station of the call before, a middle of the arc
  // that coincides with the chord's its T, and a line that misses the circle its result.
  static struct { Point p, t, result; } kept;

  status = 0;
  if (s < 0 || e <= tolerance) return;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const ArcLengths lengths = measure(arc);
  if (!is_arc(lengths) || lengths.chord - s <= tolerance) return;
  Real z;
  Integer unasked;
  trv123(xa, ya, 0, xb, yb, 0, s / lengths.chord, kept.p.x, kept.p.y, z, unasked);
  Point m;
  trvmed(xa, ya, 0, xb, yb, 0, m.x, m.y, z);
  Real phi;
  trvphi3(xc, yc, 0, xa, ya, 0, xb, yb, 0, phi);
  Point middle;
  trvcer3(xc, yc, xa, ya, static_cast<Real>(side) * phi * -0.5F, middle.x, middle.y, unasked);
  trv123(m.x, m.y, 0, middle.x, middle.y, 0, e / distance(middle, m), kept.t.x, kept.t.y, z,
         unasked);

  enum { A, B, P, T, C, result, points };
  ChordFrame<points> local = {{xa, xb, kept.p.x, kept.t.x, xc, kept.result.x},
                              {ya, yb, kept.p.y, kept.t.y, yc, kept.result.y},
                              0};
  local.set_origin({xa, ya});
  Real theta;
  trvaxph(local.x[B], local.y[B], theta);
  local.turn_by(theta);

  const Line line = line_through(local.at(P), local.at(T));
  const Crossings q = cross_circle(local.at(C), lengths.radius, line);
  if (q.n == 1) return;
  if (q.n == 2) {
    const Line chord = line_through(local.at(A), local.at(B));
    const bool beside_t = side_of(chord, q.q1) * side_of(chord, local.at(T)) > tolerance;
    local.set(result, beside_t ? q.q1 : q.q2);
  }

  local.leave(arc.a);
  kept.result = local.at(result);
  local.give(A, xa, ya);
  local.give(B, xb, yb);
  local.give(C, xc, yc);
  local.give(result, xo, yo);
  status = 1;
}

TRELVIN_ROUTINE trvcer7(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvIn angle, TrvOut xp,
                        TrvOut yp, TrvOut xt, TrvOut yt, TrvOut xo, TrvOut yo, TrvOut len,
                        TrvIntOut status) {
  constexpr Real coarse = 1e-4F;
  status = 0;
  if (s < 0 || e < 0 || side == 0) return;
  const Arc arc = {{xc, yc}, {xa, ya}, {xb, yb}};
  const ArcLengths lengths = measure(arc);
  if (!is_arc(lengths, coarse) || lengths.chord - s <= coarse) return;
  if (std::fabs(sine(angle)) <= coarse) return;

  // Clockwise from A the circle runs on the left of the chord, wherever the centre is.
  const bool left = side > 0;
  const Real height = left ? e : -e;

  enum { A, B, C, P, T, O, points };
  ChordFrame<points> local = {{xa, xb, xc, xa, xa, xa}, {ya, yb, yc, ya, ya, ya}, 0};
  local.set_origin(arc.a);
  local.turn_by(chord_angle(local.at(B)));
  local.set(P, {s, 0});
  const Line line = line_at_angle(local.at(P), angle);
  const Crossings q = cross_circle(local.at(C), lengths.radius, line);
  if (q.n < 2) return;
  const bool first = left == (q.q1.y > q.q2.y);
  local.set(O, first ? q.q1 : q.q2);
  Integer unasked;  // the line is not parallel to the chord
  trvlni(line.a, line.b, line.c, 0, 1, -height, unasked, local.x[T], local.y[T]);

  len = distance(local.at(P), local.at(O));
  local.leave(arc.a);
  local.give(A, xa, ya);
  local.give(B, xb, yb);
  local.give(C, xc, yc);
  local.give(P, xp, yp);
  local.give(T, xt, yt);
  local.give(O, xo, yo);
  status = 1;
}
