#include "sections/thin_section.h"

using namespace trelvin_test;

TEST(Joints, SectionsThatAreNotOpenGetNoTorsion) {
  const auto with = [](const Plate &last) {
    std::vector<Plate> plates = channel(50, 100, 0, 2);
    plates.push_back(last);
    return ThinSection(plates);
  };
  struct Case {
    const char *what;
    Plate last;
    int status;
  };
  for (const auto &[what, last, status] :
       {Case{"closes a cell", {48, -49, 48, 49, 2}, 4}, Case{"hangs loose", {20, 20, 30, 20, 2}, 4},
        Case{"starts within a plate", {20, 49, 20, 20, 2}, 4},
        Case{"ends within a plate", {48, -49, 20, 49, 2}, 8},
        Case{"crosses a plate", {48, -49, 20, 60, 2}, 8},
        Case{"passes the end of a plate", {48, -49, 48, 60, 2}, 8},
        Case{"goes back on its plate", {48, -49, 20, -49, 2}, 8},
        Case{"goes back beyond its plate", {48, -49, -1, -49, 2}, 8}}) {
    EXPECT_EQ(with(last).status, status) << what;
  }
  EXPECT_EQ(with({48, -49, 20, 48, 2}).status, 0);
}

TEST(Joints, WhatIsNoPlateIsRefused) {
  for (const Plate &p : {Plate{0, 0, tolerance, 0, 2},
                         {0, 0, 1, 0, tolerance},
                         {0, 0, not_a_number, 0, 2},
                         {0, 0, 0, infinity, 2},
                         {infinity, 0, infinity, 1, 2},
                         {0, 0, 1, 0, infinity}})
    EXPECT_EQ(ThinSection({{5, 0, 0, 0, 1}, p}).status, TRV_STATUS_REFUSED);
  EXPECT_EQ(ThinSection(std::vector<Plate>()).status, TRV_STATUS_REFUSED);
  EXPECT_EQ(ThinSection({{0, 0, beyond, 0, 2}}).status, 0);
  EXPECT_EQ(ThinSection({{0, 0, 1, 0, beyond}}).status, 0);
}

TEST(Joints, PlatesMeetWithinTheTolerance) {
  const float t = tolerance;
  EXPECT_EQ(ThinSection({{0, 0, 1, 0, 1}, {t, t, 0, 1, 1}}).status, 0);
  EXPECT_EQ(ThinSection({{0, 0, 1, 0, 1}, {0, beyond, 0, 1, 1}}).status, 2);
  const auto hook = [](float end, float side, bool upright) {
    std::vector<Plate> plates = {
        {0, 0, 1, 0, 1}, {0, 0, 0, side, 1}, {0, side, 0.5F, side, 1}, {0.5F, side, 0.5F, end, 1}};
    for (Plate &p : plates) {
      if (upright) p = {p.y1, p.x1, p.y2, p.x2, p.t};
    }
    return ThinSection(plates).status;
  };
  for (const bool upright : {false, true}) {
    for (const float side : {1.0F, -1.0F}) {
      EXPECT_EQ(hook(side * t, side, upright), 8);
      EXPECT_EQ(hook(side * beyond, side, upright), 0);
    }
  }
  // A third of 1000 in single precision is further off the line than that.
  EXPECT_EQ(
      ThinSection({{0, 0, 3000, 1000, 1}, {0, 0, 0, 900, 1}, {0, 900, 1000, 333.3334F, 1}}).status,
      6);
}

TEST(Joints, SmallPlatesThatPointAtEachOtherDoNotMeet) {
  // The last one ends beside the first, or passes beyond its end.
  EXPECT_EQ(ThinSection({{0, 0, 1, 1, 1}, {0, 0, 0.9F, 0, 1}, {0.9F, 0, 0.6F, 0.3F, 1}}).status, 0);
  EXPECT_EQ(ThinSection({{0, 0, 0.5F, 0.5F, 1}, {0, 0, 1, 0.3F, 1}, {1, 0.3F, 0.3F, 1, 1}}).status,
            0);
}
