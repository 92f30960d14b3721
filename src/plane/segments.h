// Stations of points along a segment, and sectors of the plane.
#pragma once

#include <cmath>

#include "plane/lines.h"
#include "vectors/angles.h"
#include "vectors/three_points.h"

namespace trelvin {

struct Foot {
  Real distance;  // of a point from the segment's line
  Real along;     // from the segment's end to the foot, never negative
};

// The line is the segment's in the plane, `length` the point's distance from the end in space.
inline Foot foot_on(const Line &line, Point2 p, Real length) {
  const Real d = std::fabs(signed_distance(line, p));
  return {d, square_root(length * length - d * d)};
}

// The sector at a vertex between two rays, as the lines of the rays bound it.
struct Sector {
  Point2 vertex, first;
  Line first_ray, second_ray;

  // Whether p is between the lines, with the foot of its perpendicular on the first ray's side of the
  // vertex. If the ray is longer than the tolerance, the perpendicular always crosses it. If there is a
  // NaN, no foot counts as beyond the vertex.
  [[nodiscard]] bool holds(Point2 p, LastCosine &last) const {
    if (signed_distance(first_ray, p) * signed_distance(second_ray, p) < 0) return false;
    const Point2 foot = intersect(perpendicular_through(p, first_ray), first_ray).point;
    const ThreePoints place = relation_of_three_points(
        {vertex.x, vertex.y, 0}, {first.x, first.y, 0}, {foot.x, foot.y, 0}, last);
    return place != ThreePoints::beyond_first;
  }
};

// Marks points: 1 inside, 2 outside; all -1 if the rays have the same direction.
inline void mark_by_sector(Point2 vertex, Point2 first, Point2 second, const Real *x, const Real *y,
                           Integer n, Integer *marks, LastCosine &last) {
  const bool no_sector = negligible(angle_between(first - vertex, second - vertex));
  const Sector rays = {vertex, first, line_through(vertex, first), line_through(vertex, second)};
  for (Integer i = 0; i < n; ++i) {
    marks[i] = no_sector ? -1 : rays.holds({x[i], y[i]}, last) ? 1 : 2;
  }
}

}  // namespace trelvin
