// The elements of SVG that pictures, figures and plots need, and the colours that they share.
#pragma once

#include <string>

#include "numbers.h"

namespace svg {

namespace colours {
constexpr const char *paper = "#fbfcfe";
constexpr const char *ink = "#1d2733";
constexpr const char *steel = "#c9d5e3";
constexpr const char *pale = "#e6ecf3";
constexpr const char *grey = "#66727f";  // dark enough for text
constexpr const char *light_grey = "#7a8794";
constexpr const char *red = "#c0262d";
constexpr const char *blue = "#2f6690";
constexpr const char *green = "#1c7c54";
constexpr const char *violet = "#7b3fa0";
constexpr const char *none = "none";
}  // namespace colours

inline std::string px(double value) { return host::fixed(value, 2); }

inline std::string point(double x, double y) { return px(x) + ' ' + px(y); }

inline std::string attribute(const std::string &name, const std::string &value) {
  return ' ' + name + "=\"" + value + '"';
}

inline std::string attribute(const std::string &name, double value) {
  return attribute(name, px(value));
}

// Several of them: name, value, name, value ...
template <class Value, class... More>
std::string attribute(const std::string &name, const Value &value, const std::string &next,
                      const More &...more) {
  return attribute(name, value) + attribute(next, more...);
}

inline std::string line(double x1, double y1, double x2, double y2,
                        const std::string &attributes = "") {
  return "<line" + attribute("x1", x1, "y1", y1, "x2", x2, "y2", y2) + attributes + "/>\n";
}

inline std::string circle(double x, double y, const std::string &radius,
                          const std::string &attributes) {
  return "<circle" + attribute("cx", x, "cy", y, "r", radius) + attributes + "/>\n";
}

inline std::string path(const std::string &commands, const std::string &attributes) {
  return "<path" + attribute("d", commands) + attributes + "/>\n";
}

// Centred on x unless the attributes say otherwise.
inline std::string text(double x, double y, const std::string &content,
                        const std::string &attributes = "") {
  return "<text" + attribute("x", x, "y", y) + attributes + '>' + content + "</text>\n";
}

inline std::string group(const std::string &attributes, const std::string &content) {
  return "<g" + attributes + ">\n" + content + "</g>\n";
}

inline std::string moved(double x, double y) { return "translate(" + point(x, y) + ')'; }

// The whole picture.
inline std::string sheet(double width, double height, const std::string &attributes,
                         const std::string &content) {
  return "<svg" +
         attribute("xmlns", "http://www.w3.org/2000/svg", "width", width, "height", height,
                   "viewBox", "0 0 " + point(width, height)) +
         attributes + ">\n" + content + "</svg>\n";
}

}  // namespace svg
