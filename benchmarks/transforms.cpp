// Rotations of the plane and transformations of space, in place.
//
// The peers get their matrix made; the routines make theirs in every call. Points are restored
// before each timing, so that they stay where they are in it but for rounding and small shifts.
#include <trelvin/space.h>

#include <cmath>

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

struct Vector {
  double x, y, z;
};

Affine identity() { return {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, {0, 0, 0}}; }

// First b, then a.
Affine operator*(const Affine &a, const Affine &b) {
  Affine c{};
  for (int i = 0; i < 3; ++i) {
    for (int k = 0; k < 3; ++k) {
      c.t[i] += a.m[i][k] * b.t[k];
      for (int j = 0; j < 3; ++j) c.m[i][j] += a.m[i][k] * b.m[k][j];
    }
    c.t[i] += a.t[i];
  }
  return c;
}

Affine shift(const Vector &v) {
  Affine a = identity();
  a.t[0] = v.x;
  a.t[1] = v.y;
  a.t[2] = v.z;
  return a;
}

// Turns coordinate p towards q.
Affine turn(int p, int q, double by) {
  Affine a = identity();
  a.m[p][p] = a.m[q][q] = std::cos(by);
  a.m[q][p] = std::sin(by);
  a.m[p][q] = -std::sin(by);
  return a;
}

Affine transposed(const Affine &a) {
  Affine b{};
  for (int i = 0; i < 3; ++i) {
    for (int k = 0; k < 3; ++k) b.m[i][k] = a.m[k][i];
  }
  return b;
}

// The points of a frame. Its axes are along those of space in another order, so that the
// transformation of the peers can be told without the library: e1 = y, e3 = x by trvaxe's rule that
// the normal of a plane of y and z is turned towards +x, and e2 = e3 x e1 = z.
constexpr float P0[] = {10, 20, 30}, P1[] = {10, 25, 30}, P2[] = {10, 22, 37};
const Affine to_local{{{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}, {0, 0, 0}};
constexpr Vector origin{P0[0], P0[1], P0[2]};
constexpr Vector minus_origin{-P0[0], -P0[1], -P0[2]};
constexpr float ax = 0.2F, ay = -0.5F, az = 0.9F;
constexpr float dx = 0.01F, dy = 0.02F, dz = -0.03F;

// As the contracts of trvptrl and trvppc tell the local turns; that about y is left-handed.
Affine local_turns() { return turn(0, 1, az) * turn(0, 2, ay) * turn(1, 2, ax); }

Task transformation(std::string name, const Affine &affine, Routine routine, double goal,
                    const Peers &peers) {
  Task task{family, std::move(name), {16, 1000, 100000}, [=](int n) {
              Random random(32);
              return moving(cloud(random, n, 100), routine, peers.transform, affine);
            }};
  task.goals = {{Goal::Kind::per_item, 1000, goal}};
  task.tolerance = absolute(1e-3);
  return task;
}

}  // namespace

void add_transforms(std::vector<Task> &tasks, const Peers &peers) {
  add_plane_rotation(tasks, peers);

  // About the line through P0 along x.
  tasks.push_back(transformation(
      "trvpra", shift(origin) * turn(1, 2, angle) * shift(minus_origin),
      [](float *x, float *y, float *z, std::int32_t n) {
        std::int32_t status;
        trvpra(P0[0], P0[1], P0[2], P0[0] + 5, P0[1], P0[2], x, y, z, n, angle, status);
      },
      1.2, peers));

  tasks.push_back(transformation(
      "trvptrl",
      shift(origin) * transposed(to_local) * local_turns() * shift({dx, dy, dz}) * to_local *
          shift(minus_origin),
      [](float *x, float *y, float *z, std::int32_t n) {
        std::int32_t status;
        trvptrl(P0[0], P0[1], P0[2], P1[0], P1[1], P1[2], P2[0], P2[1], P2[2], x, y, z, n, dx, dy,
                dz, ax, ay, az, status);
      },
      6, peers));

  // Its test that all points are in the plane is part of the routine; the peers have none. The
  // tolerance lets any point pass, which saves the routine nothing.
  tasks.push_back(transformation(
      "trvppc",
      shift({dx, dy, dz}) * shift(origin) * transposed(to_local) * local_turns() * to_local *
          shift(minus_origin),
      [](float *x, float *y, float *z, std::int32_t n) {
        std::int32_t status;
        trvppc(P0[0], P0[1], P0[2], P1[0], P1[1], P1[2], P2[0], P2[1], P2[2], dx, dy, dz, ax, ay,
               az, n, x, y, z, 1e30F, status);
      },
      2.5, peers));
}

}  // namespace bench
