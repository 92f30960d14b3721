// What the tests share.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace trelvin_test {

constexpr double pi = 3.14159265358979323846;
constexpr float tolerance = 1e-5F;  // the library's, as hosts write it
constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

// What outputs hold before a call: found again, they show that the routine left them alone.
constexpr float unwritten = -77.25F;
constexpr std::int32_t unwritten_int = -7725;

}  // namespace trelvin_test
