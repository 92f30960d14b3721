// What the page calls: the words of a section go in, texts come out. All texts end in a zero.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "given.h"
#include "numbers.h"
#include "report.h"

namespace {

using namespace host;

// As engine.js numbers them. The first one is empty when the words form a section; the others
// are those of the last section.
enum Text {
  refusal,
  dimensions,
  figures,
  figures_as_json,
  drawing,
  remarks,
  parts,
  number_of_texts
};

std::array<std::string, number_of_texts> texts;

constexpr std::size_t longest_input = 4096;
std::array<char, longest_input> input;

std::string row_text(const Row &row) {
  return row.heading + '\t' + row.symbol + '\t' + row.value + '\t' + row.unit + '\t' +
         row.other_value + '\t' + row.other_unit + '\n';
}

std::string rows_text(const Figures &f) {
  std::string text;
  for (const Row &row : main_rows(f)) text += row_text(row);
  for (const Row &row : further_rows(f)) text += row_text(row);
  return text;
}

// One of a part's images: kind, factor, x and y. Mirrored once, a polygon lists its vertices
// backwards to stay counter-clockwise.
std::string part_text(const Part &part, float x_sign, float y_sign) {
  std::string x;
  std::string y;
  const bool is_turned = x_sign != y_sign;
  const auto n = static_cast<std::size_t>(part.n);
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t at = is_turned && part.kind == polygon ? n - 1 - i : i;
    const char *const before = i == 0 ? "" : " ";
    x.append(before).append(shortest(x_sign * part.x[at]));
    y.append(before).append(shortest(y_sign * part.y[at]));
  }
  return std::to_string(part.kind) + '\t' + shortest(part.factor) + '\t' + x + '\t' + y + '\n';
}

std::string parts_text(const Section &section) {
  std::string text;
  for (const Part &part : section.parts) {
    for (const float x_sign : {1.0F, -1.0F}) {
      for (const float y_sign : {1.0F, -1.0F}) {
        const bool is_image = (x_sign < 0 && !part.left_right) || (y_sign < 0 && !part.top_bottom);
        if (!is_image) text += part_text(part, x_sign, y_sign);
      }
    }
  }
  return text;
}

Refusal design(const std::string_view *words, std::size_t count) {
  Given given;
  Section section;
  Subject subject;
  Refusal fault = read_subject(words, count, given, section, subject);
  if (!fault.message.empty()) return fault;
  texts[dimensions].clear();
  for (std::size_t i = 0; i < given.profile->dimensions.size(); ++i) {
    texts[dimensions].append(i == 0 ? "" : " ").append(shortest(given.dimensions[i]));
  }
  texts[figures] = rows_text(subject.figures);
  texts[figures_as_json] = json(subject.figures);
  texts[drawing] = picture(subject);
  texts[remarks] = notes(subject.figures);
  texts[parts] = parts_text(section);
  return {};
}

}  // namespace

extern "C" {

// Where the page writes the profile and its dimensions, a zero behind each.
char *designer_input() { return input.data(); }
std::size_t designer_input_size() { return input.size(); }

void designer_design(std::size_t length) {
  std::array<std::string_view, most_dimensions + 2> words;
  std::size_t count = 0;
  std::string_view rest(input.data(), std::min(length, input.size()));
  while (!rest.empty() && count < words.size()) {
    const std::size_t end = std::min(rest.find('\0'), rest.size());
    words[count++] = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  texts[refusal] = design(words.data(), count).message;
}

const char *designer_text(std::size_t which) { return texts[which].c_str(); }

// A line a profile: name, description and routine, and then of each dimension the letter, the start
// value and 0 if it may be that.
const char *designer_profiles() {
  static std::string text;
  text.clear();
  for (const Profile &profile : profiles()) {
    text.append(profile.name).append("\t").append(profile.description).append("\t");
    text.append(profile.routine);
    for (const Dimension &d : profile.dimensions) {
      text.append("\t").append(d.letter).append(" ").append(shortest(d.start));
      if (d.least == Least::zero) text.append(" 0");
    }
    text += '\n';
  }
  return text.c_str();
}

}  // extern "C"
