// Pairs and places of points that may lie anywhere in their lists.
#pragma once

#include <algorithm>
#include <cstdint>
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
  Candidates(Integer n, Real tol, const PointAt &at, Integer visits) : n_(n), at_(at) {
    constexpr Integer few = 8;  // that are done sooner than cells are made
    built_ = n > few && visits > few && build(tol);
  }

  // Visits them cell by cell, in each by position. Where `visit` returns false, the cell's others are
  // left out.
  template <class Visit>
  void visit(Point3 p, Visit visit) const {
    if (!built_) {
      for (Integer i = 0; i < n_ && visit(GridEntry{at_(i), i});) ++i;
      return;
    }
    std::uint32_t cells[8];
    const int count = grid_.cells_around(p, cells);
    for (int k = 0; k < count; ++k) visit_cell(cells[k], visit);
  }

  // Points are few to a cell, so that all visits of all points are worth it in advance.
  [[nodiscard]] bool spread_out() const { return built_ && spread_out_; }

  // Calls `look` with the position of each point, the point, and a function that visits the candidates
  // for it, in the order of the cells, where memory is used in its order too.
  template <class Look>
  void look_around(Look look) const {
    const GridEntry *entries = entries_.get();
    for (std::uint32_t cell = 0; cell < cells_; ++cell) {
      for (Integer i = starts_[cell]; i < starts_[cell + 1]; ++i) {
        const GridEntry &entry = entries[i];
        look(entry.position(), entry.point, visit_from(entry.point, cell, entry.one_cell()));
      }
    }
  }

  // The same for the points of another list, with room for twice as many words.
  template <class At, class Look>
  void look_around_for(Integer n, At at, Placed *room, Look look) const {
    const Placed *const sorted = sort_by_cell(n, at, room, room + n);
    constexpr Integer block = 64;  // points got together, since they are far apart in memory
    Point3 points[block];
    for (Integer start = 0; start < n; start += block) {
      const Integer size = std::min(block, n - start);
      for (Integer k = 0; k < size; ++k) {
        points[k] = at(GridEntry{{}, position_of(sorted[start + k])}.position());
      }
      for (Integer k = 0; k < size; ++k) {
        const Placed word = sorted[start + k];
        const GridEntry entry = {points[k], position_of(word)};
        look(entry.position(), entry.point,
             visit_from(entry.point, key_of(word), entry.one_cell()));
      }
    }
  }

 private:
  bool build(Real tol);

  template <class Visit>
  void visit_cell(std::uint32_t cell, Visit &visit) const {
    const GridEntry *entry = entries_.get() + starts_[cell];
    const GridEntry *const end = entries_.get() + starts_[cell + 1];
    while (entry != end && visit(*entry)) ++entry;
  }

  // Visits the candidates for a point of a cell.
  [[nodiscard]] auto visit_from(Point3 p, std::uint32_t cell, bool one_cell) const {
    return [this, p, cell, one_cell](auto visit_one) {
      if (one_cell) {
        this->visit_cell(cell, visit_one);
      } else {
        this->visit(p, visit_one);
      }
    };
  }

  // Cells and codes of points, sorted by cell, in one of the arrays.
  template <class At>
  Placed *sort_by_cell(Integer n, At at, Placed *words, Placed *spare) const {
    for (Integer i = 0; i < n; ++i) {
      const Grid::Cell cell = grid_.cell_of(at(i));
      words[i] = placed(cell.number, GridEntry::encode(i, cell.holds_all));
    }
    return sort_by_digits(words, spare, static_cast<std::size_t>(n), 32);
  }

  // Finds where each cell starts and returns the mean number of points that share a point's cell.
  double find_starts(const Placed *sorted) {
    std::fill_n(starts_.get(), cells_ + 1, 0);
    for (Integer i = 0; i < n_; ++i) ++starts_[key_of(sorted[i]) + 1];
    double squares = 0;
    for (std::uint32_t cell = 1; cell <= cells_; ++cell) {
      squares += double{1} * starts_[cell] * starts_[cell];
      starts_[cell] += starts_[cell - 1];
    }
    return squares / n_;
  }

  Integer n_;
  PointAt at_;
  Grid grid_ = {0, 1, 1};
  std::uint32_t cells_ = 0;
  bool spread_out_ = false;
  bool built_ = false;
  WorkArray<Integer> starts_;  // of each cell in the entries, and their end
  WorkArray<GridEntry> entries_;
};

