#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

constexpr float u = unwritten;

struct Point {
  double x, y;
};

// Centre and ends; what the routines take and write back.
struct Arc {
  float xc, yc, xa, ya, xb, yb;
};

bool operator==(const Arc &p, const Arc &q) {
  return p.xc == q.xc && p.yc == q.yc && p.xa == q.xa && p.ya == q.ya && p.xb == q.xb &&
         p.yb == q.yb;
}

// Point and status of trvcer4 or trvcer10.
Values construct(decltype(trvcer4) *routine, Arc &arc, double p, double angle) {
  float x = u, y = u;
  std::int32_t status = unwritten_int;
  routine(arc.xc, arc.yc, arc.xa, arc.ya, arc.xb, arc.yb, static_cast<float>(p),
          static_cast<float>(angle), x, y, status);
  return {x, y, static_cast<double>(status)};
}

Values towards_sagitta(Arc &arc, double s, int side, double e) {
  float x = u, y = u;
  std::int32_t status = unwritten_int;
  trvcer5(arc.xc, arc.yc, arc.xa, arc.ya, arc.xb, arc.yb, static_cast<float>(s), side,
          static_cast<float>(e), x, y, status);
  return {x, y, static_cast<double>(status)};
}

// The figure that most tests use, about its centre: a chord of 8 in a circle of radius 5, below the
// centre by 3. All of it can be turned and moved.
struct Figure {
  double c, s, x, y;

  Point at(double px, double py) const { return {x + c * px - s * py, y + s * px + c * py}; }

  Arc arc(double ax, double ay, double bx, double by) const {
    const Point a = at(ax, ay), b = at(bx, by);
    const auto real = [](double value) { return static_cast<float>(value); };
    return {real(x), real(y), real(a.x), real(a.y), real(b.x), real(b.y)};
  }
  Arc arc() const { return arc(-4, -3, 4, -3); }
  Arc reversed() const { return arc(4, -3, -4, -3); }

  void expect(const Values &got, double px, double py, int status) const {
    const Point p = at(px, py);
    expect_near(got, {p.x, p.y, static_cast<double>(status)}, 5e-6);
  }
};

const Figure figures[] = {{1, 0, 1, 2},  {0, 1, 1, 2},      {-1, 0, 1, 2},
                          {0, -1, 1, 2}, {0.8, 0.6, -2, 3}, {-0.6, -0.8, 7, 0}};
const Figure upright = figures[0];

// Refusals that trvcer4 and trvcer10 share; the line is steep enough to cut the smallest circle.
void expect_refusals(decltype(trvcer4) *routine, double p, int done) {
  const float t = tolerance, below = std::nextafter(t, 0.0F);
  const Arc refused[] = {
      {0, 0, t, 0, -2 * t, 0}, {0, 0, 2 * t, 0, -below, 0}, {0, 1, 0, 0, t, 0}, {1, 2, 4, 6, 1, 8}};
  const Arc accepted[] = {
      {0, 0, beyond, 0, -2 * t, 0}, {0, 0, 2 * t, 0, -t, 0}, {0, 1, 0, 0, beyond, 0}};
  for (Arc arc : refused) {
    const Arc before = arc;
    EXPECT_EQ(construct(routine, arc, p, 1.57), (Values{u, u, 0})) << arc.xa << " " << arc.xb;
    EXPECT_TRUE(arc == before);
  }
  for (Arc arc : accepted) {
    const Values got = construct(routine, arc, p, 1.57);
    EXPECT_TRUE(got[0] != u && got[1] != u && got[2] == done) << arc.xa << " " << arc.xb;
  }
}

}  // namespace

TEST(Constructions, LineThroughAStationMeetsTheArcAcrossTheChord) {
  for (const Figure &f : figures) {
    Arc arc = f.arc(), reversed = f.reversed(), half = f.arc(-5, 0, 5, 0);
    for (const double angle : {pi / 2, -pi / 2})
      f.expect(construct(trvcer4, arc, 7, angle), 3, -4, 1);
    for (const double angle : {pi / 4, -0.75 * pi})
      f.expect(construct(trvcer4, arc, 6, angle), 0, -5, 1);
    f.expect(construct(trvcer4, arc, 10, std::atan(1 / 3.0)), 3, -4, 1);  // both are across
    f.expect(construct(trvcer4, reversed, 1, pi / 2), 3, -4, 1);
    f.expect(construct(trvcer4, half, 8, pi / 2), 3, 4, 1);  // none is across, so the first is
  }
}

