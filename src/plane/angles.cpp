#include <cmath>
#include <initializer_list>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/plane.h"

using namespace trelvin;

TRELVIN_ROUTINE trvphi(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut phi) {
  Real length1;
  Real length2;
  trvpds(x0, y0, 0, x1, y1, 0, length1);
  trvpds(x0, y0, 0, x2, y2, 0, length2);
  if (negligible(length1) || negligible(length2)) {
    phi = 0;
    return;
  }
  const Real dot = (x1 - x0) * (x2 - x0) + (y1 - y0) * (y2 - y0);
  phi = arc_cosine(dot / length1 / length2);
}

TRELVIN_ROUTINE trvphi3(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                        TrvIn y2, TrvIn z2, TrvOut phi) {
  Real length1;
  Real length2;
  Real dot;
  trvpds(x0, y0, z0, x1, y1, z1, length1);
  trvpds(x0, y0, z0, x2, y2, z2, length2);
  trvpri(x0, y0, z0, x1, y1, z1, x0, y0, z0, x2, y2, z2, dot);
  phi = negligible(length1) || negligible(length2) ? 0 : arc_cosine(dot / length1 / length2);
}

TRELVIN_ROUTINE trvphi1(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvOut phi) {
  Real length1;
  Real length2;
  trvpds(0, 0, 0, ux, uy, uz, length1);
  trvpds(0, 0, 0, vx, vy, vz, length2);
  if (negligible(length1) || negligible(length2)) {
    phi = 0;
    return;
  }
  const Real dot = ux * vx + uy * vy + uz * vz;
  phi = arc_cosine(dot / length1 / length2);
}

TRELVIN_ROUTINE trvphip(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvOut phi,
                        TrvIntOut status) {
  Real length1;
  Real length2;
  Real dot;
  trvpds(0, 0, 0, ux, uy, uz, length1);
  trvpds(0, 0, 0, vx, vy, vz, length2);
  trvpri(0, 0, 0, ux, uy, uz, 0, 0, 0, vx, vy, vz, dot);
  if (negligible(length1) || negligible(length2)) {
    status = -1;
    return;
  }
  phi = arc_cosine(std::fabs(dot) / length1 / length2);
}

TRELVIN_ROUTINE trvchi(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut chi, TrvIntOut status) {
  Real ignored[3];
  Integer at_p1;
  Integer at_p2;
  trvcnt(x0, y0, z0, x1, y1, z1, ignored[0], ignored[1], ignored[2], at_p1);
  trvcnt(x0, y0, z0, x2, y2, z2, ignored[0], ignored[1], ignored[2], at_p2);
  status = at_p1 == 1 || at_p2 == 1 ? 1 : 0;
  if (status == 1) return;
  const double u[] = {double{x1} - x0, double{y1} - y0, double{z1} - z0};
  const double v[] = {double{x2} - x0, double{y2} - y0, double{z2} - z0};
  const double m[] = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2],
                      u[0] * v[1] - u[1] * v[0]};
  const double sine = std::sqrt(m[0] * m[0] + m[1] * m[1] + m[2] * m[2]);
  const double angle = arc_tangent(sine, u[0] * v[0] + u[1] * v[1] + u[2] * v[2]);
  double deciding = 0;
  for (const double limit : {static_cast<double>(tolerance), 0.0}) {
    for (const double component : {m[1], m[2], m[0]}) {
      if (deciding == 0 && std::fabs(component) > limit) deciding = component;
    }
  }
  chi = static_cast<Real>(deciding < 0 ? full_turn - angle : angle);
  if (chi >= two_pi) chi = std::nextafter(two_pi, Real{0});  // the last Real before the full turn
}

