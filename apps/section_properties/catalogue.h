// The profiles. A struct has all that is told of one: its dimensions are the members, in the order of
// its routine. What else the program and the designer show of a profile, and its figure in the
// manual, follow from here.
//
// To add a profile, write its struct and put it into `Catalogue`. A struct without one of the parts
// does not compile, nor does one whose dimensions do not agree with the description.
#pragma once

#include <algorithm>

#include "description.h"
#include "shapes.h"
#include "torsion.h"

namespace host {

struct UnequalI {
  static constexpr Description about{
      "ia",
      "I section with unequal flanges, 1 at the bottom",
      "trvsec_ia",
      {{"H", 400}, {"B1", 300}, {"B2", 200}, {"T1", 20}, {"T2", 15}, {"TW", 10}},
      {300, 320, 220, 42, 34, 30},
      R"(
             B2
         |---------|
         ===========  T2     -
              ||             |
           TW ||             | H
              ||             |
     ==================  T1  -
     |----------------|
             B1
)"};
  float H, B1, B2, T1, T2, TW;

  [[nodiscard]] constexpr const char *fault() const {
    if (T1 + T2 >= H) return "flanges T1 and T2 leave no room for a web in H";
    if (TW > std::min(B1, B2)) return "web TW is wider than a flange";
    return nullptr;
  }
  [[nodiscard]] Section section() const { return section_from(trvsec_ia, H, B1, B2, T1, T2, TW); }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::left, "H", H, at.bottom, at.x() - 0.5 * std::min(B1, B2)},
            {Side::below, "B1", B1, at.x() - 0.5 * B1, at.bottom},
            {Side::above, "B2", B2, at.x() - 0.5 * B2, at.top},
            {Side::right, "T1", T1, at.bottom, at.x() + 0.5 * B1},
            {Side::right, "T2", T2, at.top - T2, at.x() + 0.5 * B2},
            {Side::above, "TW", TW, at.x() - 0.5 * TW, at.top - T2}};
  }
  [[nodiscard]] Torsion torsion() const {
    return open_torsion(plates_of_i(H, B1, B2, T1, T2, TW), thin_walls);
  }
};

struct LyingI {
  static constexpr Description about{
      "h",
      "I section on its side, flange 1 on the left",
      "trvsec_h",
      {{"H", 400}, {"B1", 300}, {"B2", 200}, {"T1", 20}, {"T2", 15}, {"TW", 10}},
      {400, 260, 190, 42, 34, 30},
      R"(
              H
     |----------------|
     T1               T2
     ||               ||  -
  -  ||               ||  |
B1|  ||===============||  | B2
  -  ||      TW       ||  |
     ||               ||  -
)"};
  float H, B1, B2, T1, T2, TW;

  [[nodiscard]] constexpr const char *fault() const {
    return UnequalI{H, B1, B2, T1, T2, TW}.fault();
  }
  [[nodiscard]] Section section() const { return section_from(trvsec_h, H, B1, B2, T1, T2, TW); }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::below, "H", H, at.left, at.y() - 0.5 * std::min(B1, B2)},
            {Side::left, "B1", B1, at.y() - 0.5 * B1, at.left},
            {Side::right, "B2", B2, at.y() - 0.5 * B2, at.right},
            {Side::above, "T1", T1, at.left, at.y() + 0.5 * B1},
            {Side::above, "T2", T2, at.right - T2, at.y() + 0.5 * B2},
            {Side::right, "TW", TW, at.y() - 0.5 * TW, at.right - T2}};
  }
  [[nodiscard]] Torsion torsion() const {
    std::vector<Plate> plates = plates_of_i(H, B1, B2, T1, T2, TW);
    for (Plate &p : plates) p = {p.y1, -p.x1, p.y2, -p.x2, p.t};
    return open_torsion(plates, thin_walls);
  }
};

