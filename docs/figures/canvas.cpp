#include "canvas.h"

#include <algorithm>

namespace figures {
namespace {

using svg::attribute;

constexpr double number_size = 11;

std::string drawn_with(const Pen &pen, const char *fill = colours::none) {
  return attribute("stroke", pen.colour, "stroke-width", pen.width) +
         (*pen.dash != 0 ? attribute("stroke-dasharray", pen.dash) : "") + attribute("fill", fill);
}

std::string escaped(const std::string &text) {
  std::string result;
  for (const char c : text) {
    if (c == '<')
      result += "&lt;";
    else if (c == '&')
      result += "&amp;";
    else
      result += c;
  }
  return result;
}

// Of sans-serif letters, on the wide side.
double width_of(const std::string &text, double size) {
  const auto letters = std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned>(c) & 0xC0U) != 0x80; });
  return 0.56 * size * static_cast<double>(letters);
}

bool overlap(const Box &a, const Box &b) {
  return a.left < b.right && b.left < a.right && a.bottom < b.top && b.bottom < a.top;
}

}  // namespace

// --- the sheet --------------------------------------------------------------------------------

Sheet::Sheet(std::string name, double width, double height, std::string title,
             std::string description)
    : name_(std::move(name)),
      width_(width),
      height_(height),
      title_(std::move(title)),
      description_(std::move(description)) {}

void Sheet::text(Offset at, int side, const std::string &content, const char *colour, double size) {
  const double width = width_of(content, size);
  const double left = side > 0 ? at.x : side < 0 ? at.x - width : at.x - 0.5 * width;
  labels_.push_back({{left, at.y - 0.4 * size, left + width, at.y + 0.4 * size}, content});
  const char *anchor = side > 0 ? "start" : side < 0 ? "end" : "middle";
  // The paper's colour around the letters keeps them legible on lines.
  add(svg::text(at.x, down(at.y) + 0.35 * size, escaped(content),
                attribute("text-anchor", anchor, "font-size", size, "fill", colour, "stroke",
                          colours::paper, "stroke-width", "3", "paint-order", "stroke")));
}

void Sheet::caption(Offset at, const std::string &content) {
  text(at, 0, content, colours::ink, 13);
}

void Sheet::check_labels() const {
  std::string faults;
  for (std::size_t i = 0; i < labels_.size(); ++i) {
    const Box &room = labels_[i].room;
    if (room.left < 2 || room.bottom < 2 || room.right > width_ - 2 || room.top > height_ - 2)
      faults += "; '" + labels_[i].content + "' leaves the sheet";
    for (std::size_t j = 0; j < i; ++j)
      if (overlap(labels_[j].room, room))
        faults += "; '" + labels_[j].content + "' and '" + labels_[i].content + "' overlap";
  }
  if (!faults.empty()) throw std::runtime_error("labels" + faults);
}

std::string Sheet::svg() const {
  check_labels();
  return svg::sheet(
      width_, height_,
      attribute("role", "img", "aria-labelledby", name_ + "-title " + name_ + "-desc",
                "font-family", "system-ui, 'Segoe UI', Helvetica, Arial, sans-serif"),
      "<title" + attribute("id", name_ + "-title") + '>' + escaped(title_) + "</title>\n<desc" +
          attribute("id", name_ + "-desc") + '>' + escaped(description_) + "</desc>\n<rect" +
          attribute("width", width_, "height", height_, "rx", "8", "fill", colours::paper) +
          "/>\n" + elements_);
}

// --- views ------------------------------------------------------------------------------------

View::View(Sheet &sheet, const Box &paper, const Box &world)
    : sheet_(&sheet),
      scale_(std::min((paper.right - paper.left) / (world.right - world.left),
                      (paper.top - paper.bottom) / (world.top - world.bottom))),
      middle_of_paper_{0.5 * (paper.left + paper.right), 0.5 * (paper.bottom + paper.top)},
      middle_of_world_{0.5 * (world.left + world.right), 0.5 * (world.bottom + world.top)} {}

Offset View::at(Point p) const {
  return {middle_of_paper_.x + scale_ * (p.x - middle_of_world_.x),
          middle_of_paper_.y + scale_ * (p.y - middle_of_world_.y)};
}

void View::stroke(Offset a, Offset b, const Pen &pen) {
  sheet_->add(svg::line(a.x, sheet_->down(a.y), b.x, sheet_->down(b.y), drawn_with(pen)));
}

void View::line(Point a, Point b, const Pen &pen) { stroke(at(a), at(b), pen); }

void View::long_line(Point a, Point b, double beyond, const Pen &pen) {
  const auto further = static_cast<float>(beyond / scale_) * unit(b - a);
  line(a - further, b + further, pen);
}

