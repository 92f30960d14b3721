#include "sections/torsion.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "sections/joints.h"

namespace trelvin {
namespace {

// A number in double precision for each plate, in the bits of the two arrays that receive Reals in
// the end. So a section of any size needs no memory besides.
class WideArray {
 public:
  WideArray(Real *first, Real *second) : first_(first), second_(second) {}

  [[nodiscard]] double get(Integer i) const {
    double value = 0;
    std::memcpy(&value, first_ + i, sizeof(Real));
    std::memcpy(reinterpret_cast<char *>(&value) + sizeof(Real), second_ + i, sizeof(Real));
    return value;
  }
  void set(Integer i, double value) const {
    std::memcpy(first_ + i, &value, sizeof(Real));
    std::memcpy(second_ + i, reinterpret_cast<const char *>(&value) + sizeof(Real), sizeof(Real));
  }

 private:
  static_assert(sizeof(double) == 2 * sizeof(Real));
  Real *first_, *second_;
};

// Sectorial coordinates about the start of the first plate, zero there. They stay exact if
// plates meet in that point.
class Sectorial {
 public:
  struct Ends {
    double start, end;
  };

  Sectorial(const PlateArrays &plates, WideArray starts) : plates_(plates), starts_(starts) {
    for (Integer k = 0; k < plates.n; ++k) starts_.set(k, at_joint(k));
  }

  [[nodiscard]] WideVector pole() const { return plates_[0].start; }

  [[nodiscard]] Ends of(Integer k) const {
    const Plate p = plates_[k];
    const double start = starts_.get(k);
    return {start,
            start + (p.start.x - pole().x) * p.along().y - (p.start.y - pole().y) * p.along().x};
  }

 private:
  // The value at the earlier end where plate k starts; most plates start at their neighbour in the list.
  [[nodiscard]] double at_joint(Integer k) const {
    const Plate p = plates_[k];
    for (Integer i = k - 1; i >= 0; --i) {
      const Plate earlier = plates_[i];
      if (same_place(earlier.end, p.start)) return of(i).end;
      if (same_place(earlier.start, p.start)) return of(i).start;
    }
    return 0;
  }

  const PlateArrays &plates_;
  WideArray starts_;
};

struct SectorialMoments {
  double mean = 0;
  double x = 0, y = 0;  // integrals of the coordinate times y and x, about the centroid
};

SectorialMoments moments_of(const Sectorial &sectorial, const PlateArrays &plates,
                            const PlateMoments &m) {
  SectorialMoments sum;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    const auto [start, end] = sectorial.of(i);
    const double sixth = p.area() / 6;
    const double at_start = sixth * (2 * start + end);
    const double at_end = sixth * (start + 2 * end);
    sum.mean += at_start + at_end;
    const WideVector u = p.start - m.centroid;
    const WideVector v = p.end - m.centroid;
    sum.x += at_start * u.y + at_end * v.y;
    sum.y += at_start * u.x + at_end * v.x;
  }
  sum.mean /= m.area;
  return sum;
}

}  // namespace

TorsionFigures torsion_figures(const PlateArrays &plates, const PlateMoments &m, Real *W1,
                               Real *W2) {
  const Sectorial sectorial(plates, WideArray(W1, W2));
  const SectorialMoments w = moments_of(sectorial, plates, m);

  // The shear centre is the pole whose sectorial coordinate has no moment about either axis. Plates
  // on one line have none about any point of it.
  const double det = m.xx_line * m.yy_line - m.xy_line * m.xy_line;
  const double polar = m.xx_line + m.yy_line;
  const bool on_one_line = det <= 1e-12 * polar * polar;
  const double ax = on_one_line ? 0 : (w.x * m.yy_line - w.y * m.xy_line) / det;
  const double ay = on_one_line ? 0 : (w.x * m.xy_line - w.y * m.xx_line) / det;
  const auto about_shear_centre = [&](double coordinate, WideVector p) {
    const auto [x, y] = p - m.centroid;
    return coordinate - w.mean - ax * y + ay * x;
  };

  TorsionFigures f = {};
  double thickest = 0;
  for (Integer i = 0; i < plates.n; ++i) {
    const Plate p = plates[i];
    const auto [start, end] = sectorial.of(i);
    const double w1 = about_shear_centre(start, p.start);
    const double w2 = about_shear_centre(end, p.end);
    W1[i] = static_cast<Real>(w1);
    W2[i] = static_cast<Real>(w2);
    f.Iw += p.area() * (w1 * w1 + w1 * w2 + w2 * w2) / 3;
    f.It += p.area() * p.t * p.t / 3;
    thickest = std::max(thickest, p.t);
  }
  f.Wt = f.It / thickest;
  const WideVector shear_centre = on_one_line ? m.centroid : sectorial.pole() + WideVector{ax, ay};
  f.xm = shear_centre.x;
  f.ym = shear_centre.y;
  const auto [x, y] = shear_centre - m.centroid;
  f.r0 = std::sqrt((m.xx + m.yy) / m.area + x * x + y * y);
  return f;
}

}  // namespace trelvin
