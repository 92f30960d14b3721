// With inexact kernels, the fastest CGAL has.
#include <CGAL/Polygon_2.h>
#include <CGAL/Simple_cartesian.h>
#include <CGAL/intersections.h>

#include <array>

#include "../peers.h"

namespace bench {
namespace {

using Doubles = CGAL::Simple_cartesian<double>;

Contender area_of(const Outline &outline) {
  CGAL::Polygon_2<Doubles> polygon;
  for (std::size_t i = 0; i + 1 < outline.x.size(); ++i) {
    polygon.push_back({outline.x[i], outline.y[i]});
  }
  return evaluated("CGAL", polygon, [](const auto &p) { return std::array{p.area()}; });
}

template <class Kernel>
struct Intersections {
  using Line = typename Kernel::Line_3;
  using Plane = typename Kernel::Plane_3;
  using Point = typename Kernel::Point_3;
  using Vector = typename Kernel::Vector_3;

  explicit Intersections(const LinesAndPlanes &data) : points(data.size()) {
    for (std::size_t i = 0; i < data.size(); ++i) {
      const float *v = data.at(i);
      lines.emplace_back(Point(v[0], v[1], v[2]), Vector(v[3], v[4], v[5]));
      planes.emplace_back(v[6], v[7], v[8], v[9]);
    }
  }
  void run() {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const auto common = CGAL::intersection(lines[i], planes[i]);
      if (!common) continue;
      if (const Point *point = boost::get<Point>(&*common)) points[i] = *point;
    }
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    for (const Point &p : points) {
      for (int k = 0; k < 3; ++k) all.push_back(static_cast<double>(p[k]));
    }
    return all;
  }
  std::vector<Line> lines;
  std::vector<Plane> planes;
  std::vector<Point> points;
};

}  // namespace

void add_cgal(Peers &peers) {
  peers.area.emplace_back(area_of);
  peers.intersect.emplace_back([](const LinesAndPlanes &data) {
    return contender("CGAL double", Intersections<Doubles>(data));
  });
  peers.intersect.emplace_back([](const LinesAndPlanes &data) {
    return contender("CGAL float", Intersections<CGAL::Simple_cartesian<float>>(data));
  });
}

}  // namespace bench
