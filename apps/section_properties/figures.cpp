#include "figures.h"

namespace host {

Figures figures_of(const Properties &properties, const Outline &outline) {
  const Properties &p = properties;
  const Box box = bounding_box(outline);
  Figures f{};
  f.properties = p;
  f.fibres = {box.top - p.ys, p.ys - box.bottom, box.right - p.xs, p.xs - box.left};
  f.elastic = {p.centroidal.x / f.fibres.top, p.centroidal.x / f.fibres.bottom,
               p.centroidal.y / f.fibres.right, p.centroidal.y / f.fibres.left};
  f.plastic = plastic_of(outline);
  f.origin = "middle of the bounding box";
  return f;
}

std::array<double, names_of_properties.size()> values_of(const Properties &p) {
  return {p.area,
          p.xs,
          p.ys,
          p.sx,
          p.sy,
          p.origin.x,
          p.origin.y,
          p.origin.xy,
          p.centroidal.x,
          p.centroidal.y,
          p.centroidal.xy,
          p.i1,
          p.i2,
          p.alpha,
          p.rx,
          p.ry};
}

std::array<std::optional<double>, names_of_further_figures.size()> further_values_of(
    const Figures &f) {
  const auto &m = f.torsion.shear_centre;
  return {f.properties.centroidal.x + f.properties.centroidal.y,
          f.fibres.top,
          f.fibres.bottom,
          f.fibres.right,
          f.fibres.left,
          f.elastic.top,
          f.elastic.bottom,
          f.elastic.right,
          f.elastic.left,
          f.plastic.wx,
          f.plastic.wy,
          f.plastic.x,
          f.plastic.y,
          m ? std::optional(m->x) : std::nullopt,
          m ? std::optional(m->y) : std::nullopt,
          f.torsion.it,
          f.torsion.iw};
}

std::string not_given(const Torsion &torsion, std::string_view separator) {
  std::string names;
  const auto add = [&](bool is_given, std::string_view name) {
    if (!is_given) names.append(names.empty() ? "" : separator).append(name);
  };
  add(torsion.shear_centre.has_value(), "shear centre");
  add(torsion.it.has_value(), "torsion constant");
  add(torsion.iw.has_value(), "warping constant");
  return names;
}

}  // namespace host
