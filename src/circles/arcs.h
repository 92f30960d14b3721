// Arcs by their centres and ends.
#pragma once

#include <optional>

#include "vectors/angles.h"
#include "vectors/vectors.h"

namespace trelvin {

struct Arc {
  Point2 c, a, b;
};

struct ArcLengths {
  Real radius;  // of A
  Real radius_b;
  Real chord;
};

inline ArcLengths measure(const Arc &arc) {
  return {distance(arc.c, arc.a), distance(arc.c, arc.b), distance(arc.a, arc.b)};
}

// The lengths along both arcs between the ends, on the circle through A.
struct LengthsAround {
  Real shorter, longer;
};

inline std::optional<LengthsAround> lengths_around(const Arc &arc) {
  const Real radius = distance(arc.c, arc.a);
  if (radius <= tolerance || distance(arc.a, arc.b) <= tolerance) return std::nullopt;
  const Real along = angle_between(arc.a - arc.c, arc.b - arc.c) * radius;
  return LengthsAround{along, two_pi * radius - along};
}

struct TurnedPoint {
  Point2 point;                  // the given one, rounded by its way to the centre and back
  std::optional<Point2> turned;  // or nothing at the centre, and `point` is relative to it
};

inline TurnedPoint turn_about(Point2 centre, Point2 p, Real angle) {
  const Vector2 v = p - centre;
  const Real radius = length(v);
  if (radius <= tolerance) return {{v.x, v.y}, std::nullopt};
  Real phi = arc_tangent(v.y / v.x);
  if (v.x < 0) phi += pi;
  if (v.x >= 0 && v.y < 0) phi += two_pi;
  const auto [s, c] = sine_cosine(phi + angle);
  return {{v.x + centre.x, v.y + centre.y}, Point2{radius * c + centre.x, radius * s + centre.y}};
}

}  // namespace trelvin
