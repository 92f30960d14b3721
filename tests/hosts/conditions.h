// The conditions in words under which outputs keep what the caller had there.
#pragma once

#include <bitset>
#include <cstdint>
#include <string>
#include <vector>

#include "hosts/random_calls.h"

// Elements of an argument; a single one has the first.
using Elements = std::bitset<random_calls::Argument::room>;

// A call by the names of its arguments: inputs as they were, outputs as they are.
class Call {
 public:
  Call(const random_calls::Routine &routine, random_calls::Arguments &before,
       random_calls::Arguments &after)
      : routine_(routine), before_(before), after_(after) {}

  float real(const char *name) { return *of(name).real_address(); }
  const float *reals(const char *name) { return of(name).real_address(); }
  std::int32_t integer(const char *name) { return *of(name).integer_address(); }

 private:
  random_calls::Argument &of(const char *name);

  const random_calls::Routine &routine_;
  random_calls::Arguments &before_;  // those that are read and written
  random_calls::Arguments &after_;
};

struct Condition {
  const char *routine;
  std::string outputs;  // by their names
  Elements (*kept)(Call &call);
};

const std::vector<Condition> &conditions();
