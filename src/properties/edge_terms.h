// The terms of the edge sums, and the sums by lanes for vectors of one width.
//
// Sources compiled for different instruction sets include this. All is local to the source, so that
// the linker can not take a function from the wrong one.
#pragma once

#if defined(__GNUC__) && defined(__SSE2__)
#include <immintrin.h>
#endif

#include <cstring>

#include "properties/edge_sums.h"

namespace trelvin {
namespace {

// One number, or as many neighbours as fit.
template <class Number>
Number widened(const Real *first);

template <>
[[maybe_unused]] inline double widened(const Real *first) {
  return *first;
}

// Numbers on which arithmetic works element by element. Microsoft's compiler has none: there each is
// summed by itself, to the same bits.
#ifdef __GNUC__
using Doubles2 __attribute__((vector_size(16))) = double;
using BaselineNumber = Doubles2;

template <>
[[maybe_unused]] inline Doubles2 widened(const Real *first) {
#ifdef __SSE2__
  const __m128i both = _mm_loadl_epi64(reinterpret_cast<const __m128i *>(first));
  return _mm_cvtps_pd(_mm_castsi128_ps(both));
#else
  return Doubles2{first[0], first[1]};
#endif
}
#ifdef __AVX2__
using Doubles4 __attribute__((vector_size(32))) = double;

template <>
[[maybe_unused]] inline Doubles4 widened(const Real *first) {
  return _mm256_cvtps_pd(_mm_loadu_ps(first));
}
#endif
#else
using BaselineNumber = double;
#endif

// An edge, or neighbouring edges. Both ends are loaded and converted: to shuffle the second ends
// together from the first takes about as long.
template <class Number>
struct Edge {
  Number x1, y1;
  Number x2, y2;
};

template <class Number>
inline Edge<Number> edge_at(const Real *x, const Real *y) {
  return {widened<Number>(x), widened<Number>(y), widened<Number>(x + 1), widened<Number>(y + 1)};
}

// By Green's theorem the integral over the region is one along its outline, which a straight edge
// contributes to with a polynomial of its ends:
//   A = int x dy,  Sx = -int y^2/2 dx,  Sy = int x^2/2 dy,
//   Ix = -int y^3/3 dx,  Iy = int x^3/3 dy,  Ixy = int x^2*y/2 dy.
// Differences of coordinates and their leading products are exact in double precision, unless the
// coordinates differ in size by more than it holds: an outline far from the origin keeps its digits.
template <class Number>
inline void add(const Edge<Number> &e, Number (&sums)[AreaSum::count]) {
  sums[0] += (e.y2 - e.y1) * (e.x1 + e.x2);
}

template <class Number>
inline void add(const Edge<Number> &e, Number (&sums)[FirstMomentSums::count]) {
  sums[0] += ((e.y1 + e.y2) * e.y2 + e.y1 * e.y1) * (e.x1 - e.x2);
  sums[1] += ((e.x1 + e.x2) * e.x2 + e.x1 * e.x1) * (e.y2 - e.y1);
}

template <class Number>
inline void add(const Edge<Number> &e, Number (&sums)[SecondMomentSums::count]) {
  const Number x = e.x1 + e.x2;
  const Number y = e.y1 + e.y2;
  const Number dy = e.y2 - e.y1;
  sums[0] += (e.y2 * e.y2 + e.y1 * e.y1) * y * (e.x1 - e.x2);
  sums[1] += (e.x2 * e.x2 + e.x1 * e.x1) * x * dy;
  sums[2] += dy * (x * x * y + 2 * (e.x1 * e.x1 * e.y1 + e.x2 * e.x2 * e.y2));
}

// Lanes side by side: element k of vector v is that of lane v*width + k.
template <class Vector, int count>
struct Lanes {
  static constexpr Integer width = sizeof(Vector) / 8;  // numbers of 8 bytes
  static constexpr Integer vectors = lanes / width;
  Vector sums[vectors][count];

  void split(double (&each)[lanes][count]) const {
    for (Integer v = 0; v < vectors; ++v) {
      for (int s = 0; s < count; ++s) {
        double elements[width];
        std::memcpy(elements, &sums[v][s], sizeof elements);
        for (Integer k = 0; k < width; ++k) each[v * width + k][s] = elements[k];
      }
    }
  }
};

template <class Vector, class Result>
Result sum_by_lanes(const Real *x, const Real *y, Integer n) {
  constexpr int count = Result::count;
  using L = Lanes<Vector, count>;
  // The last edges are taken one by one: they end at the vertex that has just been written behind the
  // others, and a vector over it would wait for that.
  L all = {};
  Integer i = 0;
  for (; i < n - lanes; i += lanes) {
    for (Integer v = 0; v < L::vectors; ++v) {
      add(edge_at<Vector>(x + i + v * L::width, y + i + v * L::width), all.sums[v]);
    }
  }
  for (Integer v = 0; v < L::vectors && i < n - L::width; ++v, i += L::width) {
    add(edge_at<Vector>(x + i, y + i), all.sums[v]);
  }
  double sums[lanes][count];
  all.split(sums);
  for (; i < n; ++i) add(edge_at<double>(x + i, y + i), sums[i % lanes]);
  Result result;
  for (int s = 0; s < count; ++s) {
    result.values[s] = ((sums[0][s] + sums[1][s]) + (sums[2][s] + sums[3][s])) +
                       ((sums[4][s] + sums[5][s]) + (sums[6][s] + sums[7][s]));
  }
  return result;
}

template <class Vector>
constexpr SumsByLanes sums_by = {sum_by_lanes<Vector, AreaSum>,
                                 sum_by_lanes<Vector, FirstMomentSums>,
                                 sum_by_lanes<Vector, SecondMomentSums>};

}  // namespace
}  // namespace trelvin