struct FilletedI {
  static constexpr Description about{"i",
                                     "as ia, the web moved by E, with 45-degree fillets S",
                                     "trvsec_i",
                                     {{"H", 400},
                                      {"B1", 300},
                                      {"B2", 200},
                                      {"T1", 20},
                                      {"T2", 15},
                                      {"TW", 10},
                                      {"S1", 8, may_be_zero},
                                      {"S2", 6, may_be_zero},
                                      {"E", 20, may_be_zero}},
                                     {320, 340, 290, 40, 34, 30, 46, 38, 56},
                                     R"(
             B2
         |---------|
         ===========  T2     -
             \|||/  S2       |
           TW |||            |
              |||            | H
             /|||\  S1       |
     ==================  T1  -
     |----------------|
             B1        E: web from the middle, to the right
)"};
  float H, B1, B2, T1, T2, TW, S1, S2, E;

  [[nodiscard]] constexpr const char *fault() const {
    if (T1 + T2 + S1 + S2 >= H) return "flanges and fillets leave no room for a web in H";
    if (2 * E + TW + 2 * S1 > B1)
      return "web TW with its fillets S1, shifted by E, extends beyond flange 1";
    if (2 * E + TW + 2 * S2 > B2)
      return "web TW with its fillets S2, shifted by E, extends beyond flange 2";
    return nullptr;
  }
  [[nodiscard]] Section section() const {
    return section_from(trvsec_i, H, B1, B2, T1, T2, TW, S1, S2, E);
  }
  [[nodiscard]] Measures measures(const Box &at) const {
    const double web = at.x() + E;
    const double bottom = at.bottom + T1;
    const double top = at.top - T2;
    return {{Side::left, "H", H, at.bottom, at.x() - 0.5 * std::min(B1, B2)},
            {Side::below, "B1", B1, at.x() - 0.5 * B1, at.bottom},
            {Side::above, "B2", B2, at.x() - 0.5 * B2, at.top},
            {Side::right, "T1", T1, at.bottom, at.x() + 0.5 * B1},
            {Side::right, "T2", T2, top, at.x() + 0.5 * B2},
            {Side::above, "TW", TW, web - 0.5 * TW, top - S2},
            {Side::below, "S1", S1, web + 0.5 * TW, bottom},
            {Side::above, "S2", S2, web + 0.5 * TW, top},
            {Side::below, "E", E, at.x(), at.y()}};
  }
  [[nodiscard]] Torsion torsion() const {
    return open_torsion(plates_of_i(H, B1, B2, T1, T2, TW, E),
                        S1 > 0 || S2 > 0 ? thin_walls_without_fillets : thin_walls);
  }
};

struct Tee {
  static constexpr Description about{"t",
                                     "T section, flange at the top",
                                     "trvsec_t",
                                     {{"B", 150}, {"H", 200}, {"TF", 12}, {"TW", 8}},
                                     {260, 240, 38, 32},
                                     R"(
             B
     |----------------|
     ==================  TF  -
             ||              |
          TW ||              | H
             ||              |
             ||              -
)"};
  float B, H, TF, TW;

  [[nodiscard]] constexpr const char *fault() const {
    if (TF >= H) return "flange TF leaves no room for a stem in H";
    if (TW > B) return "stem TW is wider than the flange B";
    return nullptr;
  }
  [[nodiscard]] Section section() const { return section_from(trvsec_t, B, H, TF, TW); }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::above, "B", B, at.x() - 0.5 * B, at.top},
            {Side::left, "H", H, at.bottom, at.x() - 0.5 * TW},
            {Side::right, "TF", TF, at.top - TF, at.right},
            {Side::below, "TW", TW, at.x() - 0.5 * TW, at.bottom}};
  }
  [[nodiscard]] Torsion torsion() const {
    const float top = 0.5F * (H - TF);
    return open_torsion(
        {{0, top, 0, -0.5F * H, TW}, {0, top, -0.5F * B, top, TF}, {0, top, 0.5F * B, top, TF}},
        thin_walls);
  }
};

struct FlatBar {
  static constexpr Description about{"b",        "flat bar", by_its_parts, {{"B", 200}, {"H", 15}},
                                     {240, 110}, R"(
             B
     |----------------|
     ==================  -
     ==================  | H
     ==================  -
)"};
  float B, H;

