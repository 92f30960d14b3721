#include "support.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

namespace {

struct Plate {
  float x1, y1, x2, y2, t;
};

// The outputs of trvmxt and trvmxt_fb.
struct Section {
  float A = unwritten, xs = A, ys = A, Ix = A, Iy = A, Ixy = A, I1 = A, I2 = A, alpha = A, rx = A,
        ry = A, Wx1 = A, Wx2 = A, Wy1 = A, Wy2 = A, Wpx = A, Wpy = A, xp = A, yp = A, It = A,
        Wt = A, xm = A, ym = A, Iw = A, r0 = A;
  std::vector<float> W1, W2;
  std::int32_t status = unwritten_int;

  explicit Section(const std::vector<Plate> &plates)
      : W1(plates.size() + 1, unwritten), W2(plates.size() + 1, unwritten) {
    std::vector<float> columns[5];
    for (const Plate &p : plates) {
      const float values[] = {p.x1, p.y1, p.x2, p.y2, p.t};
      for (std::size_t i = 0; i < 5; ++i) columns[i].push_back(values[i]);
    }
    trvmxt(static_cast<std::int32_t>(plates.size()), columns[0].data(), columns[1].data(),
           columns[2].data(), columns[3].data(), columns[4].data(), A, xs, ys, Ix, Iy, Ixy, I1, I2,
           alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, W1.data(),
           W2.data(), status);
  }

  Section(float B, float H) : W1(2, unwritten), W2(2, unwritten) {
    trvmxt_fb(B, H, A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp,
              yp, It, Wt, xm, ym, Iw, r0, W1.data(), W2.data(), status);
  }

  [[nodiscard]] bool is_refused() const {
    return status == TRV_STATUS_REFUSED && A == unwritten && yp == unwritten && It == unwritten &&
           W1[0] == unwritten;
  }
  [[nodiscard]] bool has_no_torsion() const {
    return A != unwritten && yp != unwritten && It == unwritten && Wt == unwritten &&
           xm == unwritten && Iw == unwritten && r0 == unwritten && W1[0] == unwritten;
  }
};

std::vector<Plate> channel(float B, float H, float C, float t) {
  const float b = B - t, y = 0.5F * (H - t), c = C - 0.5F * t;
  std::vector<Plate> plates = {{0, -y, 0, y, t}, {0, y, b, y, t}, {0, -y, b, -y, t}};
  if (C > 0) {
    plates.push_back({b, y, b, y - c, t});
    plates.push_back({b, -y, b, -y + c, t});
  }
  return plates;
}

}  // namespace

TEST(ThinWalled, AnIpe300HasThePublishedWarpingConstant) {
  const float y = 144.65F, b = 75, t = 10.7F;
  const Section s({{0, -y, 0, y, 7.1F},
                   {0, y, -b, y, t},
                   {0, y, b, y, t},
                   {0, -y, -b, -y, t},
                   {0, -y, b, -y, t}});
  EXPECT_EQ(s.status, 0);
  EXPECT_NEAR(s.Iw / 1e9, 125.9, 0.05);  // EN 10365, in 1000 cm6
  expect_near({s.xm, s.ym, s.alpha}, {0, 0, 0}, 1e-4);
}

TEST(ThinWalled, AnObliqueSectionAddsUpByHand) {
  const Section s({{0, 0, 10, 0, 2}, {0, 0, 0, 20, 2}});
  expect_near({s.A, s.xs, s.ys, s.Ix, s.Iy, s.Ixy},
              {60, 5 / 3.0, 20 / 3.0, 8020 / 3.0, 1540 / 3.0, -2000 / 3.0}, 1e-7);
  // Mohr's circle about 1593.333. The axis of the greater moment leans towards the negative product.
  expect_near({s.I1, s.I2, s.alpha, s.rx, s.ry},
              {2862.5237, 324.14287, 0.27651573, 6.6749949, 2.9249881}, 1e-7);
  // From the centroid to the plates' faces; the areas on either side of x = 5/11 and of y = 5 are 30.
  expect_near({s.Wx1, s.Wx2, s.Wy1, s.Wy2}, {200.5, 8020 / 23.0, 61.6, 192.5}, 1e-7);
  expect_near({s.xp, s.yp, s.Wpx, s.Wpy}, {5 / 11.0, 5, 350, 1270 / 11.0}, 1e-7);
  expect_near({s.It, s.Wt, s.r0}, {80, 40, std::sqrt(9560 / 180.0 + 425 / 9.0)}, 1e-7);
  EXPECT_EQ((Values{s.xm, s.ym, s.Iw, s.W1[1], s.W2[1], s.W1[2], s.W2[2]}),
            (Values{0, 0, 0, 0, 0, unwritten, unwritten}));
}

