#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/plane.h"

using namespace trelvin;

TRELVIN_ROUTINE trvpds(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut d) {
  const Real dx = x2 - x1;
  const Real dy = y2 - y1;
  const Real dz = z2 - z1;
  d = square_root(dx * dx + dy * dy + dz * dz);
}

TRELVIN_ROUTINE trvpri(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut s) {
  s = (x2 - x1) * (x4 - x3) + (y2 - y1) * (y4 - y3) + (z2 - z1) * (z4 - z3);
}

TRELVIN_ROUTINE trvpre(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvArrayOut c) {
  const Real ax = x2 - x1;
  const Real ay = y2 - y1;
  const Real az = z2 - z1;
  const Real bx = x4 - x3;
  const Real by = y4 - y3;
  const Real bz = z4 - z3;
  c[0] = ay * bz - az * by;
  c[1] = az * bx - bz * ax;
  c[2] = ax * by - ay * bx;
}

TRELVIN_ROUTINE trvcnt(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut dx,
                       TrvOut dy, TrvOut dz, TrvIntOut status) {
  dx = x2 - x1;
  dy = y2 - y1;
  dz = z2 - z1;
  status = negligible(dx) && negligible(dy) && negligible(dz) ? 1 : 0;
}

TRELVIN_ROUTINE trvcnt1(TrvIn dx, TrvIn dy, TrvIn dz, TrvIntOut status) {
  status = dx == 0 && dy == 0 && dz == 0 ? 1 : 0;
}

TRELVIN_ROUTINE trv123(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn t,
                       TrvOut x, TrvOut y, TrvOut z, TrvIntOut status) {
  Real dx;
  Real dy;
  Real dz;
  trvcnt(x1, y1, z1, x2, y2, z2, dx, dy, dz, status);
  if (status != 0) return;
  x = dx * t + x1;
  y = dy * t + y1;
  z = t * dz + z1;
}

TRELVIN_ROUTINE trvmed(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut xm,
                       TrvOut ym, TrvOut zm) {
  xm = (x1 + x2) * 0.5F;
  ym = (y1 + y2) * 0.5F;
  zm = (z1 + z2) * 0.5F;
}

TRELVIN_ROUTINE trvdtr2(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut det) { det = a * d - b * c; }

TRELVIN_ROUTINE trvdtr3(TrvIn a1, TrvIn a2, TrvIn a3, TrvIn b1, TrvIn b2, TrvIn b3, TrvIn c1,
                        TrvIn c2, TrvIn c3, TrvOut det) {
  Real m1;
  Real m2;
  Real m3;
  trvdtr2(b2, b3, c2, c3, m1);
  trvdtr2(b1, b3, c1, c3, m2);
  trvdtr2(b1, b2, c1, c2, m3);
  det = a1 * m1 - a2 * m2 + a3 * m3;
}

TRELVIN_ROUTINE trvgrc(TrvIn a, TrvIn b, TrvIn c, TrvOut q1, TrvOut q2) {
  if (significant(a)) {
    q2 = b / a;
    q1 = c / a;
  } else {
    q1 = 0;
    q2 = 0;
  }
}

TRELVIN_ROUTINE trvint(TrvIn x1, TrvIn x2, TrvIn y1, TrvIn y2, TrvIn x, TrvOut y) {
  y = (y2 - y1) * (x - x1) / (x2 - x1) + y1;
}

TRELVIN_ROUTINE trvvin(TrvIn /*u1*/, TrvIn v, TrvIn /*u3*/, TrvIn /*u4*/, TrvIn /*u5*/,
                       TrvIntOut status) {
  status = v > 0 ? 1 : 2;
}

TRELVIN_ROUTINE trvpos(TrvIntIn n, TrvArrayIn A, TrvIn x, TrvIntOut i) {
  for (Integer k = 1; k < n; ++k) {
    if (A[k - 1] <= x && x < A[k]) {
      i = k;
      return;
    }
  }
  i = 0;
}

TRELVIN_ROUTINE trvpos1(TrvIntIn n, TrvArrayIn A, TrvIn x, TrvIntOut status, TrvIntOut i) {
  for (Integer k = 1; k <= n; ++k) {
    if (negligible(A[k - 1] - x)) {
      status = 1;
      i = k;
      return;
    }
  }
  for (Integer k = 1; k < n; ++k) {
    if (A[k - 1] < x && x < A[k]) {
      status = 2;
      i = k;
      return;
    }
  }
  status = 0;
  i = 0;
}
