#include <array>
#include <cstdlib>
#include <cstring>

#include "support.h"
#include "trelvin/properties.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

namespace {

using Bits = std::uint32_t;
using Plate = std::array<double, 4>;   // width, height, x and y of the centre
using Vertex = std::array<double, 3>;  // position, x, y

Bits bits(const float &value) {
  Bits word = 0;
  std::memcpy(&word, &value, sizeof word);
  return word;
}

struct Profile {
  std::int32_t np = 0, nv[4] = {}, code[4] = {};
  float x[24] = {}, y[24] = {}, real[8][4] = {};  // sign, z1 ... z5, q1, q2

  template <class Routine, class... Inputs>
  explicit Profile(Routine routine, const Inputs &...inputs) {
    routine(inputs..., np, nv, x, y, code, real[0], real[1], real[2], real[3], real[4], real[5],
            real[6], real[7]);
  }

  // Polygons are given by their numbers of vertices, negative for holes; plates add up to them.
  void expect(const std::vector<int> &polygons, Bits q, const std::vector<Plate> &plates,
              const std::vector<Vertex> &vertices) const {
    const std::size_t n = polygons.size();
    ASSERT_EQ(np, static_cast<std::int32_t>(n));
    Values sums(6), by_hand(6);
    std::size_t first = 0;
    for (std::size_t p = 0; p < n; ++p) {
      const bool hole = polygons[p] < 0;
      EXPECT_TRUE(nv[p] == std::abs(polygons[p]) && code[p] == 2);
      EXPECT_EQ(real[0][p], hole ? -1 : 1);
      for (int z = 1; z <= 5; ++z) EXPECT_EQ(bits(real[z][p]), 0U);
      for (int i : {6, 7}) EXPECT_EQ(bits(real[i][p]), hole ? q ^ 0x80000000U : q);

      std::vector<float> px(x + first, x + 24), py(y + first, y + 24);
      float r[6] = {};
      trvapl(px.data(), py.data(), nv[p], r[0]);
      trvspl(px.data(), py.data(), nv[p], r[1], r[2]);
      trvipl(px.data(), py.data(), nv[p], r[3], r[4], r[5]);
      EXPECT_GT(r[0], 0);  // counter-clockwise
      for (std::size_t i = 0; i < 6; ++i) sums[i] += hole ? -r[i] : r[i];
      first += static_cast<std::size_t>(nv[p]);
    }
    for (const auto &[b, h, xs, ys] : plates) {
      const double a = b * h, ix = a * (h * h / 12 + ys * ys), iy = a * (b * b / 12 + xs * xs);
      const double part[] = {a, a * ys, a * xs, ix, iy, a * xs * ys};
      for (std::size_t i = 0; i < 6; ++i) by_hand[i] += part[i];
    }
    expect_near(sums, by_hand, 1e-6);
    for (const auto &[position, vx, vy] : vertices) {
      const auto i = static_cast<std::size_t>(position) - 1;
      EXPECT_TRUE(x[i] == vx && y[i] == vy) << position;
    }
  }
};

const float q = 7.5F;

}  // namespace

TEST(Profiles, OpenSections) {
  Profile(trvsec_ia, 100.F, 60.F, 40.F, 10.F, 8.F, 6.F, q)
      .expect({12}, bits(q), {{60, 10, 0, -45}, {6, 82, 0, 1}, {40, 8, 0, 46}},
              {{1, -20, 50}, {5, -30, -40}});
  Profile(trvsec_h, 100.F, 60.F, 40.F, 10.F, 8.F, 6.F, -q)
      .expect({12}, bits(-q), {{10, 60, -45, 0}, {82, 6, 1, 0}, {8, 40, 46, 0}},
              {{1, -50, 30}, {6, 42, -20}});
  Profile(trvsec_t, 40.F, 100.F, 8.F, 6.F, q)
      .expect({8}, bits(q), {{40, 8, 0, 46}, {6, 92, 0, -4}}, {{1, -20, 50}, {4, -3, -50}});
}

TEST(Profiles, FlatBarTellsTwelveVerticesAndWritesFour) {
  Profile bar(trvsec_b, 101, 10.F, q);
  EXPECT_EQ(bar.nv[0], 12);
  bar.nv[0] = 4;
  bar.expect({4}, bits(q), {{101, 10, 0, 0}}, {{1, -50.5, 5}});
}