void View::head(Offset tip, Offset direction, const char *colour) {
  const double size = std::hypot(direction.x, direction.y);
  const Offset d{9 * direction.x / size, 9 * direction.y / size};
  const auto corner = [&](double back, double aside) {
    return svg::point(tip.x - back * d.x - aside * d.y,
                      sheet_->down(tip.y - back * d.y + aside * d.x));
  };
  sheet_->add(
      svg::path('M' + corner(0, 0) + " L" + corner(1, 0.38) + " L" + corner(1, -0.38) + " Z",
                attribute("fill", colour)));
}

void View::arrow(Point a, Point b, const Pen &pen) {
  const Offset from = at(a);
  const Offset to = at(b);
  const double size = std::hypot(to.x - from.x, to.y - from.y);
  const Offset d{(to.x - from.x) / size, (to.y - from.y) / size};
  stroke(from, {to.x - 6 * d.x, to.y - 6 * d.y}, pen);  // the line ends within the head
  head(to, d, pen.colour);
}

std::string View::commands(const std::vector<Point> &points) const {
  std::string text;
  for (const Point &p : points) {
    const Offset o = at(p);
    text += (text.empty() ? "M" : " L") + svg::point(o.x, sheet_->down(o.y));
  }
  return text;
}

void View::path(const std::vector<Point> &points, const Pen &pen) {
  sheet_->add(svg::path(commands(points), drawn_with(pen)));
}

void View::area(const std::vector<Outline> &rings, const char *fill, const Pen &pen) {
  std::string d;
  for (const Outline &ring : rings) d += commands(ring) + " Z ";
  sheet_->add(svg::path(
      d, attribute("fill-rule", "evenodd", "stroke-linejoin", "round") + drawn_with(pen, fill)));
}

void View::disc(Offset c, const std::string &radius, const std::string &attributes) {
  sheet_->add(svg::circle(c.x, sheet_->down(c.y), radius, attributes));
}

void View::circle(Point centre, double radius, const Pen &pen, const char *fill) {
  disc(at(centre), svg::px(pixels(radius)), drawn_with(pen, fill));
}

void View::dot(Point p, const char *colour) { disc(at(p), "3.2", attribute("fill", colour)); }

// An arc of a path, as far as the path's command.
std::string View::arc_path(Offset centre, double radius, double from, double to) const {
  const auto end = [&](double angle) {
    return svg::point(centre.x + radius * std::cos(angle),
                      sheet_->down(centre.y + radius * std::sin(angle)));
  };
  return 'M' + end(from) + " A" + svg::point(radius, radius) + " 0 " +
         (std::fabs(to - from) > pi ? "1" : "0") + (to > from ? " 0 " : " 1 ") + end(to);
}

void View::arc(Point centre, double radius, double from, double to, const Pen &pen) {
  sheet_->add(svg::path(arc_path(at(centre), pixels(radius), from, to), drawn_with(pen)));
}

void View::segment(Point centre, double radius, double from, double to, const char *fill) {
  sheet_->add(svg::path(arc_path(at(centre), pixels(radius), from, to) + " Z",
                        drawn_with(pens::outline, fill)));
}

void View::turn(Point centre, double radius, double from, double to, const Pen &pen) {
  const Offset c = at(centre);
  const double sense = to > from ? 1 : -1;
  const double short_of_it = to - sense * 5 / radius;
  sheet_->add(svg::path(arc_path(c, radius, from, short_of_it), drawn_with(pen)));
  // The head is straight and the arc is not: it points where the arc is half a head before its end.
  const double bent = to - sense * 4.5 / radius;
  head({c.x + radius * std::cos(to), c.y + radius * std::sin(to)},
       {-sense * std::sin(bent), sense * std::cos(bent)}, pen.colour);
}

void View::right_angle(Point corner, Point along, Point across) {
  const auto size = static_cast<float>(10 / scale_);
  const Point u = size * unit(along - corner);
  const Point v = size * unit(across - corner);
  path({corner + u, corner + u + v, corner + v}, pens::thin);
}

void View::axes(Point origin, double length, const char *x, const char *y) {
  const auto reach = static_cast<float>(length / scale_);
  const Point to_x = origin + Point{reach, 0};
  const Point to_y = origin + Point{0, reach};
  arrow(origin, to_x, pens::thin);
  arrow(origin, to_y, pens::thin);
  label(to_x, x, {6, 0}, colours::grey);
  label(to_y, y, {0, 9}, colours::grey);
}