// Wide cells are best, where points are far apart; where they crowd, narrower ones follow.
template <class PointAt>
bool Candidates<PointAt>::build(Real tol) {
  constexpr double crowd = 12;
  int bits = 3;
  while (bits < 30 && n_ >> bits != 0) ++bits;
  if (bits < 20) bits = std::min(bits + 1, 18);  // two digits of a sort
  cells_ = std::uint32_t{1} << bits;
  const auto size = static_cast<std::uint64_t>(n_);
  auto entries = work_array<GridEntry>(size);
  starts_ = work_array<Integer>(std::uint64_t{cells_} + 1);
  if (!entries || !starts_) return false;

  // Each entry is made of a word, and the entries follow the words through the same memory: the last
  // word that an entry takes the room of is its own.
  static_assert(sizeof(GridEntry) == 2 * sizeof(Placed));
  GridEntry *const list = entries.get();
  auto *const words = reinterpret_cast<Placed *>(list);
  Placed *const upper = words + n_;
  const Placed *sorted = words;
  for (double width = 32; width >= 4 && !spread_out_; width /= 4) {
    grid_ = Grid(tol, width, bits);
    sorted = sort_by_cell(n_, at_, words, upper);
    spread_out_ = find_starts(sorted) < crowd;
  }
  if (sorted != upper) std::copy_n(sorted, n_, upper);
  for (Integer i = 0; i < n_; ++i) {
    const Integer code = position_of(upper[i]);
    list[i] = {at_(code < 0 ? ~code : code), code};
  }
  entries_ = std::move(entries);
  return true;
}

// What a point has around it, of the points that match it.
struct Surroundings {
  Integer partners;  // in the list that its own is paired with
  Integer partner;   // one of them
  Integer first;     // of all, itself included
};

struct Range {
  Integer start, n;
  [[nodiscard]] bool holds(Integer i) const {
    return static_cast<std::uint32_t>(i - start) < static_cast<std::uint32_t>(n);
  }
};

// Those of the points of a list, or none. Behind them is room for words, in one piece, since memory
// that is given back and taken anew at every call costs more than what is done in it.
class AllSurroundings {
 public:
  AllSurroundings() = default;
  AllSurroundings(Integer n, std::uint64_t words)
      : memory_(work_array<Placed>(words + 2 * static_cast<std::uint64_t>(n))), n_(n) {}

  explicit operator bool() const { return memory_ != nullptr; }
  Surroundings &operator[](Integer i) const {
    return reinterpret_cast<Surroundings *>(memory_.get())[i];
  }
  [[nodiscard]] Placed *words() const { return memory_.get() + 2 * static_cast<std::size_t>(n_); }

 private:
  static_assert(sizeof(Surroundings) <= 2 * sizeof(Placed));
  WorkArray<Placed> memory_;
  Integer n_ = 0;
};

template <class Match, class Visit>
Surroundings surroundings_of(Integer position, Point3 p, Range paired, Match match, Visit visit) {
  Surroundings around = {0, 0, position};
  visit([&](const GridEntry &entry) {
    const Integer other = entry.position();
    const bool matches = match(p, entry.point);
    const bool pairs = matches && paired.holds(other);
    around.partners += pairs ? 1 : 0;
    around.partner = pairs ? other : around.partner;
    around.first = matches ? std::min(around.first, other) : around.first;
    return true;
  });
  return around;
}

// The surroundings of all points where they are quickly had, else nothing. `paired` gives the range of
// the list that a point's own is paired with.
template <class PointAt, class Match, class Paired>
AllSurroundings surroundings(const Candidates<PointAt> &candidates, Integer n, Match match,
                             Paired paired) {
  AllSurroundings found;
  if (candidates.spread_out()) found = AllSurroundings(n, 0);
  if (!found) return found;
  candidates.look_around([&](Integer i, Point3 p, auto visit) {
    found[i] = surroundings_of(i, p, paired(i), match, visit);
  });
  return found;
}

// Those of the points of another list, which is paired with that of the candidates.
template <class PointOfA, class PointAt, class Match>
AllSurroundings surroundings_of_list(Integer na, PointOfA a, const Candidates<PointAt> &candidates,
                                     Range b, Match match) {
  AllSurroundings found;
  if (candidates.spread_out()) found = AllSurroundings(na, 2 * static_cast<std::uint64_t>(na));
  if (!found) return found;
  candidates.look_around_for(na, a, found.words(), [&](Integer i, Point3 p, auto visit) {
    found[i] = surroundings_of(i, p, b, match, visit);
  });
  return found;
}

// Writes the pairs that `match` of the points of two ranges, by position in the first, then in the
// second, from 1. The second is what the first is paired with in `around`, if that is known.
template <class PointOfA, class PointAt, class Match>
Partners pair_up(Range a, Range b, PointOfA at, const Candidates<PointAt> &candidates,
                 const AllSurroundings &around, Match match, Integer *ia, Integer *ib) {
  Partners found = {0, 0};
  for (Integer i = 0; i < a.n; ++i) {
    const Integer before = found.pairs;
    if (around && around[a.start + i].partners < 2) {
      const Surroundings &known = around[a.start + i];
      if (known.partners == 1) ib[found.pairs++] = known.partner - b.start + 1;
    } else {
      const Point3 p = at(a.start + i);
      candidates.visit(p, [&](const GridEntry &entry) {
        if (b.holds(entry.position()) && match(p, entry.point)) {
          ib[found.pairs++] = entry.position() - b.start + 1;
        }
        return true;
      });
      if (!std::is_sorted(ib + before, ib + found.pairs)) std::sort(ib + before, ib + found.pairs);
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
                      const AllSurroundings &around, Match match, Make make, Place place) {
  Integer count = settled;
  const auto has_own = [&](Integer i) { return i < settled || around[i].first == i; };
  bool plain{around};  // whatever is matched first has a place of its own
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
