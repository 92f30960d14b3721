// Plates, channels, sections of thin plates.
#include <trelvin/trelvin.h>

#include "measure.h"

namespace accuracy {
namespace {

// --- plates -----------------------------------------------------------------------------------------

// Decimal constants are meant as written.
constexpr auto decimal = [](int numerator, int denominator) {
  return Exact(numerator) / denominator;
};

Exact slenderness(Exact b, Exact t, Exact r1, Exact r2, Exact ks) {
  return b / (r2 / r1 * decimal(284, 10) * square_root(ks) * t);
}

Exact reduction(Exact slender, Exact psi) {
  if (slender <= decimal(5, 10) + square_root(decimal(85, 1000) - decimal(55, 1000) * psi))
    return 1;
  return lesser(1, (1 - decimal(55, 1000) * (3 + psi) / slender) / slender);
}

MEASURE(trvro2, "", origin_only) {
  const float b = draw.number(200, 2000), t = draw.number(4, 12), r1 = draw.number(15, 22),
              r2 = 15.329709F, psi = draw.number(-1, 1), ks = draw.number(4, 24);
  out.add("rho", call<float>(trvro2, b, t, r1, r2, psi, ks),
          reduction(slenderness(b, t, r1, r2, ks), psi));
}

MEASURE(trvefr, "", origin_only) {
  const float bp = draw.number(100, 200), ratio = draw.number(0.1, 0.55), c = bp * ratio;
  const float t = draw.number(0.7, 2), r1 = draw.number(15, 22), r2 = 15.329709F;
  const auto ceff = call<float>(trvefr, c, bp, t, r1, r2);
  const Exact beyond = Exact(c) / bp - decimal(35, 100);
  const Exact ks = decimal(1, 2) + (beyond > 0 ? square(beyond) / 3 : 0);
  out.add("ceff", ceff, c * reduction(slenderness(c, t, r1, r2, ks), 1));
}

MEASURE(trvef2, "cancels in the slenderness", origin_only) {
  const float bl = draw.number(200, 2000), t = draw.number(4, 12), r1 = draw.number(15, 22),
              r2 = 15.329709F, s1 = draw.number(100, 300), s2 = s1 * draw.number(-2.5, 0.95);
  const float w = s2 < 0 ? bl * s1 / (s1 - s2) : bl;
  const auto [be1, be2] = call<float, float>(trvef2, bl, w, t, r1, r2, s1, s2);
  const Exact psi = Exact(s2) / s1;
  const Exact ks =
      psi > 0    ? decimal(82, 10) / (decimal(105, 100) + psi)
      : psi > -1 ? decimal(781, 100) - decimal(629, 100) * psi + decimal(978, 100) * square(psi)
                 : decimal(598, 100) * square(1 - psi);
  const Exact effective = reduction(slenderness(bl, t, r1, r2, ks), psi) * w;
  const Exact first = psi > 0 ? 2 * effective / (5 - psi) : decimal(4, 10) * effective;
  out.add("be1", be1, first);
  out.add("be2", be2, effective - first);
}

// --- channels -----------------------------------------------------------------------------------------

// A section of plates that follow each other, by Vlasov's theory of centre lines.
struct Chain {
  std::vector<V2> nodes;
  std::vector<Exact> thickness;
};

struct ThinWalled {
  Exact area = 0, xx = 0, yy = 0, xy = 0, torsion = 0, warping = 0;
  V2 centroid, shear_centre;
  Exact polar = 0;
  std::vector<Exact> sectorial;  // at the nodes, normalised
};

// The integral over a plate of the product of two linear functions, by their values at its ends.
Exact product(Exact area, Exact a1, Exact a2, Exact b1, Exact b2) {
  return area / 6 * (2 * a1 * b1 + a1 * b2 + a2 * b1 + 2 * a2 * b2);
}

ThinWalled properties_of(const Chain &chain, bool rectangles) {
  ThinWalled p;
  const std::size_t n = chain.thickness.size();
  const auto area = [&](std::size_t k) {
    return chain.thickness[k] * length(chain.nodes[k + 1] - chain.nodes[k]);
  };
  for (std::size_t k = 0; k < n; ++k) {
    p.area += area(k);
    p.centroid = p.centroid + (area(k) / 2) * (chain.nodes[k] + chain.nodes[k + 1]);
    p.torsion += area(k) * square(chain.thickness[k]) / 3;
  }
  p.centroid = (1 / p.area) * p.centroid;
  std::vector<Exact> w = {0};  // sectorial coordinates about the centroid
  Exact mean = 0, wx = 0, wy = 0, cx = 0, cy = 0, cxy = 0;
  for (std::size_t k = 0; k < n; ++k) {
    const V2 a = chain.nodes[k] - p.centroid, b = chain.nodes[k + 1] - p.centroid;
    w.push_back(w[k] + cross(a, b));
    mean += area(k) * (w[k] + w[k + 1]) / 2;
    cx += product(area(k), a.y, b.y, a.y, b.y);
    cy += product(area(k), a.x, b.x, a.x, b.x);
    cxy += product(area(k), a.x, b.x, a.y, b.y);
    wx += product(area(k), w[k], w[k + 1], a.x, b.x);
    wy += product(area(k), w[k], w[k + 1], a.y, b.y);
    if (rectangles) {
      const V2 u = unit(b - a);
      const Exact own = area(k) * square(chain.thickness[k]) / 12;
      p.xx += own * square(u.x), p.yy += own * square(u.y), p.xy -= own * u.x * u.y;
    }
  }
  p.xx += cx, p.yy += cy, p.xy += cxy;
  const Exact det = cx * cy - cxy * cxy;
  const V2 s{(wy * cy - wx * cxy) / det, (wy * cxy - wx * cx) / det};
  p.shear_centre = p.centroid + s;
  for (std::size_t k = 0; k <= n; ++k)  // now about the shear centre
    p.sectorial.push_back(w[k] - mean / p.area - cross(s, chain.nodes[k] - p.centroid));
  for (std::size_t k = 0; k < n; ++k) {
    const Exact w1 = p.sectorial[k], w2 = p.sectorial[k + 1];
    p.warping += product(area(k), w1, w2, w1, w2);
  }
  p.polar = square_root(dot(s, s) + (p.xx + p.yy) / p.area);
  return p;
}

struct Channel {
  float B, H, C, t;
  [[nodiscard]] ThinWalled properties() const {
    const Exact b = Exact(B) - t, half = (Exact(H) - t) / 2, lip = Exact(C) - Exact(t) / 2;
    return properties_of(
        {{{b, half - lip}, {b, half}, {0, half}, {0, -half}, {b, -half}, {b, lip - half}},
         {t, t, t, t, t}},
        false);
  }
};

auto parts(Channel &c) { return std::tie(c.B, c.H, c.C, c.t); }

Channel channel(Draw &draw) {
  return {draw.number(40, 100), draw.number(100, 300), draw.number(10, 30), draw.number(1, 4)};
}

MEASURE(trvshc_c, "", origin_only) {
  const Channel s = channel(draw);
  const auto e0 = call<float>(trvshc_c, s);
  const ThinWalled p = s.properties();
  out.add("e0", e0, p.centroid.x - p.shear_centre.x);
}

MEASURE(trvwar_c, "the terms of the formula cancel", origin_only) {
  const Channel s = channel(draw);
  out.add("Iw", call<float>(trvwar_c, s), s.properties().warping);
}

// --- thin plates ------------------------------------------------------------------------------------

struct Written {
  float A;
  P2 centroid;
  float Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy;
  P2 halves;
  float It, Wt;
  P2 shear_centre;
  float Iw, r0;
};

auto parts(Written &s) {
  return parts(s.A, s.centroid, s.Ix, s.Iy, s.Ixy, s.I1, s.I2, s.alpha, s.rx, s.ry, s.Wx1, s.Wx2,
               s.Wy1, s.Wy2, s.Wpx, s.Wpy, s.halves, s.It, s.Wt, s.shear_centre, s.Iw, s.r0);
}

// What lies above a level, of plates as rectangles. With x and y exchanged, what lies to the right.
struct Above {
  Exact area = 0, moment = 0;
};

using Rectangle = std::array<V2, 4>;

std::vector<Rectangle> rectangles_of(const Chain &chain) {
  std::vector<Rectangle> all;
  for (std::size_t k = 0; k < chain.thickness.size(); ++k) {
    const V2 a = chain.nodes[k], b = chain.nodes[k + 1];
    const V2 half = (chain.thickness[k] / 2) * unit(left_of(b - a));
    all.push_back({a - half, b - half, b + half, a + half});
  }
  return all;
}

Above above(const std::vector<Rectangle> &rectangles, Exact level) {
  Above sum;
  for (const Rectangle &r : rectangles) {
    std::vector<V2> part;
    for (std::size_t i = 0; i < 4; ++i) {
      const V2 p = r[i], q = r[(i + 1) % 4];
      if (p.y >= level) part.push_back(p);
      if ((p.y < level) != (q.y < level))
        part.push_back(p + ((level - p.y) / (q.y - p.y)) * (q - p));
    }
    Exact area = 0, moment = 0;
    for (std::size_t i = 0; i < part.size(); ++i) {
      const V2 p = part[i], q = part[(i + 1) % part.size()];
      const Exact twice = cross(p - part[0], q - part[0]);
      area += twice / 2;
      moment += twice * (part[0].y + p.y + q.y - 3 * level) / 6;
    }
    sum.area += absolute(area);
    sum.moment += absolute(moment);
  }
  return sum;
}

// The level with half of the area on either side, by false position.
Exact halving_level(const std::vector<Rectangle> &rectangles, Exact low, Exact high) {
  const Exact half = above(rectangles, low).area / 2;
  Exact at_low = half, at_high = -half, level = low;
  for (int i = 0; i < 200 && at_low != at_high; ++i) {
    level = (low * at_high - high * at_low) / (at_high - at_low);
    const Exact rest = above(rectangles, level).area - half;
    if (absolute(rest) <= half / 1e25) break;
    if (rest > 0) {
      low = level, at_low = rest, at_high /= 2;  // so that the other end moves as well
    } else {
      high = level, at_high = rest, at_low /= 2;
    }
  }
  return level;
}

struct Moduli {
  Exact top, bottom, plastic, level;
};

Moduli moduli_of(const std::vector<Rectangle> &rectangles, Exact second_moment, Exact centroid) {
  Exact low = rectangles[0][0].y, high = low;
  for (const Rectangle &r : rectangles)
    for (const V2 &corner : r) low = lesser(low, corner.y), high = greater(high, corner.y);
  Moduli m;
  m.top = second_moment / (high - centroid);
  m.bottom = second_moment / (centroid - low);
  m.level = halving_level(rectangles, low, high);
  // The moments of both halves about the level: that of the lower one from that of the whole.
  const Exact whole = above(rectangles, low).area * (centroid - m.level);
  const Exact upper = above(rectangles, m.level).moment;
  m.plastic = 2 * upper - whole;
  return m;
}

void compare_moduli(Results &out, const Written &s, const Chain &chain, const ThinWalled &p) {
  std::vector<Rectangle> rectangles = rectangles_of(chain);
  const Moduli x = moduli_of(rectangles, p.xx, p.centroid.y);
  for (Rectangle &r : rectangles)
    for (V2 &corner : r) corner = {corner.y, corner.x};
  const Moduli y = moduli_of(rectangles, p.yy, p.centroid.x);
  out.add("Wx1", s.Wx1, x.top);
  out.add("Wx2", s.Wx2, x.bottom);
  out.add("Wy1", s.Wy1, y.top);
  out.add("Wy2", s.Wy2, y.bottom);
  out.add("Wpx", s.Wpx, x.plastic);
  out.add("Wpy", s.Wpy, y.plastic);
  out.add("xp yp", s.halves, V2{y.level, x.level});
  Exact thickest = 0;
  for (const Exact t : chain.thickness) thickest = greater(thickest, t);
  out.add("Wt", s.Wt, p.torsion / thickest);
}

MEASURE(trvmxt, "") {
  constexpr int n = 5;
  using Plates = std::array<float, n>;
  P2 node = draw.point();
  Plates x1, y1, x2, y2, t;
  Chain chain;
  chain.nodes.push_back(node);
  for (std::size_t k = 0; k < n; ++k) {  // onwards in x, so that no plate meets another
    x1[k] = node.x, y1[k] = node.y;
    node = Draw::from(node, {draw.number(20, 100), draw.number(-200, 200)});
    x2[k] = node.x, y2[k] = node.y, t[k] = draw.number(2, 10);
    chain.nodes.push_back(node);
    chain.thickness.push_back(t[k]);
  }
  const auto [s, w1, w2, status] = call<Written, Plates, Plates, int>(trvmxt, n, x1, y1, x2, y2, t);
  if (status != 0) return;
  const ThinWalled p = properties_of(chain, true);
  out.add("A", s.A, p.area);
  out.add("xs ys", s.centroid, p.centroid);
  out.add("Ix", s.Ix, p.xx);
  out.add("Iy", s.Iy, p.yy);
  out.add("Ixy", s.Ixy, p.xy);
  const Exact radius = square_root(square((p.xx - p.yy) / 2) + square(p.xy)),
              mean = (p.xx + p.yy) / 2;
  out.add("I1", s.I1, p.xx > p.yy ? mean + radius : mean - radius);
  out.add("I2", s.I2, p.xx > p.yy ? mean - radius : mean + radius);
  out.add("alpha", s.alpha, atanq(2 * p.xy / (p.yy - p.xx)) / 2);
  out.add("rx", s.rx, square_root(p.xx / p.area));
  out.add("ry", s.ry, square_root(p.yy / p.area));
  out.add("It", s.It, p.torsion);
  out.add("xm ym", s.shear_centre, p.shear_centre);
  out.add("Iw", s.Iw, p.warping);
  out.add("r0", s.r0, p.polar);
  compare_moduli(out, s, chain, p);
  out.add_all("W1", {w1.begin(), w1.end()}, {p.sectorial.begin(), p.sectorial.end() - 1});
  out.add_all("W2", {w2.begin(), w2.end()}, {p.sectorial.begin() + 1, p.sectorial.end()});
}

// Saint-Venant's series, of a strip as thick as 1 and as wide as b: the part beyond the first terms,
// where the hyperbolic tangent is 1, is that of the zeta function of 5.
Exact torsion_factor(Exact b) {
  const Exact zeta = strtoflt128("1.03692775514336992633136548645703416805708", nullptr);
  Exact sum = 31 * zeta / 32;
  for (int n = 1; n <= 31; n += 2)
    sum -= (1 - tanhq(n * pi * b / 2)) / (square(square(Exact(n))) * n);
  return b / 3 * (1 - 192 / (square(square(pi)) * pi * b) * sum);
}

// The greatest shear stress over that of an infinitely wide strip, by the same theory.
Exact stress_factor(Exact b) {
  Exact sum = 0;
  for (int n = 1; n <= 63; n += 2) sum += 1 / (square(Exact(n)) * coshq(n * pi * b / 2));
  return 1 - 8 / square(pi) * sum;
}

MEASURE(trvmxt_fb, "", origin_only) {
  const float B = draw.number(20, 200), H = draw.number(20, 200);
  const auto [s, w1, w2, status] =
      call<Written, std::array<float, 1>, std::array<float, 1>, int>(trvmxt_fb, B, H);
  const Exact b = B, h = H, t = lesser(b, h);
  out.add("A", s.A, b * h);
  out.add("Ix", s.Ix, b * cube(h) / 12);
  out.add("Iy", s.Iy, h * cube(b) / 12);
  out.add("rx", s.rx, h / square_root(12));
  out.add("Wx1", s.Wx1, b * square(h) / 6);
  out.add("Wpx", s.Wpx, b * square(h) / 4);
  out.add("Wy1", s.Wy1, h * square(b) / 6);
  out.add("Wpy", s.Wpy, h * square(b) / 4);
  const Exact ratio = greater(b, h) / t, torsion = torsion_factor(ratio) * square(square(t));
  out.add("It", s.It, torsion);
  out.add("Wt", s.Wt, torsion / (t * stress_factor(ratio)));
  out.add("Iw", s.Iw, cube(b * h) / 144);
  out.add("r0", s.r0, square_root((square(b) + square(h)) / 12));
}

}  // namespace

}  // namespace accuracy
