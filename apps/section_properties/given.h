// Profiles by their names, and what was given for one.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "picture.h"
#include "profiles.h"

namespace host {

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

// Reads a profile and its dimensions, words in that order.
Refusal read_given(const std::string_view *words, std::size_t count, Given &given);

// Their properties, or why they have none.
Refusal properties_of(const Given &given, Section &section, Properties &properties);

Figures figures_of(const Given &given, const Properties &properties, const Outline &outline);

// All of that, from words.
Refusal read_subject(const std::string_view *words, std::size_t count, Given &given,
                     Section &section, Subject &subject);

}  // namespace host
