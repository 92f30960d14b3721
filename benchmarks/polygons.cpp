// Integrals over polygons.
#include <trelvin/properties.h>

#include <array>

#include "task.h"

namespace bench {
namespace {

constexpr const char *family = "Polygons";

// What a programmer would write: one loop, in double precision as the routines compute. The spare
// last vertex saves it the case of the closing edge.
template <class Term>
void plain_sums(const Outline &o, Term term) {
  for (std::size_t i = 0; i + 1 < o.x.size(); ++i) {
    term(double{o.x[i]}, double{o.y[i]}, double{o.x[i + 1]}, double{o.y[i + 1]});
  }
}

std::array<double, 1> plain_area(const Outline &o) {
  double sum = 0;
  plain_sums(o, [&](double x1, double y1, double x2, double y2) { sum += (x1 + x2) * (y2 - y1); });
  return {sum / 2};
}

std::array<double, 2> plain_first_moments(const Outline &o) {
  double sx = 0;
  double sy = 0;
  plain_sums(o, [&](double x1, double y1, double x2, double y2) {
    const double cross = x1 * y2 - x2 * y1;
    sx += cross * (y1 + y2);
    sy += cross * (x1 + x2);
  });
  return {sx / 6, sy / 6};
}

std::array<double, 3> plain_second_moments(const Outline &o) {
  double ix = 0;
  double iy = 0;
  double ixy = 0;
  plain_sums(o, [&](double x1, double y1, double x2, double y2) {
    const double cross = x1 * y2 - x2 * y1;
    ix += cross * (y1 * y1 + y1 * y2 + y2 * y2);
    iy += cross * (x1 * x1 + x1 * x2 + x2 * x2);
    ixy += cross * (x1 * (2 * y1 + y2) + x2 * (y1 + 2 * y2));
  });
  return {ix / 12, iy / 12, ixy / 24};
}

std::array<float, 1> area(Outline &o) {
  std::array<float, 1> s;
  trvapl(o.x.data(), o.y.data(), o.vertices(), s[0]);
  return s;
}

std::array<float, 2> first_moments(Outline &o) {
  std::array<float, 2> s;
  trvspl(o.x.data(), o.y.data(), o.vertices(), s[0], s[1]);
  return s;
}

std::array<float, 3> second_moments(Outline &o) {
  std::array<float, 3> s;
  trvipl(o.x.data(), o.y.data(), o.vertices(), s[0], s[1], s[2]);
  return s;
}

template <auto area_of, auto moments_of>
std::array<double, 3> area_and_centroid(Outline &o) {
  const double a = area_of(o)[0];
  const auto [sx, sy] = moments_of(o);
  return {a, sy / a, sx / a};
}

template <class Sums, class Plain>
Task task_of(std::string name, Sums sums, Plain plain, const std::vector<OutlineMaker> &peers,
             std::vector<Goal> goals) {
  Task task{family, std::move(name), {16, 1000, 32000, 1000000}, [=](int n) {
              Random random(21);
              const Outline outline = star(random, n);
              std::vector<Contender> all{evaluated("Trelvin", outline, sums)};
              for (const OutlineMaker &peer : peers) all.push_back(peer(outline));
              all.push_back(evaluated("plain loop", outline, plain));
              return all;
            }};
  task.goals = std::move(goals);
  task.tolerance = relative(1e-6);
  return task;
}

}  // namespace

void add_polygons(std::vector<Task> &tasks, const Peers &peers) {
  const bool wide = has_avx2();
  std::vector<Goal> of_area{{Goal::Kind::per_item, 16, 1.5},
                            {Goal::Kind::ratio, 1000, wide ? 1 / 2.5 : 1.25, "Boost"}};
  if (wide) of_area.push_back({Goal::Kind::ratio, 1000000, 0.5, "Boost"});
  tasks.push_back(task_of("trvapl", area, plain_area, peers.area, of_area));
  tasks.push_back(task_of("trvspl", first_moments, plain_first_moments, {},
                          {{Goal::Kind::per_item, 1000, wide ? 0.5 : 1.1}}));
  tasks.push_back(task_of("trvipl", second_moments, plain_second_moments, {},
                          {{Goal::Kind::per_item, 1000, wide ? 0.75 : 1.45}}));
  tasks.push_back(task_of("trvapl+trvspl (area and centroid)",
                          area_and_centroid<area, first_moments>,
                          area_and_centroid<plain_area, plain_first_moments>,
                          peers.area_and_centroid, {{Goal::Kind::ratio, 1000, 1, "Boost"}}));
}

}  // namespace bench
