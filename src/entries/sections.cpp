#include "trelvin/sections.h"

#include <array>
#include <cstddef>

#include "entries/door.h"
#include "sections/bending.h"
#include "sections/buckling.h"
#include "sections/channels.h"
#include "sections/flat_bar.h"
#include "sections/joints.h"
#include "sections/profiles.h"
#include "sections/torsion.h"

using namespace trelvin;

/* Plate buckling ----------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvro2(TrvIn b, TrvIn t, TrvIn r1, TrvIn r2, TrvIn psi, TrvIn ks, TrvOut rho) {
  const Door door;
  rho = reduction_factor(b, t, r1, r2, psi, ks);
}

TRELVIN_ROUTINE trvefr(TrvIn c, TrvIn bp, TrvIn t, TrvIn r1, TrvIn r2, TrvOut ceff) {
  const Door door;
  ceff = effective_width_of_fold(c, bp, t, r1, r2, retained.edge_fold);
}

TRELVIN_ROUTINE trvef2(TrvIn bl, TrvIn w, TrvIn t, TrvIn r1, TrvIn r2, TrvIn s1, TrvIn s2,
                       TrvOut be1, TrvOut be2) {
  const Door door;
  const auto widths = effective_widths(bl, w, t, r1, r2, s1, s2);
  if (!widths) return;
  be1 = widths->at_first;
  be2 = widths->at_second;
}

/* Outlines ----------------------------------------------------------------------------------- */

namespace {

// Writes the outputs that all profiles share.
void write(const Profile &profile, Real q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X,
           TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  constexpr Integer kind_polygon = 2;
  np = profile.polygons;
  for (Integer p = 0; p < profile.polygons; ++p) {
    const auto [told_vertices, is_hole] = profile.polygon[static_cast<std::size_t>(p)];
    nv[p] = told_vertices;
    code[p] = kind_polygon;
    sign[p] = is_hole ? -1 : 1;
    z1[p] = z2[p] = z3[p] = z4[p] = z5[p] = 0;
    q1[p] = q2[p] = is_hole ? -q : q;
  }
  for (std::size_t i = 0; i < profile.vertices; ++i) {
    X[i] = profile.vertex[i].x;
    Y[i] = profile.vertex[i].y;
  }
}

}  // namespace

