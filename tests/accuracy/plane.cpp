// Points, vectors, lines and angles.
#include <trelvin/trelvin.h>

#include <algorithm>

#include "measure.h"

namespace accuracy {
namespace {

constexpr const char *small_result = "cancels where the result is small";
constexpr const char *constant = "the constant of the line cancels";

struct Line {
  float a = 0, b = 0, c = 0;
  [[nodiscard]] V2 normal() const { return {a, b}; }
};

Line line_through(P2 p, P2 q) {
  Line l;
  trvln3(p.x, p.y, q.x, q.y, l.a, l.b, l.c);
  return l;
}

P2 near_by(Draw &draw, P2 p) { return Draw::from(p, draw.vector(50, 500)); }
P3 near_by(Draw &draw, P3 p) { return Draw::from(p, draw.vector_of_space(50, 500)); }

struct Four {
  P3 p1, p2, p3, p4;
};

Four four_points(Draw &draw) {
  Four f;
  f.p1 = draw.point_of_space();
  f.p2 = near_by(draw, f.p1);
  f.p3 = near_by(draw, f.p1);
  f.p4 = near_by(draw, f.p3);
  return f;
}

void distance(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), q = near_by(draw, p);
  float d = 0;
  trvpds(p.x, p.y, p.z, q.x, q.y, q.z, d);
  out.add("d", d, length(q - p));
}

void dot_product(Draw &draw, Results &out) {
  const auto [p1, p2, p3, p4] = four_points(draw);
  float s = 0;
  trvpri(p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, p3.x, p3.y, p3.z, p4.x, p4.y, p4.z, s);
  out.add("s", s, dot(p2 - p1, p4 - p3));
}

void cross_product(Draw &draw, Results &out) {
  const auto [p1, p2, p3, p4] = four_points(draw);
  float c[3];
  trvpre(p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, p3.x, p3.y, p3.z, p4.x, p4.y, p4.z, c);
  out.add("c", P3{c[0], c[1], c[2]}, cross(p2 - p1, p4 - p3));
}

void difference(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), q = near_by(draw, p);
  P3 d;
  std::int32_t status = 0;
  trvcnt(p.x, p.y, p.z, q.x, q.y, q.z, d.x, d.y, d.z, status);
  out.add("dx dy dz", d, q - p);
}

void fraction(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), q = near_by(draw, p);
  const float t = draw.number(0, 1);
  P3 r;
  std::int32_t status = 0;
  trv123(p.x, p.y, p.z, q.x, q.y, q.z, t, r.x, r.y, r.z, status);
  out.add("x y z", r, V3(p) + t * (q - p));
}

void midpoint(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), q = near_by(draw, p);
  P3 m;
  trvmed(p.x, p.y, p.z, q.x, q.y, q.z, m.x, m.y, m.z);
  out.add("xm ym zm", m, 0.5 * (V3(p) + V3(q)));
}

void determinants(Draw &draw, Results &out) {
  const P2 p = draw.vector(50, 500), q = draw.vector(50, 500);
  float det = 0;
  trvdtr2(p.x, p.y, q.x, q.y, det);
  out.add("det", det, cross(V2(p), V2(q)));
}

void determinant_of_three(Draw &draw, Results &out) {
  const P3 a = draw.vector_of_space(50, 500), b = draw.vector_of_space(50, 500),
           c = draw.vector_of_space(50, 500);
  float det = 0;
  trvdtr3(a.x, a.y, a.z, b.x, b.y, b.z, c.x, c.y, c.z, det);
  out.add("det", det, dot(V3(a), cross(V3(b), V3(c))));
}

void quotients(Draw &draw, Results &out) {
  const float a = draw.number(1, 100), b = draw.number(-100, 100), c = draw.number(-100, 100);
  float q1 = 0, q2 = 0;
  trvgrc(a, b, c, q1, q2);
  out.add("q1", q1, Exact(c) / a);
  out.add("q2", q2, Exact(b) / a);
}

