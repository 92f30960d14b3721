// Rotations of the plane and transformations of space, in place.
//
// The peers get their matrix made; the routines make theirs in every call. Points are restored
// before each timing, so that they stay where they are in it but for rounding and small shifts.
#include <trelvin/space.h>

#include "task.h"

namespace bench {
namespace {

constexpr const char *family = "Transformations";
constexpr float angle = 0.3F;

using Routine = void (*)(float *x, float *y, float *z, std::int32_t n);

struct Moving {
  void run() {
    routine(points.x.data(), points.y.data(), points.z.data(),
            static_cast<std::int32_t>(points.size()));
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    for (const Reals *list : {&points.x, &points.y, &points.z}) {
      all.insert(all.end(), list->begin(), list->end());
    }
    return all;
  }
  Cloud points;
  Routine routine;
};

// Trelvin's routine, and what the peers make of the same points.
template <class Makers, class Argument>
std::vector<Contender> moving(const Cloud &points, Routine routine, const Makers &peers,
                              const Argument &argument) {
  std::vector<Contender> all{contender<Input::restored>("Trelvin", Moving{points, routine})};
  for (const auto &peer : peers) all.push_back(peer(points, argument));
  return all;
}

void add_plane_rotation(std::vector<Task> &tasks, const Peers &peers) {
  Task task{
      family, "trvrot", {16, 1000, 1000000}, [peers](int n) {
        Random random(31);
        Cloud points = cloud(random, n, 100);
        points.z.clear();
        return moving(
            points,
            [](float *x, float *y, float * /*z*/, std::int32_t k) { trvrot(2, x, y, k, angle); },
            peers.rotate, angle);
      }};
  for (const int size : task.sizes) task.goals.push_back({Goal::Kind::ratio, size, 1, "Eigen"});
  task.tolerance = absolute(1e-4);
  tasks.push_back(std::move(task));
}

// Space ------------------------------------------------------------------------------------------

// What a routine does to all points, told by the origin and a point on each axis.
Affine affine_of(Routine routine) {
  constexpr float far = 100;
  float p[3][4] = {{0, far, 0, 0}, {0, 0, far, 0}, {0, 0, 0, far}};
  routine(p[0], p[1], p[2], 4);
  Affine affine{};
  for (int i = 0; i < 3; ++i) {
    affine.t[i] = p[i][0];
    for (int k = 0; k < 3; ++k) affine.m[i][k] = (double{p[i][k + 1]} - p[i][0]) / far;
  }
  return affine;
}

// The points of a frame.
constexpr float P0[] = {10, 20, 30}, P1[] = {10, 25, 30}, P2[] = {10, 22, 37};
constexpr float ax = 0.2F, ay = -0.5F, az = 0.9F;
constexpr float dx = 0.01F, dy = 0.02F, dz = -0.03F;

Task transformation(std::string name, double goal, const Peers &peers, Routine routine) {
  Task task{family, std::move(name), {16, 1000, 100000}, [=](int n) {
              Random random(32);
              return moving(cloud(random, n, 100), routine, peers.transform, affine_of(routine));
            }};
  task.goals = {{Goal::Kind::per_item, 1000, goal}};
  task.tolerance = absolute(1e-3);
  return task;
}

}  // namespace

void add_transforms(std::vector<Task> &tasks, const Peers &peers) {
  add_plane_rotation(tasks, peers);

  // About the line through P0 along x.
  tasks.push_back(
      transformation("trvpra", 1.2, peers, [](float *x, float *y, float *z, std::int32_t n) {
        std::int32_t status;
        trvpra(P0[0], P0[1], P0[2], P0[0] + 5, P0[1], P0[2], x, y, z, n, angle, status);
      }));

  tasks.push_back(
      transformation("trvptrl", 6, peers, [](float *x, float *y, float *z, std::int32_t n) {
        std::int32_t status;
        trvptrl(P0[0], P0[1], P0[2], P1[0], P1[1], P1[2], P2[0], P2[1], P2[2], x, y, z, n, dx, dy,
                dz, ax, ay, az, status);
      }));

  // Its test that all points are in the plane is part of the routine; the peers have none. The
  // tolerance lets any point pass, which saves the routine nothing.
  tasks.push_back(
      transformation("trvppc", 2.5, peers, [](float *x, float *y, float *z, std::int32_t n) {
        std::int32_t status;
        trvppc(P0[0], P0[1], P0[2], P1[0], P1[1], P1[2], P2[0], P2[1], P2[2], dx, dy, dz, ax, ay,
               az, n, x, y, z, 1e30F, status);
      }));
}

}  // namespace bench
