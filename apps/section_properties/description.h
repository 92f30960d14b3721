// The description of a profile, without its geometry.
#pragma once

#include <string_view>
#include <utility>

#include "model.h"

namespace host {

constexpr std::size_t most_dimensions = 14;

enum class Least { positive, zero };
constexpr Least may_be_zero = Least::zero;

struct Dimension {
  std::string_view letter;
  float start;  // of the profile as the designer shows it first
  Least least = Least::positive;
};

using Dimensions = List<Dimension, most_dimensions>;

struct Description {
  std::string_view name;
  std::string_view description;
  std::string_view routine;  // gives the outline
  Dimensions dimensions;     // in the order of the routine
  List<float, most_dimensions>
      drawn;  // in the manual's figure, whose walls have room for the vertices' numbers
  std::string_view letters;  // a picture with the dimensions
};

// Instead of a routine: the profile adds its parts itself.
constexpr std::string_view by_its_parts;
constexpr decltype(Description::drawn) no_figure{std::initializer_list<float>{}};

// A list of profiles.
template <class... P>
struct Kinds {};

template <class P, class Value, std::size_t... i>
constexpr P made_of(Value value, std::index_sequence<i...> /*positions*/) {
  return {value(i)...};
}

// The profile P whose dimensions are value(0), value(1) ...
template <class P, class Value>
constexpr P made_of(Value value) {
  constexpr std::size_t n = P::about.dimensions.size();
  static_assert(sizeof(P) == n * sizeof(float), "P describes as many dimensions as it has");
  return made_of<P>(value, std::make_index_sequence<n>());
}

}  // namespace host
