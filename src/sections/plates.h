// Thin plates by their centre lines, as hosts keep them and in double precision.
#pragma once

#include <cmath>

#include "numeric/real.h"

namespace trelvin {

// The rectangle about a centre line.
struct Plate {
  double x1, y1, x2, y2;
  double t;

  [[nodiscard]] double dx() const { return x2 - x1; }
  [[nodiscard]] double dy() const { return y2 - y1; }
  [[nodiscard]] double length() const { return std::sqrt(dx() * dx() + dy() * dy()); }
  [[nodiscard]] double area() const { return length() * t; }
  [[nodiscard]] double x_middle() const { return (x1 + x2) / 2; }
  [[nodiscard]] double y_middle() const { return (y1 + y2) / 2; }
};

struct PlateArrays {
  Integer n;
  const Real *x1, *y1, *x2, *y2, *t;

  Plate operator[](Integer i) const { return {x1[i], y1[i], x2[i], y2[i], t[i]}; }
};

// What a length or a thickness has to be.
inline bool is_size(double value) { return value > tolerance && value < HUGE_VAL; }

inline bool are_plates(const PlateArrays &plates) {
  for (Integer i = 0; i < plates.n; ++i) {
    if (!is_size(plates[i].length()) || !is_size(plates[i].t)) return false;
  }
  return plates.n > 0;
}

}  // namespace trelvin
