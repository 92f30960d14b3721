#include "lists/merging.h"

#include <algorithm>
#include <cstdint>

#include "lists/keys.h"
#include "lists/matching.h"
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

// Sorts by key. Without room to spare it takes longer.
template <class Word>
const Word *sort_words(Word *words, Word *spare, Integer n, int lowest_bit) {
  if (spare != nullptr) return sort_by_digits(words, spare, n, lowest_bit);
  std::sort(words, words + n);
  return words;
}

// Where two lists are compared: sorted copies of whole lists, or of a block at a time of each.
struct Workspace {
  SortWord *a, *spare_a;
  Key *b, *spare_b;
  bool *held;
  Integer size_a, size_b;

  // Tells of `n` entries from `a` on, no more than a block, which of them `b` holds.
  void mark_held(const Integer *list_a, Integer n, const Integer *list_b, Integer nb) const {
    for (Integer i = 0; i < n; ++i) a[i] = sort_word(key_of(list_a[i]), i);
    const SortWord *const sorted_a = sort_words(a, spare_a, n, 32);
    std::fill_n(held, n, false);
    for (Integer start = 0, m = 0; start < nb; start += m) {
      m = std::min(size_b, nb - start);
      for (Integer j = 0; j < m; ++j) b[j] = key_of(list_b[start + j]);
      const Key *key = sort_words(b, spare_b, m, 0);
      const Key *const last = key + m;
      for (const SortWord *entry = sorted_a; entry != sorted_a + n; ++entry) {
        while (key != last && *key < key_in(*entry)) ++key;
        if (key == last) break;
        if (*key == key_in(*entry)) held[position_in(*entry)] = true;
      }
    }
  }
};

Integer choose(bool wanted, const Integer *a, Integer na, const Integer *b, Integer nb,
               Integer *chosen) {
  constexpr Integer block = 512;
  SortWord block_a[block];
  Key block_b[block];
  bool held_in_block[block];
  Workspace work = {block_a, nullptr, block_b, nullptr, held_in_block, block, block};
  WorkArray<SortWord> whole_a;
  WorkArray<Key> whole_b;
  WorkArray<bool> held;
  if (na > block || nb > block) {
    const std::int64_t size_a = std::max(na, 0);
    const std::int64_t size_b = std::max(nb, 0);
    whole_a = work_array<SortWord>(2 * size_a);
    whole_b = work_array<Key>(2 * size_b);
    held = work_array<bool>(size_a);
  }
  if (whole_a && whole_b && held) {
    work = {
        whole_a.get(), whole_a.get() + na, whole_b.get(), whole_b.get() + nb, held.get(), na, nb};
  }

  Integer count = 0;
  for (Integer start = 0, n = 0; start < na; start += n) {
    n = std::min(work.size_a, na - start);
    work.mark_held(a + start, n, b, nb);
    for (Integer i = 0; i < n; ++i) {
      if (work.held[i] == wanted) chosen[count++] = a[start + i];
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
