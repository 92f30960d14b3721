// Stations on an arc, constructions on its chord, rounded corners.
#include <trelvin/trelvin.h>

#include "figures.h"

namespace figures {
namespace {

// Over a chord along x, so that the station is a distance to the right of A.
struct Arc {
  Point c{0, -1}, a{-2, 0}, b{2, 0};
  [[nodiscard]] double radius() const { return length(a - c); }
};

void draw_arc(View &view, const Arc &arc) {
  const double from = direction(arc.b - arc.c), to = direction(arc.a - arc.c);
  view.arc(arc.c, arc.radius(), from - 0.55, from, pens::dashed);
  view.arc(arc.c, arc.radius(), to, to + 0.55, pens::dashed);
  view.arc(arc.c, arc.radius(), from, to, {colours::ink, 2.2});
  view.line(arc.a, arc.b);
  view.point(arc.c, "C", {3, -11});
  view.point(arc.a, "A", {-9, 2});
  view.point(arc.b, "B", {9, 2});
}

void require_on_arc(const Arc &arc, Point p, const std::string &routine) {
  require_near(length(p - arc.c), arc.radius(), routine + ": the point on the circle");
}

// --- stations -----------------------------------------------------------------------------------

// The station at d = 1.25 with its point, by trvcer6 or trvcer8.
template <class Routine, class Draw>
void point_above_station(View &view, const std::string &routine, Routine call, Draw draw) {
  const Arc arc;
  const float d = 1.25F;
  Point p;
  std::int32_t status = 0;
  call(arc.c.x, arc.c.y, arc.a.x, arc.a.y, arc.b.x, arc.b.y, 1, d, p.x, p.y, status);
  const Point station = arc.a + Point{d, 0};
  require(status == 1 && p.y > 0, routine + ": a point above the chord, for side 1");
  require_on_arc(arc, p, routine);
  draw_arc(view, arc);
  draw(arc, station, p);
  view.point(p, "(x, y)", {-6, 12}, colours::red);
  view.across(arc.a, station, -24, "d", View::Letter::before);
}

void perpendicular_station(View &view) {
  point_above_station(view, "trvcer8", trvcer8, [&](const Arc &arc, Point station, Point p) {
    require_near(dot(p - station, arc.b - arc.a), 0, "trvcer8: perpendicular to the chord");
    view.line(station, p, pens::result);
    view.right_angle(station, p, arc.b);
  });
}

void radial_station(View &view) {
  point_above_station(view, "trvcer6", trvcer6, [&](const Arc &arc, Point station, Point p) {
    require_near(cross(p - arc.c, station - arc.c), 0,
                 "trvcer6: on the line from C through the station");
    view.line(arc.c, p, pens::result);
    view.dot(station, colours::grey);
  });
}

void strip(View &view) {
  const Arc arc;
  const float d = 1.5F, w = 1.25F;
  Point p, q;
  std::int32_t status = 0;
  trvcer9(arc.c.x, arc.c.y, arc.a.x, arc.a.y, arc.b.x, arc.b.y, 1, d, w, p.x, p.y, q.x, q.y,
          status);
  require(status == 1, "trvcer9: points above both edges");
  require_on_arc(arc, p, "trvcer9");
  require_on_arc(arc, q, "trvcer9");
  require_near(p.x - arc.a.x, d - 0.5 * w, "trvcer9: the first point above d - w/2");
  require_near(q.x - arc.a.x, d + 0.5 * w, "trvcer9: the second point above d + w/2");
  const Point station = arc.a + Point{d, 0};
  draw_arc(view, arc);
  view.line({p.x, 0}, p, pens::result);
  view.line({q.x, 0}, q, pens::result);
  view.line(station, station + Point{0, 0.9F}, pens::axis);
  view.point(p, "(x1, y1)", {-5, 12}, colours::red);
  view.point(q, "(x2, y2)", {5, 12}, colours::red);
  view.across(arc.a, station, -20, "d", View::Letter::before);
  view.across({p.x, 0}, {q.x, 0}, 22, "w", View::Letter::behind);
}

Panel station_panel(int column, const char *caption, void (*draw)(View &)) {
  const double x = 30 + 220 * column;
  return {{x, 55, x + 200, 215}, {-2.4, -1.7, 2.4, 1.4}, draw, caption, 22};
}

// --- constructions ------------------------------------------------------------------------------

constexpr Box construction_world{-2.4, -1.7, 2.4, 1.5};
constexpr Pen ray{colours::blue, 1.4};

void line_at_angle(View &view) {
  const Arc given;
  Arc arc = given;
  const float s = 1.25F, angle = 1.1F;
  Point o;
  std::int32_t status = 0;
  trvcer4(arc.c.x, arc.c.y, arc.a.x, arc.a.y, arc.b.x, arc.b.y, s, angle, o.x, o.y, status);
  const Point station = given.a + Point{s, 0};
  require(status == 1 && o.y > 0, "trvcer4: a point across the chord from the centre");
  require_on_arc(given, o, "trvcer4");
  require_near(direction(o - station), angle, "trvcer4: at the angle from the chord");
  draw_arc(view, given);
  view.line(station, o, pens::result);
  view.turn(station, 26, 0, angle, ray);
  view.label(station + polar(0.75, 0.5 * angle), "angle", {4, 0}, colours::blue, 12);
  view.point(o, "O", {-2, 12}, colours::red);
  view.across(given.a, station, -20, "s", View::Letter::before);
}

void chord_and_turned_end(View &view) {
  const Arc given;
  Arc arc = given;
  const float turn = -1.2F, angle = 2.1F;
  Point o{99, 99};
  std::int32_t status = -1;
  trvcer10(arc.c.x, arc.c.y, arc.a.x, arc.a.y, arc.b.x, arc.b.y, turn, angle, o.x, o.y, status);
  const double from = direction(given.a - given.c);
  const Point turned = given.c + polar(given.radius(), from + turn);
  require_near(o.y, 0, "trvcer10: O on the chord");
  require_near(cross(turned - o, polar(1, angle)), 0, "trvcer10: the line at the angle");
  draw_arc(view, given);
  view.line(given.c, turned, pens::dashed);
  view.line(given.c, given.a, pens::dashed);
  view.turn(given.c, 22, from, from + turn, ray);
  view.label(given.c + polar(0.85, from + 0.3 * turn), "turn", {-6, 8}, colours::blue, 12);
  view.line(o, turned, pens::result);
  view.turn(o, 20, 0, angle, ray);
  view.label(o, "angle", {18, 14}, colours::blue, 12);
  view.dot(turned);
  view.point(o, "O", {4, -12}, colours::red);
}

void towards_sagitta(View &view) {
  const Arc given;
  Arc arc = given;
  const float s = 0.9F, e = 0.6F;
  Point o;
  std::int32_t status = 0;
  trvcer5(arc.c.x, arc.c.y, arc.a.x, arc.a.y, arc.b.x, arc.b.y, s, 1, e, o.x, o.y, status);
  const Point station = given.a + Point{s, 0};
  const Point middle = 0.5F * (given.a + given.b);
  const Point t = middle + Point{0, e};
  require(status == 1 && o.y > 0, "trvcer5: a point on T's side");
  require_on_arc(given, o, "trvcer5");
  require_near(cross(o - station, t - station), 0, "trvcer5: on the line through T");
  draw_arc(view, given);
  view.line(station, o, pens::result);
  view.line(middle, t, pens::thin);
  view.point(t, "T", {-7, 8});
  view.point(o, "O", {8, 8}, colours::red);
  view.across(given.a, station, -20, "s", View::Letter::before);
  view.upright(middle, t, 14, "e");
}

void station_parallel_arc(View &view) {
  const Arc given;
  Arc arc = given;
  const float s = 0.9F, e = 0.75F, angle = 0.85F;
  Point p, t, o;
  float len = 0;
  std::int32_t status = 0;
  trvcer7(arc.c.x, arc.c.y, arc.a.x, arc.a.y, arc.b.x, arc.b.y, s, 1, e, angle, p.x, p.y, t.x, t.y,
          o.x, o.y, len, status);
  require(status == 1, "trvcer7: P, T and O");
  require_at(p, given.a + Point{s, 0}, "trvcer7: P at the station");
  require_near(t.y, e, "trvcer7: T at the distance e");
  require_near(cross(t - p, polar(1, angle)), 0, "trvcer7: T on the line");
  require_near(cross(o - p, polar(1, angle)), 0, "trvcer7: O on the line");
  require_near(length(o - p), len, "trvcer7: the length of PO");
  require_on_arc(given, o, "trvcer7");
  draw_arc(view, given);
  view.line({-1.85F, e}, {1.85F, e}, pens::dashed);
  view.line(p, o, pens::result);
  view.turn(p, 24, 0, angle, ray);
  view.label(p + polar(0.62, 0.4 * angle), "angle", {5, 0}, colours::blue, 12);
  view.point(p, "P", {3, -12}, colours::red);
  view.point(t, "T", {-8, 8}, colours::red);
  view.point(o, "O", {6, 10}, colours::red);
  view.across(given.a, p, -20, "s", View::Letter::before);
  view.upright(Point{1.3F, 0}, Point{1.3F, e}, 0, "e");
}

void from_sagitta(View &view) {
  const Point p1{-1.9F, -0.25F}, p2{1.9F, 0.25F};
  const float h = 0.9F;
  float r = 0;
  Point c;
  std::int32_t n = 0;
  trvcer1(p1.x, p1.y, p2.x, p2.y, 1, h, r, c.x, c.y, n);
  require(n == 2, "trvcer1: a centre");
  const Point middle = 0.5F * (p1 + p2);
  require_near(length(p1 - c), r, "trvcer1: P1 on the circle");
  require_near(length(p2 - c), r, "trvcer1: P2 on the circle");
  require(cross(p2 - p1, c - p1) < 0, "trvcer1: side 1 is to the right of P1 to P2");
  require_near(r - length(middle - c), h, "trvcer1: the sagitta");
  view.arc(c, r, direction(p2 - c), direction(p1 - c), {colours::ink, 2.2});
  view.arrow(p1, p2);
  const Point top = c + r * unit(middle - c);
  view.along(top, middle, 0, "h");
  view.line(c, p2, pens::dashed);
  view.label(0.5F * (c + p2), "r", {8, -5}, colours::red);
  view.point(c, "(xc, yc)", {-8, -2}, colours::red);
  view.label(p1, "P1", {-4, -12});
  view.label(p2, "P2", {8, -8});
}

void two_centres(View &view) {
  const Point p1{-0.9F, -0.35F}, p2{0.9F, 0.1F};
  const float r = 1.2F;
  Point a, b, c;
  std::int32_t n = 0;
  trvcer2(p1.x, p1.y, p2.x, p2.y, 1, r, a.x, a.y, b.x, b.y, c.x, c.y, n);
  require(n == 2, "trvcer2: two centres");
  for (const Point &centre : {a, b})
    for (const Point &p : {p1, p2}) require_near(length(p - centre), r, "trvcer2: on the circle");
  require(cross(p2 - p1, c - p1) < 0, "trvcer2: side 1 is to the right of P1 to P2");
  const Point other = length(c - a) < length(c - b) ? b : a;
  view.circle(other, r, pens::dashed);
  view.circle(c, r, pens::given);
  view.arrow(p1, p2);
  view.line(c, p2, pens::thin);
  view.label(0.5F * (c + p2), "r", {7, -4}, colours::red);
  view.point(c, "(xc, yc)", {0, -12}, colours::red);
  view.point(other, "side < 0", {0, 12}, colours::grey, 12);
  view.label(p1, "P1", {-9, -4});
  view.label(p2, "P2", {9, 4});
}

void two_arcs(View &view) {
  const Arc arc;
  float s1 = 0, s2 = 0;
  std::int32_t status = 0;
  trvarc1(arc.c.x, arc.c.y, arc.a.x, arc.a.y, arc.b.x, arc.b.y, s1, s2, status);
  const double from = direction(arc.b - arc.c), to = direction(arc.a - arc.c);
  require(status == 1, "trvarc1: lengths");
  require_near(s1, arc.radius() * (to - from), "trvarc1: the shorter arc");
  require_near(s2, arc.radius() * (2 * pi - to + from), "trvarc1: the longer arc");
  view.arc(arc.c, arc.radius(), from, to, pens::result);
  view.arc(arc.c, arc.radius(), to, from + 2 * pi, {colours::blue, 1.8});
  for (const Point &p : {arc.a, arc.b}) view.line(arc.c, p, pens::dashed);
  view.point(arc.a, "A", {-9, 4});
  view.point(arc.b, "B", {9, 4});
  view.point(arc.c, "C", {0, -12});
  view.label(arc.c + Point{0, static_cast<float>(arc.radius())}, "s1", {0, -12}, colours::red);
  view.label(arc.c - Point{0, static_cast<float>(arc.radius())}, "s2", {0, 12}, colours::blue);
}

void box_of_arc(View &view) {
  const Point c{0, -0.6F}, a{1.7F, 0};
  const float sweep = 2.3F;
  Point low, high;
  trvenv(c.x, c.y, a.x, a.y, sweep, low.x, low.y, high.x, high.y);
  const double r = length(a - c), from = direction(a - c);
  require_near(high.y, c.y + r, "trvenv: the top of the circle is on the arc");
  require_near(high.x, a.x, "trvenv: the start on the right edge");
  require_near(low.x, c.x + r * std::cos(from + sweep), "trvenv: the end on the left edge");
  view.area({{low, {high.x, low.y}, high, {low.x, high.y}}}, colours::none, pens::dashed);
  view.turn(c, view.pixels(r), from, from + sweep, {colours::ink, 2});
  view.line(c, a, pens::thin);
  view.turn(c, 28, from, from + sweep, ray);
  view.label(c, "sweep", {0, 38}, colours::blue, 12);
  view.point(c, "C", {0, -12});
  view.point(a, "A", {9, -6});
  view.point(low, "min", {-6, -9}, colours::red, 12);
  view.point(high, "max", {5, 9}, colours::red, 12);
}

Panel construction_panel(int column, int row, const char *caption, void (*draw)(View &),
                         const Box &world = construction_world) {
  const double x = 20 + 221.0 * column, y = 240 - 215.0 * row;
  return {{x, y + 25, x + 196, y + 185}, world, draw, caption, y};
}

// --- corners ------------------------------------------------------------------------------------

void fillet(View &view) {
  const Point p0{0.5F, 0.5F}, p1{6, 1}, p2{2, 4};
  const float r = 1.25F;
  Point c, t1, t2;
  std::int32_t status = 0;
  trvard(p0.x, p0.y, p1.x, p1.y, p2.x, p2.y, r, c.x, c.y, t1.x, t1.y, t2.x, t2.y, status);
  require(status == 1, "an arc");
  require_near(length(t1 - c), r, "T1 on the arc");
  require_near(length(t2 - c), r, "T2 on the arc");
  require_near(cross(t1 - p0, p1 - p0), 0, "T1 on the segment to P1");
  require_near(cross(t2 - p0, p2 - p0), 0, "T2 on the segment to P2");
  require_near(dot(t1 - c, p1 - p0), 0, "the arc touches the segment to P1");
  require_near(dot(t2 - c, p2 - p0), 0, "the arc touches the segment to P2");
  view.path({t1, p0, t2}, pens::dashed);
  view.line(t1, p1, {colours::ink, 2.2});
  view.line(t2, p2, {colours::ink, 2.2});
  view.arc(c, r, direction(t2 - c), direction(t1 - c) + 2 * pi, pens::result);
  view.line(c, t1, pens::thin);
  view.line(c, t2, pens::thin);
  view.right_angle(t1, c, p1);
  view.right_angle(t2, c, p2);
  view.point(p0, "P0", {-9, -4});
  view.point(p1, "P1", {10, 2});
  view.point(p2, "P2", {6, 10});
  view.point(c, "C", {9, 6}, colours::red);
  view.point(t1, "T1", {4, -13}, colours::red);
  view.point(t2, "T2", {-10, 2}, colours::red);
  view.label(0.5F * (c + t1), "r", {8, 4}, colours::blue);
}

}  // namespace

std::vector<Figure> circle_figures() {
  return {
      figure_of(
          "arc-stations", 700, 250, "Stations on an arc",
          "The point of the arc from A to B about C above a station d of its chord: "
          "perpendicular to the chord, on the line from the centre, and above both edges of a "
          "strip of width w. The side is 1.",
          {station_panel(0, "trvcer8", perpendicular_station),
           station_panel(1, "trvcer6", radial_station), station_panel(2, "trvcer9", strip)}),
      figure_of(
          "arc-constructions", 900, 440, "Constructions on arcs and chords",
          "What trvcer4, trvcer10, trvcer5, trvcer7, trvcer1, trvcer2, trvarc1 and trvenv find: "
          "the points P, T and O and the angles by which they are given.",
          {construction_panel(0, 0, "trvcer4", line_at_angle),
           construction_panel(1, 0, "trvcer10", chord_and_turned_end),
           construction_panel(2, 0, "trvcer5", towards_sagitta),
           construction_panel(3, 0, "trvcer7", station_parallel_arc),
           construction_panel(0, 1, "trvcer1, side 1", from_sagitta),
           construction_panel(1, 1, "trvcer2, side 1", two_centres),
           construction_panel(2, 1, "trvarc1", two_arcs, {-2.6, -3.4, 2.6, 1.5}),
           construction_panel(3, 1, "trvenv", box_of_arc)}),
      figure_of(
          "task-fillet", 520, 300, "A rounded corner",
          "The arc of radius r that rounds the corner at P0: its centre C, and T1 and T2 where it "
          "touches the segments to P1 and P2.",
          {{{60, 40, 470, 265}, {0.3, 0.3, 6, 4}, fillet}})};
}

}  // namespace figures