TEST(Profiles, ClosedSections) {
  Profile(trvsec_h1b, 120.F, 100.F, 60.F, 10.F, 8.F, 6.F, 4.F, q)
      .expect({12, -4}, bits(q),
              {{120, 4, 0, 30}, {10, 60, -45, -2}, {8, 60, 46, -2}, {82, 6, 1, -2}},
              {{1, -60, 32}, {13, -40, 28}});
  Profile(trvsec_box, 120.F, 100.F, 10.F, 8.F, 90.F, 6.F, 60.F, 0.F)
      .expect({12, -4}, bits(0),
              {{120, 10, 0, 40}, {100, 8, 0, -41}, {6, 72, -33, -1}, {6, 72, 33, -1}},
              {{1, -60, 45}, {13, -30, 35}});
  Profile(trvsec_rhs, 80.F, 120.F, 5.F, -0.F)
      .expect({4, -4}, bits(-0.F),
              {{80, 5, 0, 57.5}, {80, 5, 0, -57.5}, {5, 110, -37.5, 0}, {5, 110, 37.5, 0}},
              {{1, -40, 60}, {5, -35, 55}});
  Profile(trvsec_tab, 120.F, 80.F, 100.F, 14.F, 10.F, 6.F, 8.F, q)
      .expect({12, -4}, bits(q),
              {{120, 10, 0, 40}, {6, 80, -47, -5}, {6, 80, 47, -5}, {88, 8, 0, -27}},
              {{1, -60, 45}, {13, -44, 35}});
}

TEST(Profiles, BitsOfQAreHandedOn) {
  const Bits word = 0xFFC12345;  // a NaN with a payload
  float payload = 0;
  std::memcpy(&payload, &word, sizeof payload);
  Profile(trvsec_l2, 80.F, 100.F, 10.F, 12.F, 8.F, payload)
      .expect({6, 6}, word, {{80, 12, -45, 44}, {8, 88, -9, -6}, {80, 12, 45, 44}, {8, 88, 9, -6}},
              {{1, -85, 50}, {4, -13, -50}, {7, 5, 50}, {10, 13, 38}});
  Profile(trvsec_h2b, 120.F, 100.F, 80.F, 6.F, 8.F, 4.F, 10.F, payload)
      .expect(
          {12, -4, -4}, word,
          {{120, 10, 0, 45}, {120, 10, 0, -45}, {6, 80, -47, 0}, {8, 80, 46, 0}, {86, 4, -1, 0}},
          {{1, -60, 50}, {13, -44, 40}, {17, -44, -2}});
}

TEST(Profiles, ISectionWithAMovedWebAndFillets) {
  Profile(trvsec_i, 100.F, 60.F, 40.F, 10.F, 8.F, 6.F, 0.F, 0.F, 3.F, q)
      .expect({16}, bits(q), {{60, 10, 0, -45}, {6, 82, 3, 1}, {40, 8, 0, 46}}, {{1, -20, 50}});
  Profile filleted(trvsec_i, 100.F, 60.F, 40.F, 10.F, 8.F, 6.F, 4.F, 2.F, 3.F, q);
  float area = 0;
  trvapl(filleted.x, filleted.y, filleted.nv[0], area);
  EXPECT_EQ(area, 600 + 492 + 320 + 4 * 4 + 2 * 2);
  EXPECT_TRUE(filleted.x[10] == 10 && filleted.x[13] == 8 && filleted.y[4] == -36);
}

TEST(Profiles, ChannelsWithLipsAndFolds) {
  const auto channel = [](float fold) {
    return Profile(trvsec_c, 200.F, 80.F, 60.F, 25.F, 20.F, fold, 10.F, 3.F, 4.F, 5.F, 2.F, 2.5F,
                   1.5F, 2.F, q);
  };
  std::vector<Plate> plates = {{3, 191, -38.5, -0.5}, {80, 4, 0, -98},        {60, 5, -10, 97.5},
                               {2, 21, 39, -85.5},    {2.5, 15, 18.75, 87.5}, {7.5, 2, 13.75, 81}};
  // A fold as long as its lip is thick is none, nor is a lip as long as its flange is thick.
  channel(2).expect({16}, bits(q), plates, {{5, 38, -75}});
  plates.push_back({10, 1.5, 33, -75.75});
  channel(12).expect({16}, bits(q), plates, {{1, -40, -100}, {3, 40, -75}, {9, -37, 95}});
  Profile(trvsec_c, 200.F, 60.F, 80.F, 4.F, 0.F, 12.F, 10.F, 3.F, 4.F, 5.F, 2.F, 2.5F, 1.5F, 2.F, q)
      .expect({16}, bits(q), {{3, 191, -38.5, -0.5}, {60, 4, -10, -98}, {80, 5, 0, 97.5}}, {});
}
