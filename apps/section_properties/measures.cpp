#include "measures.h"

#include <algorithm>

namespace host {

void Measuring::add(Side side, std::size_t dimension, double from, double level) {
  const float value = dimensions_[dimension];
  if (value == 0) return;
  measures.push_back({side, from, from + value, level, std::string(names_[dimension]), value});
}

void Measuring::add_centred(Side side, std::size_t dimension, double level) {
  const double middle = side == Side::above || side == Side::below ? x : y;
  add(side, dimension, middle - 0.5 * dimensions_[dimension], level);
}

// Positions of the dimensions, as the profiles list them.

void measure_i_section(const float *d, Measuring &m) {
  enum { H, B1, B2, T1, T2, TW };
  m.add(Side::left, H, m.box.bottom, m.x - 0.5 * std::min(d[B1], d[B2]));
  m.add_centred(Side::below, B1, m.box.bottom);
  m.add_centred(Side::above, B2, m.box.top);
  m.add(Side::right, T1, m.box.bottom, m.x + 0.5 * d[B1]);
  m.add(Side::right, T2, m.box.top - d[T2], m.x + 0.5 * d[B2]);
  m.add_centred(Side::above, TW, m.box.top - d[T2]);
}

void measure_h(const float *d, Measuring &m) {
  enum { H, B1, B2, T1, T2, TW };
  m.add(Side::below, H, m.box.left, m.y - 0.5 * std::min(d[B1], d[B2]));
  m.add_centred(Side::left, B1, m.box.left);
  m.add_centred(Side::right, B2, m.box.right);
  m.add(Side::above, T1, m.box.left, m.y + 0.5 * d[B1]);
  m.add(Side::above, T2, m.box.right - d[T2], m.y + 0.5 * d[B2]);
  m.add_centred(Side::right, TW, m.box.right - d[T2]);
}

void measure_filleted_i(const float *d, Measuring &m) {
  enum { H, B1, B2, T1, T2, TW, S1, S2, E };
  const double web = m.x + d[E];
  const double bottom = m.box.bottom + d[T1];
  const double top = m.box.top - d[T2];
  m.add(Side::left, H, m.box.bottom, m.x - 0.5 * std::min(d[B1], d[B2]));
  m.add_centred(Side::below, B1, m.box.bottom);
  m.add_centred(Side::above, B2, m.box.top);
  m.add(Side::right, T1, m.box.bottom, m.x + 0.5 * d[B1]);
  m.add(Side::right, T2, top, m.x + 0.5 * d[B2]);
  m.add(Side::above, TW, web - 0.5 * d[TW], top - d[S2]);
  m.add(Side::below, S1, web + 0.5 * d[TW], bottom);
  m.add(Side::above, S2, web + 0.5 * d[TW], top);
  m.add(Side::below, E, m.x, m.y);
}

void measure_t(const float *d, Measuring &m) {
  enum { B, H, TF, TW };
  m.add_centred(Side::above, B, m.box.top);
  m.add(Side::left, H, m.box.bottom, m.x - 0.5 * d[TW]);
  m.add(Side::right, TF, m.box.top - d[TF], m.box.right);
  m.add_centred(Side::below, TW, m.box.bottom);
}

void measure_bar(const float * /*d*/, Measuring &m) {
  enum { B, H };
  m.add(Side::below, B, m.box.left, m.box.bottom);
  m.add(Side::left, H, m.box.bottom, m.box.left);
}

void measure_c(const float *d, Measuring &m) {
  enum { H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2 };
  const double tip1 = m.box.left + d[B1];
  const double tip2 = m.box.left + d[B2];
  const double lip1 = m.box.bottom + d[C1];  // where it ends
  const double lip2 = m.box.top - d[C2];
  const bool has_lip1 = d[C1] > d[T1], has_lip2 = d[C2] > d[T2];
  const bool has_fold1 = has_lip1 && d[D1] > d[TC1], has_fold2 = has_lip2 && d[D2] > d[TC2];
  m.add(Side::left, H, m.box.bottom, m.box.left);
  m.add(Side::below, TW, m.box.left, m.box.bottom + d[T1]);
  m.add(Side::below, B1, m.box.left, m.box.bottom);
  m.add(Side::above, B2, m.box.left, m.box.top);
  m.add(Side::right, T1, m.box.bottom, has_lip1 ? tip1 - d[TC1] : tip1);
  m.add(Side::right, T2, m.box.top - d[T2], has_lip2 ? tip2 - d[TC2] : tip2);
  if (has_lip1) {
    m.add(Side::right, C1, m.box.bottom, tip1);
    m.add(Side::below, TC1, tip1 - d[TC1], m.box.bottom + d[T1]);
  }
  if (has_lip2) {
    m.add(Side::right, C2, lip2, tip2);
    m.add(Side::above, TC2, tip2 - d[TC2], m.box.top - d[T2]);
  }
  if (has_fold1) {
    m.add(Side::below, D1, tip1 - d[D1], lip1 - d[TD1]);
    m.add(Side::right, TD1, lip1 - d[TD1], tip1 - d[TC1]);
  }
  if (has_fold2) {
    m.add(Side::above, D2, tip2 - d[D2], lip2 + d[TD2]);
    m.add(Side::right, TD2, lip2, tip2 - d[TC2]);
  }
}

void measure_h1b(const float *d, Measuring &m) {
  enum { W, D, P, T1, T2, TW, TP };
  const double left = m.x - 0.5 * d[D];
  const double right = m.x + 0.5 * d[D];
  m.add_centred(Side::above, W, m.box.top);
  m.add(Side::right, TP, m.box.top - d[TP], m.x + 0.5 * d[W]);
  m.add_centred(Side::below, D, m.box.bottom);
  m.add(Side::left, P, m.box.bottom, left);
  m.add(Side::below, T1, left, m.box.bottom);
  m.add(Side::below, T2, right - d[T2], m.box.bottom);
  m.add(Side::right, TW, m.box.bottom + 0.5 * (d[P] - d[TW]), right - d[T2]);
}

void measure_box(const float *d, Measuring &m) {
  enum { BT, BB, TT, TB, H, TW, G };
  m.add_centred(Side::above, BT, m.box.top);
  m.add_centred(Side::below, BB, m.box.bottom);
  m.add(Side::right, TT, m.box.top - d[TT], m.x + 0.5 * d[BT]);
  m.add(Side::right, TB, m.box.bottom, m.x + 0.5 * d[BB]);
  m.add(Side::left, H, m.box.bottom, m.x - 0.5 * std::min(d[BT], d[BB]));
  m.add(Side::above, TW, m.x - 0.5 * d[G] - d[TW], m.box.top - d[TT]);
  m.add_centred(Side::below, G, m.box.bottom + d[TB]);
}

void measure_rhs(const float *d, Measuring &m) {
  enum { B, H, T };
  m.add(Side::below, B, m.box.left, m.box.bottom);
  m.add(Side::left, H, m.box.bottom, m.box.left);
  m.add(Side::right, T, m.box.top - d[T], m.box.right - d[T]);
}

void measure_angle(const float *d, Measuring &m) {
  enum { B, H, T, R };
  m.add(Side::below, B, m.box.left, m.box.bottom);
  m.add(Side::left, H, m.box.bottom, m.box.left);
  m.add(Side::above, T, m.box.left, m.box.top);
  m.add(Side::right, R, m.box.bottom + d[T], m.box.left + d[T]);
}

void measure_l2(const float *d, Measuring &m) {
  enum { B, H, G, T, TV };
  m.add(Side::above, B, m.box.left, m.box.top);
  m.add(Side::left, H, m.box.bottom, m.x - 0.5 * d[G] - d[TV]);
  m.add_centred(Side::above, G, m.box.top);
  m.add(Side::right, T, m.box.top - d[T], m.box.right);
  m.add(Side::below, TV, m.x - 0.5 * d[G] - d[TV], m.box.bottom);
}

void measure_tab(const float *d, Measuring &m) {
  enum { B, H, BW, E, T, TW, TB };
  const double web = m.x + 0.5 * d[BW] - d[TW];  // inner face of the right one
  m.add_centred(Side::above, B, m.box.top);
  m.add(Side::right, T, m.box.top - d[T], m.x + 0.5 * d[B]);
  m.add(Side::left, H, m.box.bottom, m.x - 0.5 * d[BW]);
  m.add_centred(Side::below, BW, m.box.bottom);
  m.add(Side::right, E, m.box.bottom, web);
  m.add(Side::right, TB, m.box.bottom + d[E], web);
  m.add(Side::below, TW, m.x - 0.5 * d[BW], m.box.bottom);
}

void measure_h2b(const float *d, Measuring &m) {
  enum { B, W, HI, TW1, TW2, TM, TF };
  m.add(Side::below, B, m.box.left, m.box.bottom);
  m.add(Side::right, TF, m.box.top - d[TF], m.box.right);
  m.add(Side::left, HI, m.box.bottom + d[TF], m.x - 0.5 * d[W]);
  m.add_centred(Side::above, W, m.box.top - d[TF]);
  m.add(Side::above, TW1, m.x - 0.5 * d[W], m.box.top - d[TF]);
  m.add(Side::above, TW2, m.x + 0.5 * d[W] - d[TW2], m.box.top - d[TF]);
  m.add_centred(Side::right, TM, m.x + 0.5 * d[W] - d[TW2]);
}

void measure_rolled(const float *d, Measuring &m) {
  enum { H, B, TW, TF, R };
  m.add(Side::left, H, m.box.bottom, m.box.left);
  m.add(Side::below, B, m.box.left, m.box.bottom);
  m.add_centred(Side::above, TW, m.box.top - d[TF]);
  m.add(Side::right, TF, m.box.top - d[TF], m.box.right);
  m.add(Side::right, R, m.box.top - d[TF] - d[R], m.x + 0.5 * d[TW]);
}

Measures overall_measures(const Outline &outline) {
  const Box box = bounding_box(outline);
  return {
      {Side::below, box.left, box.right, box.bottom, "", static_cast<float>(box.right - box.left)},
      {Side::left, box.bottom, box.top, box.left, "", static_cast<float>(box.top - box.bottom)}};
}

}  // namespace host
