// What calls leave for later calls. It is zero when the library is loaded, belongs to the entries, and
// goes down to the kernels by reference: a signature without it can remember nothing.
#pragma once

#include "sections/buckling.h"
#include "space/points_on_lines.h"
#include "vectors/three_points.h"

namespace trelvin {

struct Retained {
  LastCosine three_points;       // of every routine that runs the three-point test
  LastStation line_of_planes;    // of trvln7
  LastBucklingFactor edge_fold;  // of trvefr
};

extern Retained retained;

}  // namespace trelvin