TEST(ThinWalled, AnInclinedBarHasTheMomentsOfABar) {
  const Section s({{0, 0, 800, 600, 0.5F}});
  expect_near({s.A, s.xs, s.ys, s.xp, s.yp, s.It, s.xm, s.ym, s.Iw},
              {500, 400, 300, 400, 300, 125 / 3.0, 400, 300, 0}, 1e-7);
  // Axis 1 is the one within an eighth of a turn from x, here along the bar.
  expect_near({s.I1, s.I2, s.alpha}, {125 / 12.0, 5e8 / 12, std::atan(0.75)}, 1e-7);
  const Section up({{0, 0, 300, 300, 0.5F}}), down({{0, 0, 300, -300, 0.5F}});
  expect_near({up.I1, up.alpha, down.I2, down.alpha},
              {std::sqrt(2) * 300 / 96, pi / 4, std::sqrt(2) * 300 / 96, pi / 4}, 1e-7);
}

TEST(ThinWalled, MomentsInTheMiddleBetweenTwoRealsAreRoundedOnceToTheEvenOne) {
  // 42711*11^3/12 = 4737361.75; 138*184*230*175/12*(1 - (175/230)^2) = 35862750.
  EXPECT_EQ(Section({{-21355.5F, 0, 21355.5F, 0, 11}}).Ix, 4737362);
  EXPECT_EQ(Section({{0, -21355.5F, 0, 21355.5F, 11}}).Iy, 4737362);
  EXPECT_EQ(Section({{-69, -92, 69, 92, 175}}).Ixy, 35862752);
}

TEST(ThinWalled, PlatesOnOneLineTwistAboutTheirCentroid) {
  const Section s({{0, 0, 30, 40, 2}, {30, 40, 60, 80, 4}});
  EXPECT_EQ(s.status, 0);
  expect_near({s.xs, s.ys, s.xm, s.ym, s.xp, s.yp}, {35, 140 / 3.0, 35, 140 / 3.0, 37.5, 50}, 1e-7);
  expect_near({s.Iw, s.W1[0], s.W2[1]}, {0, 0, 0}, 1e-9);
}

TEST(ThinWalled, EqualAreaAxisInAPlatesCorner) {
  // A square on its corner, 20 high, and 60 of area above it: 70 are missing to half of 260.
  const Section s({{0, 0, 10, 10, 14.142136F}, {10, 10, 10, 40, 2}});
  expect_near({s.yp, s.Wpx}, {15 - std::sqrt(70), 2600 - 280 * std::sqrt(70) / 3}, 1e-6);
  // Widest in the section's middle, at 1.5, and narrowing by 25/12 a unit up to 4.5: 5 of 23.75 lie
  // in the other plate, 6.875 above the axis.
  EXPECT_NEAR(Section({{0, 0, 4, 3, 3.75F}, {0, 3, 10, 3, 0.5F}}).yp, 4.5 - std::sqrt(6.6), 1e-6);
}

TEST(ThinWalled, EqualAreaAxisInTheMiddleOfAGap) {
  const Section s({{0, 0, 10, 0, 2}, {0, 50, 10, 50, 2}});
  expect_near({s.yp, s.Wpx, s.xp}, {25, 1000, 5}, 1e-7);
  // From 1 to 2, and from -2 to -1: next to one end of the section.
  expect_near({Section({{0, 0, 10, 0, 2}, {0, 2, 0, 82, 0.25F}}).yp,
               Section({{0, 0, 10, 0, 2}, {0, -82, 0, -2, 0.25F}}).yp},
              {1.5, -1.5}, 1e-7);
}

