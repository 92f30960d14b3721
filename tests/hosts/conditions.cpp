#include "hosts/conditions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "trelvin/trelvin.h"

random_calls::Argument &Call::of(const char *name) {
  const auto place = std::find(routine_.names.begin(), routine_.names.end(), name);
  const auto i = static_cast<std::size_t>(place - routine_.names.begin());
  const random_calls::Argument &argument = after_.at(i);
  return argument.read && argument.written ? before_[i] : after_[i];
}

namespace {

constexpr float tolerance = 1e-5F;

Elements all_if(bool kept) { return kept ? ~Elements() : Elements(); }

float distance(float x1, float y1, float z1, float x2, float y2, float z2) {
  float d = 0;
  trvpds(x1, y1, z1, x2, y2, z2, d);
  return d;
}

// Lengths of the arc about C from A to B.
struct Lengths {
  explicit Lengths(Call &call)
      : radius(between(call, "xc", "yc", "xa", "ya")),
        radius_b(between(call, "xc", "yc", "xb", "yb")),
        chord(between(call, "xa", "ya", "xb", "yb")) {}

  static float between(Call &call, const char *x1, const char *y1, const char *x2, const char *y2) {
    return distance(call.real(x1), call.real(y1), 0, call.real(x2), call.real(y2), 0);
  }
  [[nodiscard]] bool rejected() const {
    return radius <= tolerance || chord <= tolerance || std::fabs(radius - radius_b) > tolerance;
  }

  float radius, radius_b, chord;
};

bool none_on_side(Call &call) {
  float a = 0, b = 0, c = 0, first = 0, second = 0;
  trvln3(call.real("x1"), call.real("y1"), call.real("x2"), call.real("y2"), a, b, c);
  trvlds(call.real("xa"), call.real("ya"), a, b, c, first);
  trvlds(call.real("xb"), call.real("yb"), a, b, c, second);
  const auto side = static_cast<float>(call.integer("side"));
  return !(first * side >= 0) && !(second * side > 0);
}

bool no_candidates(Call &call) {
  const bool one_point = call.real("x1") == call.real("x2") && call.real("y1") == call.real("y2");
  const bool horizontal = std::fabs(call.real("y2") - call.real("y1")) < tolerance;
  return one_point || call.real("r") <= tolerance || (call.integer("n") == 0 && !horizontal);
}

bool left_by_trvcer2(Call &call) {
  constexpr float mark = -7725;
  float xa = 0, ya = 0, xb = 0, yb = 0, xc = mark, yc = mark;
  std::int32_t n = 0;
  trvcer2(call.real("x1"), call.real("y1"), call.real("x2"), call.real("y2"), call.integer("side"),
          call.real("r"), xa, ya, xb, yb, xc, yc, n);
  return xc == mark && yc == mark;
}

std::int32_t points_of_trvcin(Call &call) {
  const float *const X = call.reals("X");
  const float *const Y = call.reals("Y");
  float D = 0, E = 0, F = 0, x = 0, y = 0;
  trvcer(X[0], Y[0], distance(X[0], Y[0], 0, X[1], Y[1], 0), D, E, F);
  std::int32_t n = 0;
  trvlci(call.real("a"), call.real("b"), call.real("c"), D, E, F, n, x, y, x, y);
  return n;
}

bool no_length(Call &call) {
  return distance(0, 0, 0, call.real("ux"), call.real("uy"), call.real("uz")) <= tolerance ||
         distance(0, 0, 0, call.real("vx"), call.real("vy"), call.real("vz")) <= tolerance;
}

bool no_effective_widths(Call &call) {
  const float s1 = call.real("s1");
  const float s2 = call.real("s2");
  const bool at_zero = std::fabs(s2) <= tolerance;
  return (std::fabs(s1) <= tolerance && at_zero) || s1 <= 0 || s1 == -s2 / 3 ||
         (!at_zero && !(s2 - s1 <= tolerance));
}

// Runs the test of the lines as often as the routine does, so that its cosine stays that of here.
bool first_relation_refuses(Call &call) {
  const float xa = call.real("xa"), ya = call.real("ya"), za = call.real("za");
  const float xc = call.real("xc"), yc = call.real("yc"), zc = call.real("zc");
  const float xb = xa + call.real("ux"), yb = ya + call.real("uy"), zb = za + call.real("uz");
  const float xd = xc + call.real("wx"), yd = yc + call.real("wy"), zd = zc + call.real("wz");
  std::int32_t first = 0, second = 0;
  float a = 0, b = 0, c = 0, d = 0;
  trvdirl(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, first);
  if (first == TRV_LINES_SAME_LINE || first == TRV_LINES_OPPOSITE_LINE || first == TRV_LINES_SKEW ||
      first == TRV_LINES_COINCIDENT) {
    return true;
  }
  trvpl2(xa, ya, za, xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, a, b, c, d, second);
  return false;
}

// The rounds that find nothing, one after the other.
Elements empty_rounds(std::vector<float> list) {
  Elements empty;
  if (list.empty()) return empty;
  float largest = list[0];
  for (const float entry : list) largest = entry > largest ? entry : largest;
  for (std::size_t k = 0; k < list.size(); ++k) {
    const float *found = nullptr;
    float smallest = list[k];
    for (const float &entry : list) {
      if (!(entry <= smallest)) continue;
      smallest = entry;
      found = &entry;
    }
    empty[k] = found == nullptr;
    if (found != nullptr) list[static_cast<std::size_t>(found - list.data())] = largest + 1;
  }
  return empty;
}

std::vector<float> crossings_of_axis(Call &call) {
  const float *const A = call.reals("A");
  const float *const B = call.reals("B");
  const float *const C = call.reals("C");
  std::int32_t first_and_axis = 0;
  float x = 0, y = 0;
  trvlni(A[0], B[0], C[0], 1, 0, 0, first_and_axis, x, y);
  std::vector<float> crossings(static_cast<std::size_t>(call.integer("n")));
  const float *const divisor = first_and_axis == TRV_PLANE_LINES_PARALLEL ? A : B;
  for (std::size_t i = 0; i < crossings.size(); ++i) crossings[i] = -C[i] / divisor[i];
  return crossings;
}

Elements all_but_last_of_polygon(Call &call) {
  return ~Elements().set(static_cast<std::size_t>(call.integer("n")));
}

Elements all_but_closing_element(Call &call) {
  return call.integer("kind") == TRV_PART_POLYGON ? all_but_last_of_polygon(call) : ~Elements();
}

Elements inserts_nothing(Call &call) {
  const std::int32_t k = call.integer("k");
  return all_if(k < 0 || k > call.integer("n") || call.integer("m") < 1);
}

}  // namespace

