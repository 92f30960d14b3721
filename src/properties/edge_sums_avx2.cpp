// Compiled for AVX2: only a processor that has it may come here.
#include "properties/edge_terms.h"

namespace trelvin {

#if defined(__GNUC__) && defined(__AVX2__)
const SumsByLanes *const avx2_sums = &sums_by<Doubles4>;
#else
const SumsByLanes *const avx2_sums = nullptr;
#endif

}  // namespace trelvin
