// Area properties.
#include <trelvin/trelvin.h>

#include "measure.h"

namespace accuracy {
namespace {

// With the spare element of the routines.
struct Polygon {
  std::vector<float> x, y;
  [[nodiscard]] std::int32_t n() const { return static_cast<std::int32_t>(x.size()) - 1; }
  [[nodiscard]] V2 vertex(std::int32_t i) const {
    const auto k = static_cast<std::size_t>(i % n());
    return {x[k], y[k]};
  }
};

Polygon polygon(Draw &draw) {
  const P2 middle = draw.point();
  Polygon p;
  for (int i = 0; i < 9; ++i) {
    const double angle = 2 * 3.14159265 * (i + 0.3) / 9;
    const float r = draw.number(100, 300);
    p.x.push_back(middle.x + r * static_cast<float>(cosine(angle)));
    p.y.push_back(middle.y + r * static_cast<float>(sine(angle)));
  }
  p.x.push_back(0);
  p.y.push_back(0);
  return p;
}

struct Moments {
  Exact area = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;
};

// The sum of the triangles from the origin to each edge.
Moments moments_of(const Polygon &p) {
  Moments m;
  for (std::int32_t i = 0; i < p.n(); ++i) {
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

void area_of_polygon(Draw &draw, Results &out) {
  Polygon p = polygon(draw);
  const std::int32_t n = p.n();
  float area = 0;
  trvapl(p.x.data(), p.y.data(), n, area);
  out.add("area", area, moments_of(p).area);
}

void first_moments(Draw &draw, Results &out) {
  Polygon p = polygon(draw);
  const std::int32_t n = p.n();
  float sx = 0, sy = 0;
  trvspl(p.x.data(), p.y.data(), n, sx, sy);
  out.add("sx", sx, moments_of(p).x);
  out.add("sy", sy, moments_of(p).y);
}

void second_moments(Draw &draw, Results &out) {
  Polygon p = polygon(draw);
  const std::int32_t n = p.n();
  float ix = 0, iy = 0, ixy = 0;
  trvipl(p.x.data(), p.y.data(), n, ix, iy, ixy);
  const Moments m = moments_of(p);
  out.add("ix", ix, m.xx);
  out.add("iy", iy, m.yy);
  out.add("ixy", ixy, m.xy);
}

// --- circular segments --------------------------------------------------------------------------

struct Segment {
  P2 c, p1, p2;
  std::int32_t kind;
};

Segment segment(Draw &draw) {
  Segment s;
  s.c = draw.point();
  const float r = draw.number(50, 500);
  const Exact from = draw.angle(), by = draw.number(0.5, 2.8);
  const V2 start = turned({r, 0}, from), end = turned({r, 0}, from + by);
  s.p1 = {s.c.x + static_cast<float>(start.x), s.c.y + static_cast<float>(start.y)};
  s.p2 = {s.c.x + static_cast<float>(end.x), s.c.y + static_cast<float>(end.y)};
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

void segment_area(Draw &draw, Results &out) {
  const Segment s = segment(draw);
  float area = 0;
  P2 centroid;
  trvacp(s.c.x, s.c.y, s.p1.x, s.p1.y, s.p2.x, s.p2.y, s.kind, area, centroid.x, centroid.y);
  const SegmentProperties p = properties_of(s);
  out.add("area", area, p.area);
  out.add("xs ys", centroid, p.centroid);
}

void segment_moments(Draw &draw, Results &out) {
  const Segment s = segment(draw);
  float ix = 0, iy = 0, ixy = 0;
  trvicp(s.c.x, s.c.y, s.p1.x, s.p1.y, s.p2.x, s.p2.y, s.kind, ix, iy, ixy);
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

Circle circle(Draw &draw) {
  const P2 c = draw.point();
  const P2 p = Draw::from(c, draw.vector(50, 500));
  return {{c.x, p.x}, {c.y, p.y}};
}

void part_area(Draw &draw, Results &out) {
  Polygon p = polygon(draw);
  float area = 0;
  trvair(p.x.data(), p.y.data(), p.n(), 2, 0, -1, area);
  out.add("area of a polygon", area, -moments_of(p).area);
  Circle c = circle(draw);
  trvair(c.x, c.y, 0, 3, 0, 1, area);
  out.add("area of a circle", area, c.area());
}

void part_first_moments(Draw &draw, Results &out) {
  Polygon p = polygon(draw);
  float sx = 0, sy = 0;
  trvstm(p.x.data(), p.y.data(), p.n(), 2, 0, 1, sx, sy);
  out.add("sx of a polygon", sx, moments_of(p).x);
  Circle c = circle(draw);
  trvstm(c.x, c.y, 0, 3, 0, 1, sx, sy);
  out.add("sx of a circle", sx, c.area() * c.centre().y);
  out.add("sy of a circle", sy, c.area() * c.centre().x);
}

void part_second_moments(Draw &draw, Results &out) {
  Polygon p = polygon(draw);
  float ix = 0, iy = 0, ixy = 0;
  trvinm(p.x.data(), p.y.data(), p.n(), 2, 0, 0, 1, ix, iy, ixy);
  out.add("ix of a polygon", ix, moments_of(p).xx);
  Circle c = circle(draw);
  trvinm(c.x, c.y, 0, 3, 0, 0, 1, ix, iy, ixy);
  const Exact own = c.area() * c.radius_squared() / 4;
  out.add("ix of a circle", ix, own + c.area() * square(c.centre().y));
  out.add("iy of a circle", iy, own + c.area() * square(c.centre().x));
  out.add("ixy of a circle", ixy, c.area() * c.centre().x * c.centre().y);
}

void principal(Draw &draw, Results &out) {
  const float ix = draw.number(1e6, 1e8), iy = draw.number(1e6, 1e8);
  const float ixy = draw.number(-0.9, 0.9) * (ix < iy ? ix : iy);
  float i1 = 0, i2 = 0, alpha = 0;
  trvinp(ix, iy, ixy, i1, i2, alpha);
  const Exact difference = Exact(ix) - iy;
  const Exact radius = square_root(square(difference) / 4 + square(Exact(ixy)));
  const Exact mean = (Exact(ix) + iy) / 2;
  const bool first_is_larger = difference > 0;
  out.add("i1", i1, first_is_larger ? mean + radius : mean - radius);
  out.add("i2", i2, first_is_larger ? mean - radius : mean + radius);
  out.add("alpha", alpha, atanq(-2 * Exact(ixy) / difference) / 2);
}

void trapezoids(Draw &draw, Results &out) {
  float f[20];
  for (float &value : f) value = draw.number(10, 100);
  const float a = draw.number(0, 10), b = draw.number(20, 50);
  float result = 0;
  trvinr(20, f, a, b, result);
  Exact sum = (Exact(f[0]) + f[19]) / 2;
  for (int i = 1; i < 18; ++i) sum += f[i];
  out.add("result", result, (Exact(b) - a) / 19 * sum);
}

}  // namespace

std::vector<Measurement> property_measurements() {
  const auto here = Measurement::origin_only;
  const char *turned_moments =
      "the moments about the centroid are small beside those about the origin";
  return {{"trvapl", area_of_polygon, ""},
          {"trvspl", first_moments, "cancels where the result is small"},
          {"trvipl", second_moments, "cancels where the result is small"},
          {"trvacp", segment_area, "the coordinates' own spacing"},
          {"trvicp", segment_moments, turned_moments},
          {"trvair", part_area, ""},
          {"trvstm", part_first_moments, "cancels where the result is small"},
          {"trvinm", part_second_moments, "cancels where the result is small"},
          {"trvinp", principal, "cancels where i1 or i2 is small beside the other", here},
          {"trvinr", trapezoids, "", here}};
}

}  // namespace accuracy
