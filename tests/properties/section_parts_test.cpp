#include <array>

#include "support.h"
#include "trelvin/properties.h"

using namespace trelvin_test;

namespace {

struct Part {
  std::array<float, 5> x, y;
  std::int32_t n, kind;
  float value = 0, angle = 0;
};

// Area, sx, sy, ix, iy, ixy, from what the outputs held before.
Values properties(Part p, float factor, std::array<float, 6> r) {
  trvair(p.x.data(), p.y.data(), p.n, p.kind, p.value, factor, r[0]);
  trvstm(p.x.data(), p.y.data(), p.n, p.kind, p.value, factor, r[1], r[2]);
  trvinm(p.x.data(), p.y.data(), p.n, p.kind, p.value, p.angle, factor, r[3], r[4], r[5]);
  return {r.begin(), r.end()};
}

}  // namespace

TEST(SectionParts, EveryKind) {
  const double disc = 25 * pi, own = 625 * pi / 4;
  const double area = pi / 4 - 0.5, s = 1.0 / 6, i = pi / 16 - 1.0 / 12, rest = pi - area;
  const std::pair<Part, Values> cases[] = {
      {{{3}, {4}, 0, TRV_PART_CONCENTRATED, 2}, {2, 8, 6, 37, 24, 30}},
      {{{0, 4, 4, 0}, {0, 0, 3, 3}, 4, TRV_PART_POLYGON}, {12, 18, 24, 36, 64, 36}},
      {{{2, 5}, {-3, 1}, 0, TRV_PART_CIRCLE},
       {disc, -3 * disc, 2 * disc, own + 9 * disc, own + 4 * disc, -6 * disc}},
      {{{2, 2, 3}, {0, 1, 0}, 0, TRV_PART_SMALLER_SEGMENT},
       {area, s, s + 2 * area, i, i + 4 * s + 4 * area, s * (s / area + 2)}},
      {{{2, 3, 2}, {0, 0, 1}, 0, TRV_PART_LARGER_SEGMENT},  // the ends the other way round
       {rest, -s, 2 * rest - s, pi / 4 - i, pi / 4 - i - 4 * s + 4 * rest, s * (s / rest - 2)}},
      {{{3}, {4}, 0, 0, 2}, {9, 10, 11, 5, 6, 6}},
      {{{3}, {4}, 0, 6, 2}, {9, 10, 11, 5, 6, 6}},
  };
  for (const auto &[part, figures] : cases) {
    for (const float factor : {1.0F, -0.5F}) {
      Values expected = figures;
      for (double &value : expected) value *= factor;
      expect_near(properties(part, factor, {9, 10, 11, 5, 6, 6}), expected, 1e-6);
    }
  }
}

TEST(SectionParts, OwnMomentsTurnOneAfterTheOther) {
  // A twelfth of a turn: squares 3/4 and 1/4, doubled sine root(3)/2.
  const double t = std::sqrt(3) / 2, ix = 7 - 2 * t, iy = 3 + ix / 4 + 2 * t;
  const double ixy = ((ix - iy) / 2 + 2) * t;
  expect_near(properties({{3}, {4}, 0, 1, 2, static_cast<float>(pi / 6)}, -1, {0, 0, 0, 8, 4, 2}),
              {-2, -8, -6, -ix - 32, -iy - 18, -ixy - 24}, 1e-6);
  // Rotating ix = 2, iy = 1 by 90 degrees gives (1, 1), not (1, 2): iy is computed from the new ix.
  expect_near(properties({{}, {}, 0, 1, 0, half_pi}, 1, {0, 0, 0, 2, 1, 0}), {0, 0, 0, 1, 1, 0},
              1e-6);
  // The squared cosine of 2^100, from a table of many digits.
  EXPECT_NEAR(properties({{}, {}, 0, 1, 0, std::ldexp(1.0F, 100)}, 1, {0, 0, 0, 1, 0, 0})[3],
              0.23929575844, 1e-7);
}
