#include <algorithm>
#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/plane.h"
#include "trelvin/properties.h"
#include "trelvin/sections.h"

using namespace trelvin;

namespace {

// A plate as the rectangle about its centre line.
struct Plate {
  double x1, y1, x2, y2;
  double t;

  [[nodiscard]] double dx() const { return x2 - x1; }
  [[nodiscard]] double dy() const { return y2 - y1; }
  [[nodiscard]] double length() const { return std::sqrt(dx() * dx() + dy() * dy()); }
  [[nodiscard]] double area() const { return length() * t; }
  [[nodiscard]] double x_middle() const { return (x1 + x2) / 2; }
  [[nodiscard]] double y_middle() const { return (y1 + y2) / 2; }
};

struct Plates {
  Integer n;
  TrvArrayIn X1, Y1, X2, Y2, T;

  Plate operator[](Integer i) const { return {X1[i], Y1[i], X2[i], Y2[i], T[i]}; }
};

struct Moments {
  double area = 0;
  double xs = 0, ys = 0;                         // centroid
  double xx = 0, yy = 0, xy = 0;                 // integrals of y^2, x^2 and x*y about the centroid
  double xx_line = 0, yy_line = 0, xy_line = 0;  // those of the centre lines alone
};

Moments moments_of(const Plates &plates) {
  Moments m;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    m.area += p.area();
    m.xs += p.area() * p.x_middle();
    m.ys += p.area() * p.y_middle();
  }
  m.xs /= m.area;
  m.ys /= m.area;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    const double a = p.area();
    const double x = p.x_middle() - m.xs;
    const double y = p.y_middle() - m.ys;
    m.xx_line += a * (y * y + p.dy() * p.dy() / 12);
    m.yy_line += a * (x * x + p.dx() * p.dx() / 12);
    m.xy_line += a * (x * y + p.dx() * p.dy() / 12);
    // Across the plate, along its normal.
    const double thickness = p.area() * (p.t / p.length()) * (p.t / p.length()) / 12;
    m.xx += thickness * p.dx() * p.dx();
    m.yy += thickness * p.dy() * p.dy();
    m.xy -= thickness * p.dx() * p.dy();
  }
  m.xx += m.xx_line;
  m.yy += m.yy_line;
  m.xy += m.xy_line;
  return m;
}

// The section by one coordinate of its points: extremes, and what lies below a value. `across`
// swaps the coordinates.
class Profile {
 public:
  Profile(const Plates &plates, bool across) : plates_(plates), across_(across) {}

  struct Range {
    double low, high;
  };

  [[nodiscard]] Range range() const {
    Range all = {HUGE_VAL, -HUGE_VAL};
    for (Integer i = 0; i < plates_.n; ++i) {
      const Plate p = plate(i);
      const double half = half_thickness(p);
      all.low = std::min(all.low, std::min(p.y1, p.y2) - half);
      all.high = std::max(all.high, std::max(p.y1, p.y2) + half);
    }
    return all;
  }

  // Where half of the area lies on either side. The bracket halves until no number is inside it.
  [[nodiscard]] double equal_area() const {
    Range bracket = range();
    double half = 0;
    for (Integer i = 0; i < plates_.n; ++i) half += plate(i).area() / 2;
    for (;;) {
      const double middle = (bracket.low + bracket.high) / 2;
      if (!(middle > bracket.low && middle < bracket.high)) return middle;
      double below = 0;
      for (Integer i = 0; i < plates_.n; ++i) below += part_below(plate(i), middle).area;
      (below < half ? bracket.low : bracket.high) = middle;
    }
  }

  // Sum of area times distance from the axis at y.
  [[nodiscard]] double plastic_modulus(double y) const {
    double sum = 0;
    for (Integer i = 0; i < plates_.n; ++i) {
      const Plate p = plate(i);
      const Part below = part_below(p, y);
      sum += p.area() * (p.y_middle() - y) - 2 * (below.moment - below.area * y);
    }
    return sum;
  }

 private:
  struct Part {
    double area, moment;
  };

  [[nodiscard]] Plate plate(Integer i) const {
    const Plate p = plates_[i];
    return across_ ? Plate{p.y1, p.x1, p.y2, p.x2, p.t} : p;
  }

  // Half of what the thickness adds to the extent in y.
  static double half_thickness(const Plate &p) {
    return 0.5 * p.t * std::fabs(p.dx()) / p.length();
  }

