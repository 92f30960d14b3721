// Local frames of space.
#pragma once

#include <optional>

#include "vectors/three_points.h"
#include "vectors/transforms.h"

namespace trelvin {

// The unit axes of a right-handed frame, by their global components.
struct Frame {
  Vector3 e1, e2, e3;

  // Local coordinates of what lies that far from the frame's origin, and the way back.
  [[nodiscard]] Point3 local(Vector3 offset) const {
    return {dot(e1, offset), dot(e2, offset), dot(e3, offset)};
  }
  [[nodiscard]] Vector3 global(Point3 p) const {
    return {e1.x * p.x + e2.x * p.y + e3.x * p.z, e1.y * p.x + e2.y * p.y + e3.y * p.z,
            e1.z * p.x + e2.z * p.y + e3.z * p.z};
  }
};

// Of three points that span a plane: e1 from the first to the second, e3 normal to the plane. Axes
// found too short to be normalised are zero.
Frame frame_of_plane(Point3 p0, Point3 p1, Point3 p2);

// The same, or nothing where the three-point test finds no plane.
inline std::optional<Frame> frame_of_points(Point3 p0, Point3 p1, Point3 p2, LastCosine &last) {
  if (!span_plane(p0, p1, p2, last)) return std::nullopt;
  return frame_of_plane(p0, p1, p2);
}

// Of an axis: e1 along it, e2 and e3 turned about it from where e2 is nearest to the global y axis.
// Nothing where the points are too near each other.
std::optional<Frame> frame_of_axis(Point3 p0, Point3 p1, Turn turn);

}  // namespace trelvin
