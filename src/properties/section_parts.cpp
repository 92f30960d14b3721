#include "properties/section_parts.h"

#include "properties/circular_segments.h"
#include "properties/polygons.h"

namespace trelvin {
namespace {

Real radius_of(PlaneArrays points) { return distance(points[0], points[1]); }

Real area_of_circle(Real r) { return pi * r * r; }

CircularSegment segment_of(const SectionPart &part) {
  const bool larger = part.kind == PartKind::larger_segment;
  return circular_segment(part.points[0], part.points[1], part.points[2],
                          larger ? SegmentSize::larger : SegmentSize::smaller);
}

// Each value takes those before it as turned already, so this is not the rotation of a tensor, and
// stays as it is.
SecondMoments turned(SecondMoments i, Real angle) {
  if (angle == 0) return i;
  const auto [s, c] = sine_cosine(angle);
  const Real t = sine(2 * angle);
  i.x = i.x * (c * c) + i.y * (s * s) - i.xy * t;
  i.y = i.y * (c * c) + s * s * i.x + i.xy * t;
  i.xy = ((i.x - i.y) * 0.5F + i.xy) * t;
  return i;
}

SecondMoments second_moments_of_circle(Point2 centre, Real r) {
  const Real own = (r * r) * (r * r) * pi * 0.25F;
  const Real area = area_of_circle(r);
  return {area * (centre.y * centre.y) + own, own + area * (centre.x * centre.x),
          area * centre.x * centre.y};
}

}  // namespace

std::optional<Real> area_of(const SectionPart &part) {
  switch (part.kind) {
    case PartKind::concentrated_area:
      return part.area;
    case PartKind::polygon:
      return area_of_polygon(part.points, part.n);
    case PartKind::full_circle:
      return area_of_circle(radius_of(part.points));
    case PartKind::smaller_segment:
    case PartKind::larger_segment:
      return segment_of(part).area;
  }
  return std::nullopt;
}

std::optional<FirstMoments> first_moments_of(const SectionPart &part) {
  switch (part.kind) {
    case PartKind::concentrated_area:
      return first_moments_at(part.points[0], part.area);
    case PartKind::polygon:
      return first_moments_of_polygon(part.points, part.n);
    case PartKind::full_circle:
      return first_moments_at(part.points[0], area_of_circle(radius_of(part.points)));
    case PartKind::smaller_segment:
    case PartKind::larger_segment: {
      const CircularSegment segment = segment_of(part);
      return first_moments_at(segment.centroid, segment.area);
    }
  }
  return std::nullopt;
}

std::optional<SecondMoments> second_moments_of(const SectionPart &part, SecondMoments own,
                                               Real angle) {
  switch (part.kind) {
    case PartKind::concentrated_area:
      return second_moments_at(part.points[0], part.area) + turned(own, angle);
    case PartKind::polygon:
      return second_moments_of_polygon(part.points, part.n);
    case PartKind::full_circle:
      return second_moments_of_circle(part.points[0], radius_of(part.points));
    case PartKind::smaller_segment:
    case PartKind::larger_segment:
      return second_moments(segment_of(part));
  }
  return std::nullopt;
}

}  // namespace trelvin
