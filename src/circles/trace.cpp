#include "circles/trace.h"

#include <algorithm>
#include <cmath>

#include "circles/decimal.h"

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace trelvin {
namespace {

constexpr const char *file_name = "OUTPUT.TXT";

#ifdef _WIN32
constexpr std::string_view line_end = "\r\n";
#else
constexpr std::string_view line_end = "\n";
#endif

constexpr std::size_t digit_width = 12;
constexpr std::size_t real_width = 16;

// The system's last error, which stays as the host had it.
class HostError {
 public:
#ifdef _WIN32
  HostError() : error_(GetLastError()) {}
  ~HostError() { SetLastError(error_); }
#else
  HostError() : error_(errno) {}
  ~HostError() { errno = error_; }
#endif
  HostError(const HostError &) = delete;
  HostError &operator=(const HostError &) = delete;

 private:
#ifdef _WIN32
  DWORD error_;
#else
  int error_;
#endif
};

#ifdef _WIN32
// Appending in one piece is the system's promise, but not every system that runs Windows programs
// keeps it between processes. So writers take turns by the lock of a byte far behind the text. One
// that was stopped in its turn holds up nobody for long: the others write after a while. Where there
// are no locks, as on some network drives, they write at once.
class Turn {
 public:
  explicit Turn(HANDLE file) : file_(file) {
    constexpr DWORD at_once = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    for (int attempt = 0; attempt < 1000; ++attempt) {
      has_lock_ = LockFileEx(file_, at_once, 0, 1, 0, &byte_) != 0;
      if (has_lock_ || GetLastError() != ERROR_LOCK_VIOLATION) return;
    }
  }
  ~Turn() {
    if (has_lock_) UnlockFileEx(file_, 0, 1, 0, &byte_);
  }
  Turn(const Turn &) = delete;
  Turn &operator=(const Turn &) = delete;

 private:
  HANDLE file_;
  OVERLAPPED byte_ = byte_at(1U << 30);
  bool has_lock_ = false;

  static OVERLAPPED byte_at(DWORD offset_high) {
    OVERLAPPED overlapped = {};
    overlapped.OffsetHigh = offset_high;
    return overlapped;
  }
};

HANDLE open_to_append(DWORD access) {
  return CreateFileA(file_name, access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
}
#endif

}  // namespace

TraceRecord &TraceRecord::begin_line() {
  if (length_ > line_end.size()) end_line();
  return text(" ");
}

void TraceRecord::end_line() { text(line_end); }

TraceRecord &TraceRecord::text(std::string_view text) {
  const std::size_t size = std::min(text.size(), sizeof buffer_ - length_);
  std::copy_n(text.data(), size, buffer_ + length_);
  length_ += size;
  return *this;
}

TraceRecord &TraceRecord::digit(Integer value) {
  const char character = static_cast<char>('0' + value);
  field({&character, 1}, digit_width);
  return *this;
}

TraceRecord &TraceRecord::real(Real value) {
  if (std::isnan(value)) {
    field("NaN", real_width);
  } else if (std::isinf(value)) {
    field(value < 0 ? "-Infinity" : "Infinity", real_width);
  } else {
    field(scientific(value).view(), real_width);
  }
  return *this;
}

std::string_view TraceRecord::lines() const {
  return {buffer_ + line_end.size(), length_ - line_end.size()};
}

void TraceRecord::field(std::string_view value, std::size_t width) {
  for (std::size_t i = value.size(); i < width; ++i) text(" ");
  text(value);
}

void TraceFile::append(const TraceRecord &record) {
  const HostError host_error;
  if (!write(torn_ ? record.lines_after_end() : record.lines())) close();
}

#ifdef _WIN32

bool TraceFile::write(std::string_view bytes) {
  if (!open_) {
    handle_ = open_to_append(FILE_APPEND_DATA | FILE_READ_DATA);  // to read is what a lock asks for
    if (handle_ == INVALID_HANDLE_VALUE) handle_ = open_to_append(FILE_APPEND_DATA);
    open_ = handle_ != INVALID_HANDLE_VALUE;
    if (!open_) return false;
  }
  const Turn turn(handle_);
  DWORD written = 0;
  WriteFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  if (written > 0) torn_ = written < bytes.size();
  return written == bytes.size();
}

void TraceFile::close() {
  if (open_) CloseHandle(handle_);
  open_ = false;
}

#else

bool TraceFile::write(std::string_view bytes) {
  if (!open_) {
    handle_ = ::open(file_name, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    open_ = handle_ >= 0;
    if (!open_) return false;
  }
  const ssize_t written = ::write(handle_, bytes.data(), bytes.size());
  if (written > 0) torn_ = static_cast<std::size_t>(written) < bytes.size();
  return written == static_cast<ssize_t>(bytes.size());
}

void TraceFile::close() {
  if (open_) ::close(handle_);
  open_ = false;
}

#endif

}  // namespace trelvin
