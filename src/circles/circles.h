// Circles by their equations, and the points in which lines and circles meet them.
#pragma once

#include <optional>

#include "plane/lines.h"

namespace trelvin {

// x*x + y*y + D*x + E*y + F = 0.
struct Circle {
  Real D, E, F;
};

inline Circle circle_about(Point2 centre, Real radius) {
  return {-2 * centre.x, -2 * centre.y,
          centre.x * centre.x + centre.y * centre.y - radius * radius};
}

// None, one or two points; the first is that of the larger root.
struct Crossings {
  Integer count;
  Point2 first, second;
};

inline Crossings crossings_of(const Line &line, const Circle &circle) {
  const auto [a, b, c] = line;
  const auto [D, E, F] = circle;
  // A quadratic in y; in x if the line counts as horizontal, and its a is then left out.
  const bool in_y = significant(a);
  const Real A = in_y ? a * a + b * b : b * b;
  const Real B = in_y ? (2 * c - a * D) * b + E * (a * a) : D * (b * b);
  const Real C = in_y ? c * c - a * c * D + F * (a * a) : c * c - E * b * c + F * (b * b);
  const auto point_at = [&, a = a, b = b, c = c](Real root) {
    return in_y ? Point2{(b * root + c) / (0 - a), root} : Point2{root, 0 - c / b};
  };

  const Real discriminant = B * B - 4 * A * C;
  if (negligible(discriminant)) return {1, point_at(B / A * -0.5F), {}};
  if (discriminant < 0) return {};
  const Real s = square_root(discriminant);
  return {2, point_at((s - B) / A * 0.5F), point_at((0 - (B + s)) / A * 0.5F)};
}

Crossings crossings_of(const Circle &g, const Circle &h);

// Centres of circles through two points. A horizontal chord has candidates but counts none.
struct Centres {
  Crossings candidates;
  std::optional<Point2> chosen;  // by the side of the chord, unless a NaN decides
};

std::optional<Centres> centres_of_radius(Point2 p1, Point2 p2, Integer side, Real radius);

// Radius of the arc that rises by `sagitta` above the middle of its chord.
Real radius_of_sagitta(Real chord, Real sagitta);

}  // namespace trelvin
