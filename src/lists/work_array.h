// Memory for the length of a call.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <type_traits>

namespace trelvin {

struct Release {
  void operator()(void *memory) const { std::free(memory); }
};

template <class Element>
using WorkArray = std::unique_ptr<Element[], Release>;

// Elements of no particular value, or nothing if memory is short; never an exception.
template <class Element>
WorkArray<Element> work_array(std::int64_t size) {
  static_assert(std::is_trivial_v<Element>);
  if (static_cast<std::uint64_t>(size) > SIZE_MAX / sizeof(Element)) return nullptr;
  const auto room = static_cast<std::size_t>(std::max(size, std::int64_t{1}));
  return WorkArray<Element>(static_cast<Element *>(std::malloc(room * sizeof(Element))));
}

}  // namespace trelvin
