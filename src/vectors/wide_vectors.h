// Vectors in double precision, where products of differences of moderate coordinates are exact.
#pragma once

#include <cmath>

#include "vectors/vectors.h"

namespace trelvin {

struct WideVector {
  double x, y;
};

inline WideVector wide_difference(Point2 end, Point2 start) {
  return {double{end.x} - start.x, double{end.y} - start.y};
}

inline double dot(WideVector u, WideVector v) { return u.x * v.x + u.y * v.y; }
inline double cross(WideVector u, WideVector v) { return u.x * v.y - u.y * v.x; }
inline double length(WideVector v) { return std::sqrt(dot(v, v)); }

inline WideVector operator+(WideVector u, WideVector v) { return {u.x + v.x, u.y + v.y}; }
inline WideVector operator-(WideVector u, WideVector v) { return {u.x - v.x, u.y - v.y}; }
inline WideVector operator*(WideVector v, double k) { return {v.x * k, v.y * k}; }
inline WideVector operator/(WideVector v, double k) { return {v.x / k, v.y / k}; }

inline WideVector wide(Point2 p) { return {p.x, p.y}; }
inline Point2 rounded(WideVector v) { return {static_cast<Real>(v.x), static_cast<Real>(v.y)}; }

}  // namespace trelvin
