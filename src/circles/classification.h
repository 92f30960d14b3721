// Circles against a line and the x axis.
#pragma once

#include "circles/circles.h"
#include "trace/trace.h"

namespace trelvin {

enum class CirclePosition : Integer { above = 1, below, cut_below, cut_above };

struct Classification {
  CirclePosition position;
  Crossings crossings;
};

Classification classify(Point2 centre, Point2 on_circle, const Line &line);

// What a trace file says about it.
TraceRecord record_of(const Classification &classification);

}  // namespace trelvin
