// Work for several cores at once.
#pragma once

#include <cstddef>
#include <functional>

namespace host {

// Calls task(0) to task(count - 1), each in a thread of its own as far as the system has threads, and
// waits for all.
void run_all(std::size_t count, const std::function<void(std::size_t)> &task);

}  // namespace host
