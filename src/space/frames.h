// Local frames of space.
#pragma once

#include <optional>

#include "vectors/three_points.h"
#include "vectors/turns.h"

namespace trelvin {

// The unit axes of a right-handed frame, by their global components.
struct Frame {
  Vector3 e1, e2, e3;

  // Local coordinates of an offset from the frame's origin, and the inverse.
  [[nodiscard]] Point3 local(Vector3 offset) const {
    return {dot(e1, offset), dot(e2, offset), dot(e3, offset)};
  }
  [[nodiscard]] Vector3 global(Point3 p) const {
    return {e1.x * p.x + e2.x * p.y + e3.x * p.z, e1.y * p.x + e2.y * p.y + e3.y * p.z,
            e1.z * p.x + e2.z * p.y + e3.z * p.z};
  }
};

// Unit vector, or zero if the axis is too short.
inline Vector3 normalised(Vector3 axis) {
  const Real size = length(axis);
  return size >= tolerance ? axis / size : Vector3{};
}

// Towards +y if it has a y component at all, else towards +z, else towards +x.
inline Vector3 oriented(Vector3 normal) {
  Real deciding = normal.x;
  if (significant(normal.z)) deciding = normal.z;
  if (significant(normal.y)) deciding = normal.y;
  return deciding < 0 ? -normal : normal;
}

// Frame of three points that span a plane: e1 from the first to the second, e3 normal to the plane.
inline Frame frame_of_plane(Point3 p0, Point3 p1, Point3 p2) {
  const Vector3 u = p1 - p0;
  const Vector3 normal = oriented(cross(u, p2 - p0));
  return {normalised(u), normalised(cross(normal, u)), normalised(normal)};
}

// Frame of three points, or nothing if the three-point test finds no plane.
inline std::optional<Frame> frame_of_points(Point3 p0, Point3 p1, Point3 p2, LastCosine &last) {
  if (!span_plane(p0, p1, p2, last)) return std::nullopt;
  return frame_of_plane(p0, p1, p2);
}

// Frame of an axis: e1 along it, e2 and e3 rotated about it from where e2 is nearest to the global y
// axis. Nothing if the points are too near each other.
inline std::optional<Frame> frame_of_axis(Point3 p0, Point3 p1, Turn turn) {
  const Vector3 axis = p1 - p0;
  const Real size = length(axis);
  if (negligible(size)) return std::nullopt;
  const Vector3 u = axis / size;

  // The global y axis freed of its component along u, and u x y; neither exists for u along y.
  const Real q = u.x * u.x + u.z * u.z;
  const Real r = square_root(q);
  Vector3 e2 = {-u.x * u.y / r, q / r, -u.z * u.y / r};
  Vector3 e3 = {-u.z / r, 0, u.x / r};
  turn.apply(e3.x, e2.x);
  turn.apply(e3.y, e2.y);
  turn.apply(e3.z, e2.z);
  return Frame{u, e2, e3};
}

}  // namespace trelvin
