#include "section_profiles.h"

#include <trelvin/sections.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace host {
namespace {

// Outlines ---------------------------------------------------------------------------------------

// What an outline routine hands back, with room for the largest outline.
struct Outline {
  std::int32_t np;
  std::array<std::int32_t, 3> nv;
  std::array<float, 20> x, y;
  std::array<std::int32_t, 3> code;
  std::array<float, 3> sign, z1, z2, z3, z4, z5, q1, q2;
};

template <class Routine, class... Inputs>
Outline outline_from(Routine routine, const Inputs &...inputs) {
  constexpr float q = 1;  // comes back with each polygon; nothing here needs it
  Outline f{};
  routine(inputs..., q, f.np, f.nv.data(), f.x.data(), f.y.data(), f.code.data(), f.sign.data(),
          f.z1.data(), f.z2.data(), f.z3.data(), f.z4.data(), f.z5.data(), f.q1.data(),
          f.q2.data());
  return f;
}

Part polygon_part(float factor, std::vector<float> x, std::vector<float> y) {
  const auto n = static_cast<std::int32_t>(x.size());
  x.push_back(0);
  y.push_back(0);
  return {polygon, factor, n, std::move(x), std::move(y)};
}

// The library closes a polygon by writing behind its last vertex, where in the list the next polygon
// starts. So each one moves into arrays of its own.
Section section_of(const Outline &f) {
  Section section;
  const float *x = f.x.data();
  const float *y = f.y.data();
  for (std::size_t p = 0; p < static_cast<std::size_t>(f.np); ++p) {
    Ring ring;
    for (std::int32_t i = 0; i < f.nv[p]; ++i) ring.push_back({x[i], y[i]});
    section.outline.push_back(std::move(ring));
    section.parts.push_back(polygon_part(f.sign[p], {x, x + f.nv[p]}, {y, y + f.nv[p]}));
    x += f.nv[p];
    y += f.nv[p];
  }
  return section;
}

Section flat_bar(const float *d) {
  Outline f = outline_from(trvsec_b, static_cast<std::int32_t>(d[0]), d[1]);
  f.nv[0] = 4;  // the routine says 12 and writes 4
  return section_of(f);
}

// Root fillets ---------------------------------------------------------------------------------

Part mirrored(Part part, bool left_right, bool top_bottom) {
  if (left_right) {
    for (float &x : part.x) x = -x;
  }
  if (top_bottom) {
    for (float &y : part.y) y = -y;
  }
  if (part.kind == polygon && left_right != top_bottom) {  // counter-clockwise again
    std::reverse(part.x.begin(), part.x.begin() + part.n);
    std::reverse(part.y.begin(), part.y.begin() + part.n);
  }
  if (left_right != top_bottom) part.own_product = -part.own_product;
  return part;
}

// The fillet in the corner (x, y) at the top right: a square less a quarter disc, which is the
// triangle of its centre and the tangent points and the segment beyond their chord.
std::array<Part, 3> fillet(float x, float y, float r) {
  const float xc = x + r;
  const float yc = y - r;
  // Quarter disc less triangle, about the centre r^4/8 - r^4/24, moved to the centroid by their
  // first moments r^3/3 - r^3/6.
  constexpr double pi = 3.14159265358979323846;
  constexpr double product = 1.0 / 36 / (pi / 4 - 0.5) - 1.0 / 12;
  const double r2 = static_cast<double>(r) * r;
  return {polygon_part(1, {x, x, xc, xc}, {y, yc, yc, y}),
          polygon_part(-1, {xc, xc, x}, {yc, y, yc}),
          {smaller_segment, -1, 3, {xc, xc, x}, {yc, y, yc}, product * r2 * r2}};
}

// The point at the distance r from a corner along the edge to its neighbour; edges run along axes.
Vertex tangent_point(const Vertex &corner, const Vertex &neighbour, double r) {
  const double dx = neighbour.x - corner.x;
  const double dy = neighbour.y - corner.y;
  const double length = std::fabs(dx) + std::fabs(dy);
  return {corner.x + r * (dx / length), corner.y + r * (dy / length)};
}

// A ring with arcs in place of some of its corners.
template <class Choice>
Ring rounded(const Ring &sharp, double r, Choice is_rounded) {
  Ring ring;
  for (std::size_t i = 0; i < sharp.size(); ++i) {
    const Vertex &corner = sharp[i];
    if (!is_rounded(corner)) {
      ring.push_back(corner);
      continue;
    }
    ring.push_back(tangent_point(corner, sharp[i - 1], r));
    ring.push_back(tangent_point(corner, sharp[i + 1], r));
    ring.back().arc = r;
  }
  return ring;
}

Section rolled(const float *d) {
  const float H = d[0], B = d[1], TW = d[2], TF = d[3], R = d[4];
  Section section = section_of(outline_from(trvsec_ia, H, B, B, TF, TF, TW));

  for (const Part &part : fillet(0.5F * TW, 0.5F * H - TF, R)) {
    for (const bool left_right : {false, true}) {
      for (const bool top_bottom : {false, true}) {
        section.parts.push_back(mirrored(part, left_right, top_bottom));
      }
    }
  }
  const auto at_web = [&](const Vertex &corner) { return std::fabs(corner.x) < 0.5 * B; };
  section.outline[0] = rounded(section.outline[0], R, at_web);
  return section;
}

// The toes are sharp.
Section angle(const float *d) {
  const float B = d[0], H = d[1], T = d[2], R = d[3];
  const float x = 0.5F * B, y = 0.5F * H;
  const std::vector<float> xs = {-x, -x, x, x, T - x, T - x};
  const std::vector<float> ys = {y, -y, -y, T - y, T - y, y};
  Section section;
  section.parts.push_back(polygon_part(1, xs, ys));
  Ring ring;
  for (std::size_t i = 0; i < xs.size(); ++i) ring.push_back({xs[i], ys[i]});
  if (R > 0) {
    for (const Part &part : fillet(T - x, y - T, R)) {
      section.parts.push_back(mirrored(part, false, true));
    }
    const Vertex root = ring[4];
    ring = rounded(ring, R, [&](const Vertex &v) { return v.x == root.x && v.y == root.y; });
  }
  section.outline.push_back(std::move(ring));
  return section;
}

// Dimensions that fit together -------------------------------------------------------------------

template <std::size_t n>
std::array<float, n> first(const float *d) {
  std::array<float, n> dimensions;
  std::copy(d, d + n, dimensions.begin());
  return dimensions;
}

const char *fault_of_i_section(const float *d) {
  const auto [H, B1, B2, T1, T2, TW] = first<6>(d);
  if (T1 + T2 >= H) return "flanges T1 and T2 leave no room for a web in H";
  if (TW > std::min(B1, B2)) return "web TW is wider than a flange";
  return nullptr;
}

const char *fault_of_filleted_i(const float *d) {
  const auto [H, B1, B2, T1, T2, TW, S1, S2, E] = first<9>(d);
  if (T1 + T2 + S1 + S2 >= H) return "flanges and fillets leave no room for a web in H";
  if (2 * E + TW + 2 * S1 > B1)
    return "web TW with its fillets S1, E off the middle, is off flange 1";
  if (2 * E + TW + 2 * S2 > B2)
    return "web TW with its fillets S2, E off the middle, is off flange 2";
  return nullptr;
}

const char *fault_of_c(const float *d) {
  const auto [H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2] = first<14>(d);
  const auto is_in_the_way = [web = TW](float B, float C, float D, float T, float TC, float TD) {
    if (C <= T) return web >= B;
    if (D <= TC) return web + TC >= B;
    return web + D >= B || T + TD >= C || TC <= 0 || TD <= 0;
  };
  if (std::max(C1, T1) + std::max(C2, T2) >= H) return "flanges and lips leave no room in H";
  if (is_in_the_way(B1, C1, D1, T1, TC1, TD1)) return "lip or fold 1 does not fit on flange B1";
  if (is_in_the_way(B2, C2, D2, T2, TC2, TD2)) return "lip or fold 2 does not fit on flange B2";
  return nullptr;
}

const char *fault_of_t(const float *d) {
  const auto [B, H, TF, TW] = first<4>(d);
  if (TF >= H) return "flange TF leaves no room for a stem in H";
  if (TW > B) return "stem TW is wider than the flange B";
  return nullptr;
}

const char *fault_of_bar(const float *d) {
  if (d[0] != std::floor(d[0])) return "width B of a flat bar must be a whole number";
  if (d[0] >= 2147483648.0F) return "width B of a flat bar is above 2147483647";
  return nullptr;
}

const char *fault_of_h1b(const float *d) {
  const auto [W, D, P, T1, T2, TW, TP] = first<7>(d);
  if (T1 + T2 >= D) return "flanges T1 and T2 leave no room between them in D";
  if (TW >= P) return "web TW leaves no cell in the flanges' height P";
  if (W <= D - 2 * std::min(T1, T2)) return "cover plate W does not reach the flanges";
  return nullptr;
}

const char *fault_of_box(const float *d) {
  const auto [BT, BB, TT, TB, H, TW, G] = first<7>(d);
  if (TT + TB >= H) return "flanges TT and TB leave no room for webs in H";
  if (G + 2 * TW > std::min(BT, BB)) return "webs G + 2 TW stand wider than a flange";
  return nullptr;
}

const char *fault_of_rhs(const float *d) {
  const auto [B, H, T] = first<3>(d);
  if (2 * T >= std::min(B, H)) return "walls T leave no room inside B and H";
  return nullptr;
}

const char *fault_of_angle(const float *d) {
  const auto [B, H, T, R] = first<4>(d);
  if (T >= std::min(B, H)) return "legs are as thick as one of them is long, T";
  if (T + R > std::min(B, H)) return "fillet R does not fit between the legs";
  return nullptr;
}

const char *fault_of_l2(const float *d) {
  const auto [B, H, G, T, TV] = first<5>(d);
  if (TV >= B) return "vertical leg TV is as thick as the horizontal one is long, B";
  if (T >= H) return "horizontal leg T is as thick as the vertical one is long, H";
  return nullptr;
}

const char *fault_of_tab(const float *d) {
  const auto [B, H, BW, E, T, TW, TB] = first<7>(d);
  if (2 * TW >= BW) return "webs TW leave no room between them in BW";
  if (E + TB >= H) return "bottom plate E + TB leaves no cell in H";
  if (B <= BW - 2 * TW) return "top plate B does not reach the webs";
  return nullptr;
}

const char *fault_of_h2b(const float *d) {
  const auto [B, W, HI, TW1, TW2, TM, TF] = first<7>(d);
  if (TW1 + TW2 >= W) return "webs TW1 and TW2 leave no room between them in W";
  if (TM >= HI) return "middle plate TM leaves no cells in HI";
  if (W > B) return "webs W stand wider than the flanges B";
  return nullptr;
}

const char *fault_of_rolled(const float *d) {
  const auto [H, B, TW, TF, R] = first<5>(d);
  if (2 * TF >= H) return "flanges TF leave no room for a web in H";
  if (TW > B) return "web TW is wider than the flange B";
  if (2 * TF + 2 * R > H) return "fillets R do not fit between the flanges";
  if (TW + 2 * R > B) return "fillets R do not fit on the flange B";
  return nullptr;
}

}  // namespace

