#include "measure.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>

namespace bench {
namespace {

// Seconds that this thread has computed, where the system tells them finely: what else the machine
// does in between does not count.
double now() {
#if defined(CLOCK_THREAD_CPUTIME_ID) && !defined(_WIN32)
  timespec time;
  if (clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time) == 0) {
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
  }
#endif
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

struct Lane {
  const Contender *contender;
  double first;   // seconds of its first run, cold as it was
  long runs = 1;  // of a timing
  std::vector<double> samples = {};
};

double time_runs(const Contender &contender, long runs) {
  contender.prepare();
  const double start = now();
  contender.run(runs);
  return now() - start;
}

// As many runs as a timing of the wanted length takes; one where each needs its input restored.
long runs_for(const Contender &contender, double batch) {
  if (contender.fresh) return 1;
  long runs = 1;
  for (;;) {
    const double taken = time_runs(contender, runs);
    if (taken >= batch) return runs;
    const double wanted = taken > 0 ? 1.2 * batch / taken : 10.0;
    runs =
        std::max(runs + 1, static_cast<long>(static_cast<double>(runs) * std::min(wanted, 10.0)));
  }
}

// Repetitions in which all contenders take turns, so that what else goes on in the machine meets
// all of them; each begins with another one. One that took the whole budget in its first run is not
// run again.
void interleave(std::vector<Lane> &lanes, const Pace &pace) {
  double round = 0;
  std::vector<Lane *> again;
  for (Lane &lane : lanes) {
    if (lane.first >= pace.budget) {
      lane.samples = {lane.first};
      continue;
    }
    lane.runs = runs_for(*lane.contender, pace.batch);
    round += std::max(lane.first, pace.batch);
    again.push_back(&lane);
  }
  if (again.empty()) return;
  const int most = static_cast<int>(std::min(pace.budget / round, 1000.0));
  const int repetitions = std::clamp(most, 3, pace.repetitions);
  for (int r = 0; r < repetitions; ++r) {
    for (std::size_t k = 0; k < again.size(); ++k) {
      Lane &lane = *again[(k + static_cast<std::size_t>(r)) % again.size()];
      const double taken = time_runs(*lane.contender, lane.runs);
      lane.samples.push_back(taken / static_cast<double>(lane.runs));
    }
  }
}

double ratio(const std::vector<double> &of, const std::vector<double> &to) {
  if (of.size() != to.size()) return median(of) / median(to);
  std::vector<double> ratios;
  for (std::size_t r = 0; r < of.size(); ++r) ratios.push_back(of[r] / to[r]);
  return median(ratios);
}

bool agree(const std::vector<double> &answer, const std::vector<double> &reference,
           const Task &task) {
  return answer.size() == reference.size() &&
         std::equal(answer.begin(), answer.end(), reference.begin(), [&](double a, double b) {
           return std::fabs(a - b) <=
                  task.tolerance.relative * std::fabs(b) + task.tolerance.absolute;
         });
}

// Runs a contender once and compares what it found; the first one's answer is the reference where
// the truth is not known.
double first_run(const Contender &contender, const Task &task, std::vector<double> &reference,
                 std::string &fault) {
  const double taken = time_runs(contender, 1);
  std::vector<double> answer = contender.answer();
  if (reference.empty())
    reference = std::move(answer);
  else if (!agree(answer, reference, task))
    fault += (fault.empty() ? "" : ", ") + contender.name;
  return taken;
}

// The time at a size from those at the two sizes before, or as if quadratic from one.
double predict(const std::vector<Row> &rows, int size) {
  if (rows.empty()) return 0;
  const Row &last = rows.back();
  const double seconds = last.figures[0].seconds;
  double exponent = 2;
  if (rows.size() > 1) {
    const Row &before = rows[rows.size() - 2];
    exponent = std::log(seconds / before.figures[0].seconds) /
               std::log(static_cast<double>(last.size) / before.size);
  }
  return seconds * std::pow(static_cast<double>(size) / last.size, exponent);
}

Row measure_row(const Task &task, int size, double expected, const Pace &pace) {
  Row row;
  row.task = task.name;
  row.size = size;
  const bool predicted = expected > pace.patience;
  const std::vector<Contender> contenders = task.contenders(size);
  std::vector<double> reference;
  if (task.truth) reference = task.truth(size);
  std::vector<Lane> lanes;
  for (const Contender &contender : contenders) {
    if (predicted && &contender == contenders.data()) continue;
    lanes.push_back({&contender, first_run(contender, task, reference, row.fault)});
  }
  interleave(lanes, pace);

  const double per_call = 1.0 / task.calls;
  if (predicted) row.figures.push_back({contenders[0].name, expected, 1, true});
  for (const Lane &lane : lanes) {
    const double seconds = median(lane.samples) * per_call;
    const double of = predicted ? expected / seconds : ratio(lanes[0].samples, lane.samples);
    row.figures.push_back({lane.contender->name, seconds, of, false});
  }
  return row;
}

}  // namespace

std::vector<Row> measure(const Task &task, const Pace &pace) {
  std::vector<Row> rows;
  for (const int size : task.sizes) {
    if (size > pace.largest) break;
    rows.push_back(measure_row(task, size, predict(rows, size), pace));
  }
  return rows;
}

}  // namespace bench