TEST(Constructions, LineThatMissesTheCircleCarriesTheResultOfTheCallBefore) {
  Arc arc = upright.arc(), aside = figures[1].arc();
  const Arc before = arc;
  EXPECT_EQ(construct(trvcer4, arc, 10, half_pi), (Values{-3, -1, 1}));
  EXPECT_EQ(construct(trvcer4, arc, 7, half_pi), (Values{4, -2, 1}));
  EXPECT_EQ(construct(trvcer4, arc, 9, half_pi), (Values{u, u, 0}));  // touches
  EXPECT_TRUE(arc == before);
  EXPECT_EQ(construct(trvcer4, arc, 10, half_pi), (Values{1, -3, 1}));
  expect_near(construct(trvcer4, aside, 10, half_pi), {7, -1, 1}, 1e-6);
}

TEST(Constructions, LineThroughTheTurnedEndCrossesTheChord) {
  for (const Figure &f : figures) {
    Arc arc = f.arc(), reversed = f.reversed();
    f.expect(construct(trvcer10, arc, pi / 2, pi / 2), 3, -3, 0);
    f.expect(construct(trvcer10, arc, pi / 2, -pi / 4), 2, -3, 0);
    f.expect(construct(trvcer10, arc, pi / 2, std::atan(0.5)), 5, -3, 0);
    f.expect(construct(trvcer10, reversed, -pi / 2, pi / 4), -2, -3, 0);
  }
}

TEST(Constructions, LineAlongTheChordLeavesTheCrossingOfTheCallBefore) {
  Arc arc = upright.arc(), reversed = upright.reversed();
  const auto parallel = [](Arc &any) { return construct(trvcer10, any, half_pi, 0); };
  const double to_b = 2 * std::asin(0.8);
  upright.expect(parallel(arc), -4, -3, 2);  // A, the origin of the chord's frame
  upright.expect(construct(trvcer10, arc, 0, 0), -4, -3, 1);
  upright.expect(construct(trvcer10, arc, half_pi, half_pi), 3, -3, 0);
  upright.expect(parallel(arc), 3, -3, 0);
  upright.expect(construct(trvcer10, arc, 0, 0), 3, -3, 0);
  upright.expect(parallel(reversed), -3, -3, 0);
  upright.expect(construct(trvcer10, arc, to_b, half_pi), 4, -3, 0);
  upright.expect(parallel(arc), 4, -3, 2);
  upright.expect(construct(trvcer10, arc, 0, 0), 4, -3, 1);
}

TEST(Constructions, LineFromAStationTowardsTheSagitta) {
  for (const Figure &f : figures) {
    Arc arc = f.arc(), reversed = f.reversed(), half = f.arc(-5, 0, 5, 0);
    f.expect(towards_sagitta(arc, 1, -1, 0.5), 3, -4, 1);
    f.expect(towards_sagitta(arc, 4, -1, 4), 0, -5, 1);
    f.expect(towards_sagitta(reversed, 7, 1, 0.5), 3, -4, 1);
    f.expect(towards_sagitta(half, 4, 1, 1), 3, 4, 1);
    f.expect(towards_sagitta(half, 4, -1, 1), 3, -4, 1);
  }
  // Turned by nothing or by a half circle, A puts T on the chord, which is beside no point.
  for (const int side : {0, 2}) {
    Arc half = upright.arc(-5, 0, 5, 0);
    upright.expect(towards_sagitta(half, 4, side, 1), -5, 0, 1);
  }
}

