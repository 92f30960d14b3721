// Rotations, frames, planes and lines of space.
#include <trelvin/trelvin.h>

#include "measure.h"

namespace accuracy {
namespace {

constexpr const char *constant = "the constant of the plane cancels";

constexpr const char *upright = "an axis nearly along y";

// --- rotations ------------------------------------------------------------------------------------

V3 about_x(V3 p, Exact angle) { return turned(p, {1, 0, 0}, angle); }
V3 about_y(V3 p, Exact angle) { return turned(p, {0, 1, 0}, -angle); }  // left-handed
V3 about_z(V3 p, Exact angle) { return turned(p, {0, 0, 1}, angle); }

MEASURE(trvrot, "") {
  P2 p = draw.point();
  const float angle = draw.angle();
  const V2 expected = turned(p, angle);
  call(trvrot, 2, &p, 1, angle);
  out.add("x y", p, expected);
}

MEASURE(trvrotx, "") {
  P3 p = draw.point_of_space();
  const float angle = draw.angle();
  const V3 expected = about_x(p, angle);
  call(trvrotx, 2, &p, 1, angle);
  out.add("y z", P2{p.y, p.z}, V2{expected.y, expected.z});
}

MEASURE(trvroty, "") {
  P3 p = draw.point_of_space();
  const float angle = draw.angle();
  const V3 expected = about_y(p, angle);
  call(trvroty, 2, &p, 1, angle);
  out.add("x z", P2{p.x, p.z}, V2{expected.x, expected.z});
}

MEASURE(trvrotz, "") {
  P3 p = draw.point_of_space();
  const float angle = draw.angle();
  const V3 expected = about_z(p, angle);
  call(trvrotz, 2, &p, 1, angle);
  out.add("x y", P2{p.x, p.y}, V2{expected.x, expected.y});
}

MEASURE(trv3tra, "") {
  const P3 origin = draw.point_of_space();
  P3 p = draw.near_by(origin);
  const V3 expected = p - origin;
  call(trv3tra, &p, 1, origin);
  out.add("X Y Z", p, expected);
}

struct Turns {
  float x, y, z;
  [[nodiscard]] V3 of(V3 p) const { return about_z(about_y(about_x(p, x), y), z); }
};

auto parts(Turns &t) { return std::tie(t.x, t.y, t.z); }

Turns turns(Draw &draw) { return {draw.angle(), draw.angle(), draw.angle()}; }

MEASURE(trvptr, "") {
  P3 p = draw.point_of_space();
  const P3 shift = draw.vector_of_space(10, 100);
  const Turns t = turns(draw);
  const V3 expected = t.of(V3(p) + shift);
  call(trvptr, &p, 1, shift, t);
  out.add("X Y Z", p, expected);
}

MEASURE(trvpra, upright) {
  const P3 p0 = draw.point_of_space(), p1 = draw.near_by(p0);
  P3 p = draw.near_by(p0);
  const float angle = draw.angle();
  const V3 expected = V3(p0) + turned(p - p0, unit(p1 - p0), angle);
  call<int>(trvpra, p0, p1, &p, 1, angle);
  out.add("X Y Z", p, expected);
}

// --- frames ---------------------------------------------------------------------------------------

struct Triangle {
  P3 p0, p1, p2;
  [[nodiscard]] V3 normal() const { return cross(p1 - p0, p2 - p0); }
};

auto parts(Triangle &t) { return parts(t.p0, t.p1, t.p2); }

// With no sharp angle, as hosts choose it.
Triangle triangle(Draw &draw) {
  Triangle t;
  do {
    t.p0 = draw.point_of_space();
    t.p1 = draw.near_by(t.p0);
    t.p2 = draw.near_by(t.p0);
  } while (length(t.normal()) < 0.2 * length(t.p1 - t.p0) * length(t.p2 - t.p0));
  return t;
}

struct Frame {
  V3 e1, e2, e3;
  [[nodiscard]] V3 local(V3 v) const { return {dot(e1, v), dot(e2, v), dot(e3, v)}; }
  [[nodiscard]] V3 global(V3 v) const { return v.x * e1 + v.y * e2 + v.z * e3; }
};

Frame frame_of(const Triangle &t) {
  Frame f;
  f.e1 = unit(t.p1 - t.p0);
  f.e3 = unit(t.normal());
  if (f.e3.y < 0) f.e3 = -1 * f.e3;
  f.e2 = cross(f.e3, f.e1);
  return f;
}

MEASURE(trvaxe, "") {
  const Triangle t = triangle(draw);
  const auto [e1, e2, e3, status] = call<P3, P3, P3, int>(trvaxe, t);
  const Frame f = frame_of(t);
  out.add("e1", e1, f.e1);
  out.add("e2", e2, f.e2);
  out.add("e3", e3, f.e3);
}

MEASURE(trvaxel, upright) {
  const P3 p0 = draw.point_of_space(), p1 = draw.near_by(p0);
  const float angle = draw.angle();
  const auto [e1, e2, e3, status] = call<P3, P3, P3, int>(trvaxel, p0, p1, angle);
  const V3 along = unit(p1 - p0);
  const V3 upwards = unit(V3{0, 1, 0} - along.y * along);
  out.add("e1", e1, along);
  out.add("e2", e2, turned(upwards, along, angle));
  out.add("e3", e3, turned(cross(along, upwards), along, angle));
}

MEASURE(trvtrn, "cancels where the result is small") {
  P3 e[3];
  for (P3 &row : e) row = {draw.number(-1, 1), draw.number(-1, 1), draw.number(-1, 1)};
  const P3 given = draw.point_of_space();
  float p[3] = {given.x, given.y, given.z};
  call(trvtrn, p, e[0], e[1], e[2], 2);
  const Frame f{e[0], e[1], e[2]};
  out.add("p", P3{p[0], p[1], p[2]}, f.local(given));
}

MEASURE(trvptrl, "") {
  const Triangle t = triangle(draw);
  P3 p = draw.near_by(t.p0);
  const P3 shift = draw.vector_of_space(10, 100);
  const Turns turn = turns(draw);
  const Frame f = frame_of(t);
  const V3 expected = V3(t.p0) + f.global(turn.of(f.local(p - t.p0) + shift));
  const auto status = call<int>(trvptrl, t, &p, 1, shift, turn);
  if (status == 0) out.add("X Y Z", p, expected);
}

MEASURE(trvppc, "") {
  const Triangle t = triangle(draw);
  P3 p = t.p2;
  const P3 shift = draw.vector_of_space(10, 100);
  const Turns turn = turns(draw);
  const Frame f = frame_of(t);
  const V3 expected = V3(t.p0) + f.global(turn.of(f.local(p - t.p0))) + shift;
  const auto status = call<int>(trvppc, t, shift, turn, 1, &p, 1e9F);
  if (status == 0) out.add("X Y Z", p, expected);
}

// --- planes ---------------------------------------------------------------------------------------

struct Plane {
  P3 normal;
  float d = 0;
};

auto parts(Plane &p) { return parts(p.normal, p.d); }

void compare(Results &out, const Plane &plane, V3 normal, V3 through) {
  out.add("a b c", plane.normal, normal);
  out.add("d", plane.d, -dot(normal, through));
}

Plane plane_of(const Triangle &t) { return std::get<0>(call<Plane, int>(trvpl1, t)); }

MEASURE(trvplg, constant) {
  const P3 p = draw.point_of_space(), u = draw.vector_of_space(1, 10),
           w = draw.vector_of_space(1, 10);
  compare(out, call<Plane>(trvplg, p, u, w), cross(V3(u), V3(w)), p);
}

MEASURE(trvpl1, constant) {
  const Triangle t = triangle(draw);
  compare(out, plane_of(t), t.normal(), t.p0);
}

MEASURE(trvpl2, constant) {
  const Triangle t = triangle(draw);
  const P3 p = draw.near_by(t.p0), c = draw.near_by(t.p0), e = draw.near_by(c);
  const auto [got, status] = call<Plane, int>(trvpl2, p, t.p0, t.p1, c, e);
  compare(out, got, cross(t.p1 - t.p0, e - c), p);
}

MEASURE(trvpl3, constant) {
  const P3 a = draw.point_of_space(), b = draw.near_by(a), c = draw.near_by(a), e = draw.near_by(c);
  const auto [got, status] = call<Plane, int>(trvpl3, a, b, c, e);
  compare(out, got, cross(b - a, e - c), a);
}

MEASURE(trvpl4, constant) {
  const P3 p = draw.point_of_space(), a = draw.near_by(p), b = draw.near_by(a);
  const auto [got, status] = call<Plane, int>(trvpl4, p, a, b);
  compare(out, got, b - a, p);
}

MEASURE(trvpl5, "", origin_only) {
  const P3 i{draw.number(1, 100), draw.number(-100, -1), draw.number(1, 100)};
  const auto [got, status] = call<Plane, int>(trvpl5, i);
  out.add("a b c", got.normal, V3{1 / Exact(i.x), 1 / Exact(i.y), 1 / Exact(i.z)});
}

MEASURE(trvpl7, "the normal has the digits of P0 only") {
  const Triangle t = triangle(draw);
  const float angle = draw.angle();
  const auto [got, status] = call<Plane, int>(trvpl7, t, angle);
  const Frame f = frame_of(t);
  if (status == 0) compare(out, got, turned(f.e3, f.e1, angle), t.p0);
}

Exact residual(const Plane &p, V3 point) { return dot(V3(p.normal), point) + p.d; }

MEASURE(trvpld, constant) {
  const Triangle t = triangle(draw);
  const P3 q = draw.near_by(t.p0);
  const Plane p = plane_of(t);
  const auto dist = call<float>(trvpld, q, p);
  out.add("dist", dist, residual(p, q) / length(V3(p.normal)));
  out.add("dist by trvpl1", dist, dot(t.normal(), q - t.p0) / length(t.normal()));
}

MEASURE(trvpli, constant) {
  const Triangle t = triangle(draw);
  const P3 q = draw.near_by(t.p0), u = draw.vector_of_space(1, 10);
  const Plane p = plane_of(t);
  const auto [s, status] = call<P3, int>(trvpli, q, u, p);
  if (status != 0) return;
  out.add("xi yi zi", s, V3(q) - (residual(p, q) / dot(V3(p.normal), V3(u))) * V3(u));
  const V3 n = t.normal();
  out.add("xi yi zi by trvpl1", s, V3(q) - (dot(n, q - t.p0) / dot(n, V3(u))) * V3(u));
}

MEASURE(trvpnp, "cancels where the result is small") {
  float x[5], y[5], z[5], d = draw.number(-100, 100);
  const P3 n = draw.vector_of_space(1, 2);
  Exact expected = d;
  for (int i = 0; i < 5; ++i) {
    const P3 p = draw.point_of_space();
    x[i] = p.x, y[i] = p.y, z[i] = p.z;
    expected += dot(V3(n), V3(p));
  }
  std::int32_t count = 0, index[5];
  trvpnp(x, y, z, n.x, n.y, n.z, d, 5, count, index);
  out.add("d", d, expected);
}

// --- lines ----------------------------------------------------------------------------------------

MEASURE(trv3ldb, "") {
  P3 a = draw.point_of_space();
  a.z = a.y;  // elsewhere the figure is no distance
  const P3 b = draw.near_by(a), q = draw.near_by(a);
  const auto [status, dist] = call<int, float>(trv3ldb, a, b, q);
  out.add("dist", dist, length(cross(b - a, q - a)) / length(b - a));
}

MEASURE(trv3lda, "works with coordinates turned about the origin") {
  const Triangle t = triangle(draw);
  const auto [status, dist] = call<int, float>(trv3lda, t);
  out.add("dist", dist, -frame_of(t).local(t.p2 - t.p0).y);
}

// Two lines that cross exactly, in whole numbers.
struct Crossing {
  P3 point, u, w, a, c;
};

Crossing crossing_lines(Draw &draw) {
  const auto whole = [](P3 p) {
    const auto cut = [](float x) { return static_cast<float>(static_cast<int>(x)); };
    return P3{cut(p.x), cut(p.y), cut(p.z)};
  };
  Crossing k;
  k.point = whole(draw.point_of_space());
  k.u = whole(draw.vector_of_space(10, 40));
  k.w = whole(draw.vector_of_space(10, 40));
  const auto back = [&](P3 v, int times) {
    const auto f = static_cast<float>(-times);
    return Draw::from(k.point, {f * v.x, f * v.y, f * v.z});
  };
  k.a = back(k.u, draw.integer(1, 4));
  k.c = back(k.w, draw.integer(2, 5));  // C + w is not on the first line
  return k;
}

MEASURE(trv3lni, "") {
  const Crossing k = crossing_lines(draw);
  const auto [status, s] = call<int, P3>(trv3lni, k.a, k.u, k.c, k.w);
  if (status == 0) out.add("xi yi zi", s, V3(k.point));
}

MEASURE(trvpl6, constant) {
  const Crossing k = crossing_lines(draw);
  const auto [got, status] = call<Plane, int>(trvpl6, k.a, k.u, k.c, k.w);
  if (status == 0) compare(out, got, cross(V3(k.u), V3(k.w)), k.a);
}

MEASURE(trvlpc, "") {
  const Crossing k = crossing_lines(draw);
  const P3 p = k.point, q1 = Draw::from(p, {4 * k.u.x, 4 * k.u.y, 4 * k.u.z});
  P3 q2 = k.a;
  const P3 dp = draw.vector_of_space(1, 50), dq = draw.vector_of_space(1, 50);
  const V3 v = q1 - p;
  const Exact place = dot(q2 - p, v) / dot(v, v);
  const auto status =
      call<int>(trvlpc, p, q1, std::ref(q2.x), std::ref(q2.y), std::ref(q2.z), dp, dq);
  const V3 moved = V3(p) + dp;
  if (status == 3 || status == 4) out.add("x2 y2 z2", q2, moved + place * ((V3(q1) + dq) - moved));
}

}  // namespace
}  // namespace accuracy
