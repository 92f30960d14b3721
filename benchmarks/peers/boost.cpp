#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/ring.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <array>

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

std::array<double, 1> area(const Ring &ring) { return {bg::area(ring)}; }

std::array<double, 3> area_and_centroid(const Ring &ring) {
  Point centroid(0, 0);
  bg::centroid(ring, centroid);
  return {bg::area(ring), centroid.x(), centroid.y()};
}

using SpacePoint = bg::model::point<float, 3, bg::cs::cartesian>;
using Box = bg::model::box<SpacePoint>;
using Entry = std::pair<SpacePoint, std::int32_t>;
using Tree = bgi::rtree<Entry, bgi::linear<16>>;

// The tree is made from all points at once, which packs it: faster to build and to search than one
// that grows point by point.
void match(Match &m) {
  const Cloud &a = m.a, &b = m.b;
  const float tol = m.tol;
  std::vector<Entry> entries;
  entries.reserve(b.size());
  for (std::size_t j = 0; j < b.size(); ++j) {
    entries.emplace_back(SpacePoint(b.x[j], b.y[j], b.z[j]), static_cast<std::int32_t>(j + 1));
  }
  const Tree tree(entries);
  std::vector<Entry> found;
  m.pairs = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const Box box(SpacePoint(a.x[i] - tol, a.y[i] - tol, a.z[i] - tol),
                  SpacePoint(a.x[i] + tol, a.y[i] + tol, a.z[i] + tol));
    found.clear();
    tree.query(bgi::intersects(box), std::back_inserter(found));
    for (const Entry &entry : found) {
      m.ia[m.pairs] = static_cast<std::int32_t>(i + 1);
      m.ib[m.pairs++] = entry.second;
    }
  }
}

}  // namespace

void add_boost(Peers &peers) {
  peers.match.push_back({"Boost R-tree", match});
  const auto maker = [](auto function) {
    return
        [function](const Outline &o) { return evaluated("Boost.Geometry", ring_of(o), function); };
  };
  peers.area.emplace_back(maker(area));
  peers.area_and_centroid.emplace_back(maker(area_and_centroid));
}

}  // namespace bench
