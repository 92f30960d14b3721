#include <array>

#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

constexpr float t = tolerance;
const Values refused = {kept, kept, 0};

using Arc = std::array<float, 6>;  // centre and ends
const Arc level = {1, 2, -3, -1, 5, -1}, level_reversed = {1, 2, 5, -1, -3, -1};

// Point and status; rewrites the arc.
template <class Routine, class... Inputs>
Values construct(Routine *routine, Arc &arc, Inputs... inputs) {
  float x = kept, y = kept;
  std::int32_t status = kept;
  routine(arc[0], arc[1], arc[2], arc[3], arc[4], arc[5], inputs..., x, y, status);
  return {x, y, static_cast<double>(status)};
}

}  // namespace

TEST(Chords, OneFigureInFiveFrames) {
  // A chord of 8 below the centre of a circle of radius 5 by 3, turned: a point of the arc and the
  // middle of the chord's last quarter are seen from stations and from the turned end.
  struct Frame {
    Arc arc;
    double x, y, x_chord, y_chord;
  };
  // Turned by the angle of sine 40/401, so that the chord rises by less than 1.
  const Arc rising = {0, 0, -3.680798F, -3.3840399F, 4.2793017F, -2.5860349F};
  const Frame frames[] = {{level, 4, -2, 4, -1},
                          {{1, 2, 4, -2, 4, 6}, 5, 5, 4, 5},
                          {{1, 2, 5, 5, -3, 5}, -2, 6, -2, 5},
                          {{1, 2, -2, 6, -2, -2}, -3, -1, -2, -1},
                          {rising, 3.3840399, -3.680798, 3.2842893, -2.6857855}};
  for (const Frame &f : frames) {
    Arc arc = f.arc, reversed = {arc[0], arc[1], arc[4], arc[5], arc[2], arc[3]};
    const Values on_arc = {f.x, f.y, 1}, on_chord = {f.x_chord, f.y_chord, 0};
    expect_near(construct(trvcer4, arc, 7.0F, half_pi), on_arc, 5e-6);
    expect_near(construct(trvcer4, arc, 10.0F, 0.32175055F), on_arc, 5e-6);
    expect_near(construct(trvcer4, reversed, 1.0F, half_pi), on_arc, 5e-6);
    expect_near(construct(trvcer5, arc, 1.0F, -1, 0.5F), on_arc, 5e-6);
    expect_near(construct(trvcer5, reversed, 7.0F, 1, 0.5F), on_arc, 5e-6);
    expect_near(construct(trvcer10, arc, half_pi, half_pi), on_chord, 5e-6);
    expect_near(construct(trvcer10, reversed, -0.28379411F, half_pi), on_chord, 5e-6);
  }
}

TEST(Chords, PointsOnTheChord) {
  // Across from a centre as near the chord as this are both points; the first is taken. No point
  // is beside a T on the chord.
  Arc half = {1, 2.0000005F, -4, 2, 6, 2}, arc = level;
  expect_near(construct(trvcer4, half, 8.0F, half_pi), {4, 6, 1}, 1e-6);
  expect_near(construct(trvcer5, half, 4.0F, 1, 1.0F), {4, 6, 1}, 1e-6);
  expect_near(construct(trvcer5, half, 4.0F, -1, 1.0F), {4, -2, 1}, 1e-6);
  for (const int side : {0, 2})
    expect_near(construct(trvcer5, half, 3.0F, side, 1.0F), {-4, 2, 1}, 1e-6);
  expect_near(construct(trvcer10, arc, half_pi, 0.46364761F), {6, -1, 0}, 1e-6);
  // From A the line through T is at 2*e over B: on T's side from 2*e*e beyond the tolerance on.
  Arc flat = {0, 0, -4, 0, 4, 0};
  const float e = 2.2360682e-3F;
  expect_near(construct(trvcer5, flat, 0.0F, 1, e), {-4, 0, 1}, 1e-6);
  expect_near(construct(trvcer5, flat, 0.0F, 1, std::nextafter(e, 1.0F)), {4, 2 * e, 1}, 1e-6);
}