void interpolation(Draw &draw, Results &out) {
  const float x1 = draw.number(0, 100), x2 = draw.number(200, 300), x = draw.number(100, 200);
  const float y1 = draw.number(50, 500), y2 = draw.number(50, 500);
  float y = 0;
  trvint(x1, x2, y1, y2, x, y);
  out.add("y", y, Exact(y1) + (Exact(y2) - y1) * (Exact(x) - x1) / (Exact(x2) - x1));
}

void from_two_points(Draw &draw, Results &out) {
  const P2 p = draw.point(), q = near_by(draw, p);
  const Line l = line_through(p, q);
  out.add("a b", P2{l.a, l.b}, V2{Exact(q.y) - p.y, Exact(p.x) - q.x});
  out.add("c", l.c, cross(V2(q), V2(p)));
}

void from_angle(Draw &draw, Results &out) {
  const P2 p = draw.point();
  const float phi = draw.number(-1.5, 1.5);
  Line l;
  trvln1(p.x, p.y, phi, l.a, l.b, l.c);
  out.add("a", l.a, tangent(phi));
  out.add("c", l.c, p.y - tangent(phi) * p.x);
}

void from_direction(Draw &draw, Results &out) {
  const P2 p = draw.point(), d = draw.vector(1, 100);
  Line l;
  trvln4(p.x, p.y, d.x, d.y, 0.0F, l.a, l.b, l.c);
  out.add("a", l.a, Exact(d.y) / d.x);
  out.add("c", l.c, p.y - Exact(d.y) * p.x / d.x);
}

void parallel(Draw &draw, Results &out) {
  const P2 p = draw.point();
  const Line l = line_through(p, near_by(draw, p));
  const float d = draw.number(-100, 100);
  Line m;
  trvln2(l.a, l.b, l.c, d, m.a, m.b, m.c);
  out.add("c2", m.c, l.c - length(l.normal()) * d);
}

void bisector(Draw &draw, Results &out) {
  const P2 p = draw.point(), q = near_by(draw, p), r = near_by(draw, p);
  Line l;
  trvln5(p.x, p.y, q.x, q.y, r.x, r.y, l.a, l.b, l.c);
  const V2 u = q - p, w = r - p;
  const V2 normal = length(w) * u - length(u) * w;
  out.add("a b", P2{l.a, l.b}, normal);
  out.add("c", l.c, -dot(normal, V2(p)));
}

void distance_from_line(Draw &draw, Results &out) {
  const P2 p = draw.point(), q = near_by(draw, p), r = near_by(draw, p);
  const Line l = line_through(p, r);
  float d = 0;
  trvlds(q.x, q.y, l.a, l.b, l.c, d);
  out.add("d", d, (dot(l.normal(), V2(q)) + l.c) / length(l.normal()));
  out.add("d by trvln3", d, cross(q - p, r - p) / length(r - p));
}

void intersection(Draw &draw, Results &out) {
  const P2 p1 = draw.point(), p2 = near_by(draw, p1), q1 = near_by(draw, p1),
           q2 = near_by(draw, p1);
  const Line l = line_through(p1, p2), m = line_through(q1, q2);
  std::int32_t status = -1;
  P2 s;
  trvlni(l.a, l.b, l.c, m.a, m.b, m.c, status, s.x, s.y);
  const Exact det = cross(l.normal(), m.normal());
  if (status != 0) return;
  out.add(
      "x y", s,
      V2{(Exact(l.b) * m.c - Exact(m.b) * l.c) / det, (Exact(m.a) * l.c - Exact(l.a) * m.c) / det});
  out.add("x y by trvln3", s, crossing(p1, p2 - p1, q1, q2 - q1));
}

void between_parallels(Draw &draw, Results &out) {
  const P2 p = draw.point();
  const Line l = line_through(p, near_by(draw, p));
  Line m;
  trvln2(l.a, l.b, l.c, draw.number(10, 100), m.a, m.b, m.c);
  float d = 0;
  std::int32_t status = -1;
  trvlul(l.a, l.b, l.c, m.a, m.b, m.c, d, status);
  if (status == 2) out.add("d", d, (Exact(l.c) - m.c) / length(l.normal()));
}

