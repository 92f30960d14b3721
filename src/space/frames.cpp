#include <initializer_list>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "space/frame_matrix.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin;

namespace {

// Turns about the axes x, y and z, in the positive sense of the rotations.
void turn_about_axes(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, Integer n, Real ax, Real ay,
                     Real az) {
  trvrotx(1, X, Y, Z, n, -ax);
  trvroty(1, X, Y, Z, n, -ay);
  trvrotz(1, X, Y, Z, n, -az);
}

// An axis shorter than the tolerance keeps its zeros.
void normalise(const Real *axis, TrvOut ex, TrvOut ey, TrvOut ez) {
  Real length;
  trvpds(0, 0, 0, axis[0], axis[1], axis[2], length);
  if (length >= tolerance) {
    ex = axis[0] / length;
    ey = axis[1] / length;
    ez = axis[2] / length;
  }
}

}  // namespace

TRELVIN_ROUTINE trvpsl(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIntOut status) {
  // Points that coincide by coordinates leave the cosine unwritten, but may yet be too far apart
  // for the distances below to tell: then the previous call's decides.
  static struct { Real cosine; } kept;

  status = 0;
  Real sine;
  Integer coincident;
  trvtrg(x0, y0, z0, x2, y2, z2, x1, y1, z1, x2, y2, z2, kept.cosine, sine, coincident);
  Real d0;
  Real d1;
  trvpds(x0, y0, z0, x2, y2, z2, d0);
  trvpds(x1, y1, z1, x2, y2, z2, d1);
  if (d0 <= tolerance) {
    status = 1;
  } else if (d1 <= tolerance) {
    status = 2;
  } else {
    if (negligible(1 + kept.cosine)) status = 3;
    if (negligible(kept.cosine - 1)) {
      if (d1 > d0) status = 4;
      if (d0 > d1) status = 5;
    }
  }
}

TRELVIN_ROUTINE trv3tra(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn dx,
                        TrvIn dy, TrvIn dz) {
  // Copies: the new origin may be one of the points.
  const Real x0 = dx;
  const Real y0 = dy;
  const Real z0 = dz;
  for (Integer i = 0; i < n; ++i) {
    X[i] -= x0;
    Y[i] -= y0;
    Z[i] -= z0;
  }
}

TRELVIN_ROUTINE trvtrn(TrvArrayInOut p, TrvIn a1, TrvIn a2, TrvIn a3, TrvIn a4, TrvIn a5, TrvIn a6,
                       TrvIn a7, TrvIn a8, TrvIn a9, TrvIntIn mode) {
  const Real p1 = p[0];
  const Real p2 = p[1];
  const Real p3 = p[2];
  if (mode == 1) {
    p[0] = a1 * p1 + a4 * p2 + a7 * p3;
    p[1] = a2 * p1 + a5 * p2 + a8 * p3;
    p[2] = a3 * p1 + a6 * p2 + a9 * p3;
  } else {
    p[0] = a1 * p1 + a2 * p2 + a3 * p3;
    p[1] = a4 * p1 + a5 * p2 + a6 * p3;
    p[2] = a7 * p1 + a8 * p2 + a9 * p3;
  }
}

TRELVIN_ROUTINE trvaxe(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut e1x, TrvOut e1y, TrvOut e1z, TrvOut e2x,
                       TrvOut e2y, TrvOut e2z, TrvOut e3x, TrvOut e3y, TrvOut e3z,
                       TrvIntOut status) {
  for (Real *e : {&e1x, &e1y, &e1z, &e2x, &e2y, &e2z, &e3x, &e3y, &e3z}) *e = 0;
  trvpsl(x0, y0, z0, x1, y1, z1, x2, y2, z2, status);
  if (status != 0) {
    status = -2;
    return;
  }
  const Real u[] = {x1 - x0, y1 - y0, z1 - z0};
  Real m[3];
  trvpre(x0, y0, z0, x1, y1, z1, x0, y0, z0, x2, y2, z2, m);
  const Real deciding = significant(m[1]) ? m[1] : significant(m[2]) ? m[2] : m[0];
  if (deciding < 0) {
    for (Real &component : m) component = -component;
  }
  Real v[3];
  trvpre(0, 0, 0, m[0], m[1], m[2], 0, 0, 0, u[0], u[1], u[2], v);
  normalise(u, e1x, e1y, e1z);
  normalise(v, e2x, e2y, e2z);
  normalise(m, e3x, e3y, e3z);
}

