// The expected values are from MPFR, unless stated otherwise. The program check_functions goes through all Reals.
#include "numeric/functions.h"

#include "support.h"

using namespace trelvin_test;
using trelvin::arc_cosine;
using trelvin::arc_tangent;
using trelvin::sine;
using trelvin::sine_cosine;
using trelvin::tangent;
using trelvin::wide_sine_cosine;

namespace {

float cosine(float angle) { return sine_cosine(angle).cosine; }

}  // namespace

// Double precision takes these results for halfway between two floats, or past it.
TEST(Functions, NextToHalfwayBetweenTwoFloats) {
  for (const float sign : {1.0F, -1.0F}) {
    EXPECT_EQ(sine(sign * 0x1.33333p+13F), sign * -0x1.63f4bap-2F);
    EXPECT_EQ(cosine(sign * 0x1.4555p+51F), 0x1.115d7ep-1F);
    EXPECT_EQ(cosine(sign * 0x1.3170fp+63F), 0x1.fe2976p-1F);
    EXPECT_EQ(cosine(sign * 0x1.2b9622p+67F), 0x1.f0285ep-1F);
    EXPECT_EQ(arc_tangent(sign * 0x1.1ad646p-4F), sign * 0x1.1a6386p-4F);
  }
  EXPECT_EQ(arc_cosine(0x1.04c444p-12F), 0x1.920f6ap+0F);
}

TEST(Functions, AnglesOfManyTurns) {
  constexpr float largest = std::numeric_limits<float>::max();
  EXPECT_EQ(sine(largest), -0.521876514F);
  EXPECT_EQ(cosine(largest), 0.853021026F);
  EXPECT_EQ(tangent(-largest), 0.611797929F);
  // The float closest to an odd multiple of a right angle, from the literature on the reduction.
  const float upright = std::ldexp(16367173.0F, 72);
  EXPECT_EQ(sine(upright), 1);
  EXPECT_EQ(cosine(upright), -1.61476976e-09F);
  EXPECT_EQ(tangent(upright), -619283328.0F);
}

TEST(Functions, SmallNumbersAreTheirOwnValue) {
  for (const float x : {0.0F, 1e-45F, 1.1754944e-38F, 2e-4F}) {
    for (const float value : {x, -x}) {
      for (const float result : {sine(value), tangent(value), arc_tangent(value)}) {
        EXPECT_EQ(result, value);
        EXPECT_EQ(std::signbit(result), std::signbit(value));
      }
      EXPECT_EQ(cosine(value), 1);
    }
  }
}

TEST(Functions, OutsideTheDomain) {
  for (const float x : {infinity, -infinity, not_a_number}) {
    for (const float result : {sine(x), cosine(x), tangent(x), arc_cosine(x)})
      EXPECT_TRUE(std::isnan(result));
  }
  EXPECT_TRUE(std::isnan(arc_tangent(not_a_number)));
  EXPECT_EQ(arc_tangent(-infinity), -half_pi);
  EXPECT_TRUE(std::isnan(arc_cosine(-1.0000001F)));
  EXPECT_EQ(arc_cosine(-1), 3.1415927F);
  EXPECT_EQ(arc_cosine(1), 0);
}

// One wrong figure in a table, or a piece that ends too early, shows here.
TEST(Functions, AgreeWithThePlatformToTheLastDigitButOne) {
  const auto expect_close = [](float result, double platforms, double x) {
    EXPECT_NEAR(result, platforms, 1.2e-7 * std::fabs(platforms)) << x;
  };
  for (int i = -20000; i <= 20000; ++i) {
    const auto x = static_cast<float>(i * 0.00123);
    expect_close(sine(x), std::sin(double{x}), x);
    expect_close(cosine(x), std::cos(double{x}), x);
    expect_close(tangent(x), std::tan(double{x}), x);
    expect_close(arc_tangent(x), std::atan(double{x}), x);
    const auto c = static_cast<float>(i / 20000.0);
    expect_close(arc_cosine(c), std::acos(double{c}), c);
  }
}

TEST(Functions, DirectionsWithSignedZerosAndInfinities) {
  constexpr double inf = std::numeric_limits<double>::infinity();
  for (const double y : {0.0, 1e-300, 1.0, 3.0, 1e300, inf}) {
    for (const double x : {0.0, 1e-300, 1.0, 4.0, 1e300, inf}) {
      for (const double sign : {1.0, -1.0}) {
        EXPECT_DOUBLE_EQ(arc_tangent(y, sign * x), std::atan2(y, sign * x)) << y << " " << x;
        EXPECT_DOUBLE_EQ(arc_tangent(-y, sign * x), std::atan2(-y, sign * x)) << y << " " << x;
        EXPECT_TRUE(std::signbit(arc_tangent(-y, sign * x))) << y << " " << x;
      }
    }
  }
  EXPECT_TRUE(std::isnan(arc_tangent(double{not_a_number}, 1.0)));
  EXPECT_TRUE(std::isnan(arc_tangent(1.0, double{not_a_number})));
}

TEST(Functions, SineAndCosineInDoublePrecision) {
  EXPECT_DOUBLE_EQ(wide_sine_cosine(pi).sine, 1.2246467991473532e-16);
  EXPECT_EQ(wide_sine_cosine(pi).cosine, -1);
  EXPECT_DOUBLE_EQ(wide_sine_cosine(-pi / 6).sine, -0.5);
  EXPECT_DOUBLE_EQ(wide_sine_cosine(-pi / 6).cosine, std::sqrt(0.75));
  EXPECT_TRUE(std::signbit(wide_sine_cosine(-0.0).sine));
}
