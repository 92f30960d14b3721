// Holds every routine to its contract: what it writes and when, what it reads, how long its arrays
// are, and whose retained values decide. Two instances of the library are called side by side.
//
//     contracts LIBRARY [ROUTINE]
#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "hosts/conditions.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using random_calls::Addresses;
using random_calls::Argument;
using random_calls::Arguments;
using random_calls::Kept;
using random_calls::Routine;
using random_calls::Size;
using random_calls::Used;

constexpr int further_calls = 10 * calls_per_routine;
constexpr std::uint64_t further_seed = 1000;
constexpr std::size_t begin = Argument::spare;

int faults = 0;

void tell(const Routine &routine, const std::string &what) {
  static std::set<std::string> told;
  if (!told.insert(routine.name + what).second) return;
  std::printf("FAILED  %s %s\n", routine.name, what.c_str());
  ++faults;
}

bool is(const Routine &routine, const char *name) { return routine.name == std::string(name); }

// Whether a contract names what an owner retains; a file is no value.
bool names(const Routine &routine, const std::string &owner) {
  const auto &owners = routine.retains;
  return owner != "trvcin" && std::find(owners.begin(), owners.end(), owner) != owners.end();
}

bool is_owner(const Routine &routine) { return names(routine, routine.name); }

// --- instances --------------------------------------------------------------------------------

// The library from a file of its own, so that it has retained values of its own.
class Instance {
 public:
  explicit Instance(std::filesystem::path file) : file_(std::move(file)) { load(); }
  ~Instance() { dlclose(library_); }
  Instance(const Instance &) = delete;
  Instance &operator=(const Instance &) = delete;

  void reload() {
    dlclose(library_);
    load();
  }

  void call(const Routine &routine, const Addresses &addresses) const {
    routine.call_at(reinterpret_cast<void (*)()>(dlsym(library_, routine.name)), addresses);
  }

  // The same routine, but of this instance, until it is loaded anew.
  [[nodiscard]] Routine own(const Routine &routine) const {
    Routine result = routine;
    result.address = reinterpret_cast<void (*)()>(dlsym(library_, routine.name));
    return result;
  }

 private:
  void load() {
    library_ = dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library_ != nullptr) return;
    std::printf("FAILED  %s\n", dlerror());
    std::exit(1);
  }

  std::filesystem::path file_;
  void *library_ = nullptr;
};

// --- contents of arguments --------------------------------------------------------------------

using Words = std::array<std::uint32_t, Argument::spare + Argument::room + Argument::spare>;

Words words_of(const Argument &argument, Argument::Kind kind) {
  Words words = {};
  const void *const from = kind == Argument::real ? static_cast<const void *>(argument.reals.data())
                                                  : argument.integers.data();
  std::memcpy(words.data(), from, sizeof words);
  return words;
}

Words words_of(const Argument &argument) { return words_of(argument, argument.kind); }

bool is_nan(std::uint32_t word) { return (word & 0x7FFFFFFFU) > 0x7F800000U; }

// One NaN is as good as another: which one an operation gives is the platform's business.
bool same(std::uint32_t a, std::uint32_t b, const Argument &argument) {
  return a == b || (argument.kind == Argument::real && is_nan(a) && is_nan(b));
}

bool is_updated(const Argument &argument) { return argument.read && argument.written; }

// What outputs hold before a call: pairs that differ in each element, in the ranges of inputs.
class Marks {
 public:
  Marks() {
    Routine source = {};
    source.seed = 7;
    source.arguments = {{Argument::real, false, true, true},
                        {Argument::integer, false, true, true}};
    random_calls::draw(source, 2 * pairs, [&](Arguments &drawn) {
      drawn[0].integers = drawn[1].integers;
      all_.push_back(drawn[0]);
    });
    for (std::size_t k = 0; k < all_.size(); k += 2) separate(all_[k], all_[k + 1]);
  }

  std::pair<const Argument &, const Argument &> next() {
    next_ = (next_ + 2) % all_.size();
    return {all_[next_], all_[next_ + 1]};
  }

 private:
  static constexpr int pairs = 509;  // a prime, so that each output gets each of them

  static void separate(Argument &first, Argument &second) {
    for (std::size_t i = 0; i < first.reals.size(); ++i) {
      if (!(first.reals[i] < second.reals[i]) && !(second.reals[i] < first.reals[i])) {
        first.reals[i] = 0.75F;
        second.reals[i] = -3;
      }
      if (first.integers[i] == second.integers[i]) ++second.integers[i];
    }
  }

