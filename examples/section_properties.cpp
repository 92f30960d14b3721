// Properties of a steel section: a host of Trelvin for the command line.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "section_figures.h"
#include "section_model.h"
#include "section_picture.h"
#include "section_plates.h"
#include "section_profiles.h"
#include "section_report.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

using namespace host;
namespace fs = std::filesystem;

constexpr int bad_input = 2;
constexpr int bad_output = 1;

// What is wrong in one line, and what helps further.
struct BadInput : std::runtime_error {
  explicit BadInput(const std::string &message, std::string help_text = "")
      : std::runtime_error(message), help(std::move(help_text)) {}
  std::string help;
};

std::string usage_of(const Profile &profile) {
  std::string text(profile.name);
  for (const std::string_view dimension : profile.dimensions) text += ' ' + std::string(dimension);
  return text;
}

std::string usage() {
  std::string text =
      "usage: section_properties PROFILE DIMENSION... [--json] [--svg FILE]\n"
      "\n"
      "Prints area, centroid, moments and principal axes of a section. Dimensions are in mm.\n"
      "\n"
      "  --json      print the figures as JSON, in mm and radians\n"
      "  --svg FILE  draw the section into FILE\n"
      "  --help      print this text\n"
      "\n"
      "Profiles and their dimensions:\n";
  for (const Profile &profile : profiles()) {
    std::string call = usage_of(profile);
    if (call.size() >= 28) {
      text += "  " + call + '\n';
      call.clear();
    }
    call.resize(28, ' ');
    text += "  " + call + std::string(profile.description) + '\n';
  }
  text += "  plates FILE                 thin plates, a line each: x1 y1 x2 y2 t\n";
  return text;
}

// Command line -----------------------------------------------------------------------------------

struct Request {
  std::vector<std::string> words;  // profile and dimensions
  std::string svg;                 // empty for none
  bool json = false;
  bool help = false;
};

bool is_option(const std::string &word) {
  const auto is_letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  return word.size() >= 2 && word[0] == '-' && (word[1] == '-' || is_letter(word[1]));
}

Request read_command_line(const std::vector<std::string> &words) {
  Request request;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string &word = words[i];
    if (word == "--json") {
      request.json = true;
    } else if (word == "--help") {
      request.help = true;
    } else if (word == "--svg") {
      if (++i == words.size() || words[i].empty() || is_option(words[i])) {
        throw BadInput("--svg needs the name of a file");
      }
      request.svg = words[i];
    } else if (is_option(word)) {
      throw BadInput("unknown option '" + word + "'", usage());
    } else {
      request.words.push_back(word);
    }
  }
  return request;
}

const Profile &find_profile(const std::vector<std::string> &words) {
  if (words.empty()) throw BadInput("no profile given", usage());
  for (const Profile &profile : profiles()) {
    if (profile.name == words[0]) return profile;
  }
  throw BadInput("unknown profile '" + words[0] + "'", usage());
}

float read_dimension(const std::string &word, std::string_view name, bool may_be_zero) {
  float value = 0;
  const char *const end = word.data() + word.size();
  const auto [rest, error] = std::from_chars(word.data(), end, value);
  if (error == std::errc::result_out_of_range) {
    throw BadInput(std::string(name) + " = " + word + " is beyond single precision");
  }
  if (error != std::errc() || rest != end || !std::isfinite(value) || value < 0 ||
      (value == 0 && !may_be_zero)) {
    throw BadInput(std::string(name) + " = '" + word + "' is not a positive number of mm");
  }
  return value;
}

