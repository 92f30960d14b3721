// What calls leave for later calls. It is zero when the library is loaded, belongs to the entries, and
// goes down to the kernels by reference: a signature without it can remember nothing.
#pragma once

#include "circles/chords.h"
#include "circles/stations.h"
#include "sections/buckling.h"
#include "space/points_on_lines.h"
#include "trace/trace.h"
#include "vectors/three_points.h"

namespace trelvin {

struct Retained {
  LastCosine three_points;             // of every routine that runs the three-point test
  LastStation line_of_planes;          // of trvln7
  LastBucklingFactor edge_fold;        // of trvefr
  LastCrossings above_station;         // of trvcer8
  LastCrossings on_ray;                // of trvcer6
  LastCrossings above_strip;           // of trvcer9
  LastArcPoint across_station;         // of trvcer4
  LastChordCrossing below_turned_end;  // of trvcer10
  LastSagittaLine towards_sagitta;     // of trvcer5
  TraceFile trace_file;                // of trvcin
};

extern Retained retained;

// Gives back what the library holds of the system, when it is unloaded.
void release();

}  // namespace trelvin
