// Constructions of a point by lines through an arc's chord.
#pragma once

#include <optional>

#include "circles/arcs.h"
#include "plane/lines.h"
#include "vectors/three_points.h"

namespace trelvin {

// A point, and the arc as it comes back from the chord's frame: rounded.
struct ChordPoint {
  Arc arc;
  Point2 point;
};

// The point that was constructed last; a line that misses the circle takes it again, as if it had
// been found in the chord's frame.
struct LastArcPoint {
  Point2 value = {};
};

// Intersection of the circle and the line through the station s at an angle to the chord, on the side of
// the chord away from the centre. Nothing if there is no arc, or the line is tangent to the circle.
std::optional<ChordPoint> across_station(const Arc &arc, Real s, Real angle, LastArcPoint &last);

// The crossing that was found last, in its chord's frame; a line parallel to the chord uses it again.
struct LastChordCrossing {
  Point2 value = {};
};

struct ChordCrossing {
  ChordPoint found;
  LineRelation relation;  // crossing also if the point is on the chord's line but at no end
};

// A is rotated about the centre; this is where the line through it at an angle to the chord crosses the
// chord.
std::optional<ChordCrossing> below_turned_end(const Arc &arc, Real turn, Real angle,
                                              LastChordCrossing &last, LastCosine &last_cosine);

// The line from a station towards the sagitta as it was found last, and the point on it.
struct LastSagittaLine {
  Point2 station = {};
  Point2 towards = {};
  Point2 point = {};
};

struct SagittaPoint {
  enum { refused, touched, done } status;
  ChordPoint found;  // A is rounded even if the line is tangent to the circle
};

// Where the line from the station s through T meets the circle on T's side of the chord. T is at
// the distance e from the chord's middle towards that of the arc, to which `side` turns A.
SagittaPoint towards_sagitta(const Arc &arc, Real s, Integer side, Real e, LastSagittaLine &last);

}  // namespace trelvin
