// The calls that the digest hashes and the census counts: every routine, with its own seed.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "hosts/random_calls.h"
#include "trelvin/trelvin.h"

constexpr int calls_per_routine = 2500;

inline random_calls::Shape shape_of(const std::string &names) {
  using random_calls::Shape;
  const auto starts = [&](const std::string &start) { return names.rfind(start, 0) == 0; };
  const auto holds = [&](const std::string &part) { return names.find(part) != std::string::npos; };
  if (starts("xc yc xa ya xb yb")) return Shape::arc;
  if (starts("n X1 Y1 X2 Y2 T")) return Shape::plates;
  if (starts("bl w t r1 r2 s1 s2")) return Shape::plate_stresses;
  if (starts("a1 b1 c1 d1 a2 b2 c2 d2 px")) return Shape::whole;  // it would retain a NaN for good
  return holds(" IA IB") || holds(" IAB JAB") ? Shape::pairs : Shape::free;
}

inline std::vector<random_calls::Routine> all_routines() {
  std::vector<random_calls::Routine> routines;
  const auto add = [&](random_calls::Routine routine, const std::string &names) {
    std::istringstream words(names);
    for (std::string word; words >> word;) routine.names.push_back(word);
    routine.shape = shape_of(names);
    routine.seed = 20 + routines.size();
    routines.push_back(std::move(routine));
  };
#define ROUTINE(name, count, names) add(random_calls::routine_of(#name, name), names);
#include "routines.inc"
#undef ROUTINE
  return routines;
}
