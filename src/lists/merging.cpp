// Merging of lists, in time that grows little faster than their lengths and without the heap.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "numeric/real.h"
#include "trelvin/lists.h"

using namespace trelvin;

namespace {

bool agree(Real a, Real b, Real tol) { return a == b || std::fabs(a - b) <= tol; }

// An order of all Reals: NaNs last, -0 before 0.
bool comes_before(Real a, Real b) {
  if (std::isnan(a) || std::isnan(b)) return !std::isnan(a) && std::isnan(b);
  return a < b || (a == b && std::signbit(a) && !std::signbit(b));
}

// Tells of each entry of A, in order, whether B holds it. Works through A by blocks that fit on the
// stack: each is sorted once and then searched for every entry of B.
template <class Visit>
void tell_common(const Integer *A, Integer na, const Integer *B, Integer nb, Visit visit) {
  constexpr Integer block_size = 8192;
  struct Entry {
    Integer value;
    Integer place;
  };
  Entry block[block_size];
  bool held[block_size];
  for (Integer start = 0; start < na; start += block_size) {
    const Integer size = std::min(block_size, na - start);
    for (Integer i = 0; i < size; ++i) {
      block[i] = {A[start + i], i};
      held[i] = false;
    }
    std::sort(block, block + size,
              [](const Entry &p, const Entry &q) { return p.value < q.value; });
    for (Integer j = 0; j < nb; ++j) {
      Entry *entry = std::lower_bound(
          block, block + size, B[j], [](const Entry &p, Integer value) { return p.value < value; });
      if (entry == block + size || entry->value != B[j] || held[entry->place]) continue;
      for (; entry != block + size && entry->value == B[j]; ++entry) held[entry->place] = true;
    }
    for (Integer i = 0; i < size; ++i) visit(A[start + i], held[i]);
  }
}

}  // namespace

TRELVIN_ROUTINE trvmer2(TrvIntArrayInOut V, TrvIntInOut n) {
  if (n < 1) return;
  std::sort(V, V + n);
  n = static_cast<Integer>(std::unique(V, V + n) - V);
}

TRELVIN_ROUTINE trvmer3(TrvArrayInOut V, TrvIntInOut n) { trvmer12(V, n, tolerance); }

TRELVIN_ROUTINE trvmer12(TrvArrayInOut V, TrvIntInOut n, TrvIn tol) {
  if (n < 1) return;
  std::sort(V, V + n, comes_before);
  Integer kept = 1;
  for (Integer i = 1; i < n; ++i) {
    if (!agree(V[i], V[kept - 1], tol)) V[kept++] = V[i];
  }
  n = kept;
}

TRELVIN_ROUTINE trvmer4(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIn tol,
                        TrvIntOut nout, TrvArrayOut OUT, TrvIntArrayOut IB) {
  Integer written = std::max(na, 0);
  std::copy_n(A, written, OUT);
  for (Integer j = 0; j < nb; ++j) {
    Integer place = 0;
    while (place < written && !agree(B[j], OUT[place], tol)) ++place;
    if (place == written) OUT[written++] = B[j];
    IB[j] = place + 1;
  }
  nout = written;
}

TRELVIN_ROUTINE trvmer14(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT) {
  Integer written = 0;
  tell_common(A, na, B, nb, [&](Integer value, bool held) {
    if (held) OUT[written++] = value;
  });
  nout = written;
}

TRELVIN_ROUTINE trvmer15(TrvIntInOut na, TrvIntArrayInOut A, TrvIntIn nb, TrvIntArrayIn B,
                         TrvIntOut count) {
  Integer kept = 0;
  tell_common(A, na, B, nb, [&](Integer value, bool held) {
    if (!held) A[kept++] = value;
  });
  count = std::max(na, 0) - kept;
  if (na > 0) na = kept;
}

TRELVIN_ROUTINE trvmer16(TrvArrayInOut X, TrvArrayInOut Y, TrvIntInOut n, TrvIn tol) {
  if (n < 1) return;
  const auto same = [&](Integer i, Integer j) {
    return agree(X[i], X[j], tol) && agree(Y[i], Y[j], tol);
  };
  Integer kept = 1;
  for (Integer i = 1; i < n; ++i) {
    if (same(i, kept - 1)) continue;
    X[kept] = X[i];
    Y[kept] = Y[i];
    ++kept;
  }
  while (kept > 1 && same(kept - 1, 0)) --kept;
  n = kept;
}

TRELVIN_ROUTINE trvptp1(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIn tol, TrvIntOut count,
                        TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIntOut status) {
  Integer pairs = 0;
  Integer partnered = 0;
  for (Integer i = 0; i < na; ++i) {
    const Integer before = pairs;
    for (Integer j = 0; j < nb; ++j) {
      if (agree(XA[i], XB[j], tol) && agree(YA[i], YB[j], tol) && agree(ZA[i], ZB[j], tol)) {
        IA[pairs] = i + 1;
        IB[pairs] = j + 1;
        ++pairs;
      }
    }
    if (pairs > before) ++partnered;
  }
  count = pairs;
  status = pairs == 0 ? 0 : partnered < na ? 1 : 2;
}

TRELVIN_ROUTINE trvptp2(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIntIn nc, TrvArrayIn XC,
                        TrvArrayIn YC, TrvArrayIn ZC, TrvIn tol, TrvIntOut nab, TrvIntArrayOut IAB,
                        TrvIntArrayOut JAB, TrvIntOut nbc, TrvIntArrayOut IBC, TrvIntArrayOut JBC,
                        TrvIntOut nca, TrvIntArrayOut ICA, TrvIntArrayOut JCA, TrvIntOut nout,
                        TrvArrayOut XO, TrvArrayOut YO, TrvArrayOut ZO, TrvIntArrayOut MA,
                        TrvIntArrayOut MB, TrvIntArrayOut MC, TrvIntIn k, TrvIntOut nk,
                        TrvIntArrayOut PK, TrvIntOut nz, TrvArrayOut ZL) {
  Integer status;
  trvptp1(na, XA, YA, ZA, nb, XB, YB, ZB, tol, nab, IAB, JAB, status);
  trvptp1(nb, XB, YB, ZB, nc, XC, YC, ZC, tol, nbc, IBC, JBC, status);
  trvptp1(nc, XC, YC, ZC, na, XA, YA, ZA, tol, nca, ICA, JCA, status);

  Integer places = 0;
  Integer points = 0;
  Integer at_k = 0;
  const auto place = [&](Integer n, TrvArrayIn X, TrvArrayIn Y, TrvArrayIn Z, TrvIntArrayOut M) {
    for (Integer i = 0; i < n; ++i) {
      Integer p = 0;
      while (p < places &&
             !(agree(X[i], XO[p], tol) && agree(Y[i], YO[p], tol) && agree(Z[i], ZO[p], tol))) {
        ++p;
      }
      if (p == places) {
        XO[p] = X[i];
        YO[p] = Y[i];
        ZO[p] = Z[i];
        ++places;
      }
      M[i] = p + 1;
      ++points;
      if (M[i] == k) PK[at_k++] = points;
    }
  };
  place(na, XA, YA, ZA, MA);
  place(nb, XB, YB, ZB, MB);
  place(nc, XC, YC, ZC, MC);
  nout = places;
  nk = at_k;
  nz = places;
  std::copy_n(ZO, places, ZL);
  trvmer12(ZL, nz, tol);
}
