// Lists for comparing a routine with its plain way, and a place without memory to do it in.
#pragma once

#ifdef __linux__
#include <sys/resource.h>
#endif

#include <cstdlib>
#include <cstring>
#include <random>

#include "support.h"

namespace trelvin_test {

using Reals = std::vector<float>;
using Integers = std::vector<std::int32_t>;

template <class List>
std::int32_t size_of(const List &list) {
  return static_cast<std::int32_t>(list.size());
}

// All bits, so that zeros of different sign differ and a NaN equals itself.
inline bool same_bits(const Reals &a, const Reals &b) {
  if (a.size() != b.size()) return false;
  return a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0;
}

class OddLists {
 public:
  std::int32_t below(std::int32_t n) {
    return static_cast<std::int32_t>(random_() % static_cast<std::uint32_t>(n));
  }

  // Up to 79 entries, few of them distinct: ties, signed zeros, and now and then what is stranger.
  Reals reals() {
    constexpr float odd[] = {0.0F,     -0.0F,     not_a_number, -not_a_number,
                             infinity, -infinity, 16777216.0F,  1e30F};
    const float unit = below(2) == 0 ? 1.0F : 0.25F;
    const std::int32_t range = 1 + below(40);
    const std::int32_t plain = below(3) * 4;  // how many plain entries go with an odd one
    Reals list(static_cast<std::size_t>(below(80)));
    for (float &entry : list) {
      const auto sign = below(2) == 0 ? 1.0F : -1.0F;
      const bool strange = plain < 8 && below(1 + plain) == 0;
      entry = strange ? odd[below(8)] : sign * unit * static_cast<float>(below(range));
    }
    return list;
  }

  float tolerance() {
    constexpr float tolerances[] = {0, 0.25F, 1, 3, -1, not_a_number, infinity, 1e-40F};
    return tolerances[below(8)];
  }

 private:
  std::mt19937 random_{7};
};

// Runs `work` while no 256 KB can be allocated. Windows has no such limit: there memory is available.
template <class Work>
void without_memory(Work work) {
#ifdef __linux__
  rlimit before;
  getrlimit(RLIMIT_AS, &before);
  const rlimit nothing_more = {0, before.rlim_max};
  setrlimit(RLIMIT_AS, &nothing_more);
  void *left[64];  // what was freed before and would be given out again
  for (void *&piece : left) piece = std::malloc(1 << 18);
  work();
  setrlimit(RLIMIT_AS, &before);
  EXPECT_EQ(left[63], nullptr);
  for (void *piece : left) std::free(piece);
#else
  work();
#endif
}

}  // namespace trelvin_test
