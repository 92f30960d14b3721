// Thin plates by their centre lines, as hosts keep them and in double precision.
#pragma once

#include "vectors/wide_vectors.h"

namespace trelvin {

// The rectangle about a centre line.
struct Plate {
  WideVector start, end;
  double t;

  [[nodiscard]] WideVector along() const { return end - start; }
  [[nodiscard]] WideVector middle() const { return (start + end) / 2; }
  [[nodiscard]] double area() const { return length(along()) * t; }
};

struct PlateArrays {
  Integer n;
  const Real *x1, *y1, *x2, *y2, *t;

  Plate operator[](Integer i) const { return {{x1[i], y1[i]}, {x2[i], y2[i]}, t[i]}; }
};

// What a length or a thickness has to be.
inline bool is_size(double value) { return value > tolerance && value < HUGE_VAL; }

inline bool are_plates(const PlateArrays &plates) {
  for (Integer i = 0; i < plates.n; ++i) {
    if (!is_size(length(plates[i].along())) || !is_size(plates[i].t)) return false;
  }
  return plates.n > 0;
}

}  // namespace trelvin
