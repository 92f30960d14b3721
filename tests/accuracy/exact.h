// Numbers of 113 bits, and points and vectors of them. What the routines compute from Reals of 24
// bits is so far from a tie between two Reals that these count as exact.
#pragma once

#include <quadmath.h>

#include <array>

namespace accuracy {

__extension__ typedef __float128 Exact;

inline Exact square_root(Exact x) { return sqrtq(x); }
inline Exact absolute(Exact x) { return fabsq(x); }
inline Exact sine(Exact x) { return sinq(x); }
inline Exact cosine(Exact x) { return cosq(x); }
inline Exact tangent(Exact x) { return tanq(x); }
inline Exact angle_of(Exact y, Exact x) { return atan2q(y, x); }
inline Exact square(Exact x) { return x * x; }
inline Exact cube(Exact x) { return x * x * x; }
inline Exact lesser(Exact a, Exact b) { return a < b ? a : b; }
inline Exact greater(Exact a, Exact b) { return a > b ? a : b; }
const Exact pi = 4 * atanq(1);

struct V2 {
  Exact x = 0, y = 0;
};
inline V2 operator+(V2 a, V2 b) { return {a.x + b.x, a.y + b.y}; }
inline V2 operator-(V2 a, V2 b) { return {a.x - b.x, a.y - b.y}; }
inline V2 operator*(Exact f, V2 a) { return {f * a.x, f * a.y}; }
inline Exact dot(V2 a, V2 b) { return a.x * b.x + a.y * b.y; }
inline Exact cross(V2 a, V2 b) { return a.x * b.y - a.y * b.x; }
inline Exact length(V2 a) { return square_root(dot(a, a)); }
inline V2 unit(V2 a) { return (1 / length(a)) * a; }
inline V2 left_of(V2 a) { return {-a.y, a.x}; }
inline V2 turned(V2 a, Exact by) {
  return {cosine(by) * a.x - sine(by) * a.y, sine(by) * a.x + cosine(by) * a.y};
}
// In [0, pi].
inline Exact angle_between(V2 a, V2 b) { return angle_of(absolute(cross(a, b)), dot(a, b)); }
// Where the line through p along u meets the one through q along w.
inline V2 crossing(V2 p, V2 u, V2 q, V2 w) { return p + (cross(q - p, w) / cross(u, w)) * u; }

struct V3 {
  Exact x = 0, y = 0, z = 0;
};
inline V3 operator+(V3 a, V3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline V3 operator-(V3 a, V3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline V3 operator*(Exact f, V3 a) { return {f * a.x, f * a.y, f * a.z}; }
inline Exact dot(V3 a, V3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline V3 cross(V3 a, V3 b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline Exact length(V3 a) { return square_root(dot(a, a)); }
inline V3 unit(V3 a) { return (1 / length(a)) * a; }
inline Exact angle_between(V3 a, V3 b) { return angle_of(length(cross(a, b)), dot(a, b)); }
// Right-handed about the unit vector `axis` (Rodrigues).
inline V3 turned(V3 a, V3 axis, Exact by) {
  return cosine(by) * a + sine(by) * cross(axis, a) + ((1 - cosine(by)) * dot(axis, a)) * axis;
}

}  // namespace accuracy
