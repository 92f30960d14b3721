// A section as this program holds it: parts to add up, and the properties of their sum.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace host {

// A list in place, for the short lists of a section: no memory is asked for.
template <class T, std::size_t capacity>
class List {
 public:
  List() = default;
  constexpr List(std::initializer_list<T> items) : items_{} {
    for (const T &item : items) items_[size_++] = item;
  }
  void push_back(const T &item) { items_[size_++] = item; }
  [[nodiscard]] constexpr std::size_t size() const { return size_; }
  [[nodiscard]] bool empty() const { return size_ == 0; }
  T &operator[](std::size_t i) { return items_[i]; }
  constexpr const T &operator[](std::size_t i) const { return items_[i]; }
  T &back() { return items_[size_ - 1]; }
  T *begin() { return items_.data(); }
  T *end() { return items_.data() + size_; }
  [[nodiscard]] const T *begin() const { return items_.data(); }
  [[nodiscard]] const T *end() const { return items_.data() + size_; }

 private:
  std::array<T, capacity> items_;  // unwritten beyond the size, but for a list of given items
  std::size_t size_ = 0;
};

// The kinds of part in use, as trelvin/properties.h numbers them.
constexpr std::int32_t polygon = 2;
constexpr std::int32_t smaller_segment = 4;

constexpr std::size_t most_vertices = 20;  // of all polygons of an outline

struct Part {
  std::int32_t kind;
  float factor;
  std::int32_t n;
  std::array<float, most_vertices + 1> x;  // the library writes behind a polygon's last vertex
  std::array<float, most_vertices + 1> y;
  double own_product = 0;  // of a segment about its centroid, which the library leaves out
  // Whether its mirror images count as well, at the y axis and at the x axis; with both it is four.
  bool left_right = false;
  bool top_bottom = false;
};

struct Section {
  List<Part, 4> parts;
  std::size_t polygons = 0;  // how many of the parts, the first ones, are polygons of the outline
  float fillet = 0;          // radius in their re-entrant corners, which the other parts add
};

struct SecondMoments {
  double x;
  double y;
  double xy;
};

// In mm and radians, with the names of trelvin/properties.h.
struct Properties {
  double area;
  double xs, ys;  // centroid
  double sx, sy;  // about the origin
  SecondMoments origin;
  SecondMoments centroidal;
  double i1, i2, alpha;  // axis 1 is turned by alpha from x
  double rx, ry;         // radii of gyration
};

// The section's properties, in double precision as sums of the library's results for each part.
// The library closes the polygons of the section.
Properties properties_of(Section &section);

// Whether all results are in the range of single precision.
bool are_representable(const Properties &p);

}  // namespace host
