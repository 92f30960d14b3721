#include "sections/outline_frame.h"
#include "trelvin/sections.h"

using namespace trelvin;

TRELVIN_ROUTINE trvsec_ia(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                          TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                          TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                          TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                          TrvArrayOut q2) {
  const Real h = 0.5F * H;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-0.5F * B2, h},
                 {-0.5F * B2, h - T2},
                 {-0.5F * TW, h - T2},
                 {-0.5F * TW, T1 - h},
                 {-0.5F * B1, T1 - h},
                 {-0.5F * B1, -h},
                 {0.5F * B1, -h},
                 {0.5F * B1, T1 - h},
                 {0.5F * TW, T1 - h},
                 {0.5F * TW, h - T2},
                 {0.5F * B2, h - T2},
                 {0.5F * B2, h}});
}

TRELVIN_ROUTINE trvsec_h(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                         TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                         TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                         TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                         TrvArrayOut q2) {
  const Real h = 0.5F * H;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-h, 0.5F * B1},
                 {-h, -0.5F * B1},
                 {T1 - h, -0.5F * B1},
                 {T1 - h, -0.5F * TW},
                 {h - T2, -0.5F * TW},
                 {h - T2, -0.5F * B2},
                 {h, -0.5F * B2},
                 {h, 0.5F * B2},
                 {h - T2, 0.5F * B2},
                 {h - T2, 0.5F * TW},
                 {T1 - h, 0.5F * TW},
                 {T1 - h, 0.5F * B1}});
}

TRELVIN_ROUTINE trvsec_t(TrvIn B, TrvIn H, TrvIn TF, TrvIn TW, TrvIn q, TrvIntOut np,
                         TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                         TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                         TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Real h = 0.5F * H;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-0.5F * B, h},
                 {-0.5F * B, h - TF},
                 {-0.5F * TW, h - TF},
                 {-0.5F * TW, -h},
                 {0.5F * TW, -h},
                 {0.5F * TW, h - TF},
                 {0.5F * B, h - TF},
                 {0.5F * B, h}});
}

TRELVIN_ROUTINE trvsec_b(TrvIntIn B, TrvIn H, TrvIn q, TrvIntOut np, TrvIntArrayOut nv,
                         TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign,
                         TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
                         TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Real x = 0.5F * static_cast<Real>(B);
  const Real y = 0.5F * H;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-x, y}, {-x, -y}, {x, -y}, {x, y}});
  nv[0] = 12;  // hosts provide for 12 vertices and read 4
}

TRELVIN_ROUTINE trvsec_h1b(TrvIn W, TrvIn D, TrvIn P, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn TP,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Real top = 0.5F * (P + TP);
  const Real plate = 0.5F * (P - TP);
  const Real web_bottom = 0.5F * (P - TW) - top;
  const Real web_top = 0.5F * (TW - P) + plate;
  const Real left = T1 - 0.5F * D;
  const Real right = 0.5F * D - T2;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-0.5F * W, top},
                 {-0.5F * W, plate},
                 {-0.5F * D, plate},
                 {-0.5F * D, -top},
                 {left, -top},
                 {left, web_bottom},
                 {right, web_bottom},
                 {right, -top},
                 {0.5F * D, -top},
                 {0.5F * D, plate},
                 {0.5F * W, plate},
                 {0.5F * W, top}})
      .hole(q, {{left, plate}, {left, web_top}, {right, web_top}, {right, plate}});
}

TRELVIN_ROUTINE trvsec_box(TrvIn BT, TrvIn BB, TrvIn TT, TrvIn TB, TrvIn H, TrvIn TW, TrvIn G,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Real h = 0.5F * H;
  const Real under_top = h - TT;
  const Real over_bottom = TB - h;
  const Real web_left = 0.5F * (BB - 2 * TW - G) - 0.5F * BB;
  const Real web_right = 0.5F * BT - 0.5F * (BT - 2 * TW - G);
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-0.5F * BT, h},
                 {-0.5F * BT, under_top},
                 {web_left, under_top},
                 {web_left, over_bottom},
                 {-0.5F * BB, over_bottom},
                 {-0.5F * BB, -h},
                 {0.5F * BB, -h},
                 {0.5F * BB, over_bottom},
                 {web_right, over_bottom},
                 {web_right, under_top},
                 {0.5F * BT, under_top},
                 {0.5F * BT, h}})
      .hole(q, {{-0.5F * G, under_top},
                {-0.5F * G, over_bottom},
                {0.5F * G, over_bottom},
                {0.5F * G, under_top}});
}

TRELVIN_ROUTINE trvsec_rhs(TrvIn B, TrvIn H, TrvIn T, TrvIn q, TrvIntOut np, TrvIntArrayOut nv,
                           TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign,
                           TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
                           TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Real x = 0.5F * B;
  const Real y = 0.5F * H;
  const Real inner_x = 0.5F * (B - 2 * T);
  const Real inner_y = 0.5F * (H - 2 * T);
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-x, y}, {-x, -y}, {x, -y}, {x, y}})
      .hole(q,
            {{-inner_x, inner_y}, {-inner_x, -inner_y}, {inner_x, -inner_y}, {inner_x, inner_y}});
}

