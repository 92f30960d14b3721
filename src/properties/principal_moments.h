// Principal axes of a section.
#pragma once

#include <cmath>

#include "properties/moments.h"

namespace trelvin {

struct PrincipalMoments {
  Real first, second;  // about the x and the y axis, turned by the angle
  Real angle;
};

inline PrincipalMoments principal_moments(SecondMoments i) {
  const Real q = std::fabs(i.xy / (i.x + i.y));
  if (q <= 1e-8F || std::isnan(q)) return {i.x, i.y, 0};
  const Real d = i.y - i.x;
  if (std::fabs(d) < 1e-12F) {
    constexpr Real eighth_turn = 0.7853982F;
    const Real mean = (i.x + i.y) * 0.5F;
    return {mean - i.xy, i.xy + mean, eighth_turn};
  }
  const Real angle = 0.5F * arc_tangent(2 * i.xy / d);
  const auto [s, c] = sine_cosine(angle);
  return {(i.y * s - 2 * i.xy * c) * s + i.x * (c * c),
          (i.x * s + 2 * i.xy * c) * s + i.y * (c * c), angle};
}

}  // namespace trelvin
