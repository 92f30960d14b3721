#include "lists/matching.h"

#include <algorithm>
#include <cstring>

namespace trelvin {

Integer positions_of(Integer key, const Integer *list, Integer n, Integer *positions) {
  Integer found = 0;
  for (Integer i = 0; i < n; ++i) {
    if (list[i] == key) positions[found++] = i + 1;
  }
  return found;
}

Integer join(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *joined) {
  const Integer from_a = std::max(na, 0);
  const Integer from_b = std::max(nb, 0);
  std::memmove(joined, a, static_cast<std::size_t>(from_a) * sizeof(Integer));
  std::memmove(joined + from_a, b, static_cast<std::size_t>(from_b) * sizeof(Integer));
  return from_a + from_b;
}

}  // namespace trelvin
