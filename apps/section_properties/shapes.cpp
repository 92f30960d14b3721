#include "shapes.h"

#include <algorithm>
#include <initializer_list>

namespace host {
namespace {

Part &add_polygon(Section &section, float factor, std::size_t n, const float *x, const float *y) {
  Part part;
  part.kind = polygon;
  part.factor = factor;
  part.n = static_cast<std::int32_t>(n);
  std::copy_n(x, n, part.x.begin());
  std::copy_n(y, n, part.y.begin());
  section.parts.push_back(part);
  return section.parts.back();
}

Part &add_polygon(Section &section, float factor, std::initializer_list<float> x,
                  std::initializer_list<float> y) {
  return add_polygon(section, factor, x.size(), x.begin(), y.begin());
}

// The fillet in a corner (x, y) at the bottom left: a square less a quarter disc, which is the
// triangle of its centre and the tangent points and the segment beyond their chord.
void add_fillet(Section &section, float x, float y, float r, bool is_fourfold) {
  const float xc = x + r;
  const float yc = y + r;
  // Product of inertia of the segment about its centroid: quarter disc minus triangle, about the
  // centre r^4/8 - r^4/24, moved to the centroid by their first moments r^3/3 - r^3/6.
  constexpr double pi = 3.14159265358979323846;
  constexpr double product = 1.0 / 36 / (pi / 4 - 0.5) - 1.0 / 12;
  const double r2 = static_cast<double>(r) * r;
  section.fillet = r;
  const std::size_t first = section.parts.size();
  add_polygon(section, 1, {xc, xc, x, x}, {y, yc, yc, y});
  add_polygon(section, -1, {x, xc, xc}, {yc, y, yc});
  Part &segment = add_polygon(section, -1, {xc, xc, x}, {yc, y, yc});
  segment.kind = smaller_segment;
  segment.own_product = -product * r2 * r2;
  for (std::size_t i = first; i < section.parts.size(); ++i) {
    section.parts[i].left_right = section.parts[i].top_bottom = is_fourfold;
  }
}

}  // namespace

// The library closes a polygon by writing after its last vertex. In the list the next polygon starts
// there, so each polygon is copied into its own arrays.
Section section_of(const ListOfPolygons &f) {
  Section section;
  const float *x = f.x.data();
  const float *y = f.y.data();
  section.polygons = static_cast<std::size_t>(f.np);
  for (std::size_t p = 0; p < section.polygons; ++p) {
    const auto n = static_cast<std::size_t>(f.nv[p]);
    add_polygon(section, f.sign[p], n, x, y);
    x += n;
    y += n;
  }
  return section;
}

// By its corners: trvsec_b takes whole widths only.
Section flat_bar(float B, float H) {
  const float x = 0.5F * B, y = 0.5F * H;
  Section section;
  add_polygon(section, 1, {-x, -x, x, x}, {y, -y, -y, y});
  section.polygons = 1;
  return section;
}

Section rolled(float H, float B, float TW, float TF, float R) {
  Section section = section_from(trvsec_ia, H, B, B, TF, TF, TW);
  add_fillet(section, 0.5F * TW, TF - 0.5F * H, R, true);
  return section;
}

// The toes are sharp.
Section angle(float B, float H, float T, float R) {
  const float x = 0.5F * B, y = 0.5F * H;
  Section section;
  add_polygon(section, 1, {-x, -x, x, x, T - x, T - x}, {y, -y, -y, T - y, T - y, y});
  section.polygons = 1;
  if (R > 0) add_fillet(section, T - x, T - y, R, false);
  return section;
}

}  // namespace host