  // The part of a plate below y: across the line, its width is that of the rectangle cut at y.
  static Part part_below(const Plate &p, double y) {
    const double half = half_thickness(p);
    const double rise = std::fabs(p.dy()) / 2;
    const double reach = std::max(half, rise);
    const double ramp = std::min(half, rise);
    const double u = y - p.y_middle();
    if (u <= -(reach + ramp)) return {0, 0};
    if (u >= reach + ramp) return {p.area(), p.area() * p.y_middle()};

    // The width grows along the ramp, is constant, and falls again; area and moment by its pieces.
    const double width = p.area() / (2 * reach);
    const auto piece = [&](double from, double to, double w_from, double w_to) -> Part {
      const double h = to - from;
      return {h * (w_from + w_to) / 2, h * (w_from * (2 * from + to) + w_to * (from + 2 * to)) / 6};
    };
    Part below = {0, 0};
    const auto add = [&](double from, double to, double w_from, double w_to) {
      if (u <= from || !(to > from)) return;
      const double end = std::min(u, to);
      const Part part =
          piece(from, end, w_from, w_from + (w_to - w_from) * (end - from) / (to - from));
      below.area += part.area;
      below.moment += part.moment;
    };
    add(-reach - ramp, -reach + ramp, 0, width);
    add(-reach + ramp, reach - ramp, width, width);
    add(reach - ramp, reach + ramp, width, 0);
    below.moment += below.area * p.y_middle();
    return below;
  }

  const Plates &plates_;
  bool across_;
};

bool same_place(double xa, double ya, double xb, double yb) {
  return std::fabs(xa - xb) <= tolerance && std::fabs(ya - yb) <= tolerance;
}

struct End {
  Integer plate;
  bool second;
};

// An end of a plate before plate k at a place; plate -1 where there is none.
End earlier_end(const Plates &plates, Integer k, double x, double y) {
  for (Integer i = 0; i < k; ++i) {
    const Plate p = plates[i];
    if (same_place(p.x1, p.y1, x, y)) return {i, false};
    if (same_place(p.x2, p.y2, x, y)) return {i, true};
  }
  return {-1, false};
}

// Position of the first plate that does not continue an open section, 0 where all do.
Integer first_loose_plate(const Plates &plates) {
  for (Integer k = 1; k < plates.n; ++k) {
    const Plate p = plates[k];
    const bool starts = earlier_end(plates, k, p.x1, p.y1).plate >= 0;
    const bool closes = earlier_end(plates, k, p.x2, p.y2).plate >= 0;
    if (!starts || closes) return k + 1;
  }
  return 0;
}

// Sectorial coordinates about a pole, zero at the first start, into W1 and W2; their mean.
double sectorial(const Plates &plates, double xp, double yp, TrvArrayOut W1, TrvArrayOut W2) {
  double sum = 0;
  double area = 0;
  for (Integer k = 0; k < plates.n; ++k) {
    const Plate p = plates[k];
    const End joint = earlier_end(plates, k, p.x1, p.y1);
    const double w1 = joint.plate < 0 ? 0 : (joint.second ? W2 : W1)[joint.plate];
    const double w2 = w1 + (p.x1 - xp) * p.dy() - (p.y1 - yp) * p.dx();
    W1[k] = static_cast<Real>(w1);
    W2[k] = static_cast<Real>(w2);
    sum += p.area() * (w1 + w2) / 2;
    area += p.area();
  }
  return sum / area;
}

struct Principal {
  Real i1, i2, alpha;
};

Principal principal(double ix, double iy, double ixy) {
  Principal p;
  trvinp(static_cast<Real>(ix), static_cast<Real>(iy), static_cast<Real>(ixy), p.i1, p.i2, p.alpha);
  return p;
}

}  // namespace

