#include "support.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(PointsOnLines, OneCoordinatePlacesThePoint) {
  struct Case {
    double d[3], p[3];  // direction and a point of the line from (1, 2, 3)
    double code;
    int free;  // coordinate of p that places it along the line
  };
  const double yes = TRV_ON_LINE_YES, no = TRV_ON_LINE_NO;
  const Case cases[] = {{{2, 4, -4}, {4, 8, -3}, TRV_COMPONENTS_ALL, 0},
                        {{4, 0, 0}, {not_a_number, 2, 3}, TRV_COMPONENTS_FIRST, 0},
                        {{0, 4, 0}, {1, infinity, 3}, 3, 1},
                        {{0, 0, 4}, {1, 2, not_a_number}, 4, 2},
                        {{2, 4, 0}, {4, 8, 3}, 5, 0},
                        {{0, 2, 4}, {1, 5, 9}, 6, 1},
                        {{2, 0, 4}, {4, 2, 9}, 7, 0}};
  for (const Case &t : cases) {
    for (int i = 0; i < 3; ++i) {
      for (const float off : {0.25F, -0.25F, 0.26F, -0.26F, not_a_number}) {
        double p[] = {t.p[0], t.p[1], t.p[2]};
        p[i] += off;
        if (i == t.free) continue;
        EXPECT_EQ(outputs(trvln6, 1, 2, 3, t.d[0], t.d[1], t.d[2], p[0], p[1], p[2], 0.25),
                  (Values{t.code, std::fabs(off) == 0.25F ? yes : no}))
            << i << " off by " << off;
      }
    }
  }
  EXPECT_EQ(outputs(trvln6, 1, 2, 3, tolerance / 2, 0, 0, 1, 2, 3, 1), (Values{0, 0}));
}

TEST(PointsOnLines, TwoPlanesAgreeWithAPointAtTheRetainedStation) {
  struct Planes {
    float a1, b1, c1, d1, a2, b2, c2, d2;
  };
  const float n = not_a_number;
  const Planes oblique = {2, 1, 3, 2, 4, 3, 5, -2};        // (0, 4, -2) and onwards by (2, -1, -1)
  const Planes upright = {2, 1, 0, -23, 3, 4, 0, -57};     // x = 7, y = 9
  const Planes across = {1, 1, 2, -8, 4, 2, 4, -22};       // x = 3, y + 2 z = 5
  const Planes slight = {1, 1, 0, 0, 0, 0, tolerance, 0};  // no direction counts but the caller's
  const Planes none = {n, n, n, n, n, n, n, n};
  float ex = kept, ey = kept;
  const auto expect = [&](const Planes &g, float ez, float x, float y, float z, std::int32_t code,
                          std::int32_t on) {
    std::int32_t codes = kept, result = kept;
    trvln7(g.a1, g.b1, g.c1, g.d1, g.a2, g.b2, g.c2, g.d2, x, y, z, ex, ey, ez, 0.25F, codes,
           result);
    EXPECT_TRUE(codes == code && result == on) << x << " " << y << " " << z;
  };
  // Along x, from the station 0 that loading left, wherever the point is.
  expect(oblique, 0, n, 4.25F, -2.25F, 5, 1);
  EXPECT_TRUE(ex == -4 && ey == -2);
  expect(oblique, 2, 6, 1, -5, 1, 0);
  expect(oblique, 0, 0, 4.26F, -2, 5, 0);
  expect(oblique, 0, 0, 4, -2.26F, 5, 0);
  // Along z, at the retained -2, but only if the caller says so.
  expect(slight, 2 * tolerance, -1, 1, n, 4, 1);
  expect(upright, 0, 7, 9, 0, 0, 0);
  expect(upright, 5, 7.25F, 8.75F, n, 4, 1);
  expect(upright, 5, 7.26F, 9, 0, 4, 0);
  expect(upright, 5, 7, 9.26F, 0, 4, 0);
  // Now x = 7 is retained: what agreed before no longer does.
  expect(oblique, 0, 0, 4, -2, 5, 0);
  expect(oblique, 0, 0, 0.5F, -5.5F, 5, 1);
  expect(none, n, 0, 0, 0, 0, 0);
  // Along y, at the retained 0.5, z is that of the line at -0.5.
  expect(across, 0, 3.25F, n, 3, 3, 1);
  expect(across, 0, 3.26F, 0, 2.75F, 3, 0);
  expect(across, 0, 3, 0, 3.01F, 3, 0);
  expect(none, n, 0, 0, 0, 0, 0);
  expect(oblique, 0, 0, 2.5F, -3.5F, 5, 1);
}
