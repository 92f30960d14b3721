// Element types, constants and tests of magnitude that all rooms of the library share.
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdint>

namespace trelvin {

using Real = float;
using Integer = std::int32_t;

// Every operation on Reals rounds to single precision; extended intermediates would change results.
static_assert(FLT_EVAL_METHOD == 0, "compile with SSE2 arithmetic");

constexpr Real tolerance = 1e-5F;
constexpr Real pi = 3.1415927F;
constexpr Real two_pi = 6.2831855F;
constexpr Real half_pi = 1.5707964F;
constexpr double full_turn = 6.283185307179586;  // for what is formed in double precision

// Tests against the tolerance include it. A NaN is neither negligible nor significant, and not
// within any limit.
inline bool negligible(Real value) { return std::fabs(value) <= tolerance; }
inline bool significant(Real value) { return std::fabs(value) > tolerance; }
inline bool within(Real limit, Real difference) { return limit >= std::fabs(difference); }

}  // namespace trelvin
