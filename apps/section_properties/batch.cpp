#include "batch.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

#include "given.h"

namespace host {
namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// Character by character: searching for sets of characters takes longer than all the rest.
std::string_view trimmed(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

// A profile, its dimensions, and one more to see that there are too many.
using Words = List<std::string_view, most_dimensions + 2>;

// The separator of the words: a mark after the profile's name and any blanks, else blanks.
char separator_of(std::string_view line) {
  std::size_t i = 0;
  const auto is_mark = [&] { return line[i] == ',' || line[i] == ';'; };
  while (i < line.size() && !is_blank(line[i]) && !is_mark()) ++i;
  while (i < line.size() && is_blank(line[i])) ++i;
  return i < line.size() && is_mark() ? line[i] : ' ';
}

// Blanks count as one however many they are.
Words words_of(std::string_view line) {
  const char separator = separator_of(line);
  const auto is_end = [&](char c) { return separator == ' ' ? is_blank(c) : c == separator; };
  Words words;
  while (words.size() < most_dimensions + 2) {
    std::size_t end = 0;
    while (end < line.size() && !is_end(line[end])) ++end;
    words.push_back(trimmed(line.substr(0, end)));
    if (end == line.size()) break;
    line.remove_prefix(end + 1);
    if (separator == ' ') line = trimmed(line);
  }
  return words;
}

// A line of CSV in the making.
class Line {
 public:
  explicit Line(std::string &csv) : csv_(csv) {}

  void number(std::size_t value) { end_ = std::to_chars(end_, limit(), value).ptr; }

  // The fewest digits that identify the number in single precision.
  void figure(double value) {
    *end_++ = ',';
    const float zero_has_no_sign = static_cast<float>(value) + 0.0F;
    end_ = std::to_chars(end_, limit(), zero_has_no_sign).ptr;
  }

  void nothing(std::size_t columns) {
    std::memset(end_, ',', columns);
    end_ += columns;
  }

  // In quotation marks if the text needs them.
  void text(std::string_view text) {
    flush();
    csv_ += ',';
    const auto is_special = [](char c) { return c == ',' || c == ';' || c == '"' || c == '\r'; };
    if (std::none_of(text.begin(), text.end(), is_special)) {
      csv_ += text;
      return;
    }
    csv_ += '"';
    for (const char c : text) {
      if (c == '"') csv_.push_back(c);
      csv_.push_back(c);
    }
    csv_ += '"';
  }

  void finish() {
    *end_++ = '\n';
    flush();
  }

 private:
  char *limit() { return buffer_.data() + buffer_.size(); }
  void flush() {
    csv_.append(buffer_.data(), end_);
    end_ = buffer_.data();
  }

  std::string &csv_;
  std::array<char, 1024> buffer_;  // 40 figures of at most 16 characters
  char *end_ = buffer_.data();
};

void add_further_figures(Line &line, const Given &given, const Section &section,
                         const Properties &properties) {
  for (const auto &value : further_values_of(figures_of(given, properties, outline_of(section)))) {
    if (value) {
      line.figure(*value);
    } else {
      line.nothing(1);
    }
  }
}

std::size_t columns_of(Extent extent) {
  return names_of_properties.size() + (extent == Extent::all ? names_of_further_figures.size() : 0);
}

// Whether the line was a section.
bool add_section(std::string_view text, std::size_t number, Extent extent, std::string &csv) {
  const Words words = words_of(text);
  Given given;
  Section section;
  Properties properties;
  Refusal refusal = read_given(words.begin(), words.size(), given);
  if (refusal.message.empty()) refusal = properties_of(given, section, properties);

  Line line(csv);
  line.number(number);
  line.text(text);
  if (refusal.message.empty()) {
    for (const double value : values_of(properties)) line.figure(value);
    if (extent == Extent::all) add_further_figures(line, given, section, properties);
    line.nothing(1);
  } else {
    line.nothing(columns_of(extent));
    line.text(refusal.message);
  }
  line.finish();
  return refusal.message.empty();
}

}  // namespace

std::string batch_header(Extent extent) {
  std::string header = "line,section";
  for (std::size_t i = 0; i < names_of_properties.size(); ++i) {
    const bool is_of_centroid = i >= first_of_centroid && i < first_of_axes;
    header.append(is_of_centroid ? ",centroidal_" : ",").append(names_of_properties[i]);
  }
  if (extent == Extent::all) {
    for (const std::string_view name : names_of_further_figures) header.append(",").append(name);
  }
  return header + ",error\n";
}

Tally add_batch(std::string_view text, std::size_t first_line, Extent extent, std::string &csv) {
  Tally tally;
  for (std::size_t number = first_line; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const std::string_view section = trimmed(line.substr(0, line.find('#')));
    if (section.empty()) continue;
    ++tally.sections;
    if (!add_section(section, number, extent, csv)) ++tally.refused;
  }
  return tally;
}

}  // namespace host
