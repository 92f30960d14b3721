// Straight lines of the plane, as the coefficients of a*x + b*y + c = 0, of any length.
//
// Negated terms are formed as 0 - x, so that a vanishing x gives the positive zero.
#pragma once

#include <cmath>

#include "numeric/functions.h"
#include "vectors/vectors.h"

namespace trelvin {

struct Line {
  Real a, b, c;
};

inline Line line_through(Point2 p, Point2 q) {
  return {q.y - p.y, 0 - (q.x - p.x), p.y * q.x - q.y * p.x};
}

inline Line vertical_line(Real x) { return {1, 0, 0 - x}; }

// Line at an angle to the x axis; vertical if the angle is next to pi/2 or -pi/2, or NaN.
inline Line line_at_angle(Point2 p, Real angle) {
  const bool vertical = (angle > 0 && std::fabs(angle - half_pi) < tolerance) ||
                        (angle < 0 && std::fabs(angle + half_pi) < tolerance) || std::isnan(angle);
  if (vertical) return vertical_line(p.x);
  const Real slope = tangent(angle);
  return {slope, -1, p.y - slope * p.x};
}

inline Line line_along(Point2 p, Vector2 direction) {
  if (direction.x == 0) return vertical_line(p.x);
  return {direction.y / direction.x, -1, p.y - direction.y * p.x / direction.x};
}

inline Line perpendicular_through(Point2 p, const Line &line) {
  return line_along(p, {line.a, line.b});
}

inline Line parallel_at(const Line &line, Real d) {
  return {line.a, line.b, line.c - square_root(line.a * line.a + line.b * line.b) * d};
}

// Bisector of the angle at `vertex` between the rays to p and q.
inline Line bisector(Point2 vertex, Point2 p, Point2 q) {
  const Vector2 u = p - vertex;
  const Vector2 v = q - vertex;
  const Real length_u = length(u);
  const Real length_v = length(v);
  return {
      u.x * length_v - v.x * length_u, u.y * length_v - v.y * length_u,
      length_u * (v.x * vertex.x + v.y * vertex.y) - length_v * (u.x * vertex.x + u.y * vertex.y)};
}

// Positive on the side that the normal (a, b) points to.
inline Real signed_distance(const Line &line, Point2 p) {
  return (line.a * p.x + line.b * p.y + line.c) / square_root(line.a * line.a + line.b * line.b);
}

enum class LineRelation : Integer { crossing, same, parallel };

struct LineIntersection {
  LineRelation relation;
  Point2 point;  // of crossing lines

  explicit operator bool() const { return relation == LineRelation::crossing; }
};

inline LineIntersection intersect(const Line &l, const Line &m) {
  const Real det = l.a * m.b - m.a * l.b;
  const Real nx = l.b * m.c - m.b * l.c;
  const Real ny = m.a * l.c - l.a * m.c;
  if (significant(det)) return {LineRelation::crossing, {nx / det, ny / det}};
  const bool apart = significant(nx) || significant(ny);
  return {apart ? LineRelation::parallel : LineRelation::same, {}};
}

// Signed distance for which `parallel_at` makes the second of two parallel lines of the first. In
// double precision, since the constants nearly cancel.
inline Real distance_of_parallels(const Line &l, const Line &m) {
  const double square = double{l.a} * l.a + double{l.b} * l.b;
  const double k = (double{l.a} * m.a + double{l.b} * m.b) / square;
  return static_cast<Real>((l.c - m.c / k) / std::sqrt(square));
}

}  // namespace trelvin
