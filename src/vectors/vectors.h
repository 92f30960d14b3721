// Points and vectors of the plane and of space.
//
// Sums of products run from the left: (x + y) + z. The plane's functions give the bits that those
// of space give for z = 0.
#pragma once

#include <optional>

#include "numeric/functions.h"
#include "numeric/real.h"

namespace trelvin {

struct Vector2 {
  Real x, y;
};

struct Point2 {
  Real x, y;
};

struct Vector3 {
  Real x, y, z;
};

struct Point3 {
  Real x, y, z;
  [[nodiscard]] Point2 in_plane() const { return {x, y}; }  // seen along the z axis
};

constexpr Point3 origin = {0, 0, 0};

inline Vector2 operator-(Point2 end, Point2 start) { return {end.x - start.x, end.y - start.y}; }
inline Vector3 operator-(Point3 end, Point3 start) {
  return {end.x - start.x, end.y - start.y, end.z - start.z};
}
inline Point2 operator+(Point2 p, Vector2 v) { return {p.x + v.x, p.y + v.y}; }
inline Point3 operator+(Point3 p, Vector3 v) { return {p.x + v.x, p.y + v.y, p.z + v.z}; }
inline Vector3 operator-(Vector3 v) { return {-v.x, -v.y, -v.z}; }
inline Vector3 operator/(Vector3 v, Real k) { return {v.x / k, v.y / k, v.z / k}; }

inline Real dot(Vector2 u, Vector2 v) { return u.x * v.x + u.y * v.y; }
inline Real dot(Vector3 u, Vector3 v) { return u.x * v.x + u.y * v.y + u.z * v.z; }

inline Real length(Vector2 v) { return square_root(dot(v, v)); }
inline Real length(Vector3 v) { return square_root(dot(v, v)); }

inline Real distance(Point2 p, Point2 q) { return length(q - p); }
inline Real distance(Point3 p, Point3 q) { return length(q - p); }

inline Real cross(Vector2 u, Vector2 v) { return u.x * v.y - u.y * v.x; }
inline Vector3 cross(Vector3 u, Vector3 v) {
  return {u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x};
}

// Points coincide when each difference of their coordinates is negligible, wherever they lie.
inline bool negligible(Vector3 v) { return negligible(v.x) && negligible(v.y) && negligible(v.z); }
inline bool negligible(Vector2 v) { return negligible(v.x) && negligible(v.y); }
inline bool coincide(Point3 p, Point3 q) { return negligible(q - p); }
inline bool coincide(Point2 p, Point2 q) { return negligible(q - p); }

// All components are zero, of either sign; no tolerance.
inline bool is_zero(Vector3 v) { return v.x == 0 && v.y == 0 && v.z == 0; }

inline Point2 midpoint(Point2 p, Point2 q) { return {(p.x + q.x) * 0.5F, (p.y + q.y) * 0.5F}; }
inline Point3 midpoint(Point3 p, Point3 q) {
  return {(p.x + q.x) * 0.5F, (p.y + q.y) * 0.5F, (p.z + q.z) * 0.5F};
}

// P + t*(Q - P), nothing if the points coincide.
inline std::optional<Point3> point_along(Point3 p, Point3 q, Real t) {
  const Vector3 v = q - p;
  if (negligible(v)) return std::nullopt;
  return Point3{v.x * t + p.x, v.y * t + p.y, v.z * t + p.z};
}
inline std::optional<Point2> point_along(Point2 p, Point2 q, Real t) {
  const Vector2 v = q - p;
  if (negligible(v)) return std::nullopt;
  return Point2{v.x * t + p.x, v.y * t + p.y};
}

inline Real determinant(Real a, Real b, Real c, Real d) { return a * d - b * c; }

// Determinant of the matrix with the rows a, b and c, expanded along the first.
inline Real determinant(Vector3 a, Vector3 b, Vector3 c) {
  const Real m1 = determinant(b.y, b.z, c.y, c.z);
  const Real m2 = determinant(b.x, b.z, c.x, c.z);
  const Real m3 = determinant(b.x, b.y, c.x, c.y);
  return a.x * m1 - a.y * m2 + a.z * m3;
}

// Which components of a vector are significant.
enum class Components : Integer { none, all, x, y, z, xy, yz, xz };

inline Components significant_components(Vector3 v) {
  using C = Components;
  // Indexed by the components: 1 the first, 2 the second, 4 the third.
  constexpr C names[] = {C::none, C::x, C::y, C::xy, C::z, C::xz, C::yz, C::all};
  return names[(significant(v.x) ? 1 : 0) + (significant(v.y) ? 2 : 0) +
               (significant(v.z) ? 4 : 0)];
}

// Arrays of coordinates, as hosts keep points.
struct PlaneArrays {
  Real *x, *y;
  Point2 operator[](Integer i) const { return {x[i], y[i]}; }
  void set(Integer i, Point2 p) const {
    x[i] = p.x;
    y[i] = p.y;
  }
};

struct SpaceArrays {
  Real *x, *y, *z;
  Point3 operator[](Integer i) const { return {x[i], y[i], z[i]}; }
  void set(Integer i, Point3 p) const {
    x[i] = p.x;
    y[i] = p.y;
    z[i] = p.z;
  }
};

// Makes coordinates relative to a new origin.
inline void move_origin(PlaneArrays points, Integer n, Vector2 to) {
  for (Integer i = 0; i < n; ++i) {
    points.x[i] -= to.x;
    points.y[i] -= to.y;
  }
}
inline void move_origin(SpaceArrays points, Integer n, Vector3 to) {
  for (Integer i = 0; i < n; ++i) {
    points.x[i] -= to.x;
    points.y[i] -= to.y;
    points.z[i] -= to.z;
  }
}

}  // namespace trelvin
