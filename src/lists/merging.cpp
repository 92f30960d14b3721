#include "lists/merging.h"

#include <algorithm>
#include <cstdint>

#include "lists/cell_index.h"
#include "lists/keys.h"
#include "lists/ordering.h"
#include "lists/work_array.h"

namespace trelvin {

Integer merge(Integer *list, Integer n) {
  if (n < 1) return n;
  sort(list, n);
  return static_cast<Integer>(std::unique(list, list + n) - list);
}

Integer merge(Real *list, Integer n, Real tol) {
  if (n < 1) return n;
  sort(list, n);
  Integer left = 1;
  for (Integer i = 1; i < n; ++i) {
    if (!agree(list[i], list[left - 1], tol)) list[left++] = list[i];
  }
  return left;
}

Integer merge_outline(const PlaneArrays &vertices, Integer n, Real tol) {
  if (n < 1) return n;
  const auto same = [&](Integer i, Integer j) {
    const Point2 p = vertices[i];
    const Point2 q = vertices[j];
    return agree(p.x, q.x, tol) && agree(p.y, q.y, tol);
  };
  Integer left = 1;
  for (Integer i = 1; i < n; ++i) {
    if (!same(i, left - 1)) vertices.set(left++, vertices[i]);
  }
  while (left > 1 && same(left - 1, 0)) --left;
  return left;
}

namespace {

// The first of `count` indexed entries that agrees with what lies at p, or `count`.
template <class Agrees>
Integer first_agreeing(const CellIndex &index, Point3 p, Integer count, Agrees agrees) {
  Integer first = count;
  index.visit_candidates(p, [&](Integer i) {
    if (i >= first) return false;
    if (agrees(i)) first = i;
    return i < first;
  });
  return first;
}

}  // namespace

Integer join_new(RealList a, RealList b, Real tol, Real *joined, Integer *positions_of_b) {
  Integer count = std::max(a.n, 0);
  std::copy_n(a.values, count, joined);
  CellIndex index(std::int64_t{count} + std::max(b.n, 0), tol);
  for (Integer i = 0; i < count; ++i) index.enter({joined[i], 0, 0});
  for (Integer j = 0; j < b.n; ++j) {
    const Real value = b.values[j];
    const Integer place = first_agreeing(index, {value, 0, 0}, count,
                                         [&](Integer i) { return agree(value, joined[i], tol); });
    if (place == count) {
      joined[count++] = value;
      index.enter({value, 0, 0});
    }
    positions_of_b[j] = place + 1;
  }
  return count;
}

Integer put_to_places(const PointList (&lists)[3], Real tol, const SpaceArrays &places,
                      Integer *const (&place_of)[3]) {
  std::int64_t capacity = 0;
  for (const PointList &list : lists) capacity += std::max(list.n, 0);
  CellIndex index(capacity, tol);
  Integer count = 0;
  for (int l = 0; l < 3; ++l) {
    for (Integer i = 0; i < lists[l].n; ++i) {
      const Point3 p = lists[l][i];
      const Integer place = first_agreeing(
          index, p, count, [&](Integer other) { return agree(p, places[other], tol); });
      if (place == count) {
        places.set(count++, p);
        index.enter(p);
      }
      place_of[l][i] = place + 1;
    }
  }
  return count;
}

namespace {

constexpr Integer entries_on_stack = 1024;

// Sorts by value; entries of equal value stay together.
const Placed *sort_block(Placed *block, Placed *spare, Integer size) {
  if (spare != nullptr) return sort_by_digits(block, spare, static_cast<std::size_t>(size), 32);
  std::sort(block, block + size);
  return block;
}

// Marks the entries of a sorted block that `b` holds.
void mark_held(const Placed *block, Integer size, const Integer *b, Integer nb, bool *held) {
  for (Integer j = 0; j < nb; ++j) {
    const Key key = key_of(b[j]);
    const Placed *entry = std::lower_bound(block, block + size, placed(key, 0));
    const auto equal = [&] { return entry != block + size && key_of(*entry) == key; };
    if (!equal() || held[position_of(*entry)]) continue;
    for (; equal(); ++entry) held[position_of(*entry)] = true;
  }
}

// Works through `a` by blocks, in one where there is memory for its sorted copy, and else in such as
// fit on the stack. Each is searched for every entry of `b`.
Integer choose(bool wanted, const Integer *a, Integer na, const Integer *b, Integer nb,
               Integer *chosen) {
  Placed small_block[entries_on_stack];
  bool small_held[entries_on_stack];
  Placed *block = small_block;
  Placed *spare = nullptr;
  bool *held = small_held;
  Integer block_size = entries_on_stack;
  WorkArray<Placed> large_block;
  WorkArray<bool> large_held;
  if (na > entries_on_stack) {
    const auto size = static_cast<std::uint64_t>(na);
    large_block = work_array<Placed>(2 * size);
    large_held = work_array<bool>(size);
    if (large_block && large_held) {
      block = large_block.get();
      spare = block + na;
      held = large_held.get();
      block_size = na;
    }
  }
  Integer count = 0;
  for (Integer start = 0; start < na; start += std::min(block_size, na - start)) {
    const Integer size = std::min(block_size, na - start);
    for (Integer i = 0; i < size; ++i) block[i] = placed(key_of(a[start + i]), i);
    std::fill_n(held, size, false);
    mark_held(sort_block(block, spare, size), size, b, nb, held);
    for (Integer i = 0; i < size; ++i) {
      if (held[i] == wanted) chosen[count++] = a[start + i];
    }
  }
  return count;
}

}  // namespace

Integer common(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *chosen) {
  return choose(true, a, na, b, nb, chosen);
}

Integer difference(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *chosen) {
  return choose(false, a, na, b, nb, chosen);
}

}  // namespace trelvin
