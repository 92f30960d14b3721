// Reals as decimal text, whatever the locale.
#pragma once

#include <cstddef>
#include <string_view>

#include "numeric/real.h"

namespace trelvin {

// At most 16 characters.
class DecimalText {
 public:
  [[nodiscard]] std::string_view view() const { return {characters_, length_}; }

  void add(char character) { characters_[length_++] = character; }

 private:
  char characters_[16] = {};
  std::size_t length_ = 0;
};

// A finite Real with 9 significant digits, which give the same bits back: -1.23456789e+01. Rounded
// from the exact value, ties to even.
DecimalText scientific(Real value);

}  // namespace trelvin
