#include "sections/buckling.h"

#include <cmath>

#include "numeric/functions.h"

namespace trelvin {

Real reduction_factor(Real b, Real t, Real r1, Real r2, Real psi, Real ks) {
  const Real slenderness = b / (r2 / r1 * 28.4F * square_root(ks) * t);
  if (0.5F + square_root(0.085F - 0.055F * psi) >= slenderness) return 1;
  const Real rho = (1 - 0.055F * (3 + psi) / slenderness) / slenderness;
  return rho > 1 ? 1 : rho;
}

Real effective_width_of_fold(Real c, Real bp, Real t, Real r1, Real r2, LastBucklingFactor &last) {
  const Real r = c / bp;
  if (r <= 0.35F) {
    last.value = 0.5F;
  } else if (r <= 0.6F) {
    const Real excess = r - 0.35F;
    last.value =
        excess * excess / 3 + 0.5F;  // not ^(2/3) as in EN 1993-1-3: results must not change
  }
  return reduction_factor(c, t, r1, r2, 1, last.value) * c;
}

std::optional<EffectiveWidths> effective_widths(Real bl, Real w, Real t, Real r1, Real r2, Real s1,
                                                Real s2) {
  const auto width = [&](Real psi, Real ks) {
    return reduction_factor(bl, t, r1, r2, psi, ks) * w;
  };
  const auto by_ratio = [&](Real psi, Real ks) {
    const Real whole = width(psi, ks);
    const Real first = 2 * whole / (5 - psi);
    return EffectiveWidths{first, whole - first};
  };
  const auto in_bending = [&](Real psi, Real ks) {
    const Real whole = width(psi, ks);
    return EffectiveWidths{0.4F * whole, 0.6F * whole};
  };

  if (negligible(s1) && negligible(s2)) return std::nullopt;
  if (s1 <= 0) return std::nullopt;

  // The cases overlap next to their borders. The first one here is used.
  const Real psi = s2 / s1;
  if (s2 < 0) {
    const Real tension = std::fabs(s2);
    if (tension / 3 > s1) return EffectiveWidths{0.5F * w, 0.5F * w};
    if (std::fabs(s1 - tension) < tolerance) return in_bending(-1, 23.9F);
    if (tension > s1 && s1 > tension / 3) {
      return in_bending(psi, 5.98F * ((1 - psi) * (1 - psi)));
    }
    if (s1 > tension) return in_bending(psi, (9.78F * psi - 6.29F) * psi + 7.81F);
  }
  if (s2 > 0 && s1 - s2 > 0) return by_ratio(psi, 8.2F / (1.05F + psi));
  if (negligible(s2)) return by_ratio(0, 7.81F);
  if (negligible(s1 - s2) && s2 > 0) {
    const Real half = width(1, 4) * 0.5F;
    return EffectiveWidths{half, half};
  }
  return std::nullopt;
}

}  // namespace trelvin
