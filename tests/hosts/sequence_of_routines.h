// Every routine, with the seed of its own sequence of calls.
#pragma once

#include <vector>

#include "hosts/random_calls.h"

constexpr int calls_per_routine = 2500;

std::vector<random_calls::Routine> all_routines();