TEST(ThinWalled, ChannelsAgreeWithTheirClosedForms) {
  for (const auto &[B, H, C, t] : {std::array{51.F, 101.F, 0.F, 1.F},
                                   {120.F, 60.F, 0.F, 4.F},
                                   {74.F, 200.F, 20.8F, 2.F},
                                   {50.F, 50.F, 24.F, 1.5F},
                                   {150.F, 300.F, 60.F, 4.F}}) {
    const Section s(channel(B, H, C, t));
    expect_near({s.xs - s.xm, s.ym, s.Iw},
                {outputs(trvshc_c, B, H, C, t)[0], 0, outputs(trvwar_c, B, H, C, t)[0]}, 1e-5);
  }
}

TEST(ThinWalled, AnyOpenSectionIsInEquilibriumAboutItsShearCentre) {
  const std::vector<Plate> plates = {{3, 4, 43, 34, 2},
                                     {43, 34, 100, 20, 3},
                                     {43, 34, 30, 90, 1.5F},
                                     {3, 4, -20, 40, 2.5F},
                                     {-20, 40, -5, 60, 1}};
  const Section s(plates);
  ASSERT_EQ(s.status, 0);
  double w = 0, wx = 0, wy = 0, ww = 0, area = 0, plastic_x = 0, plastic_y = 0, left = 0,
         top = -1e9;
  for (std::size_t i = 0; i < plates.size(); ++i) {
    const Plate &p = plates[i];
    const double dx = p.x2 - p.x1, dy = p.y2 - p.y1, l = std::hypot(dx, dy);
    EXPECT_NEAR(s.W2[i] - s.W1[i], (p.x1 - s.xm) * dy - (p.y1 - s.ym) * dx, 0.02);
    constexpr int steps = 600;
    for (int k = 0; k < steps; ++k) {
      const double along = (k + 0.5) / steps;
      for (int j = 0; j < 20; ++j) {
        const double across = (j - 9.5) / 20 * p.t, da = l * p.t / steps / 20;
        const double x = p.x1 + along * dx - across * dy / l;
        const double y = p.y1 + along * dy + across * dx / l;
        const double omega = s.W1[i] + along * (s.W2[i] - s.W1[i]);
        area += da;
        w += omega * da;
        wx += omega * (p.x1 + along * dx) * da;
        wy += omega * (p.y1 + along * dy) * da;
        ww += omega * omega * da;
        plastic_x += std::fabs(y - s.yp) * da;
        plastic_y += std::fabs(x - s.xp) * da;
        left += x < s.xp ? da : 0;
        top = std::max(top, y);
      }
    }
  }
  const double scale = std::sqrt(ww * area);
  expect_near({w / scale, wx / scale / 100, wy / scale / 100}, {0, 0, 0}, 1e-5);
  expect_near({s.A, s.Iw, s.Wpx, s.Wpy}, {area, ww, plastic_x, plastic_y}, 1e-4);
  EXPECT_NEAR(left, area / 2, area * 2e-3);
  EXPECT_NEAR(s.Ix / s.Wx1, top - s.ys, 0.1);
}

TEST(ThinWalled, SectionsThatAreNotOpenGetNoTorsion) {
  const auto with = [](const Plate &last) {
    std::vector<Plate> plates = channel(50, 100, 0, 2);
    plates.push_back(last);
    return Section(plates);
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
    const Section s = with(last);
    EXPECT_EQ(s.status, status) << what;
    EXPECT_TRUE(s.has_no_torsion()) << what;
  }
  EXPECT_EQ(with({48, -49, 20, 48, 2}).status, 0);
}

TEST(ThinWalled, WhatIsNoPlateIsRefused) {
  for (const Plate &p : {Plate{0, 0, tolerance, 0, 2},
                         {0, 0, 1, 0, tolerance},
                         {0, 0, not_a_number, 0, 2},
                         {0, 0, 0, infinity, 2},
                         {infinity, 0, infinity, 1, 2},
                         {0, 0, 1, 0, infinity}})
    EXPECT_TRUE(Section({{5, 0, 0, 0, 1}, p}).is_refused());
  EXPECT_TRUE(Section(std::vector<Plate>()).is_refused());
  EXPECT_EQ(Section({{0, 0, beyond, 0, 2}}).status, 0);
  EXPECT_EQ(Section({{0, 0, 1, 0, beyond}}).status, 0);
}

