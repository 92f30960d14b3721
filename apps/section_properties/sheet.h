// Where things lie on the sheet of a drawing, in pixels; y runs downwards.
#pragma once

#include <algorithm>
#include <array>

#include "outline.h"

namespace host {

// Dimension lines stand side by side in lanes, behind the axes and their labels.
constexpr double first_lane = 88;
constexpr double lane_pitch = 27;

using Lanes = std::array<std::size_t, 4>;  // by Side

// The largest extent of what is shown gets a fixed length; the sheet is as large as lanes and
// legend ask.
class Sheet {
 public:
  static constexpr double margin = 30;
  static constexpr double header = 76;
  static constexpr double smallest_width = 840;

  static double scale(const Box &shown) {
    constexpr double largest_extent = 400;
    return largest_extent / std::max(shown.right - shown.left, shown.top - shown.bottom);
  }

  Sheet(const Box &shown, const Lanes &lanes, double legend_height)
      : pixels_(scale(shown)),
        middle_x_(0.5 * (shown.left + shown.right)),
        middle_y_(0.5 * (shown.bottom + shown.top)),
        half_width_(half_extent(shown.right - shown.left)),
        half_height_(half_extent(shown.top - shown.bottom)) {
    const double left = half_width_ + space_for(lanes, Side::left);
    const double right = half_width_ + space_for(lanes, Side::right);
    const double above = half_height_ + space_for(lanes, Side::above);
    const double below = half_height_ + space_for(lanes, Side::below);
    width_ = std::max(smallest_width, 2 * margin + left + right + legend_width);
    height_ = header + std::max(above + below, legend_height + margin) + margin;
    legend_left_ = width_ - margin - legend_width;
    centre_x_ = 0.5 * (margin + left + legend_left_ - right);
    centre_y_ = 0.5 * (header + above + height_ - margin - below);
  }

  [[nodiscard]] double x(double mm) const { return centre_x_ + pixels_ * (mm - middle_x_); }
  [[nodiscard]] double y(double mm) const { return centre_y_ - pixels_ * (mm - middle_y_); }
  [[nodiscard]] double length(double mm) const { return pixels_ * mm; }

  // Edges of the part that is shown.
  [[nodiscard]] double left() const { return centre_x_ - half_width_; }
  [[nodiscard]] double right() const { return centre_x_ + half_width_; }
  [[nodiscard]] double top() const { return centre_y_ - half_height_; }
  [[nodiscard]] double bottom() const { return centre_y_ + half_height_; }

  [[nodiscard]] double width() const { return width_; }
  [[nodiscard]] double height() const { return height_; }
  [[nodiscard]] double legend_left() const { return legend_left_; }

 private:
  static constexpr double legend_width = 176;

  // Labels of short dimensions reach beyond what is shown, but not to the lanes at the corner.
  [[nodiscard]] double half_extent(double mm) const { return 0.5 * std::max(pixels_ * mm, 60.0); }

  static double space_for(const Lanes &lanes, Side side) {
    constexpr double without_lane = 70;
    const std::size_t count = lanes[static_cast<std::size_t>(side)];
    return count == 0 ? without_lane
                      : first_lane + lane_pitch * static_cast<double>(count - 1) + 22;
  }

  double pixels_;
  double middle_x_, middle_y_;
  double half_width_, half_height_;
  double width_ = 0, height_ = 0;
  double legend_left_ = 0;
  double centre_x_ = 0, centre_y_ = 0;
};

}  // namespace host
