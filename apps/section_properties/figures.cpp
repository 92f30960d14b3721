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
  const auto &[Ix, Iy, Ixy] = p.origin;
  const auto &[ix, iy, ixy] = p.centroidal;
  return {p.area, p.xs, p.ys, p.sx, p.sy, Ix,      Iy,   Ixy,
          ix,     iy,   ixy,  p.i1, p.i2, p.alpha, p.rx, p.ry};
}

std::array<std::optional<double>, names_of_further_figures.size()> further_values_of(
    const Figures &f) {
  const auto &[ey1, ey2, ex1, ex2] = f.fibres;
  const auto &[wx1, wx2, wy1, wy2] = f.elastic;
  const auto &[wpx, wpy, xp, yp] = f.plastic;
  const double ip = f.properties.centroidal.x + f.properties.centroidal.y;
  std::optional<double> xm, ym;
  if (f.torsion.shear_centre) {
    xm = f.torsion.shear_centre->x;
    ym = f.torsion.shear_centre->y;
  }
  return {ip,  ey1, ey2, ex1, ex2, wx1, wx2,          wy1,         wy2,
          wpx, wpy, xp,  yp,  xm,  ym,  f.torsion.it, f.torsion.iw};
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