  static constexpr const char *fault() { return nullptr; }
  [[nodiscard]] Section section() const { return flat_bar(B, H); }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::below, "B", B, at.left, at.bottom}, {Side::left, "H", H, at.bottom, at.left}};
  }
  [[nodiscard]] Torsion torsion() const { return torsion_of_bar(B, H); }
};

struct Channel {
  static constexpr Description about{"c",
                                     "channel, plain or with lips C and folds D",
                                     "trvsec_c",
                                     {{"H", 200},
                                      {"B1", 80},
                                      {"B2", 60},
                                      {"C1", 25, may_be_zero},
                                      {"C2", 20, may_be_zero},
                                      {"D1", 12, may_be_zero},
                                      {"D2", 10, may_be_zero},
                                      {"TW", 3},
                                      {"T1", 4},
                                      {"T2", 5},
                                      {"TC1", 2, may_be_zero},
                                      {"TC2", 2.5F, may_be_zero},
                                      {"TD1", 1.5F, may_be_zero},
                                      {"TD2", 2, may_be_zero}},
                                     {400, 400, 340, 104, 92, 110, 96, 26, 32, 28, 28, 24, 24, 22},
                                     R"(
             B2
     |----------------|
     ==================  T2     -
     ||         D2 |---|  -     |
     ||            ==||   | C2  |
     ||            TD2 TC2 -    |
  TW ||                         | H
     ||                         |
     ||            TD1 TC1 -    |
     ||            ==||   | C1  |
     ||         D1 |---|  -     |
     ==================  T1     -
     |----------------|
             B1
)"};
  float H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2;

  [[nodiscard]] constexpr const char *fault() const {
    if (std::max(C1, T1) + std::max(C2, T2) >= H) return "flanges and lips leave no room in H";
    if (is_in_the_way(bottom())) return "lip or fold 1 does not fit on flange B1";
    if (is_in_the_way(top())) return "lip or fold 2 does not fit on flange B2";
    return nullptr;
  }
  [[nodiscard]] Section section() const {
    return section_from(trvsec_c, H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2);
  }
  // What a lip or a fold measures is left out if the flange has none.
  [[nodiscard]] Measures measures(const Box &at) const {
    const double tip1 = at.left + B1;
    const double tip2 = at.left + B2;
    const double lip1 = at.bottom + C1;  // where it ends
    const double lip2 = at.top - C2;
    const auto [has_lip1, has_fold1] = edges_of(bottom());
    const auto [has_lip2, has_fold2] = edges_of(top());
    return {{Side::left, "H", H, at.bottom, at.left},
            {Side::below, "TW", TW, at.left, at.bottom + T1},
            {Side::below, "B1", B1, at.left, at.bottom},
            {Side::above, "B2", B2, at.left, at.top},
            {Side::right, "T1", T1, at.bottom, has_lip1 ? tip1 - TC1 : tip1},
            {Side::right, "T2", T2, at.top - T2, has_lip2 ? tip2 - TC2 : tip2},
            {Side::right, "C1", has_lip1 ? C1 : 0, at.bottom, tip1},
            {Side::below, "TC1", has_lip1 ? TC1 : 0, tip1 - TC1, at.bottom + T1},
            {Side::right, "C2", has_lip2 ? C2 : 0, lip2, tip2},
            {Side::above, "TC2", has_lip2 ? TC2 : 0, tip2 - TC2, at.top - T2},
            {Side::below, "D1", has_fold1 ? D1 : 0, tip1 - D1, lip1 - TD1},
            {Side::right, "TD1", has_fold1 ? TD1 : 0, lip1 - TD1, tip1 - TC1},
            {Side::above, "D2", has_fold2 ? D2 : 0, tip2 - D2, lip2 + TD2},
            {Side::right, "TD2", has_fold2 ? TD2 : 0, lip2, tip2 - TC2}};
  }
  [[nodiscard]] Torsion torsion() const {
    const float left = -0.5F * std::max(B1, B2);
    const float web = left + 0.5F * TW;
    std::vector<Plate> plates{{web, 0.5F * (T1 - H), web, 0.5F * (H - T2), TW}};
    add_flange(plates, bottom(), left, web, -0.5F * H, 1);
    add_flange(plates, top(), left, web, 0.5F * H, -1);
    return open_torsion(plates, thin_walls);
  }

