#include "given.h"

#include <algorithm>
#include <vector>

#include "numbers.h"

namespace host {
namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool is_same_name(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lower(x) == lower(y); });
}

// Characters to put in, take out or exchange (Levenshtein).
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t exchanged = diagonal + (lower(a[i - 1]) == lower(b[j - 1]) ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({exchanged, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[b.size()];
}

bool has_word(std::string_view text, std::string_view word) {
  for (std::size_t at = text.find(word); at != std::string_view::npos;
       at = text.find(word, at + 1)) {
    const bool starts = at == 0 || text[at - 1] == ' ' || text[at - 1] == '-';
    const std::size_t end = at + word.size();
    if (starts && (end == text.size() || text[end] == ' ' || text[end] == ',')) return true;
  }
  return false;
}

std::string refusal_of_dimension(std::string_view name, std::string_view word, const char *fault) {
  return std::string(name) + " = " + std::string(word) + fault;
}

// The error in a dimension, or nothing if it was read.
std::string read_dimension(const Dimension &dimension, std::string_view word, float &value) {
  const NumberFault fault = read_number(word, value);
  if (fault == NumberFault::beyond_single) {
    return refusal_of_dimension(dimension.letter, word,
                                " is outside the range of single precision");
  }
  const bool is_allowed = value > 0 || (value == 0 && dimension.least == Least::zero);
  if (fault == NumberFault::none && is_allowed) return "";
  return refusal_of_dimension(dimension.letter, '\'' + std::string(word) + '\'',
                              " is not a positive number of mm");
}

// ", did you mean 'rhs'?" if a name is near or a description has the word, else nothing.
std::string near_matches(std::string_view word) {
  std::vector<std::string_view> names;
  const std::size_t reach = word.size() < 6 ? 1 : 2;
  std::string lowered(word);
  std::transform(word.begin(), word.end(), lowered.begin(), lower);
  for (const Profile &profile : profiles()) {
    const bool is_near = word.size() > 1 && distance(word, profile.name) <= reach;
    if (is_near || (word.size() > 2 && has_word(profile.description, lowered))) {
      names.push_back(profile.name);
    }
  }
  for (const std::string_view name : {"plates", "batch"}) {
    if (word.size() > 1 && word != name && distance(word, name) <= reach) names.push_back(name);
  }
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const char *const before = i == 0 ? ", did you mean " : i + 1 < names.size() ? ", " : " or ";
    text.append(before).append("'").append(names[i]).append("'");
  }
  return text.empty() ? text : text + '?';
}

// "B = 100, H = 200, T = 8 mm"
std::string dimensions_text(const Given &given) {
  std::string text;
  const Dimensions &dimensions = given.profile->dimensions;
  for (std::size_t i = 0; i < dimensions.size(); ++i) {
    text.append(i > 0 ? ", " : "").append(dimensions[i].letter).append(" = ");
    text += shortest(given.dimensions[i]);
  }
  return text + " mm";
}

// Without those of no length.
Measures measures_of(const Given &given, const Outline &outline) {
  Measures all = given.profile->measures(given.dimensions.data(), bounding_box(outline));
  const auto has_no_length = [](const Measure &measure) { return measure.value == 0; };
  all.erase(std::remove_if(all.begin(), all.end(), has_no_length), all.end());
  return all;
}

}  // namespace

std::string usage_of(const Profile &profile) {
  std::string text(profile.name);
  for (const Dimension &each : profile.dimensions) text.append(" ").append(each.letter);
  return text;
}

const Profile *find_profile(std::string_view name) {
  for (const Profile &profile : profiles()) {
    if (is_same_name(profile.name, name)) return &profile;
  }
  return nullptr;
}

Refusal read_given(const std::string_view *words, std::size_t count, Given &given) {
  if (count == 0) return {"no profile given", Refusal::Help::of_all};
  given.profile = find_profile(words[0]);
  if (given.profile == nullptr) {
    const std::string near = near_matches(words[0]);
    return {"unknown profile '" + std::string(words[0]) + '\'' + near,
            near.empty() ? Refusal::Help::of_all : Refusal::Help::none};
  }
  const Profile &profile = *given.profile;
  const std::size_t needed = profile.dimensions.size();
  if (count - 1 != needed) {
    return {std::string(profile.name) + " takes " + std::to_string(needed) + " dimensions, not " +
                std::to_string(count - 1),
            Refusal::Help::of_profile};
  }
  for (std::size_t i = 0; i < needed; ++i) {
    std::string fault = read_dimension(profile.dimensions[i], words[i + 1], given.dimensions[i]);
    if (!fault.empty()) return {std::move(fault)};
  }
  const char *const fault = profile.fault(given.dimensions.data());
  if (fault != nullptr) return {std::string(profile.name) + ": " + fault};
  return {};
}

Refusal properties_of(const Given &given, Section &section, Properties &properties) {
  section = given.profile->section(given.dimensions.data());
  properties = properties_of(section);
  if (are_representable(properties)) return {};
  return {"the section is too large or too small for single precision"};
}

Figures figures_of(const Given &given, const Properties &properties, const Outline &outline) {
  Figures figures = figures_of(properties, outline);
  figures.torsion = given.profile->torsion(given.dimensions.data());
  const double polar = properties.centroidal.x + properties.centroidal.y;
  if (figures.torsion.it > polar) {  // impossible for a real section
    figures.torsion = {{}, {}, {}, "No torsion: the walls are too thick for thin-walled theory."};
  }
  return figures;
}

Refusal read_subject(const std::string_view *words, std::size_t count, Given &given,
                     Section &section, Subject &subject) {
  Refusal refusal = read_given(words, count, given);
  if (!refusal.message.empty()) return refusal;
  Properties properties;
  refusal = properties_of(given, section, properties);
  if (!refusal.message.empty()) return refusal;
  Outline outline = outline_of(section);
  subject = {std::string(given.profile->name),
             std::string(given.profile->description),
             dimensions_text(given),
             figures_of(given, properties, outline),
             outline,
             measures_of(given, outline)};
  return {};
}

}  // namespace host
