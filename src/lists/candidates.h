// Pairs and places of points that may lie anywhere in their lists.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "lists/grid.h"
#include "lists/keys.h"
#include "lists/points.h"
#include "lists/work_array.h"

namespace trelvin {

// An entry of a grid: a point with its position in its list, from 0.
struct GridEntry {
  Point3 point;
  Integer code;  // the position; its complement where the point's own cell is not all it takes

  static Integer encode(Integer position, bool one_cell) { return one_cell ? position : ~position; }
  [[nodiscard]] bool one_cell() const { return code >= 0; }
  [[nodiscard]] Integer position() const { return code >= 0 ? code : ~code; }
};

// Which points of a list may agree with another point: every one that does, among others. `PointAt`
// gives the point at a position, from 0. Where memory is short, all points may.
template <class PointAt>
class Candidates {
 public:
  // For as many visits as `visits` tells.
  Candidates(Integer n, Real tol, PointAt at, Integer visits) : n_(n), at_(at) {
    constexpr Integer few = 8;  // that are done sooner than cells are made
    if (n > few && visits > few) build(tol);
  }

  // Visits them cell by cell, in each by position. Where `visit` returns false, the cell's others are
  // left out. Returns the number of cells.
  template <class Visit>
  int visit(Point3 p, Visit visit) const {
    if (!starts_) {
      for (Integer i = 0; i < n_ && visit(GridEntry{at_(i), i});) ++i;
      return 1;
    }
    std::uint32_t cells[8];
    const int count = grid_.cells_around(p, cells);
    for (int k = 0; k < count; ++k) visit_cell(cells[k], visit);
    return count;
  }

  // Points are few to a cell, so that all visits of all points are worth it in advance.
  [[nodiscard]] bool spread_out() const { return spread_out_; }

  // Calls `look` with each point, in the order of the cells, where memory is used in its order too,
  // and with a function that visits the candidates for it.
  template <class Look>
  void look_around(Look look) const {
    for (std::uint32_t cell = 0; cell < cells_; ++cell) {
      for (Integer i = starts_[cell]; i < starts_[cell + 1]; ++i) {
        const GridEntry &entry = entries_[i];
        look(entry, [&](auto visit_one) {
          if (entry.one_cell()) {
            visit_cell(cell, visit_one);
          } else {
            visit(entry.point, visit_one);
          }
        });
      }
    }
  }

 private:
  void build(Real tol);

  template <class Visit>
  void visit_cell(std::uint32_t cell, Visit &visit) const {
    const GridEntry *entry = entries_.get() + starts_[cell];
    const GridEntry *const end = entries_.get() + starts_[cell + 1];
    while (entry != end && visit(*entry)) ++entry;
  }

  // Sorts the positions by cell and returns the mean number of points that share a point's cell.
  double sort_by_cell(Placed *&words, Placed *&spare) const {
    const auto size = static_cast<std::size_t>(n_);
    for (Integer i = 0; i < n_; ++i) {
      const Grid::Cell cell = grid_.cell_of(at_(i));
      words[i] = placed(cell.number, GridEntry::encode(i, cell.holds_all));
    }
    Placed *const sorted = sort_by_digits(words, spare, size, 32);
    if (sorted != words) std::swap(words, spare);
    double squares = 0;
    for (Integer i = 0, start = 0; i < n_; ++i) {
      if (key_of(words[i]) != key_of(words[start])) start = i;
      squares += 2.0 * (i - start) + 1;
    }
    return squares / n_;
  }

