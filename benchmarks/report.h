// The table for people, the figures for programs, and the verdict on the goals.
#pragma once

#include <iosfwd>
#include <vector>

#include "measure.h"

namespace bench {

struct Results {
  const std::vector<Task> &tasks;
  std::vector<Row> own;  // measured here
  std::vector<Row> dll;  // read from a run of the Windows program
};

struct Tally {
  int met = 0;
  int missed = 0;
  int open = 0;   // not measured: a contender, a size or the other platform is not there
  int wrong = 0;  // rows in which answers differ
};

// With goals, each is judged behind the row it belongs to.
Tally print_table(std::ostream &out, const Results &results, bool with_goals);

// task,size,contender,ns_per_call,ns_per_item,ratio,predicted
void write_csv(std::ostream &out, const std::vector<Row> &rows);

// The rows that write_csv wrote.
std::vector<Row> read_csv(std::istream &in);

// task,size,goal,limit,value,verdict
void write_goals_csv(std::ostream &out, const Results &results);

// Nanoseconds of an item.
double per_item(const Row &row, const Figure &figure);

}  // namespace bench
