#include "circles/station_lines.h"
#include "vectors/wide_vectors.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace trelvin {
namespace {

constexpr double coarse = 1e-4F;

// By how much the rounding of the coordinates makes the radii of the ends differ: less than three
// units in the last place of the largest coordinate.
double rounding_of_radii(const Arc &arc) {
  Real largest = 0;
  for (const Point2 p : {arc.c, arc.a, arc.b}) {
    largest = std::max({largest, std::fabs(p.x), std::fabs(p.y)});
  }
  return 3.0 * FLT_EPSILON * largest;
}

}  // namespace

std::optional<StationLine> line_through_station(const Arc &arc, Real s, Integer side, Real e,
                                                Real angle) {
  const WideVector to_end = wide_difference(arc.b, arc.a);
  const WideVector to_centre = wide_difference(arc.c, arc.a);
  const double chord = length(to_end);
  const double radius = length(to_centre);
  const double apart = std::fabs(radius - length(wide_difference(arc.c, arc.b)));
  if (!(s >= 0 && e >= 0) || side == 0) return std::nullopt;
  if (!(radius > coarse && chord - s > coarse)) return std::nullopt;
  if (!(apart <= coarse + rounding_of_radii(arc))) return std::nullopt;

  // The direction of the line, along the chord and to its left; then in the plane.
  const auto [sine, cosine] = wide_sine_cosine(angle);
  if (!(std::fabs(sine) > coarse)) return std::nullopt;
  const WideVector d = {cosine, sine};
  const WideVector u = to_end / chord;
  const WideVector v = {u.x * d.x - u.y * d.y, u.y * d.x + u.x * d.y};

  // The crossings with the circle are as far before the centre's foot on the line as behind it.
  const WideVector station = u * s;
  const WideVector centre = to_centre - station;
  const double off = cross(v, centre);
  const double square = radius * radius - off * off;
  if (!(square > coarse * coarse)) return std::nullopt;
  const double half = std::sqrt(square);
  const bool left = side > 0;
  const double along = dot(v, centre) + (left == (d.y > 0) ? half : -half);
  const double height = left ? e : -double{e};
  const auto from_a = [&](WideVector w) { return rounded(wide(arc.a) + w); };
  return StationLine{from_a(station), from_a(station + v * (height / d.y)),
                     from_a(station + v * along), static_cast<Real>(std::fabs(along))};
}

}  // namespace trelvin
