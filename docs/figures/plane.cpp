// Lines, sides, insides.
#include <trelvin/trelvin.h>

#include <array>
#include <cstdio>

#include "figures.h"

namespace figures {
namespace {

struct Line {
  float a = 0, b = 0, c = 0;
};

Line through(Point p, Point q) {
  Line l;
  trvln3(p.x, p.y, q.x, q.y, l.a, l.b, l.c);
  return l;
}

// A panel of the sheet of lines, with the routine and what it tells.
Panel panel_of(int column, int row, const std::string &routine, const char *meaning,
               const std::function<void(View &)> &draw) {
  const double x = 10 + 170.0 * column, y = 280 - 137.0 * row;
  const auto draw_all = [=](View &view) {
    draw(view);
    view.sheet().text({x + 85, y + 30}, 0, routine, colours::red, 13);
  };
  return {{x + 22, y + 44, x + 148, y + 128}, {0, 0, 3, 2}, draw_all, meaning, y + 15};
}

// Two lines of trvlni, each by two points.
void draw_lines(View &view, const std::array<Point, 4> &p, std::int32_t expected) {
  const Line first = through(p[0], p[1]);
  const Line second = through(p[2], p[3]);
  std::int32_t status = -1;
  Point crossing;
  trvlni(first.a, first.b, first.c, second.a, second.b, second.c, status, crossing.x, crossing.y);
  require(status == expected, "trvlni " + std::to_string(expected));
  view.long_line(p[0], p[1], 8, pens::given);
  view.long_line(p[2], p[3], 8,
                 expected == 1 ? Pen{colours::blue, 2.4, "7 6"} : Pen{colours::blue, 1.6});
  if (status == 0) {
    require_near(cross(crossing - p[0], p[1] - p[0]), 0, "the crossing on the first line");
    require_near(cross(crossing - p[2], p[3] - p[2]), 0, "the crossing on the second line");
    view.dot(crossing, colours::red);
  }
}

Panel two_lines(std::int32_t status, const char *meaning, const std::array<Point, 4> &p) {
  return panel_of(1 + status, 0, "trvlni " + std::to_string(status), meaning,
                  [=](View &view) { draw_lines(view, p, status); });
}

// The same for directed lines AB and CD of space.
void draw_segments(View &view, const std::array<Vector, 4> &p, std::int32_t expected) {
  std::int32_t status = -1;
  trvdirl(p[0].x, p[0].y, p[0].z, p[1].x, p[1].y, p[1].z, p[2].x, p[2].y, p[2].z, p[3].x, p[3].y,
          p[3].z, status);
  require(status == expected, "trvdirl " + std::to_string(expected));
  // Height above the plane of the drawing is drawn as a gap, with its foot dashed.
  const auto flat = [](const Vector &v) { return Point{v.x, v.y}; };
  const bool collinear = expected == 3 || expected == 4;
  if (length(p[1] - p[0]) > 0) view.arrow(flat(p[0]), flat(p[1]));
  if (expected == 6) view.line({1.35F, 0.9F}, {1.65F, 1.1F}, {colours::paper, 9});
  view.arrow(flat(p[2]), flat(p[3]), {colours::blue, 1.6});
  const double up = collinear ? 11 : 0;
  view.label(flat(p[0]), "A", {-9, 4});
  if (length(p[1] - p[0]) > 0)
    view.label(flat(p[1]), "B", {up > 0 ? 0.0 : 9.0, up > 0 ? up : -4.0});
  else
    view.label(flat(p[1]), "= B", {6, 4});
  const double ahead = p[3].x < p[2].x ? -9 : 9;
  view.label(flat(p[2]), "C", {up > 0 ? 0.0 : -ahead, up > 0 ? up : 4.0}, colours::blue);
  view.label(flat(p[3]), "D", {up > 0 ? 0.0 : ahead, up > 0 ? -up : 4.0}, colours::blue);
  if (length(p[1] - p[0]) == 0) view.dot(flat(p[0]));
}

// From the second row on, in the order of the statuses.
Panel segments(std::int32_t status, const char *meaning, const std::array<Vector, 4> &p) {
  return panel_of(status % 4, 1 + status / 4, "trvdirl " + std::to_string(status), meaning,
                  [=](View &view) { draw_segments(view, p, status); });
}

void normal_of_line(View &view) {
  const Point p1{0.2F, 0.3F}, p2{2.6F, 1.5F}, right{1.9F, 0.35F};
  const Line l = through(p1, p2);
  float d = 0;
  trvlds(right.x, right.y, l.a, l.b, l.c, d);
  require(d > 0 && cross(p2 - p1, right - p1) < 0, "the normal to the right of P1 to P2");
  view.arrow(p1, p2);
  const Point middle = 0.5F * (p1 + p2);
  const Point tip = middle + 0.7F * unit({l.a, l.b});
  view.right_angle(middle, p2, tip);
  view.arrow(middle, tip, pens::result);
  view.label(p1, "P1", {-6, 8});
  view.label(p2, "P2", {0, 11});
  view.label(tip, "(a, b)", {8, 0}, colours::red);
}

void side(View &view) {
  const Point p1{0.5F, 0.75F}, p2{6.5F, 3.25F};
  const std::array<Point, 2> points = {{{4.75F, 0.5F}, {2, 3.25F}}};
  const Line l = through(p1, p2);
  view.long_line(p1, p2, 30, pens::thin);
  view.arrow(p1, p2);
  view.point(p1, "P1", {-2, -13});
  view.label(p2, "P2", {-2, 13});
  for (const Point &p : points) {
    float d = 0;
    trvlds(p.x, p.y, l.a, l.b, l.c, d);
    const Line across{-l.b, l.a, l.b * p.x - l.a * p.y};
    std::int32_t status = -1;
    Point foot;
    trvlni(l.a, l.b, l.c, across.a, across.b, across.c, status, foot.x, foot.y);
    require(status == 0, "a foot on the line");
    require_near(dot(p - foot, p2 - p1), 0, "the foot of the perpendicular");
    require_near(length(p - foot), std::fabs(d), "the distance to the foot");
    require((d > 0) == (cross(p2 - p1, p - p1) < 0), "positive to the right");
    view.line(p, foot, pens::result);
    view.right_angle(foot, p, p2);
    view.dot(foot, colours::grey);
    view.dot(p, colours::red);
    const bool right = d > 0;
    view.label(p, right ? "Q" : "R", {right ? 10.0 : -10.0, right ? -4.0 : 4.0});
    view.label(0.5F * (p + foot), right ? "d > 0" : "d < 0", {right ? 10.0 : -10.0, 0},
               colours::red);
  }
}

const Outline yard = {{0, 0}, {8, 0}, {8, 4}, {5.5F, 4}, {5.5F, 1.75F}, {3, 1.75F}, {3, 4}, {0, 4}};

void inside(View &view) {
  const Coordinates c(yard);
  const Point p1{1.25F, 2.25F}, p2{9.5F, 3.25F};
  std::array<float, 8> xi{}, yi{}, t{};
  std::array<std::int32_t, 8> edge{};
  std::int32_t count = 0, status = -1;
  trvpin(c.x.data(), c.y.data(), 8, p1.x, p1.y, p2.x, p2.y, count, xi.data(), yi.data(), t.data(),
         edge.data(), status);
  require(status == 1, "P1 inside");
  require(count == 3 && edge[0] == 6 && edge[1] == 4 && edge[2] == 2, "crossings of edges 6, 4, 2");

  view.area({yard}, colours::pale);
  for (std::size_t i = 0; i < yard.size(); ++i)
    view.number(yard[(i + 7) % 8], yard[i], yard[(i + 1) % 8], static_cast<int>(i) + 1);
  view.line(p1, {xi[0], yi[0]}, pens::result);
  view.line({xi[0], yi[0]}, {xi[1], yi[1]}, pens::dashed);
  view.line({xi[1], yi[1]}, {xi[2], yi[2]}, pens::result);
  view.arrow({xi[2], yi[2]}, p2, pens::dashed);
  for (std::size_t i = 0; i < 3; ++i) {
    const Point crossing{xi[i], yi[i]};
    require_at(crossing, p1 + t[i] * (p2 - p1), "a crossing at its place on the segment");
    char place[40];
    std::snprintf(place, sizeof place, "T = %.3f", static_cast<double>(t[i]));
    view.dot(crossing, colours::red);
    view.label(crossing, place, {i == 0 ? -7.0 : 7.0, 13}, colours::red, 12);
    view.label(crossing, "edge " + std::to_string(edge[i]), {i == 0 ? -7.0 : 7.0, -14},
               colours::grey, 12);
  }
  view.point(p1, "P1", {-9, 0});
  view.label(p2, "P2", {0, 13});
}

}  // namespace

std::vector<Figure> plane_figures() {
  return {
      figure_of(
          "lines", 700, 420, "Relations of two lines",
          "The statuses of trvlni for lines of the plane and of trvdirl for directed lines of "
          "space, a panel each.",
          {panel_of(0, 0, "trvln3", "the normal", normal_of_line),
           two_lines(0, "one point", {{{0, 0.4F}, {3, 1.4F}, {0.6F, 1.9F}, {2.4F, 0.1F}}}),
           two_lines(1, "the same line", {{{0, 0.4F}, {3, 1.4F}, {0.75F, 0.65F}, {2.25F, 1.15F}}}),
           two_lines(2, "parallel, distinct", {{{0, 0.2F}, {3, 1.2F}, {0, 0.9F}, {3, 1.9F}}}),
           segments(0, "they cross", {{{0, 0.5F}, {3, 1.25F}, {0.75F, 2}, {2, 0}}}),
           segments(1, "parallel, same sense", {{{0, 0.5F}, {3, 0.5F}, {0, 1.5F}, {3, 1.5F}}}),
           segments(2, "parallel, opposite", {{{0, 0.5F}, {3, 0.5F}, {3, 1.5F}, {0, 1.5F}}}),
           segments(3, "one line, same sense", {{{0, 1}, {1.25F, 1}, {1.75F, 1}, {3, 1}}}),
           segments(4, "one line, opposite", {{{0, 1}, {1.25F, 1}, {3, 1}, {1.75F, 1}}}),
           segments(5, "right angle", {{{0, 1}, {3, 1}, {1.5F, 0}, {1.5F, 2}}}),
           segments(6, "skew", {{{0, 0, 0}, {3, 2, 0}, {0, 2, 1}, {3, 0, 1}}}),
           segments(7, "no direction", {{{0.5F, 0.5F}, {0.5F, 0.5F}, {0.5F, 1.5F}, {3, 1}}})}),
      figure_of(
          "task-side", 520, 280, "On which side of a line, and how far",
          "The signed distance of a point from the line through P1 and P2 is positive to the "
          "right of the direction from P1 to P2. The foot of the perpendicular is on the line.",
          {{{40, 30, 480, 250}, {0, 0, 7.5, 3.75}, side}}),
      figure_of(
          "task-inside", 600, 330, "Where a segment crosses an outline",
          "The crossings of the segment from P1 to P2 with a closed outline in the order from P1, "
          "each with its place T on the segment and its edge. P1 is inside.",
          {{{50, 45, 550, 290}, {0, 0, 9.5, 4}, inside}})};
}

}  // namespace figures