TRELVIN_ROUTINE trvcnv(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIntOut status) {
  status = -1;
  if (n < 3) return;
  const auto next = [&](Integer i) { return i + 1 < n ? i + 1 : 0; };
  for (Integer i = 0; i < n; ++i) {
    Real side;
    trvpds(X[i], Y[i], 0, X[next(i)], Y[next(i)], 0, side);
    if (side <= tolerance) return;
  }
  // Once around in all, and no turn against that sense. A vertex close to the line through its
  // neighbours does not turn, unless it turns back.
  double turned = 0;
  bool turns_left = false;
  bool turns_right = false;
  bool turns_back = false;
  for (Integer i = 0; i < n; ++i) {
    const Integer j = next(i);
    const Integer k = next(j);
    const double ux = double{X[j]} - X[i];
    const double uy = double{Y[j]} - Y[i];
    const double vx = double{X[k]} - X[j];
    const double vy = double{Y[k]} - Y[j];
    const double cross = ux * vy - uy * vx;
    const double dot = ux * vx + uy * vy;
    turned += arc_tangent(cross, dot);
    const double base = std::sqrt((ux + vx) * (ux + vx) + (uy + vy) * (uy + vy));
    if (std::fabs(cross) > tolerance * base) {
      (cross > 0 ? turns_left : turns_right) = true;
    } else if (dot < 0) {
      turns_back = true;
    }
  }
  const double once = std::fabs(turned) / full_turn;
  const bool against = turned > 0 ? turns_right : turns_left;
  status = once > 0.5 && once < 1.5 && !against && !turns_back ? 1 : 0;
}

TRELVIN_ROUTINE trvtrg(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut cphi, TrvOut sphi,
                       TrvIntOut status) {
  Real difference[3];
  Integer coincident1;
  Integer coincident2;
  trvcnt(x1, y1, z1, x2, y2, z2, difference[0], difference[1], difference[2], coincident1);
  trvcnt(x3, y3, z3, x4, y4, z4, difference[0], difference[1], difference[2], coincident2);
  if (coincident1 == 1 || coincident2 == 1) {
    status = 1;
    return;
  }
  status = 0;
  Real length1;
  Real length2;
  Real dot;
  Real cross[3];
  trvpds(x1, y1, z1, x2, y2, z2, length1);
  trvpds(x3, y3, z3, x4, y4, z4, length2);
  trvpri(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, dot);
  trvpre(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, cross);
  cphi = dot / length1 / length2;
  sphi = square_root(cross[0] * cross[0] + cross[1] * cross[1] + cross[2] * cross[2]) / length1 /
         length2;
}

TRELVIN_ROUTINE trvdir(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvIntOut code) {
  // A null vector leaves the cosine unwritten; the last two tests then overrule what it says.
  Real cosine = 0;
  Real sine = 0;
  Integer status;
  trvtrg(0, 0, 0, ux, uy, uz, 0, 0, 0, vx, vy, vz, cosine, sine, status);
  code = 0;
  if (negligible(cosine - 1)) code = 1;
  if (negligible(1 + cosine)) code = 2;
  if (negligible(cosine)) code = 3;
  if (negligible(ux) && negligible(uy) && negligible(uz)) code = 4;
  if (negligible(vx) && negligible(vy) && negligible(vz)) code = 4;
}

TRELVIN_ROUTINE trvdirp(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn d1, TrvIn a2, TrvIn b2, TrvIn c2,
                        TrvIn d2, TrvIntOut code) {
  Integer normals;
  trvdir(a1, b1, c1, a2, b2, c2, normals);
  code = 0;
  if (normals == 1 || normals == 2) {
    // One component at least is significant, or the normals would not be parallel but null.
    Real k = 0;
    if (significant(a2)) k = a1 / a2;
    if (significant(b2)) k = b1 / b2;
    if (significant(c2)) k = c1 / c2;
    const Real kd = significant(d2) ? d1 / d2 : 0;
    const bool distinct = significant(k - kd) && (significant(d1) || significant(d2));
    code = distinct ? normals : normals + 2;
  } else if (normals == 3) {
    code = 5;
  } else if (normals == 4) {
    code = 6;
  }
}

TRELVIN_ROUTINE trvmov(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut ax, TrvOut ay,
                       TrvOut az) {
  const Real ux = x2 - x1;
  const Real uy = y2 - y1;
  const Real uz = z2 - z1;
  const Real vx = x4 - x3;
  const Real vy = y4 - y3;
  const Real vz = z4 - z3;
  trvphi1(uy, uz, 0, vy, vz, 0, ax);
  trvphi1(ux, 0, uz, vx, 0, vz, ay);
  trvphi1(ux, uy, 0, vx, vy, 0, az);
}

TRELVIN_ROUTINE trvtra(TrvArrayInOut X, TrvArrayInOut Y, TrvIntIn n, TrvIn x0, TrvIn y0) {
  // Copies: the new origin may be one of the points.
  const Real dx = x0;
  const Real dy = y0;
  for (Integer i = 0; i < n; ++i) {
    X[i] -= dx;
    Y[i] -= dy;
  }
}
