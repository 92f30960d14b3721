// Area properties.
#include <trelvin/trelvin.h>

#include "measure.h"

namespace accuracy {
namespace {

constexpr const char *small_result = "cancels where the result is small";

Outline polygon(Draw &draw) { return draw.star(9, 0.3); }

struct Moments {
  Exact area = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;
};

// The sum of the triangles from the origin to each edge.
Moments moments_of(const Outline &p) {
  Moments m;
  for (int i = 0; i < p.n(); ++i) {
    const V2 a = p.vertex(i), b = p.vertex(i + 1);
    const Exact twice = cross(a, b);
    m.area += twice / 2;
    m.x += twice * (a.y + b.y) / 6;
    m.y += twice * (a.x + b.x) / 6;
    m.xx += twice * (a.y * a.y + a.y * b.y + b.y * b.y) / 12;
    m.yy += twice * (a.x * a.x + a.x * b.x + b.x * b.x) / 12;
    m.xy += twice * (2 * a.x * a.y + a.x * b.y + b.x * a.y + 2 * b.x * b.y) / 24;
  }
  return m;
}

MEASURE(trvapl, "") {
  const Outline p = polygon(draw);
  const auto area = call<float>(trvapl, p);
  out.add("area", area, moments_of(p).area);
}

MEASURE(trvspl, small_result) {
  const Outline p = polygon(draw);
  const auto [sx, sy] = call<float, float>(trvspl, p);
  out.add("sx", sx, moments_of(p).x);
  out.add("sy", sy, moments_of(p).y);
}

MEASURE(trvipl, small_result) {
  const Outline p = polygon(draw);
  const auto [ix, iy, ixy] = call<float, float, float>(trvipl, p);
  const Moments m = moments_of(p);
  out.add("ix", ix, m.xx);
  out.add("iy", iy, m.yy);
  out.add("ixy", ixy, m.xy);
}

// --- circular segments --------------------------------------------------------------------------

struct Segment {
  P2 c, p1, p2;
  int kind;
};

auto parts(Segment &s) { return parts(s.c, s.p1, s.p2, s.kind); }

Segment segment(Draw &draw) {
  Segment s;
  s.c = draw.point();
  const float r = draw.number(50, 500);
  const Exact from = draw.angle(), by = draw.number(0.5, 2.8);
  s.p1 = Draw::from(s.c, rounded(turned({r, 0}, from)));
  s.p2 = Draw::from(s.c, rounded(turned({r, 0}, from + by)));
  s.kind = draw.integer(4, 5);
  return s;
}

struct SegmentProperties {
  Exact area, xx, yy;
  V2 centroid;
};

SegmentProperties properties_of(const Segment &s) {
  const V2 c = s.c, a = V2(s.p1) - c, b = V2(s.p2) - c;
  const Exact r = length(a);
  const Exact smaller = angle_between(a, b);
  const Exact phi = s.kind == 5 ? 2 * pi - smaller : smaller;
  V2 axis = unit(left_of(b - a));  // of symmetry, from the centre into the segment
  if ((dot(axis, a) < 0) == (s.kind == 4)) axis = -1 * axis;
  const Exact half_sine = sine(phi / 2), common = phi - sine(phi);
  SegmentProperties p;
  p.area = r * r * common / 2;
  p.centroid = c + (4 * r * cube(half_sine) / (3 * common)) * axis;
  // About the centre: along the axis, across it; then about the axes of x and y.
  const Exact r4 = square(square(r));
  const Exact along = r4 / 8 * (common + 2 * sine(phi) * square(half_sine));
  const Exact across = r4 / 24 * (3 * common - 2 * sine(phi) * square(half_sine));
  const V2 from_centre = p.centroid - c;
  const auto shifted = [&](Exact about_centre, Exact from, Exact to) {
    return about_centre - p.area * from * from + p.area * to * to;
  };
  p.xx = shifted(along * square(axis.y) + across * square(axis.x), from_centre.y, p.centroid.y);
  p.yy = shifted(along * square(axis.x) + across * square(axis.y), from_centre.x, p.centroid.x);
  return p;
}

MEASURE(trvacp, "the coordinates' own spacing") {
  const Segment s = segment(draw);
  const auto [area, centroid] = call<float, P2>(trvacp, s);
  const SegmentProperties p = properties_of(s);
  out.add("area", area, p.area);
  out.add("xs ys", centroid, p.centroid);
}

MEASURE(trvicp, "the moments about the centroid are small beside those about the origin") {
  const Segment s = segment(draw);
  const auto [ix, iy, ixy] = call<float, float, float>(trvicp, s);
  const SegmentProperties p = properties_of(s);
  out.add("ix", ix, p.xx);
  out.add("iy", iy, p.yy);
  out.add("ixy", ixy, p.area * p.centroid.x * p.centroid.y);
}

// --- parts ----------------------------------------------------------------------------------------

// A full circle, whose radius is that of a point on it.
struct Circle {
  float x[2], y[2];
  [[nodiscard]] V2 centre() const { return {x[0], y[0]}; }
  [[nodiscard]] Exact area() const { return pi * radius_squared(); }
  [[nodiscard]] Exact radius_squared() const {
    const V2 r = V2{x[1], y[1]} - centre();
    return dot(r, r);
  }
};

auto parts(Circle &c) { return std::make_tuple(c.x, c.y, 0); }

Circle circle(Draw &draw) {
  const P2 c = draw.point(), p = draw.near_by(c);
  return {{c.x, p.x}, {c.y, p.y}};
}

MEASURE(trvair, "") {
  const Outline p = polygon(draw);
  const auto area_of_polygon = call<float>(trvair, p, 2, 0, -1);
  out.add("area of a polygon", area_of_polygon, -moments_of(p).area);
  const Circle c = circle(draw);
  const auto area = call<float>(trvair, c, 3, 0, 1);
  out.add("area of a circle", area, c.area());
}

MEASURE(trvstm, small_result) {
  const Outline p = polygon(draw);
  const P2 of_polygon = call<P2>(trvstm, p, 2, 0, 1);
  out.add("sx of a polygon", of_polygon.x, moments_of(p).x);
  const Circle c = circle(draw);
  const auto [sx, sy] = call<float, float>(trvstm, c, 3, 0, 1);
  out.add("sx of a circle", sx, c.area() * c.centre().y);
  out.add("sy of a circle", sy, c.area() * c.centre().x);
}

MEASURE(trvinm, small_result) {
  const Outline p = polygon(draw);
  const P3 of_polygon = call<P3>(trvinm, p, 2, 0, 0, 1);
  out.add("ix of a polygon", of_polygon.x, moments_of(p).xx);
  const Circle c = circle(draw);
  const auto [ix, iy, ixy] = call<float, float, float>(trvinm, c, 3, 0, 0, 1);
  const Exact own = c.area() * c.radius_squared() / 4;
  out.add("ix of a circle", ix, own + c.area() * square(c.centre().y));
  out.add("iy of a circle", iy, own + c.area() * square(c.centre().x));
  out.add("ixy of a circle", ixy, c.area() * c.centre().x * c.centre().y);
}

MEASURE(trvinp, "cancels where i1 or i2 is small beside the other", origin_only) {
  const float ix = draw.number(1e6, 1e8), iy = draw.number(1e6, 1e8);
  const float ixy = draw.number(-0.9, 0.9) * (ix < iy ? ix : iy);
  const auto [i1, i2, alpha] = call<float, float, float>(trvinp, ix, iy, ixy);
  const Exact difference = Exact(ix) - iy;
  const Exact radius = square_root(square(difference) / 4 + square(Exact(ixy)));
  const Exact mean = (Exact(ix) + iy) / 2;
  const bool first_is_larger = difference > 0;
  out.add("i1", i1, first_is_larger ? mean + radius : mean - radius);
  out.add("i2", i2, first_is_larger ? mean - radius : mean + radius);
  out.add("alpha", alpha, atanq(-2 * Exact(ixy) / difference) / 2);
}

MEASURE(trvinr, "", origin_only) {
  std::array<float, 20> f;
  for (float &value : f) value = draw.number(10, 100);
  const float a = draw.number(0, 10), b = draw.number(20, 50);
  const auto result = call<float>(trvinr, 20, f, a, b);
  Exact sum = (Exact(f[0]) + f[19]) / 2;
  for (std::size_t i = 1; i < 18; ++i) sum += f[i];
  out.add("result", result, (Exact(b) - a) / 19 * sum);
}

}  // namespace
}  // namespace accuracy
