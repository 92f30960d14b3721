#include "peers.h"

namespace bench {

Peers all_peers() {
  Peers peers;
#ifdef BENCH_BOOST
  add_boost(peers);
#endif
#ifdef BENCH_CGAL
  add_cgal(peers);
#endif
#ifdef BENCH_GEOS
  add_geos(peers);
#endif
#ifdef BENCH_EIGEN
  add_eigen(peers);
#endif
#ifdef BENCH_HIGHWAY
  add_highway(peers);
#endif
#ifdef BENCH_NANOFLANN
  add_nanoflann(peers);
#endif
  return peers;
}

}  // namespace bench
