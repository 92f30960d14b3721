// The mathematics functions of the library, by its own arithmetic on every platform.
//
// The platforms' functions differ in their last bits, and some of them compute in extended
// registers. These use additions, multiplications, divisions and square roots in double precision
// only, in a fixed order, so that every platform and compiler gives the same bits.
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

// Correctly rounded for every Real: the exhaustive check finds no difference.
SineCosine sine_cosine(Real angle);
Real tangent(Real angle);
Real arc_tangent(Real slope);
Real arc_cosine(Real cosine);

inline Real sine(Real angle) { return sine_cosine(angle).sine; }

// The square root is the machine's instruction, correctly rounded by itself.
inline Real square_root(Real value) { return std::sqrt(value); }

// In double precision, within two units in the last place.

// Angles within three turns either way.
WideSineCosine wide_sine_cosine(double angle);
// Any angle.
WideSineCosine wide_sine_cosine(Real angle);
// Angle of the direction (x, y) in [-pi, pi], the signs of zeros counting.
double arc_tangent(double y, double x);
// exp(-value), for values from 0 to 700.
double decay(double value);

}  // namespace trelvin
