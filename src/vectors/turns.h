// Rotations by an angle.
#pragma once

#include "numeric/functions.h"
#include "vectors/vectors.h"

namespace trelvin {

// Turns the first of two axes towards the second.
struct Turn {
  Real cosine, sine;

  [[nodiscard]] Turn back() const { return {cosine, -sine}; }

  void apply(Real &p, Real &q) const {
    const Real old_p = p;
    const Real old_q = q;
    p = cosine * old_p - sine * old_q;
    q = sine * old_p + cosine * old_q;
  }

  [[nodiscard]] Point2 of(Point2 p) const {
    Point2 turned = p;
    apply(turned.x, turned.y);
    return turned;
  }
};

inline Turn turn_by(Real angle) {
  const SineCosine both = sine_cosine(angle);
  return {both.cosine, both.sine};
}

}  // namespace trelvin
