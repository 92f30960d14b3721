#include "trelvin/properties.h"

#include "entries/door.h"
#include "properties/circular_segments.h"
#include "properties/polygons.h"
#include "properties/principal_moments.h"
#include "properties/quadrature.h"
#include "properties/section_parts.h"

using namespace trelvin;

namespace {

void write(FirstMoments s, TrvOut sx, TrvOut sy) {
  sx = s.x;
  sy = s.y;
}

void write(SecondMoments i, TrvOut ix, TrvOut iy, TrvOut ixy) {
  ix = i.x;
  iy = i.y;
  ixy = i.xy;
}

}  // namespace

/* Polygons ----------------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvapl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut area) {
  const Door door;
  const Integer count = n;
  close_outline({x, y}, count);
  area = area_of_polygon({x, y}, count);
}

TRELVIN_ROUTINE trvspl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut sx, TrvOut sy) {
  const Door door;
  const Integer count = n;
  close_outline({x, y}, count);
  write(first_moments_of_polygon({x, y}, count), sx, sy);
}

TRELVIN_ROUTINE trvipl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut ix, TrvOut iy,
                       TrvOut ixy) {
  const Door door;
  const Integer count = n;
  close_outline({x, y}, count);
  write(second_moments_of_polygon({x, y}, count), ix, iy, ixy);
}

/* Circular segments -------------------------------------------------------------------------- */

namespace {

SegmentSize size_of(TrvIntIn kind) {
  return kind == code_of(PartKind::larger_segment) ? SegmentSize::larger : SegmentSize::smaller;
}

}  // namespace

TRELVIN_ROUTINE trvacp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut area, TrvOut xs, TrvOut ys) {
  const Door door;
  const CircularSegment segment = circular_segment({xc, yc}, {x1, y1}, {x2, y2}, size_of(kind));
  area = segment.area;
  write(segment.centroid, xs, ys);
}

TRELVIN_ROUTINE trvicp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut ix, TrvOut iy, TrvOut ixy) {
  const Door door;
  const CircularSegment segment = circular_segment({xc, yc}, {x1, y1}, {x2, y2}, size_of(kind));
  write(second_moments(segment), ix, iy, ixy);
}

/* Parts of a section ------------------------------------------------------------------------- */

namespace {

// Closes a polygon's outline: must be called after all inputs are read.
SectionPart closed_part(PlaneArrays points, Integer n, Integer kind, Real value) {
  const SectionPart part = {static_cast<PartKind>(kind), points, n, value};
  if (part.kind == PartKind::polygon) close_outline(points, n);
  return part;
}

}  // namespace

TRELVIN_ROUTINE trvair(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut area) {
  const Door door;
  const Real times = factor;
  const Real given = area;
  const SectionPart part = closed_part({x, y}, n, kind, value);
  area = area_of(part).value_or(given) * times;
}

TRELVIN_ROUTINE trvstm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut sx, TrvInOut sy) {
  const Door door;
  const Real times = factor;
  const FirstMoments given = {sx, sy};
  const SectionPart part = closed_part({x, y}, n, kind, value);
  write(first_moments_of(part).value_or(given) * times, sx, sy);
}

TRELVIN_ROUTINE trvinm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn angle, TrvIn factor, TrvInOut ix, TrvInOut iy, TrvInOut ixy) {
  const Door door;
  const Real turn = angle;
  const Real times = factor;
  const SecondMoments given = {ix, iy, ixy};
  const SectionPart part = closed_part({x, y}, n, kind, value);
  write(second_moments_of(part, given, turn).value_or(given) * times, ix, iy, ixy);
}

/* Whole sections ----------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvinp(TrvIn ix, TrvIn iy, TrvIn ixy, TrvOut i1, TrvOut i2, TrvOut alpha) {
  const Door door;
  const PrincipalMoments principal = principal_moments({ix, iy, ixy});
  i1 = principal.first;
  i2 = principal.second;
  alpha = principal.angle;
}

TRELVIN_ROUTINE trvinr(TrvIntIn n, TrvArrayIn f, TrvIn a, TrvIn b, TrvOut result) {
  const Door door;
  result = integral_by_trapezoids(f, n, a, b);
}