  std::vector<Argument> all_;
  std::size_t next_ = 0;
};

Marks marks;

void mark(Argument &argument, const Argument &with) {
  if (argument.kind == Argument::real) {
    argument.reals = with.reals;
  } else {
    argument.integers = with.integers;
  }
}

// The sequences of calls, the golden ones first, until `done`.
void draw_until(const Routine &routine, const std::function<bool()> &done,
                const std::function<void(Arguments &)> &visit) {
  constexpr int at_once = 50;
  Routine sequence = routine;
  for (int drawn = 0; drawn < further_calls && !done(); drawn += at_once) {
    random_calls::draw(sequence, at_once, [&](Arguments &arguments) {
      random_calls::raise_counts(routine, arguments);
      if (!done()) visit(arguments);
    });
    sequence.seed += further_seed;
  }
}

// --- strangers --------------------------------------------------------------------------------

// Calls of a routine that leave in its instance what they retain.
class Stranger {
 public:
  Stranger(const Routine &routine, const Instance &instance, bool apart)
      : routine_(instance.own(routine)) {
    Routine other = routine;
    other.seed += 2 * further_seed;
    random_calls::draw(other, 31, [&](Arguments &arguments) {
      random_calls::raise_counts(routine, arguments);
      if (apart && is(routine, "trvcer10")) set_apart(arguments);
      sets_.push_back(arguments);
    });
  }

  void call() {
    next_ = (next_ + 1) % sets_.size();
    now_ = sets_[next_];  // which counts that grow would outgrow
    routine_.call(random_calls::addresses_of(now_));
  }

 private:
  // trvcer10 retains the crossing, at B, and the cosine of the test there.
  static void set_apart(Arguments &arguments) {
    constexpr float quarter_turn[] = {0, 0, 1, 0, 0, 1, 1.5707964F, 1.5707964F};
    for (std::size_t i = 0; i < std::size(quarter_turn); ++i) {
      *arguments[i].real_address() = quarter_turn[i];
    }
  }

  Routine routine_;
  std::vector<Arguments> sets_;
  Arguments now_;
  std::size_t next_ = 0;
};

// Those whose calls may not decide: that leave values of others, or none; itself, if it has none;
// and to an owner of values all that do not name them.
std::vector<Stranger> strangers_to(const Routine &routine, const std::vector<Routine> &all,
                                   const Instance &instance) {
  const auto shares = [&](const Routine &other) {
    return std::any_of(routine.retains.begin(), routine.retains.end(), [&](const auto &owner) {
      const bool set_apart = is(other, "trvcer10") && owner != other.name;
      return names(other, owner) && !set_apart;
    });
  };
  std::vector<Stranger> strangers;
  for (const Routine &other : all) {
    const bool itself = &other == &routine && routine.retains.empty();
    if (itself || ((is_owner(other) || is_owner(routine)) && !shares(other))) {
      strangers.emplace_back(other, instance, true);
    }
  }
  return strangers;
}

// --- outputs ----------------------------------------------------------------------------------

// What the calls of a routine have shown of one argument.
struct Seen {
  bool kept = false;
  bool written = false;
  std::set<std::size_t> forms;   // of its size, where that is above zero
  std::set<std::size_t> needed;  // those whose last element is written
};

// The calls of one routine.
class Outputs {
 public:
  Outputs(const Routine &routine, const Instance &a, const Instance &b)
      : routine_(routine),
        a_(a.own(routine)),
        b_(b.own(routine)),
        seen_(routine.arguments.size()),
        marks_a_(routine.arguments.size()),
        marks_b_(routine.arguments.size()),
        conditional_(routine.arguments.size()),
        sizes_(routine.arguments.size()),
        always_used_(routine.arguments.size()),
        before_(routine.arguments),
        second_(routine.arguments) {
    for (const Condition &condition : conditions()) {
      if (is(routine, condition.routine)) conditions_.push_back(&condition);
    }
    Arguments zero = routine.arguments;
    for (std::size_t i = 0; i < zero.size(); ++i) {
      if (routine.used[i] != nullptr) always_used_[i] = routine.used[i](zero).elements;
      const bool stated = routine.kept[i].how == Kept::on_condition;
      const bool tested =
          std::any_of(conditions_.begin(), conditions_.end(),
                      [&](const Condition *condition) { return names(*condition, i); });
      if (stated == tested) continue;
      tell(routine, routine.names[i] + (stated ? ": its condition is not in conditions.cpp"
                                               : ": its contract states no condition"));
    }
  }