TRELVIN_ROUTINE trvsec_l2(TrvIn B, TrvIn H, TrvIn G, TrvIn T, TrvIn TV, TrvIn q, TrvIntOut np,
                          TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                          TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                          TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2) {
  const Real h = 0.5F * H;
  const Real g = 0.5F * G;
  const Real outer = (2 * B + G) * 0.5F;
  const Real inner = TV + g;
  const Real under = h - T;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-outer, h}, {-outer, under}, {-inner, under}, {-inner, -h}, {-g, -h}, {-g, h}})
      .solid(q, {{g, h}, {g, -h}, {inner, -h}, {inner, under}, {outer, under}, {outer, h}});
}

TRELVIN_ROUTINE trvsec_tab(TrvIn B, TrvIn H, TrvIn BW, TrvIn E, TrvIn T, TrvIn TW, TrvIn TB,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Real h = (H + T) * 0.5F;
  const Real under_top = h - T;
  const Real under_bottom = h - H - T + E;
  const Real over_bottom = E - h + TB;
  const Real left = -0.5F * BW + TW;
  const Real right = 0.5F * BW - TW;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-0.5F * B, h},
                 {-0.5F * B, under_top},
                 {-0.5F * BW, under_top},
                 {-0.5F * BW, -h},
                 {left, -h},
                 {left, under_bottom},
                 {right, under_bottom},
                 {right, -h},
                 {0.5F * BW, -h},
                 {0.5F * BW, under_top},
                 {0.5F * B, under_top},
                 {0.5F * B, h}})
      .hole(q, {{left, under_top}, {left, over_bottom}, {right, over_bottom}, {right, under_top}});
}

TRELVIN_ROUTINE trvsec_h2b(TrvIn B, TrvIn W, TrvIn HI, TrvIn TW1, TrvIn TW2, TrvIn TM, TrvIn TF,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2) {
  const Real outer = (2 * TF + HI) * 0.5F;
  const Real inner = outer - TF;
  const Real cell = HI * 0.5F;  // equals `inner` but for rounding; hosts know both forms
  const Real middle = TM * 0.5F;
  const Real left = TW1 - 0.5F * W;
  const Real right = 0.5F * W - TW2;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-0.5F * B, outer},
                 {-0.5F * B, inner},
                 {-0.5F * W, inner},
                 {-0.5F * W, -inner},
                 {-0.5F * B, -inner},
                 {-0.5F * B, -outer},
                 {0.5F * B, -outer},
                 {0.5F * B, -inner},
                 {0.5F * W, -inner},
                 {0.5F * W, inner},
                 {0.5F * B, inner},
                 {0.5F * B, outer}})
      .hole(q, {{left, cell}, {left, middle}, {right, middle}, {right, cell}})
      .hole(q, {{left, -middle}, {left, -cell}, {right, -cell}, {right, -middle}});
}

TRELVIN_ROUTINE trvsec_i(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn S1,
                         TrvIn S2, TrvIn E, TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X,
                         TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1,
                         TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5,
                         TrvArrayOut q1, TrvArrayOut q2) {
  const Real h = 0.5F * H;
  const Real left = E - 0.5F * TW;
  const Real right = E + 0.5F * TW;
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{-0.5F * B2, h},
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
                 {0.5F * B2, h}});
}

TRELVIN_ROUTINE trvsec_c(TrvIn H, TrvIn B1, TrvIn B2, TrvIn C1, TrvIn C2, TrvIn D1, TrvIn D2,
                         TrvIn TW, TrvIn T1, TrvIn T2, TrvIn TC1, TrvIn TC2, TrvIn TD1, TrvIn TD2,
                         TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                         TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                         TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                         TrvArrayOut q2) {
  const Real h = 0.5F * H;
  const Real left = -0.5F * (B1 > B2 ? B1 : B2);

  // The edge of a flange, seen from the web: out to the lip, up to its end, back along the fold.
  struct Edge {
    Real face, lip, fold;       // distances from the back of the web
    Real lip_end, fold_inside;  // heights above the flange's outer face
  };
  const auto edge = [](Real B, Real C, Real D, Real T, Real TC, Real TD) {
    const bool has_lip = C > T;
    const bool has_fold = has_lip && D > TC;
    const Real lip_end = has_lip ? C : T;
    return Edge{B, B - TC, has_fold ? B - D : B - TC, lip_end, has_fold ? lip_end - TD : lip_end};
  };
  const Edge e1 = edge(B1, C1, D1, T1, TC1, TD1);
  const Edge e2 = edge(B2, C2, D2, T2, TC2, TD2);
  OutlineFrame(np, nv, X, Y, code, sign, z1, z2, z3, z4, z5, q1, q2)
      .solid(q, {{left, -h},
                 {left + e1.face, -h},
                 {left + e1.face, e1.lip_end - h},
                 {left + e1.fold, e1.lip_end - h},
                 {left + e1.fold, e1.fold_inside - h},
                 {left + e1.lip, e1.fold_inside - h},
                 {left + e1.lip, T1 - h},
                 {left + TW, T1 - h},
                 {left + TW, h - T2},
                 {left + e2.lip, h - T2},
                 {left + e2.lip, h - e2.fold_inside},
                 {left + e2.fold, h - e2.fold_inside},
                 {left + e2.fold, h - e2.lip_end},
                 {left + e2.face, h - e2.lip_end},
                 {left + e2.face, h},
                 {left, h}});
}
