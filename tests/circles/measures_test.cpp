#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

TEST(ArcMeasures, LengthsOfBothArcs) {
  for (const double y : {3, -1})  // the sense is not told
    expect_near(outputs(trvarc1, 1, 1, 3, 1, 1, y), {pi, 3 * pi, 1}, 1e-6);
  expect_near(outputs(trvarc1, 1, 1, 3, 1, -6, 1), {2 * pi, 2 * pi, 1}, 1e-6);  // A's radius
  const Values refused = {unwritten, unwritten, 0};
  EXPECT_EQ(outputs(trvarc1, 0, 0, tolerance, 0, 0, 1), refused);
  EXPECT_EQ(outputs(trvarc1, 0, 0, 1, 0, 1, -tolerance), refused);
  EXPECT_EQ(outputs(trvarc1, 0, 0, beyond, 0, 0, 1)[2], 1);
  EXPECT_EQ(outputs(trvarc1, 0, 0, 1, 0, 1, -beyond)[2], 1);
}

TEST(ArcMeasures, AngleAgainstTheAxisIsSigned) {
  struct Case {
    double dx, dy, phi;
  };
  const Case cases[] = {{2, 2, pi / 4},       {-2, 2, 0.75 * pi},   {-2, -2, -0.75 * pi},
                        {2, -2, -pi / 4},     {0, -1, -pi / 2},     {-1, 0, pi},
                        {-1, -tolerance, pi}, {-1, -beyond, -pi},   {tolerance, 0, 0},
                        {0, -tolerance, 0},   {0, -beyond, -pi / 2}};
  for (const Case &t : cases) expect_near(outputs(trvaxph, t.dx, t.dy), {t.phi}, 1e-6);
}

TEST(ArcMeasures, DistancesInThePlaneAndStationsInSpace) {
  expect_near(outputs(trvhin, 3, 4, 0, 0, 0, 0, 10, 0, 0, 7, -2, 0), {4, 3, 2, 7, 10}, 1e-6);
  // Along (12, 5) and across it in steps of 13; the heights make 26, 13 and 39 longer.
  expect_near(outputs(trvhin, 20, 24, 22.5, 1, 2, 3, 37, 17, 55, 35, -12, 139),
              {13, 32.5, 26, -20, 65}, 1e-6);
}

TEST(ArcMeasures, SectorMarksByTheSignsOfBothDistances) {
  // Along and across the first ray, the second one runs across it.
  struct Case {
    float along, across;
    std::int32_t mark;
  };
  const Case cases[] = {{2, 1, 2},    {-2, 1, 2}, {2, -1, 1}, {-2, -1, 2}, {0.5F, -1, 1},
                        {0.5F, 0, 1}, {2, 0, 1},  {-2, 0, 2}, {0, 0, 1},   {0, 3, 1}};
  constexpr std::int32_t n = sizeof cases / sizeof cases[0];
  float x[n], y[n];
  std::int32_t mark[n + 1];
  for (const float s : {1.0F, -1.0F}) {  // the second ray to the left, then to the right
    for (const auto &[dx, dy] : {std::pair{1.0F, 0.0F}, {0.0F, 1.0F}, {3.0F, 4.0F}}) {
      for (int i = 0; i < n; ++i) {
        x[i] = 1 + cases[i].along * dx - s * cases[i].across * dy;
        y[i] = 2 + cases[i].along * dy + s * cases[i].across * dx;
      }
      std::fill_n(mark, n + 1, unwritten_int);
      trvapp(1, 2, 1 + dx, 2 + dy, 1 - s * dy, 2 + s * dx, n, x, y, mark);
      for (int i = 0; i < n; ++i) EXPECT_EQ(mark[i], cases[i].mark) << i << " " << dx << " " << s;
      EXPECT_EQ(mark[n], unwritten_int);
    }
  }
}

TEST(ArcMeasures, RaysOfOneDirectionSpanNoSector) {
  const float x[] = {3, 4, 5}, y[] = {1, 1, 1};
  std::int32_t mark[] = {unwritten_int, unwritten_int, unwritten_int};
  trvapp(0, 0, 1, 0, 0, 1, 0, x, y, mark);
  EXPECT_EQ(mark[0], unwritten_int);
  trvapp(0, 0, 1, 0, 7, 0, 2, x, y, mark);
  EXPECT_EQ(Values(mark, mark + 3), (Values{-1, -1, unwritten}));
}