void angle_in_plane(Draw &draw, Results &out) {
  const P2 p = draw.point(), q = near_by(draw, p), r = near_by(draw, p);
  float phi = 0;
  trvphi(p.x, p.y, q.x, q.y, r.x, r.y, phi);
  out.add("phi", phi, angle_between(q - p, r - p));
}

void angle_in_space(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), q = near_by(draw, p), r = near_by(draw, p);
  float phi = 0;
  trvphi3(p.x, p.y, p.z, q.x, q.y, q.z, r.x, r.y, r.z, phi);
  out.add("phi", phi, angle_between(q - p, r - p));
}

void angle_of_vectors(Draw &draw, Results &out) {
  const P3 u = draw.vector_of_space(1, 100), v = draw.vector_of_space(1, 100);
  float phi = 0;
  trvphi1(u.x, u.y, u.z, v.x, v.y, v.z, phi);
  out.add("phi", phi, angle_between(V3(u), V3(v)));
}

void angle_of_lines(Draw &draw, Results &out) {
  const P3 u = draw.vector_of_space(1, 100), v = draw.vector_of_space(1, 100);
  float phi = 0;
  std::int32_t status = 0;
  trvphip(u.x, u.y, u.z, v.x, v.y, v.z, phi, status);
  const Exact angle = angle_between(V3(u), V3(v));
  out.add("phi", phi, lesser(angle, pi - angle));
}

void directed_angle(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), q = near_by(draw, p), r = near_by(draw, p);
  float chi = 0;
  std::int32_t status = -1;
  trvchi(p.x, p.y, p.z, q.x, q.y, q.z, r.x, r.y, r.z, chi, status);
  const V3 normal = cross(q - p, r - p);
  const Exact angle = angle_between(q - p, r - p);
  const bool other_side = normal.y < 0;
  out.add("chi", chi, other_side ? 2 * pi - angle : angle);
}

void cosine_and_sine(Draw &draw, Results &out) {
  const auto [p1, p2, p3, p4] = four_points(draw);
  float c = 0, s = 0;
  std::int32_t status = -1;
  trvtrg(p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, p3.x, p3.y, p3.z, p4.x, p4.y, p4.z, c, s, status);
  const V3 u = p2 - p1, w = p4 - p3;
  out.add("cphi", c, dot(u, w) / (length(u) * length(w)));
  out.add("sphi", s, length(cross(u, w)) / (length(u) * length(w)));
}

void line_of_planes(Draw &draw, Results &out) {
  const P3 n = draw.vector_of_space(50, 500), m = draw.vector_of_space(50, 500), p;
  float ex = 0, ey = 0;
  std::int32_t code = 0, on = 0;
  trvln7(n.x, n.y, n.z, 1, m.x, m.y, m.z, 1, p.x, p.y, p.z, ex, ey, 1, 1, code, on);
  const V3 direction = cross(V3(n), V3(m));
  out.add("ex", ex, direction.x);
  out.add("ey", ey, -direction.y);
}

void projected_angles(Draw &draw, Results &out) {
  const auto [p1, p2, p3, p4] = four_points(draw);
  float ax = 0, ay = 0, az = 0;
  trvmov(p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, p3.x, p3.y, p3.z, p4.x, p4.y, p4.z, ax, ay, az);
  const V3 u = p2 - p1, w = p4 - p3;
  out.add("ax", ax, angle_between(V2{u.y, u.z}, V2{w.y, w.z}));
  out.add("ay", ay, angle_between(V2{u.x, u.z}, V2{w.x, w.z}));
  out.add("az", az, angle_between(V2{u.x, u.y}, V2{w.x, w.y}));
}

void moved_origin(Draw &draw, Results &out) {
  const P2 origin = draw.point();
  P2 p = near_by(draw, origin);
  const V2 expected = p - origin;
  trvtra(&p.x, &p.y, 1, origin.x, origin.y);
  out.add("X Y", p, expected);
}