const std::vector<Profile> &profiles() {
  static const std::vector<Profile> all{
      {"ia",
       "I section with unequal flanges, 1 at the bottom",
       {"H", "B1", "B2", "T1", "T2", "TW"},
       fault_of_i_section,
       [](const float *d) {
         return section_of(outline_from(trvsec_ia, d[0], d[1], d[2], d[3], d[4], d[5]));
       }},
      {"h",
       "I section on its side, flange 1 on the left",
       {"H", "B1", "B2", "T1", "T2", "TW"},
       fault_of_i_section,
       [](const float *d) {
         return section_of(outline_from(trvsec_h, d[0], d[1], d[2], d[3], d[4], d[5]));
       }},
      {"i",
       "as ia, the web moved by E, with 45-degree fillets S",
       {"H", "B1", "B2", "T1", "T2", "TW", "S1", "S2", "E"},
       fault_of_filleted_i,
       [](const float *d) {
         return section_of(
             outline_from(trvsec_i, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7], d[8]));
       },
       {"S1", "S2", "E"}},
      {"t",
       "T section, flange at the top",
       {"B", "H", "TF", "TW"},
       fault_of_t,
       [](const float *d) { return section_of(outline_from(trvsec_t, d[0], d[1], d[2], d[3])); }},
      {"b", "flat bar of whole width B", {"B", "H"}, fault_of_bar, flat_bar},
      {"c",
       "channel with lips C and folds D, or without",
       {"H", "B1", "B2", "C1", "C2", "D1", "D2", "TW", "T1", "T2", "TC1", "TC2", "TD1", "TD2"},
       fault_of_c,
       [](const float *d) {
         return section_of(outline_from(trvsec_c, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7],
                                        d[8], d[9], d[10], d[11], d[12], d[13]));
       },
       {"C1", "C2", "D1", "D2", "TC1", "TC2", "TD1", "TD2"}},
      {"h1b",
       "I section on its side under a cover plate",
       {"W", "D", "P", "T1", "T2", "TW", "TP"},
       fault_of_h1b,
       [](const float *d) {
         return section_of(outline_from(trvsec_h1b, d[0], d[1], d[2], d[3], d[4], d[5], d[6]));
       }},
      {"box",
       "box girder with overhanging flanges",
       {"BT", "BB", "TT", "TB", "H", "TW", "G"},
       fault_of_box,
       [](const float *d) {
         return section_of(outline_from(trvsec_box, d[0], d[1], d[2], d[3], d[4], d[5], d[6]));
       }},
      {"rhs",
       "rectangular hollow section with sharp corners",
       {"B", "H", "T"},
       fault_of_rhs,
       [](const float *d) { return section_of(outline_from(trvsec_rhs, d[0], d[1], d[2])); }},
      {"l",
       "angle with sharp toes and a root fillet, or without",
       {"B", "H", "T", "R"},
       fault_of_angle,
       angle,
       {"R"}},
      {"l2",
       "two equal angles back to back",
       {"B", "H", "G", "T", "TV"},
       fault_of_l2,
       [](const float *d) {
         return section_of(outline_from(trvsec_l2, d[0], d[1], d[2], d[3], d[4]));
       }},
      {"tab",
       "top plate on a closed cell",
       {"B", "H", "BW", "E", "T", "TW", "TB"},
       fault_of_tab,
       [](const float *d) {
         return section_of(outline_from(trvsec_tab, d[0], d[1], d[2], d[3], d[4], d[5], d[6]));
       }},
      {"h2b",
       "two flanges, two webs and a middle plate",
       {"B", "W", "HI", "TW1", "TW2", "TM", "TF"},
       fault_of_h2b,
       [](const float *d) {
         return section_of(outline_from(trvsec_h2b, d[0], d[1], d[2], d[3], d[4], d[5], d[6]));
       }},
      {"rolled",
       "hot-rolled I section with root fillets",
       {"H", "B", "TW", "TF", "R"},
       fault_of_rolled,
       rolled},
  };
  return all;
}

}  // namespace host
