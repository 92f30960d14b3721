#include "circles/trace.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace trelvin {
namespace {

#ifdef _WIN32
constexpr std::string_view line_end = "\r\n";
#else
constexpr std::string_view line_end = "\n";
#endif

constexpr std::size_t integer_width = 12;
constexpr std::size_t real_width = 16;

// Open from the first record to the end of the process or the unloading of the library.
class TraceFile {
 public:
  TraceFile() = default;
  TraceFile(const TraceFile &) = delete;
  TraceFile &operator=(const TraceFile &) = delete;
  ~TraceFile() { close(); }

  void append(const char *bytes, std::size_t size) {
    if (file_ == nullptr) file_ = std::fopen("OUTPUT.TXT", "ab");
    if (file_ == nullptr) return;
    if (std::fwrite(bytes, 1, size, file_) != size || std::fflush(file_) != 0) close();
  }

 private:
  void close() {
    if (file_ != nullptr) std::fclose(file_);
    file_ = nullptr;
  }

  std::FILE *file_ = nullptr;
};

TraceFile trace_file;

}  // namespace

TraceRecord &TraceRecord::begin_line() {
  if (length_ > 0) text(line_end);
  return text(" ");
}

TraceRecord &TraceRecord::text(std::string_view text) {
  const std::size_t size = std::min(text.size(), sizeof buffer_ - length_);
  std::copy_n(text.data(), size, buffer_ + length_);
  length_ += size;
  return *this;
}

TraceRecord &TraceRecord::integer(Integer value) {
  char digits[integer_width];
  char *const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  field({digits, static_cast<std::size_t>(end - digits)}, integer_width);
  return *this;
}

TraceRecord &TraceRecord::real(Real value) {
  char digits[real_width];
  if (std::isnan(value)) {
    field("NaN", real_width);
  } else if (std::isinf(value)) {
    field(value < 0 ? "-Infinity" : "Infinity", real_width);
  } else {
    char *const end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::scientific, 8).ptr;
    field({digits, static_cast<std::size_t>(end - digits)}, real_width);
  }
  return *this;
}

void TraceRecord::field(std::string_view value, std::size_t width) {
  for (std::size_t i = value.size(); i < width; ++i) text(" ");
  text(value);
}

void TraceRecord::append_to_file() {
  text(line_end);
  trace_file.append(buffer_, length_);
}

}  // namespace trelvin
