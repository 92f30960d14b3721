#include "lists/ordering.h"

#include <algorithm>
#include <cmath>

#include "lists/keys.h"
#include "lists/work_array.h"

namespace trelvin {
namespace {

constexpr Integer short_list = 32;  // up to which the plain way is the quickest

void selection_sort(Real *list, Integer n) {
  for (Integer i = 0; i < n; ++i) {
    Real smallest = list[i];
    Integer place = i;
    for (Integer j = i + 1; j < n; ++j) {
      if (smallest >= list[j]) {
        smallest = list[j];
        place = j;
      }
    }
    list[place] = list[i];
    list[i] = smallest;
  }
}

// The first steps of the selection sort, until no entry up to zero is left. Returns their number.
//
// The swaps can move an entry past an equal one. The order in which -0 and 0 are selected is therefore
// known only by following the swaps. A heap holds the position of each entry up to zero: the smallest
// entry is on top, of equal entries the last.
Integer select_up_to_zero(Real *list, Integer n, SortWord *heap) {
  const auto entry_at = [&](Integer i) { return sort_word(~key_with_one_zero(list[i]), i); };
  Integer size = 0;
  for (Integer i = 0; i < n; ++i) {
    if (list[i] <= 0) heap[size++] = entry_at(i);
  }
  std::make_heap(heap, heap + size);
  Integer i = 0;
  for (;; ++i) {
    while (size > 0 && position_in(heap[0]) < i) std::pop_heap(heap, heap + size--);  // moved since
    if (size == 0) return i;
    if (std::isnan(list[i])) continue;
    const Integer place = position_in(heap[0]);
    std::pop_heap(heap, heap + size--);
    if (place == i) continue;
    std::swap(list[i], list[place]);
    if (list[place] <= 0) {
      heap[size++] = entry_at(place);
      std::push_heap(heap, heap + size);
    }
  }
}

struct Before {
  bool operator()(Real a, Real b) const { return key_of(a) < key_of(b); }
  bool operator()(Integer a, Integer b) const { return a < b; }
};

bool is_number(Real value) { return !std::isnan(value); }
bool is_number(Integer /*value*/) { return true; }

// Sorts the numbers across the NaNs, which stay. False if memory is short.
template <class Value>
bool sort_numbers(Value *list, Integer n) {
  const auto work = work_array<Key>(std::int64_t{2} * n);
  if (!work) return false;
  Key *const keys = work.get();
  Integer numbers = 0;
  for (Integer i = 0; i < n; ++i) {
    if (is_number(list[i])) keys[numbers++] = key_of(list[i]);
  }
  const Key *sorted = sort_by_digits(keys, keys + numbers, numbers, 0);
  for (Integer i = 0; i < n; ++i) {
    if (is_number(list[i])) set_by_key(list[i], *sorted++);
  }
  return true;
}

template <class Value>
void sort_with_nans_last(Value *list, Integer n) {
  if (n < 2) return;
  Value *const end = std::partition(list, list + n, [](Value value) { return is_number(value); });
  const auto numbers = static_cast<Integer>(end - list);
  if (std::is_sorted(list, end, Before{})) return;
  if (numbers <= short_list || !sort_numbers(list, numbers)) std::sort(list, end, Before{});
}

}  // namespace

void sort_selecting(Real *list, Integer n) {
  if (n <= short_list) {
    selection_sort(list, n);
    return;
  }
  bool nan = false;
  bool zero = false;
  bool negative_zero = false;
  for (Integer i = 0; i < n; ++i) {
    nan = nan || std::isnan(list[i]);
    if (list[i] == 0) (std::signbit(list[i]) ? negative_zero : zero) = true;
  }
  if (zero && negative_zero) {
    const auto heap = work_array<SortWord>(n);
    if (!heap) {
      selection_sort(list, n);
      return;
    }
    const Integer done = select_up_to_zero(list, n, heap.get());
    list += done;
    n -= done;
  }
  if ((!nan && std::is_sorted(list, list + n)) || sort_numbers(list, n)) return;
  if (nan) {
    selection_sort(list, n);
  } else {
    std::sort(list, list + n, Before{});
  }
}

void sort(Integer *list, Integer n) { sort_with_nans_last(list, n); }
void sort(Real *list, Integer n) { sort_with_nans_last(list, n); }

namespace {

constexpr Integer room_on_stack = 512;

// The numbers of a list from the smallest to the largest, equal ones from the highest position down.
//
// They are fetched as many at a time as there is room for: all at once, or those that come next after
// the last one given out. What was given out need not be marked: it is what does not come after that.
class Ascending {
 public:
  // The work array has place for twice the room.
  Ascending(Entries list, Integer n, SortWord *work, Integer room)
      : list_(list), n_(n), words_(work), room_(room) {}

