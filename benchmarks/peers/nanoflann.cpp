// A k-d tree built for every call, as the routine builds what it needs.
#include <nanoflann.hpp>

#include "../peers.h"

namespace bench {
namespace {

struct Points {
  const Cloud &cloud;
  [[nodiscard]] std::size_t kdtree_get_point_count() const { return cloud.size(); }
  [[nodiscard]] float kdtree_get_pt(std::size_t i, std::size_t axis) const {
    return axis == 0 ? cloud.x[i] : axis == 1 ? cloud.y[i] : cloud.z[i];
  }
  template <class Box>
  bool kdtree_get_bbox(Box & /*box*/) const {
    return false;
  }
};

using Metric = nanoflann::L2_Simple_Adaptor<float, Points>;
using Tree = nanoflann::KDTreeSingleIndexAdaptor<Metric, Points, 3>;

// The tree knows balls: that about the cube is searched, and its few points are compared.
void match(Match &m) {
  const Cloud &a = m.a, &b = m.b;
  const float tol = m.tol;
  const Points points{b};
  const Tree tree(3, points, nanoflann::KDTreeSingleIndexAdaptorParams(10));
  const float squared_radius = 3.001F * tol * tol;
  std::vector<std::pair<std::uint32_t, float>> near;
  m.pairs = 0;
  const nanoflann::SearchParams unsorted(32, 0, false);
  for (std::size_t i = 0; i < a.size(); ++i) {
    const float p[3] = {a.x[i], a.y[i], a.z[i]};
    near.clear();
    tree.radiusSearch(p, squared_radius, near, unsorted);
    for (const auto &[j, distance] : near) {
      if (std::fabs(p[0] - b.x[j]) <= tol && std::fabs(p[1] - b.y[j]) <= tol &&
          std::fabs(p[2] - b.z[j]) <= tol) {
        m.ia[m.pairs] = static_cast<std::int32_t>(i + 1);
        m.ib[m.pairs++] = static_cast<std::int32_t>(j + 1);
      }
    }
  }
}

}  // namespace

void add_nanoflann(Peers &peers) { peers.match.push_back({"nanoflann", match}); }

}  // namespace bench
