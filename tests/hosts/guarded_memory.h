// Memory between two pages that no program may touch.
#pragma once

#include <cstddef>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

class GuardedMemory {
 public:
  explicit GuardedMemory(std::size_t pages) : size_(pages * page_size()) {
    const std::size_t whole = size_ + 2 * page_size();
#ifdef _WIN32
    whole_ = static_cast<char *>(VirtualAlloc(nullptr, whole, MEM_RESERVE, PAGE_NOACCESS));
    if (whole_ != nullptr) VirtualAlloc(begin(), size_, MEM_COMMIT, PAGE_READWRITE);
#else
    void *const address = mmap(nullptr, whole, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    whole_ = address == MAP_FAILED ? nullptr : static_cast<char *>(address);
    if (whole_ != nullptr) mprotect(begin(), size_, PROT_READ | PROT_WRITE);
#endif
  }

  [[nodiscard]] bool valid() const { return whole_ != nullptr; }
  [[nodiscard]] char *begin() const { return whole_ + page_size(); }
  [[nodiscard]] char *end() const { return begin() + size_; }
  [[nodiscard]] std::size_t size() const { return size_; }

 private:
  static std::size_t page_size() {
#ifdef _WIN32
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    return system.dwPageSize;
#else
    return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
#endif
  }

  std::size_t size_;
  char *whole_;  // for the life of the process
};
