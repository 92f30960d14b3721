#include "circles/chords.h"

#include <cmath>

#include "circles/circles.h"
#include "vectors/turns.h"

namespace trelvin {
namespace {

// Coordinates with an arc's A at the origin and its B on the positive x axis.
struct ChordFrame {
  Point2 a;
  Turn chord;  // from the x axis to the chord

  [[nodiscard]] Point2 local(Point2 p) const { return chord.back().of({p.x - a.x, p.y - a.y}); }
  [[nodiscard]] Arc local(const Arc &arc) const {
    return {local(arc.c), local(arc.a), local(arc.b)};
  }
};

// The transformation back, with A as it was given.
ChordPoint leave(const ChordFrame &frame, const Arc &arc, Point2 point, Point2 a) {
  const auto back = [&](Point2 p) {
    const Point2 turned = frame.chord.of(p);
    return Point2{turned.x + a.x, turned.y + a.y};
  };
  return {{back(arc.c), back(arc.a), back(arc.b)}, back(point)};
}

// The angle is negative if y is negative at all; angle_from_x_axis has a tolerance there.
ChordFrame frame_of_chord(Point2 a, Point2 b) {
  const Vector2 chord = b - a;
  const Real angle = angle_between(Vector2{1, 0}, chord);
  return {a, turn_by(chord.y < 0 ? 0 - angle : angle)};
}

bool is_arc(const ArcLengths &lengths) {
  return !(lengths.radius <= tolerance) &&
         !(std::fabs(lengths.radius - lengths.radius_b) > tolerance) &&
         !(lengths.chord <= tolerance);
}

}  // namespace

std::optional<ChordPoint> across_station(const Arc &arc, Real s, Real angle, LastArcPoint &last) {
  const ArcLengths lengths = measure(arc);
  if (!is_arc(lengths)) return std::nullopt;
  const auto station = point_along(arc.a, arc.b, s / lengths.chord);
  if (!station) return std::nullopt;

  const ChordFrame frame = frame_of_chord(arc.a, arc.b);
  const Arc local = frame.local(arc);
  const Line line = line_at_angle(frame.local(*station), angle);
  const Crossings q = crossings_of(line, circle_about(local.c, lengths.radius));
  if (q.count == 1) return std::nullopt;
  Point2 point = last.value;  // which no line has found in this frame
  if (q.count == 2) {
    const Line chord = line_through(local.a, local.b);
    const Real sides = signed_distance(chord, q.first) * signed_distance(chord, local.c);
    point = sides <= tolerance ? q.first : q.second;
  }
  const ChordPoint found = leave(frame, local, point, arc.a);
  last.value = found.point;
  return found;
}

std::optional<ChordCrossing> below_turned_end(const Arc &arc, Real turn, Real angle,
                                              LastChordCrossing &last, LastCosine &last_cosine) {
  if (!is_arc(measure(arc))) return std::nullopt;
  const TurnedPoint r = turn_about(arc.c, arc.a, turn);
  const Arc rounded = {arc.c, r.point, arc.b};

  const ChordFrame frame = frame_of_chord(rounded.a, rounded.b);
  const Arc local = frame.local(rounded);
  const Line line = line_at_angle(frame.local(r.turned.value_or(r.point)), angle);
  const LineIntersection crossing = intersect(line, line_through(local.a, local.b));
  if (crossing) last.value = crossing.point;
  const Point2 x = last.value;
  const ThreePoints place = relation_of_three_points(
      {local.a.x, local.a.y, 0}, {local.b.x, local.b.y, 0}, {x.x, x.y, 0}, last_cosine);
  const bool at_no_end = place > ThreePoints::at_second;
  return ChordCrossing{leave(frame, local, x, arc.a),
                       at_no_end ? LineRelation::crossing : crossing.relation};
}

SagittaPoint towards_sagitta(const Arc &arc, Real s, Integer side, Real e, LastSagittaLine &last) {
  if (s < 0 || e <= tolerance) return {};
  const ArcLengths lengths = measure(arc);
  if (!is_arc(lengths) || lengths.chord - s <= tolerance) return {};
  // Points that coincide by coordinates leave the station, or T, of the call before.
  last.station = point_along(arc.a, arc.b, s / lengths.chord).value_or(last.station);
  const Point2 m = midpoint(arc.a, arc.b);
  const Real phi = angle_between(arc.a - arc.c, arc.b - arc.c);
  const TurnedPoint q = turn_about(arc.c, arc.a, static_cast<Real>(side) * phi * -0.5F);
  const Point2 middle = q.turned.value_or(q.point);
  last.towards = point_along(m, middle, e / distance(middle, m)).value_or(last.towards);
  const Arc rounded = {arc.c, q.point, arc.b};

  const ChordFrame frame = {rounded.a, turn_by(angle_from_x_axis(rounded.b - rounded.a))};
  const Arc local = frame.local(rounded);
  const Point2 t = frame.local(last.towards);
  const Line line = line_through(frame.local(last.station), t);
  const Crossings crossings = crossings_of(line, circle_about(local.c, lengths.radius));
  if (crossings.count == 1) return {SagittaPoint::touched, {rounded, {}}};
  Point2 point = last.point;  // which no line has found in this frame
  if (crossings.count == 2) {
    const Line chord = line_through(local.a, local.b);
    const Real sides = signed_distance(chord, crossings.first) * signed_distance(chord, t);
    point = sides > tolerance ? crossings.first : crossings.second;
  }
  const ChordPoint found = leave(frame, local, point, arc.a);
  last.point = found.point;
  return {SagittaPoint::done, found};
}

}  // namespace trelvin
