// Routines of a few nanoseconds. One run calls a routine for each of many argument sets, through a
// pointer to it, as a host does that has loaded the library. The bare formulas are called in the
// same way: what the ratio shows is the routine, not the call.
#include <trelvin/plane.h>
#include <trelvin/space.h>

#include <array>
#include <cmath>

#include "task.h"

namespace bench {
namespace {

constexpr std::size_t sets = 256;  // fit the first-level cache, and are too many to be learned

// Calls call(routine, inputs, outputs) for each set.
template <class Routine, class Call>
struct Sweep {
  void run() {
    const std::size_t width = inputs.size() / sets, height = outputs.size() / sets;
    const float *in = inputs.data();
    float *out = outputs.data();
    for (std::size_t i = 0; i < sets; ++i, in += width, out += height) call(routine, in, out);
  }
  [[nodiscard]] std::vector<double> answer() const { return {outputs.begin(), outputs.end()}; }
  Reals inputs, outputs;
  Routine *routine;
  Call call;
};

template <class Routine, class Call>
Contender sweep(std::string name, const Reals &inputs, std::size_t outputs_of_set, Routine *routine,
                Call call) {
  return contender(std::move(name),
                   Sweep<Routine, Call>{inputs, Reals(sets * outputs_of_set), routine, call});
}

Reals arguments(std::size_t width) {
  return Random(41).reals(static_cast<int>(sets * width), -10, 10);
}

// The bare formulas -------------------------------------------------------------------------------

#define BENCH_ROUTINE inline void TRELVIN_CALL

// Every routine looks at the processor's state first, so that a host may leave it as it likes. Some
// processors take longer for that one instruction than for the formula; so the bound of a routine is
// its formula behind the same look.
inline void look_at_state() {
#if defined(__x86_64__) || defined(__i386__)
  std::uint32_t control = 0;
  asm volatile("stmxcsr %0" : "=m"(control) : : "memory");
  if ((control & ~0x3FU) != 0x1F80) asm volatile("ldmxcsr %0" : : "m"(control) : "memory");
#endif
}

template <auto formula>
struct Called;

template <class... Arguments, void(TRELVIN_CALL *formula)(Arguments...)>
struct Called<formula> {
  [[gnu::noinline]] static void TRELVIN_CALL bare(Arguments... arguments) { formula(arguments...); }
  [[gnu::noinline]] static void TRELVIN_CALL guarded(Arguments... arguments) {
    look_at_state();
    formula(arguments...);
  }
};

BENCH_ROUTINE distance(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut d) {
  const float dx = x2 - x1;
  const float dy = y2 - y1;
  const float dz = z2 - z1;
  d = std::sqrt(dx * dx + dy * dy + dz * dz);
}

BENCH_ROUTINE dot(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3, TrvIn y3,
                  TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut s) {
  s = (x2 - x1) * (x4 - x3) + (y2 - y1) * (y4 - y3) + (z2 - z1) * (z4 - z3);
}

BENCH_ROUTINE cross(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3, TrvIn y3,
                    TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvArrayOut c) {
  const float ax = x2 - x1;
  const float ay = y2 - y1;
  const float az = z2 - z1;
  const float bx = x4 - x3;
  const float by = y4 - y3;
  const float bz = z4 - z3;
  c[0] = ay * bz - az * by;
  c[1] = az * bx - ax * bz;
  c[2] = ax * by - ay * bx;
}

BENCH_ROUTINE line(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut a, TrvOut b, TrvOut c) {
  a = y2 - y1;
  b = x1 - x2;
  c = y1 * x2 - y2 * x1;
}

BENCH_ROUTINE line_distance(TrvIn x, TrvIn y, TrvIn a, TrvIn b, TrvIn c, TrvOut d) {
  d = (a * x + b * y + c) / std::sqrt(a * a + b * b);
}

BENCH_ROUTINE crossing(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn a2, TrvIn b2, TrvIn c2, TrvIntOut status,
                       TrvOut x, TrvOut y) {
  const float det = a1 * b2 - a2 * b1;
  const float nx = b1 * c2 - b2 * c1;
  const float ny = a2 * c1 - a1 * c2;
  if (std::fabs(det) > 1e-5F) {
    x = nx / det;
    y = ny / det;
    status = 0;
  } else {
    status = std::fabs(nx) > 1e-5F || std::fabs(ny) > 1e-5F ? 2 : 1;
  }
}

template <auto formula, class Routine, class Call>
Task against_formula(std::string name, Routine *routine, std::size_t inputs, std::size_t outputs,
                     Call call) {
  Task task{"Scalar routines", std::move(name), {1}, [=](int) {
              const Reals values = arguments(inputs);
              return std::vector<Contender>{
                  sweep("Trelvin", values, outputs, routine, call),
                  sweep("guarded formula", values, outputs, Called<formula>::guarded, call),
                  sweep("formula", values, outputs, Called<formula>::bare, call)};
            }};
  task.goals = {{Goal::Kind::ratio, 1, 1.2, "guarded formula"}};
  task.calls = sets;
  task.tolerance = relative(1e-6);
  return task;
}

void add_formulas(std::vector<Task> &tasks) {
  tasks.push_back(against_formula<distance>("trvpds", trvpds, 6, 1, [](auto f, auto i, auto o) {
    f(i[0], i[1], i[2], i[3], i[4], i[5], o[0]);
  }));
  tasks.push_back(against_formula<line>("trvln3", trvln3, 4, 3, [](auto f, auto i, auto o) {
    f(i[0], i[1], i[2], i[3], o[0], o[1], o[2]);
  }));
  tasks.push_back(against_formula<line_distance>(
      "trvlds", trvlds, 5, 1,
      [](auto f, auto i, auto o) { f(i[0], i[1], i[2], i[3], i[4], o[0]); }));
  tasks.push_back(against_formula<crossing>("trvlni", trvlni, 6, 2, [](auto f, auto i, auto o) {
    std::int32_t status;
    f(i[0], i[1], i[2], i[3], i[4], i[5], status, o[0], o[1]);
  }));
  tasks.push_back(against_formula<dot>("trvpri", trvpri, 12, 1, [](auto f, auto i, auto o) {
    f(i[0], i[1], i[2], i[3], i[4], i[5], i[6], i[7], i[8], i[9], i[10], i[11], o[0]);
  }));
  tasks.push_back(against_formula<cross>("trvpre", trvpre, 12, 3, [](auto f, auto i, auto o) {
    f(i[0], i[1], i[2], i[3], i[4], i[5], i[6], i[7], i[8], i[9], i[10], i[11], o);
  }));
}

// Sine and cosine ---------------------------------------------------------------------------------

// The turn of one point by an angle whose sine and cosine are at hand: what trvrot costs beside
// them, its call included.
BENCH_ROUTINE turn_alone(TrvIn s, TrvIn c, TrvIn x, TrvIn y, TrvOut xr, TrvOut yr) {
  xr = c * x - s * y;
  yr = s * x + c * y;
}

// By the platform's functions in double precision, rounded: as exact as the library's.
BENCH_ROUTINE turn_by_platform(TrvIn angle, TrvIn /*unused*/, TrvIn x, TrvIn y, TrvOut xr,
                               TrvOut yr) {
  const auto s = static_cast<float>(std::sin(double{angle}));
  const auto c = static_cast<float>(std::cos(double{angle}));
  xr = c * x - s * y;
  yr = s * x + c * y;
}

// trvrot turns in place. The point is copied in front of its call, in the other contenders too.
std::vector<Contender> turns() {
  const Reals points = arguments(4);
  Reals angles = points;
  Reals sines = points;
  for (std::size_t i = 0; i < points.size(); i += 4) {
    angles[i] = 0.314F * points[i];  // within half a turn
    sines[i] = static_cast<float>(std::sin(double{angles[i]}));
    sines[i + 1] = static_cast<float>(std::cos(double{angles[i]}));
  }
  const auto in_place = [](auto f, auto i, auto o) {
    o[0] = i[2];
    o[1] = i[3];
    f(2, o, o + 1, 1, i[0]);
  };
  const auto copied = [](auto f, auto i, auto o) {
    o[0] = i[2];
    o[1] = i[3];
    const float x = o[0];
    const float y = o[1];
    f(i[0], i[1], x, y, o[0], o[1]);
  };
  return {sweep("Trelvin", angles, 2, trvrot, in_place),
          sweep("guarded turn alone", sines, 2, Called<turn_alone>::guarded, copied),
          sweep("std::sin+cos", angles, 2, Called<turn_by_platform>::bare, copied)};
}

void add_sine_and_cosine(std::vector<Task> &tasks) {
  Task task{"Sine and cosine", "trvrot (one point)", {1}, [](int) { return turns(); }};
  task.goals = {{Goal::Kind::excess, 1, 6.7, "guarded turn alone"},
                {Goal::Kind::excess, 1, 16, "guarded turn alone", 0, true}};
  task.calls = sets;
  task.tolerance = absolute(1e-5);
  tasks.push_back(std::move(task));
}

// Line and plane ----------------------------------------------------------------------------------

// None nearly parallel, where the answers of single and double precision part.
LinesAndPlanes lines_and_planes() {
  Random random(42);
  LinesAndPlanes data;
  while (data.size() < sets) {
    const Reals v = random.reals(LinesAndPlanes::width, -10, 10);
    const float slope = v[3] * v[6] + v[4] * v[7] + v[5] * v[8];
    if (std::fabs(slope) > 10) data.values.insert(data.values.end(), v.begin(), v.end());
  }
  return data;
}

BENCH_ROUTINE line_and_plane(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn a,
                             TrvIn b, TrvIn c, TrvIn d, TrvOut xi, TrvOut yi, TrvOut zi,
                             TrvIntOut status) {
  const float t = -(a * x + b * y + c * z + d) / (a * ux + b * uy + c * uz);
  xi = x + t * ux;
  yi = y + t * uy;
  zi = z + t * uz;
  status = 0;
}

void add_line_and_plane(std::vector<Task> &tasks, const Peers &peers) {
  Task task{"Line and plane", "trvpli", {1}, [peers](int) {
              const LinesAndPlanes data = lines_and_planes();
              const auto call = [](auto f, auto i, auto o) {
                std::int32_t status;
                f(i[0], i[1], i[2], i[3], i[4], i[5], i[6], i[7], i[8], i[9], o[0], o[1], o[2],
                  status);
              };
              const auto guarded = Called<line_and_plane>::guarded;
              std::vector<Contender> all{sweep("Trelvin", data.values, 3, trvpli, call),
                                         sweep("guarded formula", data.values, 3, guarded, call)};
              for (const auto &peer : peers.intersect) all.push_back(peer(data));
              return all;
            }};
  task.goals = {{Goal::Kind::per_item, 1, 6}};
  task.calls = sets;
  task.tolerance = absolute(1e-3);
  tasks.push_back(std::move(task));
}

}  // namespace

void add_scalars(std::vector<Task> &tasks, const Peers &peers) {
  add_formulas(tasks);
  add_sine_and_cosine(tasks);
  add_line_and_plane(tasks, peers);
}

}  // namespace bench
