#include <random>

#include "lists/odd_lists.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

namespace {

struct Outline {
  Reals x, y;
};

struct Crossings {
  Reals x, y, t;
  Integers edge;
  std::int32_t status;
};

Crossings cross(const Outline &o, float x1, float y1, float x2, float y2) {
  float x[60], y[60], t[60];
  std::int32_t edge[60];
  std::int32_t count = kept;
  std::int32_t status = kept;
  trvpin(o.x.data(), o.y.data(), size_of(o.x), x1, y1, x2, y2, count, x, y, t, edge, status);
  EXPECT_GE(count, 0);
  return {{x, x + count}, {y, y + count}, {t, t + count}, {edge, edge + count}, status};
}

Reals cross(const Outline &o, float y0) {
  float x[60];
  std::int32_t count = kept;
  trvppp(o.x.data(), o.y.data(), size_of(o.x), y0, count, x);
  return {x, x + count};
}

const Outline triangle = {{1, 7, 4}, {2, 4, 8}};

// A W: two peaks at y = 4, a valley at (4, 1).
const Outline w = {{0, 8, 7, 4, 1}, {0, 0, 4, 1, 4}};

}  // namespace

TEST(Crossings, HorizontalLinesBoundTheInside) {
  EXPECT_EQ(cross(w, 2), (Reals{0.5F, 3, 5, 7.5F}));
  EXPECT_EQ(cross(w, 0), (Reals{0, 8}));  // the lower ends count
  EXPECT_EQ(cross(w, 1), (Reals{0.25F, 4, 4, 7.75F}));
  EXPECT_EQ(cross(w, 4), Reals{});  // the upper ends do not
  EXPECT_EQ(cross({{0, 1}, {0, 1}}, 0.5F), Reals{});
  EXPECT_EQ(cross(triangle, 2), (Reals{1, 1}));  // on the first vertex
  EXPECT_EQ(cross(triangle, 4), (Reals{2, 7}));
}

TEST(Crossings, SegmentsMeetEachPassageOnce) {
  const Crossings level = cross(w, 9, 2, -1, 2);
  EXPECT_EQ(level.x, (Reals{7.5F, 5, 3, 0.5F}));
  EXPECT_EQ(level.y, (Reals{2, 2, 2, 2}));
  EXPECT_EQ(level.t, (Reals{0.15F, 0.4F, 0.6F, 0.85F}));
  EXPECT_EQ(level.edge, (Integers{2, 3, 4, 5}));
  EXPECT_EQ(level.status, TRVPIN_OUTSIDE);
  const Crossings from_inside = cross(w, 1, 2, 4, 2);
  EXPECT_EQ(from_inside.x, Reals{3});
  EXPECT_EQ(from_inside.status, TRVPIN_INSIDE);

  EXPECT_EQ(cross(w, -1, 1, 9, 1).x, (Reals{0.25F, 7.75F}));  // touches the valley from below
  EXPECT_EQ(cross(w, -1, 4, 9, 4).x, Reals{});                // touches both peaks
  EXPECT_EQ(cross(w, 4, 0.5F, 4, 9).x.size(), 1U);            // passes through the valley's vertex
  EXPECT_EQ(cross(w, -1, 0, 9, 0).x, Reals{});                // runs along an edge
  EXPECT_EQ(cross(triangle, 4, 10, 4, 0).y, (Reals{8, 3}));   // from the last vertex
}

TEST(Crossings, SegmentsThatAreNoneAreRefused) {
  for (const Crossings &refused :
       {cross(w, 3, 3, 3.000005F, 3), cross({{0, 1}, {0, 1}}, 0, 0, 5, 5)}) {
    EXPECT_EQ(refused.status, TRVPIN_REFUSED);
    EXPECT_TRUE(refused.x.empty());
  }
  EXPECT_EQ(cross(w, 1, 2, 1.00002F, 2).status, 1);
}

// To every whole point on the sides of a square from every one around and in it, and back.
TEST(Crossings, SegmentsThatEndOnASideCrossItOnce) {
  const Outline square = {{-3, 4, 4, -3}, {-2, -2, 5, 5}};
  for (int i = 0; i < 64 * 400; ++i) {
    const int px = i % 8 - 3, py = i / 8 % 8 - 2, qx = i / 64 % 20 - 9, qy = i / 1280 - 8;
    const bool on_upright = (px == -3 || px == 4) && py > -2 && py < 5;
    const bool on_level = (py == -2 || py == 5) && px > -3 && px < 4;
    // What lies beyond a corner, seen from the side, crosses twice.
    const bool inside = qx > -3 && qx < 4 && qy > -2 && qy < 5;
    const bool outside = on_upright ? (px < 0 ? qx < px : qx > px) : (py < 0 ? qy < py : qy > py);
    if (!(on_upright || on_level) || !(inside || outside)) continue;
    const auto x1 = static_cast<float>(px), y1 = static_cast<float>(py);
    const auto x2 = static_cast<float>(qx), y2 = static_cast<float>(qy);
    const Crossings to = cross(square, x2, y2, x1, y1), from = cross(square, x1, y1, x2, y2);
    ASSERT_TRUE(to.t == Reals{1} && to.x == Reals{x1} && to.y == Reals{y1}) << i;
    ASSERT_TRUE(from.t == Reals{0} && from.x == Reals{x1} && from.y == Reals{y1}) << i;
  }
  const Outline tall = {{-894, 411, 411, -894}, {-836, -836, 634, 634}};
  EXPECT_EQ(cross(tall, -920, -99, -894, -360).edge, Integers{4});
}

TEST(Crossings, PlacesStayOnASegmentThatIsShortForItsEdge) {
  // The long edge passes so near the origin that its place, rounded, is off the segment.
  const Outline o = {{4.395e7F, -0.0225123949F, -1}, {6.029e7F, -0.0308821909F, 9}};
  EXPECT_EQ(cross(o, 3e-4F, 1e-4F, 0, 0).t, Reals{1});
  EXPECT_EQ(cross(o, 0, 0, 3e-4F, 1e-4F).t, Reals{0});
}

TEST(Crossings, OnTheOutlineThePointNextToTheRightIsInside) {
  const Outline square = {{-3, 4, 4, -3}, {-2, -2, 5, 5}};
  EXPECT_EQ(cross(square, -3, 1, 9, 1).status, 1);
  EXPECT_EQ(cross(square, 4, 1, 9, 1).status, 0);
  EXPECT_EQ(cross(square, 1, -2, 9, 1).status, 1);
  EXPECT_EQ(cross(square, 1, 5, 9, 1).status, 0);
}

TEST(Crossings, ARunAlongTheSegmentCrossesWhereItIsFirstMet) {
  // Up through y = 0 by way of the stretch from x = 3 to x = 6, down at x = 9.
  const Outline step = {{3, 3, 6, 6, 9, 9}, {-4, 0, 0, 3, 3, -4}};
  const Outline back = {{9, 9, 6, 6, 3, 3}, {-4, 3, 3, 0, 0, -4}};
  for (const Outline &outline : {step, back}) {
    EXPECT_EQ(cross(outline, 0, 0, 10, 0).x, (Reals{3, 9}));
    EXPECT_EQ(cross(outline, 10, 0, 0, 0).x, (Reals{9, 6}));
    EXPECT_EQ(cross(outline, 4, 0, 14, 0).x, (Reals{4, 9}));
    EXPECT_EQ(cross(outline, 7, 0, 8, 0).x, Reals{});
  }
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
