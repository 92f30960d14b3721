#include "circles/stations.h"

#include <cmath>

namespace trelvin {
namespace {

// Lengths on an arc are compared with more than the library's tolerance.
constexpr Real arc_tolerance = 0.001F;

bool off_the_arc(const ArcLengths &lengths) {
  return lengths.radius <= arc_tolerance ||
         std::fabs(lengths.radius - lengths.radius_b) > arc_tolerance;
}

bool off_the_chord(const ArcLengths &lengths, Real d) {
  return lengths.chord <= arc_tolerance || d <= arc_tolerance || lengths.chord - d <= arc_tolerance;
}

// The ends of a chord that is longer than the arc's tolerance do not coincide.
Point2 station_on_chord(const Arc &arc, Real t) {
  return point_along(arc.a, arc.b, t).value_or(arc.a);
}

Line perpendicular_to_chord(const Arc &arc, Point2 p) {
  return perpendicular_through(p, line_through(arc.a, arc.b));
}

// Projects along `line` onto the circle and picks a crossing by the side of the first.
Point2 project(const Arc &arc, Real radius, const Line &line, Integer side, LastCrossings &last) {
  last.take(crossings_of(line, circle_about(arc.c, radius)));
  const Real turned = cross(arc.a - arc.c, last.first - arc.c);
  return static_cast<Real>(side) * turned < 0 ? last.first : last.second;
}

}  // namespace

std::optional<Point2> point_above_station(const Arc &arc, Integer side, Real d,
                                          LastCrossings &last) {
  const ArcLengths lengths = measure(arc);
  if (off_the_arc(lengths) || off_the_chord(lengths, d)) return std::nullopt;
  const Point2 p = station_on_chord(arc, d / lengths.chord);
  return project(arc, lengths.radius, perpendicular_to_chord(arc, p), side, last);
}

std::optional<Point2> point_on_ray(const Arc &arc, Integer side, Real d, LastCrossings &last) {
  const ArcLengths lengths = measure(arc);
  if (off_the_arc(lengths) || off_the_chord(lengths, d)) return std::nullopt;
  if (std::fabs(d - 2 * lengths.radius) < arc_tolerance) return std::nullopt;
  const Point2 p = station_on_chord(arc, d / lengths.chord);
  return project(arc, lengths.radius, line_through(arc.c, p), side, last);
}

std::optional<StripPoints> points_above_strip(const Arc &arc, Integer side, Real d, Real w,
                                              LastCrossings &last) {
  const ArcLengths lengths = measure(arc);
  const Real chord = lengths.chord;
  const Real h = w * 0.5F;
  const bool long_enough = chord > arc_tolerance && d > arc_tolerance && w > arc_tolerance;
  if (off_the_arc(lengths) || !long_enough || chord - d <= arc_tolerance) return std::nullopt;
  if (d - h < arc_tolerance || chord - d - h < arc_tolerance) return std::nullopt;
  const auto above = [&](Real station) {
    const Point2 p = station_on_chord(arc, station / chord);
    return project(arc, lengths.radius, perpendicular_to_chord(arc, p), side, last);
  };
  const Point2 first = above(d - h);  // kept if the other edge finds nothing
  return StripPoints{first, above(h + d)};
}

}  // namespace trelvin
