// Turning points about the axes.
#pragma once

#include "numeric/processor.h"
#include "vectors/turns.h"

namespace trelvin {

// For processors with AVX2, or nullptr if the compiler cannot build for it.
using WideRotation = void (*)(Real *p, Real *q, Integer n, Real cosine, Real sine);
extern const WideRotation wide_rotation;

// Turns the first coordinates towards the second, one point after the other.
inline void rotate(PlaneArrays points, Integer n, Turn by) {
  constexpr Integer many = 64;
  if (n >= many && wide_rotation != nullptr && has_avx2()) {
    wide_rotation(points.x, points.y, n, by.cosine, by.sine);
    return;
  }
  for (Integer i = 0; i < n; ++i) by.apply(points.x[i], points.y[i]);
}

// Turns about the axes x, y and z, in this order.
struct AxisTurns {
  Turn x, y, z;

  [[nodiscard]] Point3 of(Point3 p) const {
    x.apply(p.y, p.z);
    y.apply(p.x, p.z);  // x towards z, not z towards x: left-handed, unlike the others
    z.apply(p.x, p.y);
    return p;
  }
};

inline AxisTurns turns_by(Real ax, Real ay, Real az) {
  return {turn_by(ax), turn_by(ay), turn_by(az)};
}

}  // namespace trelvin
