#include "space/intersections.h"

#include "plane/lines.h"
#include "space/frames.h"

namespace trelvin {

SpaceIntersection intersect(Point3 a, Vector3 u, Point3 c, Vector3 w, Point2 instead,
                            LastCosine &last) {
  const Point3 b = a + u;
  const Point3 d = c + w;
  const PlaneOfLinesStatus status = plane_of_lines({a, b}, {c, d}, last).status;
  if (status != PlaneOfLinesStatus::done) return {status, {}, {}, {}};

  // Frame of the origin, u and d - a. These need not span a plane even if the lines do; the frame is
  // then all zero.
  const Vector3 to_d = d - a;
  const Frame frame =
      frame_of_points(origin, {u.x, u.y, u.z}, {to_d.x, to_d.y, to_d.z}, last).value_or(Frame{});
  const auto seen = [&](Vector3 offset) { return frame.local(offset).in_plane(); };
  const LineIntersection crossing =
      intersect(line_through(seen(a - a), seen(b - a)), line_through(seen(c - a), seen(to_d)));
  const Point2 local = crossing ? crossing.point : instead;
  return {status, a - a, c - a, a + frame.global({local.x, local.y, 0})};
}

}  // namespace trelvin
