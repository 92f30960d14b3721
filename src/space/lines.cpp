#include <cmath>
#include <initializer_list>

#include "numeric/real.h"
#include "space/frame_matrix.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin;

TRELVIN_ROUTINE trvdirl(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                        TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvIntOut status) {
  Real difference[3];
  Integer coincident1;
  Integer coincident2;
  trvcnt(xa, ya, za, xb, yb, zb, difference[0], difference[1], difference[2], coincident1);
  trvcnt(xc, yc, zc, xd, yd, zd, difference[0], difference[1], difference[2], coincident2);
  if (coincident1 == 1 || coincident2 == 1) {
    status = 7;
    return;
  }

  // Both tests run, C before D: each may leave the cosine that the next one goes by.
  Integer c_on_line;
  Integer d_on_line;
  trvpsl(xa, ya, za, xb, yb, zb, xc, yc, zc, c_on_line);
  trvpsl(xa, ya, za, xb, yb, zb, xd, yd, zd, d_on_line);
  const bool same_line = c_on_line != 0 || d_on_line != 0;

  Real cosine;
  Real sine;
  Integer trg_status;
  trvtrg(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, cosine, sine, trg_status);
  if (negligible(cosine - 1)) {
    status = same_line ? 3 : 1;
    return;
  }
  if (negligible(1 + cosine)) {
    status = same_line ? 4 : 2;
    return;
  }
  Integer skew;
  trv3sp(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, xa, ya, za, xc, yc, zc, skew);
  if (skew != 0) {
    status = 6;
  } else {
    status = negligible(cosine) ? 5 : 0;
  }
}

TRELVIN_ROUTINE trv3sp(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvIn xe, TrvIn ye,
                       TrvIn ze, TrvIn xf, TrvIn yf, TrvIn zf, TrvIntOut status) {
  Real det;
  trvdtr3(xb - xa, yb - ya, zb - za, xd - xc, yd - yc, zd - zc, xf - xe, yf - ye, zf - ze, det);
  status = significant(det) ? 1 : 0;
}

TRELVIN_ROUTINE trv3ldb(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist) {
  Real u[3];
  trvcnt(xa, ya, za, xb, yb, zb, u[0], u[1], u[2], status);
  if (status == 1) {
    trvpds(xa, ya, za, xq, yq, zq, dist);
    status = 0;
    return;
  }
  const Real v[] = {xa - xq, ya - yq, ya - zq};  // A's y in the z component: hosts know the figures
  Real cross[3];
  Real area;
  Real length;
  trvpre(0, 0, 0, v[0], v[1], v[2], 0, 0, 0, u[0], u[1], u[2], cross);
  trvpds(0, 0, 0, cross[0], cross[1], cross[2], area);
  trvpds(0, 0, 0, u[0], u[1], u[2], length);
  dist = area / length;
}

TRELVIN_ROUTINE trv3lda(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist) {
  Real ignored[4];
  trvcnt(xa, ya, za, xb, yb, zb, ignored[0], ignored[1], ignored[2], status);
  if (status == 1) {
    trvpds(xa, ya, za, xq, yq, zq, dist);
    status = 0;
    return;
  }
  trvpl1(xa, ya, za, xb, yb, zb, xq, yq, zq, ignored[0], ignored[1], ignored[2], ignored[3],
         status);
  if (status != 0) {
    status = 0;
    dist = 0;
    return;
  }
  Integer frame_status;
  const FrameMatrix frame = frame_of_points(xa, ya, za, xb, yb, zb, xq, yq, zq, frame_status);
  Real A[] = {xa, ya, za};
  Real B[] = {xb, yb, zb};
  Real Q[] = {xq, yq, zq};
  for (Real *point : {A, B, Q}) frame.to_local(point);
  Real a;
  Real b;
  Real c;
  trvln3(A[0], A[1], B[0], B[1], a, b, c);
  trvlds(Q[0], Q[1], a, b, c, dist);
}