  void run(std::vector<Stranger> &strangers) {
    Routine sequence = routine_;
    std::size_t next = 0;
    const auto visit = [&](Arguments &arguments) {
      random_calls::raise_counts(routine_, arguments);
      if (!strangers.empty()) strangers[next++ % strangers.size()].call();
      call(arguments);
    };
    random_calls::draw(sequence, calls_per_routine, visit);
    sequence.seed += further_seed;
    random_calls::draw(sequence, further_calls, visit, true);
  }

  // The outputs that were other than equal or left alone in both.
  [[nodiscard]] const std::set<std::size_t> &different() const { return different_; }

  Seen &seen(std::size_t i) { return seen_[i]; }

 private:
  void call(Arguments &first) {
    for (std::size_t i = 0; i < first.size(); ++i) {
      if (first[i].written) prepare(i, first[i]);
      if (routine_.sizes[i] == nullptr) continue;
      sizes_[i] = routine_.sizes[i](first);
      if (sizes_[i].elements > 0) seen_[i].forms.insert(sizes_[i].form);
    }
    Addresses addresses = random_calls::addresses_of(first);
    a_.call(addresses);
    for (std::size_t i = 0; i < first.size(); ++i) {
      if (first[i].written) addresses[i] = second_[i].address();
    }
    b_.call(addresses);

    Call of(routine_, before_, first);
    for (const Condition *condition : conditions_) {
      const Elements kept = condition->kept(of);
      for (std::size_t i = 0; i < first.size(); ++i) {
        if (names(*condition, i)) conditional_[i] = kept;
      }
    }
    for (std::size_t i = 0; i < first.size(); ++i) {
      if (first[i].written) check(i, first);
    }
  }

  [[nodiscard]] bool names(const Condition &condition, std::size_t i) const {
    return (" " + condition.outputs + " ").find(" " + routine_.names[i] + " ") != std::string::npos;
  }

  void prepare(std::size_t i, Argument &argument) {
    if (argument.read) {
      mark(second_[i], argument);
      mark(before_[i], argument);
      return;
    }
    const auto [one, other] = marks.next();
    mark(argument, one);
    mark(second_[i], other);
    marks_a_[i] = &one;
    marks_b_[i] = &other;
  }

  // Whether the whole argument is to be left alone, by a status, a count or for good.
  [[nodiscard]] bool is_kept(std::size_t i, Arguments &first) {
    const Kept &kept = routine_.kept[i];
    if (kept.how == Kept::never || kept.how == Kept::on_condition) return false;
    if (kept.how == Kept::always) return true;
    Argument &teller = is_updated(first[kept.teller]) ? before_[kept.teller] : first[kept.teller];
    const std::int32_t value = *teller.integer_address();
    if (kept.how == Kept::below) return value < kept.bound;
    return (kept.bound != random_calls::Status::none && value >= kept.bound) ||
           std::find(kept.values.begin(), kept.values.end(), value) != kept.values.end();
  }

  void check(std::size_t i, Arguments &first) {
    const Argument &argument = first[i];
    const bool updated = argument.read;
    const Words a = words_of(argument);
    const Words b = words_of(second_[i]);
    const Words from_a = words_of(updated ? before_[i] : *marks_a_[i], argument.kind);
    const Words from_b = updated ? from_a : words_of(*marks_b_[i], argument.kind);
    const std::size_t size = argument.single ? 1 : sizes_[i].elements;
    Used used = {size, size};
    if (routine_.used[i] != nullptr) used = routine_.used[i](first);
    if (updated) used.scratch = size;
    const bool kept = is_kept(i, first);
    const bool has_condition = routine_.kept[i].how == Kept::on_condition;

    const std::size_t lowest = argument.single ? begin : 0;
    const std::size_t end = argument.single ? begin + 1 : a.size();
    const auto beside = [&](std::size_t e) { return e < begin || e >= begin + size; };
    for (std::size_t e = lowest; e < end; ++e) {
      const std::size_t k = e - begin;
      const bool untouched = a[e] == from_a[e] && b[e] == from_b[e];
      if (untouched && beside(e)) continue;
      const bool equal = same(a[e], b[e], argument);
      const bool to_keep = beside(e) || kept || (has_condition && conditional_[i][k]);
      const bool free = !to_keep && k >= used.elements;
      if (free && k < used.scratch) continue;
      if (!untouched && !equal) {
        different_.insert(i);
      } else if (!untouched && (to_keep || free)) {
        tell(routine_,
             routine_.names[i] + (beside(e) ? ": is written beside its elements"
                                            : ": is written where its contract keeps it"));
      } else if (untouched && !updated && !to_keep && !free) {
        tell(routine_, routine_.names[i] + ": is left unwritten where its contract writes it");
      }
      (untouched ? seen_[i].kept : seen_[i].written) = true;
      // A count used that is a number counts as the size, which callers must provide nevertheless.
      const bool last = k + 1 == (always_used_[i] > 0 ? always_used_[i] : size);
      if (!untouched && last && !argument.single) seen_[i].needed.insert(sizes_[i].form);
    }
  }

