// Through the C interface, which is the one GEOS keeps stable.
#include <geos_c.h>

#include "../peers.h"

namespace bench {
namespace {

using Handle = std::shared_ptr<GEOSContextHandle_HS>;
using Geometry = std::shared_ptr<GEOSGeometry>;

struct Polygon : Job {
  explicit Polygon(const Outline &outline)
      : handle(GEOS_init_r(), [](GEOSContextHandle_t h) { GEOS_finish_r(h); }) {
    const auto n = static_cast<unsigned>(outline.x.size());
    GEOSCoordSequence *const points = GEOSCoordSeq_create_r(handle.get(), n, 2);
    for (unsigned i = 0; i < n; ++i) {
      GEOSCoordSeq_setXY_r(handle.get(), points, i, outline.x[i], outline.y[i]);
    }
    polygon = owned(GEOSGeom_createPolygon_r(
        handle.get(), GEOSGeom_createLinearRing_r(handle.get(), points), nullptr, 0));
  }
  [[nodiscard]] Geometry owned(GEOSGeometry *geometry) const {
    return {geometry, [h = handle](GEOSGeometry *g) { GEOSGeom_destroy_r(h.get(), g); }};
  }
  void run() { GEOSArea_r(handle.get(), polygon.get(), &area); }
  [[nodiscard]] std::vector<double> answer() const { return {area}; }
  Handle handle;
  Geometry polygon;
  double area = 0;
};

struct AreaAndCentroid : Polygon {
  using Polygon::Polygon;
  void run() {
    Polygon::run();
    GEOSGeometry *const centroid = GEOSGetCentroid_r(handle.get(), polygon.get());
    GEOSGeomGetX_r(handle.get(), centroid, &x);
    GEOSGeomGetY_r(handle.get(), centroid, &y);
    GEOSGeom_destroy_r(handle.get(), centroid);
  }
  [[nodiscard]] std::vector<double> answer() const { return {area, x, y}; }
  double x = 0;
  double y = 0;
};

}  // namespace

void add_geos(Peers &peers) {
  peers.area.emplace_back([](const Outline &o) { return contender("GEOS", Polygon(o)); });
  peers.area_and_centroid.emplace_back(
      [](const Outline &o) { return contender("GEOS", AreaAndCentroid(o)); });
}

}  // namespace bench
