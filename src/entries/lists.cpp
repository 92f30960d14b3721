#include "trelvin/lists.h"

#include <algorithm>
#include <cstdint>

#include "entries/door.h"
#include "lists/crossings.h"
#include "lists/matching.h"
#include "lists/merging.h"
#include "lists/ordering.h"
#include "lists/points.h"

using namespace trelvin;

/* Ordering ----------------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvord(TrvArrayInOut V, TrvIntIn n) {
  const Door door;
  sort_selecting(V, n);
}

TRELVIN_ROUTINE trvord1(TrvIntArrayInOut V, TrvIntIn n) {
  const Door door;
  sort(V, n);
}

TRELVIN_ROUTINE trvordi(TrvArrayIn V, TrvIntIn n, TrvIntArrayOut IDX) {
  const Door door;
  order({V}, n, IDX);
}

TRELVIN_ROUTINE trvpor(TrvIntIn n, TrvArrayIn A, TrvArrayIn B, TrvArrayIn C, TrvIntArrayOut IDX,
                       TrvIntOut status) {
  const Door door;
  const Integer size = n;
  const LineArrays lines = {A, B, C};
  const bool family = size > 0 && parallel_and_distinct(lines, size);
  if (family) {
    order_parallels(lines, size, IDX);
  } else {
    for (Integer i = 0; i < size; ++i) IDX[i] = i + 1;
  }
  status = family ? 0 : -1;
}

TRELVIN_ROUTINE trvorv(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntArrayOut ORD) {
  const Door door;
  Quadrilateral q;
  for (Integer k = 0; k < 4; ++k) q.corners[k] = {X[k], Y[k], Z[k]};
  const Integer *order = cyclic_order(q);
  for (Integer k = 0; k < 4; ++k) {
    write(q.corners[order[k] - 1], X[k], Y[k], Z[k]);
    ORD[k] = order[k];
  }
}

/* Searching, matching and joining ------------------------------------------------------------ */

TRELVIN_ROUTINE trvsel1(TrvIntIn n, TrvIntArrayIn V, TrvIntIn key, TrvIntOut count,
                        TrvIntArrayOut pos) {
  const Door door;
  count = positions_of(key, V, n, pos);
}

TRELVIN_ROUTINE trvmer13(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIntOut count,
                         TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIn tol) {
  const Door door;
  const RealList a = {A, na};
  const RealList b = {B, nb};
  const Real limit = tol;
  // The counts add up as they are, so a negative one leaves fewer entries cleared.
  const std::int64_t cleared = std::max(std::int64_t{a.n} + b.n, std::int64_t{0});
  std::fill_n(IA, cleared, 0);
  std::fill_n(IB, cleared, 0);
  count = pair_numbers(a, b, limit, IA, IB).pairs;
}

TRELVIN_ROUTINE trvmer1(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                        TrvIntArrayOut OUT) {
  const Door door;
  nout = join(A, na, B, nb, OUT);
}

TRELVIN_ROUTINE trvmer11(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT) {
  const Door door;
  nout = join(A, na, B, nb, OUT);
}

TRELVIN_ROUTINE trvmer2(TrvIntArrayInOut V, TrvIntInOut n) {
  const Door door;
  n = merge(V, n);
}

TRELVIN_ROUTINE trvmer3(TrvArrayInOut V, TrvIntInOut n) {
  const Door door;
  n = merge(V, n, tolerance);
}

TRELVIN_ROUTINE trvmer12(TrvArrayInOut V, TrvIntInOut n, TrvIn tol) {
  const Door door;
  n = merge(V, n, tol);
}

TRELVIN_ROUTINE trvmer4(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIn tol,
                        TrvIntOut nout, TrvArrayOut OUT, TrvIntArrayOut IB) {
  const Door door;
  nout = join_new({A, na}, {B, nb}, tol, OUT, IB);
}

TRELVIN_ROUTINE trvmer14(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT) {
  const Door door;
  nout = common(A, na, B, nb, OUT);
}