TEST(ThinWalled, PlatesMeetWithinTheTolerance) {
  const float t = tolerance;
  EXPECT_EQ(Section({{0, 0, 1, 0, 1}, {t, t, 0, 1, 1}}).status, 0);
  EXPECT_EQ(Section({{0, 0, 1, 0, 1}, {0, beyond, 0, 1, 1}}).status, 2);
  const auto hook = [](float end, float side, bool upright) {
    std::vector<Plate> plates = {
        {0, 0, 1, 0, 1}, {0, 0, 0, side, 1}, {0, side, 0.5F, side, 1}, {0.5F, side, 0.5F, end, 1}};
    for (Plate &p : plates) {
      if (upright) p = {p.y1, p.x1, p.y2, p.x2, p.t};
    }
    return Section(plates).status;
  };
  for (const bool upright : {false, true}) {
    for (const float side : {1.0F, -1.0F}) {
      EXPECT_EQ(hook(side * t, side, upright), 8);
      EXPECT_EQ(hook(side * beyond, side, upright), 0);
    }
  }
  // A third of 1000 in single precision is further off the line than that.
  EXPECT_EQ(
      Section({{0, 0, 3000, 1000, 1}, {0, 0, 0, 900, 1}, {0, 900, 1000, 333.3334F, 1}}).status, 6);
}

TEST(ThinWalled, SmallPlatesThatPointAtEachOtherDoNotMeet) {
  // The last one ends beside the first, or passes beyond its end.
  EXPECT_EQ(Section({{0, 0, 1, 1, 1}, {0, 0, 0.9F, 0, 1}, {0.9F, 0, 0.6F, 0.3F, 1}}).status, 0);
  EXPECT_EQ(Section({{0, 0, 0.5F, 0.5F, 1}, {0, 0, 1, 0.3F, 1}, {1, 0.3F, 0.3F, 1, 1}}).status, 0);
}

TEST(FlatBar, TwistsAsTabulated) {
  // S. Timoshenko, J. N. Goodier, Theory of elasticity, torsion of rectangles: It / (b t^3) and
  // Wt / (b t^2) by b/t, with more digits of the same series than its table has.
  for (const auto &[ratio, torsion, modulus] : {std::array{1.F, 0.140577015F, 0.20816526F},
                                                {2.F, 0.228681677F, 0.245878342F},
                                                {4.F, 0.280812958F, 0.281665666F},
                                                {10.F, 0.312325037F, 0.312325114F}}) {
    const Section upright(3, 3 * ratio);
    const Section flat(3 * ratio, 3);
    EXPECT_NEAR(upright.It / (81 * ratio), torsion, 1e-7);
    EXPECT_NEAR(upright.Wt / (27 * ratio), modulus, 1e-7);
    EXPECT_TRUE(upright.It == flat.It && upright.Wt == flat.Wt && upright.Ix == flat.Iy);
  }
}

TEST(FlatBar, FiguresByHand) {
  const Section s(6, 12);
  expect_near({s.A, s.Ix, s.Iy, s.I1, s.I2, s.rx, s.ry},
              {72, 864, 216, 864, 216, std::sqrt(12), std::sqrt(3)}, 1e-7);
  expect_near({s.Wx1, s.Wx2, s.Wy1, s.Wy2, s.Wpx, s.Wpy, s.Iw, s.r0},
              {144, 144, 72, 72, 216, 108, 2592, std::sqrt(15)}, 1e-7);
  for (const float zero : {s.xs, s.ys, s.Ixy, s.alpha, s.xp, s.yp, s.xm, s.ym, s.W1[0], s.W2[0]})
    EXPECT_EQ(zero, 0);
  EXPECT_TRUE(s.status == 0 && s.W1[1] == unwritten && s.W2[1] == unwritten);
}

TEST(FlatBar, SidesCountAboveTheTolerance) {
  for (const float side : {tolerance, 0.F, -3.F, infinity, not_a_number}) {
    EXPECT_TRUE(Section(side, 3).is_refused());
    EXPECT_TRUE(Section(3, side).is_refused());
  }
  EXPECT_EQ(Section(beyond, 3).status, 0);
}
