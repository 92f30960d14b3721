// The outline routines: every dimension by its letter, the vertices as they are numbered.
#include <algorithm>

#include "figures.h"
#include "profile.h"

namespace figures {
namespace {

using Letter = View::Letter;

constexpr Box paper{110, 80, 510, 340};

Box bounds(const Profile &profile) {
  Box box{0, 0, 0, 0};
  for (const Outline &polygon : profile.polygons)
    for (const Point &p : polygon)
      box = {std::min<double>(box.left, p.x), std::min<double>(box.bottom, p.y),
             std::max<double>(box.right, p.x), std::max<double>(box.top, p.y)};
  return box;
}

// The profile with its numbers. Dimensions are told between two vertices, by their numbers, and must
// measure what the routine was called with.
class Drawing {
 public:
  Drawing(const std::string &name, const std::string &title, Profile profile)
      : profile_(std::move(profile)),
        sheet_(name, 620, 420, title,
               title + ", with its dimensions by their letters and its vertices by their numbers."),
        view_(sheet_, paper, bounds(profile_)) {
    const Box box = bounds(profile_);
    require_near(box.left, -box.right, "the origin in the middle, x");
    require_near(box.bottom, -box.top, "the origin in the middle, y");
    view_.area(profile_.polygons);
    view_.axes({}, 34);
    view_.dot({}, colours::grey);
    int number = 0;
    for (std::size_t k = 0; k < profile_.polygons.size(); ++k) {
      const Outline &polygon = profile_.polygons[k];
      require(area_of(polygon) > 0, "polygon " + std::to_string(k + 1) + " counter-clockwise");
      const std::size_t n = polygon.size();
      for (std::size_t i = 0; i < n; ++i) {
        vertices_.push_back(polygon[i]);
        // The number of a hole's vertex stands in the hole: as if the hole ran clockwise.
        const bool solid = profile_.signs[k] > 0;
        view_.number(polygon[(i + (solid ? n - 1 : 1)) % n], polygon[i],
                     polygon[(i + (solid ? 1 : n - 1)) % n], ++number);
      }
    }
  }

  [[nodiscard]] Point vertex(std::size_t number) const { return vertices_.at(number - 1); }
  void count(std::size_t vertices) const {
    require(vertices_.size() == vertices, std::to_string(vertices) + " vertices");
  }
  void across(const std::string &letter, float value, std::size_t a, std::size_t b, double above,
              Letter place = Letter::between) {
    require_near(std::fabs(vertex(a).x - vertex(b).x), value, letter);
    view_.across(vertex(a), vertex(b), above, letter, place);
  }
  void upright(const std::string &letter, float value, std::size_t a, std::size_t b, double right,
               Letter place = Letter::between) {
    require_near(std::fabs(vertex(a).y - vertex(b).y), value, letter);
    view_.upright(vertex(a), vertex(b), right, letter, place);
  }
  View &view() { return view_; }
  Sheet done() { return std::move(sheet_); }