  Integer n_;
  PointAt at_;
  Grid grid_ = {0, 1, 1};
  std::uint32_t cells_ = 0;
  bool spread_out_ = false;
  WorkArray<Integer> starts_;  // of each cell in the entries, and their end
  WorkArray<GridEntry> entries_;
};

// Wide cells are best, where points are far apart; where they crowd, narrower ones follow.
template <class PointAt>
void Candidates<PointAt>::build(Real tol) {
  constexpr double crowd = 12;
  int bits = 4;
  while (bits < 30 && n_ >> (bits + 1) != 0) ++bits;
  cells_ = std::uint32_t{1} << bits;
  const auto size = static_cast<std::uint64_t>(n_);
  const auto work = work_array<Placed>(2 * size);
  entries_ = work_array<GridEntry>(size);
  auto starts = work_array<Integer>(std::uint64_t{cells_} + 1);
  if (!work || !entries_ || !starts) return;

  Placed *words = work.get();
  Placed *spare = words + n_;
  for (double width = 32; width >= 4 && !spread_out_; width /= 4) {
    grid_ = Grid(tol, width, bits);
    spread_out_ = sort_by_cell(words, spare) < crowd;
  }
  std::uint32_t cell = 0;
  for (Integer i = 0; i < n_; ++i) {
    while (cell <= key_of(words[i])) starts[cell++] = i;
    entries_[i].code = position_of(words[i]);
    entries_[i].point = at_(entries_[i].position());
  }
  while (cell <= cells_) starts[cell++] = n_;
  starts_ = std::move(starts);
}

// What a point has around it, of the points that match it.
struct Surroundings {
  Integer partners;  // in the list that its own is paired with
  Integer partner;   // one of them
  Integer first;     // of all, itself included
};

struct Range {
  Integer start, n;
  [[nodiscard]] bool holds(Integer i) const { return i >= start && i - start < n; }
};

// The surroundings of points where they are quickly had, else nothing. `paired` gives the range of the
// list that a point's own is paired with, or nothing for a point that nobody asks about.
template <class PointAt, class Match, class Paired>
WorkArray<Surroundings> surroundings(const Candidates<PointAt> &candidates, Integer n, Match match,
                                     Paired paired) {
  if (!candidates.spread_out()) return nullptr;
  auto found = work_array<Surroundings>(static_cast<std::uint64_t>(n));
  if (!found) return nullptr;
  candidates.look_around([&](const GridEntry &entry, auto visit) {
    const std::optional<Range> range = paired(entry.position());
    if (!range) return;
    Surroundings around = {0, 0, entry.position()};
    visit([&](const GridEntry &other) {
      if (!match(entry.point, other.point)) return true;
      if (range->holds(other.position())) {
        ++around.partners;
        around.partner = other.position();
      }
      around.first = std::min(around.first, other.position());
      return true;
    });
    found[entry.position()] = around;
  });
  return found;
}

// Writes the pairs that `match` of the points of two ranges, by position in the first, then in the
// second, from 1. The second is what the first is paired with in `around`, if that is known.
template <class PointAt, class Match>
Partners pair_up(Range a, Range b, PointAt at, const Candidates<PointAt> &candidates,
                 const Surroundings *around, Match match, Integer *ia, Integer *ib) {
  Partners found = {0, 0};
  for (Integer i = 0; i < a.n; ++i) {
    const Integer before = found.pairs;
    if (around != nullptr && around[a.start + i].partners < 2) {
      const Surroundings &known = around[a.start + i];
      if (known.partners == 1) ib[found.pairs++] = known.partner - b.start + 1;
    } else {
      const Point3 p = at(a.start + i);
      const int cells = candidates.visit(p, [&](const GridEntry &entry) {
        if (b.holds(entry.position()) && match(p, entry.point)) {
          ib[found.pairs++] = entry.position() - b.start + 1;
        }
        return true;
      });
      if (cells > 1) std::sort(ib + before, ib + found.pairs);
    }
    if (found.pairs == before) continue;
    std::fill(ia + before, ia + found.pairs, i + 1);
    ++found.partnered;
  }
  return found;
}

// Puts the points at(settled) ... at(n - 1) to places. Those before them have places of their own. A
// later one is at the first place that it matches, else it makes a new one: make(i) is told of each.
// place(i), a reference, receives its number, from 1. Returns the number of places.
template <class PointAt, class Match, class Make, class Place>
Integer put_to_places(Integer settled, Integer n, PointAt at, const Candidates<PointAt> &candidates,
                      const Surroundings *around, Match match, Make make, Place place) {
  Integer count = settled;
  const auto has_own = [&](Integer i) { return i < settled || around[i].first == i; };
  bool plain = around != nullptr;  // whatever is matched first has a place of its own
  for (Integer i = settled; i < n && plain; ++i) plain = has_own(around[i].first);
  if (plain) {
    for (Integer i = settled; i < n; ++i) {
      const Integer first = around[i].first;
      if (first == i) make(i);
      place(i) = first == i ? ++count : first < settled ? first + 1 : place(first);
    }
    return count;
  }

  // A new place marks all that match it, so that only those that make one look round.
  for (Integer i = settled; i < n; ++i) place(i) = 0;
  for (Integer i = settled; i < n; ++i) {
    const Point3 p = at(i);
    Integer first = settled;
    if (settled > 0) {
      candidates.visit(p, [&](const GridEntry &entry) {
        if (entry.position() < first && match(p, entry.point)) first = entry.position();
        return entry.position() < first;
      });
    }
    if (first < settled) place(i) = first + 1;
    if (place(i) != 0) continue;
    make(i);
    place(i) = ++count;
    candidates.visit(p, [&](const GridEntry &entry) {
      const Integer j = entry.position();
      if (j > i && place(j) == 0 && match(p, entry.point)) place(j) = count;
      return true;
    });
  }
  return count;
}

}  // namespace trelvin
