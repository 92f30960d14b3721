// Points, vectors, lines and angles.
#include <trelvin/trelvin.h>

#include <algorithm>
#include <functional>

#include "measure.h"

namespace accuracy {
namespace {

constexpr const char *small_result = "cancels where the result is small";
constexpr const char *constant = "the constant of the line cancels";
constexpr const char *arc_cosine = "arc cosine near 0 and pi";

struct Line {
  float a = 0, b = 0, c = 0;
  [[nodiscard]] V2 normal() const { return {a, b}; }
};

auto parts(Line &l) { return std::tie(l.a, l.b, l.c); }

Line line_through(P2 p, P2 q) { return call<Line>(trvln3, p, q); }

struct Four {
  P3 p1, p2, p3, p4;
};

Four four_points(Draw &draw) {
  Four f;
  f.p1 = draw.point_of_space();
  f.p2 = draw.near_by(f.p1);
  f.p3 = draw.near_by(f.p1);
  f.p4 = draw.near_by(f.p3);
  return f;
}

MEASURE(trvpds, "") {
  const P3 p = draw.point_of_space(), q = draw.near_by(p);
  out.add("d", call<float>(trvpds, p, q), length(q - p));
}

MEASURE(trvpri, small_result) {
  const auto [p1, p2, p3, p4] = four_points(draw);
  out.add("s", call<float>(trvpri, p1, p2, p3, p4), dot(p2 - p1, p4 - p3));
}

MEASURE(trvpre, "cancels near parallel") {
  const auto [p1, p2, p3, p4] = four_points(draw);
  const auto c = call<std::array<float, 3>>(trvpre, p1, p2, p3, p4);
  out.add("c", P3{c[0], c[1], c[2]}, cross(p2 - p1, p4 - p3));
}

MEASURE(trvcnt, "") {
  const P3 p = draw.point_of_space(), q = draw.near_by(p);
  const auto [d, status] = call<P3, int>(trvcnt, p, q);
  out.add("dx dy dz", d, q - p);
}

MEASURE(trv123, "") {
  const P3 p = draw.point_of_space(), q = draw.near_by(p);
  const float t = draw.number(0, 1);
  const auto [r, status] = call<P3, int>(trv123, p, q, t);
  out.add("x y z", r, V3(p) + t * (q - p));
}

MEASURE(trvmed, "") {
  const P3 p = draw.point_of_space(), q = draw.near_by(p);
  out.add("xm ym zm", call<P3>(trvmed, p, q), 0.5 * (V3(p) + V3(q)));
}

MEASURE(trvdtr2, small_result, origin_only) {
  const P2 p = draw.vector(50, 500), q = draw.vector(50, 500);
  out.add("det", call<float>(trvdtr2, p, q), cross(V2(p), V2(q)));
}

MEASURE(trvdtr3, small_result, origin_only) {
  const P3 a = draw.vector_of_space(50, 500), b = draw.vector_of_space(50, 500),
           c = draw.vector_of_space(50, 500);
  out.add("det", call<float>(trvdtr3, a, b, c), dot(V3(a), cross(V3(b), V3(c))));
}

MEASURE(trvgrc, "", origin_only) {
  const float a = draw.number(1, 100), b = draw.number(-100, 100), c = draw.number(-100, 100);
  const auto [q1, q2] = call<float, float>(trvgrc, a, b, c);
  out.add("q1", q1, Exact(c) / a);
  out.add("q2", q2, Exact(b) / a);
}

MEASURE(trvint, "", origin_only) {
  const float x1 = draw.number(0, 100), x2 = draw.number(200, 300), x = draw.number(100, 200);
  const float y1 = draw.number(50, 500), y2 = draw.number(50, 500);
  out.add("y", call<float>(trvint, x1, x2, y1, y2, x),
          Exact(y1) + (Exact(y2) - y1) * (Exact(x) - x1) / (Exact(x2) - x1));
}

MEASURE(trvln3, constant) {
  const P2 p = draw.point(), q = draw.near_by(p);
  const Line l = line_through(p, q);
  out.add("a b", P2{l.a, l.b}, V2{Exact(q.y) - p.y, Exact(p.x) - q.x});
  out.add("c", l.c, cross(V2(q), V2(p)));
}

MEASURE(trvln1, constant) {
  const P2 p = draw.point();
  const float phi = draw.number(-1.5, 1.5);
  const auto l = call<Line>(trvln1, p, phi);
  out.add("a", l.a, tangent(phi));
  out.add("c", l.c, p.y - tangent(phi) * p.x);
}

MEASURE(trvln4, constant) {
  const P2 p = draw.point(), d = draw.vector(1, 100);
  const auto l = call<Line>(trvln4, p, d, 0.0F);
  out.add("a", l.a, Exact(d.y) / d.x);
  out.add("c", l.c, p.y - Exact(d.y) * p.x / d.x);
}

MEASURE(trvln2, constant) {
  const P2 p = draw.point();
  const Line l = line_through(p, draw.near_by(p));
  const float d = draw.number(-100, 100);
  const auto m = call<Line>(trvln2, l, d);
  out.add("c2", m.c, l.c - length(l.normal()) * d);
}

MEASURE(trvln5, constant) {
  const P2 p = draw.point(), q = draw.near_by(p), r = draw.near_by(p);
  const auto l = call<Line>(trvln5, p, q, r);
  const V2 u = q - p, w = r - p;
  const V2 normal = length(w) * u - length(u) * w;
  out.add("a b", P2{l.a, l.b}, normal);
  out.add("c", l.c, -dot(normal, V2(p)));
}

MEASURE(trvlds, constant) {
  const P2 p = draw.point(), q = draw.near_by(p), r = draw.near_by(p);
  const Line l = line_through(p, r);
  const auto d = call<float>(trvlds, q, l);
  out.add("d", d, (dot(l.normal(), V2(q)) + l.c) / length(l.normal()));
  out.add("d by trvln3", d, cross(q - p, r - p) / length(r - p));
}

MEASURE(trvlni, "the constants of the lines cancel; near parallel") {
  const P2 p1 = draw.point(), p2 = draw.near_by(p1), q1 = draw.near_by(p1), q2 = draw.near_by(p1);
  const Line l = line_through(p1, p2), m = line_through(q1, q2);
  const auto [status, s] = call<int, P2>(trvlni, l, m);
  const Exact det = cross(l.normal(), m.normal());
  if (status != 0) return;
  out.add(
      "x y", s,
      V2{(Exact(l.b) * m.c - Exact(m.b) * l.c) / det, (Exact(m.a) * l.c - Exact(l.a) * m.c) / det});
  out.add("x y by trvln3", s, crossing(p1, p2 - p1, q1, q2 - q1));
}

MEASURE(trvlul, "") {
  const P2 p = draw.point();
  const Line l = line_through(p, draw.near_by(p));
  const auto m = call<Line>(trvln2, l, draw.number(10, 100));
  const auto [d, status] = call<float, int>(trvlul, l, m);
  if (status == 2) out.add("d", d, (Exact(l.c) - m.c) / length(l.normal()));
}

MEASURE(trvphi, arc_cosine) {
  const P2 p = draw.point(), q = draw.near_by(p), r = draw.near_by(p);
  out.add("phi", call<float>(trvphi, p, q, r), angle_between(q - p, r - p));
}

MEASURE(trvphi3, arc_cosine) {
  const P3 p = draw.point_of_space(), q = draw.near_by(p), r = draw.near_by(p);
  out.add("phi", call<float>(trvphi3, p, q, r), angle_between(q - p, r - p));
}

MEASURE(trvphi1, arc_cosine, origin_only) {
  const P3 u = draw.vector_of_space(1, 100), v = draw.vector_of_space(1, 100);
  out.add("phi", call<float>(trvphi1, u, v), angle_between(V3(u), V3(v)));
}

MEASURE(trvphip, arc_cosine, origin_only) {
  const P3 u = draw.vector_of_space(1, 100), v = draw.vector_of_space(1, 100);
  const auto [phi, status] = call<float, int>(trvphip, u, v);
  const Exact angle = angle_between(V3(u), V3(v));
  out.add("phi", phi, lesser(angle, pi - angle));
}

MEASURE(trvchi, "") {
  const P3 p = draw.point_of_space(), q = draw.near_by(p), r = draw.near_by(p);
  const auto [chi, status] = call<float, int>(trvchi, p, q, r);
  const Exact angle = angle_between(q - p, r - p);
  const bool other_side = cross(q - p, r - p).y < 0;
  out.add("chi", chi, other_side ? 2 * pi - angle : angle);
}

MEASURE(trvtrg, small_result) {
  const auto [p1, p2, p3, p4] = four_points(draw);
  const auto [c, s, status] = call<float, float, int>(trvtrg, p1, p2, p3, p4);
  const V3 u = p2 - p1, w = p4 - p3;
  out.add("cphi", c, dot(u, w) / (length(u) * length(w)));
  out.add("sphi", s, length(cross(u, w)) / (length(u) * length(w)));
}

MEASURE(trvln7, small_result, origin_only) {
  const P3 n = draw.vector_of_space(50, 500), m = draw.vector_of_space(50, 500);
  float ex = 0, ey = 0;
  call<int, int>(trvln7, n, 1, m, 1, P3{}, std::ref(ex), std::ref(ey), 1, 1);
  const V3 direction = cross(V3(n), V3(m));
  out.add("ex", ex, direction.x);
  out.add("ey", ey, -direction.y);
}

MEASURE(trvmov, arc_cosine) {
  const auto [p1, p2, p3, p4] = four_points(draw);
  const auto a = call<P3>(trvmov, p1, p2, p3, p4);
  const V3 u = p2 - p1, w = p4 - p3;
  out.add("ax", a.x, angle_between(V2{u.y, u.z}, V2{w.y, w.z}));
  out.add("ay", a.y, angle_between(V2{u.x, u.z}, V2{w.x, w.z}));
  out.add("az", a.z, angle_between(V2{u.x, u.y}, V2{w.x, w.y}));
}

MEASURE(trvtra, "") {
  const P2 origin = draw.point();
  P2 p = draw.near_by(origin);
  const V2 expected = p - origin;
  call(trvtra, &p, 1, origin);
  out.add("X Y", p, expected);
}

MEASURE(trvppp, "") {
  const Outline outline = draw.star(7, 0);
  const float level = outline.y[0] + draw.number(-50, 50);
  const auto [count, xc] = call<int, std::array<float, 7>>(trvppp, outline, level);
  std::vector<Exact> exact;
  for (int i = 0; i < 7; ++i) {
    const V2 p = outline.vertex(i), q = outline.vertex(i + 1);
    if ((p.y <= level) == (q.y <= level)) continue;
    exact.push_back(p.x + (level - p.y) * (q.x - p.x) / (q.y - p.y));
  }
  std::sort(exact.begin(), exact.end());
  if (count == static_cast<int>(exact.size()) && count > 0) out.add("XC", xc[0], exact[0]);
}

MEASURE(trvpin, "") {
  using Seven = std::array<float, 7>;
  const Outline outline = draw.star(7, 0);
  const P2 p1{outline.x[0] + draw.number(-250, -150), outline.y[0] + draw.number(-40, 40)};
  const P2 p2 = draw.near_by(p1, 600, 700);
  const auto [count, xi, yi, t, edge, status] =
      call<int, Seven, Seven, Seven, std::array<int, 7>, int>(trvpin, outline, p1, p2);
  if (count < 1) return;
  const V2 a = outline.vertex(edge[0] - 1), b = outline.vertex(edge[0]);
  const V2 s = crossing(p1, p2 - p1, a, b - a);
  out.add("XI YI", P2{xi[0], yi[0]}, s);
  out.add("T", t[0], dot(s - p1, p2 - p1) / dot(p2 - p1, p2 - p1));
}

}  // namespace
}  // namespace accuracy