const std::vector<Condition> &conditions() {
  static const std::vector<Condition> all = {
      {"trvcer2", "xa ya xb yb", [](Call &call) { return all_if(no_candidates(call)); }},
      {"trvcer2", "xc yc",
       [](Call &call) { return all_if(no_candidates(call) || none_on_side(call)); }},
      {"trvcer1", "r", [](Call &call) { return all_if(call.real("h") < tolerance); }},
      {"trvcer1", "xc yc",
       [](Call &call) { return all_if(call.real("h") < tolerance || left_by_trvcer2(call)); }},
      {"trvcin", "x1 y1", [](Call &call) { return all_if(points_of_trvcin(call) < 1); }},
      {"trvcin", "x2 y2", [](Call &call) { return all_if(points_of_trvcin(call) < 2); }},
      {"trvcer5", "xa ya",
       [](Call &call) {
         const Lengths arc(call);
         const float s = call.real("s");
         return all_if(s < 0 || call.real("e") <= tolerance || arc.rejected() ||
                       arc.chord - s <= tolerance);
       }},
      {"trvcer10", "xc yc xa ya xb yb xo yo",
       [](Call &call) { return all_if(Lengths(call).rejected()); }},
      {"trvphip", "phi", [](Call &call) { return all_if(no_length(call)); }},
      {"trvphip", "status", [](Call &call) { return all_if(!no_length(call)); }},
      {"trvef2", "be1 be2", [](Call &call) { return all_if(no_effective_widths(call)); }},
      {"trvpl6", "a b c d", [](Call &call) { return all_if(first_relation_refuses(call)); }},
      {"trvordi", "IDX",
       [](Call &call) {
         const float *const V = call.reals("V");
         return empty_rounds({V, V + std::max(call.integer("n"), 0)});
       }},
      {"trvpor", "IDX",
       [](Call &call) {
         const bool ordered = call.integer("status") == TRV_STATUS_DONE;
         return ordered ? empty_rounds(crossings_of_axis(call)) : Elements();
       }},
      {"trvmer13", "IA IB",
       [](Call &call) {
         const auto set = std::max(call.integer("na") + call.integer("nb"), call.integer("count"));
         return ~Elements() << static_cast<std::size_t>(std::max(set, 0));
       }},
      {"trvadr", "V n", inserts_nothing},
      {"trvapl", "x y", all_but_last_of_polygon},
      {"trvspl", "x y", all_but_last_of_polygon},
      {"trvipl", "x y", all_but_last_of_polygon},
      {"trvair", "x y", all_but_closing_element},
      {"trvstm", "x y", all_but_closing_element},
      {"trvinm", "x y", all_but_closing_element},
  };
  return all;
}
