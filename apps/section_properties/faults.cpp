#include "faults.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace host {
namespace {

template <std::size_t n>
std::array<float, n> first(const float *d) {
  std::array<float, n> dimensions;
  std::copy(d, d + n, dimensions.begin());
  return dimensions;
}

}  // namespace

const char *fault_of_i_section(const float *d) {
  const auto [H, B1, B2, T1, T2, TW] = first<6>(d);
  if (T1 + T2 >= H) return "flanges T1 and T2 leave no room for a web in H";
  if (TW > std::min(B1, B2)) return "web TW is wider than a flange";
  return nullptr;
}

const char *fault_of_filleted_i(const float *d) {
  const auto [H, B1, B2, T1, T2, TW, S1, S2, E] = first<9>(d);
  if (T1 + T2 + S1 + S2 >= H) return "flanges and fillets leave no room for a web in H";
  if (2 * E + TW + 2 * S1 > B1)
    return "web TW with its fillets S1, E off the middle, is off flange 1";
  if (2 * E + TW + 2 * S2 > B2)
    return "web TW with its fillets S2, E off the middle, is off flange 2";
  return nullptr;
}

const char *fault_of_c(const float *d) {
  const auto [H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2] = first<14>(d);
  const auto is_in_the_way = [web = TW](float B, float C, float D, float T, float TC, float TD) {
    if (C <= T) return web >= B;
    if (D <= TC) return web + TC >= B;
    return web + D >= B || T + TD >= C || TC <= 0 || TD <= 0;
  };
  if (std::max(C1, T1) + std::max(C2, T2) >= H) return "flanges and lips leave no room in H";
  if (is_in_the_way(B1, C1, D1, T1, TC1, TD1)) return "lip or fold 1 does not fit on flange B1";
  if (is_in_the_way(B2, C2, D2, T2, TC2, TD2)) return "lip or fold 2 does not fit on flange B2";
  return nullptr;
}

const char *fault_of_t(const float *d) {
  const auto [B, H, TF, TW] = first<4>(d);
  if (TF >= H) return "flange TF leaves no room for a stem in H";
  if (TW > B) return "stem TW is wider than the flange B";
  return nullptr;
}

const char *fault_of_h1b(const float *d) {
  const auto [W, D, P, T1, T2, TW, TP] = first<7>(d);
  if (T1 + T2 >= D) return "flanges T1 and T2 leave no room between them in D";
  if (TW >= P) return "web TW leaves no cell in the flanges' height P";
  if (W <= D - 2 * std::min(T1, T2)) return "cover plate W does not reach the flanges";
  return nullptr;
}

const char *fault_of_box(const float *d) {
  const auto [BT, BB, TT, TB, H, TW, G] = first<7>(d);
  if (TT + TB >= H) return "flanges TT and TB leave no room for webs in H";
  if (G + 2 * TW > std::min(BT, BB)) return "webs G + 2 TW stand wider than a flange";
  return nullptr;
}

const char *fault_of_rhs(const float *d) {
  const auto [B, H, T] = first<3>(d);
  if (2 * T >= std::min(B, H)) return "walls T leave no room inside B and H";
  return nullptr;
}

const char *fault_of_angle(const float *d) {
  const auto [B, H, T, R] = first<4>(d);
  if (T >= std::min(B, H)) return "legs are as thick as one of them is long, T";
  if (T + R > std::min(B, H)) return "fillet R does not fit between the legs";
  return nullptr;
}

const char *fault_of_l2(const float *d) {
  const auto [B, H, G, T, TV] = first<5>(d);
  if (TV >= B) return "vertical leg TV is as thick as the horizontal one is long, B";
  if (T >= H) return "horizontal leg T is as thick as the vertical one is long, H";
  return nullptr;
}

const char *fault_of_tab(const float *d) {
  const auto [B, H, BW, E, T, TW, TB] = first<7>(d);
  if (2 * TW >= BW) return "webs TW leave no room between them in BW";
  if (E + TB >= H) return "bottom plate E + TB leaves no cell in H";
  if (B <= BW - 2 * TW) return "top plate B does not reach the webs";
  return nullptr;
}

const char *fault_of_h2b(const float *d) {
  const auto [B, W, HI, TW1, TW2, TM, TF] = first<7>(d);
  if (TW1 + TW2 >= W) return "webs TW1 and TW2 leave no room between them in W";
  if (TM >= HI) return "middle plate TM leaves no cells in HI";
  if (W > B) return "webs W stand wider than the flanges B";
  return nullptr;
}

const char *fault_of_rolled(const float *d) {
  const auto [H, B, TW, TF, R] = first<5>(d);
  if (2 * TF >= H) return "flanges TF leave no room for a web in H";
  if (TW > B) return "web TW is wider than the flange B";
  if (2 * TF + 2 * R > H) return "fillets R do not fit between the flanges";
  if (TW + 2 * R > B) return "fillets R do not fit on the flange B";
  return nullptr;
}

}  // namespace host
