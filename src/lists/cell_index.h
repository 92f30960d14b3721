// A grid of cells over points, for those that may lie within a tolerance of another.
#pragma once

#include <algorithm>
#include <cstdint>

#include "lists/work_array.h"
#include "vectors/vectors.h"

namespace trelvin {

// Points are entered one after the other and counted from 0. The index knows their cells only: it
// proposes candidates, every point that agrees with the one asked for among them, and whoever asks
// decides. Where memory is short, all points are candidates.
class CellIndex {
 public:
  CellIndex(std::int64_t capacity, Real tol);

  void enter(Point3 p);

  // Candidates cell by cell, each cell's in ascending order; one cell's end when `visit` says false.
  // Returns the number of cells.
  template <class Visit>
  int visit_candidates(Point3 p, Visit visit) const {
    if (!chained_) {
      for (Integer i = 0; i < count_ && visit(i);) ++i;
      return 1;
    }
    const Span x = span_of(p.x, reach_);
    const Span y = span_of(p.y, reach_);
    const Span z = span_of(p.z, reach_);
    std::uint32_t chains[8];
    int known = 0;
    for (std::uint32_t i = 0; i <= x.more; ++i) {
      for (std::uint32_t j = 0; j <= y.more; ++j) {
        for (std::uint32_t k = 0; k <= z.more; ++k) {
          const std::uint32_t chain = chain_of(x.first + i, y.first + j, z.first + k);
          if (std::find(chains, chains + known, chain) != chains + known) continue;
          chains[known++] = chain;
          Integer entry = chains_[chain].first;
          while (entry >= 0 && visit(entry)) entry = next_[entry];
        }
      }
    }
    return known;
  }

 private:
  // Cells along an axis: `first`, and the one after it where `more` is 1.
  struct Span {
    std::uint32_t first, more;
  };
  struct Chain {
    Integer first, last;  // -1 where there is none
  };

  [[nodiscard]] Span span_of(Real value, double reach) const;
  [[nodiscard]] std::uint32_t chain_of(std::uint32_t x, std::uint32_t y, std::uint32_t z) const {
    std::uint32_t mixed = x * 0x9E3779B1U + y * 0x85EBCA77U + z * 0xC2B2AE3DU;
    mixed = (mixed ^ (mixed >> 15)) * 0x2C1B3C6DU;
    return (mixed ^ (mixed >> 13)) & mask_;
  }

  double cells_per_length_;
  double reach_;
  std::uint32_t mask_ = 0;
  Integer count_ = 0;
  bool chained_ = false;
  WorkArray<Chain> chains_;
  WorkArray<Integer> next_;
};

}  // namespace trelvin
