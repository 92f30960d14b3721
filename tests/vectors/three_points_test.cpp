#include "space/frame_of_sevens.h"
#include "trelvin/space.h"

using namespace trelvin_test;

TEST(ThreePoints, SpanAPlaneOrLieOnALine) {
  const Point a = in_sevens(0, 0, 0), b = in_sevens(2, 0, 0);
  const auto place = [&](float along, float across) {
    return outputs_at(trvpsl, a, b, in_sevens(along, across, 0))[0];
  };
  EXPECT_EQ((Values{place(0, 0), place(2, 0), place(0.5, 0), place(-3, 0), place(4, 0)}),
            (Values{TRV_THREE_POINTS_AT_P0, TRV_THREE_POINTS_AT_P1, TRV_THREE_POINTS_BETWEEN,
                    TRV_THREE_POINTS_BEYOND_P0, TRV_THREE_POINTS_BEYOND_P1}));
  EXPECT_EQ((Values{place(1, 2), place(-3, 1)}), (Values{TRV_THREE_POINTS_SPANS_PLANE, 0}));
  EXPECT_EQ(outputs_at(trvpsl, a, a, b),
            Values{0});  // they look like a line, but nothing is nearer
}

TEST(ThreePoints, GoByTheCosineOfTheCallBeforeWherePointsNearlyAgree) {
  const float h = 9e-6F;  // (h, h) is at the origin by each coordinate, but not by its distance
  const auto status = [](auto routine, float x, float y) {
    return outputs(routine, 0, 0, 0, 1, 0, 0, x, y, 0).back();
  };
  const auto lines = [](float yc, float yd) {  // C and D above the middle of the first line
    return outputs(trvdirl, 0, 0, 0, 1, 0, 0, 0.5, yc, 0, 0.5, yd, 0)[0];
  };
  EXPECT_EQ(status(trvpsl, h, h), 0);  // zero after loading
  EXPECT_EQ((Values{status(trvpsl, 0.5F, 0), status(trvpsl, h, h), status(trvaxe, h, h)}),
            (Values{3, 3, -2}));
  EXPECT_EQ((Values{status(trvpl1, -1, 0), status(trvpsl, h, h), status(trvpsl, 1 + h, h)}),
            (Values{4, 4, 5}));
  EXPECT_EQ((Values{status(trvpsl, 0, 0), status(trvpl1, h, h)}), (Values{1, 4}));  // 1 leaves none
  EXPECT_EQ((Values{status(trvaxe, 1, 1), status(trvpl1, h, h)}), (Values{0, 0}));
  // Relating lines tests C, then D, even though C settles it.
  EXPECT_EQ((Values{lines(1, 0), status(trvpsl, h, h)}), (Values{5, 3}));
  EXPECT_EQ((Values{lines(0, 1), status(trvpsl, h, h)}), (Values{5, 0}));
}
