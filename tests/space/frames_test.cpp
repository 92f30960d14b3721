#include "trelvin/frames.h"
#include "space/frame_of_sevens.h"

using namespace trelvin_test;

namespace {

const Values no_frame = {0, 0, 0, 0, 0, 0, 0, 0, 0, TRV_FRAME_NO_FRAME};

}  // namespace

TEST(Frames, MatrixAndItsTranspose) {
  for (const std::int32_t mode : {0, 1, 2, -1}) {
    float v[] = {1, 10, 100};
    trvtrn(v, 1, 2, 3, 4, 5, 6, 7, 8, 9, mode);
    EXPECT_EQ(Values(v, v + 3), mode == 1 ? (Values{741, 852, 963}) : (Values{321, 654, 987}));
  }
}

TEST(Frames, NormalOfThreePointsIsTurnedTowardsYElseZElseX) {
  const auto frame = [](float ux, float uy, float uz, float wx, float wy, float wz) {
    return outputs(trvaxe, 0, 0, 0, ux, uy, uz, wx, wy, wz);
  };
  EXPECT_EQ(frame(2, 0, 0, 5, 3, 0), (Values{1, 0, 0, 0, 1, 0, 0, 0, 1, 0}));
  EXPECT_EQ(frame(0, 2, 0, 3, 5, 0), (Values{0, 1, 0, -1, 0, 0, 0, 0, 1, 0}));
  EXPECT_EQ(frame(2, 0, 0, 5, 0, 3), (Values{1, 0, 0, 0, 0, -1, 0, 1, 0, 0}));
  EXPECT_EQ(frame(0, 0, 2, 0, 3, 5), (Values{0, 0, 1, 0, -1, 0, 1, 0, 0, 0}));
  for (const float across : {5.0F, -1.0F}) {  // P2 on either side of the line
    Values e = outputs_at(trvaxe, in_sevens(0, 0, 0), in_sevens(3, 0, 0), in_sevens(2, across, 0));
    for (double &component : e) component *= 7;
    expect_near(e, {2, 3, 6, 3, -6, 2, 6, 2, -3, 0}, 5e-7);
  }
}

TEST(Frames, ThreePointsWithoutFrameOrWithoutAnAxis) {
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 2, 2, 2, 3, 3, 3), no_frame);
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 1, 1, 1, 3, 4, 5), Values(10, 0));
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, not_a_number, 0, 0, 0, 1, 0), Values(10, 0));
  // A side and a normal as long as the tolerance, but a product of 1e-10.
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, tolerance, 0, 0, 0, 1, 0),
            (Values{1, 0, 0, 0, 0, 0, 0, 0, 1, 0}));
}

TEST(Frames, ThreePointsHaveAFrameWhereTheThreePointTestInTheSameOrderFindsAPlane) {
  // The cosine is divided by one distance, then by the other: the order decides in its last place.
  const Point a = {0, 0, 0}, b = {10, 0, 0}, p = {1, 4.04861383e-3F, 0};
  EXPECT_EQ(outputs_at(trvpsl, a, b, p), Values{3});
  EXPECT_EQ(outputs_at(trvpsl, b, a, p), Values{0});
  EXPECT_EQ(outputs_at(trvaxe, a, b, p), no_frame);
  EXPECT_EQ(outputs_at(trvaxe, b, a, p).back(), 0);
}

TEST(Frames, OfAnAxis) {
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, 0, 0, tolerance, 1), no_frame);
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, beyond, 0, 0, 0), (Values{1, 0, 0, 0, 1, 0, 0, 0, 1, 0}));
  // Along (9, 20, 12), 25 long; y freed of that is (-0.48, 0.6, -0.64). The angle's sine is 0.8.
  expect_near(outputs(trvaxel, 1, -2, 4, 10, 18, 16, 0.927295218),
              {0.36, 0.8, 0.48, -0.928, 0.36, 0.096, -0.096, -0.48, 0.872, 0}, 2e-7);
  const Values column = outputs(trvaxel, 0, 1, 0, 0, 4, 0, 0.5);
  EXPECT_TRUE(column[0] == 0 && column[1] == 1 && column[2] == 0 && column[9] == 0);
  for (std::size_t i = 3; i < 9; ++i) EXPECT_FALSE(std::isfinite(column[i])) << i;
}
