#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "space/frame_matrix.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin;

TRELVIN_ROUTINE trvplg(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn wx, TrvIn wy,
                       TrvIn wz, TrvOut a, TrvOut b, TrvOut c, TrvOut d) {
  Real d1;
  Real d2;
  Real d3;
  trvdtr2(uy, uz, wy, wz, d1);
  trvdtr2(ux, uz, wx, wz, d2);
  trvdtr2(ux, uy, wx, wy, d3);
  a = d1;
  b = -d2;
  c = d3;
  d = -(d1 * x - d2 * y + d3 * z);
}

TRELVIN_ROUTINE trvpl1(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status) {
  trvpsl(x0, y0, z0, x1, y1, z1, x2, y2, z2, status);
  a = b = c = d = 0;
  if (status != 0) return;
  trvplg(x0, y0, z0, x1 - x0, y1 - y0, z1 - z0, x2 - x0, y2 - y0, z2 - z0, a, b, c, d);
}

TRELVIN_ROUTINE trvpl2(TrvIn x, TrvIn y, TrvIn z, TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb,
                       TrvIn zb, TrvIn xc, TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd,
                       TrvOut a, TrvOut b, TrvOut c, TrvOut d, TrvIntOut status) {
  a = b = c = d = 0;
  status = 0;
  Integer relation;
  trvdirl(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, relation);
  if (relation == 3 || relation == 4 || relation == 7) {
    status = relation;
    return;
  }
  trvplg(x, y, z, xb - xa, yb - ya, zb - za, xd - xc, yd - yc, zd - zc, a, b, c, d);
}

TRELVIN_ROUTINE trvpl3(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvOut a, TrvOut b,
                       TrvOut c, TrvOut d, TrvIntOut status) {
  trvpl2(xa, ya, za, xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, a, b, c, d, status);
}

TRELVIN_ROUTINE trvpl4(TrvIn x, TrvIn y, TrvIn z, TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb,
                       TrvIn zb, TrvOut a, TrvOut b, TrvOut c, TrvOut d, TrvIntOut status) {
  a = b = c = d = 0;
  Real nx;
  Real ny;
  Real nz;
  trvcnt(xa, ya, za, xb, yb, zb, nx, ny, nz, status);
  if (status != 0) return;
  a = nx;
  b = ny;
  c = nz;
  d = -nx * x - ny * y - nz * z;
}

TRELVIN_ROUTINE trvpl5(TrvIn ix, TrvIn iy, TrvIn iz, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status) {
  if (significant(ix) && significant(iy) && significant(iz)) {
    a = 1 / ix;
    b = 1 / iy;
    c = 1 / iz;
    d = -1;
    status = 0;
  } else {
    a = b = c = d = 0;
    status = 1;
  }
}

TRELVIN_ROUTINE trvpl6(TrvIn xa, TrvIn ya, TrvIn za, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn wx, TrvIn wy, TrvIn wz, TrvOut a, TrvOut b,
                       TrvOut c, TrvOut d, TrvIntOut status) {
  const Real xb = xa + ux;
  const Real yb = ya + uy;
  const Real zb = za + uz;
  const Real xd = xc + wx;
  const Real yd = yc + wy;
  const Real zd = zc + wz;
  status = 0;
  Integer relation;
  trvdirl(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, relation);
  if (relation == 3 || relation == 4 || relation == 6 || relation == 7) {
    status = relation;
    return;
  }
  trvpl2(xa, ya, za, xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, a, b, c, d, status);
}

TRELVIN_ROUTINE trvpl7(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn angle, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status) {
  trvpl1(x0, y0, z0, x1, y1, z1, x2, y2, z2, a, b, c, d, status);
  if (status != 0) return;
  Integer frame_status;
  const FrameMatrix frame = frame_of_points(x0, y0, z0, x1, y1, z1, x2, y2, z2, frame_status);
  Real normal[] = {0, 0, 1};
  trvrotx(2, &normal[0], &normal[1], &normal[2], 1, angle);
  frame.to_global(normal);
  trvpl4(x0, y0, z0, x0, y0, z0, x0 + normal[0], y0 + normal[1], z0 + normal[2], a, b, c, d,
         status);
}

TRELVIN_ROUTINE trvpsp(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x, TrvIn y, TrvIn z, TrvIn tol, TrvIntOut status) {
  status = -1;
  Real a;
  Real b;
  Real c;
  Real d;
  Integer plane_status;
  trvpl1(x0, y0, z0, x1, y1, z1, x2, y2, z2, a, b, c, d, plane_status);
  if (plane_status == 0 && tol >= std::fabs(a * x + d + b * y + c * z)) status = 0;
}

TRELVIN_ROUTINE trvpld(TrvIn x, TrvIn y, TrvIn z, TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut dist) {
  dist = (a * x + b * y + c * z + d) / square_root(a * a + b * b + c * c);
}

TRELVIN_ROUTINE trvpspg(TrvIn x, TrvIn y, TrvIn z, TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvIn tol,
                        TrvIntOut status) {
  trvcnt1(a, b, c, status);
  if (status == 1) return;
  Real dist;
  trvpld(x, y, z, a, b, c, d, dist);
  status = tol >= std::fabs(dist) ? 0 : -1;
}

TRELVIN_ROUTINE trvplv(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn wx, TrvIn wy, TrvIn wz, TrvIn /*v7*/,
                       TrvIn /*v8*/, TrvIntOut status) {
  trvcnt1(ux, uy, uz, status);  // of u alone: a zero w is left to the relation
  if (status == 1) {
    status = -1;
    return;
  }
  trvdirl(0, 0, 0, ux, uy, uz, 0, 0, 0, wx, wy, wz, status);
}

TRELVIN_ROUTINE trvpnp(TrvArrayIn X, TrvArrayIn Y, TrvArrayIn Z, TrvIn a, TrvIn b, TrvIn c,
                       TrvInOut d, TrvIntIn n, TrvIntOut count, TrvIntArrayOut index) {
  constexpr Real largest = 0;
  Integer found = 0;
  if (n >= 1) {
    Real residual = d;
    for (Integer i = 0; i < n; ++i) {
      residual = residual + X[i] * a + Y[i] * b + Z[i] * c;  // runs on from point to point
      if (std::fabs(residual) <= largest) index[found++] = i + 1;
    }
    d = residual;
  }
  count = found;
}
