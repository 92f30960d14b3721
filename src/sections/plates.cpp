#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/sections.h"

using namespace trelvin;

TRELVIN_ROUTINE trvro2(TrvIn b, TrvIn t, TrvIn r1, TrvIn r2, TrvIn psi, TrvIn ks, TrvOut rho) {
  const Real slenderness = b / (r2 / r1 * 28.4F * square_root(ks) * t);
  if (0.5F + square_root(0.085F - 0.055F * psi) >= slenderness) {
    rho = 1;
    return;
  }
  rho = (1 - 0.055F * (3 + psi) / slenderness) / slenderness;
  if (rho > 1) rho = 1;
}

TRELVIN_ROUTINE trvefr(TrvIn c, TrvIn bp, TrvIn t, TrvIn r1, TrvIn r2, TrvOut ceff) {
  // Beyond the range of the rule the buckling factor is that of the previous call.
  static struct { Real ks; } kept;

  const Real r = c / bp;
  if (r <= 0.35F) {
    kept.ks = 0.5F;
  } else if (r <= 0.6F) {
    const Real excess = r - 0.35F;
    kept.ks = excess * excess / 3 + 0.5F;  // a square by three, not a cube root
  }
  Real rho;
  trvro2(c, t, r1, r2, 1, kept.ks, rho);
  ceff = rho * c;
}

TRELVIN_ROUTINE trvef2(TrvIn bl, TrvIn w, TrvIn t, TrvIn r1, TrvIn r2, TrvIn s1, TrvIn s2,
                       TrvOut be1, TrvOut be2) {
  const auto effective = [&](Real psi, Real ks) {
    Real rho;
    trvro2(bl, t, r1, r2, psi, ks, rho);
    return rho * w;
  };
  const auto share_by_ratio = [&](Real psi, Real ks) {
    const Real width = effective(psi, ks);
    be1 = 2 * width / (5 - psi);
    be2 = width - be1;
  };
  const auto share_in_bending = [&](Real psi, Real ks) {
    const Real width = effective(psi, ks);
    be1 = 0.4F * width;
    be2 = 0.6F * width;
  };

  // The cases overlap near their borders, and each one that holds overwrites those before it.
  if (negligible(s1) && negligible(s2)) return;
  if (s1 <= 0) return;
  if (negligible(s1 - s2) && s2 > 0) {
    be1 = effective(1, 4) * 0.5F;
    be2 = be1;
  }
  if (negligible(s2)) share_by_ratio(0, 7.81F);
  if (s2 > 0 && s1 - s2 > 0) {
    const Real psi = s2 / s1;
    share_by_ratio(psi, 8.2F / (1.05F + psi));
  }
  if (s2 < 0) {
    const Real tension = std::fabs(s2);
    if (s1 > tension) {
      const Real psi = s2 / s1;
      share_in_bending(psi, (9.78F * psi - 6.29F) * psi + 7.81F);
    }
    if (tension > s1 && s1 > tension / 3) {
      const Real psi = s2 / s1;
      share_in_bending(psi, 5.98F * ((1 - psi) * (1 - psi)));
    }
    if (tension / 3 > s1) {
      be1 = 0.5F * w;
      be2 = be1;
      return;
    }
    if (std::fabs(s1 - tension) < tolerance) share_in_bending(-1, 23.9F);
  }
}
