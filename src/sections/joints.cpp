#include "sections/joints.h"

#include <algorithm>

namespace trelvin {
namespace {

// On which side of a plate's centre line a point lies, times lengths.
double side(const Plate &p, WideVector q) { return cross(p.along(), q - p.start); }

bool is_near(const Plate &p, WideVector q, double reach) {
  const WideVector along = p.along();
  const double part = std::clamp(dot(q - p.start, along) / dot(along, along), 0.0, 1.0);
  const WideVector off = q - p.start - along * part;
  return dot(off, off) <= reach * reach;
}

bool are_apart(double a1, double a2, double b1, double b2, double reach) {
  return std::min(a1, a2) > std::max(b1, b2) + reach || std::min(b1, b2) > std::max(a1, a2) + reach;
}

bool boxes_are_apart(const Plate &p, const Plate &q, double reach) {
  return are_apart(p.start.x, p.end.x, q.start.x, q.end.x, reach) ||
         are_apart(p.start.y, p.end.y, q.start.y, q.end.y, reach);
}

bool meet(const Plate &p, const Plate &q, double reach) {
  if (boxes_are_apart(p, q, reach)) return false;
  const bool cross = side(p, q.start) * side(p, q.end) < 0 && side(q, p.start) * side(q, p.end) < 0;
  return cross || is_near(p, q.start, reach) || is_near(p, q.end, reach) ||
         is_near(q, p.start, reach) || is_near(q, p.end, reach);
}

// Two plates with a joint meet again only if they lie on each other. The end of the shorter plate is then
// on the other one.
bool overlap_from_joint(const Plate &p, bool joint_at_end, const Plate &q, double reach) {
  return is_near(p, q.end, reach) || is_near(q, joint_at_end ? p.start : p.end, reach);
}

// Coordinates in single precision miss a place on a line by up to half a unit each.
double reach_of(const PlateArrays &plates) {
  constexpr double rounding = 1.0 / (1 << 22);
  double farthest = 0;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    for (const double c : {p.start.x, p.start.y, p.end.x, p.end.y}) {
      farthest = std::max(farthest, std::fabs(c));
    }
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
    const bool from_start = same_place(p.start, q.start);
    const bool from_end = same_place(p.end, q.start);
    starts = starts || from_start || from_end;
    closes = closes || same_place(p.start, q.end) || same_place(p.end, q.end);
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
