// A contender for one piece of work, and how to make one.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace bench {

struct Contender {
  std::string name;
  bool fresh;                     // every run needs its input restored, as sorting does
  std::function<void()> prepare;  // restores the input; not timed
  std::function<void(long)> run;  // so many times in a row; timed
  std::function<std::vector<double>()> answer;  // what the last run computed
};

// What most jobs need not say. A job has run() and answer(), and hides prepare() and fresh if it
// changes its input.
struct Job {
  static constexpr bool fresh = false;
  void prepare() {}
};

// Memory may be read and changed here, for all the compiler knows: it can neither merge the runs of
// a loop nor drop one whose result the next one overwrites.
inline void barrier() { asm volatile("" ::: "memory"); }

// The loop over the runs is compiled with the job, so a job of a few nanoseconds is timed without
// an indirect call of ours.
template <class Work>
Contender contender(std::string name, Work work) {
  auto job = std::make_shared<Work>(std::move(work));
  return {std::move(name), Work::fresh, [job] { job->prepare(); },
          [job](long times) {
            for (long i = 0; i < times; ++i) {
              job->run();
              barrier();
            }
          },
          [job] { return job->answer(); }};
}

inline std::vector<double> widened(const float *values, std::size_t n) {
  return {values, values + n};
}

}  // namespace bench
