// What is told of a profile besides its geometry.
#pragma once

#include <array>
#include <string_view>
#include <utility>

namespace host {

constexpr std::size_t most_dimensions = 14;

enum class Least { positive, zero };
constexpr Least may_be_zero = Least::zero;

struct Dimension {
  constexpr Dimension() = default;
  constexpr Dimension(std::string_view its_letter, float start_value, float drawn_value,
                      Least its_least = Least::positive)
      : letter(its_letter), start(start_value), drawn(drawn_value), least(its_least) {}
  constexpr Dimension(std::string_view its_letter, float start_value,
                      Least its_least = Least::positive)
      : Dimension(its_letter, start_value, start_value, its_least) {}

  std::string_view letter;
  float start = 0;  // of the profile as the designer shows it first
  float drawn = 0;  // in the manual's figure, whose walls have room for the numbers of vertices
  Least least = Least::positive;
};

// In the order of the library's routine.
class Dimensions {
 public:
  constexpr Dimensions(std::initializer_list<Dimension> dimensions) {
    for (const Dimension &dimension : dimensions) dimensions_[size_++] = dimension;
  }

  [[nodiscard]] constexpr std::size_t size() const { return size_; }
  constexpr const Dimension &operator[](std::size_t i) const { return dimensions_[i]; }
  [[nodiscard]] const Dimension *begin() const { return dimensions_.data(); }
  [[nodiscard]] const Dimension *end() const { return begin() + size_; }

 private:
  std::array<Dimension, most_dimensions> dimensions_{};
  std::size_t size_ = 0;
};

// A constructor, since it must be given all of it.
struct Description {
  constexpr Description(std::string_view its_name, std::string_view its_description,
                        std::string_view its_routine, const Dimensions &its_dimensions,
                        std::string_view its_letters)
      : name(its_name),
        description(its_description),
        routine(its_routine),
        dimensions(its_dimensions),
        letters(its_letters) {}

  std::string_view name;
  std::string_view description;
  std::string_view routine;  // gives the outline
  Dimensions dimensions;
  std::string_view letters;  // a picture with the dimensions
};

// Instead of a routine: the profile adds its parts itself.
constexpr std::string_view by_its_parts;

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
