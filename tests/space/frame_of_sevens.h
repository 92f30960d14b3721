// Points in a frame whose axes are along (2, 3, 6), (3, -6, 2) and (6, 2, -3), each 7 long, and
// whose origin is (1, -2, 4): all is whole, and no coordinate stands for another.
#pragma once

#include <array>

#include "support.h"

namespace trelvin_test {

using Point = std::array<float, 3>;

inline Point in_sevens(float a, float b, float c) {
  return {1 + 2 * a + 3 * b + 6 * c, -2 + 3 * a - 6 * b + 2 * c, 4 + 6 * a + 2 * b - 3 * c};
}

inline Point values_of(Point p) { return p; }
template <class Value>
std::tuple<Value> values_of(Value value) {
  return {value};
}

// As `outputs`, of points and single values.
template <class Routine, class... Inputs>
Values outputs_at(Routine routine, Inputs... inputs) {
  return std::apply([&](auto... values) { return outputs(routine, values...); },
                    std::tuple_cat(values_of(inputs)...));
}

}  // namespace trelvin_test
