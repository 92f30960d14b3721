#include "lists/cell_index.h"

#include <cfloat>

#include "lists/keys.h"

namespace trelvin {
namespace {

constexpr double tolerances_per_cell = 4;
constexpr Integer few = 16;  // points that need no index

}  // namespace

// Without a tolerance cells are so small that every number has its own; with an infinite one a single
// cell holds everything. The reach is a little more than the tolerance, for the roundings on the way.
CellIndex::CellIndex(std::int64_t capacity, Real tol)
    : cells_per_length_(1 / (tol > 0 ? tolerances_per_cell * double{tol} : DBL_MIN)),
      reach_(1 / tolerances_per_cell + 1e-6) {
  if (capacity <= few || capacity > INT32_MAX) return;
  std::uint64_t chains = 1;
  while (chains < static_cast<std::uint64_t>(capacity)) chains *= 2;
  chains_ = work_array<Chain>(chains);
  next_ = work_array<Integer>(static_cast<std::uint64_t>(capacity));
  chained_ = chains_ && next_;
  mask_ = static_cast<std::uint32_t>(chains - 1);
  if (chained_) std::fill_n(chains_.get(), chains, Chain{-1, -1});
}

void CellIndex::enter(Point3 p) {
  const Integer entry = count_++;
  if (!chained_) return;
  const std::uint32_t x = span_of(p.x, 0).first;
  const std::uint32_t y = span_of(p.y, 0).first;
  const std::uint32_t z = span_of(p.z, 0).first;
  Chain &chain = chains_[chain_of(x, y, z)];
  (chain.first < 0 ? chain.first : next_[chain.last]) = entry;
  chain.last = entry;
  next_[entry] = -1;
}

// Where numbers lie cells apart from their neighbours, each has a cell of its own, named by its bits:
// only equal ones agree there. Infinities and NaNs are among them.
CellIndex::Span CellIndex::span_of(Real value, double reach) const {
  constexpr double finest = 268435456;  // 2^28 cells from zero neighbours are 16 cells apart
  const double place = value * cells_per_length_ + 0.5;  // zero is in the middle of a cell
  if (cells_per_length_ == 0) return {0, 0};
  if (!(std::fabs(place) < finest)) return {bits_of(value), 0};
  const auto cell = [](double at) {
    const auto towards_zero = static_cast<std::int32_t>(at);
    return towards_zero - (towards_zero > at ? 1 : 0);
  };
  const std::int32_t first = cell(place - reach);
  return {static_cast<std::uint32_t>(first), cell(place + reach) > first ? 1U : 0U};
}

}  // namespace trelvin
