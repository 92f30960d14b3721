// A contender for one piece of work, and how to make one.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// What the runs do to their input: nothing; something that does not matter from one run to the next;
// or something that every run needs undone, as sorting does. It is restored before each timing.
enum class Input { kept, restored, fresh };

struct Contender {
  std::string name;
  bool fresh;                                   // every run needs its input restored
  std::function<void()> prepare;                // restores the input; not timed
  std::function<void(long)> run;                // so many times in a row; timed
  std::function<std::vector<double>()> answer;  // what the last run computed
};

// Memory may be read and changed here, for all the compiler knows: it can neither merge the runs of
// a loop nor drop one whose result the next one overwrites.
inline void barrier() { asm volatile("" ::: "memory"); }

// A job has run() and answer(). The loop over the runs is compiled with it, so a job of a few
// nanoseconds is timed without an indirect call of ours.
template <Input input = Input::kept, class Job>
Contender contender(std::string name, Job work) {
  auto job = std::make_shared<Job>(std::move(work));
  std::function<void()> prepare = [] {};
  if constexpr (input != Input::kept) {
    prepare = [job, start = *job] { *job = start; };
  }
  return {std::move(name), input == Input::fresh, std::move(prepare),
          [job](long times) {
            for (long i = 0; i < times; ++i) {
              job->run();
              barrier();
            }
          },
          [job] { return job->answer(); }};
}

// What a function computes from data, as a list of numbers.
template <class Data, class Function>
struct Evaluation {
  void run() { result = function(data); }
  [[nodiscard]] std::vector<double> answer() const { return {result.begin(), result.end()}; }
  Data data;
  Function function;
  std::decay_t<std::invoke_result_t<Function, Data &>> result = {};
};

template <class Data, class Function>
Contender evaluated(std::string name, Data data, Function function) {
  return contender(std::move(name),
                   Evaluation<Data, Function>{std::move(data), std::move(function)});
}

// A way to do the work on data that it changes.
template <class Data>
struct Way {
  std::string name;
  std::function<void(Data &)> work;
};

// Each way on data of its own; answer(data) is what the way found.
template <Input input, class Data, class Answer>
std::vector<Contender> contenders(const Data &data, const std::vector<Way<Data>> &ways,
                                  Answer answer) {
  struct Job {
    void run() { way.work(data); }
    [[nodiscard]] std::vector<double> answer() const { return answer_of(data); }
    Data data;
    Way<Data> way;
    Answer answer_of;
  };
  std::vector<Contender> all;
  all.reserve(ways.size());
  for (const Way<Data> &way : ways) {
    all.push_back(contender<input>(way.name, Job{data, way, answer}));
  }
  return all;
}

}  // namespace bench
