// The line through a station of an arc's chord, and what it crosses.
#pragma once

#include <optional>

#include "circles/arcs.h"

namespace trelvin {

struct StationLine {
  Point2 station;
  Point2 on_parallel;  // to the chord, at the distance e
  Point2 on_arc;
  Real length;  // from the station to the arc
};

// Formed in double precision and rounded once. A positive side is the left of the chord, a negative
// one its right, zero none; a NaN gives nothing.
std::optional<StationLine> line_through_station(const Arc &arc, Real s, Integer side, Real e,
                                                Real angle);

}  // namespace trelvin
