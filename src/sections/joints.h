// How thin plates join to a section.
#pragma once

#include <cmath>

#include "sections/plates.h"

namespace trelvin {

inline bool same_place(WideVector a, WideVector b) {
  return std::fabs(a.x - b.x) <= tolerance && std::fabs(a.y - b.y) <= tolerance;
}

struct Joints {
  enum class Fault {
    none,
    loose_or_closing,  // starts at no end of an earlier plate, or ends at one
    meeting            // crosses, touches or overlaps an earlier plate elsewhere than at a joint
  };
  Fault fault;
  Integer plate;  // position of the first plate that has one
};

Joints joints_of(const PlateArrays &plates);

}  // namespace trelvin
