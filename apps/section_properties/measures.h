// What a drawing measures: each dimension of a profile, between which points.
#pragma once

#include <string_view>
#include <vector>

#include "outline.h"

namespace host {

// On which side of the section the dimension line stands.
enum class Side { above, below, left, right };

// A distance along x (above and below) or along y (left and right).
struct Measure {
  Side side;
  std::string_view name;
  double value;
  double from;
  double level;  // where the points lie across: extension lines run from there to the side

  [[nodiscard]] bool is_along_x() const { return side == Side::above || side == Side::below; }
  [[nodiscard]] double to() const { return from + value; }
};

using Measures = std::vector<Measure>;

}  // namespace host
