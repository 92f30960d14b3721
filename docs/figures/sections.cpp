// Parts of a section, whole sections, plates.
#include <trelvin/trelvin.h>

#include "figures.h"
#include "profile.h"
#include "thin_plates.h"

namespace figures {
namespace {

struct Part {
  std::int32_t kind;
  std::vector<Point> points;
  float value = 0;
  float factor = 1;
};

float area_of(const Part &part) {
  Coordinates c(part.points);
  float area = 0;
  trvair(c.x.data(), c.y.data(), c.n, part.kind, part.value, part.factor, area);
  return area;
}

void draw_part(View &view, const Part &part) {
  const Point c = part.points[0];
  if (part.kind == 2) {
    view.area({part.points}, colours::steel);
  } else if (part.kind == 3) {
    view.circle(c, length(part.points[1] - c), pens::outline, colours::steel);
    view.line(c, part.points[1], pens::thin);
  } else if (part.kind >= 4) {
    const Point from = part.points[1] - c, to = part.points[2] - c;
    view.circle(c, length(from), pens::dashed);
    view.segment(c, length(from), direction(from), direction(to) + (part.kind == 5 ? -2 * pi : 0),
                 colours::steel);
  } else {
    view.circle(c, 0.12, pens::outline, colours::steel);
  }
  for (std::size_t i = 0; i < part.points.size(); ++i) {
    const Point &p = part.points[i];
    view.dot(p, colours::green);
    const bool centre = i == 0;
    view.label(p, std::to_string(i + 1),
               centre && part.kind != 2 ? Offset{0, -13}
                                        : Offset{p.x < 0 ? -7.0 : 7.0, p.y < 0 ? -7.0 : 7.0},
               colours::green, 12);
  }
}

Panel part_panel(const Part &part, double expected, const char *meaning) {
  const double x = 10 + 136.0 * (part.kind - 1);
  const auto draw = [=](View &view) {
    require_near(area_of(part), expected, std::string("the area of ") + meaning);
    draw_part(view, part);
    view.sheet().text({x + 68, 48}, 0, "kind " + std::to_string(part.kind), colours::red, 13);
  };
  return {{x + 18, 75, x + 118, 175}, {-1.15, -1.15, 1.15, 1.15}, draw, meaning, 30};
}

std::vector<Panel> parts() {
  const Point centre{0, 0}, right{0.8F, 0.6F}, left{-0.8F, 0.6F};
  const Outline quadrangle{{-0.9F, -0.8F}, {0.9F, -0.8F}, {0.9F, 0.2F}, {-0.9F, 0.8F}};
  const double half_angle = std::acos(0.6);
  const double smaller = half_angle - 0.5 * std::sin(2 * half_angle);
  return {part_panel({1, {centre}, 3}, 3, "area at a point"),
          part_panel({2, quadrangle}, 2.34, "polygon"),
          part_panel({3, {centre, right}}, pi, "full circle"),
          part_panel({4, {centre, right, left}}, smaller, "smaller segment"),
          part_panel({5, {centre, right, left}}, pi - smaller, "larger segment")};
}

// --- a section of parts ---------------------------------------------------------------------------

struct Section {
  float area = 0, sx = 0, sy = 0, ix = 0, iy = 0, ixy = 0;
};

void add(Section *section, const Part &part) {
  Coordinates c(part.points);
  Section p;
  trvair(c.x.data(), c.y.data(), c.n, part.kind, part.value, part.factor, p.area);
  trvstm(c.x.data(), c.y.data(), c.n, part.kind, part.value, part.factor, p.sx, p.sy);
  trvinm(c.x.data(), c.y.data(), c.n, part.kind, part.value, 0, part.factor, p.ix, p.iy, p.ixy);
  *section = {section->area + p.area, section->sx + p.sx, section->sy + p.sy,
              section->ix + p.ix,     section->iy + p.iy, section->ixy + p.ixy};
}

void hole(View &view) {
  const Outline outline = {{0.5F, 0.5F}, {6.5F, 0.5F}, {6.5F, 2}, {3, 4.5F}, {0.5F, 4.5F}};
  const Point centre{2, 2.75F}, on_circle{2.75F, 2.75F};
  Section section;
  add(&section, {2, outline});
  add(&section, {3, {centre, on_circle}, 0, -1});
  const Point s{section.sy / section.area, section.sx / section.area};
  // A rectangle of 6 by 4 less a triangle of 3.5 by 2.5, less the circle.
  require_near(section.area, 24 - 4.375 - pi * 0.5625, "the area less the hole");
  require_near(s.y * section.area, 24 * 2.5 - 4.375 * 11 / 3 - pi * 0.5625 * 2.75, "S, y");
  require_near(section.ix, 182 - 60.338542 - 13.612547, "the second moment about the x axis");
  const float ix = section.ix - section.sx * section.sx / section.area;
  const float iy = section.iy - section.sy * section.sy / section.area;
  const float ixy = section.ixy - section.sx * section.sy / section.area;
  float i1 = 0, i2 = 0, alpha = 0;
  trvinp(ix, iy, ixy, i1, i2, alpha);
  require_near(i1 + i2, ix + iy, "the sum of the moments");
  require_near(i1 * i2, ix * iy - ixy * ixy, "the determinant of the moments");
  require_near((ix - iy) * std::sin(2 * alpha) + 2 * ixy * std::cos(2 * alpha), 0,
               "no product of inertia about the principal axes");
  view.area({outline}, colours::steel);
  view.circle(centre, length(on_circle - centre), pens::outline, colours::paper);
  view.axes({}, 66);
  const Point one = s + polar(4.1, alpha), two = s + polar(2.6, alpha + 0.5 * pi);
  view.line(s - polar(2.6, alpha), one, pens::axis);
  view.line(s - polar(2.2, alpha + 0.5 * pi), two, pens::axis);
  view.line(s, s + Point{3.9F, 0}, pens::dashed);
  view.turn(s, 150, 0, alpha);
  view.label(s + polar(2.5, 0.5 * alpha), "alpha", {4, 0}, colours::red);
  view.label(one, "1", {9, 0}, colours::red);
  view.label(two, "2", {alpha < 0 ? 8.0 : -8.0, 6}, colours::red);
  view.point(s, "S", {8, 12}, colours::red);
}

// --- plates -----------------------------------------------------------------------------------------

struct Effective {
  float be1 = -1, be2 = -1;
};

constexpr float root_of_fy = 15.329709F, root_of_reference = 15.329709F;  // of 235

Effective effective(float bl, float w, float t, float s1, float s2) {
  Effective e;
  trvef2(bl, w, t, root_of_fy, root_of_reference, s1, s2, e.be1, e.be2);
  require(e.be1 > 0 && e.be2 > 0, "two effective widths");
  return e;
}

// A plate along x with its stresses above it, compression upwards. `w` counts from the edge of s1.
void draw_stresses(View &view, float s2) {
  constexpr float b = 6, s1 = 1;
  const float psi = s2 / s1;
  const float w = psi < 0 ? b / (1 - psi) : b;
  const Effective e = effective(b, w, 0.035F, s1, s2);
  require(e.be1 + e.be2 < w, "less than the compressed width is effective");
  if (psi < 0) require_near(e.be1 / e.be2, 4.0 / 6, "0.4 and 0.6 of the effective width");
  if (psi > 0)
    require_near(e.be1 / (e.be1 + e.be2), 2 / (5 - psi), "2/(5 - psi) at the edge of s1");
  const float rise = 1.1F, level = 1.6F;
  const float zero = psi < 0 ? b / (1 - psi) : b;
  view.area({{{0, level},
              {0, level + rise * s1},
              {zero, psi < 0 ? level : level + rise * s2},
              {zero, level}}},
            colours::pale, {colours::red, 1.2});
  if (psi < 0)
    view.area({{{zero, level}, {b, level}, {b, level + rise * s2}}}, colours::none,
              {colours::red, 1.2});
  const auto plate = [&](float from, float to, const char *fill) {
    view.area({{{from, -0.15F}, {to, -0.15F}, {to, 0.15F}, {from, 0.15F}}}, fill);
  };
  plate(0, b, colours::paper);
  plate(0, e.be1, colours::blue);
  plate(w - e.be2, w, colours::blue);
  if (psi < 0) plate(w, b, colours::steel);
  view.across({0, -0.15F}, {e.be1, -0.15F}, -18, "be1", View::Letter::before);
  view.across({w - e.be2, -0.15F}, {w, -0.15F}, -18, "be2", View::Letter::behind);
  view.across({0, -0.15F}, {w, -0.15F}, -44, "w", View::Letter::behind);
  view.label({0, level + rise * s1}, "s1", {0, 10}, colours::red);
  view.label({b, level + rise * s2}, "s2", {8, 0}, colours::red);
}

Panel stress_panel(double x, double y, float s2, const char *meaning) {
  const auto draw = [=](View &view) {
    draw_stresses(view, s2);
    view.sheet().caption({x + 122, y}, meaning);
  };
  return {{x, y + 75, x + 245, y + 200}, {0, 0, 6, 3}, draw};
}

void plate(View &view) {
  constexpr float b = 6, s1 = 1, s2 = -0.8F;
  const float w = b * s1 / (s1 - s2);
  const Effective e = effective(b, w, 0.04F, s1, s2);
  require_near(e.be1 / e.be2, 4.0 / 6, "0.4 and 0.6 of the effective width");
  require(e.be1 + e.be2 < w, "a gap between be1 and be2");
  const float t = 0.12F;
  const auto web = [&](float from, float to, const char *fill) {  // from the compressed edge
    view.area({{{-t, b - to}, {t, b - to}, {t, b - from}, {-t, b - from}}}, fill);
  };
  web(0, b, colours::paper);
  web(0, e.be1, colours::blue);
  web(w - e.be2, w, colours::blue);
  web(w, b, colours::steel);
  for (const float y : {b, -0.3F})
    view.area({{{-1.3F, y}, {1.3F, y}, {1.3F, y + 0.3F}, {-1.3F, y + 0.3F}}}, colours::steel);
  view.upright({t, b}, {t, b - e.be1}, 34, "be1");
  view.upright({t, b - w + e.be2}, {t, b - w}, 34, "be2");
  view.upright({t, b}, {t, b - w}, 92, "w");
  const float x0 = 3.2F;
  view.area({{{x0, b}, {x0 + 1.2F * s1, b}, {x0, b - w}}}, colours::pale, {colours::red, 1.2});
  view.area({{{x0, b - w}, {x0 + 1.2F * s2, 0}, {x0, 0}}}, colours::none, {colours::red, 1.2});
  view.label({x0 + 1.2F * s1, b}, "s1 > 0", {0, 12}, colours::red);
  view.label({x0 + 1.2F * s2, 0}, "s2 < 0", {0, -12}, colours::red);
  view.long_line({-2.4F, b - w}, {x0, b - w}, 10, pens::dashed);
  view.label({-2.4F, b - w}, "zero line", {-14, 0}, colours::grey, 12);
  view.upright({-1.3F, 0}, {-1.3F, b}, -46, "bl");
}

// The centre lines of a lipped channel as plates, from the upper lip's end to the lower one's.
std::vector<host::Plate> lipped_channel(float B, float H, float C, float t) {
  const float b = B - t, h = 0.5F * (H - t), c = C - 0.5F * t;
  return {{b, h - c, b, h, t},
          {b, h, 0, h, t},
          {0, h, 0, -h, t},
          {0, -h, b, -h, t},
          {b, -h, b, c - h, t}};
}

void shear_centre(View &view) {
  const float B = 80, H = 140, C = 30, t = 4;
  const host::ThinSection section = host::thin_section(lipped_channel(B, H, C, t));
  require(section.status == 0, "properties of the plates");
  const Point centroid{section.xs, section.ys}, centre{section.xm, section.ym};
  float e0 = 0;
  trvshc_c(B, H, C, t, e0);
  require(centre.x < 0 && centroid.x > 0, "S behind the web, G before it");
  require_near(centre.y, 0, "S on the axis of symmetry");
  require_near(centroid.x - centre.x, e0, "trvshc_c and trvmxt agree on e0");
  Profile outline =
      profile(host::section_from(trvsec_c, H, B, B, C, C, 0.0F, 0.0F, t, t, t, t, t, t, t));
  for (Point &p : outline.polygons[0]) p = p + Point{0.5F * (B - t), 0};  // web's centre line at 0
  view.area(outline.polygons);
  view.long_line(centre, {B, 0}, 26, pens::axis);
  view.dot(centroid, colours::red);
  view.dot(centre, colours::red);
  view.label(centroid, "G", {4, 13}, colours::red);
  view.label(centre, "S", {-4, 13}, colours::red);
  view.across(centre, centroid, -34, "e0", View::Letter::behind);
  view.upright({0.5F * t, -0.5F * H}, {0.5F * t, 0.5F * H}, -130, "H");
  view.across({-0.5F * t, 0.5F * H}, {B - 0.5F * t, 0.5F * H}, 20, "B");
  view.upright({B - 0.5F * t, -0.5F * H}, {B - 0.5F * t, C - 0.5F * H}, 26, "C");
  view.across({B - 1.5F * t, 0.5F * H - C}, {B - 0.5F * t, 0.5F * H - C}, -20, "t",
              View::Letter::behind);
}

}  // namespace

std::vector<Figure> section_figures() {
  return {
      figure_of(
          "parts", 700, 205, "The five kinds of part of a section",
          "Area at a point, polygon, full circle, smaller and larger circular segment, with the "
          "numbers of their points.",
          parts()),
      figure_of(
          "stresses", 760, 470, "Stresses and effective widths of a plate",
          "Stress from s1 to s2 along a plate, compression upwards, and the effective widths be1 "
          "and be2 in blue. Where s2 is tension, w is the compressed part.",
          {stress_panel(70, 245, 1, "s2 = s1"), stress_panel(445, 245, 0.4F, "0 < s2 < s1"),
           stress_panel(70, 15, -0.5F, "-s1 < s2 < 0"), stress_panel(445, 15, -1, "s2 = -s1")}),
      figure_of("task-hole", 560, 340, "A polygon with a hole",
                "A polygon less a round hole, with its centroid S and the principal axes 1 and 2, "
                "turned by alpha from the x axis.",
                {{{60, 35, 500, 290}, {0, 0, 6.5, 4.5}, hole}}),
      figure_of(
          "task-plate", 560, 380, "Effective web of a girder in bending",
          "A slender web between flanges under bending stresses from s1 in compression to s2 in "
          "tension: of the compressed part w only be1 and be2 are effective.",
          {{{60, 35, 500, 345}, {-3.4, -0.3, 4.6, 6.3}, plate}}),
      figure_of(
          "task-shear-centre", 520, 340, "Centroid and shear centre of a lipped channel",
          "The shear centre S of a lipped channel lies behind its web, at the distance e0 from "
          "the centroid G.",
          {{{60, 50, 460, 300}, {-60, -70, 90, 70}, shear_centre}})};
}

}  // namespace figures
