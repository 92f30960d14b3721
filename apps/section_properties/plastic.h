// Plastic neutral axes (equal-area axes) and plastic section moduli of an outline.
#pragma once

#include "outline.h"

namespace host {

struct Plastic {
  double wx, wy;  // section moduli about the horizontal and the vertical axis
  double x, y;    // positions of the axes: the vertical one at x, the horizontal one at y
};

// Exact except for rounding in double precision, also for quarter circles. If an axis may lie anywhere
// in a gap between the halves, it is placed in the middle of the gap.
Plastic plastic_of(const Outline &outline);

}  // namespace host
