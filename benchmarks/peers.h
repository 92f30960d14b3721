// What other libraries offer for the same work. Each fills in what it can; a list stays empty where
// a library was not found.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "contender.h"
#include "data.h"

namespace bench {

struct Order {
  Reals keys;
  Integers positions;  // from 1, in ascending order of the keys
};

struct Match {
  Cloud a, b;
  float tol;
  Integers ia, ib;  // the positions of the pairs, in any order; with room for them
  std::size_t pairs = 0;
};

using OutlineMaker = std::function<Contender(const Outline &)>;

struct Peers {
  std::vector<Way<Reals>> sort_reals;
  std::vector<Way<Integers>> sort_integers;
  std::vector<Way<Order>> order;
  std::vector<Way<Match>> match;
  std::vector<OutlineMaker> area;                                            // answer: area
  std::vector<OutlineMaker> area_and_centroid;                               // answer: area, xs, ys
  std::vector<std::function<Contender(const Cloud &, float angle)>> rotate;  // answer: all x, all y
  std::vector<std::function<Contender(const Cloud &, const Affine &)>> transform;  // and all z
  std::vector<std::function<Contender(const LinesAndPlanes &)>> intersect;  // points, x y z each
};

void add_boost(Peers &peers);
void add_cgal(Peers &peers);
void add_eigen(Peers &peers);
void add_geos(Peers &peers);
void add_highway(Peers &peers);
void add_nanoflann(Peers &peers);

}  // namespace bench