 private:
  // With its lip C and its fold D.
  struct Flange {
    float B, C, D, T, TC, TD;
  };
  struct Edges {
    bool has_lip, has_fold;
  };

  [[nodiscard]] constexpr Flange bottom() const { return {B1, C1, D1, T1, TC1, TD1}; }
  [[nodiscard]] constexpr Flange top() const { return {B2, C2, D2, T2, TC2, TD2}; }

  static constexpr Edges edges_of(const Flange &f) {
    const bool has_lip = f.C > f.T;
    return {has_lip, has_lip && f.D > f.TC};
  }

  [[nodiscard]] constexpr bool is_in_the_way(const Flange &f) const {
    if (f.C <= f.T) return TW >= f.B;
    if (f.D <= f.TC) return TW + f.TC >= f.B;
    return TW + f.D >= f.B || f.T + f.TD >= f.C || f.TC <= 0 || f.TD <= 0;
  }

  // `up` is 1 for the flange at the bottom and -1 for the one at the top, outer face at `face`.
  static void add_flange(std::vector<Plate> &plates, const Flange &f, float left, float web,
                         float face, float up) {
    const float y = face + up * 0.5F * f.T;
    const auto [has_lip, has_fold] = edges_of(f);
    const float end = left + f.B - (has_lip ? 0.5F * f.TC : 0.0F);
    const float lip_end = face + up * (f.C - (has_fold ? 0.5F * f.TD : 0.0F));
    plates.push_back({web, y, end, y, f.T});
    if (has_lip) plates.push_back({end, y, end, lip_end, f.TC});
    if (has_fold) plates.push_back({end, lip_end, left + f.B - f.D, lip_end, f.TD});
  }
};

struct CoveredI {
  static constexpr Description about{
      "h1b",
      "I section on its side under a cover plate",
      "trvsec_h1b",
      {{"W", 320}, {"D", 300}, {"P", 280}, {"T1", 12}, {"T2", 14}, {"TW", 10}, {"TP", 20}},
      {400, 280, 220, 40, 30, 30, 36},
      R"(
                W
     |---------------------|
     =======================  TP
        ||             ||  -
        ||             ||  |
        ||=============||  | P
        ||     TW      ||  |
        ||             ||  -
        T1             T2
        |---------------|
                D
)"};
  float W, D, P, T1, T2, TW, TP;

  [[nodiscard]] constexpr const char *fault() const {
    if (T1 + T2 >= D) return "flanges T1 and T2 leave no room between them in D";
    if (TW >= P) return "web TW leaves no cell in the flanges' height P";
    if (W <= D - 2 * std::min(T1, T2)) return "cover plate W does not reach the flanges";
    return nullptr;
  }
  [[nodiscard]] Section section() const {
    return section_from(trvsec_h1b, W, D, P, T1, T2, TW, TP);
  }
  [[nodiscard]] Measures measures(const Box &at) const {
    const double left = at.x() - 0.5 * D;
    const double right = at.x() + 0.5 * D;
    return {{Side::above, "W", W, at.x() - 0.5 * W, at.top},
            {Side::right, "TP", TP, at.top - TP, at.x() + 0.5 * W},
            {Side::below, "D", D, left, at.bottom},
            {Side::left, "P", P, at.bottom, left},
            {Side::below, "T1", T1, left, at.bottom},
            {Side::below, "T2", T2, right - T2, at.bottom},
            {Side::right, "TW", TW, at.bottom + 0.5 * (P - TW), right - T2}};
  }
  [[nodiscard]] Torsion torsion() const {
    const double b = D - (double{T1} + T2) / 2;
    const double h = (double{P} + TP) / 2;
    const double below = (double{P} - TW) / 2;
    return closed_torsion(b, h, {{b, TP}, {b, TW}, {h, T1}, {h, T2}},
                          {{double{W} - D, TP}, {below, T1}, {below, T2}});
  }
};

