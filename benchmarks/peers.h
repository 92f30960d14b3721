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

template <class Element>
struct Sorter {
  std::string name;
  std::function<void(Element *, std::size_t)> sort;
};

struct Orderer {
  std::string name;
  std::function<void(const Reals &, Integers &)> order;  // positions from 1
};

struct Matcher {
  std::string name;
  // Writes the positions of the pairs, in any order, into arrays with room for them; their number.
  std::function<std::size_t(const Cloud &, const Cloud &, float tol, Integers &, Integers &)> match;
};

using OutlineMaker = std::function<Contender(const Outline &)>;

struct Peers {
  std::vector<Sorter<float>> sort_reals;
  std::vector<Sorter<std::int32_t>> sort_integers;
  std::vector<Orderer> order;
  std::vector<Matcher> match;
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

Peers all_peers();  // of the libraries found

}  // namespace bench
