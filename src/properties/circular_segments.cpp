#include "properties/circular_segments.h"

#include <cmath>

#include "plane/lines.h"
#include "vectors/angles.h"

namespace trelvin {

CircularSegment circular_segment(Point2 centre, Point2 end1, Point2 end2, SegmentSize size) {
  const bool larger = size == SegmentSize::larger;
  const Real r = distance(centre, end1);
  const Real between_radii = angle_between(end1 - centre, end2 - centre);
  const Real angle = larger ? two_pi - between_radii : between_radii;
  const Real sine_of_angle = sine(angle);
  const Real w = sine(0.5F * angle);
  const Real area = r * r * (angle - sine_of_angle) * 0.5F;

  // The smaller segment's centroid is across the chord, the larger one's on the centre's side.
  const Real across = 4 * r * (w * w * w) / (angle - sine_of_angle) / -3;
  const Real distance_of_centroid = larger ? 0 - across : across;
  const Line chord = line_through(end1, end2);
  const Real norm = square_root(chord.a * chord.a + chord.b * chord.b);
  const Real side = signed_distance(chord, centre);
  const Real offset = distance_of_centroid * side / std::fabs(side);
  const Vector2 to_centroid = {chord.a / norm * offset, offset * chord.b / norm};
  return {r, angle, sine_of_angle, w, area, offset, centre + to_centroid, end2 - end1};
}

SecondMoments second_moments(const CircularSegment &segment) {
  const Real r4 = (segment.radius * segment.radius) * (segment.radius * segment.radius);
  const Real h = segment.half_sine * segment.half_sine;
  const Real excess = segment.angle - segment.sine;

  // About the segment's own axes: that of symmetry, and the centroidal parallel of the chord.
  const Real symmetric = r4 * (3 * excess - 2 * segment.sine * h) / 24;
  const Real parallel = r4 * (excess + 2 * segment.sine * h) * 0.125F -
                        segment.area * (segment.offset * segment.offset);

  const Vector2 chord = segment.chord;
  const Real slope = std::fabs(chord.x) < tolerance ? half_pi : arc_tangent(chord.y / chord.x);
  SecondMoments own = {parallel, symmetric, 0};
  if (slope != 0) {
    const auto [s, c] = sine_cosine(slope);
    own.x = parallel * (c * c) + symmetric * (s * s);
    own.y = parallel * (s * s) + symmetric * (c * c);
  }
  const SecondMoments at_centroid = second_moments_at(segment.centroid, segment.area);
  return {at_centroid.x + own.x, at_centroid.y + own.y, at_centroid.xy};
}

}  // namespace trelvin
