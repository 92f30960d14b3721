#include "plane/outlines.h"

#include <cmath>

namespace trelvin {
namespace {

// What the corners of an outline do, added up as it is walked round.
struct Turning {
  double angle = 0;  // of all corners
  bool left = false;
  bool right = false;
  bool back = false;

  // A vertex close to the line through its neighbours does not turn, unless it turns back.
  void pass(double ux, double uy, double vx, double vy) {
    const double cross = ux * vy - uy * vx;
    const double dot = ux * vx + uy * vy;
    angle += arc_tangent(cross, dot);
    const double base = std::sqrt((ux + vx) * (ux + vx) + (uy + vy) * (uy + vy));
    if (std::fabs(cross) > tolerance * base) {
      (cross > 0 ? left : right) = true;
    } else if (dot < 0) {
      back = true;
    }
  }

  // Once around in all, and no corner against that sense.
  [[nodiscard]] bool convex() const {
    const double once = std::fabs(angle) / full_turn;
    return once > 0.5 && once < 1.5 && !(angle > 0 ? right : left) && !back;
  }
};

}  // namespace

Convexity convexity(const Real *x, const Real *y, Integer n) {
  if (n < 3) return Convexity::refused;
  const auto next = [&](Integer i) { return i + 1 < n ? i + 1 : 0; };
  for (Integer i = 0; i < n; ++i) {
    const Integer j = next(i);
    if (distance(Point2{x[i], y[i]}, Point2{x[j], y[j]}) <= tolerance) return Convexity::refused;
  }
  Turning turning;
  for (Integer i = 0; i < n; ++i) {
    const Integer j = next(i);
    const Integer k = next(j);
    turning.pass(double{x[j]} - x[i], double{y[j]} - y[i], double{x[k]} - x[j],
                 double{y[k]} - y[j]);
  }
  return turning.convex() ? Convexity::convex : Convexity::not_convex;
}

}  // namespace trelvin