  const Routine &routine_;
  Routine a_;
  Routine b_;
  std::vector<Seen> seen_;
  std::vector<const Argument *> marks_a_;
  std::vector<const Argument *> marks_b_;
  std::vector<const Condition *> conditions_;
  std::vector<Elements> conditional_;
  std::vector<Size> sizes_;
  std::vector<std::size_t> always_used_;
  Arguments before_;
  Arguments second_;
  std::set<std::size_t> different_;
};

// --- inputs -----------------------------------------------------------------------------------

// Calls that are alike but for one thing, which must make a difference somewhere.
class Inputs {
 public:
  Inputs(const Routine &routine, Instance &a, Instance &b) : routine_(routine), a_(a), b_(b) {}

  // Whether some call needs all of the argument, or of an array its last element.
  [[nodiscard]] bool matters(std::size_t i, bool last_element, std::size_t form) {
    bool found = false;
    draw_until(
        routine_, [&] { return found; },
        [&](Arguments &first) {
          std::size_t from = begin;
          std::size_t to = first[i].single ? begin + 1 : begin + Argument::room;
          if (last_element) {
            const Size size = routine_.sizes[i](first);
            if (size.elements == 0 || size.form != form) return;
            from = begin + size.elements - 1;
            to = from + 1;
          }
          Arguments second = first;
          const Argument &other = marks.next().second;
          std::copy(other.reals.begin() + from, other.reals.begin() + to,
                    second[i].reals.begin() + from);
          std::copy(other.integers.begin() + from, other.integers.begin() + to,
                    second[i].integers.begin() + from);
          found = differ(first, second, i);
        });
    return found;
  }

  // Whether some call differs by what the stranger has left in the first instance.
  [[nodiscard]] bool goes_by(const Routine &other, bool apart) {
    bool found = false;
    a_.reload();
    b_.reload();
    Stranger stranger(other, a_, apart);
    bool crowded = false;
    draw_until(
        routine_, [&] { return found; },
        [&](Arguments &first) {
          stranger.call();
          crowded = !crowded;
          if (crowded) crowd(first);
          Arguments second = first;
          found = differ(first, second, first.size());
        });
    return found;
  }

 private:
  // Moves points together: by coordinates within the tolerance, yet not by their distance.
  void crowd(Arguments &arguments) {
    constexpr float beside = 9e-6F;
    const float unit = random_() % 2 == 0 ? 1 : 0.01F;
    const float values[] = {0, beside, unit, 2 * unit};
    std::vector<float *> reals;
    for (Argument &argument : arguments) {
      if (argument.single && argument.kind == Argument::real) {
        reals.push_back(argument.real_address());
      }
    }
    const std::size_t size = random_() % 2 == 0 ? 2 : 3;  // of a point
    const bool crowds = random_() % 2 == 0;
    const std::size_t points_between = random_() % 2;
    for (std::size_t i = 0; i < reals.size(); ++i) {
      const std::size_t back = points_between == 0 ? size : 2 * size;
      const bool together = crowds && i >= back && i / back % 2 == 1;
      *reals[i] = together ? *reals[i - back] + (random_() % 2 == 0 ? 0 : beside)
                           : values[random_() % std::size(values)];
    }
  }

