#include "space/transformations.h"

namespace trelvin {
namespace {

template <class Move>
void transform(SpaceArrays points, Integer n, Move move) {
  for (Integer i = 0; i < n; ++i) points.set(i, move(points[i]));
}

}  // namespace

void shift_and_turn(SpaceArrays points, Integer n, Vector3 shift, AxisAngles angles) {
  const bool shifts = significant(shift.x) || significant(shift.y) || significant(shift.z);
  if (shifts) move_origin(points, n, -shift);
  if (significant(angles.x)) rotate({points.y, points.z}, n, turn_by(angles.x));
  if (significant(angles.y)) rotate({points.x, points.z}, n, turn_by(angles.y));
  if (significant(angles.z)) rotate({points.x, points.y}, n, turn_by(angles.z));
}

void shift_and_turn(SpaceArrays points, Integer n, const Frame &frame, Point3 p0, Vector3 shift,
                    const AxisTurns &turns) {
  transform(points, n,
            [=](Point3 p) { return p0 + frame.global(turns.of(frame.local(p - p0) + shift)); });
}

void turn_and_shift(SpaceArrays points, Integer n, const Frame &frame, Point3 p0,
                    const AxisTurns &turns, Vector3 shift) {
  transform(points, n, [=, centre = p0 + shift](Point3 p) {
    return centre + frame.global(turns.of(frame.local(p - p0)));
  });
}

void turn_about_axis(SpaceArrays points, Integer n, const Frame &frame, Point3 p0, Turn turn) {
  transform(points, n, [=](Point3 p) {
    Point3 local = frame.local(p - p0);
    turn.apply(local.y, local.z);
    return p0 + frame.global(local);
  });
}

Integer first_off_plane(SpaceArrays points, Integer n, const Plane &plane, Real limit) {
  const auto off = [&](Integer i) {
    return !within(limit, residual_with_d_second(plane, points[i]));
  };
  Integer count = 0;  // of all, without leaving the loop: so it takes several points at a time
  for (Integer i = 0; i < n; ++i) count += off(i) ? 1 : 0;
  if (count == 0) return 0;
  Integer first = 0;
  while (!off(first)) ++first;
  return first + 1;
}

}  // namespace trelvin
