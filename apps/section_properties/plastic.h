// Equal-area axes and plastic moduli of an outline.
#pragma once

#include "outline.h"

namespace host {

struct Plastic {
  double wx, wy;  // about the horizontal and the vertical equal-area axis
  double x, y;    // where these are: the vertical one at x, the horizontal one at y
};

// Exact but for double precision, quarter circles included. An axis that may lie anywhere in a gap
// between the halves lies in its middle.
Plastic plastic_of(const Outline &outline);

}  // namespace host
