// What the tests share.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <tuple>
#include <vector>

#include "trelvin/calling.h"

namespace trelvin_test {

constexpr double pi = 3.14159265358979323846;
constexpr float half_pi = 1.5707964F;    // the library's, as hosts write it
constexpr float tolerance = 1e-5F;       // likewise
constexpr float beyond = 1.0000001e-5F;  // the next number above the tolerance
constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

// What outputs hold before a call: found again, it shows that the routine left them alone.
constexpr std::int32_t kept = -7725;

using Values = std::vector<double>;

// Calls a routine whose arguments are single values, inputs first, and returns its outputs.
template <class... Arguments, class... Inputs>
Values outputs(void(TRELVIN_CALL *routine)(Arguments...), Inputs... inputs) {
  const Values given = {static_cast<double>(inputs)...};
  std::tuple<std::decay_t<Arguments>...> arguments;
  Values written;
  std::apply(
      [&](auto &...argument) {
        std::size_t i = 0;
        ((argument =
              static_cast<std::decay_t<decltype(argument)>>(i < given.size() ? given[i] : kept),
          ++i),
         ...);
        routine(argument...);
        i = 0;
        ((i++ < given.size() ? void() : written.push_back(argument)), ...);
      },
      arguments);
  return written;
}

// Allows an error relative to the expected value, or to 1 if that is more.
inline void expect_near(const Values &got, const Values &expected, double allowed) {
  ASSERT_EQ(got.size(), expected.size());
  for (std::size_t i = 0; i < got.size(); ++i)
    EXPECT_NEAR(got[i], expected[i], allowed * std::max(1.0, std::fabs(expected[i]))) << i;
}

}  // namespace trelvin_test