  // Calls both; whether outputs differ, other than that the changed one keeps the difference.
  bool differ(Arguments &first, Arguments &second, std::size_t changed) {
    if (changed < first.size() && !routine_.retains.empty()) {
      a_.reload();
      b_.reload();
    }
    const Argument before_a = first[std::min(changed, first.size() - 1)];
    const Argument before_b = second[std::min(changed, first.size() - 1)];
    a_.call(routine_, random_calls::addresses_of(first));
    b_.call(routine_, random_calls::addresses_of(second));
    for (std::size_t i = 0; i < first.size(); ++i) {
      if (!first[i].written) continue;
      const Words a = words_of(first[i]);
      const Words b = words_of(second[i]);
      const Words from_a = words_of(before_a);
      const Words from_b = words_of(before_b);
      for (std::size_t e = 0; e < a.size(); ++e) {
        if (same(a[e], b[e], first[i])) continue;
        if (i != changed || a[e] != from_a[e] || b[e] != from_b[e]) return true;
      }
    }
    return false;
  }

  const Routine &routine_;
  Instance &a_;
  Instance &b_;
  std::minstd_rand random_;
};

// --- one routine ------------------------------------------------------------------------------

void check_outputs(const Routine &routine, const std::vector<Routine> &all, Instance &a,
                   Instance &b, std::vector<Seen> &seen) {
  std::vector<Stranger> strangers = strangers_to(routine, all, a);
  Outputs outputs(routine, a, b);
  outputs.run(strangers);
  if (!outputs.different().empty()) {
    a.reload();
    b.reload();
    strangers.clear();
    Outputs again(routine, a, b);
    again.run(strangers);
    for (const std::size_t i : outputs.different()) {
      const bool reads = again.different().count(i) != 0;
      tell(routine, routine.names[i] + (reads ? ": depends on what an output held before the call"
                                              : ": depends on earlier calls that its contract does "
                                                "not name"));
    }
  }
  for (std::size_t i = 0; i < routine.arguments.size(); ++i) seen.push_back(outputs.seen(i));
}

void check_argument(const Routine &routine, std::size_t i, const Seen &seen, Inputs &inputs) {
  const Argument &argument = routine.arguments[i];
  const std::string &name = routine.names[i];
  const Kept::How how = routine.kept[i].how;
  if (argument.written && how != Kept::never && !seen.kept) tell(routine, name + ": is never kept");
  if (argument.written && how != Kept::always && !seen.written) {
    tell(routine, name + ": is never written");
  }
  if (is_updated(argument) && !inputs.matters(i, false, 0)) tell(routine, name + ": is never read");
  if (argument.single) return;
  for (const std::size_t form : seen.forms) {
    if (seen.needed.count(form) != 0) continue;
    if (argument.read && inputs.matters(i, true, form)) continue;
    tell(routine,
         name + ": no call needs its last element (size " + std::to_string(form + 1) + ")");
  }
}

void check(const Routine &routine, const std::vector<Routine> &all, Instance &a, Instance &b) {
  a.reload();
  b.reload();
  std::vector<Seen> seen;
  check_outputs(routine, all, a, b, seen);
  Inputs inputs(routine, a, b);
  for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
    check_argument(routine, i, seen[i], inputs);
  }
  for (const Routine &owner : all) {
    if (names(routine, owner.name) && !inputs.goes_by(owner, true) &&
        !Inputs(owner, a, b).goes_by(routine, false)) {
      tell(routine, std::string("neither goes by nor leaves what ") + owner.name + " retains");
    }
  }
}

}  // namespace

int main(int argc, char **argv) {
  namespace fs = std::filesystem;
  if (argc < 2) return 2;
  const fs::path library = fs::absolute(argv[1]);
  const std::string only = argc > 2 ? argv[2] : "";
  fs::remove_all("contracts_files");
  fs::create_directory("contracts_files");
  fs::current_path("contracts_files");  // where the trace goes
  fs::copy_file(library, "first.so");
  fs::copy_file(library, "second.so");
  Instance a(fs::absolute("first.so"));
  Instance b(fs::absolute("second.so"));
  const std::vector<Routine> all = all_routines();
  int outputs = 0;
  std::map<Kept::How, int> kept;
  for (const Routine &routine : all) {
    if (!only.empty() && only != routine.name) continue;
    check(routine, all, a, b);
    std::fflush(stdout);
    for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
      if (!routine.arguments[i].written) continue;
      ++outputs;
      ++kept[routine.kept[i].how];
    }
  }
  std::printf("%d outputs, %d kept by a status or count, %d on a condition, %d always; %d faults\n",
              outputs, kept[Kept::by_value] + kept[Kept::below], kept[Kept::on_condition],
              kept[Kept::always], faults);
  return faults == 0 ? 0 : 1;
}
