#include <algorithm>
#include <cstddef>
#include <cstring>

#include "numeric/real.h"
#include "trelvin/plane.h"

using namespace trelvin;

TRELVIN_ROUTINE trvinv(TrvIntArrayInOut V, TrvIntIn n) {
  if (n > 1) std::reverse(V, V + n);
}

TRELVIN_ROUTINE trvadr(TrvIntArrayInOut V, TrvIntInOut n, TrvIntIn k, TrvIntArrayIn A, TrvIntIn m) {
  if (k < 0 || k > n || m < 1) return;
  const auto size = [](Integer elements) {
    return static_cast<std::size_t>(elements) * sizeof(Integer);
  };
  std::memmove(V + k + m, V + k, size(n - k));
  std::memmove(V + k, A, size(m));
  n += m;
}
