// The batch from one stream to another.
#pragma once

#include <cstdio>

#include "batch.h"

namespace host {

struct BatchRun {
  Extent extent = Extent::properties;
  std::size_t jobs = 1;
  std::size_t size = 0;       // of the input in bytes, 0 when unknown
  bool has_progress = false;  // a bar on standard error
};

struct BatchResult {
  Tally tally;
  std::size_t too_long = 0;  // number of the line that ended the batch as too long, 0 for none
  bool is_read = true;
  bool is_written = true;
};

BatchResult run_batch(std::FILE *input, std::FILE *output, const BatchRun &run);

}  // namespace host