 private:
  Profile profile_;
  Sheet sheet_;
  View view_;
  std::vector<Point> vertices_;
};

Sheet draw_ia(const std::string &name) {
  const float H = 300, B1 = 320, B2 = 220, T1 = 42, T2 = 34, TW = 30;
  Drawing d(name, "I section of trvsec_ia", profile(trvsec_ia, H, B1, B2, T1, T2, TW));
  d.count(12);
  d.upright("H", H, 7, 12, 62);
  d.across("B1", B1, 6, 7, -42);
  d.across("B2", B2, 1, 12, 42);
  d.upright("T1", T1, 5, 6, -40, Letter::behind);
  d.upright("T2", T2, 1, 2, -40, Letter::behind);
  d.across("TW", TW, 4, 9, 42, Letter::behind);
  return d.done();
}

Sheet draw_h(const std::string &name) {
  const float H = 400, B1 = 260, B2 = 190, T1 = 42, T2 = 34, TW = 30;
  Drawing d(name, "I section on its side of trvsec_h", profile(trvsec_h, H, B1, B2, T1, T2, TW));
  d.count(12);
  d.across("H", H, 2, 7, -58);
  d.upright("B1", B1, 1, 2, -52);
  d.upright("B2", B2, 7, 8, 42);
  d.across("T1", T1, 1, 12, 32, Letter::behind);
  d.across("T2", T2, 8, 9, 32, Letter::behind);
  d.upright("TW", TW, 5, 10, -60, Letter::behind);
  return d.done();
}

Sheet draw_t(const std::string &name) {
  const float B = 260, H = 240, TF = 38, TW = 32;
  Drawing d(name, "T section of trvsec_t", profile(trvsec_t, B, H, TF, TW));
  d.count(8);
  d.across("B", B, 1, 8, 42);
  d.upright("H", H, 5, 8, 200);
  d.upright("TF", TF, 1, 2, -40, Letter::behind);
  d.across("TW", TW, 4, 5, -38, Letter::behind);
  return d.done();
}

Sheet draw_b(const std::string &name) {
  constexpr std::int32_t B = 240;
  const float H = 110;
  Profile bar = profile(trvsec_b, B, H);
  require(bar.polygons[0].size() == 12, "12 vertices told");
  bar.polygons[0].resize(4);
  Drawing d(name, "Flat bar of trvsec_b", bar);
  d.count(4);
  d.across("B", B, 2, 3, -42);
  d.upright("H", H, 3, 4, 44);
  return d.done();
}

Sheet draw_h1b(const std::string &name) {
  const float W = 400, D = 280, P = 220, T1 = 40, T2 = 30, TW = 30, TP = 36;
  Drawing d(name, "I section with a cover plate of trvsec_h1b",
            profile(trvsec_h1b, W, D, P, T1, T2, TW, TP));
  d.count(16);
  d.across("W", W, 1, 12, 38);
  d.across("D", D, 4, 9, -58);
  d.upright("P", P, 9, 10, 110);
  d.upright("TP", TP, 1, 2, -36, Letter::behind);
  d.across("T1", T1, 4, 5, -28, Letter::before);
  d.across("T2", T2, 8, 9, -28, Letter::behind);
  d.upright("TW", TW, 6, 14, 50, Letter::behind);
  return d.done();
}

Sheet draw_box(const std::string &name) {
  const float BT = 420, BB = 330, TT = 36, TB = 30, H = 270, TW = 28, G = 180;
  Drawing d(name, "Box girder of trvsec_box", profile(trvsec_box, BT, BB, TT, TB, H, TW, G));
  d.count(16);
  d.across("BT", BT, 1, 12, 38);
  d.across("BB", BB, 6, 7, -40);
  d.upright("H", H, 7, 12, 92);
  d.upright("TT", TT, 1, 2, -36, Letter::behind);
  d.upright("TB", TB, 5, 6, -36, Letter::behind);
  d.across("TW", TW, 4, 14, 62, Letter::before);
  d.across("TW", TW, 9, 15, 62, Letter::behind);
  d.across("G", G, 14, 15, 40);
  return d.done();
}

Sheet draw_rhs(const std::string &name) {
  const float B = 300, H = 210, T = 34;
  Drawing d(name, "Rectangular hollow section of trvsec_rhs", profile(trvsec_rhs, B, H, T));
  d.count(8);
  d.across("B", B, 2, 3, -42);
  d.upright("H", H, 3, 4, 44);
  d.across("T", T, 2, 6, 120, Letter::before);
  d.upright("T", T, 1, 5, 90, Letter::behind);
  return d.done();
}

Sheet draw_l2(const std::string &name) {
  const float B = 170, H = 200, G = 44, T = 32, TV = 28;
  Drawing d(name, "Two angles back to back of trvsec_l2", profile(trvsec_l2, B, H, G, T, TV));
  d.count(12);
  d.across("B", B, 1, 6, 38);
  d.across("B", B, 7, 12, 38);
  d.across("G", G, 6, 7, 38);
  d.upright("H", H, 9, 12, 220);
  d.upright("T", T, 1, 2, -34, Letter::behind);
  d.across("TV", TV, 4, 5, -34, Letter::before);
  d.across("TV", TV, 8, 9, -34, Letter::behind);
  return d.done();
}

Sheet draw_tab(const std::string &name) {
  const float B = 420, H = 220, BW = 290, E = 60, T = 34, TW = 30, TB = 28;
  Drawing d(name, "Top plate on a cell of trvsec_tab", profile(trvsec_tab, B, H, BW, E, T, TW, TB));
  d.count(16);
  d.across("B", B, 1, 12, 38);
  d.upright("H", H, 9, 10, 110);
  d.across("BW", BW, 4, 9, -58);
  d.upright("T", T, 1, 2, -36, Letter::behind);
  d.across("TW", TW, 4, 5, -28, Letter::before);
  d.across("TW", TW, 8, 9, -28, Letter::behind);
  d.upright("TB", TB, 6, 14, 62, Letter::behind);
  d.upright("E", E, 5, 6, 62);
  return d.done();
}

Sheet draw_h2b(const std::string &name) {
  const float B = 360, W = 270, HI = 260, TW1 = 40, TW2 = 30, TM = 28, TF = 34;
  Drawing d(name, "Two-cell section of trvsec_h2b",
            profile(trvsec_h2b, B, W, HI, TW1, TW2, TM, TF));
  d.count(20);
  d.across("B", B, 1, 12, 34);
  d.across("W", W, 4, 9, -68);
  d.upright("HI", HI, 9, 10, 92);
  d.upright("TF", TF, 1, 2, -36, Letter::behind);
  d.upright("TF", TF, 5, 6, -36, Letter::before);
  d.across("TW1", TW1, 3, 13, -36, Letter::before);
  d.across("TW2", TW2, 10, 16, -36, Letter::behind);
  d.upright("TM", TM, 14, 17, 60, Letter::behind);
  return d.done();
}

Sheet draw_i(const std::string &name) {
  const float H = 320, B1 = 340, B2 = 290, T1 = 40, T2 = 34, TW = 30, S1 = 46, S2 = 38, E = 56;
  Drawing d(name, "I section with an eccentric web of trvsec_i",
            profile(trvsec_i, H, B1, B2, T1, T2, TW, S1, S2, E));
  d.count(16);
  d.upright("H", H, 9, 16, 62);
  d.across("B1", B1, 8, 9, -40);
  d.across("B2", B2, 1, 16, 40);
  d.upright("T1", T1, 7, 8, -36, Letter::behind);
  d.upright("T2", T2, 1, 2, -36, Letter::behind);
  d.across("TW", TW, 5, 12, 22, Letter::behind);
  d.across("S1", S1, 11, 12, 34, Letter::behind);
  d.upright("S1", S1, 5, 6, -76);
  d.across("S2", S2, 13, 14, -18, Letter::behind);
  d.upright("S2", S2, 3, 4, -60);
  require_near(0.5F * (d.vertex(4).x + d.vertex(13).x), E, "E");
  d.view().line({E, 30}, {E, -60}, pens::dashed);
  d.view().across({}, {E, 0}, -22, "E", Letter::before);
  return d.done();
}

Sheet draw_c(const std::string &name) {
  const float H = 400, B1 = 400, B2 = 340, C1 = 104, C2 = 92, D1 = 110, D2 = 96;
  const float TW = 26, T1 = 32, T2 = 28, TC1 = 28, TC2 = 24, TD1 = 24, TD2 = 22;
  Drawing d(name, "Channel with lips and folds of trvsec_c",
            profile(trvsec_c, H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2));
  d.count(16);
  d.upright("H", H, 1, 16, -46);
  d.across("B1", B1, 1, 2, -40);
  d.across("B2", B2, 15, 16, 40);
  d.upright("C1", C1, 2, 3, 78);
  d.upright("C2", C2, 14, 15, 78);
  d.across("D1", D1, 3, 4, 28);
  d.across("D2", D2, 13, 14, -28, Letter::behind);
  d.across("TW", TW, 16, 9, -100, Letter::behind);
  d.upright("T1", T1, 1, 8, 46, Letter::behind);
  d.upright("T2", T2, 16, 9, 46, Letter::before);
  d.across("TC1", TC1, 7, 2, 26, Letter::behind);
  d.across("TC2", TC2, 10, 15, -26, Letter::behind);
  d.upright("TD1", TD1, 4, 5, -46, Letter::before);
  d.upright("TD2", TD2, 12, 13, -46, Letter::behind);
  return d.done();
}

}  // namespace

std::vector<Figure> outline_figures() {
  return {{"outline-trvsec_ia", draw_ia},   {"outline-trvsec_h", draw_h},
          {"outline-trvsec_t", draw_t},     {"outline-trvsec_b", draw_b},
          {"outline-trvsec_h1b", draw_h1b}, {"outline-trvsec_box", draw_box},
          {"outline-trvsec_rhs", draw_rhs}, {"outline-trvsec_l2", draw_l2},
          {"outline-trvsec_tab", draw_tab}, {"outline-trvsec_h2b", draw_h2b},
          {"outline-trvsec_i", draw_i},     {"outline-trvsec_c", draw_c}};
}

}  // namespace figures
