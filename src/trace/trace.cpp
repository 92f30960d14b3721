#include "trace/trace.h"

#include <algorithm>
#include <cmath>

#include "trace/decimal.h"

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#ifndef __wasi__  // which has no signals
#include <csignal>
#endif
#ifdef __linux__
#include <sys/syscall.h>
#endif
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

HANDLE open_to_append(DWORD access) {
  return CreateFileA(file_name, access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
}

// Appending in one piece is the system's promise, but not every system that runs Windows programs
// keeps it between processes. So writers take turns by the lock of a byte far behind the text. If
// there are no locks, as on some network drives, they write at once.
class LockOfFile {
 public:
  // Waits as long as the file grows, because then its turn comes. If the file does not grow for a
  // quarter of a second, the process that has the lock was stopped. The turn is then missed, and so
  // is every later one, without waiting, until the file grows or the lock is free.
  LockOfFile(HANDLE file, std::optional<std::uint32_t> &stuck_at) : file_(file) {
    if (!is_taken()) return;
    DWORD size = GetFileSize(file_, nullptr);
    DWORD start = GetTickCount();
    missed_ = stuck_at == size;
    for (int attempt = 0; !missed_ && is_taken(); ++attempt) {
      Sleep(attempt < 100 ? 0 : 1);
      if (GetTickCount() - start < 250) continue;
      const DWORD before = size;
      size = GetFileSize(file_, nullptr);
      start = GetTickCount();
      missed_ = size == before;
    }
    if (missed_) stuck_at = size;
  }
  ~LockOfFile() {
    if (has_lock_) UnlockFileEx(file_, 0, 1, 0, &byte_);
  }
  LockOfFile(const LockOfFile &) = delete;
  LockOfFile &operator=(const LockOfFile &) = delete;

  [[nodiscard]] bool missed() const { return missed_; }

 private:
  HANDLE file_;
  OVERLAPPED byte_ = byte_at(1U << 30);
  bool has_lock_ = false;
  bool missed_ = false;

  bool is_taken() {
    constexpr DWORD at_once = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    has_lock_ = LockFileEx(file_, at_once, 0, 1, 0, &byte_) != 0;
    return !has_lock_ && GetLastError() == ERROR_LOCK_VIOLATION;
  }

  static OVERLAPPED byte_at(DWORD offset_high) {
    OVERLAPPED overlapped = {};
    overlapped.OffsetHigh = offset_high;
    return overlapped;
  }
};

#else

// The C library has symbols named fstat and stat only since its version 2.33. To load with older
// versions, the library asks the system itself, which on these machines fills the same structure.
#if defined(__GLIBC__) && defined(__LP64__) && \
    (defined(__x86_64__) || defined(__aarch64__) || defined(__riscv) || defined(__s390x__))
bool look_at(int file, struct stat &found) { return syscall(SYS_fstat, file, &found) == 0; }
bool look_at(const char *name, struct stat &found) {
  return syscall(SYS_newfstatat, AT_FDCWD, name, &found, 0) == 0;
}
#else
bool look_at(int file, struct stat &found) { return fstat(file, &found) == 0; }
bool look_at(const char *name, struct stat &found) { return stat(name, &found) == 0; }
#endif

int open_to_append() {
  struct stat found;  // to open a pipe would wake those who wait at its other end
  if (look_at(file_name, found) && !S_ISREG(found.st_mode)) return -1;
  constexpr int mode = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK;
#ifdef __wasi__
  return ::open(file_name, mode, 0666);
#else
  const int file = ::open(file_name, mode | O_NOCTTY, 0666);
  if (file < 0 || file > STDERR_FILENO) return file;
  // A host that has closed its standard output must not print into the trace.
  const int higher = fcntl(file, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  ::close(file);
  return higher;
#endif
}

#ifndef __wasi__
// Holds back, from this thread, the signal by which the system ends a host whose file is at the
// limit of its size.
class LimitSignal {
 public:
  LimitSignal() {
    sigemptyset(&signal_);
    sigaddset(&signal_, SIGXFSZ);
    sigprocmask(SIG_BLOCK, &signal_, &before_);
    if (sigismember(&before_, SIGXFSZ) != 1) return;
    sigset_t pending;
    is_the_hosts_ = sigpending(&pending) == 0 && sigismember(&pending, SIGXFSZ) == 1;
  }
  ~LimitSignal() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  LimitSignal(const LimitSignal &) = delete;
  LimitSignal &operator=(const LimitSignal &) = delete;

  void take_back() {
    constexpr timespec at_once = {};
    if (!is_the_hosts_) sigtimedwait(&signal_, nullptr, &at_once);
  }

 private:
  sigset_t signal_, before_;
  bool is_the_hosts_ = false;
};
#endif

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
  open_ = (open_ && still_has_file()) || open();
  if (open_ && !write(torn_ ? record.lines_after_end() : record.lines())) close();
}

#ifdef _WIN32

bool TraceFile::open() {
  handle_ = open_to_append(FILE_APPEND_DATA | FILE_READ_DATA);  // to read is what a lock asks for
  if (handle_ == INVALID_HANDLE_VALUE) handle_ = open_to_append(FILE_APPEND_DATA);
  if (handle_ == INVALID_HANDLE_VALUE) return false;
  if (GetFileType(handle_) != FILE_TYPE_DISK) {
    CloseHandle(handle_);
    return false;
  }
  SetHandleInformation(handle_, HANDLE_FLAG_PROTECT_FROM_CLOSE, HANDLE_FLAG_PROTECT_FROM_CLOSE);
  torn_ = torn_ && GetFileSize(handle_, nullptr) > 0;
  return true;
}

// No host can close the handle and so get the same one for a file of its own.
bool TraceFile::still_has_file() const { return true; }

bool TraceFile::write(std::string_view bytes) {
  const LockOfFile lock(handle_, stuck_at_);
  if (lock.missed()) return true;  // the file stays open
  DWORD written = 0;
  WriteFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  if (written > 0) torn_ = written < bytes.size();
  return written == bytes.size();
}

void TraceFile::close() {
  if (open_) {
    SetHandleInformation(handle_, HANDLE_FLAG_PROTECT_FROM_CLOSE, 0);
    CloseHandle(handle_);
  }
  open_ = false;
}

#else

bool TraceFile::open() {
  handle_ = open_to_append();
  if (handle_ < 0) return false;
  struct stat found;
  if (!look_at(handle_, found) || !S_ISREG(found.st_mode)) {
    ::close(handle_);
    return false;
  }
  file_ = {found.st_dev, found.st_ino, fcntl(handle_, F_GETFL)};
  torn_ = torn_ && found.st_size > 0;
  return true;
}

// A daemon closes all numbers that it finds open. If the host has done so, the number may belong to
// a file of the host's, which is neither written to nor closed. If a user has deleted the trace
// file, it is closed.
bool TraceFile::still_has_file() const {
  struct stat now;
  if (!look_at(handle_, now) || now.st_dev != file_.device || now.st_ino != file_.number ||
      fcntl(handle_, F_GETFL) != file_.access) {
    return false;
  }
  if (now.st_nlink == 0) ::close(handle_);
  return now.st_nlink > 0;
}

bool TraceFile::write(std::string_view bytes) {
#ifdef __wasi__
  const ssize_t written = ::write(handle_, bytes.data(), bytes.size());
#else
  LimitSignal limit_signal;
  const ssize_t written = ::write(handle_, bytes.data(), bytes.size());
  if (written < 0) limit_signal.take_back();
#endif
  if (written > 0) torn_ = static_cast<std::size_t>(written) < bytes.size();
  return written == static_cast<ssize_t>(bytes.size());
}

void TraceFile::close() {
  if (open_ && still_has_file()) ::close(handle_);
  open_ = false;
}

#endif

}  // namespace trelvin
