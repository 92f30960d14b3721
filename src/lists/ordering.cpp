#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "numeric/real.h"
#include "trelvin/lists.h"
#include "trelvin/plane.h"

using namespace trelvin;

namespace {

// Among equal smallest entries the last one is taken.
template <class Element>
void selection_sort(Element *V, Integer n) {
  for (Integer i = 0; i < n; ++i) {
    Element smallest = V[i];
    Integer place = i;
    for (Integer j = i + 1; j < n; ++j) {
      if (smallest >= V[j]) {
        smallest = V[j];
        place = j;
      }
    }
    V[place] = V[i];
    V[i] = smallest;
  }
}

struct Release {
  void operator()(Real *work) const { std::free(work); }
};
using WorkArray = std::unique_ptr<Real, Release>;

// Room for n Reals, or nothing where memory is short; never an exception.
WorkArray work_array(Integer n) {
  return WorkArray(static_cast<Real *>(std::calloc(static_cast<std::size_t>(n), sizeof(Real))));
}

}  // namespace

TRELVIN_ROUTINE trvord(TrvArrayInOut V, TrvIntIn n) { selection_sort(V, n); }

TRELVIN_ROUTINE trvord1(TrvIntArrayInOut V, TrvIntIn n) { selection_sort(V, n); }

TRELVIN_ROUTINE trvordi(TrvArrayIn V, TrvIntIn n, TrvIntArrayOut IDX) {
  if (n < 1) return;
  const WorkArray work = work_array(n);
  if (!work) return;
  Real *const W = work.get();
  std::copy_n(V, n, W);
  Real largest = W[0];
  for (Integer i = 1; i < n; ++i) {
    if (W[i] > largest) largest = W[i];
  }
  const Real done = largest + 1;
  for (Integer k = 0; k < n; ++k) {
    Real smallest = W[k];  // an entry at the output's own position, perhaps one already done
    Integer place = -1;
    for (Integer j = 0; j < n; ++j) {
      if (W[j] <= smallest) {
        smallest = W[j];
        place = j;
      }
    }
    if (place >= 0) {
      IDX[k] = place + 1;
      W[place] = done;
    }
  }
}

TRELVIN_ROUTINE trvpor(TrvIntIn n, TrvArrayIn A, TrvArrayIn B, TrvArrayIn C, TrvIntArrayOut IDX,
                       TrvIntOut status) {
  if (n < 1) {
    status = -1;
    return;
  }
  Real x;
  Real y;
  Integer against_y_axis;
  trvlni(A[0], B[0], C[0], 1, 0, 0, against_y_axis, x, y);

  // As many twos as there are other lines: each parallel to the first and apart from it.
  std::int64_t sum = 0;
  for (Integer i = 1; i < n; ++i) {
    Integer relation;
    trvlni(A[0], B[0], C[0], A[i], B[i], C[i], relation, x, y);
    sum += relation;
  }
  if (sum != 2 * (static_cast<std::int64_t>(n) - 1)) {
    status = -1;
    for (Integer i = 0; i < n; ++i) IDX[i] = i + 1;
    return;
  }
  status = 0;
  const WorkArray work = work_array(n);
  if (!work) return;
  Real *const keys = work.get();
  const Real *divisor = against_y_axis == 2 ? A : B;
  for (Integer i = 0; i < n; ++i) keys[i] = 0 - C[i] / divisor[i];
  trvordi(keys, n, IDX);
}

TRELVIN_ROUTINE trvorv(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntArrayOut ORD) {
  struct Corner {
    Real x, y, z;
  };
  const Corner corners[] = {
      {X[0], Y[0], Z[0]}, {X[1], Y[1], Z[1]}, {X[2], Y[2], Z[2]}, {X[3], Y[3], Z[3]}};
  const auto turns_back = [&](const Integer *order) {
    const Corner &q1 = corners[order[0] - 1];
    const Corner &q2 = corners[order[1] - 1];
    const Corner &q3 = corners[order[2] - 1];
    const Corner &q4 = corners[order[3] - 1];
    Real n1[3];
    Real n2[3];
    Real d;
    trvpre(q1.x, q1.y, q1.z, q2.x, q2.y, q2.z, q1.x, q1.y, q1.z, q3.x, q3.y, q3.z, n1);
    trvpre(q1.x, q1.y, q1.z, q3.x, q3.y, q3.z, q1.x, q1.y, q1.z, q4.x, q4.y, q4.z, n2);
    trvpri(0, 0, 0, n1[0], n1[1], n1[2], 0, 0, 0, n2[0], n2[1], n2[2], d);
    return d < 0;
  };
  constexpr Integer orders[3][4] = {{1, 2, 3, 4}, {1, 2, 4, 3}, {1, 4, 2, 3}};
  const Integer *order = orders[0];
  if (turns_back(order)) order = turns_back(orders[1]) ? orders[2] : orders[1];
  for (int k = 0; k < 4; ++k) {
    const Corner &corner = corners[order[k] - 1];
    ORD[k] = order[k];
    X[k] = corner.x;
    Y[k] = corner.y;
    Z[k] = corner.z;
  }
}