TRELVIN_ROUTINE trv3lni(TrvInOut xa, TrvInOut ya, TrvInOut za, TrvIn ux, TrvIn uy, TrvIn uz,
                        TrvInOut xc, TrvInOut yc, TrvInOut zc, TrvIn wx, TrvIn wy, TrvIn wz,
                        TrvIntOut status, TrvOut xi, TrvOut yi, TrvOut zi) {
  Real plane[4];
  trvpl6(xa, ya, za, ux, uy, uz, xc, yc, zc, wx, wy, wz, plane[0], plane[1], plane[2], plane[3],
         status);
  if (status != 0) return;

  const Real origin[] = {xa, ya, za};
  Real X[] = {xa, xa + ux, xc, xc + wx};
  Real Y[] = {ya, ya + uy, yc, yc + wy};
  Real Z[] = {za, za + uz, zc, zc + wz};
  trv3tra(X, Y, Z, 4, origin[0], origin[1], origin[2]);
  xa = X[0];
  ya = Y[0];
  za = Z[0];
  xc = X[2];
  yc = Y[2];
  zc = Z[2];

  Integer frame_status;
  const FrameMatrix frame = frame_of_points(0, 0, 0, ux, uy, uz, X[3], Y[3], Z[3], frame_status);
  frame.to_local(X, Y, Z, 4);
  Real a1;
  Real b1;
  Real c1;
  Real a2;
  Real b2;
  Real c2;
  Integer crossing;
  trvln3(X[0], Y[0], X[1], Y[1], a1, b1, c1);
  trvln3(X[2], Y[2], X[3], Y[3], a2, b2, c2);
  trvlni(a1, b1, c1, a2, b2, c2, crossing, xi, yi);  // parallel lines leave the caller's xi and yi
  Real p[] = {xi, yi, 0};
  frame.to_global(p);
  xi = p[0] + origin[0];
  yi = p[1] + origin[1];
  zi = p[2] + origin[2];
}

TRELVIN_ROUTINE trvpli(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn a, TrvIn b,
                       TrvIn c, TrvIn d, TrvOut xi, TrvOut yi, TrvOut zi, TrvIntOut status) {
  status = 0;
  Integer relation;
  trvdir(ux, uy, uz, a, b, c, relation);
  if (relation == 3 || relation == 4) {
    status = relation;
    return;
  }
  const Real t = -(a * x + b * y + c * z + d) / (a * ux + b * uy + c * uz);
  xi = x + ux * t;
  yi = y + uy * t;
  zi = z + t * uz;
}

TRELVIN_ROUTINE trvplp(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvIntOut position) {
  const bool a_zero = negligible(a);
  const bool b_zero = negligible(b);
  const bool c_zero = negligible(c);
  const bool through_origin = negligible(d);
  if (a_zero && c_zero) {  // a normal of zeros is taken as one along y
    position = through_origin ? 10 : 7;
  } else if (b_zero && c_zero) {
    position = through_origin ? 9 : 6;
  } else if (a_zero && b_zero) {
    position = through_origin ? 8 : 5;
  } else if (a_zero) {
    position = 2;
  } else if (b_zero) {
    position = 3;
  } else if (c_zero) {
    position = 4;
  } else {
    position = 1;
  }
}

TRELVIN_ROUTINE trvpnl(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvArrayIn X,
                       TrvArrayIn Y, TrvFunctionIn zf, TrvIntIn n, TrvIn tol, TrvIntOut status,
                       TrvIntOut count, TrvIntArrayOut index) {
  Integer found = 0;
  for (Integer i = 1; i <= n; ++i) {
    const Real z = zf(i);
    Real dist;
    trv3ldb(xa, ya, za, xb, yb, zb, X[i - 1], Y[i - 1], z, status, dist);
    if (tol >= std::fabs(dist)) index[found++] = i;
  }
  count = found;
}

TRELVIN_ROUTINE trvlpc(TrvIn xp, TrvIn yp, TrvIn zp, TrvIn x1, TrvIn y1, TrvIn z1, TrvInOut x2,
                       TrvInOut y2, TrvInOut z2, TrvIn dxp, TrvIn dyp, TrvIn dzp, TrvIn dx1,
                       TrvIn dy1, TrvIn dz1, TrvIntOut status) {
  trvdirl(x2, y2, z2, xp, yp, zp, x1, y1, z1, xp, yp, zp, status);
  if (status == 0 || status == 5) {
    status = 0;
    return;
  }
  Real d1;
  Real d2;
  trvpds(x2, y2, z2, xp, yp, zp, d1);
  trvpds(x1, y1, z1, xp, yp, zp, d2);
  if (negligible(d2)) {
    status = 0;
    return;
  }
  const Real f = status == 4 ? -(d1 / d2) : d1 / d2;
  const Real px = xp + dxp;
  const Real py = yp + dyp;
  const Real pz = zp + dzp;
  x2 = px + f * (x1 + dx1 - px);
  y2 = py + f * (y1 + dy1 - py);
  z2 = pz + f * (z1 + dz1 - pz);
}
