#include "space/lines.h"

#include "plane/lines.h"
#include "space/frames.h"

namespace trelvin {

SpaceLineRelation relation_of_lines(const SpaceLine &first, const SpaceLine &second,
                                    LastCosine &last) {
  using R = SpaceLineRelation;
  const Vector3 u = first.along();
  const Vector3 v = second.along();
  if (negligible(u) || negligible(v)) return R::null;

  // Both tests run, in this order: each may leave the cosine that the next one goes by.
  const bool start_off = span_plane(first.start, first.end, second.start, last);
  const bool end_off = span_plane(first.start, first.end, second.end, last);
  const bool same_line = !start_off || !end_off;

  const Real cosine = cosine_between(u, v);
  if (negligible(cosine - 1)) return same_line ? R::same : R::parallel;
  if (negligible(1 + cosine)) return same_line ? R::same_opposite : R::parallel_opposite;
  if (span_space(u, v, second.start - first.start)) return R::skew;
  return negligible(cosine) ? R::perpendicular : R::crossing;
}

bool is_near(const SpaceLine &line, Point3 q, Real limit) {
  return within(limit, distance_by_start_y(line, q));
}

Real signed_distance(const SpaceLine &line, Point3 q, LastCosine &last) {
  const auto [a, b] = line;
  if (coincide(a, b)) return distance(a, q);
  const auto frame = frame_of_points(a, b, q, last);
  if (!frame) return 0;
  const auto seen = [&](Point3 p) { return frame->local(p - origin).in_plane(); };
  return signed_distance(line_through(seen(a), seen(b)), seen(q));
}

std::optional<CarriedPoint> carry_along(Point3 p, Point3 q1, Point3 q2, Vector3 move_of_p,
                                        Vector3 move_of_q1, LastCosine &last) {
  using R = SpaceLineRelation;
  const R relation = relation_of_lines({q2, p}, {q1, p}, last);
  if (relation == R::crossing || relation == R::perpendicular) return std::nullopt;
  const Real d1 = distance(q1, p);
  const Real d2 = distance(q2, p);
  if (negligible(d1)) return std::nullopt;
  const Real k = relation == R::same_opposite ? -(d2 / d1) : d2 / d1;
  const Point3 moved = p + move_of_p;
  const Vector3 v = (q1 + move_of_q1) - moved;
  return CarriedPoint{relation, {moved.x + k * v.x, moved.y + k * v.y, moved.z + k * v.z}};
}

}  // namespace trelvin
