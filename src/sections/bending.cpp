#include "sections/bending.h"

#include <algorithm>
#include <cmath>

namespace trelvin {

PlateMoments moments_of(const PlateArrays &plates) {
  PlateMoments m;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    const double a = p.area();
    m.area += a;
    m.centroid = m.centroid + p.middle() * a;
  }
  m.centroid = m.centroid / m.area;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    const auto [dx, dy] = p.along();
    const auto [x, y] = p.middle() - m.centroid;
    const double a = p.area();
    m.xx_line += a * (y * y + dy * dy / 12);
    m.yy_line += a * (x * x + dx * dx / 12);
    m.xy_line += a * (x * y + dx * dy / 12);
    // Across the plate, along its normal.
    const double slenderness = p.t / length(p.along());
    const double across = a * slenderness * slenderness / 12;
    m.xx += across * dx * dx;
    m.yy += across * dy * dy;
    m.xy -= across * dx * dy;
  }
  m.xx += m.xx_line;
  m.yy += m.yy_line;
  m.xy += m.xy_line;
  return m;
}

namespace {

// A plate's width by the height, or its height by the abscissa. From middle - (reach + ramp) it
// grows along a ramp of twice that length, is constant, and falls as it has grown.
struct Trapezoid {
  double area;
  double middle, reach, ramp;

  [[nodiscard]] double width() const { return area / (2 * reach); }
  [[nodiscard]] double outer() const { return reach + ramp; }
  [[nodiscard]] double inner() const { return reach - ramp; }

  // Area beyond a distance from the middle.
  [[nodiscard]] double tail(double u) const {
    if (u >= outer()) return 0;
    if (u <= inner()) return width() * (reach - u);
    const double rest = outer() - u;
    return width() * rest * rest / (4 * ramp);
  }

  // Moment of that area about the middle.
  [[nodiscard]] double moment_of_tail(double u) const {
    if (u >= outer()) return 0;
    if (u > inner()) return tail(u) * (u + (outer() - u) / 3);
    return width() * (ramp * (reach - ramp / 3) + (inner() * inner() - u * u) / 2);
  }

  // Integral of the distance from a level.
  [[nodiscard]] double plastic_modulus(double level) const {
    const double u = std::fabs(level - middle);
    return area * u + 2 * (moment_of_tail(u) - u * tail(u));
  }
};

// What lies below a level, and the quadratic by which that grows up to the next corner.
struct Level {
  double area = 0;
  double width = 0, slope = 0;
  double from = -HUGE_VAL, to = HUGE_VAL;  // the corners on either side

  void add(const Trapezoid &p, double level) {
    const double u = level - p.middle;
    for (const double corner : {-p.outer(), -p.inner(), p.inner(), p.outer()}) {
      const double place = p.middle + corner;
      if (u < corner) {
        to = std::min(to, place);
      } else {
        from = std::max(from, place);
      }
    }
    const double tail = p.tail(std::fabs(u));
    area += u < 0 ? tail : p.area - tail;
    if (u < -p.outer() || u >= p.outer()) return;
    if (u >= -p.inner() && u < p.inner()) {
      width += p.width();
      return;
    }
    const double steepness = p.width() / (2 * p.ramp);
    width += steepness * (p.outer() - std::fabs(u));
    slope += u < 0 ? steepness : -steepness;
  }

  [[nodiscard]] double growth(double step) const { return (width + slope * step / 2) * step; }

  // The step that adds an area.
  [[nodiscard]] double step(double more) const {
    return 2 * more / (width + std::sqrt(std::max(width * width + 2 * slope * more, 0.0)));
  }
};

struct Range {
  double low, high;
};

// The section along one of its axes.
class Spread {
 public:
  enum class Axis { x, y };

  Spread(const PlateArrays &plates, Axis axis) : plates_(plates), axis_(axis) {}

  [[nodiscard]] Range range() const {
    Range all = {HUGE_VAL, -HUGE_VAL};
    for (Integer i = 0; i < plates_.n; ++i) {
      const Trapezoid p = plate(i);
      all.low = std::min(all.low, p.middle - p.outer());
      all.high = std::max(all.high, p.middle + p.outer());
    }
    return all;
  }

  // Where half of the area lies on either side; in the middle of a gap that parts the halves.
  [[nodiscard]] double equal_area(Range bracket, double area) const {
    const double rounding = 1e-13 * area;
    for (;;) {
      const double middle = (bracket.low + bracket.high) / 2;
      if (!(middle > bracket.low && middle < bracket.high)) return middle;
      Level level;
      for (Integer i = 0; i < plates_.n; ++i) level.add(plate(i), middle);
      const double missing = area / 2 - level.area;
      const bool in_gap = level.width == 0 && level.slope == 0;
      if (in_gap && std::fabs(missing) <= rounding) return (level.from + level.to) / 2;
      // A level on a corner may belong to a gap beyond it: the search goes on from there.
      if (missing >= level.growth(level.to - middle) - rounding) {
        bracket.low = std::max(level.to, middle);
      } else if (missing <= level.growth(level.from - middle) + rounding) {
        bracket.high = std::min(level.from, middle);
      } else {
        return middle + level.step(missing);
      }
    }
  }

  [[nodiscard]] double plastic_modulus(double level) const {
    double sum = 0;
    for (Integer i = 0; i < plates_.n; ++i) sum += plate(i).plastic_modulus(level);
    return sum;
  }

 private:
  [[nodiscard]] Trapezoid plate(Integer i) const {
    const Plate p = plates_[i];
    const auto [dx, dy] = p.along();
    const bool along_y = axis_ == Axis::y;
    const double rise = std::fabs(along_y ? dy : dx) / 2;
    const double half_thickness = p.t * std::fabs(along_y ? dx : dy) / (2 * length(p.along()));
    return {p.area(), along_y ? p.middle().y : p.middle().x, std::max(rise, half_thickness),
            std::min(rise, half_thickness)};
  }

  const PlateArrays &plates_;
  Axis axis_;
};

}  // namespace

BendingFigures bending_figures(const PlateArrays &plates, const PlateMoments &m) {
  const Spread upwards(plates, Spread::Axis::y);
  const Spread sideways(plates, Spread::Axis::x);
  const Range height = upwards.range();
  const Range width = sideways.range();
  const PrincipalAxes principal = principal_axes(m.xx, m.yy, m.xy);
  BendingFigures f;
  f.A = m.area;
  f.xs = m.centroid.x;
  f.ys = m.centroid.y;
  f.Ix = m.xx;
  f.Iy = m.yy;
  f.Ixy = m.xy;
  f.I1 = principal.first;
  f.I2 = principal.second;
  f.alpha = principal.alpha;
  f.rx = std::sqrt(m.xx / m.area);
  f.ry = std::sqrt(m.yy / m.area);
  f.Wx1 = m.xx / (height.high - m.centroid.y);
  f.Wx2 = m.xx / (m.centroid.y - height.low);
  f.Wy1 = m.yy / (width.high - m.centroid.x);
  f.Wy2 = m.yy / (m.centroid.x - width.low);
  f.xp = sideways.equal_area(width, m.area);
  f.yp = upwards.equal_area(height, m.area);
  f.Wpx = upwards.plastic_modulus(f.yp);
  f.Wpy = sideways.plastic_modulus(f.xp);
  return f;
}

}  // namespace trelvin
