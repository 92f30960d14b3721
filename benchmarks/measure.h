// Compares the answers of contenders and times them.
#pragma once

#include <string>
#include <vector>

#include "task.h"

namespace bench {

struct Pace {
  double batch;     // seconds a timing lasts at least; as many runs as that takes
  double budget;    // seconds for one row of the table
  int repetitions;  // of all contenders in turn, at most
  double patience;  // seconds; a run that is expected to take longer is predicted instead
  int largest;      // size
};

constexpr Pace careful{1e-3, 2.0, 31, 15, 1000000};
constexpr Pace momentary{2e-5, 0.05, 3, 1, 1000};  // enough to compare the answers

struct Figure {
  std::string contender;
  double seconds = 0;  // of a call: the median of the repetitions
  double ratio = 0;  // Trelvin's time over this one's: the median of the ratios in each repetition
  bool predicted = false;
};

struct Row {
  std::string task;
  int size = 0;
  std::vector<Figure> figures;  // Trelvin first
  std::string fault;            // whose answer is wrong, if any
};

// One row for each size.
std::vector<Row> measure(const Task &task, const Pace &pace);

}  // namespace bench
