#include "report.h"

#include <algorithm>
#include <cmath>
#include <istream>
#include <optional>
#include <ostream>
#include <sstream>

#include "numbers.h"

namespace bench {
namespace {

// Figures as text --------------------------------------------------------------------------------

// Three digits at least, and no exponent.
std::string short_number(double value) {
  const double size = std::fabs(value);
  return host::fixed(value, size < 10 ? 2 : size < 100 ? 1 : 0);
}

std::string duration(double ns) {
  if (ns < 1e3) return short_number(ns) + " ns";
  if (ns < 1e6) return short_number(ns / 1e3) + " us";
  if (ns < 1e9) return short_number(ns / 1e6) + " ms";
  return short_number(ns / 1e9) + " s";
}

std::string padded(const std::string &text, std::size_t width, bool left = false) {
  const std::string space(width > text.size() ? width - text.size() : 0, ' ');
  return left ? text + space : space + text;
}

// Goals ------------------------------------------------------------------------------------------

const Row *find_row(const std::vector<Row> &rows, const std::string &task, int size) {
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [&](const Row &r) { return r.task == task && r.size == size; });
  return row == rows.end() ? nullptr : &*row;
}

const Figure *best_peer(const Row &row, const std::string &prefix) {
  const Figure *best = nullptr;
  for (std::size_t k = 1; k < row.figures.size(); ++k) {
    const Figure &figure = row.figures[k];
    if (figure.contender.rfind(prefix, 0) != 0) continue;
    if (best == nullptr || figure.seconds < best->seconds) best = &figure;
  }
  return best;
}

struct Judged {
  const Goal *goal;
  std::string text;
  std::optional<double> value;
  bool predicted = false;
  [[nodiscard]] const char *verdict() const {
    if (!value) return "not measured";
    return *value <= goal->limit ? "met" : "MISSED";
  }
};

std::string text_of(const Goal &goal) {
  const std::string peer = goal.peer.empty() ? "the best peer" : goal.peer;
  const std::string where = goal.dll ? " in the DLL" : "";
  switch (goal.kind) {
    case Goal::Kind::per_item:
      return "<= " + duration(goal.limit) + " an item" + where;
    case Goal::Kind::per_call:
      return "<= " + duration(goal.limit) + where;
    case Goal::Kind::ratio:
      return "<= " + short_number(goal.limit) + " of " + peer + where;
    case Goal::Kind::excess:
      return "<= " + duration(goal.limit) + " over " + peer + where;
    case Goal::Kind::growth:
      return "exponent <= " + short_number(goal.limit) + " from " + std::to_string(goal.from) +
             where;
  }
  return {};
}

std::optional<double> value_of(const Goal &goal, const std::vector<Row> &rows,
                               const std::string &task) {
  const Row *row = find_row(rows, task, goal.size);
  if (row == nullptr) return {};
  const Figure &own = row->figures[0];
  switch (goal.kind) {
    case Goal::Kind::per_item:
      return per_item(*row, own);
    case Goal::Kind::per_call:
      return own.seconds * 1e9;
    case Goal::Kind::growth: {
      const Row *from = find_row(rows, task, goal.from);
      if (from == nullptr) return {};
      return std::log(own.seconds / from->figures[0].seconds) /
             std::log(static_cast<double>(goal.size) / goal.from);
    }
    case Goal::Kind::ratio:
    case Goal::Kind::excess:
      break;
  }
  const Figure *peer = best_peer(*row, goal.peer);
  if (peer == nullptr) return {};
  if (goal.kind == Goal::Kind::ratio) return peer->ratio;
  return per_item(*row, own) - per_item(*row, *peer);
}

std::string value_text(const Judged &judged) {
  if (!judged.value) return "-";
  const bool is_time =
      judged.goal->kind != Goal::Kind::ratio && judged.goal->kind != Goal::Kind::growth;
  return (judged.predicted ? "~" : "") +
         (is_time ? duration(*judged.value) : short_number(*judged.value));
}

// The goals of a task at a size.
std::vector<Judged> judge(const Results &results, const Task &task, int size) {
  std::vector<Judged> all;
  for (const Goal &goal : task.goals) {
    if (goal.size != size) continue;
    const auto &rows = goal.dll == measures_dll ? results.own : results.dll;
    const Row *row = find_row(rows, task.name, size);
    all.push_back({&goal, text_of(goal), value_of(goal, rows, task.name),
                   row != nullptr && row->figures[0].predicted});
  }
  return all;
}

// Table ------------------------------------------------------------------------------------------

constexpr std::size_t name_width = 33;
constexpr std::size_t size_width = 9;
constexpr std::size_t column_width = 16;
constexpr std::size_t goal_width = 32;
constexpr std::size_t value_width = 10;

// One family: its tasks share their columns.
struct Block {
  std::vector<const Task *> tasks;
  std::vector<std::string> columns;  // contenders
};

std::vector<Block> blocks_of(const Results &results) {
  std::vector<Block> blocks;
  for (const Task &task : results.tasks) {
    const auto is_measured = [&](const Row &row) { return row.task == task.name; };
    if (std::none_of(results.own.begin(), results.own.end(), is_measured)) continue;
    if (blocks.empty() || blocks.back().tasks[0]->family != task.family) blocks.push_back({});
    Block &block = blocks.back();
    block.tasks.push_back(&task);
    for (const Row &row : results.own) {
      if (!is_measured(row)) continue;
      for (const Figure &figure : row.figures) {
        const auto at = std::find(block.columns.begin(), block.columns.end(), figure.contender);
        if (at == block.columns.end()) block.columns.push_back(figure.contender);
      }
    }
  }
  return blocks;
}

std::string cell(const Row *row, const std::string &contender) {
  if (row == nullptr) return "";
  for (const Figure &figure : row->figures) {
    if (figure.contender != contender) continue;
    return (figure.predicted ? "~" : "") + short_number(per_item(*row, figure));
  }
  return "";
}

std::string heading(const Block &block, bool with_dll, bool with_goals) {
  std::string line = padded(block.tasks[0]->family + ": ns an item", name_width, true) +
                     padded("size", size_width) + padded("Trelvin", column_width);
  if (with_dll) line += padded("DLL", column_width);
  for (std::size_t k = 1; k < block.columns.size(); ++k) {
    line += padded(block.columns[k], column_width);
  }
  line += padded("ratio", 8);
  if (with_goals) line += "   " + padded("goal", goal_width, true) + padded("value", value_width);
  return line + '\n' + std::string(line.size() + (with_goals ? 14 : 0), '-') + '\n';
}

std::string figures_of(const Block &block, const Row &row, const Results &results) {
  std::string line = padded(row.task, name_width, true) +
                     padded(std::to_string(row.size), size_width) +
                     padded(cell(&row, "Trelvin"), column_width);
  if (!results.dll.empty()) {
    line += padded(cell(find_row(results.dll, row.task, row.size), "Trelvin"), column_width);
  }
  for (std::size_t k = 1; k < block.columns.size(); ++k) {
    line += padded(cell(&row, block.columns[k]), column_width);
  }
  const Figure *peer = best_peer(row, "");
  return line + padded(peer == nullptr ? "" : short_number(peer->ratio), 8);
}

void count(const Judged &judged, Tally &tally) {
  if (!judged.value)
    ++tally.open;
  else if (*judged.value <= judged.goal->limit)
    ++tally.met;
  else
    ++tally.missed;
}

void print_row(std::ostream &out, const Block &block, const Task &task, const Row &row,
               const Results &results, bool with_goals, Tally &tally) {
  std::string line = figures_of(block, row, results);
  const std::string indent(line.size(), ' ');
  if (with_goals) {
    for (const Judged &judged : judge(results, task, row.size)) {
      out << line << "   " << padded(judged.text, goal_width, true)
          << padded(value_text(judged), value_width) << "  " << judged.verdict() << '\n';
      line = indent;
      count(judged, tally);
    }
  }
  if (line != indent) out << line << '\n';
  if (!row.fault.empty()) {
    ++tally.wrong;
    out << "    WRONG ANSWER: " << row.fault << '\n';
  }
}

}  // namespace

