// The hash of what calls leave in their arguments.
#pragma once

#include <cstdint>

#include "hosts/random_calls.h"

class Hash {
 public:
  void add(std::uint32_t word) { value_ = (value_ ^ word) * 0x100000001B3U; }
  void add(const random_calls::Arguments &arguments) {
    for (const random_calls::Argument &argument : arguments) {
      argument.visit_bits([&](std::uint32_t bits) { add(bits); });
    }
  }
  [[nodiscard]] std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325U;
};
