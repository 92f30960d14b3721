#include "properties/edge_sums.h"

#include "numeric/processor.h"
#include "properties/edge_terms.h"

namespace trelvin {
namespace {

template <class Result>
Result sum_from_the_left(const Real *x, const Real *y, Integer n) {
  Result result = {};
  for (Integer i = 0; i < n; ++i) add(edge_at<double>(x + i, y + i), result.values);
  return result;
}

const SumsByLanes &widest_sums() {
  return avx2_sums != nullptr && has_avx2() ? *avx2_sums : baseline_sums;
}

}  // namespace

const SumsByLanes baseline_sums = sums_by<BaselineNumber>;

AreaSum area_sum(const Real *x, const Real *y, Integer n) {
  if (n < edges_for_lanes) return sum_from_the_left<AreaSum>(x, y, n);
  return widest_sums().area(x, y, n);
}

FirstMomentSums first_moment_sums(const Real *x, const Real *y, Integer n) {
  if (n < edges_for_lanes) return sum_from_the_left<FirstMomentSums>(x, y, n);
  return widest_sums().first_moments(x, y, n);
}

SecondMomentSums second_moment_sums(const Real *x, const Real *y, Integer n) {
  if (n < edges_for_lanes) return sum_from_the_left<SecondMomentSums>(x, y, n);
  return widest_sums().second_moments(x, y, n);
}

}  // namespace trelvin
