#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/ring.hpp>
#include <boost/geometry/index/rtree.hpp>

#include "../peers.h"

namespace bench {
namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

// Rings of double points: the sums then run in double precision, as those of the routines do, and
// no coordinate is converted on the way.
using Point = bg::model::d2::point_xy<double>;
using Ring = bg::model::ring<Point, false, true>;  // counter-clockwise, closed

Ring ring_of(const Outline &outline) {
  Ring ring;
  for (std::size_t i = 0; i < outline.x.size(); ++i) ring.emplace_back(outline.x[i], outline.y[i]);
  return ring;
}

struct Area : Job {
  explicit Area(const Outline &outline) : ring(ring_of(outline)) {}
  void run() { area = bg::area(ring); }
  [[nodiscard]] std::vector<double> answer() const { return {area}; }
  Ring ring;
  double area = 0;
};

struct AreaAndCentroid : Area {
  using Area::Area;
  void run() {
    Area::run();
    bg::centroid(ring, centroid);
  }
  [[nodiscard]] std::vector<double> answer() const { return {area, centroid.x(), centroid.y()}; }
  Point centroid{0, 0};
};

using SpacePoint = bg::model::point<float, 3, bg::cs::cartesian>;
using Box = bg::model::box<SpacePoint>;
using Entry = std::pair<SpacePoint, std::int32_t>;
using Tree = bgi::rtree<Entry, bgi::linear<16>>;

// The tree is made from all points at once, which packs it: faster to build and to search than one
// that grows point by point.
std::size_t match(const Cloud &a, const Cloud &b, float tol, Integers &ia, Integers &ib) {
  std::vector<Entry> entries;
  entries.reserve(b.size());
  for (std::size_t j = 0; j < b.size(); ++j) {
    entries.emplace_back(SpacePoint(b.x[j], b.y[j], b.z[j]), static_cast<std::int32_t>(j + 1));
  }
  const Tree tree(entries);
  std::vector<Entry> found;
  std::size_t pairs = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const Box box(SpacePoint(a.x[i] - tol, a.y[i] - tol, a.z[i] - tol),
                  SpacePoint(a.x[i] + tol, a.y[i] + tol, a.z[i] + tol));
    found.clear();
    tree.query(bgi::intersects(box), std::back_inserter(found));
    for (const Entry &entry : found) {
      ia[pairs] = static_cast<std::int32_t>(i + 1);
      ib[pairs++] = entry.second;
    }
  }
  return pairs;
}

}  // namespace

void add_boost(Peers &peers) {
  peers.match.push_back({"Boost R-tree", match});
  peers.area.emplace_back([](const Outline &o) { return contender("Boost.Geometry", Area(o)); });
  peers.area_and_centroid.emplace_back(
      [](const Outline &o) { return contender("Boost.Geometry", AreaAndCentroid(o)); });
}

}  // namespace bench
