#include "sections/profiles.h"

namespace trelvin {
namespace {

std::array<Point2, 4> rectangle(Real left, Real right, Real upper, Real lower) {
  return {{{left, upper}, {left, lower}, {right, lower}, {right, upper}}};
}

struct Flange {
  Real half_width;
  Real outer, inner;  // heights of its faces
};

// Two flanges and what is between them, from `left` to `right`.
std::array<Point2, 12> i_shape(const Flange &top, Real left, Real right, const Flange &bottom) {
  return {{{-top.half_width, top.outer},
           {-top.half_width, top.inner},
           {left, top.inner},
           {left, bottom.inner},
           {-bottom.half_width, bottom.inner},
           {-bottom.half_width, bottom.outer},
           {bottom.half_width, bottom.outer},
           {bottom.half_width, bottom.inner},
           {right, bottom.inner},
           {right, top.inner},
           {top.half_width, top.inner},
           {top.half_width, top.outer}}};
}

// A plate on two legs with a bar between them. The legs' inner faces are `left` and `right`, the
// bar's underside is at the height `bar`.
std::array<Point2, 12> plate_on_legs(const Flange &plate, Real half_width_of_legs, Real foot,
                                     Real left, Real right, Real bar) {
  return {{{-plate.half_width, plate.outer},
           {-plate.half_width, plate.inner},
           {-half_width_of_legs, plate.inner},
           {-half_width_of_legs, foot},
           {left, foot},
           {left, bar},
           {right, bar},
           {right, foot},
           {half_width_of_legs, foot},
           {half_width_of_legs, plate.inner},
           {plate.half_width, plate.inner},
           {plate.half_width, plate.outer}}};
}

}  // namespace

Profile i_profile(Real H, Real B1, Real B2, Real T1, Real T2, Real TW) {
  const Real h = 0.5F * H;
  const Real web = 0.5F * TW;
  return Profile(i_shape({0.5F * B2, h, h - T2}, -web, web, {0.5F * B1, -h, T1 - h}));
}

Profile sideways_i_profile(Real H, Real B1, Real B2, Real T1, Real T2, Real TW) {
  const Real h = 0.5F * H;
  const Real web = 0.5F * TW;
  const auto upright = i_shape({0.5F * B1, -h, T1 - h}, -web, web, {0.5F * B2, h, h - T2});
  // Reflected in the line x = y, from the last vertex on.
  std::array<Point2, 12> sideways;
  for (std::size_t i = 0; i < 12; ++i) sideways[(i + 1) % 12] = {upright[i].y, upright[i].x};
  return Profile(sideways);
}

Profile t_profile(Real B, Real H, Real TF, Real TW) {
  const Real h = 0.5F * H;
  const Real flange = 0.5F * B;
  const Real stem = 0.5F * TW;
  return Profile(std::array<Point2, 8>{{{-flange, h},
                                        {-flange, h - TF},
                                        {-stem, h - TF},
                                        {-stem, -h},
                                        {stem, -h},
                                        {stem, h - TF},
                                        {flange, h - TF},
                                        {flange, h}}});
}

Profile bar_profile(Integer B, Real H) {
  const Real x = 0.5F * static_cast<Real>(B);
  const Real y = 0.5F * H;
  Profile bar(rectangle(-x, x, y, -y));
  bar.polygon[0].told_vertices = 12;
  return bar;
}

Profile covered_i_profile(Real W, Real D, Real P, Real T1, Real T2, Real TW, Real TP) {
  const Real top = 0.5F * (P + TP);
  const Real plate = 0.5F * (P - TP);
  const Real web_bottom = 0.5F * (P - TW) - top;
  const Real web_top = 0.5F * (TW - P) + plate;
  const Real left = T1 - 0.5F * D;
  const Real right = 0.5F * D - T2;
  Profile profile(plate_on_legs({0.5F * W, top, plate}, 0.5F * D, -top, left, right, web_bottom));
  profile.hole(rectangle(left, right, plate, web_top));
  return profile;
}

Profile box_profile(Real BT, Real BB, Real TT, Real TB, Real H, Real TW, Real G) {
  const Real h = 0.5F * H;
  const Real under_top = h - TT;
  const Real over_bottom = TB - h;
  const Real left = 0.5F * (BB - 2 * TW - G) - 0.5F * BB;
  const Real right = 0.5F * BT - 0.5F * (BT - 2 * TW - G);
  Profile profile(i_shape({0.5F * BT, h, under_top}, left, right, {0.5F * BB, -h, over_bottom}));
  profile.hole(rectangle(-0.5F * G, 0.5F * G, under_top, over_bottom));
  return profile;
}

Profile tube_profile(Real B, Real H, Real T) {
  const Real x = 0.5F * B;
  const Real y = 0.5F * H;
  const Real inner_x = 0.5F * (B - 2 * T);
  const Real inner_y = 0.5F * (H - 2 * T);
  Profile profile(rectangle(-x, x, y, -y));
  profile.hole(rectangle(-inner_x, inner_x, inner_y, -inner_y));
  return profile;
}

Profile twin_angles_profile(Real B, Real H, Real G, Real T, Real TV) {
  const Real h = 0.5F * H;
  const Real g = 0.5F * G;
  const Real outer = (2 * B + G) * 0.5F;
  const Real inner = TV + g;
  const Real under = h - T;
  const std::array<Point2, 6> left = {
      {{-outer, h}, {-outer, under}, {-inner, under}, {-inner, -h}, {-g, -h}, {-g, h}}};
  const std::array<Point2, 6> right = {
      {{g, h}, {g, -h}, {inner, -h}, {inner, under}, {outer, under}, {outer, h}}};
  Profile profile(left);
  profile.solid(right);
  return profile;
}

Profile plate_on_cell_profile(Real B, Real H, Real BW, Real E, Real T, Real TW, Real TB) {
  const Real h = (H + T) * 0.5F;
  const Real under_top = h - T;
  const Real under_bottom = h - H - T + E;
  const Real over_bottom = E - h + TB;
  const Real left = -0.5F * BW + TW;
  const Real right = 0.5F * BW - TW;
  Profile profile(
      plate_on_legs({0.5F * B, h, under_top}, 0.5F * BW, -h, left, right, under_bottom));
  profile.hole(rectangle(left, right, under_top, over_bottom));
  return profile;
}

Profile two_cell_profile(Real B, Real W, Real HI, Real TW1, Real TW2, Real TM, Real TF) {
  const Real outer = (2 * TF + HI) * 0.5F;
  const Real inner = outer - TF;
  const Real cell = HI * 0.5F;  // `inner` but for rounding; both forms stay
  const Real middle = TM * 0.5F;
  const Real web = 0.5F * W;
  const Real left = TW1 - web;
  const Real right = web - TW2;
  Profile profile(i_shape({0.5F * B, outer, inner}, -web, web, {0.5F * B, -outer, -inner}));
  profile.hole(rectangle(left, right, cell, middle));
  profile.hole(rectangle(left, right, -middle, -cell));
  return profile;
}

Profile filleted_i_profile(Real H, Real B1, Real B2, Real T1, Real T2, Real TW, Real S1, Real S2,
                           Real E) {
  const Real h = 0.5F * H;
  const Real left = E - 0.5F * TW;
  const Real right = E + 0.5F * TW;
  return Profile(std::array<Point2, 16>{{{-0.5F * B2, h},
                                         {-0.5F * B2, h - T2},
                                         {left - S2, h - T2},
                                         {left, h - T2 - S2},
                                         {left, T1 - h + S1},
                                         {left - S1, T1 - h},
                                         {-0.5F * B1, T1 - h},
                                         {-0.5F * B1, -h},
                                         {0.5F * B1, -h},
                                         {0.5F * B1, T1 - h},
                                         {right + S1, T1 - h},
                                         {right, T1 - h + S1},
                                         {right, h - T2 - S2},
                                         {right + S2, h - T2},
                                         {0.5F * B2, h - T2},
                                         {0.5F * B2, h}}});
}

namespace {

// The edge of a flange, seen from the web: out to the lip, up to its end, back along the fold.
struct Edge {
  Real face, lip, fold;       // distances from the back of the web
  Real lip_end, fold_inside;  // heights above the flange's outer face
};

Edge edge_of(const LippedFlange &f) {
  const bool has_lip = f.C > f.T;
  const bool has_fold = has_lip && f.D > f.TC;
  const Real lip_end = has_lip ? f.C : f.T;
  return {f.B, f.B - f.TC, has_fold ? f.B - f.D : f.B - f.TC, lip_end,
          has_fold ? lip_end - f.TD : lip_end};
}

}  // namespace

Profile channel_profile(Real H, Real TW, const LippedFlange &bottom, const LippedFlange &top) {
  const Real h = 0.5F * H;
  const Real left = -0.5F * (bottom.B > top.B ? bottom.B : top.B);
  const Edge e1 = edge_of(bottom);
  const Edge e2 = edge_of(top);
  return Profile(std::array<Point2, 16>{{{left, -h},
                                         {left + e1.face, -h},
                                         {left + e1.face, e1.lip_end - h},
                                         {left + e1.fold, e1.lip_end - h},
                                         {left + e1.fold, e1.fold_inside - h},
                                         {left + e1.lip, e1.fold_inside - h},
                                         {left + e1.lip, bottom.T - h},
                                         {left + TW, bottom.T - h},
                                         {left + TW, h - top.T},
                                         {left + e2.lip, h - top.T},
                                         {left + e2.lip, h - e2.fold_inside},
                                         {left + e2.fold, h - e2.fold_inside},
                                         {left + e2.fold, h - e2.lip_end},
                                         {left + e2.face, h - e2.lip_end},
                                         {left + e2.face, h},
                                         {left, h}}});
}

}  // namespace trelvin