TEST(Chords, LineThatMissesTheCircleCarriesTheResultOfTheCallBefore) {
  Arc arc = level, turned = {1, 2, 4, -2, 4, 6};
  EXPECT_EQ(construct(trvcer4, arc, 10.0F, half_pi), (Values{-3, -1, 1}));
  EXPECT_EQ(construct(trvcer4, arc, 7.0F, half_pi), (Values{4, -2, 1}));
  EXPECT_EQ(construct(trvcer4, arc, 9.0F, half_pi), refused);  // touches
  EXPECT_EQ(construct(trvcer4, arc, 10.0F, half_pi), (Values{1, -3, 1}));
  expect_near(construct(trvcer4, turned, 10.0F, half_pi), {7, -1, 1}, 1e-6);

  // Along the tangent at A, too far out by rounding. The frame is rotated by pi, which gives A minus
  // the result of the previous call; this is then retained.
  Arc half_turned = {1, 2, 13, -14, -11, -14};
  expect_near(construct(trvcer5, arc, 1.0F, -1, 0.5F), {4, -2, 1}, 1e-6);
  expect_near(construct(trvcer5, half_turned, 0.0F, 1, 9.0000048F), {9, -12, 1}, 1e-6);
  expect_near(construct(trvcer5, half_turned, 0.0F, 1, 9.0000048F), {4, -2, 1}, 1e-6);
}

TEST(Chords, LineAlongTheChordLeavesTheCrossingOfTheCallBefore) {
  Arc arc = level, reversed = level_reversed;
  expect_near(construct(trvcer10, arc, half_pi, 0.0F), {-3, -1, TRVCER10_PARALLEL},
              1e-6);  // A: the origin
  expect_near(construct(trvcer10, arc, 0.0F, 0.0F), {-3, -1, TRVCER10_ALONG_CHORD}, 1e-6);
  expect_near(construct(trvcer10, arc, half_pi, half_pi), {4, -1, TRVCER10_CROSSING_OR_REFUSED},
              1e-6);
  expect_near(construct(trvcer10, reversed, half_pi, 0.0F), {-2, -1, 0}, 1e-6);
  expect_near(construct(trvcer10, arc, 1.8545904F, half_pi), {5, -1, 0}, 1e-6);  // turned to B
  expect_near(construct(trvcer10, arc, half_pi, 0.0F), {5, -1, 2}, 1e-6);
}

TEST(Chords, Refusals) {
  Arc no_arc[] = {{0, 0, t, 0, -t, 0}, {1, 2, -3, -1, 5.0001F, -1}, {-3, 3, 0, 0, t, 0}};
  for (Arc &arc : no_arc) {  // no radius, two radii, no chord
    EXPECT_EQ(construct(trvcer4, arc, 1.0F, 1.0F), refused);
    EXPECT_EQ(construct(trvcer10, arc, 1.0F, 1.0F), refused);
    EXPECT_EQ(construct(trvcer5, arc, 0.0F, -1, 0.5F), refused);
  }
  Arc unequal = {0, 0, 2 * t, 0, -t, 0};  // by the tolerance, no more
  EXPECT_NE(construct(trvcer10, unequal, 1.0F, 1.0F)[0], kept);
  Arc near = {-3, 3, 0, 0, t, t};  // refused only where the station is asked for its status
  EXPECT_EQ(construct(trvcer4, near, 0.0F, 1.0F), refused);
  EXPECT_NE(construct(trvcer10, near, 1.0F, 1.0F)[0], kept);

  Arc arc = level, large = {1000, 2000, -3000, -1000, 5000, -1000},
      small = {0, 0, -2 * t, 0, 2 * t, 0};
  EXPECT_EQ(construct(trvcer5, large, 1.0F, -1, t), refused);
  EXPECT_EQ(construct(trvcer5, large, 1.0F, -1, beyond)[2], 1);
  EXPECT_EQ(construct(trvcer5, small, 3 * t, 1, 100.0F), refused);
  EXPECT_EQ(construct(trvcer5, small, std::nextafter(3 * t, 0.0F), 1, 100.0F)[2], 1);
  for (const float s : {-1e-30F, 7.999995F, 9.0F})
    EXPECT_EQ(construct(trvcer5, arc, s, -1, 0.5F), refused);
  for (const float s : {0.0F, 7.99998F}) EXPECT_EQ(construct(trvcer5, arc, s, -1, 0.5F)[2], 1);
}

TEST(Chords, ArcComesBackRounded) {
  // The tiny coordinate 1e-12 is lost when the arc is moved. On return A is restored from the input,
  // except if the line is tangent.
  const Arc given = {4, 3, 1e-12F, 0, 8, 0};
  Arc arc = given;
  construct(trvcer5, arc, 1.0F, -1, 0.5F);
  EXPECT_EQ(arc, given);
  EXPECT_EQ(construct(trvcer5, arc, 0.0F, -1, 16 / 3.0F), refused);  // touches at A
  EXPECT_EQ(arc, (Arc{4, 3, 0, 0, 8, 0}));
}