double per_item(const Row &row, const Figure &figure) { return figure.seconds * 1e9 / row.size; }

Tally print_table(std::ostream &out, const Results &results, bool with_goals) {
  Tally tally;
  for (const Block &block : blocks_of(results)) {
    out << heading(block, !results.dll.empty(), with_goals);
    for (const Task *task : block.tasks) {
      for (const Row &row : results.own) {
        if (row.task == task->name) print_row(out, block, *task, row, results, with_goals, tally);
      }
    }
    out << '\n';
  }
  out << "ratio: Trelvin's time over that of the fastest peer. ~: predicted from smaller sizes, "
         "not run.\n";
  return tally;
}

void write_csv(std::ostream &out, const std::vector<Row> &rows) {
  out << "task,size,contender,ns_per_call,ns_per_item,ratio,predicted\n";
  for (const Row &row : rows) {
    for (const Figure &figure : row.figures) {
      out << row.task << ',' << row.size << ',' << figure.contender << ','
          << host::significant(figure.seconds * 1e9, 6) << ','
          << host::significant(per_item(row, figure), 6) << ','
          << host::significant(figure.ratio, 4) << ',' << (figure.predicted ? 1 : 0) << '\n';
    }
  }
}

std::vector<Row> read_csv(std::istream &in) {
  std::vector<Row> rows;
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line)) {
    std::istringstream fields(line);
    std::string task, size, contender, call, item, ratio, predicted;
    for (std::string *field : {&task, &size, &contender, &call, &item, &ratio, &predicted}) {
      std::getline(fields, *field, ',');
    }
    if (rows.empty() || rows.back().task != task || rows.back().size != std::stoi(size)) {
      rows.push_back({task, std::stoi(size), {}, {}});
    }
    rows.back().figures.push_back(
        {contender, std::stod(call) * 1e-9, std::stod(ratio), predicted[0] == '1'});
  }
  return rows;
}

void write_goals_csv(std::ostream &out, const Results &results) {
  out << "task,size,goal,limit,value,verdict\n";
  for (const Task &task : results.tasks) {
    for (const int size : task.sizes) {
      if (find_row(results.own, task.name, size) == nullptr) continue;
      for (const Judged &judged : judge(results, task, size)) {
        out << task.name << ',' << size << ',' << judged.text << ','
            << host::significant(judged.goal->limit, 6) << ','
            << (judged.value ? host::significant(*judged.value, 6) : "") << ',' << judged.verdict()
            << '\n';
      }
    }
  }
}

}  // namespace bench
