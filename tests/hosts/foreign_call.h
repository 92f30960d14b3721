// Calls a routine while the processor is in a state that a host may leave it in (x86).
#pragma once

#include <cstdint>

// What the state is before the call, and what it is right after it.
struct ForeignCall {
  std::uint32_t mxcsr;
  std::uint32_t x87_control;
  std::uint32_t x87_status;  // set by the call, as all below
  std::uint32_t flags;
  std::uint32_t spoiled;  // registers or stack are not as a callee must leave them
  std::uint32_t own_mxcsr;
  std::uint32_t own_x87_control;
  std::uint32_t stack_offset;  // from a multiple of 16; of 32-bit programs, and as they set it
};

// `arguments` has room for six addresses at least. The state of the caller is back afterwards.
extern "C" {
#ifdef __x86_64__
[[gnu::sysv_abi]]  // on Windows too
#endif
void foreign_call(void (*routine)(), void *const *arguments, int count, ForeignCall *call);
}
