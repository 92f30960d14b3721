#include "circles/circles.h"

#include <cmath>

namespace trelvin {
namespace {

// The candidates' radical line is 2*dx*x + 2*dy*y = K.
Real radical_constant(Point2 p1, Point2 p2) {
  return 0 - (p1.x * p1.x + p1.y * p1.y) + p2.x * p2.x + p2.y * p2.y;
}

Crossings candidates_of_horizontal_chord(Point2 p, Real dx, Real K, Real radius) {
  const Real x = K / dx * 0.5F;
  const Real t = square_root(radius * radius - (p.x - x) * (p.x - x));
  return {0, {x, p.y - t}, {x, p.y + t}};  // the count must stay 0, though both are written
}

std::optional<Crossings> candidates_of_chord(Point2 p, Vector2 chord, Real K, Real radius) {
  const Real dx = chord.x;
  const Real dy = chord.y;
  const Real q = dx / dy;
  const Real A = q * q + 1;
  const Real B = -2 * p.x + 2 * p.y * dx / dy - K * dx / (dy * dy);
  const Real C = K * K / (dy * dy) * 0.25F - p.y * K / dy - radius * radius + p.x * p.x + p.y * p.y;
  const Real discriminant = B * B - 4 * A * C;
  const auto point_at = [&](Real x) { return Point2{x, (K - 2 * dx * x) / dy * 0.5F}; };
  if (discriminant > tolerance) {
    const Real s = square_root(discriminant);
    return Crossings{2, point_at((s - B) / A * 0.5F), point_at((0 - (B + s)) / A * 0.5F)};
  }
  if (discriminant >= 0) {
    const Point2 only = point_at(0 - B / A * 0.5F);
    return Crossings{1, only, only};
  }
  return std::nullopt;
}

// A candidate on the chord is on either side; of two that fit, the second is chosen.
std::optional<Point2> on_side(const Crossings &candidates, const Line &chord, Integer side) {
  const Real sign = static_cast<Real>(side);
  std::optional<Point2> chosen;
  if (signed_distance(chord, candidates.first) * sign >= 0) chosen = candidates.first;
  if (signed_distance(chord, candidates.second) * sign > 0) chosen = candidates.second;
  return chosen;
}

}  // namespace

Crossings crossings_of(const Circle &g, const Circle &h) {
  const Line radical = {h.D - g.D, h.E - g.E, h.F - g.F};
  if (std::fabs(radical.a) + std::fabs(radical.b) <= tolerance) return {};
  return crossings_of(radical, g);
}

std::optional<Centres> centres_of_radius(Point2 p1, Point2 p2, Integer side, Real radius) {
  const Vector2 chord = p2 - p1;
  if ((chord.x == 0 && chord.y == 0) || radius <= tolerance) return std::nullopt;
  const Real K = radical_constant(p1, p2);
  const std::optional<Crossings> candidates =
      std::fabs(chord.y) < tolerance ? candidates_of_horizontal_chord(p1, chord.x, K, radius)
                                     : candidates_of_chord(p1, chord, K, radius);
  if (!candidates) return std::nullopt;
  return Centres{*candidates, on_side(*candidates, line_through(p1, p2), side)};
}

Real radius_of_sagitta(Real chord, Real sagitta) {
  return chord / sine(pi - 2 * arc_tangent(chord / sagitta * 0.5F)) * 0.5F;
}

}  // namespace trelvin
