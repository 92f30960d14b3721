// Integrals over a polygon as sums over its edges.
//
// Terms and sums are double precision: the differences of coordinates and their leading products
// are then exact, and an outline far from the origin does not cancel to noise.
#include "numeric/real.h"
#include "trelvin/properties.h"

using namespace trelvin;

namespace {

struct Edge {
  double x1, y1;
  double x2, y2;
};

void close_outline(TrvArrayInOut x, TrvArrayInOut y, Integer n) {
  x[n] = x[0];
  y[n] = y[0];
}

// Sum of `term` over the edges of a closed outline. The grouping is fixed, so that compilers and
// vector widths agree to the bit: left to right for few edges, else eight interleaved sums.
template <class Term>
double sum_over_edges(TrvArrayIn x, TrvArrayIn y, Integer n, Term term) {
  constexpr Integer lanes = 8;
  const auto term_of_edge = [&](Integer i) { return term(Edge{x[i], y[i], x[i + 1], y[i + 1]}); };
  if (n < 2 * lanes) {
    double sum = 0;
    for (Integer i = 0; i < n; ++i) sum += term_of_edge(i);
    return sum;
  }
  double sums[lanes] = {};
  const Integer whole = n - n % lanes;
  for (Integer i = 0; i < whole; i += lanes) {
    for (Integer lane = 0; lane < lanes; ++lane) sums[lane] += term_of_edge(i + lane);
  }
  for (Integer i = whole; i < n; ++i) sums[i - whole] += term_of_edge(i);
  return ((sums[0] + sums[1]) + (sums[2] + sums[3])) + ((sums[4] + sums[5]) + (sums[6] + sums[7]));
}

}  // namespace

TRELVIN_ROUTINE trvapl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut area) {
  close_outline(x, y, n);
  const double sum =
      sum_over_edges(x, y, n, [](const Edge &e) { return (e.y2 - e.y1) * (e.x1 + e.x2); });
  area = static_cast<Real>(sum * 0.5);
}

TRELVIN_ROUTINE trvspl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut sx, TrvOut sy) {
  close_outline(x, y, n);
  const double sum_x = sum_over_edges(
      x, y, n, [](const Edge &e) { return ((e.y1 + e.y2) * e.y2 + e.y1 * e.y1) * (e.x1 - e.x2); });
  const double sum_y = sum_over_edges(
      x, y, n, [](const Edge &e) { return ((e.x1 + e.x2) * e.x2 + e.x1 * e.x1) * (e.y2 - e.y1); });
  sx = static_cast<Real>(sum_x / 6);
  sy = static_cast<Real>(sum_y / 6);
}

TRELVIN_ROUTINE trvipl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut ix, TrvOut iy,
                       TrvOut ixy) {
  close_outline(x, y, n);
  const double sum_x = sum_over_edges(x, y, n, [](const Edge &e) {
    return (e.y2 * e.y2 + e.y1 * e.y1) * (e.y1 + e.y2) * (e.x1 - e.x2);
  });
  const double sum_y = sum_over_edges(x, y, n, [](const Edge &e) {
    return (e.x2 * e.x2 + e.x1 * e.x1) * (e.x1 + e.x2) * (e.y2 - e.y1);
  });
  const double sum_xy = sum_over_edges(x, y, n, [](const Edge &e) {
    const double x_sum = e.x1 + e.x2;
    return (e.y2 - e.y1) *
           (x_sum * x_sum * (e.y1 + e.y2) + 2 * (e.x1 * e.x1 * e.y1 + e.x2 * e.x2 * e.y2));
  });
  ix = static_cast<Real>(sum_x / 12);
  iy = static_cast<Real>(sum_y / 12);
  ixy = static_cast<Real>(sum_xy / 24);
}