  // The position of the next number, from 0. There must be one.
  Integer next() {
    if (given_ == fetched_) fetch();
    last_ = next_[given_++];
    return ~position_in(last_);
  }

  [[nodiscard]] bool has_given(Integer i) const { return entry(i) <= last_; }

 private:
  [[nodiscard]] SortWord entry(Integer i) const {
    return sort_word(key_with_one_zero(list_[i]), ~i);
  }

  void fetch() {
    given_ = 0;
    fetched_ = 0;
    if (room_ < n_) {
      fetch_smallest();
      return;
    }
    for (Integer i = n_; i-- > 0;) {
      if (!std::isnan(list_[i])) words_[fetched_++] = entry(i);
    }
    next_ = sort_by_digits(words_, words_ + room_, fetched_, 32);
  }

  // A heap holds the smallest found so far, the largest of those on top.
  void fetch_smallest() {
    for (Integer i = 0; i < n_; ++i) {
      if (std::isnan(list_[i]) || has_given(i)) continue;
      if (fetched_ < room_) {
        ++fetched_;
      } else if (entry(i) < words_[0]) {
        std::pop_heap(words_, words_ + fetched_);
      } else {
        continue;
      }
      words_[fetched_ - 1] = entry(i);
      std::push_heap(words_, words_ + fetched_);
    }
    std::sort_heap(words_, words_ + fetched_);
    next_ = words_;
  }

  Entries list_;
  Integer n_;
  SortWord *words_;
  Integer room_;
  const SortWord *next_ = nullptr;
  Integer fetched_ = 0;
  Integer given_ = 0;
  SortWord last_ = 0;  // less than the entry of any number
};

}  // namespace

void order(Entries list, Integer n, Integer *positions) {
  if (n < 1) return;
  SortWord on_stack[2 * room_on_stack];
  const auto on_heap = n > room_on_stack ? work_array<SortWord>(std::int64_t{2} * n) : nullptr;
  Ascending numbers(list, n, on_heap ? on_heap.get() : on_stack, on_heap ? n : room_on_stack);

  Real largest = list[0];
  Integer last = 0;  // the last number, found whenever all are alike
  bool nan = false;
  for (Integer i = 0; i < n; ++i) {
    const Real entry = list[i];
    if (entry > largest) largest = entry;
    if (std::isnan(entry)) {
      nan = true;
    } else {
      last = i + 1;
    }
  }
  const Real done = largest + 1;
  Integer below = n;      // entries that are found once
  if (done == largest) {  // then all others are alike
    below = 0;
    for (Integer i = 0; i < n; ++i) below += list[i] < largest ? 1 : 0;
  }

  Integer round = 0;
  for (Integer k = 0; k < n; ++k) {
    if (nan && (std::isnan(list[k]) || (std::isnan(done) && numbers.has_given(k)))) continue;
    positions[k] = round++ < below ? numbers.next() + 1 : last;
  }
}

bool parallel_and_distinct(const LineArrays &lines, Integer n) {
  for (Integer i = 1; i < n; ++i) {
    if (intersect(lines[0], lines[i]).relation != LineRelation::parallel) return false;
  }
  return true;
}

void order_parallels(const LineArrays &lines, Integer n, Integer *positions) {
  const Line y_axis = {1, 0, 0};
  const bool clear_of_axis = intersect(lines[0], y_axis).relation == LineRelation::parallel;
  order(Entries{lines.c, clear_of_axis ? lines.a : lines.b}, n, positions);
}

const Integer *cyclic_order(const Quadrilateral &q) {
  static constexpr Integer orders[3][4] = {{1, 2, 3, 4}, {1, 2, 4, 3}, {1, 4, 2, 3}};
  // The two triangles on the diagonal from the first corner turn against each other.
  const auto turns_back = [&](const Integer *order) {
    const Point3 first = q.corners[order[0] - 1];
    const Vector3 diagonal = q.corners[order[2] - 1] - first;
    const Vector3 n1 = cross(q.corners[order[1] - 1] - first, diagonal);
    const Vector3 n2 = cross(diagonal, q.corners[order[3] - 1] - first);
    return dot(n1, n2) < 0;
  };
  if (!turns_back(orders[0])) return orders[0];
  return turns_back(orders[1]) ? orders[2] : orders[1];
}

}  // namespace trelvin
