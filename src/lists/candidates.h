// Which points of a list may match a point: those in the cells around it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

#include "lists/grid.h"
#include "lists/keys.h"
#include "lists/work_array.h"

namespace trelvin {

// The position of a point, from 0, and whether the point's own cell holds all candidates for it. The
// lower half of a word that is sorted by cell.
class Code {
 public:
  Code() = default;
  Code(Integer position, bool one_cell) : bits_(one_cell ? position : ~position) {}
  explicit Code(SortWord word) : bits_(position_in(word)) {}

  [[nodiscard]] Integer position() const { return bits_ >= 0 ? bits_ : ~bits_; }
  [[nodiscard]] bool one_cell() const { return bits_ >= 0; }
  [[nodiscard]] SortWord with_cell(std::uint32_t cell) const { return sort_word(cell, bits_); }

 private:
  Integer bits_;  // the position, or its complement if one cell does not hold all
};

struct Candidate {
  Point3 point;
  Code code;
  [[nodiscard]] Integer position() const { return code.position(); }
};

// Positions, `n` from `start` on.
struct Range {
  Integer start, n;
  [[nodiscard]] bool holds(Integer i) const {
    return static_cast<std::uint32_t>(i - start) < static_cast<std::uint32_t>(n);
  }
};

// What matches a point: its only partner, or none or several, in the range that it is paired with; and
// the first match in its own list, itself included.
struct alignas(SortWord) Surroundings {
  static constexpr Integer none = -1, several = -2;
  Integer partner, first;
};
using AllSurroundings = WorkArray<Surroundings>;  // or nothing, if they are not known

// `Points` gives the point at a position, from 0, and its size.
template <class Points>
class Candidates {
 public:
  // Makes cells if that many lookups are worth it, and if there is memory. Without cells all points
  // are candidates for each point.
  Candidates(const Points &points, Real tol, Integer lookups) : points_(points) {
    constexpr Integer few = 8;  // that are done sooner than cells are made
    if (points.size() > few && lookups > few) make_cells(tol);
  }

  // Visits all points that agree with p, among others: cell by cell, in each cell by position. If
  // `visit` returns false, it gets no more of the cell's points.
  template <class Visit>
  void visit(Point3 p, Visit visit) const {
    if (!candidates_) {
      const Integer n = points_.size();
      for (Integer i = 0; i < n; ++i) {
        if (!visit(Candidate{points_[i], Code(i, true)})) return;
      }
      return;
    }
    std::uint32_t cells[8];
    const int count = grid_.cells_around(p, cells);
    for (int k = 0; k < count; ++k) visit_cell(cells[k], visit);
  }

  // The matches of each point. `paired` gives for a position the range of points that it is paired with.
  // Null if there are many points to a cell, or if memory cannot be allocated.
  template <class Match, class Paired>
  [[nodiscard]] AllSurroundings surroundings(Match match, Paired paired) const {
    if (!spread_out_) return nullptr;
    auto found = work_array<Surroundings>(points_.size());
    const Candidate *own = candidates_.get();
    for (std::uint32_t cell = 0; found && cell < cells_; ++cell) {
      for (Integer k = starts_[cell]; k < starts_[cell + 1]; ++k, ++own) {
        const Integer i = own->position();
        found.get()[i] = look_around(*own, cell, paired(i), match);
      }
    }
    return found;
  }

  // The same for the points of another list, each of which is paired with all points.
  template <class Match>
  [[nodiscard]] AllSurroundings surroundings_of(const Points &others, Match match) const {
    if (!spread_out_) return nullptr;
    // One block, with two more words a point: to release and allocate memory at every call would take
    // longer than the work itself.
    static_assert(sizeof(Surroundings) == sizeof(SortWord));
    const Integer n = others.size();
    auto found = work_array<Surroundings>(std::int64_t{3} * n);
    if (!found) return nullptr;
    auto *const words = reinterpret_cast<SortWord *>(found.get() + n);
    const SortWord *const sorted = sort_by_cell(others, words, words + n);
    constexpr Integer block = 64;  // points got together, since they are far apart in memory
    Candidate own[block];
    for (Integer start = 0; start < n; start += block) {
      const Integer size = std::min(block, n - start);
      for (Integer k = 0; k < size; ++k) own[k] = candidate(others, sorted[start + k]);
      for (Integer k = 0; k < size; ++k) {
        found.get()[own[k].position()] =
            look_around(own[k], key_in(sorted[start + k]), {0, points_.size()}, match);
      }
    }
    return found;
  }

