#include "support.h"
#include "trelvin/properties.h"

using namespace trelvin_test;

namespace {

using Reals = std::vector<float>;

// Area, sx, sy, ix, iy, ixy.
Values properties(const Reals &x, const Reals &y) {
  const auto call = [&](auto routine, auto &...results) {
    Reals px = x, py = y;  // with the spare element, which is the library's
    px.push_back(kept);
    py.push_back(kept);
    routine(px.data(), py.data(), static_cast<std::int32_t>(x.size()), results...);
  };
  Reals r(6, kept);
  call(trvapl, r[0]);
  call(trvspl, r[1], r[2]);
  call(trvipl, r[3], r[4], r[5]);
  return {r.begin(), r.end()};
}

}  // namespace

TEST(Polygons, ClockwiseIsNegative) {
  // A right triangle, its centroid at (7/3, 3).
  EXPECT_EQ(properties({1, 1, 5}, {2, 5, 2}), (Values{-6, -18, -14, -57, -38, -40}));
}

TEST(Polygons, NothingWithoutThreeVertices) {
  for (const Reals &x : {Reals{}, Reals{3}, Reals{3, 5}})
    EXPECT_EQ(properties(x, x), (Values{0, 0, 0, 0, 0, 0}));
}

TEST(Polygons, ManyVertices) {
  for (const int n : {15, 16, 17, 100}) {
    Reals x, y;
    for (int i = 0; i < n; ++i) {
      x.push_back(static_cast<float>(3 + 2 * std::cos(2 * pi * i / n)));
      y.push_back(static_cast<float>(-1 + 2 * std::sin(2 * pi * i / n)));
    }
    // n triangles with their tips at the centre (3, -1).
    const double half_base = 2 * std::sin(pi / n), height = 2 * std::cos(pi / n);
    const double area = n * half_base * height;
    const double own = area / 4 * (height * height + half_base * half_base / 3);
    expect_near(properties(x, y), {area, -area, 3 * area, own + area, own + 9 * area, -3 * area},
                1e-6);
  }
}
