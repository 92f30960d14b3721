// Gives every output the address of each single input of its type in turn: the call must leave what
// it leaves with separate addresses. An output that is an array shares its first element.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

#include "hosts/hash.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using random_calls::Addresses;
using random_calls::Arguments;
using random_calls::Routine;

constexpr int calls_per_pair = 60;

// The hash of a call's outputs, and of its inputs but for the one whose place an output shares.
std::uint64_t hash_of(const Arguments &arguments, std::size_t shared) {
  Hash hash;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (i == shared) continue;
    arguments[i].visit_bits([&](std::uint32_t bits) { hash.add(bits); });
  }
  return hash.value();
}

using Settle = void (*)(const Routine &routine, const Arguments &drawn);

// The same call beforehand gives both calls the same retained values, for most routines.
void call_beforehand(const Routine &routine, const Arguments &drawn) {
  Arguments arguments = drawn;
  routine.call(random_calls::addresses_of(arguments));
}

// Routines that keep state between calls need a series of other calls to reach the same state again.
void call_others(const Routine &routine, const Arguments & /*drawn*/) {
  constexpr int enough = 20;
  random_calls::draw(routine, enough, [&](Arguments &arguments) {
    routine.call(random_calls::addresses_of(arguments));
  });
}

bool agrees(const Routine &routine, const Arguments &drawn, std::size_t in, std::size_t out,
            Settle settle) {
  Arguments apart = drawn;
  std::memcpy(apart[out].address(), apart[in].address(), sizeof(float));
  Arguments together = apart;
  settle(routine, apart);
  routine.call(random_calls::addresses_of(apart));
  Addresses addresses = random_calls::addresses_of(together);
  addresses[in] = addresses[out];
  settle(routine, apart);
  routine.call(addresses);
  return hash_of(apart, in) == hash_of(together, in);
}

// Prints the pairs of a routine that differ and returns their number.
int differences(const Routine &routine, int &pairs) {
  const Arguments &arguments = routine.arguments;
  int differing = 0;
  for (std::size_t in = 0; in < arguments.size(); ++in) {
    if (!arguments[in].single || arguments[in].written) continue;
    for (std::size_t out = 0; out < arguments.size(); ++out) {
      if (!arguments[out].written || arguments[out].kind != arguments[in].kind) continue;
      bool same = true;
      random_calls::draw(routine, calls_per_pair, [&](const Arguments &drawn) {
        same = same && (agrees(routine, drawn, in, out, call_beforehand) ||
                        agrees(routine, drawn, in, out, call_others));
      });
      ++pairs;
      if (same) continue;
      ++differing;
      std::printf("%s: %s may not have the address of %s\n", routine.name,
                  routine.names[out].c_str(), routine.names[in].c_str());
    }
  }
  return differing;
}

}  // namespace

int main() {
  int pairs = 0;
  int differing = 0;
  int unshared = 0;
  for (const Routine &routine : all_routines()) {
    if (routine.shares_addresses) {
      differing += differences(routine, pairs);
    } else {
      ++unshared;
    }
  }
  std::printf("%d pairs of an input and an output, %d differ; %d routines exclude it\n", pairs,
              differing, unshared);
  return differing == 0 ? 0 : 1;
}
