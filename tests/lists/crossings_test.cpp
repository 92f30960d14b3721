#include <random>

#include "support.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

namespace {

struct Outline {
  std::vector<float> x, y;
  [[nodiscard]] std::int32_t n() const { return static_cast<std::int32_t>(x.size()); }
};

struct Crossings {
  std::vector<float> x, y, t;
  std::vector<std::int32_t> edge;
  std::int32_t status;
};

Crossings cross(const Outline &o, float x1, float y1, float x2, float y2) {
  float x[60], y[60], t[60];
  std::int32_t edge[60];
  std::int32_t count = unwritten_int;
  std::int32_t status = unwritten_int;
  trvpin(o.x.data(), o.y.data(), o.n(), x1, y1, x2, y2, count, x, y, t, edge, status);
  return {{x, x + count}, {y, y + count}, {t, t + count}, {edge, edge + count}, status};
}

std::vector<float> cross(const Outline &o, float y0) {
  float x[60];
  std::int32_t count = unwritten_int;
  trvppp(o.x.data(), o.y.data(), o.n(), y0, count, x);
  return {x, x + count};
}

using Reals = std::vector<float>;
using Integers = std::vector<std::int32_t>;

// A W: two peaks at y = 4, a valley at (4, 1).
const Outline w = {{0, 8, 7, 4, 1}, {0, 0, 4, 1, 4}};

}  // namespace

TEST(Crossings, HorizontalLinesBoundTheInside) {
  EXPECT_EQ(cross(w, 2), (Reals{0.5F, 3, 5, 7.5F}));
  EXPECT_EQ(cross(w, 0), (Reals{0, 8}));  // the lower ends count
  EXPECT_EQ(cross(w, 1), (Reals{0.25F, 4, 4, 7.75F}));
  EXPECT_EQ(cross(w, 4), Reals{});  // the upper ends do not
  EXPECT_EQ(cross({{0, 1}, {0, 1}}, 0.5F), Reals{});
}

TEST(Crossings, SegmentsMeetEachPassageOnce) {
  const Crossings level = cross(w, 9, 2, -1, 2);
  EXPECT_EQ(level.x, (Reals{7.5F, 5, 3, 0.5F}));
  EXPECT_EQ(level.t, (Reals{0.15F, 0.4F, 0.6F, 0.85F}));
  EXPECT_EQ(level.edge, (Integers{2, 3, 4, 5}));
  EXPECT_EQ(level.status, 0);
  const Crossings from_inside = cross(w, 1, 2, 4, 2);
  EXPECT_EQ(from_inside.x, Reals{3});
  EXPECT_EQ(from_inside.status, 1);

  EXPECT_EQ(cross(w, -1, 1, 9, 1).x, (Reals{0.25F, 7.75F}));  // touches the valley from below
  EXPECT_EQ(cross(w, -1, 4, 9, 4).x, Reals{});                // touches both peaks
  EXPECT_EQ(cross(w, 4, 0.5F, 4, 9).x.size(), 1U);            // passes through the valley's vertex
  EXPECT_EQ(cross(w, -1, 0, 9, 0).x, Reals{});                // runs along an edge
  EXPECT_EQ(cross(w, 3, 3, 3.000005F, 3).status, -1);
  EXPECT_EQ(cross({{0, 1}, {0, 1}}, 0, 0, 5, 5).status, -1);
}

TEST(Crossings, PassagesAlternateBetweenInsideAndOutside) {
  std::mt19937 random(3);
  std::uniform_int_distribution<int> draw(-5, 5);  // whole: vertices fall on the segment's line
  const auto coordinate = [&] { return static_cast<float>(draw(random)); };
  int crossed = 0;
  for (int trial = 0; trial < 2000; ++trial) {
    Outline o;
    for (int i = 0; i < 7; ++i) {
      o.x.push_back(coordinate() * 3);
      o.y.push_back(coordinate() * 3);
    }
    // Ends off the outline: no vertex or edge of whole coordinates passes through thirds like
    // these.
    const float x1 = coordinate() + 0.31F, y1 = coordinate() + 0.17F;
    const float x2 = coordinate() + 0.23F, y2 = coordinate() + 0.41F;
    const Crossings there = cross(o, x1, y1, x2, y2);
    const Crossings back = cross(o, x2, y2, x1, y1);
    EXPECT_TRUE(std::is_sorted(there.t.begin(), there.t.end()));
    EXPECT_EQ(there.x.size(), back.x.size());
    EXPECT_EQ((there.status + static_cast<int>(there.x.size())) % 2, back.status);
    crossed += static_cast<int>(there.x.size());
  }
  EXPECT_GT(crossed, 1000);
}
