#include "hosts/sequence_of_routines.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include "trelvin/trelvin.h"

using random_calls::Addresses;
using random_calls::Argument;
using random_calls::Arguments;
using random_calls::Routine;
using random_calls::Shape;

namespace {

template <class Type>
Argument argument_of() {
  if constexpr (std::is_same_v<Type, TrvFunctionIn>) {
    return {Argument::function, true, false};
  } else {
    using Element = std::remove_pointer_t<std::remove_reference_t<Type>>;
    return {
        std::is_same_v<std::remove_const_t<Element>, float> ? Argument::real : Argument::integer,
        std::is_reference_v<Type>, !std::is_const_v<Element>};
  }
}

template <class Type>
Type as(void *address) {
  if constexpr (std::is_same_v<Type, TrvFunctionIn>) {
    return reinterpret_cast<Type>(address);
  } else if constexpr (std::is_reference_v<Type>) {
    return *static_cast<std::remove_reference_t<Type> *>(address);
  } else {
    return static_cast<Type>(address);
  }
}

template <class... Types, std::size_t... i>
auto call_of(void(TRELVIN_CALL *routine)(Types...), std::index_sequence<i...> /*positions*/) {
  return [routine](const Addresses &addresses) { routine(as<Types>(addresses[i])...); };
}

Shape shape_of(const std::string &names) {
  const auto starts = [&](const std::string &start) { return names.rfind(start, 0) == 0; };
  const auto holds = [&](const std::string &part) { return names.find(part) != std::string::npos; };
  if (starts("xc yc xa ya xb yb")) return Shape::arc;
  if (starts("n X1 Y1 X2 Y2 T")) return Shape::plates;
  if (starts("bl w t r1 r2 s1 s2")) return Shape::plate_stresses;
  if (starts("a1 b1 c1 d1 a2 b2 c2 d2 px")) return Shape::whole;  // it would retain a NaN for good
  return holds(" IA IB") || holds(" IAB JAB") ? Shape::pairs : Shape::free;
}

template <class... Types>
Routine routine_of(const char *name, void(TRELVIN_CALL *routine)(Types...),
                   const std::string &names) {
  Routine result = {};
  result.name = name;
  result.address = reinterpret_cast<void (*)()>(routine);
  result.call = call_of(routine, std::index_sequence_for<Types...>());
  result.arguments = {argument_of<Types>()...};
  std::istringstream words(names);
  for (std::string word; words >> word;) result.names.push_back(word);
  result.shape = shape_of(names);
  result.sizes.resize(result.arguments.size());
  result.shares_addresses = true;
  return result;
}

// The words that sizes are made of. A negative count counts as none.
using Elements = std::int64_t;

struct Counts {
  Arguments &arguments;

  [[nodiscard]] Elements count(std::size_t i) const { return std::max(kind(i), 0); }
  [[nodiscard]] std::int32_t kind(std::size_t i) const { return *arguments[i].integer_address(); }
};

[[maybe_unused]] Elements larger(Elements a, Elements b) { return std::max(a, b); }

template <class... Sizes>
Elements by_kind(std::int32_t kind, Sizes... of_kinds) {
  const Elements sizes[] = {of_kinds...};
  const auto i = static_cast<std::size_t>(kind) - 1;
  return i < sizeof...(Sizes) ? sizes[i] : 0;
}

}  // namespace

std::vector<Routine> all_routines() {  // NOLINT(readability-function-size)
  constexpr std::int32_t none = random_calls::Status::none;
  std::vector<Routine> routines;
#define ROUTINE(name, count, names)                   \
  routines.push_back(routine_of(#name, name, names)); \
  routines.back().seed = 20 + routines.size() - 1;
#define SIZE(name, argument, elements)                                 \
  routines.back().sizes[argument] = [](Arguments &arguments) {         \
    const Counts counts = {arguments};                                 \
    const auto count = [&](std::size_t i) { return counts.count(i); }; \
    const auto kind = [&](std::size_t i) { return counts.kind(i); };   \
    static_cast<void>(count), static_cast<void>(kind);                 \
    return static_cast<std::size_t>(std::max<Elements>(elements, 0));  \
  };
#define LEAST(name, argument, value) routines.back().least.emplace_back(argument, value);
#define STATUS(name, argument, further, ...) \
  routines.back().statuses.push_back({argument, further, {__VA_ARGS__}});
#define UNSHARED(name) routines.back().shares_addresses = false;
#define RETAINS(name, owner) routines.back().retains = true;
#include "routines.inc"
  return routines;
}
