// Circles and arcs.
#include <trelvin/trelvin.h>

#include <optional>
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

auto parts(Circle &c) { return std::tie(c.D, c.E, c.F); }

Circle circle(P2 centre, float r) { return call<Circle>(trvcer, centre, r); }

MEASURE(trvcer, "cancels where the result is small") {
  const P2 c = draw.point();
  const float r = draw.number(50, 500);
  const Circle got = circle(c, r);
  out.add("D E", P2{got.D, got.E}, -2 * V2(c));
  out.add("F", got.F, dot(V2(c), V2(c)) - square(Exact(r)));
}

using Two = std::optional<std::pair<V2, V2>>;

// The points in which a line, by a point and a direction, meets a circle, if it does.
Two meet(V2 p, V2 u, V2 centre, Exact radius_squared) {
  const V2 foot = p + (dot(centre - p, u) / dot(u, u)) * u;
  const Exact rest = radius_squared - dot(foot - centre, foot - centre);
  if (!(rest > 0)) return {};
  const V2 half = square_root(rest) * unit(u);
  Two points = {{foot + half, foot - half}};
  if (points->first.y < points->second.y) std::swap(points->first, points->second);
  return points;
}

Two meet(Exact a, Exact b, Exact c, const Circle &circle) {
  const V2 normal{a, b};
  const V2 on_line = (-c / dot(normal, normal)) * normal;
  return meet(on_line, left_of(normal), circle.centre(), circle.radius_squared());
}

MEASURE(trvlci, level_line) {
  const P2 c = draw.point();
  const Circle k = circle(c, draw.number(100, 500));
  const P2 p = draw.near_by(c, 0, 60), q = draw.near_by(p);
  const auto line = call<P3>(trvln3, p, q);
  const auto [n, first, second] = call<int, P2, P2>(trvlci, line, k);
  const Two exact = meet(line.x, line.y, line.z, k);
  if (n != 2 || !exact) return;
  out.add("x1 y1", first, exact->first);
  out.add("x2 y2", second, exact->second);
}

MEASURE(trvc12, level_line) {
  const P2 c = draw.point();
  const Circle k1 = circle(c, draw.number(200, 300));
  const Circle k2 = circle(draw.near_by(c, 150, 250), draw.number(200, 300));
  const auto [n, first, second] = call<int, P2, P2>(trvc12, k1, k2);
  const Two exact = meet(Exact(k2.D) - k1.D, Exact(k2.E) - k1.E, Exact(k2.F) - k1.F, k1);
  if (n != 2 || !exact) return;
  out.add("x1 y1", first, exact->first);
  out.add("x2 y2", second, exact->second);
}

// The centre to the right of the chord from p to q, at a distance from its middle.
V2 centre_beside(V2 p, V2 q, Exact distance) {
  return 0.5 * (p + q) - distance * unit(left_of(q - p));
}

MEASURE(trvcer2, level_chord) {
  const P2 p = draw.point(), q = draw.near_by(p, 50, 300);
  const float r = draw.number(200, 600);
  const auto [a, b, c, n] = call<P2, P2, P2, int>(trvcer2, p, q, 1, r);
  const V2 chord = q - p;
  if (n == 2)
    out.add("xc yc", c, centre_beside(p, q, square_root(square(Exact(r)) - dot(chord, chord) / 4)));
}

MEASURE(trvcer1, level_chord) {
  const P2 p = draw.point(), q = draw.near_by(p, 100, 300);
  const float h = draw.number(5, 45);
  const auto [r, c, n] = call<float, P2, int>(trvcer1, p, q, 1, h);
  const V2 chord = q - p;
  const Exact radius = Exact(h) / 2 + dot(chord, chord) / (8 * Exact(h));
  out.add("r", r, radius);
  if (n == 2) out.add("xc yc", c, centre_beside(p, q, radius - h));
}

MEASURE(trvcer3, "") {
  const P2 c = draw.point(), p = draw.near_by(c);
  const float angle = draw.angle();
  const auto [r, status] = call<P2, int>(trvcer3, c, p, angle);
  out.add("xr yr", r, V2(c) + turned(p - c, angle));
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

auto parts(Arc &arc) { return parts(arc.c, arc.a, arc.b); }

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
  const auto [first, second] = *meet(p, u, arc.c, square(arc.radius()));
  return cross(arc.along(), first - arc.a) > 0 ? first : second;
}

float station(Draw &draw, const Arc &arc, double low = 0.1, double high = 0.9) {
  return draw.number(low, high) * static_cast<float>(arc.chord());
}

MEASURE(trvcer8, constant) {
  const Arc k = arc(draw);
  const float d = station(draw, k);
  const auto [p, status] = call<P2, int>(trvcer8, k, 1, d);
  if (status == 1) out.add("x y", p, on_arc(k, k.station(d), left_of(k.along())));
}

MEASURE(trvcer6, level_line) {
  const Arc k = arc(draw);
  const float d = station(draw, k);
  const auto [p, status] = call<P2, int>(trvcer6, k, 1, d);
  if (status == 1) out.add("x y", p, on_arc(k, k.station(d), k.station(d) - k.c));
}

