#include "model.h"

#include <trelvin/properties.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace host {
namespace {

// Adds a part and its mirror images: what is odd in a coordinate that is mirrored cancels.
void add(Part &part, Properties &p) {
  constexpr float no_value = 0;  // value and angle are for concentrated areas only
  constexpr float no_angle = 0;
  float *const x = part.x.data();
  float *const y = part.y.data();
  const double images = (part.left_right ? 2 : 1) * (part.top_bottom ? 2 : 1);

  float area = 0;
  trvair(x, y, part.n, part.kind, no_value, part.factor, area);
  p.area += images * area;

  if (!part.left_right || !part.top_bottom) {
    float sx = 0;
    float sy = 0;
    trvstm(x, y, part.n, part.kind, no_value, part.factor, sx, sy);
    if (!part.top_bottom) p.sx += images * sx;
    if (!part.left_right) p.sy += images * sy;
  }

  float ix = 0;
  float iy = 0;
  float ixy = 0;
  trvinm(x, y, part.n, part.kind, no_value, no_angle, part.factor, ix, iy, ixy);
  p.origin.x += images * ix;
  p.origin.y += images * iy;
  if (images == 1) p.origin.xy += ixy + part.factor * part.own_product;
}

}  // namespace

Properties properties_of(Section &section) {
  Properties p{};
  for (Part &part : section.parts) add(part, p);

  p.xs = p.sy / p.area;
  p.ys = p.sx / p.area;
  p.centroidal.x = p.origin.x - p.area * p.ys * p.ys;
  p.centroidal.y = p.origin.y - p.area * p.xs * p.xs;
  p.centroidal.xy = p.origin.xy - p.area * p.xs * p.ys;

  // A product of inertia below single precision is a rounding error. If both moments are equal, it would
  // rotate the axes nevertheless.
  constexpr double noise = 4 * std::numeric_limits<float>::epsilon();
  if (std::fabs(p.centroidal.xy) <= noise * (p.centroidal.x + p.centroidal.y)) p.centroidal.xy = 0;

  float i1;
  float i2;
  float alpha;
  trvinp(static_cast<float>(p.centroidal.x), static_cast<float>(p.centroidal.y),
         static_cast<float>(p.centroidal.xy), i1, i2, alpha);
  p.i1 = i1;
  p.i2 = i2;
  p.alpha = alpha;
  p.rx = std::sqrt(p.centroidal.x / p.area);
  p.ry = std::sqrt(p.centroidal.y / p.area);
  return p;
}

bool are_representable(const Properties &p) {
  using Single = std::numeric_limits<float>;
  const auto figures = {p.area, p.centroidal.x, p.centroidal.y, p.i1, p.i2};
  return std::all_of(figures.begin(), figures.end(),
                     [](double value) { return value >= Single::min() && value <= Single::max(); });
}

}  // namespace host
