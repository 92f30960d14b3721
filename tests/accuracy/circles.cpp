// Circles and arcs.
#include <trelvin/trelvin.h>

#include <utility>

#include "measure.h"

namespace accuracy {
namespace {

constexpr const char *level_line =
    "a line nearly along x; far: the constants of line and circle cancel";
constexpr const char *level_chord =
    "a chord nearly along x; far: the constants of line and circle cancel";
constexpr const char *constant = "the constants of line and circle cancel";

struct Circle {
  float D = 0, E = 0, F = 0;
  [[nodiscard]] V2 centre() const { return {-Exact(D) / 2, -Exact(E) / 2}; }
  [[nodiscard]] Exact radius_squared() const { return dot(centre(), centre()) - F; }
};

Circle circle(P2 centre, float r) {
  Circle c;
  trvcer(centre.x, centre.y, r, c.D, c.E, c.F);
  return c;
}

void equation_of_circle(Draw &draw, Results &out) {
  const P2 c = draw.point();
  const float r = draw.number(50, 500);
  const Circle got = circle(c, r);
  out.add("D E", P2{got.D, got.E}, -2 * V2(c));
  out.add("F", got.F, dot(V2(c), V2(c)) - square(Exact(r)));
}

// The points in which a line, by a point and a direction, meets a circle; false where it does not.
bool meet(V2 p, V2 u, V2 centre, Exact radius_squared, V2 *first, V2 *second) {
  const V2 foot = p + (dot(centre - p, u) / dot(u, u)) * u;
  const Exact rest = radius_squared - dot(foot - centre, foot - centre);
  if (!(rest > 0)) return false;
  const V2 half = square_root(rest) * unit(u);
  *first = foot + half;
  *second = foot - half;
  if (first->y < second->y) std::swap(*first, *second);
  return true;
}

bool meet(Exact a, Exact b, Exact c, const Circle &circle, V2 *first, V2 *second) {
  const V2 normal{a, b};
  const V2 on_line = (-c / dot(normal, normal)) * normal;
  return meet(on_line, left_of(normal), circle.centre(), circle.radius_squared(), first, second);
}

void line_and_circle(Draw &draw, Results &out) {
  const P2 c = draw.point();
  const Circle k = circle(c, draw.number(100, 500));
  const P2 p = Draw::from(c, draw.vector(0, 60)), q = Draw::from(p, draw.vector(50, 500));
  float la = 0, lb = 0, lc = 0;
  trvln3(p.x, p.y, q.x, q.y, la, lb, lc);
  std::int32_t n = 0;
  P2 first, second;
  trvlci(la, lb, lc, k.D, k.E, k.F, n, first.x, first.y, second.x, second.y);
  V2 exact_first, exact_second;
  if (n != 2 || !meet(la, lb, lc, k, &exact_first, &exact_second)) return;
  out.add("x1 y1", first, exact_first);
  out.add("x2 y2", second, exact_second);
}

void two_circles(Draw &draw, Results &out) {
  const P2 c = draw.point();
  const Circle k1 = circle(c, draw.number(200, 300));
  const Circle k2 = circle(Draw::from(c, draw.vector(150, 250)), draw.number(200, 300));
  std::int32_t n = 0;
  P2 first, second;
  trvc12(k1.D, k1.E, k1.F, k2.D, k2.E, k2.F, n, first.x, first.y, second.x, second.y);
  V2 exact_first, exact_second;
  if (n != 2 || !meet(Exact(k2.D) - k1.D, Exact(k2.E) - k1.E, Exact(k2.F) - k1.F, k1, &exact_first,
                      &exact_second))
    return;
  out.add("x1 y1", first, exact_first);
  out.add("x2 y2", second, exact_second);
}

// The centre to the right of the chord from p to q, at a distance from its middle.
V2 centre_beside(V2 p, V2 q, Exact distance) {
  return 0.5 * (p + q) - distance * unit(left_of(q - p));
}

void centre_of_radius(Draw &draw, Results &out) {
  const P2 p = draw.point(), q = Draw::from(p, draw.vector(50, 300));
  const float r = draw.number(200, 600);
  P2 a, b, c;
  std::int32_t n = 0;
  trvcer2(p.x, p.y, q.x, q.y, 1, r, a.x, a.y, b.x, b.y, c.x, c.y, n);
  const V2 chord = q - p;
  if (n == 2)
    out.add("xc yc", c, centre_beside(p, q, square_root(square(Exact(r)) - dot(chord, chord) / 4)));
}

void centre_of_sagitta(Draw &draw, Results &out) {
  const P2 p = draw.point(), q = Draw::from(p, draw.vector(100, 300));
  const float h = draw.number(5, 45);
  float r = 0;
  P2 c;
  std::int32_t n = 0;
  trvcer1(p.x, p.y, q.x, q.y, 1, h, r, c.x, c.y, n);
  const V2 chord = q - p;
  const Exact radius = Exact(h) / 2 + dot(chord, chord) / (8 * Exact(h));
  out.add("r", r, radius);
  if (n == 2) out.add("xc yc", c, centre_beside(p, q, radius - h));
}

void turned_point(Draw &draw, Results &out) {
  const P2 c = draw.point();
  P2 p = Draw::from(c, draw.vector(50, 500));
  const V2 given = p;
  const float angle = draw.angle();
  P2 got;
  std::int32_t status = 0;
  trvcer3(c.x, c.y, p.x, p.y, angle, got.x, got.y, status);
  out.add("xr yr", got, V2(c) + turned(given - c, angle));
}

// --- arcs -------------------------------------------------------------------------------------------

// The ends are exactly as far from the centre, in steps of 1/64: 7, 24 and 25 and its multiples.
// B follows A clockwise, by less than half a turn.
struct Arc {
  P2 c, a, b;
  [[nodiscard]] V2 along() const { return unit(b - a); }
  [[nodiscard]] Exact chord() const { return length(b - a); }
  [[nodiscard]] Exact radius() const { return length(a - c); }
  [[nodiscard]] V2 station(Exact s) const { return V2(a) + s * along(); }
};

Arc arc(Draw &draw) {
  constexpr float directions[12][2] = {{25, 0},   {24, 7},  {20, 15}, {15, 20},
                                       {7, 24},   {0, 25},  {-7, 24}, {-15, 20},
                                       {-20, 15}, {-24, 7}, {-25, 0}, {-24, -7}};
  const P2 raw = draw.point();
  const auto step = [](float x) { return static_cast<float>(static_cast<int>(x * 64)) / 64; };
  Arc arc;
  arc.c = {step(raw.x), step(raw.y)};
  const float size = step(draw.number(2, 20));
  const int first = draw.integer(3, 11), last = first - draw.integer(2, first < 8 ? first : 8);
  arc.a = Draw::from(arc.c, {size * directions[first][0], size * directions[first][1]});
  arc.b = Draw::from(arc.c, {size * directions[last][0], size * directions[last][1]});
  return arc;
}

// Where a line through a station of the chord meets the circle on the left of the chord, which is
// across from the centre.
V2 on_arc(const Arc &arc, V2 p, V2 u) {
  V2 first, second;
  meet(p, u, arc.c, square(arc.radius()), &first, &second);
  return cross(arc.along(), first - arc.a) > 0 ? first : second;
}

float station(Draw &draw, const Arc &arc) {
  return draw.number(0.1, 0.9) * static_cast<float>(arc.chord());
}

void perpendicular_station(Draw &draw, Results &out) {
  const Arc k = arc(draw);
  const float d = station(draw, k);
  P2 p;
  std::int32_t status = 0;
  trvcer8(k.c.x, k.c.y, k.a.x, k.a.y, k.b.x, k.b.y, 1, d, p.x, p.y, status);
  if (status == 1) out.add("x y", p, on_arc(k, k.station(d), left_of(k.along())));
}

void radial_station(Draw &draw, Results &out) {
  const Arc k = arc(draw);
  const float d = station(draw, k);
  P2 p;
  std::int32_t status = 0;
  trvcer6(k.c.x, k.c.y, k.a.x, k.a.y, k.b.x, k.b.y, 1, d, p.x, p.y, status);
  if (status == 1) out.add("x y", p, on_arc(k, k.station(d), k.station(d) - k.c));
}

void strip(Draw &draw, Results &out) {
  const Arc k = arc(draw);
  const float d = draw.number(0.4, 0.6) * static_cast<float>(k.chord());
  const float w = draw.number(0.1, 0.5) * static_cast<float>(k.chord());
  P2 p, q;
  std::int32_t status = 0;
  trvcer9(k.c.x, k.c.y, k.a.x, k.a.y, k.b.x, k.b.y, 1, d, w, p.x, p.y, q.x, q.y, status);
  if (status != 1) return;
  out.add("x1 y1", p, on_arc(k, k.station(d - Exact(w) / 2), left_of(k.along())));
  out.add("x2 y2", q, on_arc(k, k.station(d + Exact(w) / 2), left_of(k.along())));
}

void lengths_of_arcs(Draw &draw, Results &out) {
  const Arc k = arc(draw);
  float s1 = 0, s2 = 0;
  std::int32_t status = 0;
  trvarc1(k.c.x, k.c.y, k.a.x, k.a.y, k.b.x, k.b.y, s1, s2, status);
  const Exact phi = angle_between(k.a - k.c, k.b - k.c);
  out.add("s1", s1, k.radius() * phi);
  out.add("s2", s2, k.radius() * (2 * pi - phi));
}

void angle_of_direction(Draw &draw, Results &out) {
  const P2 d = draw.vector(1, 100);
  float phi = 0;
  trvaxph(d.x, d.y, phi);
  out.add("phi", phi, angle_of(d.y, d.x));
}

void feet_on_segment(Draw &draw, Results &out) {
  const P2 p1 = draw.point(), p2 = Draw::from(p1, draw.vector(400, 600));
  const V2 u = unit(p2 - p1);
  // Within the segment's stations, where the routine's roots have their sign.
  const auto beside = [&](P2 p, double low, double high) {
    const V2 v = Exact(draw.number(low, high)) * u + Exact(draw.number(-150, 150)) * left_of(u);
    return Draw::from(p, {static_cast<float>(v.x), static_cast<float>(v.y)});
  };
  const P2 p0 = beside(p1, 50, 350), p3 = beside(p2, -350, -50);
  float h0 = 0, s0 = 0, h3 = 0, s3 = 0, len = 0;
  trvhin(p0.x, p0.y, 0, p1.x, p1.y, 0, p2.x, p2.y, 0, p3.x, p3.y, 0, h0, s0, h3, s3, len);
  out.add("h0", h0, absolute(cross(u, p0 - p1)));
  out.add("s0", s0, dot(u, p0 - p1));
  out.add("h3", h3, absolute(cross(u, p3 - p1)));
  out.add("s3", s3, dot(u, p3 - p1));
  out.add("len", len, length(p2 - p1));
}

// --- constructions ------------------------------------------------------------------------------

void line_at_angle(Draw &draw, Results &out) {
  const Arc k = arc(draw);
  Arc moved = k;
  const float s = station(draw, k), angle = draw.number(0.3, 2.8);
  P2 o;
  std::int32_t status = 0;
  trvcer4(moved.c.x, moved.c.y, moved.a.x, moved.a.y, moved.b.x, moved.b.y, s, angle, o.x, o.y,
          status);
  if (status == 1) out.add("xo yo", o, on_arc(k, k.station(s), turned(k.along(), angle)));
}

void chord_and_turned_end(Draw &draw, Results &out) {
  const Arc k = arc(draw);
  Arc moved = k;
  const float turn = draw.number(-1, -0.2), angle = draw.number(0.3, 2.8);
  constexpr float unwritten = -7725;
  P2 o{unwritten, unwritten};
  std::int32_t status = -1;
  trvcer10(moved.c.x, moved.c.y, moved.a.x, moved.a.y, moved.b.x, moved.b.y, turn, angle, o.x, o.y,
           status);
  const V2 end = V2(k.c) + turned(k.a - k.c, turn);
  if (o.x != unwritten)
    out.add("xo yo", o, crossing(k.a, k.along(), end, turned(k.along(), angle)));
}

void towards_sagitta(Draw &draw, Results &out) {
  const Arc k = arc(draw);
  Arc moved = k;
  const float s = draw.number(0.1, 0.4) * static_cast<float>(k.chord()), e = draw.number(5, 20);
  P2 o;
  std::int32_t status = 0;
  trvcer5(moved.c.x, moved.c.y, moved.a.x, moved.a.y, moved.b.x, moved.b.y, s, 1, e, o.x, o.y,
          status);
  const V2 t = k.station(k.chord() / 2) + e * left_of(k.along());
  if (status == 1) out.add("xo yo", o, on_arc(k, k.station(s), t - k.station(s)));
}

void station_parallel_arc(Draw &draw, Results &out) {
  Arc k = arc(draw);
  const float s = station(draw, k), e = draw.number(5, 20), angle = draw.number(0.3, 2.8);
  P2 p, t, o;
  float len = 0;
  std::int32_t status = 0;
  trvcer7(k.c.x, k.c.y, k.a.x, k.a.y, k.b.x, k.b.y, s, 1, e, angle, p.x, p.y, t.x, t.y, o.x, o.y,
          len, status);
  if (status != 1) return;
  const V2 u = turned(k.along(), angle), exact_o = on_arc(k, k.station(s), u);
  out.add("xp yp", p, k.station(s));
  out.add("xt yt", t, k.station(s) + (e / cross(k.along(), u)) * u);
  out.add("xo yo", o, exact_o);
  out.add("len", len, length(exact_o - k.station(s)));
}

void rounded_corner(Draw &draw, Results &out) {
  const P2 p0 = draw.point();
  const float from = draw.angle(), between = draw.number(0.5, 2.6), r = draw.number(5, 40);
  const auto end = [&](Exact angle) {
    const V2 v = turned({draw.number(200, 500), 0}, angle);
    return Draw::from(p0, {static_cast<float>(v.x), static_cast<float>(v.y)});
  };
  const P2 p1 = end(from), p2 = end(Exact(from) + between);
  P2 c, t1, t2;
  std::int32_t status = 0;
  trvard(p0.x, p0.y, p1.x, p1.y, p2.x, p2.y, r, c.x, c.y, t1.x, t1.y, t2.x, t2.y, status);
  if (status != 1) return;
  const V2 u = unit(p1 - p0), w = unit(p2 - p0);
  const Exact half = angle_between(u, w) / 2;
  out.add("xc yc", c, V2(p0) + (r / sine(half)) * unit(u + w));
  out.add("xt1 yt1", t1, V2(p0) + (r / tangent(half)) * u);
  out.add("xt2 yt2", t2, V2(p0) + (r / tangent(half)) * w);
}

void box_of_arc(Draw &draw, Results &out) {
  const P2 c = draw.point(), a = Draw::from(c, draw.vector(50, 500));
  const float sweep = draw.angle();
  P2 low, high;
  trvenv(c.x, c.y, a.x, a.y, sweep, low.x, low.y, high.x, high.y);
  const V2 start = a - c;
  V2 least = a, most = a;
  const auto include = [&](V2 p) {
    least = {lesser(least.x, p.x), lesser(least.y, p.y)};
    most = {greater(most.x, p.x), greater(most.y, p.y)};
  };
  include(V2(c) + turned(start, sweep));
  const Exact from = angle_of(start.y, start.x), to = from + sweep;
  for (int quarter = -8; quarter <= 8; ++quarter) {
    const Exact angle = quarter * pi / 2;
    if ((angle > from) != (angle > to)) include(V2(c) + turned({length(start), 0}, angle));
  }
  out.add("xmin ymin", low, least);
  out.add("xmax ymax", high, most);
}

}  // namespace

std::vector<Measurement> circle_measurements() {
  const auto here = Measurement::origin_only;
  return {{"trvcer", equation_of_circle, "cancels where the result is small"},
          {"trvlci", line_and_circle, level_line},
          {"trvc12", two_circles, level_line},
          {"trvcer2", centre_of_radius, level_chord},
          {"trvcer1", centre_of_sagitta, level_chord},
          {"trvcer3", turned_point, ""},
          {"trvcer8", perpendicular_station, constant},
          {"trvcer6", radial_station, level_line},
          {"trvcer9", strip, constant},
          {"trvarc1", lengths_of_arcs, ""},
          {"trvaxph", angle_of_direction, "arc cosine near 0 and pi", here},
          {"trvhin", feet_on_segment, "the constant of the line cancels"},
          {"trvcer4", line_at_angle, "loses digits in the chord's frame"},
          {"trvcer10", chord_and_turned_end, "loses digits in the chord's frame"},
          {"trvcer5", towards_sagitta, "loses digits in the chord's frame"},
          {"trvcer7", station_parallel_arc, ""},
          {"trvard", rounded_corner, ""},
          {"trvenv", box_of_arc, ""}};
}

}  // namespace accuracy
