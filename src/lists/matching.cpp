#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "numeric/real.h"
#include "trelvin/lists.h"

using namespace trelvin;

TRELVIN_ROUTINE trvsel1(TrvIntIn n, TrvIntArrayIn V, TrvIntIn key, TrvIntOut count,
                        TrvIntArrayOut pos) {
  Integer found = 0;
  for (Integer i = 0; i < n; ++i) {
    if (V[i] == key) pos[found++] = i + 1;
  }
  count = found;
}

TRELVIN_ROUTINE trvmer13(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIntOut count,
                         TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIn tol) {
  // The counts add up as they are, so a negative one leaves fewer entries cleared.
  const std::int64_t cleared = std::int64_t{na} + nb;
  for (std::int64_t k = 0; k < cleared; ++k) {
    IA[k] = 0;
    IB[k] = 0;
  }
  Integer pairs = 0;
  for (Integer i = 0; i < na; ++i) {
    for (Integer j = 0; j < nb; ++j) {
      if (std::fabs(A[i] - B[j]) <= tol) {
        IA[pairs] = i + 1;
        IB[pairs] = j + 1;
        ++pairs;
      }
    }
  }
  count = pairs;
}

TRELVIN_ROUTINE trvmer1(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                        TrvIntArrayOut OUT) {
  const Integer from_a = std::max(na, 0);
  const Integer from_b = std::max(nb, 0);
  std::memmove(OUT, A, static_cast<std::size_t>(from_a) * sizeof(Integer));
  std::memmove(OUT + from_a, B, static_cast<std::size_t>(from_b) * sizeof(Integer));
  nout = from_a + from_b;
}

TRELVIN_ROUTINE trvmer11(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT) {
  trvmer1(na, A, nb, B, nout, OUT);
}
