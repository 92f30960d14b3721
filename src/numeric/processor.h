// What the processor can do beyond the instructions that the library is compiled for.
#pragma once

namespace trelvin {

// Whether AVX2 may be used: the processor has it, and the system keeps its registers. Found out by the
// first call, in whatever thread.
bool has_avx2();

}  // namespace trelvin
