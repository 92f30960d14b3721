// Frames, rotations and planes of space.
#include <trelvin/trelvin.h>

#include <array>

#include "figures.h"

namespace figures {
namespace {

struct Frame {
  Vector e1, e2, e3;
};

Frame frame_of(const Vector &p0, const Vector &p1, const Vector &p2) {
  Frame f;
  std::int32_t status = -1;
  trvaxe(p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, f.e1.x, f.e1.y, f.e1.z, f.e2.x,
         f.e2.y, f.e2.z, f.e3.x, f.e3.y, f.e3.z, status);
  require(status == 0, "a frame of three points");
  return f;
}

Frame frame_of_axis(const Vector &p0, const Vector &p1, float angle) {
  Frame f;
  std::int32_t status = -1;
  trvaxel(p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, angle, f.e1.x, f.e1.y, f.e1.z, f.e2.x, f.e2.y, f.e2.z,
          f.e3.x, f.e3.y, f.e3.z, status);
  require(status == 0, "a frame of an axis");
  return f;
}

void require_right_handed(const Frame &f) {
  require_near(length(f.e1), 1, "e1 of length 1");
  require_near(dot(f.e1, f.e2), 0, "e1 and e2 at right angles");
  require_at(cross(f.e1, f.e2), f.e3, "e3 = e1 x e2");
}

void draw_frame(View &view, const Vector &at, const Frame &f, float size,
                const std::array<Offset, 3> &beside) {
  const std::array<Vector, 3> axes = {f.e1, f.e2, f.e3};
  for (std::size_t i = 0; i < 3; ++i) {
    const Point tip = seen(at + size * axes[i]);
    view.arrow(seen(at), tip, pens::result);
    view.label(tip, "e" + std::to_string(i + 1), beside[i], colours::red);
  }
}

void frame_of_points(View &view) {
  const Vector p0{0, 0, 0}, p1{2, 0, 0.25F}, p2{1.1F, 0.9F, -1.2F};
  const Frame f = frame_of(p0, p1, p2);
  require_right_handed(f);
  require(f.e3.y > 0, "e3 towards +y");
  require_near(dot(f.e3, p2 - p0), 0, "P2 in the plane of e1 and e2");
  view.area({{seen(p0), seen(p1), seen(p2)}}, colours::pale, pens::thin);
  view.axes_in_space({-0.7F, -0.75F, 0}, 0.4F);
  draw_frame(view, p0, f, 1, {{{2, -12}, {9, 2}, {9, 4}}});
  view.label(seen(p0), "P0", {-10, 4});
  view.point(seen(p1), "P1", {9, 4});
  view.point(seen(p2), "P2", {9, -8});
}

void frame_of_member(View &view) {
  const Vector p0{0, 0, 0}, p1{2.25F, 0.5F, -0.25F};
  const float angle = 0.6F;
  const Frame straight = frame_of_axis(p0, p1, 0);
  const Frame turned = frame_of_axis(p0, p1, angle);
  require_right_handed(straight);
  require_right_handed(turned);
  require_near(straight.e3.y, 0, "e3 at angle 0 is level");
  require(straight.e2.y > 0, "e2 at angle 0 points upwards");
  require_near(dot(cross(straight.e2, turned.e2), straight.e1), std::sin(angle),
               "angle right-handed about e1");
  view.axes_in_space({-0.7F, -0.65F, 0}, 0.4F);
  view.line(seen(p0), seen(p1), {colours::ink, 3});
  view.arrow(seen(p0), seen(p0 + straight.e2), pens::dashed);
  view.arrow(seen(p0), seen(p0 + straight.e3), pens::dashed);
  draw_frame(view, p0, turned, 1, {{{0, 12}, {-8, 6}, {-9, 0}}});
  view.sweep(p0, 0.7F * straight.e2, 0.7F * turned.e2, {colours::blue, 1.4});
  view.sweep(p0, 0.7F * straight.e3, 0.7F * turned.e3, {colours::blue, 1.4});
  view.label(seen(p0 + 0.9F * straight.e2), "angle", {12, 10}, colours::blue);
  view.label(seen(p0), "P0", {8, -10});
  view.point(seen(p1), "P1", {0, 13});
}

// --- rotations ----------------------------------------------------------------------------------

void turn_about_centre(View &view) {
  const Point centre{0.5F, 0.25F};
  Point p{2.25F, 0.5F};
  const Point given = p;
  Point turned;
  std::int32_t status = -1;
  const float angle = 1.1F;
  trvcer3(centre.x, centre.y, p.x, p.y, angle, turned.x, turned.y, status);
  require(status == 1, "a turned point");
  const double from = direction(given - centre);
  require_near(direction(turned - centre) - from, angle,
               "angle counter-clockwise about the centre");
  view.line(centre, given, pens::thin);
  view.line(centre, turned, pens::thin);
  view.turn(centre, view.pixels(length(given - centre)), from, from + angle);
  view.label(centre + polar(0.8, from + 0.5 * angle), "angle", {0, 0}, colours::red);
  view.dot(turned, colours::red);
  view.point(centre, "(x0, y0)", {0, -13});
  view.point(given, "(x, y)", {0, -13});
  view.label(turned, "(xr, yr)", {0, 13});
}

void turn_about_axis(View &view) {
  const Vector p0{-0.2F, -0.9F, 0.2F}, p1{0.3F, 0.75F, -0.1F};
  const Vector given{0.9F, 0.1F, 0.6F};
  Vector turned = given;
  const float angle = 1.7F;
  std::int32_t status = -1;
  trvpra(p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, &turned.x, &turned.y, &turned.z, 1, angle, status);
  require(status == 0, "an axis");
  const Vector axis = static_cast<float>(1 / length(p1 - p0)) * (p1 - p0);
  const Vector foot = p0 + static_cast<float>(dot(given - p0, axis)) * axis;
  const Vector r = given - foot;
  require_near(dot(turned - foot, axis), 0, "the turned point at the same height on the axis");
  require_near(dot(cross(r, turned - foot), axis), dot(r, r) * std::sin(angle),
               "angle right-handed about P0 to P1");
  view.arrow(seen(p0), seen(p1));
  view.line(seen(foot), seen(given), pens::thin);
  view.line(seen(foot), seen(turned), pens::thin);
  view.sweep(foot, r, turned - foot, pens::result);
  view.label(seen(p0), "P0", {-9, 0});
  view.label(seen(p1), "P1", {9, 4});
  view.point(seen(given), "Q", {-4, -12});
  view.point(seen(turned), "turned", {4, 12}, colours::red);
}

void turn_of_plane(View &view) {
  const Vector p0{-0.9F, 0, 0}, p1{0.9F, 0, 0}, p2{0.9F, 0, 1.1F};
  const float angle = 0.6F;
  Vector normal;
  float d = 0;
  std::int32_t status = -1;
  trvpl7(p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, angle, normal.x, normal.y, normal.z,
         d, status);
  const Frame f = frame_of(p0, p1, p2);
  require(status == 0, "a turned plane");
  require_near(dot(normal, p0) + d, 0, "P0 on the turned plane");
  require_near(dot(cross(f.e3, normal), f.e1), std::sin(angle),
               "angle right-handed about P0 to P1");
  const Vector down = 1.1F * cross(f.e1, normal);
  const Vector away = p2 - p1;
  const float sense = dot(down, away) > 0 ? 1.0F : -1.0F;
  const Vector edge = sense * down;
  view.area({{seen(p0), seen(p1), seen(p1 + edge), seen(p0 + edge)}}, colours::pale, pens::thin);
  view.area({{seen(p0), seen(p1), seen(p2), seen(p0 + away)}}, colours::none, pens::dashed);
  view.arrow(seen(p0), seen(p1));
  view.sweep(p1, away, edge, pens::result);
  const Vector middle = 0.5F * (p0 + p1) + 0.5F * edge;
  view.arrow(seen(middle), seen(middle + 0.5F * normal), pens::result);
  view.label(seen(middle + 0.5F * normal), "(a, b, c)", {-8, 0}, colours::red);
  view.label(seen(p0), "P0", {-9, -6});
  view.label(seen(p1), "P1", {8, 6});
  view.point(seen(p2), "P2", {9, -4});
}

// --- tasks --------------------------------------------------------------------------------------

void member(View &view) {
  const Vector p0{0, 0, 0}, p1{5, 1.5F, 1}, q{2.9F, 1.6F, 1.3F};
  const Frame f = frame_of_axis(p0, p1, 0);
  require_right_handed(f);
  require(f.e2.y > 0, "e2 upwards");
  std::array<float, 3> local = {q.x - p0.x, q.y - p0.y, q.z - p0.z};
  trvtrn(local.data(), f.e1.x, f.e1.y, f.e1.z, f.e2.x, f.e2.y, f.e2.z, f.e3.x, f.e3.y, f.e3.z, 2);
  require_at(p0 + local[0] * f.e1 + local[1] * f.e2 + local[2] * f.e3, q,
             "local coordinates along e1, e2, e3");
  const Vector on_axis = p0 + local[0] * f.e1;
  const Vector above = on_axis + local[1] * f.e2;
  view.axes_in_space({-1.2F, -0.8F, 0}, 0.6F);
  view.line(seen(p0), seen(p1), {colours::steel, 9});
  view.line(seen(p0), seen(p1), pens::thin);
  draw_frame(view, p0, f, 1, {{{2, 11}, {0, 10}, {-9, -4}}});
  view.path({seen(on_axis), seen(above), seen(q)}, pens::dashed);
  view.dot(seen(q), colours::red);
  view.point(seen(p0), "P0", {6, -13});
  view.point(seen(p1), "P1", {10, 4});
  view.label(seen(q), "Q", {-3, -12});
  view.label(seen(on_axis + 0.5F * (above - on_axis)), "along e2", {9, 4}, colours::grey, 12);
  view.label(seen(above + 0.5F * (q - above)), "along e3", {-6, 8}, colours::grey, 12);
  view.point(seen(on_axis), "along e1", {14, -16}, colours::grey, 12);
}

void plane(View &view) {
  const Vector p0{0, 0, 2}, p1{4, 0.5F, 1.5F}, p2{1, 0.75F, -1.5F}, q{2.2F, 2.4F, 0.5F};
  Vector normal;
  float d = 0, distance = 0;
  std::int32_t status = -1;
  trvpl1(p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, normal.x, normal.y, normal.z, d,
         status);
  require(status == 0, "a plane of three points");
  require_at(normal, cross(p1 - p0, p2 - p0), "the normal (P1 - P0) x (P2 - P0)");
  trvpld(q.x, q.y, q.z, normal.x, normal.y, normal.z, d, distance);
  Vector foot;
  trvpli(q.x, q.y, q.z, normal.x, normal.y, normal.z, normal.x, normal.y, normal.z, d, foot.x,
         foot.y, foot.z, status);
  require(status == 0, "a foot in the plane");
  require(distance > 0, "a positive distance on the normal's side");
  require_near(length(q - foot), distance, "the distance to the foot");
  require_near(dot(q - foot, p1 - p0), 0, "the perpendicular");
  const Vector p3 = p1 + p2 - p0;
  view.area({{seen(p0), seen(p1), seen(p3), seen(p2)}}, colours::pale, pens::dashed);
  view.area({{seen(p0), seen(p1), seen(p2)}}, colours::steel, pens::outline);
  const Vector n = static_cast<float>(1.1 / length(normal)) * normal;
  const Vector middle = (1 / 3.0F) * (p0 + p1 + p2);
  view.arrow(seen(middle), seen(middle + n), {colours::blue, 1.6});
  view.label(seen(middle + n), "(a, b, c)", {-8, 4}, colours::blue);
  view.line(seen(q), seen(foot), pens::result);
  view.dot(seen(q), colours::red);
  view.label(seen(q), "Q", {10, 4});
  view.label(seen(q + 0.5F * (foot - q)), "distance", {9, 0}, colours::red);
  view.point(seen(foot), "foot", {9, -5}, colours::grey, 12);
  view.label(seen(p0), "P0", {-9, -4});
  view.label(seen(p1), "P1", {9, -4});
  view.label(seen(p2), "P2", {-9, 6});
}

}  // namespace

std::vector<Figure> space_figures() {
  return {
      figure_of(
          "frames", 690, 310, "The frames of trvaxe and trvaxel",
          "The unit axes e1, e2, e3 of the plane through three points, and those of an axis from "
          "P0 to P1; dashed e2 and e3 at angle 0, e2 upwards.",
          {{{30, 50, 330, 290},
            {-1, -0.8, 2.1, 1.3},
            frame_of_points,
            "trvaxe: e1 from P0 to P1, e3 towards +y",
            24},
           {{370, 50, 660, 290},
            {-1, -0.8, 2.1, 1.2},
            frame_of_member,
            "trvaxel: e2, e3 turned by angle about e1",
            24}}),
      figure_of(
          "rotations", 790, 270, "Rotations about a centre and about an axis",
          "trvcer3 turns a point of the plane counter-clockwise about a centre, trvpra points of "
          "space right-handed about the axis from P0 to P1, and trvpl7 a plane likewise.",
          {{{30, 60, 210, 250}, {0, 0, 2.5, 2.3}, turn_about_centre, "trvcer3", 24},
           {{250, 60, 450, 250}, {-1.1, -1.1, 1.1, 1.1}, turn_about_axis, "trvpra", 24},
           {{500, 50, 770, 255}, {-1.5, -0.95, 1.1, 1}, turn_of_plane, "trvpl7", 24}}),
      figure_of(
          "task-member", 560, 330, "The local frame of a member",
          "A member from P0 to P1 with e1 along it, e2 upwards and e3 to the side, and the local "
          "coordinates of a point Q.",
          {{{40, 30, 520, 220}, {-1.6, -0.9, 4.1, 1.2}, member}}),
      figure_of("task-plane", 560, 300, "A plane, and the distance of a point from it",
                "The plane through P0, P1 and P2 with its normal (a, b, c), and the foot of the "
                "perpendicular from Q.",
                {{{50, 40, 510, 270}, {-1, -1.3, 5.4, 1.7}, plane}})};
}

}  // namespace figures
