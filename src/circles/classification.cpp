#include "circles/trace.h"
#include "numeric/real.h"
#include "trelvin/circles.h"
#include "trelvin/plane.h"

using namespace trelvin;

namespace {

constexpr auto heading = windows_1253(u"ΚΥΚΛΟΣ;");
constexpr auto position_label = windows_1253(u"KC;");
constexpr auto above = windows_1253(u"ΚΥΚΛΟΣ ΣΤΗ ΘΕΤΙΚΗ ΠΕΡΙΟΧΗ");
constexpr auto below = windows_1253(u"ΚΥΚΛΟΣ ΣΤΗΝ ΑΡΝΗΤΙΚΗ ΠΕΡΙΟΧΗ");
constexpr auto cut_below = windows_1253(u"ΤΜΗΜΑ ΚΥΚΛΟΥ Φ ΣΤΗ ΘΕΤΙΚΗ ΠΕΡΙΟΧΗ;");
constexpr auto cut_above = windows_1253(u"ΤΜΗΜΑ ΚΥΚΛΟΥ 2Π-Φ ΣΤΗ ΘΕΤΙΚΗ ΠΕΡΙΟΧΗ;");

}  // namespace

TRELVIN_ROUTINE trvcin(TrvArrayIn X, TrvArrayIn Y, TrvIn a, TrvIn b, TrvIn c, TrvIntOut position,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2) {
  Real r;
  Real D;
  Real E;
  Real F;
  Integer n;
  trvpds(X[0], Y[0], 0, X[1], Y[1], 0, r);
  trvcer(X[0], Y[0], r, D, E, F);
  trvlci(a, b, c, D, E, F, n, x1, y1, x2, y2);

  // The region is that of the centre above or below the x axis, wherever the line runs.
  const bool cut = n == 2;
  if (cut) {
    position = Y[0] < 0 ? 3 : 4;
  } else {
    position = Y[0] > 0 ? 1 : 2;
  }

  TraceRecord record;
  record.begin_line().text(heading.view());
  record.begin_line().text(position_label.view()).integer(position);
  if (cut) {
    record.begin_line().text(position == 3 ? cut_below.view() : cut_above.view());
    record.text("x2;").real(x1).text(";y2;").real(y1);  // the file counts the points from 2
    record.text(";x3;").real(x2).text(";y3;").real(y2);
  } else {
    record.begin_line().text(position == 1 ? above.view() : below.view());
  }
  record.append_to_file();
}
