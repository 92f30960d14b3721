// Through the C interface, which is the one GEOS keeps stable.
#include <geos_c.h>

#include <array>

#include "../peers.h"

namespace bench {
namespace {

using Handle = std::shared_ptr<GEOSContextHandle_HS>;
using Geometry = std::shared_ptr<GEOSGeometry>;

struct Polygon {
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
  Handle handle;
  Geometry polygon;
};

std::array<double, 1> area(const Polygon &of) {
  double area = 0;
  GEOSArea_r(of.handle.get(), of.polygon.get(), &area);
  return {area};
}

std::array<double, 3> area_and_centroid(const Polygon &of) {
  GEOSGeometry *const centroid = GEOSGetCentroid_r(of.handle.get(), of.polygon.get());
  double x = 0, y = 0;
  GEOSGeomGetX_r(of.handle.get(), centroid, &x);
  GEOSGeomGetY_r(of.handle.get(), centroid, &y);
  GEOSGeom_destroy_r(of.handle.get(), centroid);
  return {area(of)[0], x, y};
}

}  // namespace

void add_geos(Peers &peers) {
  peers.area.emplace_back([](const Outline &o) { return evaluated("GEOS", Polygon(o), area); });
  peers.area_and_centroid.emplace_back(
      [](const Outline &o) { return evaluated("GEOS", Polygon(o), area_and_centroid); });
}

}  // namespace bench
