// Rounded corners and the boxes of arcs, formed in double precision and rounded once.
#pragma once

#include <optional>

#include "vectors/vectors.h"

namespace trelvin {

// The arc that touches two segments from a corner.
struct RoundedCorner {
  Point2 centre;
  Point2 touch1, touch2;
};

std::optional<RoundedCorner> round_corner(Point2 corner, Point2 p1, Point2 p2, Real radius);

struct Box {
  Point2 lower, upper;
};

// Bounding box of the arc that a point sweeps about a centre. If an argument contains a NaN, all of the
// box is NaN.
Box box_of_sweep(Point2 centre, Point2 on_arc, Real sweep);

}  // namespace trelvin
