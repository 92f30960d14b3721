// What the figures are drawn with: a sheet of paper, and views that place a piece of the plane or of
// space on it. Points and lengths are in the units of the routines, `Offset`s on paper in pixels, y
// upwards in both.
#pragma once

#include <string>
#include <vector>

#include "dimension_lines.h"
#include "geometry.h"
#include "svg.h"

namespace figures {

struct Offset {
  double x = 0, y = 0;
};

struct Box {
  double left, bottom, right, top;
};

struct Pen {
  const char *colour;
  double width;
  const char *dash = "";
};

namespace colours = svg::colours;

namespace pens {
constexpr Pen given{colours::ink, 1.6};
constexpr Pen outline{colours::ink, 1.2};
constexpr Pen thin{colours::grey, 1};
constexpr Pen dashed{colours::grey, 1, "5 4"};
constexpr Pen axis{colours::red, 1.2, "14 4 2 4"};
constexpr Pen result{colours::red, 1.8};
constexpr Pen dimension{colours::blue, 0.9};
}  // namespace pens

// One figure. Its labels tell the sheet the room that they take: none may cover another, and none
// may leave the sheet.
class Sheet {
 public:
  Sheet(std::string name, double width, double height, std::string title, std::string description);

  [[nodiscard]] const std::string &name() const { return name_; }
  [[nodiscard]] Box whole() const { return {0, 0, width_, height_}; }
  void add(const std::string &element) { elements_ += element; }
  // From paper's y to that of SVG, which runs downwards.
  [[nodiscard]] double down(double y) const { return height_ - y; }
  // The text begins, is centred or ends at `at`, by the sign of `side`.
  void text(Offset at, int side, const std::string &content, const char *colour = colours::ink,
            double size = 14);
  // The heading of a panel.
  void caption(Offset at, const std::string &content);
  // The whole file; throws where labels are in each other's way.
  [[nodiscard]] std::string svg() const;

 private:
  struct Label {
    Box room;
    std::string content;
  };
  void check_labels() const;

  std::string name_;
  double width_, height_;
  std::string title_, description_;
  std::string elements_;
  std::vector<Label> labels_;
};

// A piece of the plane on a part of a sheet, as large as fits, in one scale for x and y.
class View {
 public:
  View(Sheet &sheet, const Box &paper, const Box &world);

  [[nodiscard]] Offset at(Point p) const;
  [[nodiscard]] double pixels(double length) const { return scale_ * length; }
  Sheet &sheet() { return *sheet_; }

  void line(Point a, Point b, const Pen &pen = pens::given);
  // From beyond a to beyond b, by so many pixels.
  void long_line(Point a, Point b, double beyond, const Pen &pen = pens::thin);
  void arrow(Point a, Point b, const Pen &pen = pens::given);
  void path(const std::vector<Point> &points, const Pen &pen = pens::given);
  // Closed rings under the even-odd rule, so that one within another is a hole.
  void area(const std::vector<Outline> &rings, const char *fill = colours::steel,
            const Pen &pen = pens::outline);
  void circle(Point centre, double radius, const Pen &pen = pens::given,
              const char *fill = colours::none);
  // Counter-clockwise where `to` is greater than `from`, in radians.
  void arc(Point centre, double radius, double from, double to, const Pen &pen = pens::given);
  // Likewise, with an arrow head at its end; the radius is in pixels.
  void turn(Point centre, double radius, double from, double to, const Pen &pen = pens::result);
  // A circular segment filled between the arc and its chord.
  void segment(Point centre, double radius, double from, double to, const char *fill);
  void dot(Point p, const char *colour = colours::ink);
  void right_angle(Point corner, Point along, Point across);
  // The axes of x and y from `origin`, so many pixels long.
  void axes(Point origin, double length, const char *x = "x", const char *y = "y");

  // Those of space as they are seen, and a turn in it: from one vector from the centre to another.
  void axes_in_space(const Vector &origin, float length);
  void sweep(const Vector &centre, const Vector &from, const Vector &to, const Pen &pen);

  // Stands beside the point, on the side to which the offset goes.
  void label(Point p, const std::string &text, Offset offset, const char *colour = colours::ink,
             double size = 14);
  // A dot with its label.
  void point(Point p, const std::string &text, Offset offset, const char *colour = colours::ink,
             double size = 14);
  // The number of a vertex between its neighbours, outside of a ring that runs counter-clockwise.
  void number(Point before, Point vertex, Point after, int number);

  using Letter = host::Letter;
  // A dimension line along x, so many pixels above `a` (below where negative), with its letter; and
  // one along y, so many to the right of `a`.
  void across(Point a, Point b, double above, const std::string &letter,
              Letter place = Letter::between) {
    dimension(false, a, b, above, letter, place);
  }
  void upright(Point a, Point b, double right, const std::string &letter,
               Letter place = Letter::between) {
    dimension(true, a, b, right, letter, place);
  }
  void dimension(bool is_upright, Point a, Point b, double aside, const std::string &letter,
                 Letter place);
  // One along a line that has any direction, so many pixels to its left.
  void along(Point a, Point b, double left, const std::string &letter);

 private:
  void stroke(Offset a, Offset b, const Pen &pen);
  void head(Offset tip, Offset direction, const char *colour);
  void tick(Offset c);
  void disc(Offset c, const std::string &radius, const std::string &attributes);
  [[nodiscard]] std::string commands(const std::vector<Point> &points) const;
  [[nodiscard]] std::string arc_path(Offset centre, double radius, double from, double to) const;

  Sheet *sheet_;
  double scale_;
  Offset middle_of_paper_, middle_of_world_;
};

}  // namespace figures