std::vector<P2> star(Draw &draw, int n) {
  const P2 middle = draw.point();
  std::vector<P2> outline;
  for (int i = 0; i < n; ++i) {
    const double angle = 2 * 3.14159265 * i / n;
    const float r = draw.number(100, 300);
    outline.push_back({middle.x + r * static_cast<float>(cosine(angle)),
                       middle.y + r * static_cast<float>(sine(angle))});
  }
  return outline;
}

struct Arrays {
  explicit Arrays(const std::vector<P2> &points) {
    for (const P2 &p : points) x.push_back(p.x), y.push_back(p.y);
  }
  std::vector<float> x, y;
};

void level_crossings(Draw &draw, Results &out) {
  const std::vector<P2> outline = star(draw, 7);
  const Arrays at(outline);
  const float level = outline[0].y + draw.number(-50, 50);
  float xc[7];
  std::int32_t count = 0;
  trvppp(at.x.data(), at.y.data(), 7, level, count, xc);
  std::vector<Exact> exact;
  for (std::size_t i = 0; i < 7; ++i) {
    const V2 p = outline[i], q = outline[(i + 1) % 7];
    if ((p.y <= level) == (q.y <= level)) continue;
    exact.push_back(p.x + (level - p.y) * (q.x - p.x) / (q.y - p.y));
  }
  std::sort(exact.begin(), exact.end());
  if (count == static_cast<std::int32_t>(exact.size()) && count > 0) out.add("XC", xc[0], exact[0]);
}

void segment_crossings(Draw &draw, Results &out) {
  const std::vector<P2> outline = star(draw, 7);
  const Arrays at(outline);
  const P2 p1{outline[0].x + draw.number(-250, -150), outline[0].y + draw.number(-40, 40)};
  const P2 p2 = Draw::from(p1, draw.vector(600, 700));
  float xi[7], yi[7], t[7];
  std::int32_t count = 0, edge[7], status = -1;
  trvpin(at.x.data(), at.y.data(), 7, p1.x, p1.y, p2.x, p2.y, count, xi, yi, t, edge, status);
  if (count < 1) return;
  const auto i = static_cast<std::size_t>(edge[0] - 1);
  const V2 a = outline[i], b = outline[(i + 1) % 7];
  const V2 s = crossing(p1, p2 - p1, a, b - a);
  out.add("XI YI", P2{xi[0], yi[0]}, s);
  out.add("T", t[0], dot(s - p1, p2 - p1) / dot(p2 - p1, p2 - p1));
}

}  // namespace

std::vector<Measurement> plane_measurements() {
  const auto here = Measurement::origin_only;
  const char *angles = "arc cosine near 0 and pi";
  return {{"trvpds", distance, ""},
          {"trvpri", dot_product, small_result},
          {"trvpre", cross_product, "cancels near parallel"},
          {"trvcnt", difference, ""},
          {"trv123", fraction, ""},
          {"trvmed", midpoint, ""},
          {"trvdtr2", determinants, small_result, here},
          {"trvdtr3", determinant_of_three, small_result, here},
          {"trvgrc", quotients, "", here},
          {"trvint", interpolation, "", here},
          {"trvln3", from_two_points, constant},
          {"trvln1", from_angle, constant},
          {"trvln4", from_direction, constant},
          {"trvln2", parallel, constant},
          {"trvln5", bisector, constant},
          {"trvlds", distance_from_line, constant},
          {"trvlni", intersection, "the constants of the lines cancel; near parallel"},
          {"trvlul", between_parallels, ""},
          {"trvln7", line_of_planes, small_result, here},
          {"trvphi", angle_in_plane, angles},
          {"trvphi3", angle_in_space, angles},
          {"trvphi1", angle_of_vectors, angles, here},
          {"trvphip", angle_of_lines, angles, here},
          {"trvchi", directed_angle, ""},
          {"trvtrg", cosine_and_sine, small_result},
          {"trvmov", projected_angles, angles},
          {"trvtra", moved_origin, ""},
          {"trvppp", level_crossings, ""},
          {"trvpin", segment_crossings, ""}};
}

}  // namespace accuracy
