#include "lists/ordering.h"

#include <algorithm>
#include <cmath>

#include "lists/keys.h"
#include "lists/work_array.h"
#include "plane/lines.h"

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
// The swaps carry entries past equal ones, so which zero is found when is known only by following
// them: a heap holds where each entry up to zero is, the smallest and of those the last on top.
Integer select_up_to_zero(Real *list, Integer n, Placed *heap) {
  const auto entry_at = [&](Integer i) { return placed(~key_of_magnitude(list[i]), i); };
  Integer size = 0;
  for (Integer i = 0; i < n; ++i) {
    if (list[i] <= 0) heap[size++] = entry_at(i);
  }
  std::make_heap(heap, heap + size);
  Integer i = 0;
  for (;; ++i) {
    while (size > 0 && position_of(heap[0]) < i) std::pop_heap(heap, heap + size--);  // moved since
    if (size == 0) return i;
    if (std::isnan(list[i])) continue;
    const Integer place = position_of(heap[0]);
    std::pop_heap(heap, heap + size--);
    if (place == i) continue;
    std::swap(list[i], list[place]);
    if (list[place] <= 0) {
      heap[size++] = entry_at(place);
      std::push_heap(heap, heap + size);
    }
  }
}

// Sorts what is no NaN across the NaNs, which stay. False where memory is short.
bool sort_around_nans(Real *list, Integer n) {
  const auto work = work_array<Key>(2 * static_cast<std::uint64_t>(n));
  if (!work) return false;
  std::size_t numbers = 0;
  for (Integer i = 0; i < n; ++i) {
    if (!std::isnan(list[i])) work[numbers++] = key_of(list[i]);
  }
  const Key *sorted = sort_by_digits(work.get(), work.get() + numbers, numbers, 0);
  for (Integer i = 0; i < n; ++i) {
    if (!std::isnan(list[i])) list[i] = real_of_key(*sorted++);
  }
  return true;
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
    const auto heap = work_array<Placed>(static_cast<std::uint64_t>(n));
    if (!heap) {
      selection_sort(list, n);
      return;
    }
    const Integer done = select_up_to_zero(list, n, heap.get());
    list += done;
    n -= done;
  }
  if ((!nan && std::is_sorted(list, list + n)) || sort_around_nans(list, n)) return;
  if (nan) {
    selection_sort(list, n);
  } else {
    std::sort(list, list + n);
  }
}

void sort(Integer *list, Integer n) {
  if (n < 2 || std::is_sorted(list, list + n)) return;
  const auto size = static_cast<std::size_t>(n);
  const auto work = n > short_list ? work_array<Key>(2 * std::uint64_t{size}) : nullptr;
  if (!work) {
    std::sort(list, list + n);
    return;
  }
  std::transform(list, list + n, work.get(), [](Integer value) { return key_of(value); });
  const Key *sorted = sort_by_digits(work.get(), work.get() + size, size, 0);
  std::transform(sorted, sorted + size, list, integer_of);
}

void sort(Real *list, Integer n) {
  if (n < 2) return;
  Real *const end = std::partition(list, list + n, [](Real v) { return !std::isnan(v); });
  const auto numbers = static_cast<Integer>(end - list);
  const auto before = [](Real a, Real b) { return key_of(a) < key_of(b); };
  if (std::is_sorted(list, end, before)) return;
  if (numbers <= short_list || !sort_around_nans(list, numbers)) std::sort(list, end, before);
}

namespace {

// The rounds of `order` with all entries below the largest in their order. Room for n marks.
void order_by_rounds(const Real *list, Integer n, const Placed *sorted, Integer numbers,
                     Placed *marks, Integer *positions) {
  Real largest = list[0];
  for (Integer i = 1; i < n; ++i) {
    if (list[i] > largest) largest = list[i];
  }
  const Real done = largest + 1;
  Integer below = numbers;  // entries that are found once; at `done` all others are alike
  if (done == largest) {
    while (below > 0 && list[position_of(sorted[below - 1])] == largest) --below;
  }
  Integer last = n;  // the last number, found whenever all are alike
  while (last > 0 && std::isnan(list[last - 1])) --last;

  const bool leaves_nan = std::isnan(done);
  std::fill_n(marks, leaves_nan ? n : 0, 0);
  Integer next = 0;
  for (Integer k = 0; k < n; ++k) {
    if (std::isnan(list[k]) || (leaves_nan && marks[k] != 0)) continue;
    positions[k] = next < below ? position_of(sorted[next++]) + 1 : last;
    if (leaves_nan) marks[positions[k] - 1] = 1;
  }
}

}  // namespace

void order(const Real *list, Integer n, Integer *positions) {
  if (n < 1) return;
  const auto size = static_cast<std::size_t>(n);
  const auto work = work_array<Placed>(2 * std::uint64_t{size});
  if (!work) return;
  Placed *const halves[] = {work.get(), work.get() + size};
  Integer numbers = 0;
  for (Integer i = n; i-- > 0;) {  // equal entries from the highest position down
    if (!std::isnan(list[i])) halves[0][numbers++] = placed(key_of_magnitude(list[i]), i);
  }
  const Placed *sorted =
      sort_by_digits(halves[0], halves[1], static_cast<std::size_t>(numbers), 32);
  order_by_rounds(list, n, sorted, numbers, halves[sorted == halves[0] ? 1 : 0], positions);
}

bool parallel_and_distinct(const LineArrays &lines, Integer n) {
  const auto line = [&](Integer i) { return Line{lines.a[i], lines.b[i], lines.c[i]}; };
  for (Integer i = 1; i < n; ++i) {
    if (intersect(line(0), line(i)).relation != LineRelation::parallel) return false;
  }
  return true;
}

void order_parallels(const LineArrays &lines, Integer n, Integer *positions) {
  const auto work = work_array<Real>(static_cast<std::uint64_t>(n));
  if (!work) return;
  Real *const keys = work.get();
  const Line y_axis = {1, 0, 0};
  const Line first = {lines.a[0], lines.b[0], lines.c[0]};
  const bool clear_of_axis = intersect(first, y_axis).relation == LineRelation::parallel;
  const Real *divisor = clear_of_axis ? lines.a : lines.b;
  for (Integer i = 0; i < n; ++i) keys[i] = 0 - lines.c[i] / divisor[i];
  order(keys, n, positions);
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
