// Regions between an arc of a circle and its chord.
#pragma once

#include "properties/moments.h"

namespace trelvin {

enum class SegmentSize { smaller, larger };

struct CircularSegment {
  Real radius;
  Real angle;      // at the centre
  Real sine;       // of the angle
  Real half_sine;  // sine of half the angle
  Real area;
  Real offset;  // of the centroid from the centre, along the chord's normal
  Point2 centroid;
  Vector2 chord;
};

// The radius is the distance of the first end; the second fixes the angle and the chord.
CircularSegment circular_segment(Point2 centre, Point2 end1, Point2 end2, SegmentSize size);

// The product of inertia is that of the area at its centroid: the segment's own is left out, and stays
// so. It vanishes for a chord parallel to an axis only.
SecondMoments second_moments(const CircularSegment &segment);

}  // namespace trelvin
