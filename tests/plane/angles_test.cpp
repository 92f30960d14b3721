#include "support.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(Angles, BetweenTwoRays) {
  for (const double y : {2, 0})  // the sense is not told
    expect_near(outputs(trvphi, 1, 1, 3, 1, 0, y), {0.75 * pi}, 1e-7);
  expect_near(outputs(trvphi3, 1, 1, 1, 2, 2, 1, 1, 3, 3), {pi / 3}, 1e-7);
  expect_near(outputs(trvphi1, 1, 2, 2, 2, -1, 2), {std::acos(4.0 / 9)}, 1e-7);
  // Rounding takes the cosine of these two rays beyond 1.
  EXPECT_TRUE(std::isnan(outputs(trvphi, 0, 0, 1, 1, 3, 3)[0]));
}

TEST(Angles, RayWithoutLengthGivesZero) {
  const auto expect = [](float u, float v, float phi) {
    EXPECT_EQ(outputs(trvphi, 0, 0, u, 0, 0, v), Values{phi});
    EXPECT_EQ(outputs(trvphi3, 0, 0, 0, u, 0, 0, 0, 0, v), Values{phi});
    EXPECT_EQ(outputs(trvphi1, u, 0, 0, 0, v, 0), Values{phi});
  };
  expect(tolerance, 1, 0);
  expect(1, -tolerance, 0);
  expect(beyond, -beyond, half_pi);
  for (const float u : {1.0F, not_a_number}) {  // a NaN is not short
    const float v = u == 1 ? not_a_number : 1;
    for (const double phi :
         {outputs(trvphi, 0, 0, u, 0, 0, v)[0], outputs(trvphi3, 0, 0, 0, u, 0, 0, 0, 0, v)[0],
          outputs(trvphi1, u, 0, 0, 0, v, 0)[0]})
      EXPECT_TRUE(std::isnan(phi));
    EXPECT_EQ(outputs(trvphip, u, 0, 0, 0, v, 0)[1], unwritten);
  }
}

TEST(Angles, BetweenLinesIsAcuteAndLeavesTheStatus) {
  EXPECT_EQ(outputs(trvphip, 1, 0, 0, 0, -tolerance, 0), (Values{unwritten, -1}));
  EXPECT_EQ(outputs(trvphip, 0, 0, tolerance, 1, 0, 0), (Values{unwritten, -1}));
  expect_near(outputs(trvphip, 1, 2, 2, -2, 1, -2), {std::acos(4.0 / 9), unwritten}, 1e-7);
}

TEST(Angles, CosineAndSine) {
  const Values coincident = {unwritten, unwritten, 1};
  EXPECT_EQ(outputs(trvtrg, 1, 1, 1, 1, 1, 1, 0, 0, 0, 1, 0, 0), coincident);
  EXPECT_EQ(outputs(trvtrg, 0, 0, 0, 1, 0, 0, 2, 2, 2, 2, 2, 2), coincident);
  for (const double turn : {1, -1})  // (1, 2, 2) and (2, -1, 2), or the opposite
    expect_near(outputs(trvtrg, 1, 1, 1, 2, 3, 3, 2, 2, 2, 2 + 2 * turn, 2 - turn, 2 + 2 * turn),
                {turn * 4 / 9, std::sqrt(65) / 9, 0}, 1e-7);
}

TEST(Angles, RelationOfDirections) {
  const double t = tolerance, n = not_a_number;
  const double cases[][7] = {{1, 2, 3, 3, 2, 1, 0},      {1, 2, 3, 2, 4, 6, 1},
                             {1, 2, 3, -2, -4, -6, 2},   {1, 2, 3, -5, 1, 1, 3},
                             {1, 0, 0, t, 1, 0, 3},      {1, 0, 0, beyond, 1, 0, 0},
                             {t, t, -t, 1, 2, 3, 4},     {1, 2, 3, 0, 0, 0, 4},
                             {0, beyond, 0, 0, 1, 0, 1}, {n, 1, 1, 1, n, 1, 0}};
  for (const auto &c : cases)
    EXPECT_EQ(outputs(trvdir, c[0], c[1], c[2], c[3], c[4], c[5]), Values{c[6]}) << &c - cases;
}

TEST(Angles, RelationOfPlanes) {
  const double t = tolerance, n = not_a_number;
  const double cases[][9] = {
      {1, 2, 3, 4, 3, 2, 1, 4, 0},   {0, 0, 1, 0, 0, 0, 2, -2, 1},   {0, 0, 1, -1, 0, 0, 1, 0, 1},
      {2, 0, 0, 4, 1, 0, 0, n, 1},   {0, 0, 1, -1, 0, 0, -1, -1, 2}, {0, 0, 1, t, 0, 0, 1, -t, 3},
      {1, 2, 3, 4, 2, 4, 6, 8, 3},   {2, 0, 0, 4, 4, 0, 0, 8, 3},    {2, 0, 0, n, 1, 0, 0, 3, 3},
      {0, 2, 0, 4, 0, -4, 0, -8, 4}, {1, 2, 3, 4, -5, 1, 1, 4, 5},   {0, 0, 0, 4, 1, 2, 3, 4, 6},
      {1, 2, 3, 4, 0, t, 0, 4, 6}};
  for (const auto &c : cases)
    EXPECT_EQ(outputs(trvdirp, c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7]), Values{c[8]})
        << &c - cases;
}

