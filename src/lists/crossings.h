// Crossings of closed outlines with lines and segments of the plane.
#pragma once

#include "plane/outlines.h"

namespace trelvin {

// Writes where the line y = y0 crosses an outline, ascending, and returns how often it does.
Integer cross_level(const Outline &outline, Real y0, Real *crossings);

// Whether a point is inside by the even-odd rule. For a point on the outline, the point immediately to
// its right is tested; if that is also on the outline, the point immediately above.
bool inside(const Outline &outline, Point2 p);

struct CrossingArrays {
  Real *x, *y;
  Real *t;        // places on the segment, from 0 to 1
  Integer *edge;  // from 1
};

// Writes where a segment crosses an outline, by place, then by edge, and returns how often it does.
Integer cross_segment(const Outline &outline, Point2 p1, Point2 p2,
                      const CrossingArrays &crossings);

}  // namespace trelvin
