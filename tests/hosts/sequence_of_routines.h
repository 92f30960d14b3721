// The calls that the digest hashes and the census counts: every routine, with its own seed.
#pragma once

#include <cstdint>
#include <string_view>

#include "hosts/random_calls.h"
#include "trelvin/trelvin.h"

constexpr int calls_per_routine = 2500;

struct RoutineCalls {
  const char *name;
  const char *arguments;  // their names, separated by blanks
  std::uint64_t seed;
  int count;
  random_calls::Shape shape;
};

inline random_calls::Shape shape_of(std::string_view arguments) {
  using random_calls::Shape;
  const auto holds = [&](std::string_view names) {
    return arguments.find(names) != std::string_view::npos;
  };
  if (arguments.substr(0, 17) == "xc yc xa ya xb yb") return Shape::arc;
  if (arguments.substr(0, 15) == "n X1 Y1 X2 Y2 T") return Shape::plates;
  return holds(" IA IB") || holds(" IAB JAB") ? Shape::pairs : Shape::free;
}

template <class Visit>
void for_each_routine(Visit visit) {
  std::uint64_t seed = 20;
#define ROUTINE(name, count, arguments) \
  visit(RoutineCalls{#name, arguments, ++seed, calls_per_routine, shape_of(arguments)}, name);
#include "routines.inc"
#undef ROUTINE
}
