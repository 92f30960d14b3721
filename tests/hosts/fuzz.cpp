// Calls any routine on any bits, with heap blocks of exactly the stated sizes (libFuzzer).
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using random_calls::Addresses;
using random_calls::Argument;
using random_calls::Arguments;
using random_calls::Routine;

class Bytes {
 public:
  Bytes(const std::uint8_t *data, std::size_t size) : data_(data), size_(size) {}

  // Zeros where there are no more.
  std::uint32_t word() {
    std::uint32_t value = 0;
    const std::size_t taken = std::min(size_, sizeof value);
    std::memcpy(&value, data_, taken);
    data_ += taken;
    size_ -= taken;
    return value;
  }

 private:
  const std::uint8_t *data_;
  std::size_t size_;
};

// Counts are small; a Real may be anything.
void fill(Bytes &bytes, Argument &argument) {
  constexpr std::uint32_t counts = 44;
  if (argument.kind == Argument::function) return;
  std::uint32_t word = bytes.word();
  if (argument.kind == Argument::integer) word = word % counts - 2;
  std::memcpy(argument.address(), &word, sizeof word);
}

using Block = std::unique_ptr<std::uint32_t[]>;

Block exact_block(Bytes &bytes, std::size_t elements) {
  Block block(new std::uint32_t[elements]);
  for (std::size_t i = 0; i < elements; ++i) block[i] = bytes.word();
  return block;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  static const std::vector<Routine> routines = all_routines();
  Bytes bytes(data, size);
  const Routine &routine = routines[bytes.word() % routines.size()];
  Arguments arguments = routine.arguments;
  for (Argument &argument : arguments) {
    if (argument.single) fill(bytes, argument);
  }
  random_calls::raise_counts(routine, arguments);
  Addresses addresses = random_calls::addresses_of(arguments);
  std::vector<Block> blocks;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i].single) continue;
    if (routine.sizes[i] == nullptr) return 0;
    blocks.push_back(exact_block(bytes, routine.sizes[i](arguments).elements));
    addresses[i] = blocks.back().get();
  }
  routine.call(addresses);
  return 0;
}
