// The profiles this program knows, and how each becomes a section.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "figures.h"

namespace host {

constexpr std::size_t most_dimensions = 14;

struct Profile {
  std::string_view name;
  std::string_view description;
  std::vector<std::string_view> dimensions;  // in the order of the library's routine
  // Why the dimensions cannot form a section, or nullptr when they can; none for any will do.
  const char *(*fault)(const float *dimensions);
  Section (*section)(const float *dimensions);
  Torsion (*torsion)(const float *dimensions);
  std::string_view letters;  // a picture with the dimensions
  std::vector<std::string_view> may_be_zero = {};
};

const std::vector<Profile> &profiles();

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

// Their properties, or why they have none.
Refusal properties_of(const Given &given, Section &section, Properties &properties);

Figures figures_of(const Given &given, const Properties &properties, const Outline &outline);

}  // namespace host
