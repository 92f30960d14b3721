#include "support.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

namespace {

struct Plate {
  float x1, y1, x2, y2, t;
};

// The outputs of trvmxt and trvmxt_fb.
struct Section {
  float A = unwritten, xs = unwritten, ys = unwritten, Ix = unwritten, Iy = unwritten,
        Ixy = unwritten, I1 = unwritten, I2 = unwritten, alpha = unwritten, rx = unwritten,
        ry = unwritten, Wx1 = unwritten, Wx2 = unwritten, Wy1 = unwritten, Wy2 = unwritten,
        Wpx = unwritten, Wpy = unwritten, xp = unwritten, yp = unwritten, It = unwritten,
        Wt = unwritten, xm = unwritten, ym = unwritten, Iw = unwritten, r0 = unwritten;
  std::vector<float> W1 = std::vector<float>(12, unwritten), W2 = W1;
  std::int32_t status = unwritten_int;

  explicit Section(const std::vector<Plate> &plates) {
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

  Section(float B, float H) {
    trvmxt_fb(B, H, A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp,
              yp, It, Wt, xm, ym, Iw, r0, W1.data(), W2.data(), status);
  }
};

std::vector<Plate> i_section(float h, float b, float tw, float tf) {
  const float y = 0.5F * (h - tf);
  return {{0, -y, 0, y, tw},
          {0, y, -0.5F * b, y, tf},
          {0, y, 0.5F * b, y, tf},
          {0, -y, -0.5F * b, -y, tf},
          {0, -y, 0.5F * b, -y, tf}};
}

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

TEST(ThinWalled, WarpingConstantsArePublished) {
  // Hot-rolled sections to EN 10365: h, b, tw, tf in mm, Iw in 1000 cm6.
  for (const auto &[h, b, tw, tf, published] :
       {std::array{300.F, 150.F, 7.1F, 10.7F, 125.9F}, {200.F, 200.F, 9.F, 15.F, 171.1F}}) {
    const Section s(i_section(h, b, tw, tf));
    EXPECT_EQ(s.status, 0);
    EXPECT_NEAR(s.Iw / 1e9, published, 0.05);
    expect_near({s.xm, s.ym, s.alpha}, {0, 0, 0}, 1e-4);
  }
}

TEST(ThinWalled, PlatesAlongTheAxesAddUpByHand) {
  // A T: flange 100 x 10 over a web 8 x 60, the joint at the origin.
  const Section s({{-50, 0, 0, 0, 10}, {0, 0, 50, 0, 10}, {0, 0, 0, -60, 8}});
  const double a = 1000 + 480, ys = -480 * 30 / a;
  const double ix =
      100 * 1000 / 12.0 + 1000 * ys * ys + 8 * 216000 / 12.0 + 480 * (30 + ys) * (30 + ys);
  const double iy = 10 * 1e6 / 12 + 60 * 512 / 12.0;
  expect_near({s.A, s.xs, s.ys, s.Ix, s.Iy, s.Ixy}, {a, 0, ys, ix, iy, 0}, 1e-6);
  expect_near({s.Wx1, s.Wx2, s.Wy1, s.Wy2}, {ix / (5 - ys), ix / (ys + 60), iy / 50, iy / 50},
              1e-6);
  // Half of the area is above y = -240/108: 500 of the flange, and 108 a unit with the web.
  const double yp = -240 / 108.0;
  const auto square = [](double value) { return value * value; };
  const double plastic =
      (100 * square(5 - yp) + 8 * square(yp) + 100 * square(5 + yp) + 8 * square(60 + yp)) / 2;
  expect_near({s.yp, s.Wpx}, {yp, plastic}, 1e-6);
  expect_near(
      {s.xp, s.Wpy, s.It, s.Wt},
      {0, 10 * 2500 + 60 * 16, (100 * 1000 + 60 * 512) / 3.0, (100 * 1000 + 60 * 512) / 30.0},
      1e-6);
  expect_near({s.xm, s.ym, s.Iw}, {0, 0, 0}, 1e-3);  // where the plates meet
  EXPECT_NEAR(s.r0, std::sqrt((ix + iy) / a + ys * ys), 1e-4);
}

TEST(ThinWalled, ChannelsAgreeWithTheirClosedForms) {
  for (const auto &[B, H, C, t] :
       {std::array{51.F, 101.F, 0.F, 1.F}, {80.F, 200.F, 25.F, 2.F}, {120.F, 90.F, 30.F, 3.F}}) {
    const Section s(channel(B, H, C, t));
    expect_near({s.xs - s.xm, s.ym, s.Iw},
                {outputs(trvshc_c, B, H, C, t)[0], 0, outputs(trvwar_c, B, H, C, t)[0]}, 2e-5);
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
  for (const Plate &last : {Plate{48, -49, 48, 49, 2}, Plate{20, 20, 30, 20, 2}}) {
    const Section s = with(last);  // closes a cell; hangs loose
    EXPECT_EQ(s.status, 4);
    EXPECT_TRUE(s.yp != unwritten && s.It == unwritten && s.Iw == unwritten &&
                s.W1[0] == unwritten && s.r0 == unwritten);
  }
  for (const Plate &last : {Plate{48, 49, 48, 49, 2}, Plate{48, 49, 60, 49, tolerance}}) {
    const Section s = with(last);
    EXPECT_EQ(s.status, -1);
    EXPECT_TRUE(s.A == unwritten && s.yp == unwritten && s.W1[0] == unwritten);
  }
  EXPECT_EQ(Section({}).status, -1);
}

TEST(ThinWalled, FlatBarsTwistAsTabulated) {
  // S. Timoshenko, J. N. Goodier, Theory of elasticity, torsion of rectangles: It / (b t^3) and
  // Wt / (b t^2) by b/t.
  for (const auto &[ratio, torsion, modulus] : {std::array{1.F, 0.1406F, 0.208F},
                                                {2.F, 0.229F, 0.246F},
                                                {4.F, 0.281F, 0.282F},
                                                {10.F, 0.312F, 0.312F}}) {
    const Section upright(3, 3 * ratio);
    const Section flat(3 * ratio, 3);
    EXPECT_NEAR(upright.It / (81 * ratio), torsion, 6e-4);
    EXPECT_NEAR(upright.Wt / (27 * ratio), modulus, 6e-4);
    EXPECT_TRUE(upright.It == flat.It && upright.Wt == flat.Wt && upright.Ix == flat.Iy);
  }
  const Section bar(6, 12);
  expect_near({bar.A, bar.Ix, bar.Iy, bar.Wx1, bar.Wy2, bar.Wpx, bar.Wpy, bar.Iw, bar.r0},
              {72, 864, 216, 144, 72, 216, 108, 2592, std::sqrt(15.0)}, 1e-6);
  EXPECT_EQ(Section(tolerance, 3).status, -1);
}