TRELVIN_ROUTINE trvmxt(TrvIntIn n, TrvArrayIn X1, TrvArrayIn Y1, TrvArrayIn X2, TrvArrayIn Y2,
                       TrvArrayIn T, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                       TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                       TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                       TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym, TrvOut Iw,
                       TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status) {
  status = -1;
  if (n < 1) return;
  const Plates plates = {n, X1, Y1, X2, Y2, T};
  for (Integer i = 0; i < n; ++i) {
    if (!(plates[i].length() > tolerance && plates[i].t > tolerance)) return;
  }

  const Moments m = moments_of(plates);
  const Profile by_height(plates, false);
  const Profile by_width(plates, true);
  const auto height = by_height.range();
  const auto width = by_width.range();
  const double y_equal = by_height.equal_area();
  const double x_equal = by_width.equal_area();
  const Principal axes = principal(m.xx, m.yy, m.xy);
  A = static_cast<Real>(m.area);
  xs = static_cast<Real>(m.xs);
  ys = static_cast<Real>(m.ys);
  Ix = static_cast<Real>(m.xx);
  Iy = static_cast<Real>(m.yy);
  Ixy = static_cast<Real>(m.xy);
  I1 = axes.i1;
  I2 = axes.i2;
  alpha = axes.alpha;
  rx = static_cast<Real>(std::sqrt(m.xx / m.area));
  ry = static_cast<Real>(std::sqrt(m.yy / m.area));
  Wx1 = static_cast<Real>(m.xx / (height.high - m.ys));
  Wx2 = static_cast<Real>(m.xx / (m.ys - height.low));
  Wy1 = static_cast<Real>(m.yy / (width.high - m.xs));
  Wy2 = static_cast<Real>(m.yy / (m.xs - width.low));
  Wpx = static_cast<Real>(by_height.plastic_modulus(y_equal));
  Wpy = static_cast<Real>(by_width.plastic_modulus(x_equal));
  xp = static_cast<Real>(x_equal);
  yp = static_cast<Real>(y_equal);

  status = first_loose_plate(plates);
  if (status != 0) return;
  double torsion = 0;
  double thickest = 0;
  for (Integer i = 0; i < n; ++i) {
    const Plate p = plates[i];
    torsion += p.area() * p.t * p.t / 3;
    thickest = std::max(thickest, p.t);
  }
  It = static_cast<Real>(torsion);
  Wt = static_cast<Real>(torsion / thickest);

  // The shear centre is the pole whose sectorial coordinate has no moment about either axis.
  double wx = 0;
  double wy = 0;
  const double mean_about_centroid = sectorial(plates, m.xs, m.ys, W1, W2);
  for (Integer i = 0; i < n; ++i) {
    const Plate p = plates[i];
    const double w1 = W1[i] - mean_about_centroid;
    const double w2 = W2[i] - mean_about_centroid;
    const double at_start = (2 * w1 + w2) / 6 * p.area();
    const double at_end = (w1 + 2 * w2) / 6 * p.area();
    wx += at_start * (p.y1 - m.ys) + at_end * (p.y2 - m.ys);
    wy += at_start * (p.x1 - m.xs) + at_end * (p.x2 - m.xs);
  }
  const double det = m.xx_line * m.yy_line - m.xy_line * m.xy_line;
  const double polar = m.xx_line + m.yy_line;
  const bool on_one_line = det <= 1e-12 * polar * polar;
  const double x_shift = on_one_line ? 0 : (wx * m.yy_line - wy * m.xy_line) / det;
  const double y_shift = on_one_line ? 0 : (wx * m.xy_line - wy * m.xx_line) / det;
  const double mean = sectorial(plates, m.xs + x_shift, m.ys + y_shift, W1, W2);
  double warping = 0;
  for (Integer i = 0; i < n; ++i) {
    const double w1 = W1[i] - mean;
    const double w2 = W2[i] - mean;
    warping += plates[i].area() * (w1 * w1 + w1 * w2 + w2 * w2) / 3;
    W1[i] = static_cast<Real>(w1);
    W2[i] = static_cast<Real>(w2);
  }
  xm = static_cast<Real>(m.xs + x_shift);
  ym = static_cast<Real>(m.ys + y_shift);
  Iw = static_cast<Real>(warping);
  r0 = static_cast<Real>(std::sqrt((m.xx + m.yy) / m.area + x_shift * x_shift + y_shift * y_shift));
}

TRELVIN_ROUTINE trvmxt_fb(TrvIn B, TrvIn H, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                          TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                          TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                          TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym,
                          TrvOut Iw, TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status) {
  status = -1;
  if (!(B > tolerance && H > tolerance)) return;
  const double b = B;
  const double h = H;
  const double ix = b * h * h * h / 12;
  const double iy = h * b * b * b / 12;
  const Principal axes = principal(ix, iy, 0);
  A = static_cast<Real>(b * h);
  xs = ys = xp = yp = xm = ym = 0;
  Ix = static_cast<Real>(ix);
  Iy = static_cast<Real>(iy);
  Ixy = 0;
  I1 = axes.i1;
  I2 = axes.i2;
  alpha = axes.alpha;
  rx = static_cast<Real>(h / std::sqrt(12.0));
  ry = static_cast<Real>(b / std::sqrt(12.0));
  Wx1 = Wx2 = static_cast<Real>(b * h * h / 6);
  Wy1 = Wy2 = static_cast<Real>(h * b * b / 6);
  Wpx = static_cast<Real>(b * h * h / 4);
  Wpy = static_cast<Real>(h * b * b / 4);

  // Saint-Venant's series over odd k; its terms fall with k^5 at the least.
  constexpr double half_turn = full_turn / 2;
  constexpr int last = 99;
  const double length = std::max(b, h);
  const double t = std::min(b, h);
  double twist = 0;
  double stress = 0;
  for (int k = last; k >= 1; k -= 2) {
    const double argument = k * half_turn * length / (2 * t);
    const double k2 = static_cast<double>(k) * k;
    twist += std::tanh(argument) / (k2 * k2 * k);
    stress += 1 / (k2 * std::cosh(argument));
  }
  const double pi2 = half_turn * half_turn;
  const double torsion =
      length * t * t * t / 3 * (1 - 192 / (pi2 * pi2 * half_turn) * (t / length) * twist);
  It = static_cast<Real>(torsion);
  Wt = static_cast<Real>(torsion / (t * (1 - 8 / pi2 * stress)));
  Iw = static_cast<Real>(b * h * (b * h) * (b * h) / 144);
  r0 = static_cast<Real>(std::sqrt((b * b + h * h) / 12));
  W1[0] = 0;
  W2[0] = 0;
  status = 0;
}
