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
using random_calls::Kept;
using random_calls::Routine;
using random_calls::Shape;
using random_calls::Size;
using random_calls::Used;

namespace {

struct Kind {
  Argument::Kind kind;
  bool single, written, read;
};

template <class Type>
constexpr Kind kind_of() {
  if constexpr (std::is_same_v<Type, TrvFunctionIn>) {
    return {Argument::function, true, false, true};
  } else {
    using Element = std::remove_pointer_t<std::remove_reference_t<Type>>;
    constexpr bool real = std::is_same_v<std::remove_const_t<Element>, float>;
    constexpr bool input = std::is_const_v<Element>;
    return {real ? Argument::real : Argument::integer, std::is_reference_v<Type>, !input, input};
  }
}

template <class... Types>
constexpr Kind kinds[] = {kind_of<Types>()...};

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
void call(void (*address)(), const Addresses &addresses, std::index_sequence<i...> /*positions*/) {
  reinterpret_cast<void(TRELVIN_CALL *)(Types...)>(address)(as<Types>(addresses[i])...);
}

template <class... Types>
void call_at(void (*address)(), const Addresses &addresses) {
  call<Types...>(address, addresses, std::index_sequence_for<Types...>());
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
  result.call_at = call_at<Types...>;
  for (const Kind &each : kinds<Types...>)
    result.arguments.push_back({each.kind, each.single, each.written, each.read});
  std::istringstream words(names);
  for (std::string word; words >> word;) result.names.push_back(word);
  result.shape = shape_of(names);
  result.sizes.resize(result.arguments.size());
  result.used.resize(result.arguments.size());
  result.kept.resize(result.arguments.size());
  result.shares_addresses = true;
  return result;
}

// The words that sizes are made of. A negative count counts as none.
using Elements = std::int64_t;

struct Counts {
  Arguments &arguments;
  std::size_t form = 0;

  [[nodiscard]] Elements count(std::size_t i) const { return std::max(kind(i), 0); }
  [[nodiscard]] std::int32_t kind(std::size_t i) const { return *arguments[i].integer_address(); }

  Elements larger(Elements a, Elements b) {
    form = a < b ? 1 : 0;
    return std::max(a, b);
  }

  template <class... Sizes>
  Elements by_kind(std::int32_t kind, Sizes... of_kinds) {
    const Elements sizes[] = {of_kinds...};
    form = static_cast<std::size_t>(kind) - 1;
    return form < sizeof...(Sizes) ? sizes[form] : 0;
  }
};

std::size_t none_below_zero(Elements elements) {
  return static_cast<std::size_t>(std::max<Elements>(elements, 0));
}

constexpr std::int32_t none = random_calls::Status::none;

// What each line of routines.inc adds: one long function would be compiled for many seconds.
#define ADD(...) [](std::vector<Routine> &all) { __VA_ARGS__; },
constexpr void (*lines[])(std::vector<Routine> &all) = {
#define ROUTINE(name, count, names) ADD(all.push_back(routine_of(#name, name, names)))
#define SIZE(name, argument, stated)                                  \
  ADD(all.back().sizes[argument] = [](Arguments &arguments) -> Size { \
    Counts of = {arguments};                                          \
    const std::size_t elements = none_below_zero(stated);             \
    return {elements, of.form};                                       \
  })
#define USED(name, argument, number, scratch)                        \
  ADD(all.back().used[argument] = [](Arguments &arguments) -> Used { \
    [[maybe_unused]] const Counts of = {arguments};                  \
    return {none_below_zero(number), none_below_zero(scratch)};      \
  })
#define READ(name, argument) ADD(all.back().arguments[argument].read = true)
#define KEPT(name, argument, teller, further, ...) \
  ADD(all.back().kept[argument] = {Kept::by_value, teller, further, {__VA_ARGS__}})
#define KEPT_BELOW(name, argument, teller, bound) \
  ADD(all.back().kept[argument] = {Kept::below, teller, bound, {}})
#define KEPT_ON_CONDITION(name, argument) \
  ADD(all.back().kept[argument] = {Kept::on_condition, 0, none, {}})
#define KEPT_ALWAYS(name, argument) ADD(all.back().kept[argument] = {Kept::always, 0, none, {}})
#define RETAINS(name, owner) ADD(all.back().retains.emplace_back(#owner))
#define LEAST(name, argument, value) ADD(all.back().least.emplace_back(argument, value))
#define STATUS(name, argument, further, ...) \
  ADD(all.back().statuses.push_back({argument, further, {__VA_ARGS__}}))
#define UNSHARED(name) ADD(all.back().shares_addresses = false)
#include "routines.inc"
};

}  // namespace

std::vector<Routine> all_routines() {
  std::vector<Routine> all;
  for (const auto add : lines) add(all);
  for (std::size_t i = 0; i < all.size(); ++i) all[i].seed = 20 + i;
  return all;
}
