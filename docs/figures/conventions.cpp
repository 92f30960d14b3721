// Axes, the sense of angles, of rotations and of outlines.
#include <trelvin/trelvin.h>

#include <array>
#include <cstdio>

#include "figures.h"
#include "profile.h"

namespace figures {
namespace {

Sheet axes(const std::string &name) {
  Sheet sheet(
      name, 620, 300, "Axes of plane and space",
      "In the plane x runs to the right and y upwards, angles run counter-clockwise from the "
      "x axis. In space x, y and z are right-handed, with y drawn upwards.");
  View plane(sheet, {40, 60, 290, 270}, {0, 0, 5, 4.4});
  const Point p{3, 2.4F};
  float phi = 0;
  trvaxph(p.x, p.y, phi);
  require_near(phi, direction(p), "the angle of a direction, counter-clockwise from x");
  plane.axes({}, 195);
  plane.line({}, p);
  plane.turn({}, 80, 0, phi);
  plane.point(p, "(x, y)", {8, 8});
  plane.label(polar(2, 0.5 * phi), "phi", {8, 0}, colours::red);
  plane.line(p, {p.x, 0}, pens::dashed);
  plane.line(p, {0, p.y}, pens::dashed);
  sheet.caption({165, 30}, "plane: angles counter-clockwise from x");

  View space(sheet, {350, 60, 580, 275}, {-0.65, -0.5, 1.05, 1.1});
  std::array<float, 3> z{};
  trvpre(0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, z.data());
  require_at({z[0], z[1], z[2]}, Vector{0, 0, 1}, "x cross y is z");
  space.axes_in_space({}, 1.1F);
  space.sweep({}, {0.45F, 0, 0}, {0, 0.45F, 0}, pens::result);
  space.sweep({}, {0, 0.45F, 0}, {0, 0, 0.45F}, pens::result);
  space.sweep({}, {0, 0, 0.45F}, {0.45F, 0, 0}, pens::result);
  sheet.caption({465, 30}, "space: right-handed");
  return sheet;
}

struct Second {
  float x, y, xy;
};

// About the centroid.
Second second_moments(const Outline &outline, Point *centroid) {
  Coordinates c(outline);
  float area = 0, sx = 0, sy = 0;
  Second about{};
  trvapl(c.x.data(), c.y.data(), c.n, area);
  trvspl(c.x.data(), c.y.data(), c.n, sx, sy);
  trvipl(c.x.data(), c.y.data(), c.n, about.x, about.y, about.xy);
  *centroid = {sy / area, sx / area};
  return {about.x - sx * sx / area, about.y - sy * sy / area, about.xy - sx * sy / area};
}

void principal_axes(View &view, const Outline &outline, bool positive, const char *caption,
                    Offset at) {
  Point s;
  const Second about = second_moments(outline, &s);
  require_at(s, {2, 2}, "the centroid, in the middle of the web");
  float i1 = 0, i2 = 0, alpha = 0;
  trvinp(about.x, about.y, about.xy, i1, i2, alpha);
  require((alpha > 0) == positive, "the sign of alpha");
  Outline turned = outline;  // so that axis 1 comes to lie along x
  for (Point &p : turned) {
    p = p - s;
    trvrot(1, &p.x, &p.y, 1, alpha);
  }
  Point origin;
  const Second principal = second_moments(turned, &origin);
  require_near(principal.x / i1, 1, "I1 about axis 1, at alpha from x");
  require(std::fabs(principal.xy) < 1e-4F * i1, "no product of inertia about axes 1 and 2");

  view.area({outline}, colours::pale);
  view.axes(s, 118);
  const Point one = s + polar(1.9, alpha);
  const Point two = s + polar(1.75, alpha + 0.5 * pi);
  view.line(s + polar(-1.75, alpha), one, pens::axis);
  view.line(s + polar(-1.4, alpha + 0.5 * pi), two, pens::axis);
  view.label(one, "1", {9, positive ? 3.0 : -3.0}, colours::red);
  view.label(two, "2", {positive ? -8.0 : 8.0, 4}, colours::red);
  view.turn(s, 88, 0, alpha);
  view.label(s + polar(1.35, 0.5 * alpha), "alpha", {8, 0}, colours::red);
  view.dot(s, colours::red);
  view.label(s, "S", {-9, positive ? -10.0 : 10.0});
  view.sheet().caption(at, caption);
}

Sheet alpha(const std::string &name) {
  Sheet sheet(name, 640, 330, "The angle alpha of the principal axes",
              "Alpha turns from the x axis to axis 1, counter-clockwise where positive, by at most "
              "an eighth of a turn. Axis 2 is perpendicular to axis 1.");
  const Outline z = {{2.1F, 0.9F}, {2.1F, 2.9F}, {2.8F, 2.9F}, {2.8F, 3.1F},
                     {1.9F, 3.1F}, {1.9F, 1.1F}, {1.2F, 1.1F}, {1.2F, 0.9F}};
  Outline mirrored;
  for (auto p = z.rbegin(); p != z.rend(); ++p) mirrored.push_back({4 - p->x, p->y});
  View left_view(sheet, {30, 40, 310, 310}, {0.2, 0.2, 3.8, 3.8});
  View right_view(sheet, {330, 40, 610, 310}, {0.2, 0.2, 3.8, 3.8});
  principal_axes(left_view, mirrored, true, "alpha > 0", {170, 22});
  principal_axes(right_view, z, false, "alpha < 0", {470, 22});
  return sheet;
}

// The sense in which a routine of space turns unit vectors in the plane of two axes: from the first
// to the second, with the mode other than 1.
template <class Rotation>
void rotation_about(View &view, Rotation rotate, const Vector &first, const Vector &second,
                    const std::string &routine, Offset at) {
  const auto c = static_cast<float>(std::cos(0.5)), s = static_cast<float>(std::sin(0.5));
  Vector p = first;
  rotate(2, p);
  require_at(p, c * first + s * second, routine + " with mode 2");
  p = second;
  rotate(1, p);
  require_at(p, c * second + s * first, routine + " with mode 1");
  view.axes_in_space({}, 1.1F);
  view.sweep({}, 0.8F * first, 0.8F * second, pens::result);
  view.sweep({}, 0.5F * second, 0.5F * first, {colours::blue, 1.4, "5 3"});
  view.sheet().caption(at, routine);
}

void rotation_in_plane(View &view) {
  const Point p{1, 0.15F};
  Point left = p;
  Point right = p;
  trvrot(2, &left.x, &left.y, 1, 0.9F);
  trvrot(1, &right.x, &right.y, 1, 0.9F);
  require_near(direction(left) - direction(p), 0.9, "trvrot with mode 2, counter-clockwise");
  require_near(direction(p) - direction(right), 0.9, "trvrot with mode 1, clockwise");
  view.axes({}, 95);
  view.turn({}, view.pixels(length(p)), direction(p), direction(left));
  view.turn({}, view.pixels(length(p)), direction(p), direction(right),
            {colours::blue, 1.4, "5 3"});
  view.line({}, p);
  view.dot(p);
  view.dot(left, colours::red);
  view.dot(right, colours::blue);
}

Sheet rotation(const std::string &name) {
  Sheet sheet(
      name, 720, 270, "Sense of the rotation routines",
      "trvrot turns counter-clockwise, trvrotx y towards z, trvroty x towards z and trvrotz "
      "x towards y, each with a mode other than 1; with mode 1 the other way.");
  const Box world{-0.65, -0.5, 1.05, 1.1};
  View plane(sheet, {15, 70, 175, 240}, {-0.5, -0.9, 1.4, 1.1});
  rotation_in_plane(plane);
  sheet.caption({90, 48}, "trvrot");
  View x(sheet, {190, 70, 350, 240}, world), y(sheet, {370, 70, 530, 240}, world),
      z(sheet, {550, 70, 710, 240}, world);
  const float none = 0;
  rotation_about(x,
                 [&](std::int32_t mode, Vector &p) { trvrotx(mode, &none, &p.y, &p.z, 1, 0.5F); },
                 {0, 1, 0}, {0, 0, 1}, "trvrotx", {270, 48});
  rotation_about(y,
                 [&](std::int32_t mode, Vector &p) { trvroty(mode, &p.x, &none, &p.z, 1, 0.5F); },
                 {1, 0, 0}, {0, 0, 1}, "trvroty, left-handed", {450, 48});
  rotation_about(z,
                 [&](std::int32_t mode, Vector &p) { trvrotz(mode, &p.x, &p.y, &none, 1, 0.5F); },
                 {1, 0, 0}, {0, 1, 0}, "trvrotz", {630, 48});
  sheet.text({350, 20}, -1, "any mode but 1", colours::red, 13);
  sheet.text({390, 20}, 1, "mode 1 (dashed)", colours::blue, 13);
  return sheet;
}

void turning_outline(View &view, const Outline &outline, double expected, const char *caption,
                     Offset at) {
  const double area = area_of(outline);
  require_near(area, expected, caption);
  view.area({outline}, colours::pale, pens::thin);
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point from = outline[i];
    const Point to = outline[(i + 1) % outline.size()];
    view.arrow(from, from + 0.62F * (to - from));
    view.line(from + 0.5F * (to - from), to);
    view.label(from, std::to_string(i + 1), {from.x < 2 ? -9.0 : 9.0, from.y < 1.5F ? -9.0 : 9.0},
               colours::green, 12);
  }
  char figure[40];
  std::snprintf(figure, sizeof figure, "area = %+.3f", area);
  view.label({2.1F, 1.35F}, figure, {0, 0}, colours::red);
  view.sheet().caption(at, caption);
}

Sheet turning(const std::string &name) {
  Sheet sheet(
      name, 620, 260, "Outlines and the sign of the area",
      "A counter-clockwise outline has a positive area, the same outline clockwise the same "
      "negative one.");
  const Outline left = {{0, 0}, {4, 0.5F}, {4, 2}, {2.5F, 3}, {0.5F, 2.5F}};
  const Outline right(left.rbegin(), left.rend());
  View left_view(sheet, {45, 60, 290, 235}, {0, 0, 4, 3});
  View right_view(sheet, {335, 60, 580, 235}, {0, 0, 4, 3});
  turning_outline(left_view, left, 8.875, "counter-clockwise", {168, 24});
  turning_outline(right_view, right, -8.875, "clockwise", {458, 24});
  return sheet;
}

}  // namespace

std::vector<Figure> convention_figures() {
  return {{"conventions-axes", axes},
          {"conventions-alpha", alpha},
          {"conventions-rotation", rotation},
          {"conventions-turning", turning}};
}

}  // namespace figures