TRELVIN_ROUTINE trvaxel(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn angle,
                        TrvOut e1x, TrvOut e1y, TrvOut e1z, TrvOut e2x, TrvOut e2y, TrvOut e2z,
                        TrvOut e3x, TrvOut e3y, TrvOut e3z, TrvIntOut status) {
  for (Real *e : {&e1x, &e1y, &e1z, &e2x, &e2y, &e2z, &e3x, &e3y, &e3z}) *e = 0;
  Real length;
  trvpds(x0, y0, z0, x1, y1, z1, length);
  if (negligible(length)) {
    status = -2;
    return;
  }
  status = 0;
  e1x = (x1 - x0) / length;
  e1y = (y1 - y0) / length;
  e1z = (z1 - z0) / length;

  // The global y axis freed of its component along e1, and e1 x y; neither exists for e1 along y.
  const Real q = e1x * e1x + e1z * e1z;
  const Real r = square_root(q);
  const Real f2[] = {-e1x * e1y / r, q / r, -e1z * e1y / r};
  const Real f3[] = {-e1z / r, 0, e1x / r};
  const auto [s, c] = sine_cosine(angle);
  e2x = c * f2[0] + s * f3[0];
  e2y = c * f2[1] + s * f3[1];
  e2z = c * f2[2] + s * f3[2];
  e3x = c * f3[0] - s * f2[0];
  e3y = c * f3[1] - s * f2[1];
  e3z = c * f3[2] - s * f2[2];
}

TRELVIN_ROUTINE trvptr(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn x0,
                       TrvIn y0, TrvIn z0, TrvIn ax, TrvIn ay, TrvIn az) {
  if (significant(x0) || significant(y0) || significant(z0)) trv3tra(X, Y, Z, n, -x0, -y0, -z0);
  if (significant(ax)) trvrotx(2, X, Y, Z, n, ax);
  if (significant(ay)) trvroty(2, X, Y, Z, n, ay);
  if (significant(az)) trvrotz(2, X, Y, Z, n, az);
}

TRELVIN_ROUTINE trvptrl(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                        TrvIn y2, TrvIn z2, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                        TrvIntIn n, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay, TrvIn az,
                        TrvIntOut status) {
  const FrameMatrix frame = frame_of_points(x0, y0, z0, x1, y1, z1, x2, y2, z2, status);
  if (status != 0) return;
  trv3tra(X, Y, Z, n, x0, y0, z0);
  frame.to_local(X, Y, Z, n);
  for (Integer i = 0; i < n; ++i) {
    Real p[] = {X[i] + dx, Y[i] + dy, Z[i] + dz};
    turn_about_axes(&p[0], &p[1], &p[2], 1, ax, ay, az);
    frame.to_global(p);
    X[i] = p[0] + x0;
    Y[i] = p[1] + y0;
    Z[i] = p[2] + z0;
  }
}

TRELVIN_ROUTINE trvpra(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvArrayInOut X,
                       TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn angle,
                       TrvIntOut status) {
  FrameMatrix f;
  trvaxel(x0, y0, z0, x1, y1, z1, 0, f.e[0], f.e[1], f.e[2], f.e[3], f.e[4], f.e[5], f.e[6], f.e[7],
          f.e[8], status);
  if (status != 0) return;
  for (Integer i = 0; i < n; ++i) {
    Real p[] = {X[i] - x0, Y[i] - y0, Z[i] - z0};
    f.to_local(p);
    trvrotx(1, &p[0], &p[1], &p[2], 1, -angle);
    f.to_global(p);
    X[i] = p[0] + x0;
    Y[i] = p[1] + y0;
    Z[i] = p[2] + z0;
  }
}

TRELVIN_ROUTINE trvppc(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay,
                       TrvIn az, TrvIntIn n, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                       TrvIn tol, TrvIntOut status) {
  Real a;
  Real b;
  Real c;
  Real d;
  trvpl1(x0, y0, z0, x1, y1, z1, x2, y2, z2, a, b, c, d, status);
  if (status != 0) {
    status = -1;
    return;
  }
  for (Integer i = 0; i < n; ++i) {
    trvpsp(x0, y0, z0, x1, y1, z1, x2, y2, z2, X[i], Y[i], Z[i], tol, status);
    if (status != 0) {
      status = i + 1;
      return;
    }
  }
  Integer frame_status;
  const FrameMatrix frame = frame_of_points(x0, y0, z0, x1, y1, z1, x2, y2, z2, frame_status);
  trv3tra(X, Y, Z, n, x0, y0, z0);
  frame.to_local(X, Y, Z, n);
  turn_about_axes(X, Y, Z, n, ax, ay, az);
  frame.to_global(X, Y, Z, n);
  trv3tra(X, Y, Z, n, -(x0 + dx), -(y0 + dy), -(z0 + dz));
}
