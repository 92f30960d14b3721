// Points of an arc that belong to stations of its chord.
#pragma once

#include <optional>

#include "circles/arcs.h"
#include "circles/circles.h"

namespace trelvin {

// The crossings of a projecting line and the circle that were found last. If a line is tangent to the
// circle or misses it, the crossings that it does not find are those of an earlier line.
struct LastCrossings {
  Point2 first = {};
  Point2 second = {};

  void take(const Crossings &found) {
    if (found.count > 0) first = found.first;
    if (found.count > 1) second = found.second;
  }
};

// At the distance d from A along the chord, on the perpendicular to the chord.
std::optional<Point2> point_above_station(const Arc &arc, Integer side, Real d,
                                          LastCrossings &last);

// On the ray from the centre instead.
std::optional<Point2> point_on_ray(const Arc &arc, Integer side, Real d, LastCrossings &last);

// Above both edges of a strip of the width w, with its middle at d.
struct StripPoints {
  Point2 first, second;  // as seen from A
};

std::optional<StripPoints> points_above_strip(const Arc &arc, Integer side, Real d, Real w,
                                              LastCrossings &last);

}  // namespace trelvin