MEASURE(trvcer9, constant) {
  const Arc k = arc(draw);
  const float d = station(draw, k, 0.4, 0.6), w = station(draw, k, 0.1, 0.5);
  const auto [p, q, status] = call<P2, P2, int>(trvcer9, k, 1, d, w);
  if (status != 1) return;
  out.add("x1 y1", p, on_arc(k, k.station(d - Exact(w) / 2), left_of(k.along())));
  out.add("x2 y2", q, on_arc(k, k.station(d + Exact(w) / 2), left_of(k.along())));
}

MEASURE(trvarc1, "") {
  const Arc k = arc(draw);
  const auto [s1, s2, status] = call<float, float, int>(trvarc1, k);
  const Exact phi = angle_between(k.a - k.c, k.b - k.c);
  out.add("s1", s1, k.radius() * phi);
  out.add("s2", s2, k.radius() * (2 * pi - phi));
}

MEASURE(trvaxph, "arc cosine near 0 and pi", origin_only) {
  const P2 d = draw.vector(1, 100);
  out.add("phi", call<float>(trvaxph, d), angle_of(d.y, d.x));
}

MEASURE(trvhin, "the constant of the line cancels") {
  const P2 p1 = draw.point(), p2 = draw.near_by(p1, 400, 600);
  const V2 u = unit(p2 - p1);
  // Within the segment's stations, where the routine's roots have their sign.
  const auto beside = [&](P2 p, double low, double high) {
    return Draw::from(
        p, rounded(Exact(draw.number(low, high)) * u + Exact(draw.number(-150, 150)) * left_of(u)));
  };
  const P2 p0 = beside(p1, 50, 350), p3 = beside(p2, -350, -50);
  const auto [h0, s0, h3, s3, len] =
      call<float, float, float, float, float>(trvhin, p0, 0, p1, 0, p2, 0, p3, 0);
  out.add("h0", h0, absolute(cross(u, p0 - p1)));
  out.add("s0", s0, dot(u, p0 - p1));
  out.add("h3", h3, absolute(cross(u, p3 - p1)));
  out.add("s3", s3, dot(u, p3 - p1));
  out.add("len", len, length(p2 - p1));
}

// --- constructions ------------------------------------------------------------------------------

constexpr const char *frame_of_chord = "loses digits in the chord's frame";

MEASURE(trvcer4, frame_of_chord) {
  const Arc k = arc(draw);
  const float s = station(draw, k), angle = draw.number(0.3, 2.8);
  const auto [o, status] = call<P2, int>(trvcer4, k, s, angle);
  if (status == 1) out.add("xo yo", o, on_arc(k, k.station(s), turned(k.along(), angle)));
}

MEASURE(trvcer10, frame_of_chord) {
  const Arc k = arc(draw);
  const float turn = draw.number(-1, -0.2), angle = draw.number(0.3, 2.8);
  const auto [o, status] = call<P2, int>(trvcer10, k, turn, angle);
  if (o.x == 0) return;  // unwritten
  const V2 end = V2(k.c) + turned(k.a - k.c, turn);
  out.add("xo yo", o, crossing(k.a, k.along(), end, turned(k.along(), angle)));
}

MEASURE(trvcer5, frame_of_chord) {
  const Arc k = arc(draw);
  const float s = station(draw, k, 0.1, 0.4), e = draw.number(5, 20);
  const auto [o, status] = call<P2, int>(trvcer5, k, s, 1, e);
  const V2 t = k.station(k.chord() / 2) + e * left_of(k.along());
  if (status == 1) out.add("xo yo", o, on_arc(k, k.station(s), t - k.station(s)));
}

MEASURE(trvcer7, "") {
  const Arc k = arc(draw);
  const float s = station(draw, k), e = draw.number(5, 20), angle = draw.number(0.3, 2.8);
  const auto [p, t, o, len, status] = call<P2, P2, P2, float, int>(trvcer7, k, s, 1, e, angle);
  if (status != 1) return;
  const V2 u = turned(k.along(), angle), exact_o = on_arc(k, k.station(s), u);
  out.add("xp yp", p, k.station(s));
  out.add("xt yt", t, k.station(s) + (e / cross(k.along(), u)) * u);
  out.add("xo yo", o, exact_o);
  out.add("len", len, length(exact_o - k.station(s)));
}

MEASURE(trvard, "") {
  const P2 p0 = draw.point();
  const float from = draw.angle(), between = draw.number(0.5, 2.6), r = draw.number(5, 40);
  const auto end = [&](Exact angle) {
    return Draw::from(p0, rounded(turned({draw.number(200, 500), 0}, angle)));
  };
  const P2 p1 = end(from), p2 = end(Exact(from) + between);
  const auto [c, t1, t2, status] = call<P2, P2, P2, int>(trvard, p0, p1, p2, r);
  if (status != 1) return;
  const V2 u = unit(p1 - p0), w = unit(p2 - p0);
  const Exact half = angle_between(u, w) / 2;
  out.add("xc yc", c, V2(p0) + (r / sine(half)) * unit(u + w));
  out.add("xt1 yt1", t1, V2(p0) + (r / tangent(half)) * u);
  out.add("xt2 yt2", t2, V2(p0) + (r / tangent(half)) * w);
}

MEASURE(trvenv, "") {
  const P2 c = draw.point(), a = draw.near_by(c);
  const float sweep = draw.angle();
  const auto [low, high] = call<P2, P2>(trvenv, c, a, sweep);
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
}  // namespace accuracy
