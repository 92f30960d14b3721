// Calls every routine in a processor state that a host may have set, and with each alignment that a
// 32-bit host's stack may have: each must give the golden bits, and leave the state, the sticky flags
// included, as it was.
//
//     states DIGEST MXCSR X87    both control words in hexadecimal
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "hosts/foreign_call.h"
#include "hosts/golden_bits.h"
#include "hosts/hash.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using random_calls::Addresses;
using random_calls::Arguments;
using random_calls::Routine;

constexpr std::uint32_t direction_flag = 0x400;
constexpr std::uint32_t x87_flags = 0x38FF;  // exceptions and stack top; not what comparisons leave

// What a call in the state leaves otherwise than it should; null when all is well.
const char *call_in_state(const Routine &routine, Arguments &arguments, const ForeignCall &state) {
  Addresses addresses = random_calls::addresses_of(arguments);
  const auto count = static_cast<int>(addresses.size());
  addresses.resize(addresses.size() + 6);
  ForeignCall call = state;
  static std::uint32_t offset = 0;
  call.stack_offset = offset = (offset + 4) % 16;
  foreign_call(routine.address, addresses.data(), count, &call);
  if (call.mxcsr != state.mxcsr) return "changes the SSE control and status word";
  if (call.x87_control != state.x87_control) return "changes the x87 control word";
  if ((call.x87_status & x87_flags) != 0) return "changes the x87 status word";
  if ((call.flags & direction_flag) != 0) return "leaves the direction flag set";
  return call.spoiled != 0 ? "spoils the stack or a register of its caller" : nullptr;
}

int faults_of(const Routine &routine, const ForeignCall &state, std::uint64_t golden) {
  Hash hash;
  const char *fault = nullptr;
  random_calls::draw(routine, calls_per_routine, [&](Arguments &arguments) {
    const char *const found = call_in_state(routine, arguments, state);
    if (found != nullptr) fault = found;
    hash.add(arguments);
  });
  if (fault != nullptr) std::printf("%s %s\n", routine.name, fault);
  if (hash.value() != golden) {
    std::printf("%s gives %016" PRIx64 ", not the golden bits\n", routine.name, hash.value());
  }
  return (fault != nullptr ? 1 : 0) + (hash.value() != golden ? 1 : 0);
}

}  // namespace

int main(int argc, char **argv) {
  if (argc < 4) return 2;
  const auto digest = read_digest(argv[1]);
  ForeignCall state = {};
  state.mxcsr = static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 16));
  state.x87_control = static_cast<std::uint32_t>(std::strtoul(argv[3], nullptr, 16));
  int faults = 0;
  int routines = 0;
  for (const Routine &routine : all_routines()) {
    const auto golden = digest.find(routine.name);
    faults += faults_of(routine, state, golden == digest.end() ? 0 : golden->second);
    std::fflush(stdout);  // in case that the next one dies
    ++routines;
  }
  std::printf("%d routines with SSE %04x and x87 %04x, %d faults\n", routines,
              static_cast<unsigned>(state.mxcsr), static_cast<unsigned>(state.x87_control), faults);
  return faults == 0 ? 0 : 1;
}
