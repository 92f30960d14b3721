#include "lines.h"

#include <algorithm>

namespace host {

std::string_view Lines::next() {
  if (is_too_long_) return {};
  buffer_.erase(0, taken_);
  const std::size_t rest = buffer_.size();
  buffer_.resize(rest + block_);
  buffer_.resize(rest + std::fread(&buffer_[rest], 1, block_, file_));
  const bool is_at_end = buffer_.size() < rest + block_;
  taken_ = 0;
  while (taken_ < buffer_.size()) {
    const std::size_t end = std::min(buffer_.find('\n', taken_), buffer_.size());
    is_too_long_ = end - taken_ > longest_line;
    if (is_too_long_ || (end == buffer_.size() && !is_at_end)) break;
    taken_ = std::min(end + 1, buffer_.size());
  }
  read_ += taken_;
  return std::string_view(buffer_).substr(0, taken_);
}

std::string too_long(const std::string &name, std::size_t line) {
  return name + ":" + std::to_string(line) + ": the line is too long; a line must have at most " +
         std::to_string(longest_line) + " bytes";
}

}  // namespace host
