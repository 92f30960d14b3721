// A grid of cells over points, to find those within a tolerance of another.
#pragma once

#include <cstdint>

#include "lists/keys.h"
#include "vectors/vectors.h"

namespace trelvin {

// Cells some tolerances wide, numbered at random: different cells may share a number.
class Grid {
 public:
  Grid(Real tol, double tolerances_per_cell, int bits);

  struct Cell {
    std::uint32_t number;
    bool holds_all;  // that matches the point
  };
  [[nodiscard]] Cell cell_of(Point3 p) const {
    const Span x = span_of(p.x);
    const Span y = span_of(p.y);
    const Span z = span_of(p.z);
    return {number(x.own, y.own, z.own), x.single() && y.single() && z.single()};
  }

  // Writes the numbers of the cells that hold all points that match p, up to 8, each once, and
  // returns how many they are.
  int cells_around(Point3 p, std::uint32_t *cells) const;

 private:
  // Places along an axis: a number's own, and the one or two in reach, from `first` to before `end`.
  struct Span {
    std::uint32_t own, first, end;
    [[nodiscard]] bool single() const { return end - first == 1; }
  };

  // If a number is so large that adjacent numbers lie cells apart, its place is its bits: only equal
  // numbers match there. This includes infinities and NaNs.
  [[nodiscard]] Span span_of(Real value) const {
    constexpr double finest = 268435456;  // 2^28 cells from zero neighbours are 16 cells apart
    const double at = value * cells_per_length_ + 0.5;  // zero is in the middle of a cell
    if (!(std::fabs(at) < finest)) {
      const std::uint32_t own = endless_ ? 0 : bits_of(value);
      return {own, own, own + 1};
    }
    const std::int32_t floor = static_cast<std::int32_t>(at) - (at < 0 ? 1 : 0);
    const double within = at - floor;
    const auto own = static_cast<std::uint32_t>(floor);
    if (within < reach_) return {own, own - 1, own + 1};
    return {own, own, within < 1 - reach_ ? own + 1 : own + 2};
  }

  [[nodiscard]] std::uint32_t number(std::uint32_t x, std::uint32_t y, std::uint32_t z) const {
    std::uint32_t mixed = x * 0x9E3779B1U + y * 0x85EBCA77U + z * 0xC2B2AE3DU;
    mixed = (mixed ^ (mixed >> 15)) * 0x2C1B3C6DU;
    mixed = (mixed ^ (mixed >> 12)) * 0x297A2D39U;
    return mixed >> shift_;
  }

  double cells_per_length_;
  double reach_;
  bool endless_;  // one cell holds everything
  int shift_;
};

}  // namespace trelvin
