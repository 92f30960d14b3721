#include "sections/joints.h"

#include <algorithm>

namespace trelvin {
namespace {

// On which side of a plate's centre line a point lies, times lengths.
double side(const Plate &p, double x, double y) {
  return p.dx() * (y - p.y1) - p.dy() * (x - p.x1);
}

bool is_near(const Plate &p, double x, double y, double reach) {
  const double along =
      ((x - p.x1) * p.dx() + (y - p.y1) * p.dy()) / (p.dx() * p.dx() + p.dy() * p.dy());
  const double part = std::clamp(along, 0.0, 1.0);
  const double ex = x - p.x1 - part * p.dx();
  const double ey = y - p.y1 - part * p.dy();
  return ex * ex + ey * ey <= reach * reach;
}

bool boxes_are_apart(const Plate &p, const Plate &q, double reach) {
  return std::min(p.x1, p.x2) > std::max(q.x1, q.x2) + reach ||
         std::min(q.x1, q.x2) > std::max(p.x1, p.x2) + reach ||
         std::min(p.y1, p.y2) > std::max(q.y1, q.y2) + reach ||
         std::min(q.y1, q.y2) > std::max(p.y1, p.y2) + reach;
}

bool meet(const Plate &p, const Plate &q, double reach) {
  if (boxes_are_apart(p, q, reach)) return false;
  const bool cross = side(p, q.x1, q.y1) * side(p, q.x2, q.y2) < 0 &&
                     side(q, p.x1, p.y1) * side(q, p.x2, p.y2) < 0;
  return cross || is_near(p, q.x1, q.y1, reach) || is_near(p, q.x2, q.y2, reach) ||
         is_near(q, p.x1, p.y1, reach) || is_near(q, p.x2, p.y2, reach);
}

// From a joint on, two plates meet again only where they lie on each other: the end of the shorter
// one is on the other then.
bool overlap_from_joint(const Plate &p, bool joint_at_end, const Plate &q, double reach) {
  const double x = joint_at_end ? p.x1 : p.x2;
  const double y = joint_at_end ? p.y1 : p.y2;
  return is_near(p, q.x2, q.y2, reach) || is_near(q, x, y, reach);
}

// Coordinates in single precision miss a place on a line by up to half a unit each.
double reach_of(const PlateArrays &plates) {
  constexpr double rounding = 1.0 / (1 << 22);
  double farthest = 0;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    farthest =
        std::max({farthest, std::fabs(p.x1), std::fabs(p.y1), std::fabs(p.x2), std::fabs(p.y2)});
  }
  return std::max<double>(tolerance, rounding * farthest);
}

Joints::Fault fault_of(const PlateArrays &plates, Integer k, double reach) {
  const Plate q = plates[k];
  bool starts = false;
  bool closes = false;
  bool meets = false;
  for (Integer i = 0; i < k; ++i) {
    const Plate p = plates[i];
    const bool from_start = same_place(p.x1, p.y1, q.x1, q.y1);
    const bool from_end = same_place(p.x2, p.y2, q.x1, q.y1);
    starts = starts || from_start || from_end;
    closes = closes || same_place(p.x1, p.y1, q.x2, q.y2) || same_place(p.x2, p.y2, q.x2, q.y2);
    meets = meets || (from_start || from_end ? overlap_from_joint(p, from_end, q, reach)
                                             : meet(p, q, reach));
  }
  if (!starts || closes) return Joints::Fault::loose_or_closing;
  return meets ? Joints::Fault::meeting : Joints::Fault::none;
}

}  // namespace

Joints joints_of(const PlateArrays &plates) {
  const double reach = reach_of(plates);
  for (Integer k = 1; k < plates.n; ++k) {
    const Joints::Fault fault = fault_of(plates, k, reach);
    if (fault != Joints::Fault::none) return {fault, k + 1};
  }
  return {Joints::Fault::none, 0};
}

}  // namespace trelvin
