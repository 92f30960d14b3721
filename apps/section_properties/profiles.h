// The profiles this program knows, and how each becomes a section.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

#include "figures.h"
#include "measures.h"

namespace host {

constexpr std::size_t most_dimensions = 14;
constexpr std::size_t number_of_profiles = 14;

class Names {
 public:
  constexpr Names(std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) names_[size_++] = name;
  }

  [[nodiscard]] constexpr std::size_t size() const { return size_; }
  constexpr std::string_view operator[](std::size_t i) const { return names_[i]; }
  [[nodiscard]] const std::string_view *begin() const { return names_.data(); }
  [[nodiscard]] const std::string_view *end() const { return names_.data() + size_; }

 private:
  std::array<std::string_view, most_dimensions> names_{};
  std::size_t size_ = 0;
};

struct Profile {
  std::string_view name;
  std::string_view description;
  Names dimensions;  // in the order of the library's routine
  // Why the dimensions cannot form a section, or nullptr when they can; none for any will do.
  const char *(*fault)(const float *dimensions);
  Section (*section)(const float *dimensions);
  Torsion (*torsion)(const float *dimensions);
  void (*measure)(const float *dimensions, Measuring &measuring);
  std::string_view letters;  // a picture with the dimensions
  Names may_be_zero = {};
};

const std::array<Profile, number_of_profiles> &profiles();

// "rhs B H T"
std::string usage_of(const Profile &profile);

// A profile with its dimensions.
struct Given {
  const Profile *profile = nullptr;
  std::array<float, most_dimensions> dimensions;  // as many as the profile has
};

// What is wrong with what was given, and which help would do. No message: nothing is wrong.
struct Refusal {
  enum class Help { none, of_profile, of_all };
  std::string message;
  Help help = Help::none;
};

// The profile of that name in any case, or nullptr.
const Profile *find_profile(std::string_view name);

// ", did you mean 'rhs'?" where a name is near or a description has the word, else nothing.
std::string near_matches(std::string_view word);

// Reads a profile and its dimensions, words in that order.
Refusal read_given(const std::string_view *words, std::size_t count, Given &given);

// "B = 100, H = 200, T = 8 mm"
std::string dimensions_text(const Given &given);

// Their properties, or why they have none.
Refusal properties_of(const Given &given, Section &section, Properties &properties);

Measures measures_of(const Given &given, const Outline &outline);

Figures figures_of(const Given &given, const Properties &properties, const Outline &outline);

}  // namespace host
