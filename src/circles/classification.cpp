#include "circles/classification.h"

namespace trelvin {
namespace {

constexpr auto heading = windows_1253(u"ΚΥΚΛΟΣ;");
constexpr auto position_label = windows_1253(u"KC;");
constexpr auto above = windows_1253(u"ΚΥΚΛΟΣ ΣΤΗ ΘΕΤΙΚΗ ΠΕΡΙΟΧΗ");
constexpr auto below = windows_1253(u"ΚΥΚΛΟΣ ΣΤΗΝ ΑΡΝΗΤΙΚΗ ΠΕΡΙΟΧΗ");
constexpr auto cut_below = windows_1253(u"ΤΜΗΜΑ ΚΥΚΛΟΥ Φ ΣΤΗ ΘΕΤΙΚΗ ΠΕΡΙΟΧΗ;");
constexpr auto cut_above = windows_1253(u"ΤΜΗΜΑ ΚΥΚΛΟΥ 2Π-Φ ΣΤΗ ΘΕΤΙΚΗ ΠΕΡΙΟΧΗ;");

std::string_view meaning_of(CirclePosition position) {
  switch (position) {
    case CirclePosition::above:
      return above.view();
    case CirclePosition::below:
      return below.view();
    case CirclePosition::cut_below:
      return cut_below.view();
    default:
      return cut_above.view();
  }
}

}  // namespace

Classification classify(Point2 centre, Point2 on_circle, const Line &line) {
  const Circle circle = circle_about(centre, distance(centre, on_circle));
  const Crossings crossings = crossings_of(line, circle);
  // The region is that of the centre above or below the x axis, wherever the line runs.
  if (crossings.count < 2) {
    return {centre.y > 0 ? CirclePosition::above : CirclePosition::below, crossings};
  }
  return {centre.y < 0 ? CirclePosition::cut_below : CirclePosition::cut_above, crossings};
}

TraceRecord record_of(const Classification &classification) {
  const auto &[position, crossings] = classification;
  TraceRecord record;
  record.begin_line().text(heading.view());
  record.begin_line().text(position_label.view()).digit(static_cast<Integer>(position));
  record.begin_line().text(meaning_of(position));
  if (crossings.count == 2) {  // the file counts the points from 2
    record.text("x2;").real(crossings.first.x).text(";y2;").real(crossings.first.y);
    record.text(";x3;").real(crossings.second.x).text(";y3;").real(crossings.second.y);
  }
  record.end_line();
  return record;
}

}  // namespace trelvin
