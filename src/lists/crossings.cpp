#include <algorithm>
#include <cmath>

#include "numeric/real.h"
#include "trelvin/lists.h"

using namespace trelvin;

namespace {

// The crossings of an outline with the line y = y0, in the order of its edges, each edge counted
// from its lower end, included, to its upper end, excluded.
template <class Visit>
void cross_horizontal(TrvArrayIn X, TrvArrayIn Y, Integer n, Real y0, Visit visit) {
  for (Integer i = 0; i < n; ++i) {
    const Integer j = i + 1 < n ? i + 1 : 0;
    if ((Y[i] <= y0) == (Y[j] <= y0)) continue;
    const Integer low = Y[i] < Y[j] ? i : j;
    const Integer high = low == i ? j : i;
    const double share = (double{y0} - Y[low]) / (double{Y[high]} - Y[low]);
    visit(X[low] + share * (double{X[high]} - X[low]));
  }
}

}  // namespace

TRELVIN_ROUTINE trvppp(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn y0, TrvIntOut count,
                       TrvArrayOut XC) {
  Integer found = 0;
  if (n >= 3) {
    cross_horizontal(X, Y, n, y0, [&](double x) { XC[found++] = static_cast<Real>(x); });
    std::sort(XC, XC + found, [](Real a, Real b) { return a < b; });
  }
  count = found;
}

TRELVIN_ROUTINE trvpin(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn x1, TrvIn y1, TrvIn x2,
                       TrvIn y2, TrvIntOut count, TrvArrayOut XI, TrvArrayOut YI, TrvArrayOut T,
                       TrvIntArrayOut EDGE, TrvIntOut status) {
  count = 0;
  status = -1;
  if (n < 3 || (negligible(x2 - x1) && negligible(y2 - y1))) return;

  Integer to_the_right = 0;
  cross_horizontal(X, Y, n, y1, [&](double x) { to_the_right += x > x1 ? 1 : 0; });
  status = to_the_right % 2;

  // A vertex on the line belongs to the side that the outline comes from.
  const double dx = double{x2} - x1;
  const double dy = double{y2} - y1;
  const auto side = [&](Integer i) { return dx * (double{Y[i]} - y1) - dy * (double{X[i]} - x1); };
  bool left = false;
  for (Integer i = n; i-- > 0;) {
    if (side(i) != 0) {
      left = side(i) > 0;
      break;
    }
  }
  Integer found = 0;
  for (Integer i = 0; i < n; ++i) {
    const Integer j = i + 1 < n ? i + 1 : 0;
    const double from = side(i);
    const double to = side(j);
    if (from != 0) left = from > 0;
    if (to == 0 || (to > 0) == left) continue;
    const double share = from / (from - to);
    const double x = X[i] + share * (double{X[j]} - X[i]);
    const double y = Y[i] + share * (double{Y[j]} - Y[i]);
    const double t = ((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy);
    if (!(t >= 0 && t <= 1)) continue;
    Integer place = found++;
    for (; place > 0 && T[place - 1] > static_cast<Real>(t); --place) {
      XI[place] = XI[place - 1];
      YI[place] = YI[place - 1];
      T[place] = T[place - 1];
      EDGE[place] = EDGE[place - 1];
    }
    XI[place] = static_cast<Real>(x);
    YI[place] = static_cast<Real>(y);
    T[place] = static_cast<Real>(t);
    EDGE[place] = i + 1;
  }
  count = found;
}