struct BoxGirder {
  static constexpr Description about{
      "box",
      "box girder with overhanging flanges",
      "trvsec_box",
      {{"BT", 3000}, {"BB", 2000}, {"TT", 20}, {"TB", 25}, {"H", 1500}, {"TW", 12}, {"G", 1600}},
      {420, 330, 36, 30, 270, 28, 180},
      R"(
                BT
     |---------------------|
     =======================  TT  -
         ||           ||          |
      TW ||     G     || TW       | H
         ||<--------->||          |
       ===================    TB  -
       |-----------------|
                BB
)"};
  float BT, BB, TT, TB, H, TW, G;

  [[nodiscard]] constexpr const char *fault() const {
    if (TT + TB >= H) return "flanges TT and TB leave no room for webs in H";
    if (G + 2 * TW > std::min(BT, BB))
      return "webs: G + 2 TW is greater than the width of a flange";
    return nullptr;
  }
  [[nodiscard]] Section section() const {
    return section_from(trvsec_box, BT, BB, TT, TB, H, TW, G);
  }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::above, "BT", BT, at.x() - 0.5 * BT, at.top},
            {Side::below, "BB", BB, at.x() - 0.5 * BB, at.bottom},
            {Side::right, "TT", TT, at.top - TT, at.x() + 0.5 * BT},
            {Side::right, "TB", TB, at.bottom, at.x() + 0.5 * BB},
            {Side::left, "H", H, at.bottom, at.x() - 0.5 * std::min(BT, BB)},
            {Side::above, "TW", TW, at.x() - 0.5 * G - TW, at.top - TT},
            {Side::below, "G", G, at.x() - 0.5 * G, at.bottom + TB}};
  }
  [[nodiscard]] Torsion torsion() const {
    const double b = double{G} + TW;
    const double h = H - (double{TT} + TB) / 2;
    return closed_torsion(b, h, {{b, TT}, {b, TB}, {h, TW}, {h, TW}},
                          {{double{BT} - G - 2 * TW, TT}, {double{BB} - G - 2 * TW, TB}});
  }
};

struct HollowSection {
  static constexpr Description about{"rhs",
                                     "rectangular hollow section with sharp corners",
                                     "trvsec_rhs",
                                     {{"B", 100}, {"H", 200}, {"T", 8}},
                                     {300, 210, 34},
                                     R"(
            B
     |--------------|
     ================  -
     ||            ||  |
   T ||            ||  | H
     ||            ||  |
     ================  -
)"};
  float B, H, T;

  [[nodiscard]] constexpr const char *fault() const {
    return 2 * T >= std::min(B, H) ? "walls T leave no room inside B and H" : nullptr;
  }
  [[nodiscard]] Section section() const { return section_from(trvsec_rhs, B, H, T); }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::below, "B", B, at.left, at.bottom},
            {Side::left, "H", H, at.bottom, at.left},
            {Side::right, "T", T, at.top - T, at.right - T}};
  }
  [[nodiscard]] Torsion torsion() const {
    const double b = double{B} - T, h = double{H} - T;
    Torsion torsion = closed_torsion(b, h, {{b, T}, {b, T}, {h, T}, {h, T}}, {});
    torsion.shear_centre = Point{0, 0};  // by symmetry
    return torsion;
  }
};

struct Angle {
  static constexpr Description about{
      "l",          "angle with sharp toes, with or without a root fillet",
      by_its_parts, {{"B", 100}, {"H", 100}, {"T", 10}, {"R", 12, may_be_zero}},
      no_figure,
      R"(
     ||             -
   T ||             |
     ||             | H
     ||\  R         |
     =============  -
     |-----------|
           B
)"};
  float B, H, T, R;

  [[nodiscard]] constexpr const char *fault() const {
    if (T >= std::min(B, H)) return "leg thickness T must be smaller than both leg lengths";
    if (T + R > std::min(B, H)) return "fillet R does not fit between the legs";
    return nullptr;
  }
  [[nodiscard]] Section section() const { return angle(B, H, T, R); }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::below, "B", B, at.left, at.bottom},
            {Side::left, "H", H, at.bottom, at.left},
            {Side::above, "T", T, at.left, at.top},
            {Side::right, "R", R, at.bottom + T, at.left + T}};
  }
  [[nodiscard]] Torsion torsion() const {
    const float x = 0.5F * (T - B);
    const float y = 0.5F * (T - H);
    return open_torsion({{x, y, x, 0.5F * H, T}, {x, y, 0.5F * B, y, T}},
                        R > 0 ? thin_walls_without_fillets : thin_walls);
  }
};