std::vector<float> read_dimensions(const Profile &profile, const std::vector<std::string> &words) {
  const std::size_t given = words.size() - 1;
  const std::size_t needed = profile.dimensions.size();
  if (given != needed) {
    throw BadInput(std::string(profile.name) + " takes " + std::to_string(needed) +
                       " dimensions, not " + std::to_string(given),
                   "usage: section_properties " + usage_of(profile) + "\n");
  }
  std::vector<float> values;
  for (std::size_t i = 0; i < needed; ++i) {
    const auto &zero = profile.may_be_zero;
    const bool may_be_zero =
        std::find(zero.begin(), zero.end(), profile.dimensions[i]) != zero.end();
    values.push_back(read_dimension(words[i + 1], profile.dimensions[i], may_be_zero));
  }
  if (const char *const fault = profile.fault(values.data())) {
    throw BadInput(std::string(profile.name) + ": " + fault);
  }
  return values;
}

// Results ----------------------------------------------------------------------------------------

std::string dimensions_text(const Profile &profile, const std::vector<float> &values) {
  std::string text;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0) text += ", ";
    text += std::string(profile.dimensions[i]) + " = " + shortest(values[i]);
  }
  return text + " mm";
}

// Under another name first, so that a failure leaves neither half a file nor a lost one.
bool write_file(const std::string &name, const std::string &content) {
  try {
    const fs::path file = fs::u8path(name);
    if (fs::exists(file) && !fs::is_regular_file(file)) return false;
    const fs::path unfinished = fs::path(file) += ".part";
    std::ofstream stream(unfinished, std::ios::binary);
    if (!stream) return false;
    stream << content;
    stream.close();
    std::error_code error;
    if (stream) fs::rename(unfinished, file, error);
    if (stream && !error) return true;
    fs::remove(unfinished, error);
  } catch (const fs::filesystem_error &) {  // a name the system cannot take
  }
  return false;
}

int print(const std::string &text) {
#ifdef _WIN32
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  std::cout << text << std::flush;
  if (std::cout) return 0;
  std::cerr << "section_properties: cannot write to standard output\n";
  return bad_output;
}

// A section to report on, and how to head the report.
struct Task {
  std::string name;
  std::string description;
  std::string dimensions;
  Section section;
  Properties properties;
};

Task profile_task(const std::vector<std::string> &words) {
  const Profile &profile = find_profile(words);
  const std::vector<float> values = read_dimensions(profile, words);
  Section section = profile.section(values.data());
  const Properties properties = properties_of(section);
  return {std::string(profile.name), std::string(profile.description),
          dimensions_text(profile, values), std::move(section), properties};
}

Task plates_task(const std::vector<std::string> &words) {
  if (words.size() != 2) {
    throw BadInput("plates takes a file", "usage: section_properties plates FILE\n");
  }
  try {
    const std::vector<Plate> plates = read_plates(words[1]);
    return {"plates", "section of thin plates", std::to_string(plates.size()) + " plates",
            section_of(plates), properties_of(plates)};
  } catch (const BadPlates &wrong) {
    throw BadInput(wrong.what());
  }
}

int run(const std::vector<std::string> &arguments) {
  const Request request = read_command_line(arguments);
  if (request.help) return print(usage());

  const Task task = !request.words.empty() && request.words[0] == "plates"
                        ? plates_task(request.words)
                        : profile_task(request.words);
  if (!are_representable(task.properties)) {
    throw BadInput("the section is too large or too small for single precision");
  }
  if (!request.svg.empty() &&
      !write_file(request.svg, picture(task.name + ": " + task.description, task.dimensions,
                                       task.section, task.properties))) {
    throw BadInput("cannot write '" + request.svg + "'");
  }
  return print(request.json ? json(task.properties)
                            : table(task.name + "  " + task.dimensions, task.properties));
}

template <class Character>
int run_program(int argc, Character **argv) {
  try {
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) arguments.push_back(fs::path(argv[i]).u8string());
    return run(arguments);
  } catch (const BadInput &wrong) {
    std::cerr << "section_properties: " << wrong.what() << '\n' << wrong.help;
    return bad_input;
  }
}

}  // namespace

#ifdef _WIN32
extern "C" int wmain(int argc, wchar_t **argv) {  // narrow arguments cannot hold every file name
  return run_program(argc, argv);
}
#else
int main(int argc, char **argv) { return run_program(argc, argv); }
#endif