TEST(Constructions, PreviousStationAndSagittaStandWhereNoneIsFound) {
  const auto expect_on = [](const Values &got, double slope, double y0, double radius) {
    expect_near({got[1] - slope * got[0], std::hypot(got[0] - 4, got[1]), got[2]}, {y0, radius, 1},
                1e-6);
    EXPECT_GT(got[0], 1);
  };
  // The ends agree in each coordinate, but not by their distance; then so do both middles.
  const Arc short_chord = {4, 0, 0, 0, 8e-6F, 8e-6F}, flat = {4, 0, 0, 0.008F, 0, -0.008F};
  const Arc away = {4, 64, 0, 64, 8e-6F, 64 + std::ldexp(1.0F, -17)};
  Arc arc = short_chord;
  EXPECT_EQ(towards_sagitta(arc, 0, -1, 1), (Values{u, u, 0}));  // both at the origin: no line
  arc = {4, 3, 0, 0, 8, 0};
  expect_near(towards_sagitta(arc, 1, -1, 0.5), {7, -1, 1}, 1e-6);  // from (1, 0) to (4, -0.5)
  arc = away;                                                       // missed by that line
  const double theta = std::atan2(std::ldexp(1, -17), 8e-6);
  const Figure frame = {std::cos(theta), std::sin(theta), 0, 64};
  frame.expect(towards_sagitta(arc, 0, -1, 1), 7, -1, 1);
  arc = short_chord;
  expect_on(towards_sagitta(arc, 0, -1, 1), -1.0 / 6, 1.0 / 6, 4);
  arc = flat;
  expect_on(towards_sagitta(arc, 0.004, -1, 1), -0.126, 0.004, 4.000008);
}

TEST(Constructions, Refusals) {
  expect_refusals(trvcer4, 5e-6, 1);
  expect_refusals(trvcer10, 0.5, 0);
  // Ends that agree in each coordinate are refused where the station is asked for its status.
  Arc near = {-3, 3, 0, 0, tolerance, tolerance};
  EXPECT_EQ(construct(trvcer4, near, 0, 1), (Values{u, u, 0}));
  EXPECT_NE(construct(trvcer10, near, 1, 1)[0], u);

  const double step = std::ldexp(1, -21);
  const auto status = [](Arc arc, double s, double e) {
    const Arc before = arc;
    const Values got = towards_sagitta(arc, s, -1, e);
    EXPECT_TRUE(got[2] == 1 || (got[0] == u && got[1] == u && arc == before));
    return got[2];
  };
  EXPECT_EQ(status(upright.arc(), -1e-30, 0.5), 0);
  EXPECT_EQ(status(upright.arc(), -0.0, 0.5), 1);
  EXPECT_EQ(status(upright.arc(), 1, tolerance), 0);
  EXPECT_EQ(status(upright.arc(), 1, beyond), 1);
  EXPECT_EQ(status(upright.arc(), 8 - 20 * step, 0.5), 0);
  EXPECT_EQ(status(upright.arc(), 8 - 21 * step, 0.5), 1);
  EXPECT_EQ(status({0, 0, -5, 0, static_cast<float>(5 + 20 * step), 0}, 1, 0.5), 1);
  EXPECT_EQ(status({0, 0, -5, 0, static_cast<float>(5 + 21 * step), 0}, 1, 0.5), 0);
  EXPECT_EQ(status({1, 2, 1, 2, 1, 2}, 0, 0.5), 0);
  EXPECT_EQ(status({1, 2, 4, 6, 4, 6}, 0, 0.5), 0);
}

TEST(Constructions, ArcComesBackRounded) {
  const float speck = 1e-8F;  // lost in any shift
  Arc arc = {speck, 0, -4, -3, 4, -3};
  EXPECT_EQ(construct(trvcer4, arc, 9, half_pi)[2], 0);
  EXPECT_EQ(arc.xc, speck);
  EXPECT_EQ(construct(trvcer4, arc, 7, half_pi)[2], 1);
  EXPECT_TRUE(arc == (Arc{0, 0, -4, -3, 4, -3}));

  // The others shift by what turning A leaves of it, and back by A as it was given.
  const Arc given = {4, 3, speck, 0, 8, 0}, touched = {4, 3, 0, 0, 8, 0};
  arc = given;
  construct(trvcer10, arc, half_pi, half_pi);
  EXPECT_TRUE(arc == given);
  expect_near(towards_sagitta(arc, 1, -1, 0.5), {7, -1, 1}, 1e-6);
  EXPECT_TRUE(arc == given);
  EXPECT_EQ(towards_sagitta(arc, 0, -1, 16 / 3.0), (Values{u, u, 0}));  // touches at A
  EXPECT_TRUE(arc == touched);
}