struct TwoAngles {
  static constexpr Description about{"l2",
                                     "two equal angles back to back",
                                     "trvsec_l2",
                                     {{"B", 90}, {"H", 120}, {"G", 10}, {"T", 9}, {"TV", 11}},
                                     {170, 200, 44, 32, 28},
                                     R"(
          B    G    B
     |--------|-|--------|
     ========== ==========  T  -
             || ||             |
          TV || || TV          | H
             || ||             |
             || ||             -
)"};
  float B, H, G, T, TV;

  [[nodiscard]] constexpr const char *fault() const {
    if (TV >= B)
      return "thickness TV of the vertical legs must be smaller than the length B of the "
             "horizontal legs";
    if (T >= H)
      return "thickness T of the horizontal legs must be smaller than the length H of the vertical "
             "legs";
    return nullptr;
  }
  [[nodiscard]] Section section() const { return section_from(trvsec_l2, B, H, G, T, TV); }
  [[nodiscard]] Measures measures(const Box &at) const {
    const double leg = at.x() - 0.5 * G - TV;
    return {{Side::above, "B", B, at.left, at.top},
            {Side::left, "H", H, at.bottom, leg},
            {Side::above, "G", G, at.x() - 0.5 * G, at.top},
            {Side::right, "T", T, at.top - T, at.right},
            {Side::below, "TV", TV, leg, at.bottom}};
  }
  static Torsion torsion() { return {{}, {}, {}, "No torsion: the angles are not joined."}; }
};

struct PlateOnCell {
  static constexpr Description about{
      "tab",
      "top plate on a closed cell",
      "trvsec_tab",
      {{"B", 600}, {"H", 400}, {"BW", 350}, {"E", 40}, {"T", 25}, {"TW", 12}, {"TB", 20}},
      {420, 220, 290, 60, 34, 30, 28},
      R"(
                 B
     |-----------------------|
     =========================  T
         ||             ||  -
      TW ||             ||  | H
         ||=============||  |  TB  -
         ||             ||  |      | E
         ||             ||  -      -
         |---------------|
                BW
)"};
  float B, H, BW, E, T, TW, TB;

  [[nodiscard]] constexpr const char *fault() const {
    if (2 * TW >= BW) return "webs TW leave no room between them in BW";
    if (E + TB >= H) return "bottom plate E + TB leaves no cell in H";
    if (B <= BW - 2 * TW) return "top plate B does not reach the webs";
    return nullptr;
  }
  [[nodiscard]] Section section() const { return section_from(trvsec_tab, B, H, BW, E, T, TW, TB); }
  [[nodiscard]] Measures measures(const Box &at) const {
    const double web = at.x() + 0.5 * BW - TW;  // inner face of the right one
    return {{Side::above, "B", B, at.x() - 0.5 * B, at.top},
            {Side::right, "T", T, at.top - T, at.x() + 0.5 * B},
            {Side::left, "H", H, at.bottom, at.x() - 0.5 * BW},
            {Side::below, "BW", BW, at.x() - 0.5 * BW, at.bottom},
            {Side::right, "E", E, at.bottom, web},
            {Side::right, "TB", TB, at.bottom + E, web},
            {Side::below, "TW", TW, at.x() - 0.5 * BW, at.bottom}};
  }
  [[nodiscard]] Torsion torsion() const {
    const double b = double{BW} - TW;
    const double h = double{H} + T / 2 - E - TB / 2;
    return closed_torsion(b, h, {{b, T}, {b, TB}, {h, TW}, {h, TW}},
                          {{double{B} - BW, T}, {E, TW}, {E, TW}});
  }
};

