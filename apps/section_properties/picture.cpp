#include "picture.h"

#include <algorithm>

#include "numbers.h"

namespace host {
namespace {

// The sheet, in pixels. The section gets a fixed width of it, and the height that it needs.
constexpr double sheet_width = 840;
constexpr double drawing_centre = 320;
constexpr double largest_section = 400;
constexpr double smallest_height = 60;  // of the drawing, for what the legend needs beside it
constexpr double space_above = 140;
constexpr double space_below = 130;
constexpr double legend_left = 615;
constexpr double axis_overhang = 34;
constexpr double arrow_overhang = 48;
constexpr double dimension_distance = 84;  // behind the axes and their labels

constexpr const char *ink = "#1d2733";
constexpr const char *steel = "#c9d5e3";
constexpr const char *origin_colour = "#7a8794";
constexpr const char *principal_colour = "#c0262d";
constexpr const char *dimension_colour = "#2f6690";
constexpr const char *dash_dot = "14 4 2 4";

// Places the section on the sheet, whose y runs downwards.
class Scale {
 public:
  explicit Scale(const Box &box)
      : pixels_(largest_section / std::max(box.right - box.left, box.top - box.bottom)),
        middle_x_(0.5 * (box.left + box.right)),
        middle_y_(0.5 * (box.bottom + box.top)),
        height_(std::max(pixels_ * (box.top - box.bottom), smallest_height)) {}

  [[nodiscard]] double x(double mm) const { return drawing_centre + pixels_ * (mm - middle_x_); }
  [[nodiscard]] double y(double mm) const {
    return space_above + 0.5 * height_ - pixels_ * (mm - middle_y_);
  }
  [[nodiscard]] double length(double mm) const { return pixels_ * mm; }
  [[nodiscard]] double sheet_height() const { return space_above + height_ + space_below; }

