// Vectorised quicksort. The packaged library dispatches by processor itself.
#include <hwy/contrib/sort/vqsort.h>

#include <cstring>

#include "../peers.h"

namespace bench {
namespace {

// Orders as the Real does, as an unsigned number.
std::uint32_t ordered_bits(float value) {
  std::uint32_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  return (bits >> 31) != 0 ? ~bits : bits | 0x80000000U;
}

// Keys and positions sorted together, packing and unpacking included.
void order(Order &o) {
  std::vector<hwy::K32V32> pairs(o.keys.size());
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    pairs[i].key = ordered_bits(o.keys[i]);
    pairs[i].value = static_cast<std::uint32_t>(i + 1);
  }
  hwy::Sorter()(pairs.data(), pairs.size(), hwy::SortAscending());
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    o.positions[i] = static_cast<std::int32_t>(pairs[i].value);
  }
}

}  // namespace

void add_highway(Peers &peers) {
  const auto sort = [](auto &values) {
    hwy::Sorter()(values.data(), values.size(), hwy::SortAscending());
  };
  peers.sort_reals.push_back({"VQSort", sort});
  peers.sort_integers.push_back({"VQSort", sort});
  peers.order.push_back({"VQSort", order});
}

}  // namespace bench
