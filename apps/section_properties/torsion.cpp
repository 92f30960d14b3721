#include "torsion.h"

#include <trelvin/sections.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "thin_plates.h"

namespace host {
namespace {

// Open sections --------------------------------------------------------------------------------

constexpr const char *too_thick = "No torsion: a wall is thicker than long.";

// A flange is two plates, its halves.
bool is_too_thick(const Plate &p) { return std::hypot(p.x2 - p.x1, p.y2 - p.y1) < 0.5F * p.t; }

Torsion open_torsion(const std::vector<Plate> &plates, const char *note) {
  if (std::any_of(plates.begin(), plates.end(), is_too_thick)) return {{}, {}, {}, too_thick};
  const ThinSection s = thin_section(plates);
  if (s.status != 0) {
    return {{}, {}, {}, "No torsion: the centre lines of the walls meet or have no length."};
  }
  return {s.It, s.Iw, Point{s.xm, s.ym}, note};
}

constexpr const char *thin_walls = "Torsion: thin walls on centre lines (V. Z. Vlasov).";
constexpr const char *thin_walls_without_fillets =
    "Torsion: thin walls on centre lines (V. Z. Vlasov), fillets left out.";

// The web first, so that the halves of both flanges start at its ends.
std::vector<Plate> plates_of_i(float H, float B1, float B2, float T1, float T2, float TW,
                               float E = 0) {
  const float bottom = 0.5F * (T1 - H);
  const float top = 0.5F * (H - T2);
  return {{E, bottom, E, top, TW},
          {E, bottom, -0.5F * B1, bottom, T1},
          {E, bottom, 0.5F * B1, bottom, T1},
          {E, top, -0.5F * B2, top, T2},
          {E, top, 0.5F * B2, top, T2}};
}

// A flange of a channel, with its lip and its fold where it has them.
struct LippedFlange {
  float B, C, D, T, TC, TD;
};

// `up` is 1 for the flange at the bottom and -1 for the one at the top, outer face at `face`.
void add_flange(std::vector<Plate> &plates, const LippedFlange &f, float left, float web,
                float face, float up) {
  const float y = face + up * 0.5F * f.T;
  const bool has_lip = f.C > f.T;
  const bool has_fold = has_lip && f.D > f.TC;
  const float end = left + f.B - (has_lip ? 0.5F * f.TC : 0.0F);
  const float lip_end = face + up * (f.C - (has_fold ? 0.5F * f.TD : 0.0F));
  plates.push_back({web, y, end, y, f.T});
  if (has_lip) plates.push_back({end, y, end, lip_end, f.TC});
  if (has_fold) plates.push_back({end, lip_end, left + f.B - f.D, lip_end, f.TD});
}

// Closed sections --------------------------------------------------------------------------------

struct Wall {
  double length, t;
};

// Shear flow around one cell, 4*Am^2/sum(l/t), and l*t^3/3 of its walls, by their centre lines, and
// of what else there is, clear of the walls.
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

}  // namespace

Torsion torsion_of_ia(const float *d) {
  return open_torsion(plates_of_i(d[0], d[1], d[2], d[3], d[4], d[5]), thin_walls);
}

Torsion torsion_of_h(const float *d) {
  std::vector<Plate> plates = plates_of_i(d[0], d[1], d[2], d[3], d[4], d[5]);
  for (Plate &p : plates) p = {p.y1, -p.x1, p.y2, -p.x2, p.t};
  return open_torsion(plates, thin_walls);
}

Torsion torsion_of_i(const float *d) {
  const bool has_fillets = d[6] > 0 || d[7] > 0;
  return open_torsion(plates_of_i(d[0], d[1], d[2], d[3], d[4], d[5], d[8]),
                      has_fillets ? thin_walls_without_fillets : thin_walls);
}

Torsion torsion_of_t(const float *d) {
  const float B = d[0], H = d[1], TF = d[2], TW = d[3];
  const float top = 0.5F * (H - TF);
  return open_torsion(
      {{0, top, 0, -0.5F * H, TW}, {0, top, -0.5F * B, top, TF}, {0, top, 0.5F * B, top, TF}},
      thin_walls);
}

Torsion torsion_of_c(const float *d) {
  const float H = d[0], TW = d[7];
  const LippedFlange bottom{d[1], d[3], d[5], d[8], d[10], d[12]};
  const LippedFlange top{d[2], d[4], d[6], d[9], d[11], d[13]};
  const float left = -0.5F * std::max(bottom.B, top.B);
  const float web = left + 0.5F * TW;
  std::vector<Plate> plates;
  plates.push_back({web, 0.5F * (bottom.T - H), web, 0.5F * (H - top.T), TW});
  add_flange(plates, bottom, left, web, -0.5F * H, 1);
  add_flange(plates, top, left, web, 0.5F * H, -1);
  return open_torsion(plates, thin_walls);
}

Torsion torsion_of_angle(const float *d) {
  const float B = d[0], H = d[1], T = d[2], R = d[3];
  const float x = 0.5F * (T - B);
  const float y = 0.5F * (T - H);
  return open_torsion({{x, y, x, 0.5F * H, T}, {x, y, 0.5F * B, y, T}},
                      R > 0 ? thin_walls_without_fillets : thin_walls);
}

// The torsion constant as the tables of European sections have it (ArcelorMittal, Sections and
// merchant bars, notations and formulae): the flanges' free ends and the junctions with the web
// with their fillets after G. W. Trayer, H. W. March, NACA report 334, 1930.
Torsion torsion_of_rolled(const float *d) {
  const double H = d[0], B = d[1], TW = d[2], TF = d[3], R = d[4];
  Torsion torsion = open_torsion(plates_of_i(d[0], d[1], d[1], d[3], d[3], d[2]),
                                 "Torsion constant: with fillets (NACA report 334), as in tables "
                                 "of sections; warping constant: centre lines.");
  if (!torsion.it) return torsion;
  const double inscribed =  // diameter of the circle in a junction
      ((R + TW / 2) * (R + TW / 2) + (R + TF) * (R + TF) - R * R) / (2 * R + TF);
  const double square = inscribed * inscribed;
  torsion.it = 2 * (B - 0.63 * TF) * TF * TF * TF / 3 + (H - 2 * TF) * TW * TW * TW / 3 +
               2 * (TW / TF) * (0.145 + 0.1 * R / TF) * square * square;
  return torsion;
}

Torsion torsion_of_bar(const float *d) {
  ThinSection s{};
  float w1 = 0, w2 = 0;
  trvmxt_fb(d[0], d[1], s.A, s.xs, s.ys, s.Ix, s.Iy, s.Ixy, s.I1, s.I2, s.alpha, s.rx, s.ry, s.Wx1,
            s.Wx2, s.Wy1, s.Wy2, s.Wpx, s.Wpy, s.xp, s.yp, s.It, s.Wt, s.xm, s.ym, s.Iw, s.r0, &w1,
            &w2, s.status);
  if (s.status != 0) return {};
  return {s.It, s.Iw, Point{s.xm, s.ym}, "Torsion: Saint-Venant's series for the rectangle."};
}

Torsion torsion_of_rhs(const float *d) {
  const double t = d[2], b = d[0] - t, h = d[1] - t;
  Torsion torsion = closed_torsion(b, h, {{b, t}, {b, t}, {h, t}, {h, t}}, {});
  torsion.shear_centre = Point{0, 0};  // by symmetry
  return torsion;
}

Torsion torsion_of_box(const float *d) {
  const double BT = d[0], BB = d[1], TT = d[2], TB = d[3], H = d[4], TW = d[5], G = d[6];
  const double b = G + TW;
  const double h = H - (TT + TB) / 2;
  return closed_torsion(b, h, {{b, TT}, {b, TB}, {h, TW}, {h, TW}},
                        {{BT - G - 2 * TW, TT}, {BB - G - 2 * TW, TB}});
}

Torsion torsion_of_h1b(const float *d) {
  const double W = d[0], D = d[1], P = d[2], T1 = d[3], T2 = d[4], TW = d[5], TP = d[6];
  const double b = D - (T1 + T2) / 2;
  const double h = (P + TP) / 2;
  return closed_torsion(b, h, {{b, TP}, {b, TW}, {h, T1}, {h, T2}},
                        {{W - D, TP}, {(P - TW) / 2, T1}, {(P - TW) / 2, T2}});
}

Torsion torsion_of_tab(const float *d) {
  const double B = d[0], H = d[1], BW = d[2], E = d[3], T = d[4], TW = d[5], TB = d[6];
  const double b = BW - TW;
  const double h = H + T / 2 - E - TB / 2;
  return closed_torsion(b, h, {{b, T}, {b, TB}, {h, TW}, {h, TW}}, {{B - BW, T}, {E, TW}, {E, TW}});
}

// The two cells mirror each other, so that the middle plate between them carries no shear flow.
Torsion torsion_of_h2b(const float *d) {
  const double B = d[0], W = d[1], HI = d[2], TW1 = d[3], TW2 = d[4], TM = d[5], TF = d[6];
  const double b = W - (TW1 + TW2) / 2;
  const double h = HI + TF;
  return closed_torsion(b, h, {{b, TF}, {b, TF}, {h, TW1}, {h, TW2}},
                        {{B - W, TF}, {B - W, TF}, {b, TM}});
}

Torsion torsion_of_two_angles(const float * /*d*/) {
  return {{}, {}, {}, "No torsion: the angles are not joined."};
}

}  // namespace host
