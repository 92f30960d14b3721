// Integrals over polygons.
#include <trelvin/properties.h>

#include <array>

#include "task.h"

namespace bench {
namespace {

constexpr const char *family = "Polygons";

// Calls sums(x, y, n, results); a function, compiled into the loop of the runs.
template <class Sums>
struct Polygon : Job {
  Polygon(Outline of, std::size_t count, Sums function)
      : outline(std::move(of)), n(outline.vertices()), results(count), sums(function) {}
  void run() { sums(outline.x.data(), outline.y.data(), n, results.data()); }
  [[nodiscard]] std::vector<double> answer() const { return results; }
  Outline outline;
  std::int32_t n;
  std::vector<double> results;
  Sums sums;
};

// What a programmer would write: one loop, in double precision as the routines compute. The spare
// last vertex saves it the case of the closing edge.
template <class Term>
void plain_sums(const float *x, const float *y, std::int32_t n, Term term) {
  for (std::int32_t i = 0; i < n; ++i) {
    term(double{x[i]}, double{y[i]}, double{x[i + 1]}, double{y[i + 1]});
  }
}

void plain_area(const float *x, const float *y, std::int32_t n, double *out) {
  double sum = 0;
  plain_sums(x, y, n,
             [&](double x1, double y1, double x2, double y2) { sum += (x1 + x2) * (y2 - y1); });
  out[0] = sum / 2;
}

void plain_first_moments(const float *x, const float *y, std::int32_t n, double *out) {
  double sx = 0;
  double sy = 0;
  plain_sums(x, y, n, [&](double x1, double y1, double x2, double y2) {
    const double cross = x1 * y2 - x2 * y1;
    sx += cross * (y1 + y2);
    sy += cross * (x1 + x2);
  });
  out[0] = sx / 6;
  out[1] = sy / 6;
}

void plain_second_moments(const float *x, const float *y, std::int32_t n, double *out) {
  double ix = 0;
  double iy = 0;
  double ixy = 0;
  plain_sums(x, y, n, [&](double x1, double y1, double x2, double y2) {
    const double cross = x1 * y2 - x2 * y1;
    ix += cross * (y1 * y1 + y1 * y2 + y2 * y2);
    iy += cross * (x1 * x1 + x1 * x2 + x2 * x2);
    ixy += cross * (x1 * (2 * y1 + y2) + x2 * (y1 + 2 * y2));
  });
  out[0] = ix / 12;
  out[1] = iy / 12;
  out[2] = ixy / 24;
}

void area(float *x, float *y, std::int32_t n, double *out) {
  float a;
  trvapl(x, y, n, a);
  out[0] = a;
}

void first_moments(float *x, float *y, std::int32_t n, double *out) {
  float sx;
  float sy;
  trvspl(x, y, n, sx, sy);
  out[0] = sx;
  out[1] = sy;
}

void second_moments(float *x, float *y, std::int32_t n, double *out) {
  float ix;
  float iy;
  float ixy;
  trvipl(x, y, n, ix, iy, ixy);
  out[0] = ix;
  out[1] = iy;
  out[2] = ixy;
}

void area_and_centroid(float *x, float *y, std::int32_t n, double *out) {
  area(x, y, n, out);
  first_moments(x, y, n, out + 1);
  const double sx = out[1];
  out[1] = out[2] / out[0];
  out[2] = sx / out[0];
}

template <class Sums>
Contender polygon(const char *name, const Outline &outline, std::size_t count, Sums sums) {
  return contender(name, Polygon<Sums>(outline, count, sums));
}

template <class Sums, class Plain>
Task task_of(std::string name, std::size_t count, Sums sums, Plain plain,
             const std::vector<OutlineMaker> &peers, std::vector<Goal> goals) {
  Task task{family, std::move(name), {16, 1000, 32000, 1000000}, [=](int n) {
              Random random(21);
              const Outline outline = star(random, n);
              std::vector<Contender> all{polygon("Trelvin", outline, count, sums)};
              for (const OutlineMaker &peer : peers) all.push_back(peer(outline));
              all.push_back(polygon("plain loop", outline, count, plain));
              return all;
            }};
  task.goals = std::move(goals);
  task.relative = 1e-6;
  return task;
}

}  // namespace

void add_polygons(std::vector<Task> &tasks, const Peers &peers) {
  const bool wide = has_avx2();
  std::vector<Goal> of_area{{Goal::Kind::per_item, 16, 1.5},
                            {Goal::Kind::ratio, 1000, wide ? 1 / 2.5 : 1.25, "Boost"}};
  if (wide) of_area.push_back({Goal::Kind::ratio, 1000000, 0.5, "Boost"});
  tasks.push_back(task_of("trvapl", 1, area, plain_area, peers.area, of_area));
  tasks.push_back(task_of("trvspl", 2, first_moments, plain_first_moments, {},
                          {{Goal::Kind::per_item, 1000, wide ? 0.5 : 1.1}}));
  tasks.push_back(task_of("trvipl", 3, second_moments, plain_second_moments, {},
                          {{Goal::Kind::per_item, 1000, wide ? 0.75 : 1.45}}));
  const auto plain = [](float *x, float *y, std::int32_t n, double *out) {
    plain_area(x, y, n, out);
    plain_first_moments(x, y, n, out + 1);
    const double sx = out[1];
    out[1] = out[2] / out[0];
    out[2] = sx / out[0];
  };
  tasks.push_back(task_of("trvapl+trvspl (area and centroid)", 3, area_and_centroid, plain,
                          peers.area_and_centroid, {{Goal::Kind::ratio, 1000, 1, "Boost"}}));
}

}  // namespace bench
