#include "command_line.h"

#include <trelvin/calling.h>

#include <charconv>

#include "numbers.h"

namespace host {
namespace {

constexpr std::size_t most_jobs = 256;

bool is_option(const std::string &word) {
  const auto is_letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  return word.size() >= 2 && word[0] == '-' && (word[1] == '-' || is_letter(word[1]));
}

bool read_jobs(const std::string &word, std::size_t &jobs) {
  const char *const end = word.data() + word.size();
  const auto [rest, error] = std::from_chars(word.data(), end, jobs);
  return error == std::errc() && rest == end && jobs >= 1 && jobs <= most_jobs;
}

bool *flag(Request &request, const std::string &word) {
  if (word == "--json") return &request.json;
  if (word == "--all") return &request.all;
  if (word == "--help" || word == "-h") return &request.help;
  if (word == "--version") return &request.version;
  return nullptr;
}

}  // namespace

Refusal read_command_line(const std::vector<std::string> &words, Request &request) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string &word = words[i];
    const bool has_value =
        i + 1 < words.size() && !words[i + 1].empty() && !is_option(words[i + 1]);
    if (bool *const asked = flag(request, word)) {
      *asked = true;
    } else if (word == "--svg") {
      if (!has_value) return {"--svg needs the name of a file"};
      request.svg = words[++i];
    } else if (word == "--jobs") {
      if (!has_value || !read_jobs(words[++i], request.jobs)) {
        return {"--jobs needs a number from 1 to " + std::to_string(most_jobs)};
      }
    } else if (is_option(word)) {
      return {"unknown option '" + word + "'", Refusal::Help::of_all};
    } else {
      request.words.push_back(word);
    }
  }
  return {};
}

std::string usage() {
  std::string text =
      "usage: section_properties PROFILE DIMENSION... [--json] [--svg FILE]\n"
      "       section_properties batch FILE [--all] [--jobs N]\n"
      "\n"
      "Prints area, centroid, moments, section moduli and torsion of a section. Dimensions are in "
      "mm, "
      "with\n"
      "a decimal point or a decimal comma.\n"
      "\n"
      "  --json           print the results as JSON, in mm and radians\n"
      "  --svg FILE       draw the section into FILE\n"
      "  PROFILE --help   print the profile's dimensions, an example and a text drawing\n"
      "  -h, --help       print this text\n"
      "  --version        print the version\n"
      "\n"
      "batch reads FILE, or standard input if FILE is -, with one profile and its dimensions per\n"
      "line, and prints the results as CSV. An invalid line has its error in the last column.\n"
      "\n"
      "  --all            also print the section moduli and the torsion properties\n"
      "  --jobs N         work with N threads\n"
      "\n"
      "Exit status: 0 done; 1 output could not be written; 2 invalid input (in a batch: at least "
      "one\n"
      "invalid line).\n"
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
  text += "  plates FILE                 thin plates, one per line: x1 y1 x2 y2 t\n";
  return text;
}

std::string usage_of(const std::string &name) {
  const Profile *const profile = find_profile(name);
  if (profile == nullptr) return usage();
  std::string text = "usage: section_properties " + usage_of(*profile) + '\n';
  text.append("example: section_properties ").append(profile->name);
  for (const Dimension &dimension : profile->dimensions) text += ' ' + shortest(dimension.start);
  text += "\n\n";
  text.append(profile->description).append(", dimensions in mm\n").append(profile->letters);
  std::string zeros;
  for (const Dimension &dimension : profile->dimensions) {
    if (dimension.least == Least::positive) continue;
    zeros.append(zeros.empty() ? "\nMay be 0: " : ", ").append(dimension.letter);
  }
  return text + (zeros.empty() ? "" : zeros + ".\n");
}

std::string version() {
  return "section_properties " TRELVIN_VERSION "\n";  // the library's, as the two are one release
}

}  // namespace host
