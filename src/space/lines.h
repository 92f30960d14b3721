// Straight lines of space.
#pragma once

#include <optional>

#include "vectors/three_points.h"
#include "vectors/vectors.h"

namespace trelvin {

// The line through two points, directed from the first to the second.
struct SpaceLine {
  Point3 start, end;
  [[nodiscard]] Vector3 along() const { return end - start; }
};

enum class SpaceLineRelation : Integer {
  crossing,
  parallel,
  parallel_opposite,
  same,
  same_opposite,
  perpendicular,  // and crossing
  skew,
  null
};

// Runs the three-point test twice, on the first line with the start and the end of the second.
SpaceLineRelation relation_of_lines(const SpaceLine &first, const SpaceLine &second,
                                    LastCosine &last);

// No scaling: the product grows with the lengths.
inline bool span_space(Vector3 u, Vector3 v, Vector3 w) {
  return significant(determinant(u, v, w));
}

// The distance of trv3ldb. It uses start.y in place of start.z, which must stay so. It is therefore the
// distance of the point only if the two are equal.
inline Real distance_by_start_y(const SpaceLine &line, Point3 q) {
  const Vector3 u = line.along();
  if (negligible(u)) return distance(line.start, q);
  const Vector3 v = {line.start.x - q.x, line.start.y - q.y, line.start.y - q.z};
  return length(cross(v, u)) / length(u);
}

// Whether distance_by_start_y is within the limit. Never inline: nothing of it must be computed while
// the host's floating-point control may be set.
bool is_near(const SpaceLine &line, Point3 q, Real limit);

// Positions, from 1, of the points near a line; their third coordinates come from a function of the
// position. Gives how many there are.
template <class Height>
Integer positions_near(const SpaceLine &line, const Real *x, const Real *y, Height height,
                       Integer n, Real limit, Integer *positions) {
  Integer found = 0;
  for (Integer i = 1; i <= n; ++i) {
    const Point3 point = {x[i - 1], y[i - 1], height(i)};
    if (is_near(line, point, limit)) positions[found++] = i;
  }
  return found;
}

// In the plane of both, whose normal is turned towards +y, else +z, else +x.
Real signed_distance(const SpaceLine &line, Point3 q, LastCosine &last);

struct CarriedPoint {
  SpaceLineRelation relation;  // of the lines from both points to P
  Point3 point;
};

// Moves P and q1 and keeps the place of q2 on their line; nothing if the three are not on one
// line, or q1 is at P.
std::optional<CarriedPoint> carry_along(Point3 p, Point3 q1, Point3 q2, Vector3 move_of_p,
                                        Vector3 move_of_q1, LastCosine &last);

}  // namespace trelvin