TRELVIN_ROUTINE trvsec_ia(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                          TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                          TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                          TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                          TrvArrayOut q2) {
  const Door door;
  write(i_profile(H, B1, B2, T1, T2, TW), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
}

TRELVIN_ROUTINE trvsec_h(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                         TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                         TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                         TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                         TrvArrayOut q2) {
  const Door door;
  write(sideways_i_profile(H, B1, B2, T1, T2, TW), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5,
        q1, q2);
}

TRELVIN_ROUTINE trvsec_t(TrvIn B, TrvIn H, TrvIn TF, TrvIn TW, TrvIn q, TrvIntOut np,
                         TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                         TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                         TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Door door;
  write(t_profile(B, H, TF, TW), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
}

TRELVIN_ROUTINE trvsec_b(TrvIntIn B, TrvIn H, TrvIn q, TrvIntOut np, TrvIntArrayOut nv,
                         TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign,
                         TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
                         TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Door door;
  write(bar_profile(B, H), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
}

TRELVIN_ROUTINE trvsec_h1b(TrvIn W, TrvIn D, TrvIn P, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn TP,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Door door;
  write(covered_i_profile(W, D, P, T1, T2, TW, TP), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5,
        q1, q2);
}

TRELVIN_ROUTINE trvsec_box(TrvIn BT, TrvIn BB, TrvIn TT, TrvIn TB, TrvIn H, TrvIn TW, TrvIn G,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Door door;
  write(box_profile(BT, BB, TT, TB, H, TW, G), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1,
        q2);
}

TRELVIN_ROUTINE trvsec_rhs(TrvIn B, TrvIn H, TrvIn T, TrvIn q, TrvIntOut np, TrvIntArrayOut nv,
                           TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign,
                           TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
                           TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Door door;
  write(tube_profile(B, H, T), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
}

TRELVIN_ROUTINE trvsec_l2(TrvIn B, TrvIn H, TrvIn G, TrvIn T, TrvIn TV, TrvIn q, TrvIntOut np,
                          TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                          TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                          TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Door door;
  write(twin_angles_profile(B, H, G, T, TV), q, np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1,
        q2);
}

TRELVIN_ROUTINE trvsec_tab(TrvIn B, TrvIn H, TrvIn BW, TrvIn E, TrvIn T, TrvIn TW, TrvIn TB,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Door door;
  write(plate_on_cell_profile(B, H, BW, E, T, TW, TB), q, np, nv, X, Y, code, sign, z1, z2, z3, z4,
        z5, q1, q2);
}

TRELVIN_ROUTINE trvsec_h2b(TrvIn B, TrvIn W, TrvIn HI, TrvIn TW1, TrvIn TW2, TrvIn TM, TrvIn TF,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Door door;
  write(two_cell_profile(B, W, HI, TW1, TW2, TM, TF), q, np, nv, X, Y, code, sign, z1, z2, z3, z4,
        z5, q1, q2);
}

TRELVIN_ROUTINE trvsec_i(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn S1,
                         TrvIn S2, TrvIn E, TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X,
                         TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1,
                         TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5,
                         TrvArrayOut q1, TrvArrayOut q2) {
  const Door door;
  write(filleted_i_profile(H, B1, B2, T1, T2, TW, S1, S2, E), q, np, nv, X, Y, code, sign, z1, z2,
        z3, z4, z5, q1, q2);
}

TRELVIN_ROUTINE trvsec_c(TrvIn H, TrvIn B1, TrvIn B2, TrvIn C1, TrvIn C2, TrvIn D1, TrvIn D2,
                         TrvIn TW, TrvIn T1, TrvIn T2, TrvIn TC1, TrvIn TC2, TrvIn TD1, TrvIn TD2,
                         TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                         TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                         TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                         TrvArrayOut q2) {
  const Door door;
  write(channel_profile(H, TW, {B1, C1, D1, T1, TC1, TD1}, {B2, C2, D2, T2, TC2, TD2}), q, np, nv,
        X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2);
}

/* Channels ----------------------------------------------------------------------------------- */

TRELVIN_ROUTINE trvshc_c(TrvIn B, TrvIn H, TrvIn C, TrvIn t, TrvOut e0) {
  const Door door;
  e0 = shear_centre_distance({B, H, C, t});
}

TRELVIN_ROUTINE trvwar_c(TrvIn B, TrvIn H, TrvIn C, TrvIn t, TrvOut Iw) {
  const Door door;
  Iw = warping_constant({B, H, C, t});
}

/* Sections of thin plates -------------------------------------------------------------------- */

namespace {

// Rounds numbers into the outputs that follow, in the same order.
template <std::size_t n, class... Outputs>
void write(const std::array<double, n> &figures, Outputs &...outputs) {
  static_assert(sizeof...(Outputs) == n);
  std::size_t i = 0;
  ((outputs = static_cast<Real>(figures[i++])), ...);
}

}  // namespace

TRELVIN_ROUTINE trvmxt(TrvIntIn n, TrvArrayIn X1, TrvArrayIn Y1, TrvArrayIn X2, TrvArrayIn Y2,
                       TrvArrayIn T, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                       TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                       TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                       TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym, TrvOut Iw,
                       TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status) {
  const Door door;
  const PlateArrays plates = {n, X1, Y1, X2, Y2, T};
  if (!are_plates(plates)) {
    status = -1;
    return;
  }
  const PlateMoments m = moments_of(plates);
  write(bending_figures(plates, m).in_order(), A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1,
        Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp);
  const auto [fault, plate] = joints_of(plates);
  if (fault == Joints::Fault::none)
    write(torsion_figures(plates, m, W1, W2).in_order(), It, Wt, xm, ym, Iw, r0);
  status = fault == Joints::Fault::meeting ? plates.n + plate : plate;
}

TRELVIN_ROUTINE trvmxt_fb(TrvIn B, TrvIn H, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                          TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                          TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                          TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym,
                          TrvOut Iw, TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status) {
  const Door door;
  const Real b = B;
  const Real h = H;
  if (!is_size(b) || !is_size(h)) {
    status = -1;
    return;
  }
  write(bending_of_bar(b, h).in_order(), A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2,
        Wy1, Wy2, Wpx, Wpy, xp, yp);
  write(torsion_of_bar(b, h).in_order(), It, Wt, xm, ym, Iw, r0);
  W1[0] = 0;
  W2[0] = 0;
  status = 0;
}