struct TwoCells {
  static constexpr Description about{
      "h2b",
      "two flanges, two webs and a middle plate",
      "trvsec_h2b",
      {{"B", 400}, {"W", 300}, {"HI", 500}, {"TW1", 12}, {"TW2", 14}, {"TM", 10}, {"TF", 20}},
      {360, 270, 260, 40, 30, 28, 34},
      R"(
                 B
     |-----------------------|
     =========================  TF
         ||             ||  -
         ||     TM      ||  |
     TW1 ||=============||  | HI
         ||             ||  |
         ||             ||  -
     =========================  TF
        TW1             TW2
         |---------------|
                 W
)"};
  float B, W, HI, TW1, TW2, TM, TF;

  [[nodiscard]] constexpr const char *fault() const {
    if (TW1 + TW2 >= W) return "webs TW1 and TW2 leave no room between them in W";
    if (TM >= HI) return "middle plate TM leaves no cells in HI";
    if (W > B) return "webs: W is greater than the width B of the flanges";
    return nullptr;
  }
  [[nodiscard]] Section section() const {
    return section_from(trvsec_h2b, B, W, HI, TW1, TW2, TM, TF);
  }
  [[nodiscard]] Measures measures(const Box &at) const {
    const double left = at.x() - 0.5 * W;
    const double right = at.x() + 0.5 * W - TW2;
    return {{Side::below, "B", B, at.left, at.bottom},
            {Side::right, "TF", TF, at.top - TF, at.right},
            {Side::left, "HI", HI, at.bottom + TF, left},
            {Side::above, "W", W, left, at.top - TF},
            {Side::above, "TW1", TW1, left, at.top - TF},
            {Side::above, "TW2", TW2, right, at.top - TF},
            {Side::right, "TM", TM, at.y() - 0.5 * TM, right}};
  }
  // The two cells mirror each other, so that the middle plate between them carries no shear flow.
  [[nodiscard]] Torsion torsion() const {
    const double b = W - (double{TW1} + TW2) / 2;
    const double h = double{HI} + TF;
    const double beyond = double{B} - W;
    return closed_torsion(b, h, {{b, TF}, {b, TF}, {h, TW1}, {h, TW2}},
                          {{beyond, TF}, {beyond, TF}, {b, TM}});
  }
};

struct RolledI {
  static constexpr Description about{
      "rolled",     "hot-rolled I section with root fillets",
      by_its_parts, {{"H", 300}, {"B", 150}, {"TW", 7.1F}, {"TF", 10.7F}, {"R", 15}},
      no_figure,
      R"(
             B
     |----------------|
     ==================  TF  -
            /||\  R          |
          TW ||              | H
            \||/             |
     ==================      -
)"};
  float H, B, TW, TF, R;

  [[nodiscard]] constexpr const char *fault() const {
    if (2 * TF >= H) return "flanges TF leave no room for a web in H";
    if (TW > B) return "web TW is wider than the flange B";
    if (2 * TF + 2 * R > H) return "fillets R do not fit between the flanges";
    if (TW + 2 * R > B) return "fillets R do not fit on the flange B";
    return nullptr;
  }
  [[nodiscard]] Section section() const { return rolled(H, B, TW, TF, R); }
  [[nodiscard]] Measures measures(const Box &at) const {
    return {{Side::left, "H", H, at.bottom, at.left},
            {Side::below, "B", B, at.left, at.bottom},
            {Side::above, "TW", TW, at.x() - 0.5 * TW, at.top - TF},
            {Side::right, "TF", TF, at.top - TF, at.right},
            {Side::right, "R", R, at.top - TF - R, at.x() + 0.5 * TW}};
  }
  [[nodiscard]] Torsion torsion() const {
    Torsion torsion = open_torsion(plates_of_i(H, B, B, TF, TF, TW),
                                   "Torsion constant: with fillets (NACA report 334), as in tables "
                                   "of sections; warping constant: centre lines.");
    if (torsion.it) torsion.it = torsion_constant_of_rolled(H, B, TW, TF, R);
    return torsion;
  }
};

// In the order in which they are listed.
using Catalogue = Kinds<UnequalI, LyingI, FilletedI, Tee, FlatBar, Channel, CoveredI, BoxGirder,
                        HollowSection, Angle, TwoAngles, PlateOnCell, TwoCells, RolledI>;

}  // namespace host
