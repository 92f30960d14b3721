#include "torsion.h"

#include <trelvin/sections.h>

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr const char *too_thick = "No torsion: a wall is thicker than long.";

// A flange is two plates, its halves.
bool is_too_thick(const Plate &p) { return std::hypot(p.x2 - p.x1, p.y2 - p.y1) < 0.5F * p.t; }

}  // namespace

Torsion open_torsion(const std::vector<Plate> &plates, const char *note) {
  if (std::any_of(plates.begin(), plates.end(), is_too_thick)) return {{}, {}, {}, too_thick};
  const ThinSection s = thin_section(plates);
  if (s.status != 0) {
    return {{}, {}, {}, "No torsion: the centre lines of the walls meet or have no length."};
  }
  return {s.It, s.Iw, Point{s.xm, s.ym}, note};
}

std::vector<Plate> plates_of_i(float H, float B1, float B2, float T1, float T2, float TW, float E) {
  const float bottom = 0.5F * (T1 - H);
  const float top = 0.5F * (H - T2);
  return {{E, bottom, E, top, TW},
          {E, bottom, -0.5F * B1, bottom, T1},
          {E, bottom, 0.5F * B1, bottom, T1},
          {E, top, -0.5F * B2, top, T2},
          {E, top, 0.5F * B2, top, T2}};
}

Torsion closed_torsion(double width, double height, std::initializer_list<Wall> walls,
                       std::initializer_list<Wall> others) {
  double flexibility = 0;
  double own = 0;
  for (const Wall &w : walls) {
    if (w.length < w.t) return {{}, {}, {}, too_thick};
    flexibility += w.length / w.t;
    own += w.length * w.t * w.t * w.t / 3;
  }
  for (const Wall &w : others) own += std::max(w.length, 0.0) * w.t * w.t * w.t / 3;
  const double enclosed = width * height;
  return {4 * enclosed * enclosed / flexibility + own,
          {},
          {},
          "Torsion constant: shear flow of the cell (R. Bredt 1896), and l*t^3/3 of all plates."};
}

double torsion_constant_of_rolled(double H, double B, double TW, double TF, double R) {
  const double inscribed =  // diameter of the circle in a junction
      ((R + TW / 2) * (R + TW / 2) + (R + TF) * (R + TF) - R * R) / (2 * R + TF);
  const double square = inscribed * inscribed;
  return 2 * (B - 0.63 * TF) * TF * TF * TF / 3 + (H - 2 * TF) * TW * TW * TW / 3 +
         2 * (TW / TF) * (0.145 + 0.1 * R / TF) * square * square;
}

Torsion torsion_of_bar(float B, float H) {
  float w1 = 0, w2 = 0;
  const ThinSection s = thin_section_by(&w1, &w2, trvmxt_fb, B, H);
  if (s.status != 0) return {};
  return {s.It, s.Iw, Point{s.xm, s.ym}, "Torsion: Saint-Venant's series for the rectangle."};
}

}  // namespace host
