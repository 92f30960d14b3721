// Trelvin beside what one would use instead of it, on the same data.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "measure.h"
#include "plot.h"
#include "report.h"

namespace fs = std::filesystem;

namespace bench {

bool has_avx2() {
#if defined(__x86_64__) || defined(__i386__)
  return static_cast<bool>(__builtin_cpu_supports("avx2"));
#else
  return false;
#endif
}

namespace {

constexpr const char *usage =
    "usage: benchmark [OPTION...] FOLDER\n"
    "Writes results.txt, results.csv, goals.csv and results.svg into the folder.\n"
    "  --gate              fail where a goal is missed\n"
    "  --moment            compare answers at small sizes only, in a second or two; no goals\n"
    "  --only TEXT         tasks whose name contains the text\n"
    "  --merge FILE        add the figures of results.csv of the Windows program\n"
    "  --patience SECONDS  predict runs that would take longer (15)\n";

struct Request {
  fs::path folder;
  bool gate = false;
  bool moment = false;
  std::string only;
  std::string merge;
  Pace pace = careful;
};

Request read_command_line(const std::vector<std::string> &words) {
  Request request;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string &word = words[i];
    const auto value = [&] {
      if (i + 1 == words.size()) throw std::invalid_argument(word + " needs a value");
      return words[++i];
    };
    if (word == "--gate") {
      request.gate = true;
    } else if (word == "--moment") {
      request.moment = true;
      request.pace = momentary;
    } else if (word == "--only") {
      request.only = value();
    } else if (word == "--merge") {
      request.merge = value();
    } else if (word == "--patience") {
      request.pace.patience = std::stod(value());
    } else if (word[0] == '-' || !request.folder.empty()) {
      throw std::invalid_argument("not understood: " + word);
    } else {
      request.folder = word;
    }
  }
  if (request.folder.empty()) throw std::invalid_argument("no folder given");
  return request;
}

std::vector<Task> all_tasks() {
  Peers peers;  // of the libraries found
  for (const auto add : std::vector<void (*)(Peers &)>{BENCH_PEERS}) add(peers);
  std::vector<Task> tasks;
  add_lists(tasks, peers);
  add_matching(tasks, peers);
  add_polygons(tasks, peers);
  add_transforms(tasks, peers);
  add_sections(tasks);
  add_scalars(tasks, peers);
  return tasks;
}

std::vector<Row> measure_all(const std::vector<Task> &tasks, const Request &request) {
  std::vector<Row> rows;
  for (const Task &task : tasks) {
    if (task.name.find(request.only) == std::string::npos) continue;
    std::cerr << "  " << task.name << '\n';
    const std::vector<Row> of_task = measure(task, request.pace);
    rows.insert(rows.end(), of_task.begin(), of_task.end());
  }
  return rows;
}

void write(const fs::path &file, const std::string &content) {
  std::ofstream out(file, std::ios::binary);
  out << content;
  if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

template <class Writer, class... Arguments>
std::string text_by(Writer writer, const Arguments &...arguments) {
  std::ostringstream out;
  writer(out, arguments...);
  return out.str();
}

int run(const Request &request) {
  fs::create_directories(request.folder);
  const std::vector<Task> tasks = all_tasks();
  Results results{tasks, measure_all(tasks, request), {}};
  if (!request.merge.empty()) {
    std::ifstream in(request.merge);
    if (!in) throw std::runtime_error("cannot read " + request.merge);
    results.dll = read_csv(in);
  }

  std::ostringstream table;
  table << "library: " << (measures_dll ? "Trelvin.dll" : "native") << "; processor "
        << (has_avx2() ? "with" : "without") << " AVX2\n\n";
  const Tally tally = print_table(table, results, !request.moment);
  if (request.moment) {
    table << "A moment's figures say nothing about speed; no goal was judged.\n";
  } else {
    table << "goals: " << tally.met << " met, " << tally.missed << " missed, " << tally.open
          << " not measured\n";
  }
  table << "answers: " << results.own.size() << " rows compared, " << tally.wrong << " wrong\n";
  std::cout << table.str();

  write(request.folder / "results.txt", table.str());
  write(request.folder / "results.csv", text_by(write_csv, results.own));
  write(request.folder / "goals.csv", text_by(write_goals_csv, results));
  write(request.folder / "results.svg", plot(results.own, results.dll));
  if (tally.wrong > 0) return 1;
  return request.gate && tally.missed > 0 ? 1 : 0;
}

}  // namespace
}  // namespace bench

int main(int argc, char **argv) {
  try {
    return bench::run(bench::read_command_line({argv + 1, argv + argc}));
  } catch (const std::invalid_argument &wrong) {
    std::cerr << "benchmark: " << wrong.what() << '\n' << bench::usage;
    return 2;
  } catch (const std::exception &wrong) {
    std::cerr << "benchmark: " << wrong.what() << '\n';
    return 2;
  }
}
