// Rotations, frames, planes and lines of space.
#include <trelvin/trelvin.h>

#include "measure.h"

namespace accuracy {
namespace {

constexpr const char *constant = "the constant of the plane cancels";

P3 near_by(Draw &draw, P3 p) { return Draw::from(p, draw.vector_of_space(50, 500)); }

// --- rotations ------------------------------------------------------------------------------------

V3 about_x(V3 p, Exact angle) { return turned(p, {1, 0, 0}, angle); }
V3 about_y(V3 p, Exact angle) { return turned(p, {0, 1, 0}, -angle); }  // left-handed
V3 about_z(V3 p, Exact angle) { return turned(p, {0, 0, 1}, angle); }

void turn_in_plane(Draw &draw, Results &out) {
  P2 p = draw.point();
  const V2 expected = p;
  const float angle = draw.angle();
  trvrot(2, &p.x, &p.y, 1, angle);
  out.add("x y", p, turned(expected, angle));
}

void turn_about_x(Draw &draw, Results &out) {
  P3 p = draw.point_of_space();
  const V3 given = p;
  const float angle = draw.angle();
  trvrotx(2, &p.x, &p.y, &p.z, 1, angle);
  const V3 expected = about_x(given, angle);
  out.add("y z", P2{p.y, p.z}, V2{expected.y, expected.z});
}

void turn_about_y(Draw &draw, Results &out) {
  P3 p = draw.point_of_space();
  const V3 given = p;
  const float angle = draw.angle();
  trvroty(2, &p.x, &p.y, &p.z, 1, angle);
  const V3 expected = about_y(given, angle);
  out.add("x z", P2{p.x, p.z}, V2{expected.x, expected.z});
}

void turn_about_z(Draw &draw, Results &out) {
  P3 p = draw.point_of_space();
  const V3 given = p;
  const float angle = draw.angle();
  trvrotz(2, &p.x, &p.y, &p.z, 1, angle);
  const V3 expected = about_z(given, angle);
  out.add("x y", P2{p.x, p.y}, V2{expected.x, expected.y});
}

void moved_origin(Draw &draw, Results &out) {
  const P3 origin = draw.point_of_space();
  P3 p = near_by(draw, origin);
  const V3 expected = p - origin;
  trv3tra(&p.x, &p.y, &p.z, 1, origin.x, origin.y, origin.z);
  out.add("X Y Z", p, expected);
}

void shift_and_turns(Draw &draw, Results &out) {
  P3 p = draw.point_of_space();
  const P3 shift = draw.vector_of_space(10, 100);
  const float ax = draw.angle(), ay = draw.angle(), az = draw.angle();
  const V3 expected = about_z(about_y(about_x(V3(p) + shift, ax), ay), az);
  trvptr(&p.x, &p.y, &p.z, 1, shift.x, shift.y, shift.z, ax, ay, az);
  out.add("X Y Z", p, expected);
}

void turn_about_axis(Draw &draw, Results &out) {
  const P3 p0 = draw.point_of_space(), p1 = near_by(draw, p0);
  P3 p = near_by(draw, p0);
  const float angle = draw.angle();
  const V3 expected = V3(p0) + turned(p - p0, unit(p1 - p0), angle);
  std::int32_t status = -1;
  trvpra(p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, &p.x, &p.y, &p.z, 1, angle, status);
  out.add("X Y Z", p, expected);
}

// --- frames ---------------------------------------------------------------------------------------

struct Triangle {
  P3 p0, p1, p2;
  [[nodiscard]] V3 normal() const { return cross(p1 - p0, p2 - p0); }
};

// With no sharp angle, as hosts choose it.
Triangle triangle(Draw &draw) {
  Triangle t;
  do {
    t.p0 = draw.point_of_space();
    t.p1 = near_by(draw, t.p0);
    t.p2 = near_by(draw, t.p0);
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

void frame_of_points(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  P3 e1, e2, e3;
  std::int32_t status = -1;
  trvaxe(t.p0.x, t.p0.y, t.p0.z, t.p1.x, t.p1.y, t.p1.z, t.p2.x, t.p2.y, t.p2.z, e1.x, e1.y, e1.z,
         e2.x, e2.y, e2.z, e3.x, e3.y, e3.z, status);
  const Frame f = frame_of(t);
  out.add("e1", e1, f.e1);
  out.add("e2", e2, f.e2);
  out.add("e3", e3, f.e3);
}

void frame_of_axis(Draw &draw, Results &out) {
  const P3 p0 = draw.point_of_space(), p1 = near_by(draw, p0);
  const float angle = draw.angle();
  P3 e1, e2, e3;
  std::int32_t status = -1;
  trvaxel(p0.x, p0.y, p0.z, p1.x, p1.y, p1.z, angle, e1.x, e1.y, e1.z, e2.x, e2.y, e2.z, e3.x, e3.y,
          e3.z, status);
  const V3 along = unit(p1 - p0);
  const V3 upwards = unit(V3{0, 1, 0} - along.y * along);
  out.add("e1", e1, along);
  out.add("e2", e2, turned(upwards, along, angle));
  out.add("e3", e3, turned(cross(along, upwards), along, angle));
}

void apply_frame(Draw &draw, Results &out) {
  float a[9];
  for (float &element : a) element = draw.number(-1, 1);
  const P3 given = draw.point_of_space();
  float p[3] = {given.x, given.y, given.z};
  trvtrn(p, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], 2);
  const Frame f{{a[0], a[1], a[2]}, {a[3], a[4], a[5]}, {a[6], a[7], a[8]}};
  out.add("p", P3{p[0], p[1], p[2]}, f.local(given));
}

void turns_in_frame(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  P3 p = near_by(draw, t.p0);
  const P3 shift = draw.vector_of_space(10, 100);
  const float ax = draw.angle(), ay = draw.angle(), az = draw.angle();
  const Frame f = frame_of(t);
  const V3 local = f.local(p - t.p0) + shift;
  const V3 expected = V3(t.p0) + f.global(about_z(about_y(about_x(local, ax), ay), az));
  std::int32_t status = -1;
  trvptrl(t.p0.x, t.p0.y, t.p0.z, t.p1.x, t.p1.y, t.p1.z, t.p2.x, t.p2.y, t.p2.z, &p.x, &p.y, &p.z,
          1, shift.x, shift.y, shift.z, ax, ay, az, status);
  if (status == 0) out.add("X Y Z", p, expected);
}

void turned_plane_points(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  P3 p = t.p2;
  const P3 shift = draw.vector_of_space(10, 100);
  const float ax = draw.angle(), ay = draw.angle(), az = draw.angle();
  const Frame f = frame_of(t);
  const V3 local = f.local(p - t.p0);
  const V3 expected = V3(t.p0) + f.global(about_z(about_y(about_x(local, ax), ay), az)) + shift;
  std::int32_t status = -1;
  trvppc(t.p0.x, t.p0.y, t.p0.z, t.p1.x, t.p1.y, t.p1.z, t.p2.x, t.p2.y, t.p2.z, shift.x, shift.y,
         shift.z, ax, ay, az, 1, &p.x, &p.y, &p.z, 1e9F, status);
  if (status == 0) out.add("X Y Z", p, expected);
}

// --- planes ---------------------------------------------------------------------------------------

struct Plane {
  P3 normal;
  float d = 0;
};

void compare(Results &out, const Plane &plane, V3 normal, V3 through) {
  out.add("a b c", plane.normal, normal);
  out.add("d", plane.d, -dot(normal, through));
}

Plane plane_of(const Triangle &t) {
  Plane p;
  std::int32_t status = -1;
  trvpl1(t.p0.x, t.p0.y, t.p0.z, t.p1.x, t.p1.y, t.p1.z, t.p2.x, t.p2.y, t.p2.z, p.normal.x,
         p.normal.y, p.normal.z, p.d, status);
  return p;
}

void plane_of_directions(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), u = draw.vector_of_space(1, 10),
           w = draw.vector_of_space(1, 10);
  Plane got;
  trvplg(p.x, p.y, p.z, u.x, u.y, u.z, w.x, w.y, w.z, got.normal.x, got.normal.y, got.normal.z,
         got.d);
  compare(out, got, cross(V3(u), V3(w)), p);
}

void plane_of_points(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  compare(out, plane_of(t), t.normal(), t.p0);
}

void plane_of_lines(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  const P3 p = near_by(draw, t.p0), c = near_by(draw, t.p0),
           e = Draw::from(c, draw.vector_of_space(50, 500));
  Plane got;
  std::int32_t status = -1;
  trvpl2(p.x, p.y, p.z, t.p0.x, t.p0.y, t.p0.z, t.p1.x, t.p1.y, t.p1.z, c.x, c.y, c.z, e.x, e.y,
         e.z, got.normal.x, got.normal.y, got.normal.z, got.d, status);
  compare(out, got, cross(t.p1 - t.p0, e - c), p);
}

void plane_along_line(Draw &draw, Results &out) {
  const P3 a = draw.point_of_space(), b = near_by(draw, a), c = near_by(draw, a),
           e = near_by(draw, c);
  Plane got;
  std::int32_t status = -1;
  trvpl3(a.x, a.y, a.z, b.x, b.y, b.z, c.x, c.y, c.z, e.x, e.y, e.z, got.normal.x, got.normal.y,
         got.normal.z, got.d, status);
  compare(out, got, cross(b - a, e - c), a);
}

void plane_across_segment(Draw &draw, Results &out) {
  const P3 p = draw.point_of_space(), a = near_by(draw, p), b = near_by(draw, a);
  Plane got;
  std::int32_t status = -1;
  trvpl4(p.x, p.y, p.z, a.x, a.y, a.z, b.x, b.y, b.z, got.normal.x, got.normal.y, got.normal.z,
         got.d, status);
  compare(out, got, b - a, p);
}

void plane_of_intercepts(Draw &draw, Results &out) {
  const P3 i{draw.number(1, 100), draw.number(-100, -1), draw.number(1, 100)};
  Plane got;
  std::int32_t status = -1;
  trvpl5(i.x, i.y, i.z, got.normal.x, got.normal.y, got.normal.z, got.d, status);
  out.add("a b c", got.normal, V3{1 / Exact(i.x), 1 / Exact(i.y), 1 / Exact(i.z)});
}

void turned_plane(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  const float angle = draw.angle();
  Plane got;
  std::int32_t status = -1;
  trvpl7(t.p0.x, t.p0.y, t.p0.z, t.p1.x, t.p1.y, t.p1.z, t.p2.x, t.p2.y, t.p2.z, angle,
         got.normal.x, got.normal.y, got.normal.z, got.d, status);
  const Frame f = frame_of(t);
  if (status == 0) compare(out, got, turned(f.e3, f.e1, angle), t.p0);
}

Exact residual(const Plane &p, V3 point) { return dot(V3(p.normal), point) + p.d; }

void distance_from_plane(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  const P3 q = near_by(draw, t.p0);
  const Plane p = plane_of(t);
  float dist = 0;
  trvpld(q.x, q.y, q.z, p.normal.x, p.normal.y, p.normal.z, p.d, dist);
  out.add("dist", dist, residual(p, q) / length(V3(p.normal)));
  out.add("dist by trvpl1", dist, dot(t.normal(), q - t.p0) / length(t.normal()));
}

void line_and_plane(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  const P3 q = near_by(draw, t.p0), u = draw.vector_of_space(1, 10);
  const Plane p = plane_of(t);
  P3 s;
  std::int32_t status = -1;
  trvpli(q.x, q.y, q.z, u.x, u.y, u.z, p.normal.x, p.normal.y, p.normal.z, p.d, s.x, s.y, s.z,
         status);
  if (status != 0) return;
  out.add("xi yi zi", s, V3(q) - (residual(p, q) / dot(V3(p.normal), V3(u))) * V3(u));
  const V3 n = t.normal();
  out.add("xi yi zi by trvpl1", s, V3(q) - (dot(n, q - t.p0) / dot(n, V3(u))) * V3(u));
}

void running_residual(Draw &draw, Results &out) {
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

void distance_from_line(Draw &draw, Results &out) {
  P3 a = draw.point_of_space();
  a.z = a.y;  // elsewhere the figure is no distance
  const P3 b = near_by(draw, a), q = near_by(draw, a);
  float dist = 0;
  std::int32_t status = -1;
  trv3ldb(a.x, a.y, a.z, b.x, b.y, b.z, q.x, q.y, q.z, status, dist);
  out.add("dist", dist, length(cross(b - a, q - a)) / length(b - a));
}

void signed_distance(Draw &draw, Results &out) {
  const Triangle t = triangle(draw);
  float dist = 0;
  std::int32_t status = -1;
  trv3lda(t.p0.x, t.p0.y, t.p0.z, t.p1.x, t.p1.y, t.p1.z, t.p2.x, t.p2.y, t.p2.z, status, dist);
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

void crossing_of_lines(Draw &draw, Results &out) {
  Crossing k = crossing_lines(draw);
  P3 s;
  std::int32_t status = -1;
  trv3lni(k.a.x, k.a.y, k.a.z, k.u.x, k.u.y, k.u.z, k.c.x, k.c.y, k.c.z, k.w.x, k.w.y, k.w.z,
          status, s.x, s.y, s.z);
  if (status == 0) out.add("xi yi zi", s, V3(k.point));
}

void plane_of_crossing_lines(Draw &draw, Results &out) {
  const Crossing k = crossing_lines(draw);
  Plane got;
  std::int32_t status = -1;
  trvpl6(k.a.x, k.a.y, k.a.z, k.u.x, k.u.y, k.u.z, k.c.x, k.c.y, k.c.z, k.w.x, k.w.y, k.w.z,
         got.normal.x, got.normal.y, got.normal.z, got.d, status);
  if (status == 0) compare(out, got, cross(V3(k.u), V3(k.w)), k.a);
}

void carried_along(Draw &draw, Results &out) {
  const Crossing k = crossing_lines(draw);
  const P3 p = k.point, q1 = Draw::from(p, {4 * k.u.x, 4 * k.u.y, 4 * k.u.z});
  P3 q2 = k.a;
  const P3 dp = draw.vector_of_space(1, 50), dq = draw.vector_of_space(1, 50);
  const V3 v = q1 - p;
  const Exact place = dot(q2 - p, v) / dot(v, v);
  std::int32_t status = -1;
  trvlpc(p.x, p.y, p.z, q1.x, q1.y, q1.z, q2.x, q2.y, q2.z, dp.x, dp.y, dp.z, dq.x, dq.y, dq.z,
         status);
  const V3 moved = V3(p) + dp;
  if (status == 3 || status == 4) out.add("x2 y2 z2", q2, moved + place * ((V3(q1) + dq) - moved));
}

}  // namespace

std::vector<Measurement> space_measurements() {
  const auto here = Measurement::origin_only;
  const char *upright = "an axis nearly along y";
  return {{"trvrot", turn_in_plane, ""},
          {"trvrotx", turn_about_x, ""},
          {"trvroty", turn_about_y, ""},
          {"trvrotz", turn_about_z, ""},
          {"trv3tra", moved_origin, ""},
          {"trvtrn", apply_frame, "cancels where the result is small"},
          {"trvaxe", frame_of_points, ""},
          {"trvaxel", frame_of_axis, upright},
          {"trvptr", shift_and_turns, ""},
          {"trvptrl", turns_in_frame, ""},
          {"trvpra", turn_about_axis, upright},
          {"trvppc", turned_plane_points, ""},
          {"trvplg", plane_of_directions, constant},
          {"trvpl1", plane_of_points, constant},
          {"trvpl2", plane_of_lines, constant},
          {"trvpl3", plane_along_line, constant},
          {"trvpl4", plane_across_segment, constant},
          {"trvpl5", plane_of_intercepts, "", here},
          {"trvpl6", plane_of_crossing_lines, constant},
          {"trvpl7", turned_plane, "the normal has the digits of P0 only"},
          {"trvpld", distance_from_plane, constant},
          {"trvpli", line_and_plane, constant},
          {"trvpnp", running_residual, "cancels where the result is small"},
          {"trv3ldb", distance_from_line, ""},
          {"trv3lda", signed_distance, "works with coordinates turned about the origin"},
          {"trv3lni", crossing_of_lines, ""},
          {"trvlpc", carried_along, ""}};
}

}  // namespace accuracy