 private:
  void make_cells(Real tol);

  static Candidate candidate(const Points &points, SortWord word) {
    const Code code(word);
    return {points[code.position()], code};
  }

  // Sorts words of the points' cells and codes by cell, and returns them in one of the arrays.
  SortWord *sort_by_cell(const Points &points, SortWord *words, SortWord *spare) const {
    const Integer n = points.size();
    for (Integer i = 0; i < n; ++i) {
      const Grid::Cell cell = grid_.cell_of(points[i]);
      words[i] = Code(i, cell.holds_all).with_cell(cell.number);
    }
    return sort_by_digits(words, spare, n, 32);
  }

  // Finds where each cell starts and returns the mean number of points that share a point's cell.
  double find_starts(const SortWord *sorted) {
    const Integer n = points_.size();
    std::fill_n(starts_.get(), cells_ + 1, 0);
    for (Integer k = 0; k < n; ++k) ++starts_[key_in(sorted[k]) + 1];
    double squares = 0;
    for (std::uint32_t cell = 1; cell <= cells_; ++cell) {
      squares += double{1} * starts_[cell] * starts_[cell];
      starts_[cell] += starts_[cell - 1];
    }
    return squares / n;
  }

  template <class Visit>
  void visit_cell(std::uint32_t cell, Visit &visit) const {
    const Candidate *candidate = candidates_.get() + starts_[cell];
    const Candidate *const end = candidates_.get() + starts_[cell + 1];
    while (candidate != end && visit(*candidate)) ++candidate;
  }

  template <class Match>
  [[nodiscard]] Surroundings look_around(const Candidate &own, std::uint32_t own_cell, Range paired,
                                         Match match) const {
    Surroundings found = {Surroundings::none, own.position()};
    const auto look_at = [&](const Candidate &other) {
      const Integer i = other.position();
      const bool matches = match(own.point, other.point);
      const bool pairs = matches && paired.holds(i);
      const Integer partner = found.partner == Surroundings::none ? i : Surroundings::several;
      found.partner = pairs ? partner : found.partner;
      found.first = matches ? std::min(found.first, i) : found.first;
      return true;
    };
    if (own.code.one_cell()) {
      visit_cell(own_cell, look_at);
    } else {
      visit(own.point, look_at);
    }
    return found;
  }

  const Points &points_;
  Grid grid_ = {0, 1, 1};
  std::uint32_t cells_ = 0;
  bool spread_out_ = false;          // points are few to a cell
  WorkArray<Integer> starts_;        // of each cell in the candidates, and their end
  WorkArray<Candidate> candidates_;  // cell by cell, in each by position
};

// Wide cells are best if points are far apart. If there are many points to a cell, narrower cells are
// tried.
template <class Points>
void Candidates<Points>::make_cells(Real tol) {
  constexpr double crowd = 12;
  const Integer n = points_.size();
  int bits = 3;
  while (bits < 30 && n >> bits != 0) ++bits;
  if (bits < 20) bits = std::min(bits + 1, 18);  // two digits of a sort
  cells_ = std::uint32_t{1} << bits;
  auto candidates = work_array<Candidate>(n);
  starts_ = work_array<Integer>(std::int64_t{cells_} + 1);
  if (!candidates || !starts_) return;

  // Each candidate is made from a word in the same memory. Candidates are written from the front and
  // words read behind them, so the last word that a candidate overwrites is its own.
  static_assert(sizeof(Candidate) == 2 * sizeof(SortWord));
  Candidate *const list = candidates.get();
  auto *const words = reinterpret_cast<SortWord *>(list);
  SortWord *const upper = words + n;
  const SortWord *sorted = words;
  for (double width = 32; width >= 4 && !spread_out_; width /= 4) {
    grid_ = Grid(tol, width, bits);
    sorted = sort_by_cell(points_, words, upper);
    spread_out_ = find_starts(sorted) < crowd;
  }
  if (sorted != upper) std::copy_n(sorted, n, upper);
  for (Integer k = 0; k < n; ++k) list[k] = candidate(points_, upper[k]);
  candidates_ = std::move(candidates);
}

}  // namespace trelvin
