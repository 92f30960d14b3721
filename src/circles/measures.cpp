#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/circles.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin;

TRELVIN_ROUTINE trvarc1(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvOut s1,
                        TrvOut s2, TrvIntOut status) {
  status = 1;
  Real r;
  Real chord;
  trvpds(xc, yc, 0, xa, ya, 0, r);
  trvpds(xa, ya, 0, xb, yb, 0, chord);
  if (r <= tolerance || chord <= tolerance) {
    status = 0;
    return;
  }
  Real phi;
  trvphi3(xc, yc, 0, xa, ya, 0, xb, yb, 0, phi);
  s1 = phi * r;
  s2 = two_pi * r - phi * r;
}

TRELVIN_ROUTINE trvaxph(TrvIn dx, TrvIn dy, TrvOut phi) {
  Real cross[3];
  trvphi(0, 0, 1, 0, dx, dy, phi);
  trvpre(0, 0, 0, 1, 0, 0, 0, 0, 0, dx, dy, 0, cross);
  const Real z = cross[2];
  if (significant(z)) phi = phi * z / std::fabs(z);
}

TRELVIN_ROUTINE trvhin(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x3, TrvIn y3, TrvIn z3, TrvOut h0, TrvOut s0,
                       TrvOut h3, TrvOut s3, TrvOut len) {
  // The line is the segment's in the plane, the lengths are those of space.
  Real a;
  Real b;
  Real c;
  trvln3(x1, y1, x2, y2, a, b, c);
  trvpds(x1, y1, z1, x2, y2, z2, len);
  const auto station = [&](Real x, Real y, Real length, TrvOut h) {
    trvlds(x, y, a, b, c, h);
    h = std::fabs(h);
    return square_root(length * length - h * h);
  };
  Real length0;
  Real length3;
  trvpds(x0, y0, z0, x1, y1, z1, length0);
  trvpds(x3, y3, z3, x2, y2, z2, length3);
  s0 = station(x0, y0, length0, h0);
  s3 = len - station(x3, y3, length3, h3);
}

TRELVIN_ROUTINE trvapp(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn n,
                       TrvArrayIn X, TrvArrayIn Y, TrvIntArrayOut mark) {
  // A first ray too short for an intersection leaves the foot where the point before had it.
  static struct { Real x, y; } kept;

  for (Integer i = 0; i < n; ++i) mark[i] = -1;
  Real phi;
  trvphi(x0, y0, x1, y1, x2, y2, phi);
  if (negligible(phi)) return;
  Real a1;
  Real b1;
  Real c1;
  Real a2;
  Real b2;
  Real c2;
  trvln3(x0, y0, x1, y1, a1, b1, c1);
  trvln3(x0, y0, x2, y2, a2, b2, c2);
  for (Integer i = 0; i < n; ++i) {
    Real d1;
    Real d2;
    trvlds(X[i], Y[i], a1, b1, c1, d1);
    trvlds(X[i], Y[i], a2, b2, c2, d2);
    if (d1 * d2 < 0) {
      mark[i] = 2;
      continue;
    }
    Real a;
    Real b;
    Real c;
    Integer status;
    trvln4(X[i], Y[i], a1, b1, 0, a, b, c);
    trvlni(a, b, c, a1, b1, c1, status, kept.x, kept.y);
    Integer place;
    trvpsl(x0, y0, 0, x1, y1, 0, kept.x, kept.y, 0, place);
    mark[i] = place == 4 ? 2 : 1;
  }
}
