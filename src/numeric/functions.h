// The mathematics functions of the library, correctly rounded to Real on every platform.
//
// The platforms' own single-precision functions differ in their last bit. Their double-precision
// functions, rounded once, do not: an error of a few units in the 53rd bit is far below half a unit
// in the 24th. Large angles are the exception, since some platforms reduce them with too few digits
// of pi; they are brought into the first quadrants here.
#pragma once

#include <cmath>

#include "numeric/real.h"

namespace trelvin {

struct SineCosine {
  Real sine;
  Real cosine;
};

struct WideSineCosine {
  double sine;
  double cosine;
};

// Sine and cosine of an angle of magnitude at least `large_angle`, infinity excluded.
WideSineCosine sine_cosine_of_large(Real angle);

constexpr Real large_angle = 16;

inline bool is_large(Real angle) { return std::fabs(angle) >= large_angle && !std::isinf(angle); }

inline SineCosine sine_cosine(Real angle) {
  const double wide = angle;
  const WideSineCosine both = is_large(angle) ? sine_cosine_of_large(angle)
                                              : WideSineCosine{std::sin(wide), std::cos(wide)};
  return {static_cast<Real>(both.sine), static_cast<Real>(both.cosine)};
}

inline Real sine(Real angle) { return sine_cosine(angle).sine; }

inline Real tangent(Real angle) {
  if (!is_large(angle)) return static_cast<Real>(std::tan(static_cast<double>(angle)));
  const WideSineCosine both = sine_cosine_of_large(angle);
  return static_cast<Real>(both.sine / both.cosine);
}

inline Real arc_tangent(Real slope) {
  return static_cast<Real>(std::atan(static_cast<double>(slope)));
}

// Angle of the direction (x, y) in [-pi, pi].
inline double arc_tangent(double y, double x) { return std::atan2(y, x); }

inline Real arc_cosine(Real cosine) {
  return static_cast<Real>(std::acos(static_cast<double>(cosine)));
}

inline Real square_root(Real value) { return std::sqrt(value); }

}  // namespace trelvin