TRELVIN_ROUTINE trvmer15(TrvIntInOut na, TrvIntArrayInOut A, TrvIntIn nb, TrvIntArrayIn B,
                         TrvIntOut count) {
  const Door door;
  const Integer before = na;
  const Integer left = difference(A, before, B, nb, A);
  if (before > 0) na = left;
  count = before > 0 ? before - left : 0;
}

TRELVIN_ROUTINE trvmer16(TrvArrayInOut X, TrvArrayInOut Y, TrvIntInOut n, TrvIn tol) {
  const Door door;
  n = merge_outline({X, Y}, n, tol);
}

/* Points ------------------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvptp1(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIn tol, TrvIntOut count,
                        TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIntOut status) {
  const Door door;
  const PointList a = {XA, YA, ZA, na};
  const Partners found = pair_points(a, PointList{XB, YB, ZB, nb}, tol, IA, IB);
  count = found.pairs;
  status = found.pairs == 0 ? 0 : found.partnered < a.n ? 1 : 2;
}

TRELVIN_ROUTINE trvptp2(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIntIn nc, TrvArrayIn XC,
                        TrvArrayIn YC, TrvArrayIn ZC, TrvIn tol, TrvIntOut nab, TrvIntArrayOut IAB,
                        TrvIntArrayOut JAB, TrvIntOut nbc, TrvIntArrayOut IBC, TrvIntArrayOut JBC,
                        TrvIntOut nca, TrvIntArrayOut ICA, TrvIntArrayOut JCA, TrvIntOut nout,
                        TrvArrayOut XO, TrvArrayOut YO, TrvArrayOut ZO, TrvIntArrayOut MA,
                        TrvIntArrayOut MB, TrvIntArrayOut MC, TrvIntIn k, TrvIntOut nk,
                        TrvIntArrayOut PK, TrvIntOut nz, TrvArrayOut ZL) {
  const Door door;
  const PointList lists[] = {{XA, YA, ZA, na}, {XB, YB, ZB, nb}, {XC, YC, ZC, nc}};
  const Integer *const place_of[] = {MA, MB, MC};
  const Real limit = tol;
  const Integer chosen = k;
  const MergedCounts counts = merge_points(
      lists, limit, {{IAB, IBC, ICA}, {JAB, JBC, JCA}, SpaceArrays{XO, YO, ZO}, {MA, MB, MC}});
  std::copy_n(ZO, counts.places, ZL);

  Integer points = 0;
  Integer at_chosen = 0;
  for (int list = 0; list < 3; ++list) {
    for (Integer i = 0; i < lists[list].n; ++i) {
      ++points;
      if (place_of[list][i] == chosen) PK[at_chosen++] = points;
    }
  }
  nab = counts.pairs[0];
  nbc = counts.pairs[1];
  nca = counts.pairs[2];
  nout = counts.places;
  nk = at_chosen;
  nz = merge(ZL, counts.places, limit);
}

/* Crossings of an outline -------------------------------------------------------------------- */

TRELVIN_ROUTINE trvppp(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn y0, TrvIntOut count,
                       TrvArrayOut XC) {
  const Door door;
  const Outline outline = {X, Y, n};
  count = outline.n < 3 ? 0 : cross_level(outline, y0, XC);
}

TRELVIN_ROUTINE trvpin(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn x1, TrvIn y1, TrvIn x2,
                       TrvIn y2, TrvIntOut count, TrvArrayOut XI, TrvArrayOut YI, TrvArrayOut T,
                       TrvIntArrayOut EDGE, TrvIntOut status) {
  const Door door;
  const Outline outline = {X, Y, n};
  const Point2 p1 = {x1, y1};
  const Point2 p2 = {x2, y2};
  if (outline.n < 3 || coincide(p1, p2)) {
    count = 0;
    status = -1;
    return;
  }
  const Integer found = cross_segment(outline, p1, p2, {XI, YI, T, EDGE});
  count = found;
  status = inside(outline, p1) ? 1 : 0;
}
