// The parts that a section is the sum of.
#pragma once

#include <optional>

#include "properties/moments.h"

namespace trelvin {

enum class PartKind : Integer {
  concentrated_area = 1,
  polygon,
  full_circle,
  smaller_segment,
  larger_segment
};

struct SectionPart {
  PartKind kind;
  PlaneArrays points;  // of a polygon closed; no more than the kind asks for are read
  Integer n;           // vertices of a polygon
  Real area;           // of a concentrated area
};

// Nothing for an unknown kind.
std::optional<Real> area_of(const SectionPart &part);
std::optional<FirstMoments> first_moments_of(const SectionPart &part);
// `own` are a concentrated area's, about axes through its point that are turned by `angle`.
std::optional<SecondMoments> second_moments_of(const SectionPart &part, SecondMoments own,
                                               Real angle);

}  // namespace trelvin
