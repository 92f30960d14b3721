#include <algorithm>
#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/circles.h"

using namespace trelvin;

TRELVIN_ROUTINE trvard(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIn r,
                       TrvOut xc, TrvOut yc, TrvOut xt1, TrvOut yt1, TrvOut xt2, TrvOut yt2,
                       TrvIntOut status) {
  status = 0;
  double ux = double{x1} - x0;
  double uy = double{y1} - y0;
  double vx = double{x2} - x0;
  double vy = double{y2} - y0;
  const double length1 = std::sqrt(ux * ux + uy * uy);
  const double length2 = std::sqrt(vx * vx + vy * vy);
  if (!(r > tolerance && length1 > tolerance && length2 > tolerance)) return;
  ux /= length1;
  uy /= length1;
  vx /= length2;
  vy /= length2;
  const double sine = std::fabs(ux * vy - uy * vx);
  const double cosine = ux * vx + uy * vy;
  if (!(sine > tolerance)) return;
  const double tangent_length = r * (1 + cosine) / sine;
  if (tangent_length > std::min(length1, length2) + tolerance) return;

  // From the first tangent point along the normal of its segment, on the second segment's side.
  xt1 = static_cast<Real>(x0 + ux * tangent_length);
  yt1 = static_cast<Real>(y0 + uy * tangent_length);
  xt2 = static_cast<Real>(x0 + vx * tangent_length);
  yt2 = static_cast<Real>(y0 + vy * tangent_length);
  xc = static_cast<Real>(x0 + ux * tangent_length + r * (vx - cosine * ux) / sine);
  yc = static_cast<Real>(y0 + uy * tangent_length + r * (vy - cosine * uy) / sine);
  status = 1;
}

TRELVIN_ROUTINE trvenv(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn sweep, TrvOut xmin,
                       TrvOut ymin, TrvOut xmax, TrvOut ymax) {
  const double dx = double{xa} - xc;
  const double dy = double{ya} - yc;
  const double r = std::sqrt(dx * dx + dy * dy);
  const double turn = std::clamp<double>(sweep, -full_turn, full_turn);
  const double start = arc_tangent(dy, dx);
  const double first = std::min(start, start + turn);
  const double last = std::max(start, start + turn);

  // The ends, and where the arc passes the axes' directions.
  const double xe = dx * std::cos(turn) - dy * std::sin(turn);
  const double ye = dx * std::sin(turn) + dy * std::cos(turn);
  double box[] = {std::min(dx, xe), std::min(dy, ye), std::max(dx, xe), std::max(dy, ye)};
  constexpr double quarter = full_turn / 4;
  for (int i = -6; i <= 6; ++i) {
    if (i * quarter < first || i * quarter > last) continue;
    switch ((i + 8) % 4) {
      case 0:
        box[2] = r;
        break;
      case 1:
        box[3] = r;
        break;
      case 2:
        box[0] = -r;
        break;
      default:
        box[1] = -r;
        break;
    }
  }
  xmin = static_cast<Real>(xc + box[0]);
  ymin = static_cast<Real>(yc + box[1]);
  xmax = static_cast<Real>(xc + box[2]);
  ymax = static_cast<Real>(yc + box[3]);
}