 private:
  double pixels_;
  double middle_x_, middle_y_;
  double height_;
};

std::string px(double value) { return fixed(value, 2); }

std::string attribute(const std::string &name, const std::string &value) {
  return ' ' + name + "=\"" + value + '"';
}

std::string line(double x1, double y1, double x2, double y2, const std::string &attributes = "") {
  return "<line" + attribute("x1", px(x1)) + attribute("y1", px(y1)) + attribute("x2", px(x2)) +
         attribute("y2", px(y2)) + attributes + "/>\n";
}

// Centred on x unless the attributes say otherwise.
std::string text(double x, double y, const std::string &content,
                 const std::string &attributes = "") {
  return "<text" + attribute("x", px(x)) + attribute("y", px(y)) + attributes + '>' + content +
         "</text>\n";
}

std::string group(const std::string &attributes, const std::string &content) {
  return "<g" + attributes + ">\n" + content + "</g>\n";
}

// One path for solids and holes. Both run counter-clockwise, so only the even-odd rule tells them
// apart.
std::string steel_area(const Outline &outline, const Scale &at) {
  std::string path;
  for (const Ring &ring : outline) {
    char command = 'M';
    for (const Vertex &v : ring.vertices) {
      if (!path.empty()) path += ' ';
      if (v.arc > 0) {
        const std::string radius = px(at.length(v.arc));
        path.append("A").append(radius).append(" ").append(radius).append(" 0 0 1 ");
      } else {
        path += command;
      }
      path += px(at.x(v.x)) + ' ' + px(at.y(v.y));
      command = 'L';
    }
    path += " Z";
  }
  return "<path" + attribute("d", path) + attribute("fill", steel) +
         attribute("fill-rule", "evenodd") + attribute("stroke", ink) +
         attribute("stroke-linejoin", "round") + "/>\n";
}

std::string arrow_head(double x, double y, const std::string &turn) {
  return "<path" + attribute("d", "M0 0 L-9 -3.5 L-9 3.5 Z") +
         attribute("transform", "translate(" + px(x) + ' ' + px(y) + ')' + turn) +
         attribute("fill", origin_colour) + attribute("stroke", "none") + "/>\n";
}

std::string origin_axes(const Box &box, const Scale &at) {
  const double right = at.x(box.right) + arrow_overhang;
  const double top = at.y(box.top) - arrow_overhang;
  const std::string label = attribute("fill", origin_colour) + attribute("stroke", "none");
  return group(attribute("stroke", origin_colour),
               line(at.x(box.left) - axis_overhang, at.y(0), right, at.y(0)) +
                   line(at.x(0), at.y(box.bottom) + axis_overhang, at.x(0), top) +
                   arrow_head(right, at.y(0), "") + arrow_head(at.x(0), top, " rotate(-90)") +
                   text(right + 10, at.y(0) + 4, "x", label) + text(at.x(0), top - 7, "y", label));
}

// Drawn along x and y and then turned about the centroid; y downwards turns the other way.
std::string principal_axes(const Box &box, const Scale &at, const Properties &p) {
  constexpr double degrees = 180 / 3.14159265358979323846;
  const double x = at.x(p.xs);
  const double y = at.y(p.ys);
  const double left = at.x(box.left) - axis_overhang;
  const double bottom = at.y(box.bottom) + axis_overhang;
  const std::string dashed = attribute("stroke-dasharray", dash_dot);
  const std::string label = attribute("fill", principal_colour) + attribute("stroke", "none");
  const std::string turn =
      "rotate(" + fixed(-p.alpha * degrees, 4) + ' ' + px(x) + ' ' + px(y) + ')';
  return group(attribute("stroke", principal_colour) + attribute("stroke-width", "1.2") +
                   attribute("transform", turn),
               line(left, y, at.x(box.right) + axis_overhang, y, dashed) +
                   line(x, bottom, x, at.y(box.top) - axis_overhang, dashed) +
                   text(left - 10, y + 4, "1", label) + text(x, bottom + 15, "2", label));
}

std::string centroid_mark(double x, double y) {
  return "<circle" + attribute("cx", px(x)) + attribute("cy", px(y)) + attribute("r", "4.5") +
         attribute("fill", "white") + attribute("stroke", principal_colour) +
         attribute("stroke-width", "1.6") + "/>\n";
}

// A dimension line from 0 to `length` along x with oblique strokes at its ends and the figure above
// it. The section lies on the side of `towards`, 1 or -1 in y, and extension lines run up to it.
std::string dimension(double length, double towards, const std::string &figure) {
  constexpr double room_for_figure = 32;
  const double reach = towards * (dimension_distance - 8);
  const double end = -8 * towards;
  const auto stroke = [](double x) {
    return line(x - 4, 4, x + 4, -4, attribute("stroke-width", "1.8"));
  };
  const std::string plain = attribute("fill", dimension_colour) + attribute("stroke", "none");
  return line(-10, 0, length + 10, 0) + line(0, reach, 0, end) + line(length, reach, length, end) +
         stroke(0) + stroke(length) +
         (length >= room_for_figure
              ? text(0.5 * length, -7, figure, plain)
              : text(length + 12, -7, figure, plain + attribute("text-anchor", "start")));
}

std::string dimensions(const Box &box, const Scale &at) {
  const double width = box.right - box.left;
  const double height = box.top - box.bottom;
  const auto placed = [](double x, double y, const std::string &turn) {
    return attribute("transform", "translate(" + px(x) + ' ' + px(y) + ')' + turn);
  };
  const double below = at.y(box.bottom) + dimension_distance;
  const double beside = at.x(box.left) - dimension_distance;
  return group(attribute("stroke", dimension_colour) + attribute("stroke-width", "0.8"),
               group(placed(at.x(box.left), below, ""),
                     dimension(at.length(width), -1, shortest(static_cast<float>(width)))) +
                   group(placed(beside, at.y(box.bottom), " rotate(-90)"),
                         dimension(at.length(height), 1, shortest(static_cast<float>(height)))));
}

std::string legend(const Properties &p) {
  constexpr double row = 22;
  double y = space_above - 30;
  std::string rows;
  const auto figure = [&](const std::string &symbol, double value, const std::string &unit) {
    rows += text(legend_left, y, symbol, attribute("font-style", "italic")) +
            text(legend_left + 28, y, "= " + fixed(value, decimals_for(value, 5)) + ' ' + unit);
    y += row;
  };
  figure("A", p.area / 1e2, "cm²");
  figure("I₁", p.i1 / 1e4, "cm⁴");
  figure("I₂", p.i2 / 1e4, "cm⁴");

  y += 0.5 * row;
  const auto key = [&](const std::string &sample, const std::string &meaning) {
    rows += sample + text(legend_left + 42, y, meaning);
    y += row;
  };
  const double end = legend_left + 32;
  key(line(legend_left, y - 4, end, y - 4, attribute("stroke", origin_colour)),
      "axes of the origin");
  key(line(legend_left, y - 4, end, y - 4,
           attribute("stroke", principal_colour) + attribute("stroke-dasharray", dash_dot)),
      "principal axes");
  key(centroid_mark(legend_left + 16, y - 4), "centroid");
  return group(attribute("text-anchor", "start") + attribute("fill", ink), rows);
}

}  // namespace

std::string picture(const std::string &title, const std::string &subtitle, const Outline &outline,
                    const Properties &p) {
  const Box box = bounding_box(outline);
  const Scale at(box);
  const std::string width = px(sheet_width);
  const std::string height = px(at.sheet_height());
  const std::string left = attribute("text-anchor", "start") + attribute("fill", ink);
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
         attribute("width", width) + attribute("height", height) +
         attribute("viewBox", "0 0 " + width + ' ' + height) +
         attribute("font-family", "Helvetica, Arial, sans-serif") + attribute("font-size", "14") +
         attribute("text-anchor", "middle") + ">\n<title>" + title + ' ' + subtitle +
         "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n" +
         text(30, 38, title,
              left + attribute("font-size", "18") + attribute("font-weight", "bold")) +
         text(30, 60, subtitle,
              left + attribute("font-size", subtitle.size() > 100 ? "11" : "14")) +
         steel_area(outline, at) + origin_axes(box, at) + principal_axes(box, at, p) +
         centroid_mark(at.x(p.xs), at.y(p.ys)) + dimensions(box, at) + legend(p) + "</svg>\n";
}

}  // namespace host
