// Points and vectors as the routines take and give them, and what a figure asserts about them.
#pragma once

#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace figures {

constexpr double pi = 3.14159265358979323846;

struct Point {
  float x = 0, y = 0;
};

using Outline = std::vector<Point>;

// As a routine takes them: x and y apart, with the spare element of a polygon.
struct Coordinates {
  explicit Coordinates(const Outline &points) : n(static_cast<std::int32_t>(points.size())) {
    for (const Point &p : points) {
      x.push_back(p.x);
      y.push_back(p.y);
    }
    x.push_back(0);
    y.push_back(0);
  }

  std::int32_t n;
  std::vector<float> x, y;
};

inline Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
inline Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
inline Point operator*(float f, Point a) { return {f * a.x, f * a.y}; }
inline double dot(Point a, Point b) { return double{a.x} * b.x + double{a.y} * b.y; }
inline double cross(Point a, Point b) { return double{a.x} * b.y - double{a.y} * b.x; }
inline double length(Point a) { return std::hypot(double{a.x}, double{a.y}); }
inline double direction(Point a) { return std::atan2(double{a.y}, double{a.x}); }
inline Point unit(Point a) { return static_cast<float>(1 / length(a)) * a; }
inline Point polar(double radius, double angle) {
  return {static_cast<float>(radius * std::cos(angle)),
          static_cast<float>(radius * std::sin(angle))};
}

struct Vector {
  float x = 0, y = 0, z = 0;
};

inline Vector operator+(const Vector &a, const Vector &b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vector operator-(const Vector &a, const Vector &b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vector operator*(float f, const Vector &a) { return {f * a.x, f * a.y, f * a.z}; }
inline double dot(const Vector &a, const Vector &b) {
  return double{a.x} * b.x + double{a.y} * b.y + double{a.z} * b.z;
}
inline Vector cross(const Vector &a, const Vector &b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double length(const Vector &a) { return std::sqrt(dot(a, a)); }

// Space as the figures see it: x to the right, y upwards, z towards the reader, from a place to the
// right and above.
constexpr double seen_from_right = 0.52;
constexpr double seen_from_above = 0.38;

inline Vector towards_reader() {
  return {static_cast<float>(std::sin(seen_from_right) * std::cos(seen_from_above)),
          static_cast<float>(std::sin(seen_from_above)),
          static_cast<float>(std::cos(seen_from_right) * std::cos(seen_from_above))};
}

inline Point seen(const Vector &v) {
  const Vector right{static_cast<float>(std::cos(seen_from_right)), 0,
                     static_cast<float>(-std::sin(seen_from_right))};
  return {static_cast<float>(dot(v, right)),
          static_cast<float>(dot(v, cross(towards_reader(), right)))};
}

// What a figure says, and the routines have to bear out. `what` ends the sentence "it shows ...".
inline void require(bool holds, const std::string &what) {
  if (!holds) throw std::runtime_error("the routines no longer give what it shows: " + what);
}

// To what single precision and a few operations leave, relative to 1 or to the expected value.
inline void require_near(double got, double expected, const std::string &what) {
  require(std::fabs(got - expected) <= 2e-4 * std::fmax(1, std::fabs(expected)),
          what + " (" + std::to_string(got) + " for " + std::to_string(expected) + ')');
}

inline void require_at(Point got, Point expected, const std::string &what) {
  require_near(got.x, expected.x, what + ", x");
  require_near(got.y, expected.y, what + ", y");
}

inline void require_at(const Vector &got, const Vector &expected, const std::string &what) {
  require_near(got.x, expected.x, what + ", x");
  require_near(got.y, expected.y, what + ", y");
  require_near(got.z, expected.z, what + ", z");
}

}  // namespace figures
