#include "profiles.h"

#include "catalogue.h"

namespace host {
namespace {

template <class P>
constexpr P given(const float *d) {
  return made_of<P>([d](std::size_t i) { return d[i]; });
}

// All that the description must have, and a start that is a section.
template <class P>
constexpr bool is_complete() {
  for (std::size_t i = 0; i < P::about.dimensions.size(); ++i) {
    if (P::about.dimensions[i].start <= 0) return false;
  }
  return !P::about.letters.empty() &&
         made_of<P>([](std::size_t i) { return P::about.dimensions[i].start; }).fault() == nullptr;
}

template <class P>
constexpr Profile profile() {
  static_assert(is_complete<P>());
  return {P::about, [](const float *d) { return given<P>(d).fault(); },
          [](const float *d) { return given<P>(d).section(); },
          [](const float *d) { return given<P>(d).torsion(); },
          [](const float *d, const Box &box) { return given<P>(d).measures(box); }};
}

template <class... P>
constexpr std::array<Profile, sizeof...(P)> list_of(Kinds<P...> /*profiles*/) {
  return {profile<P>()...};
}

constexpr auto all = list_of(Catalogue());

}  // namespace

Profiles profiles() { return {all.data(), all.data() + all.size()}; }

}  // namespace host
