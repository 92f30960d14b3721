#include "space/frames.h"

namespace trelvin {
namespace {

Vector3 normalised(Vector3 axis) {
  const Real size = length(axis);
  return size >= tolerance ? axis / size : Vector3{};
}

// Towards +y if it has a y component at all, else towards +z, else towards +x.
Vector3 oriented(Vector3 normal) {
  const Real deciding = significant(normal.y)   ? normal.y
                        : significant(normal.z) ? normal.z
                                                : normal.x;
  return deciding < 0 ? -normal : normal;
}

}  // namespace

Frame frame_of_plane(Point3 p0, Point3 p1, Point3 p2) {
  const Vector3 u = p1 - p0;
  const Vector3 normal = oriented(cross(u, p2 - p0));
  return {normalised(u), normalised(cross(normal, u)), normalised(normal)};
}

std::optional<Frame> frame_of_axis(Point3 p0, Point3 p1, Turn turn) {
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
