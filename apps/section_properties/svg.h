// The few elements of SVG that a drawing needs.
#pragma once

#include <string>

#include "numbers.h"

namespace host {

inline std::string px(double value) { return fixed(value, 2); }

inline std::string attribute(const std::string &name, const std::string &value) {
  return ' ' + name + "=\"" + value + '"';
}

inline std::string line(double x1, double y1, double x2, double y2,
                        const std::string &attributes = "") {
  return "<line" + attribute("x1", px(x1)) + attribute("y1", px(y1)) + attribute("x2", px(x2)) +
         attribute("y2", px(y2)) + attributes + "/>\n";
}

// Centred on x unless the attributes say otherwise.
inline std::string text(double x, double y, const std::string &content,
                        const std::string &attributes = "") {
  return "<text" + attribute("x", px(x)) + attribute("y", px(y)) + attributes + '>' + content +
         "</text>\n";
}

inline std::string group(const std::string &attributes, const std::string &content) {
  return "<g" + attributes + ">\n" + content + "</g>\n";
}

}  // namespace host
