#include "plane/outlines.h"

#include <cmath>

#include "vectors/wide_vectors.h"

namespace trelvin {
namespace {

// What the corners of an outline do, added up as it is walked round.
struct Winding {
  double angle = 0;  // of all corners
  bool left = false;
  bool right = false;
  bool back = false;

  // A vertex close to the line through its neighbours does not turn, unless it turns back.
  void pass(WideVector u, WideVector v) {
    const double across = cross(u, v);
    const double along = dot(u, v);
    angle += arc_tangent(across, along);
    if (std::fabs(across) > tolerance * length(u + v)) {
      (across > 0 ? left : right) = true;
    } else if (along < 0) {
      back = true;
    }
  }

  // The corners turn once around in total, and none turns in the other direction.
  [[nodiscard]] bool convex() const {
    const double once = std::fabs(angle) / full_turn;
    return once > 0.5 && once < 1.5 && !(angle > 0 ? right : left) && !back;
  }
};

}  // namespace

Convexity convexity(const Outline &outline) {
  if (outline.n < 3) return Convexity::refused;
  for (Integer i = 0; i < outline.n; ++i) {
    if (distance(outline[i], outline[outline.after(i)]) <= tolerance) return Convexity::refused;
  }
  Winding winding;
  for (Integer i = 0; i < outline.n; ++i) {
    const Integer j = outline.after(i);
    winding.pass(wide_difference(outline[j], outline[i]),
                 wide_difference(outline[outline.after(j)], outline[j]));
  }
  return winding.convex() ? Convexity::convex : Convexity::not_convex;
}

}  // namespace trelvin
