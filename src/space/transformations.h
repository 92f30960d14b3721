// Moving lists of points of space, in place and one point after the other.
#pragma once

#include "space/frames.h"
#include "space/planes.h"
#include "space/rotations.h"
#include "vectors/vectors.h"

namespace trelvin {

struct AxisAngles {
  Real x, y, z;
};

// By a shift, then about the global axes; what is negligible is left out.
void shift_and_turn(SpaceArrays points, Integer n, Vector3 shift, AxisAngles angles);

// In a frame at p0: by a local shift, then about the local axes.
void shift_and_turn(SpaceArrays points, Integer n, const Frame &frame, Point3 p0, Vector3 shift,
                    const AxisTurns &turns);

// In a frame at p0: about the local axes, then by a global shift.
void turn_and_shift(SpaceArrays points, Integer n, const Frame &frame, Point3 p0,
                    const AxisTurns &turns, Vector3 shift);

// About the first axis of a frame at p0.
void turn_about_axis(SpaceArrays points, Integer n, const Frame &frame, Point3 p0, Turn turn);

// Position, from 1, of the first point whose residual is not within the limit, or 0.
Integer first_off_plane(SpaceArrays points, Integer n, const Plane &plane, Real limit);

}  // namespace trelvin
