#include "hosts/random_calls.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace random_calls {
namespace {

// splitmix64
class Sequence {
 public:
  explicit Sequence(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15U;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
  }

  // An integer in [low, high].
  std::int32_t between(std::int32_t low, std::int32_t high) {
    const auto range = static_cast<std::uint64_t>(high - low) + 1;
    return low + static_cast<std::int32_t>(next() % range);
  }

  std::size_t below(std::size_t n) { return static_cast<std::size_t>(next() % n); }

  bool one_in(std::int32_t n) { return between(1, n) == 1; }

  template <class Value>
  Value one_of(std::initializer_list<Value> values) {
    return values.begin()[between(0, static_cast<std::int32_t>(values.size()) - 1)];
  }

 private:
  std::uint64_t state_;
};

// What the Reals of a call look like: degenerate positions, general ones, or anything at all.
enum Mood { grid, general, near_tolerance, angles, dimensions, any_bits, mixed, moods };

float draw_real(Sequence &sequence, int mood) {
  switch (mood) {
    case grid:
      return static_cast<float>(sequence.between(-2, 2));
    case general:
      return static_cast<float>(sequence.between(-10000000, 10000000)) * (1.0F / 1048576);
    case near_tolerance: {
      constexpr float tolerance = 1e-5F;
      const float value = tolerance * static_cast<float>(sequence.between(-2, 2));
      const auto towards = static_cast<float>(sequence.between(-1, 1));
      return sequence.one_in(2) ? value : std::nextafter(value, towards);
    }
    case angles:
      return 0.78539816F * static_cast<float>(sequence.between(-9, 9));
    case dimensions:
      return static_cast<float>(sequence.between(1, 4000)) * 0.25F;
    case any_bits: {
      const auto bits = static_cast<std::uint32_t>(sequence.next());
      float value = 0;
      std::memcpy(&value, &bits, sizeof value);
      return value;
    }
    default:
      return draw_real(sequence, sequence.between(0, any_bits));
  }
}

void fill(Sequence &sequence, Argument &argument, int mood, int largest_count, bool sparing) {
  const std::size_t begin = sparing ? Argument::spare : 0;
  std::size_t end = argument.reals.size() - begin;
  if (sparing && argument.single) end = begin + 1;
  if (sparing && !argument.read) return;
  if (argument.kind == Argument::real) {
    for (std::size_t i = begin; i < end; ++i) argument.reals[i] = draw_real(sequence, mood);
  } else if (argument.kind == Argument::integer) {
    for (std::size_t i = begin; i < end; ++i)
      argument.integers[i] = sequence.between(-2, largest_count);
  }
}

// The addresses of a call's single Reals, or of its Real arrays, in the order of its arguments;
// null for every other argument.
using Reals = std::vector<float *>;

Reals addresses_of_reals(Arguments &arguments, bool single) {
  Reals addresses;
  for (Argument &argument : arguments) {
    const bool wanted = argument.kind == Argument::real && argument.single == single;
    addresses.push_back(wanted ? argument.real_address() : nullptr);
  }
  return addresses;
}

// Puts points in special positions: each group of two or three Reals may become a combination of
// groups before it, so that points coincide, lie on lines and span parallels.
void relate_points(Sequence &sequence, const Reals &reals) {
  const int size = sequence.between(2, 3);
  const auto groups = static_cast<int>(reals.size()) / size;
  const auto at = [&](int group, int i) -> float * {
    return reals[static_cast<std::size_t>(group) * static_cast<std::size_t>(size) +
                 static_cast<std::size_t>(i)];
  };
  for (int group = 1; group < groups; ++group) {
    const int from = sequence.between(0, group - 1);
    const int to = sequence.between(0, group - 1);
    const float k = sequence.one_of({-2.0F, -1.0F, 0.0F, 0.5F, 1.0F, 2.0F, 1.000001F});
    const int way = sequence.between(0, 3);
    for (int i = 0; i < size; ++i) {
      float *const value = at(group, i);
      const float *const p = at(from, i);
      const float *const q = at(to, i);
      if (value == nullptr || p == nullptr || q == nullptr) continue;
      if (way == 1) *value = *p + k * (*q - *p);
      if (way == 2) *value = k * *p;
      if (way == 3 && group > 1) *value = *value + (*q - *p);
    }
  }
}

// Makes an arc of the first six Reals, centre and two ends, by points of the circle of radius 65
// that have whole coordinates; the Reals after them become lengths up to the chord's, or angles.
void make_arc(Sequence &sequence, const Reals &reals) {
  constexpr int whole[][2] = {{65, 0}, {63, 16}, {60, 25}, {56, 33}, {52, 39}, {39, 52}};
  const float scale = sequence.one_of({1.0F, 0.25F, 1.0F / 65536, 1.0F / 1048576, 4.0F, 0.015625F});
  const auto draw_offset = [&](float *x, float *y) {
    const auto &p = whole[sequence.between(0, 5)];
    const bool swapped = sequence.one_in(2);
    const float sign_x = sequence.one_of({-1.0F, 1.0F});
    const float sign_y = sequence.one_of({-1.0F, 1.0F});
    *x = sign_x * scale * static_cast<float>(swapped ? p[1] : p[0]);
    *y = sign_y * scale * static_cast<float>(swapped ? p[0] : p[1]);
  };
  const auto centre_x = static_cast<float>(sequence.between(-3, 3));
  const auto centre_y = static_cast<float>(sequence.between(-3, 3));
  *reals[0] = centre_x;
  *reals[1] = centre_y;
  float ends[4];
  draw_offset(&ends[0], &ends[1]);
  draw_offset(&ends[2], &ends[3]);
  if (sequence.one_in(3)) {  // the whole chord is a diameter
    ends[2] = -ends[0];
    ends[3] = -ends[1];
  }
  if (sequence.one_in(40)) {  // coincident by coordinates, apart by distance
    ends[2] = ends[0] + 9e-6F;
    ends[3] = ends[1] + 9e-6F;
  }
  for (std::size_t i = 0; i < 4; ++i) *reals[2 + i] = (i % 2 == 0 ? centre_x : centre_y) + ends[i];
  for (std::size_t i = 6; i < reals.size(); ++i) {
    if (reals[i] == nullptr) continue;
    *reals[i] = sequence.one_in(2) ? scale * static_cast<float>(sequence.between(0, 1300)) * 0.1F
                                   : 0.39269908F * static_cast<float>(sequence.between(-9, 9));
  }
}

// Makes an open section of the five arrays behind the first argument, starts, ends and thicknesses
// of plates; now and then a plate closes a cell or hangs loose.
void make_plates(Sequence &sequence, const Reals &arrays) {
  constexpr int plates = 40;
  const auto place = [&](int k, bool second, int coordinate) -> float & {
    return arrays[(second ? 3U : 1U) + static_cast<std::size_t>(coordinate)][k];
  };
  const bool along_axes = sequence.one_in(2);
  for (int k = 0; k < plates; ++k) {
    const int from = k == 0 || sequence.one_in(60) ? k : sequence.between(0, k - 1);
    const bool from_end = sequence.one_in(2);
    const int free = along_axes ? sequence.between(0, 1) : 2;
    for (int coordinate = 0; coordinate < 2; ++coordinate) {
      const float start = from == k ? static_cast<float>(sequence.between(-50, 50))
                                    : place(from, from_end, coordinate);
      const auto step = static_cast<float>(sequence.between(-4000, 4000)) * 0.125F;
      place(k, false, coordinate) = start;
      place(k, true, coordinate) = free == 2 || free == coordinate ? start + step : start;
    }
    arrays[5][k] = static_cast<float>(sequence.between(1, 200)) * 0.125F;
  }
}

// Makes a plate element of steel of the seven Reals: widths, thickness, material and the stresses at
// its edges, with ratios within, on and just beside every border between stress distributions.
void make_plate_stresses(Sequence &sequence, const Reals &reals) {
  *reals[0] = static_cast<float>(sequence.between(1, 4000)) * 0.5F;
  *reals[1] = static_cast<float>(sequence.between(1, 4000)) * 0.5F;
  *reals[2] = static_cast<float>(sequence.between(4, 160)) * 0.25F;
  *reals[3] = static_cast<float>(sequence.between(10, 25));
  *reals[4] = static_cast<float>(sequence.between(10, 25));
  const auto s1 = static_cast<float>(sequence.between(1, 3550)) * 0.125F;
  const float ratio = sequence.one_of({1.0F, 0.0F, -1.0F, -3.0F, -1.0F / 3, 0.5F});
  const auto inside = static_cast<float>(sequence.between(-4000, 1000)) * 0.001F;
  const float beside = sequence.one_of({0.0F, 1e-5F, -1e-5F, 1e-6F, -1e-6F, 1e-3F, -1e-3F});
  *reals[5] = s1;
  *reals[6] = sequence.one_in(2) ? s1 * inside : s1 * ratio + beside;
}

// Pairs of two lists need room for the product of their counts.
int largest_count(const Routine &routine) { return routine.shape == Shape::pairs ? 8 : 40; }

// The arguments of one call.
void draw_arguments(Sequence &sequence, const Routine &routine, int largest_count,
                    Arguments &arguments, bool sparing = false) {
  const int mood = routine.shape == Shape::whole ? grid : sequence.between(0, moods - 1);
  for (Argument &argument : arguments) fill(sequence, argument, mood, largest_count, sparing);
  if (routine.shape == Shape::arc && !sequence.one_in(4)) {
    make_arc(sequence, addresses_of_reals(arguments, true));
  } else if (routine.shape == Shape::plates && !sequence.one_in(4)) {
    make_plates(sequence, addresses_of_reals(arguments, false));
  } else if (routine.shape == Shape::plate_stresses && !sequence.one_in(4)) {
    make_plate_stresses(sequence, addresses_of_reals(arguments, true));
  } else if (sequence.one_in(2)) {
    relate_points(sequence, addresses_of_reals(arguments, true));
  }
}

// Arguments with fewer points; now and then with coordinates that agree, moved or shrunk as a whole, or
// with Reals that are infinite or NaN.
void draw_special_arguments(Sequence &sequence, const Routine &routine, Arguments &arguments) {
  draw_arguments(sequence, routine, sequence.one_in(3) ? largest_count(routine) : 4, arguments);
  if (routine.shape == Shape::whole || sequence.one_in(2)) return;
  std::vector<Argument *> reals;
  for (Argument &argument : arguments) {
    if (argument.kind == Argument::real) reals.push_back(&argument);
  }
  if (reals.empty()) return;
  Argument &one = *reals[sequence.below(reals.size())];
  const Argument &other = *reals[sequence.below(reals.size())];
  const int way = sequence.between(0, 3);
  if (way == 0) one.reals = other.reals;
  if (way == 1) one.reals.fill(sequence.one_of({NAN, INFINITY, -INFINITY}));
  const auto steps = static_cast<float>(sequence.between(-1000, 1000));
  const float far = steps * static_cast<float>(1 << sequence.between(0, 14));
  for (Argument *argument : reals) {
    for (float &value : argument->reals) {
      if (std::isnan(value)) continue;
      if (way == 2) value += far;
      if (way == 3) value *= 1e-5F;
    }
  }
}

// Numbers Reals in their order, one by one. NaN follows infinity.
std::int64_t ordinal_of(float value) {
  std::int32_t bits = 0x7FC00000;
  if (!std::isnan(value)) std::memcpy(&bits, &value, sizeof bits);
  return bits < 0 ? std::int64_t{INT32_MIN} - bits : bits;
}

float real_of(std::int64_t ordinal) {
  constexpr std::int64_t infinity = 0x7F800000;
  if (std::abs(ordinal) > infinity) return NAN;  // its other bits do not survive on every machine
  const auto bits = static_cast<std::int32_t>(ordinal < 0 ? INT32_MIN - ordinal : ordinal);
  float value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

// The way from one set of arguments to another, along which some Reals change together.
struct Path {
  struct Step {
    std::size_t argument, element;
    std::int64_t from, to;
  };
  std::vector<Step> steps;

  [[nodiscard]] bool short_enough() const {
    return std::all_of(steps.begin(), steps.end(),
                       [](const Step &step) { return std::abs(step.to - step.from) <= 1; });
  }
  [[nodiscard]] Path reversed() const {
    Path reversed = *this;
    for (Step &step : reversed.steps) std::swap(step.from, step.to);
    return reversed;
  }
  [[nodiscard]] Path half(bool second) const {
    Path half = *this;
    for (Step &step : half.steps) {
      const std::int64_t middle = step.from + (step.to - step.from) / 2;
      (second ? step.from : step.to) = middle;
    }
    return half;
  }
};

Path::Step draw_step(Sequence &sequence, const Arguments &arguments) {
  std::size_t argument = 0;
  for (int trial = 0; trial < 20; ++trial) {
    argument = sequence.below(arguments.size());
    const Argument &drawn = arguments[argument];
    if (drawn.kind == Argument::real && (!drawn.written || sequence.one_in(4))) break;
  }
  const std::size_t element =
      Argument::spare + (arguments[argument].single ? 0U : sequence.below(8));
  const float from = arguments[argument].reals[element];
  float to = draw_real(sequence, sequence.between(grid, dimensions));
  const int way = sequence.between(0, 5);
  const Argument &other = arguments[sequence.below(arguments.size())];
  if (way == 0 && other.kind == Argument::real) to = other.reals[element];
  if (way == 1) to = from + 1e-5F * static_cast<float>(sequence.between(-3, 3));
  if (way == 2) to = real_of(ordinal_of(from) + sequence.between(-1000000, 1000000));
  if (way == 3) to = 0;
  return {argument, element, ordinal_of(from), ordinal_of(to)};
}

Path draw_path(Sequence &sequence, const Arguments &arguments) {
  Path path;
  while (path.steps.empty() || sequence.one_in(3)) {
    path.steps.push_back(draw_step(sequence, arguments));
  }
  return path;
}

// The arguments at the start of the path.
void set_start(const Path &path, const Arguments &drawn, Arguments &start) {
  start = drawn;
  for (const Path::Step &step : path.steps) {
    start[step.argument].reals[step.element] = real_of(step.from);
  }
}

// How far results are apart: those in the argument `guide`, or all if there is no such argument. An
// Integer that differs outweighs all Reals.
std::uint64_t distance(const Arguments &results, const Arguments &others, std::size_t guide) {
  std::uint64_t sum = 0;
  for (std::size_t k = 0; k < results.size(); ++k) {
    const Argument &a = results[k];
    const Argument &b = others[k];
    if (!a.written || (guide < results.size() && guide != k)) continue;
    const std::size_t end = Argument::spare + (a.single ? 1U : Argument::room);
    for (std::size_t i = Argument::spare; i < end; ++i) {
      if (a.kind == Argument::real) {
        sum +=
            static_cast<std::uint64_t>(std::abs(ordinal_of(a.reals[i]) - ordinal_of(b.reals[i])));
      } else if (a.integers[i] != b.integers[i]) {
        sum += std::uint64_t{1} << 40;
      }
    }
  }
  return sum;
}

}  // namespace

void draw(const Routine &routine, int calls, const std::function<void(Arguments &)> &visit,
          bool sparing) {
  Sequence sequence(routine.seed);
  Arguments arguments = routine.arguments;
  for (int call = 0; call < calls; ++call) {
    draw_arguments(sequence, routine, largest_count(routine), arguments, sparing);
    visit(arguments);
  }
}

void draw_near_limits(const Routine &routine, int pairs,
                      const std::function<void(Arguments &)> &visit) {
  Sequence sequence(~routine.seed);
  Arguments arguments = routine.arguments;
  Arguments low;
  Arguments middle;
  Arguments high;
  const auto find = [&](const Path &path, Arguments &results) {
    set_start(path, arguments, results);
    routine.call(addresses_of(results));
  };
  for (int pair = 0; pair < pairs; ++pair) {
    Path path;
    std::size_t guide = 0;
    for (int trial = 0; trial < 12; ++trial) {
      if (trial % 3 == 0) draw_special_arguments(sequence, routine, arguments);
      path = draw_path(sequence, arguments);
      guide = sequence.below(2 * arguments.size());
      find(path, low);
      find(path.reversed(), high);
      if (distance(low, high, guide) != 0) break;
    }
    while (!path.short_enough()) {
      const Path second = path.half(true);
      find(second, middle);
      const bool in_first = distance(low, middle, guide) >= distance(middle, high, guide);
      (in_first ? high : low).swap(middle);
      path = in_first ? path.half(false) : second;
    }
    for (const Path &end : {path, path.reversed()}) {
      set_start(end, arguments, middle);
      visit(middle);
    }
  }
}

void raise_counts(const Routine &routine, Arguments &arguments) {
  for (const auto &[argument, least] : routine.least) {
    std::int32_t &count = *arguments[argument].integer_address();
    count = std::max(count, least);
  }
}

Addresses addresses_of(Arguments &arguments) {
  Addresses addresses;
  for (Argument &argument : arguments) addresses.push_back(argument.address());
  return addresses;
}

}  // namespace random_calls
