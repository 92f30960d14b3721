// Properties of steel sections, from the command line.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "batch_files.h"
#include "command_line.h"
#include "given.h"
#include "lines.h"
#include "output_file.h"
#include "picture.h"
#include "report.h"
#include "thin_plates.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

using namespace host;
namespace fs = std::filesystem;

constexpr int bad_output = 1;
constexpr int bad_input = 2;

int failure(int status, const std::string &message, const std::string &help = "") {
  const std::string text = "section_properties: " + message + '\n' + help;
  std::fwrite(text.data(), 1, text.size(), stderr);
  return status;
}

int refuse(const Refusal &refusal, const std::string &name = "") {
  switch (refusal.help) {
    case Refusal::Help::of_all:
      return failure(bad_input, refusal.message, usage());
    case Refusal::Help::of_profile:
      return failure(bad_input, refusal.message,
                     "usage: section_properties " + usage_of(*find_profile(name)) + '\n');
    case Refusal::Help::none:
      break;
  }
  return failure(bad_input, refusal.message);
}

// Streams and files ------------------------------------------------------------------------------

void keep_bytes(std::FILE *file) {
#ifdef _WIN32
  _setmode(_fileno(file), _O_BINARY);
#else
  static_cast<void>(file);
#endif
}

bool is_terminal(std::FILE *file) {
#ifdef _WIN32
  return _isatty(_fileno(file)) != 0;
#else
  return isatty(fileno(file)) != 0;
#endif
}

std::FILE *open_to_read(const std::string &name) {
#ifdef _WIN32
  return _wfopen(fs::u8path(name).c_str(), L"rb");
#else
  return std::fopen(name.c_str(), "rb");
#endif
}

int cannot_print() { return failure(bad_output, "cannot write to standard output"); }

int print(const std::string &text) {
  keep_bytes(stdout);
  const bool is_written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && is_written ? 0 : cannot_print();
}

// Returns what is wrong, or nothing.
std::string read_plates(std::FILE *file, const std::string &name, std::vector<Plate> &plates) {
  Lines lines(file, 2 * longest_line);
  std::size_t line = 1;
  std::string fault;
  while (fault.empty()) {
    const std::string_view block = lines.next();
    if (block.empty()) break;
    fault = read_plates(name, block, line, plates);
  }
  if (std::ferror(file) != 0) return "cannot read '" + name + "'";
  if (lines.is_too_long() && fault.empty()) return too_long(name, line);
  return fault.empty() && plates.empty() ? name + ": no plates" : fault;
}

// Commands ---------------------------------------------------------------------------------------

int report(const Request &request, const Subject &subject) {
  if (!request.svg.empty() && !write_file(request.svg, picture(subject))) {
    return failure(bad_output, "cannot write '" + request.svg + "'");
  }
  return print(request.json ? json(subject.figures)
                            : table(subject.name + "  " + subject.dimensions, subject.figures));
}

int run_profile(const Request &request) {
  const std::vector<std::string_view> words(request.words.begin(), request.words.end());
  Given given;
  Section section;
  Subject subject;
  const Refusal refusal = read_subject(words.data(), words.size(), given, section, subject);
  if (!refusal.message.empty()) return refuse(refusal, words.empty() ? "" : request.words[0]);
  return report(request, subject);
}

int run_plates(const Request &request) {
  if (request.words.size() != 2) {
    return failure(bad_input, "plates takes a file", "usage: section_properties plates FILE\n");
  }
  const std::string &name = request.words[1];
  std::FILE *const file = open_to_read(name);
  if (file == nullptr) return failure(bad_input, "cannot read '" + name + "'");
  std::vector<Plate> plates;
  std::string fault = read_plates(file, name, plates);
  std::fclose(file);
  Figures figures{};
  if (fault.empty()) fault = figures_of(plates, figures);
  if (!fault.empty()) return failure(bad_input, fault);
  if (!are_representable(figures.properties)) {
    return failure(bad_input, "the section is too large or too small for single precision");
  }
  const Outline outline = outline_of(plates);
  return report(request,
                {"plates", "section of thin plates", std::to_string(plates.size()) + " plates",
                 figures, outline, overall_measures(bounding_box(outline))});
}

int run_batch_of(const Request &request) {
  if (request.words.size() != 2 || request.json || !request.svg.empty()) {
    return failure(bad_input, "batch takes a file, or - for standard input",
                   "usage: section_properties batch FILE [--all] [--jobs N]\n");
  }
  const std::string &name = request.words[1];
  BatchRun run;
  run.extent = request.all ? Extent::all : Extent::properties;
  run.jobs = request.jobs;
  run.has_progress = is_terminal(stderr) && !is_terminal(stdout);
  std::FILE *const file = name == "-" ? stdin : open_to_read(name);
  if (file == nullptr) return failure(bad_input, "cannot read '" + name + "'");
  std::error_code error;
  if (file != stdin) run.size = static_cast<std::size_t>(fs::file_size(fs::u8path(name), error));
  if (error) run.size = 0;
  keep_bytes(stdin);
  keep_bytes(stdout);
  const BatchResult result = run_batch(file, stdout, run);
  if (file != stdin) std::fclose(file);
  if (!result.is_written) return cannot_print();
  if (!result.is_read) return failure(bad_input, "cannot read '" + name + "'");
  if (result.too_long > 0) return failure(bad_input, too_long(name, result.too_long));
  if (result.tally.refused == 0) return 0;
  return failure(bad_input, std::to_string(result.tally.refused) + " of " +
                                std::to_string(result.tally.sections) +
                                " lines are invalid; see the error column");
}

int run(const std::vector<std::string> &arguments) {
  Request request;
  const Refusal refusal = read_command_line(arguments, request);
  if (!refusal.message.empty()) return refuse(refusal);
  const std::string name = request.words.empty() ? "" : request.words[0];
  if (request.version) return print(version());
  if (request.help) return print(usage_of(name));
  if (name == "batch") return run_batch_of(request);
  if (request.all || request.jobs > 1)
    return failure(bad_input, "--all and --jobs may only be used with batch");
  if (name == "plates") return run_plates(request);
  return run_profile(request);
}

// Called in any thread. Must not ask for memory itself.
void stop_without_memory() {
  std::fputs("section_properties: not enough memory\n", stderr);
  std::_Exit(bad_output);
}

template <class Character>
int run_program(int argc, Character **argv) {
  std::set_new_handler(stop_without_memory);
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) arguments.push_back(fs::path(argv[i]).u8string());
  return run(arguments);
}

}  // namespace

#ifdef _WIN32
extern "C" int wmain(int argc, wchar_t **argv) {  // narrow arguments cannot hold every file name
  return run_program(argc, argv);
}
#else
int main(int argc, char **argv) { return run_program(argc, argv); }
#endif