TEST(Angles, BetweenProjections) {
  // (1, 1, 1) with (-2, 2, 0) and with (2, 0, 0), which has no length across the x axis.
  expect_near(outputs(trvmov, 5, 6, 7, 6, 7, 8, 3, 2, 1, 1, 4, 1), {pi / 4, 0.75 * pi, pi / 2},
              1e-7);
  expect_near(outputs(trvmov, 5, 6, 7, 6, 7, 8, 3, 2, 1, 5, 2, 1), {0, pi / 4, pi / 4}, 1e-7);
}

TEST(Angles, NewOriginMayBeOneOfThePoints) {
  float x[] = {1, 2, 4, unwritten}, y[] = {5, 7, 9, unwritten};
  for (const std::int32_t n : {0, -3}) trvtra(x, y, n, 1, 1);
  trvtra(x, y, 3, x[0], y[1]);
  EXPECT_EQ(Values(x, x + 4), (Values{0, 1, 3, unwritten}));
  EXPECT_EQ(Values(y, y + 4), (Values{-2, 0, 2, unwritten}));
}

TEST(Angles, DirectedAnglesAreAccurateAllAround) {
  // Counter-clockwise in the plane; tiny departures from 0, pi and 2*pi survive.
  for (const double small : {1e-6, 1e-3}) {
    const auto directed = [](double x, double y) {
      return outputs(trvchi, 5, 5, 0, 6, 5, 0, 5 + x, 5 + y, 0);
    };
    const double up = static_cast<float>(5 + small) - 5.0;  // what a Real holds of it
    EXPECT_NEAR(directed(1, small)[0], std::atan2(up, 1), 1e-7 * small);
    EXPECT_NEAR(directed(-1, small)[0], pi - std::atan2(up, 1), 3e-7);
    const double down = 5.0 - static_cast<float>(5 - small);
    EXPECT_NEAR(directed(1, -small)[0], 2 * pi - std::atan2(down, 1), 5e-7);
  }
  EXPECT_LT(outputs(trvchi, 0, 0, 0, 1, 0, 0, 1, -1e-12, 0)[0], 2 * pi);
  EXPECT_NEAR(outputs(trvchi, 0, 0, 0, 0, 1, 0, 1, 0, 0)[0], 1.5 * pi, 1e-6);
  // From x to z the normal points to -y, so that way round is taken as three quarters.
  EXPECT_NEAR(outputs(trvchi, 1, 1, 1, 2, 1, 1, 1, 1, 2)[0], 1.5 * pi, 1e-6);
  EXPECT_NEAR(outputs(trvchi, 1, 1, 1, 1, 1, 2, 2, 1, 1)[0], 0.5 * pi, 1e-6);
  EXPECT_EQ(outputs(trvchi, 1, 1, 1, 1 + 5e-6, 1, 1, 2, 1, 1), (Values{unwritten, 1}));
  EXPECT_EQ(outputs(trvchi, 1, 1, 1, 2, 1, 1, 1, 1, 1), (Values{unwritten, 1}));
}

TEST(Angles, ConvexOutlinesWindOnceAndTurnOneWay) {
  const auto convex = [](std::vector<float> x, std::vector<float> y) {
    std::int32_t either_way[2];
    for (std::int32_t &status : either_way) {
      trvcnv(x.data(), y.data(), static_cast<std::int32_t>(x.size()), status);
      std::reverse(x.begin(), x.end());
      std::reverse(y.begin(), y.end());
    }
    EXPECT_EQ(either_way[0], either_way[1]);
    return either_way[0];
  };
  EXPECT_EQ(convex({0, 1, 2, 2, 0}, {0, 0, 0, 1, 1}), 1);        // straight at (1, 0)
  EXPECT_EQ(convex({0, 2, 2, 1, 0}, {0, 0, 2, 1, 2}), 0);        // a notch
  EXPECT_EQ(convex({0, 1, -1, 1, 0.5F}, {0, 1, 0, -1, 3}), 0);   // crosses itself
  EXPECT_EQ(convex({0, 2, 3, 2, 2, 0}, {0, 0, 0, 0, 2, 2}), 0);  // a spike
  EXPECT_EQ(convex({0, 1, 1, 0}, {0, 0, 0.000005F, 1}), -1);     // a side too short
  EXPECT_EQ(convex({0, 1}, {0, 1}), -1);
  std::vector<float> star_x, star_y, round_x, round_y;
  for (int i = 0; i < 5; ++i) {
    star_x.push_back(static_cast<float>(std::cos(4 * pi * i / 5)));
    star_y.push_back(static_cast<float>(std::sin(4 * pi * i / 5)));
  }
  EXPECT_EQ(convex(star_x, star_y), 0);  // turns one way, but twice around
  for (int i = 0; i < 5000; ++i) {
    round_x.push_back(static_cast<float>(std::cos(2 * pi * i / 5000)));
    round_y.push_back(static_cast<float>(std::sin(2 * pi * i / 5000)));
  }
  EXPECT_EQ(convex(round_x, round_y), 1);  // each vertex is straight within the tolerance
}
