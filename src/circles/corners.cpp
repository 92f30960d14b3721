#include "circles/corners.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "numeric/functions.h"
#include "vectors/wide_vectors.h"

namespace trelvin {

std::optional<RoundedCorner> round_corner(Point2 corner, Point2 p1, Point2 p2, Real radius) {
  const WideVector to_p1 = wide_difference(p1, corner);
  const WideVector to_p2 = wide_difference(p2, corner);
  const double length1 = length(to_p1);
  const double length2 = length(to_p2);
  if (!(radius > tolerance && length1 > tolerance && length2 > tolerance)) return std::nullopt;
  const WideVector u = to_p1 / length1;
  const WideVector v = to_p2 / length2;
  const double sine = std::fabs(cross(u, v));
  const double cosine = dot(u, v);
  if (!(sine > tolerance)) return std::nullopt;
  const double tangent_length = radius * (1 + cosine) / sine;
  if (tangent_length > std::min(length1, length2) + tolerance) return std::nullopt;

  // From the first touching point along the normal of its segment, on the second segment's side.
  const WideVector normal = (v - u * cosine) * radius / sine;
  const WideVector touch1 = wide(corner) + u * tangent_length;
  const WideVector touch2 = wide(corner) + v * tangent_length;
  return RoundedCorner{rounded(touch1 + normal), rounded(touch1), rounded(touch2)};
}

Box box_of_sweep(Point2 centre, Point2 on_arc, Real sweep) {
  const WideVector from = wide_difference(on_arc, centre);
  const double r = length(from);
  const double swept = std::clamp<double>(sweep, -full_turn, full_turn);
  if (std::isnan(r) || std::isnan(swept)) {
    constexpr Real nan = std::numeric_limits<Real>::quiet_NaN();
    return {{nan, nan}, {nan, nan}};
  }

  // The ends, and where the arc passes the directions of the axes.
  const auto [s, c] = wide_sine_cosine(swept);
  const WideVector to = {from.x * c - from.y * s, from.x * s + from.y * c};
  WideVector lower = {std::min(from.x, to.x), std::min(from.y, to.y)};
  WideVector upper = {std::max(from.x, to.x), std::max(from.y, to.y)};
  const double start = arc_tangent(from.y, from.x);
  const double first = std::min(start, start + swept);
  const double last = std::max(start, start + swept);
  constexpr double quarter = full_turn / 4;
  for (int i = -6; i <= 6; ++i) {
    if (i * quarter < first || i * quarter > last) continue;
    const int axis = (i + 8) % 4;
    if (axis == 0) upper.x = r;
    if (axis == 1) upper.y = r;
    if (axis == 2) lower.x = -r;
    if (axis == 3) lower.y = -r;
  }
  return {rounded(wide(centre) + lower), rounded(wide(centre) + upper)};
}

}  // namespace trelvin