void View::axes_in_space(const Vector &origin, float length) {
  const auto draw = [&](const char *name, const Vector &axis, Offset beside) {
    arrow(seen(origin), seen(origin + axis), pens::thin);
    label(seen(origin + axis), name, beside, colours::grey, 12);
  };
  draw("x", {length, 0, 0}, {7, -2});
  draw("y", {0, length, 0}, {0, 9});
  draw("z", {0, 0, length}, {-5, -5});
}

void View::sweep(const Vector &centre, const Vector &from, const Vector &to, const Pen &pen) {
  std::vector<Point> points;
  for (int i = 0; i <= 24; ++i) {
    const float t = static_cast<float>(i) / 24;
    const Vector v = (1 - t) * from + t * to;
    points.push_back(seen(centre + static_cast<float>(length(from) / length(v)) * v));
  }
  const Point tip = points.back();
  points.resize(points.size() - 2);  // the head takes the rest
  path(points, pen);
  arrow(points.back(), tip, pen);
}

void View::label(Point p, const std::string &text, Offset offset, const char *colour, double size) {
  const Offset c = at(p);
  const int side = offset.x > 2 ? 1 : offset.x < -2 ? -1 : 0;
  sheet_->text({c.x + offset.x, c.y + offset.y}, side, text, colour, size);
}

void View::point(Point p, const std::string &text, Offset offset, const char *colour, double size) {
  dot(p, colour);
  label(p, text, offset, colour, size);
}

void View::number(Point before, Point vertex, Point after, int number) {
  const Point in = unit(vertex - before);
  const Point out = unit(after - vertex);
  const Point outwards = unit(Point{in.y + out.y, -in.x - out.x});
  const Offset c = at(vertex);
  const std::string digits = std::to_string(number);
  const double reach = 7 + 0.3 * width_of(digits, number_size);
  sheet_->text({c.x + reach * 1.2 * outwards.x, c.y + reach * outwards.y * 1.2}, 0, digits,
               colours::green, number_size);
}

// --- dimension lines ----------------------------------------------------------------------------

void View::tick(Offset c) { stroke({c.x - 4, c.y - 4}, {c.x + 4, c.y + 4}, {colours::blue, 1.6}); }

void View::dimension(bool is_upright, Point a, Point b, double aside, const std::string &letter,
                     Letter place) {
  // Along the line and across it.
  const auto along = [&](Offset o) { return is_upright ? o.y : o.x; };
  const auto across = [&](Offset o) { return is_upright ? o.x : o.y; };
  const auto offset = [&](double u, double v) { return is_upright ? Offset{v, u} : Offset{u, v}; };
  Offset low = at(a), high = at(b);
  const double level = across(low) + aside;
  if (along(high) < along(low)) std::swap(low, high);
  for (const Offset &end : {low, high}) {
    const double beyond = level > across(end) ? 6 : -6;
    if (std::fabs(level - across(end)) > 8)
      stroke(offset(along(end), across(end) + beyond), offset(along(end), level + beyond),
             pens::dimension);
    tick(offset(along(end), level));
  }
  stroke(offset(along(low) - 8, level), offset(along(high) + 8, level), pens::dimension);
  const double gap = is_upright ? 16 : 12;
  const int side = place == Letter::behind ? 1 : -1;
  if (place == Letter::between)
    sheet_->text(offset(0.5 * (along(low) + along(high)), level + (is_upright ? 7 : 10)),
                 is_upright ? 1 : 0, letter, colours::blue);
  else
    sheet_->text(offset(side > 0 ? along(high) + gap : along(low) - gap, level),
                 is_upright ? 0 : side, letter, colours::blue);
}

void View::along(Point a, Point b, double left, const std::string &letter) {
  const Offset from = at(a);
  const Offset to = at(b);
  const double size = std::hypot(to.x - from.x, to.y - from.y);
  const Offset d{(to.x - from.x) / size, (to.y - from.y) / size};
  const double sense = left < 0 ? -1 : 1;
  const auto moved = [&](Offset p, double forward, double aside) {
    return Offset{p.x + forward * d.x - aside * d.y, p.y + forward * d.y + aside * d.x};
  };
  for (const Offset &end : {from, to}) {
    if (std::fabs(left) > 8)
      stroke(moved(end, 0, 5 * sense), moved(end, 0, left + 5 * sense), pens::dimension);
    stroke(moved(end, -4, left - 4), moved(end, 4, left + 4), {colours::blue, 1.6});
  }
  stroke(moved(from, -8, left), moved(to, 8, left), pens::dimension);
  const Offset middle{0.5 * (from.x + to.x), 0.5 * (from.y + to.y)};
  sheet_->text(moved(middle, 0, left + 11 * sense), 0, letter, colours::blue);
}

}  // namespace figures
