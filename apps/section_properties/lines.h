// A file as lines.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace host {

// The limit for the length of a line in bytes, without the line's end. No table of sections comes
// near it: a longer line is a file of another kind.
constexpr std::size_t longest_line = 65536;

// Reads whole lines, block after block.
class Lines {
 public:
  // A block must be longer than the longest line.
  Lines(std::FILE *file, std::size_t block) : file_(file), block_(block) {}

  // The next lines. Empty after the last line, and before a line that is too long.
  std::string_view next();

  // Whether the line after those returned so far is too long.
  [[nodiscard]] bool is_too_long() const { return is_too_long_; }

  // The number of bytes returned so far.
  [[nodiscard]] std::size_t read() const { return read_; }

 private:
  std::FILE *file_;
  std::size_t block_;
  std::string buffer_;
  std::size_t taken_ = 0;  // of the buffer, by the lines last handed out
  std::size_t read_ = 0;
  bool is_too_long_ = false;
};

// Why a file whose line with this number is too long is not read.
std::string too_long(const std::string &name, std::size_t line);

}  // namespace host
