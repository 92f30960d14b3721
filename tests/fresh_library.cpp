// Restores the library's memory before every test to its state at load, so that the values that routines
// retain are zero at the start of each test.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>
#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <link.h>
#endif

#include "trelvin/plane.h"

namespace {

struct Bytes {
  unsigned char *start;
  std::size_t size;
};

#ifdef _WIN32
// The sections of the DLL that can be written.
std::vector<Bytes> memory_of_library() {
  const char *name = sizeof(void *) == 8 ? "Trelvin64.dll" : "Trelvin.dll";
  auto *const base = reinterpret_cast<unsigned char *>(GetModuleHandleA(name));
  if (base == nullptr) return {};
  const auto *const headers = reinterpret_cast<const IMAGE_NT_HEADERS *>(
      base + reinterpret_cast<const IMAGE_DOS_HEADER *>(base)->e_lfanew);
  const IMAGE_SECTION_HEADER *section = IMAGE_FIRST_SECTION(headers);
  std::vector<Bytes> found;
  for (int i = 0; i < headers->FileHeader.NumberOfSections; ++i, ++section) {
    if ((section->Characteristics & IMAGE_SCN_MEM_WRITE) != 0)
      found.push_back({base + section->VirtualAddress, section->Misc.VirtualSize});
  }
  return found;
}
#else
// The writable segments of the shared library but for what the loader has closed since.
std::vector<Bytes> memory_of_library() {
  static auto *const within = reinterpret_cast<unsigned char *>(&trvpds);
  std::vector<Bytes> found;
  dl_iterate_phdr(
      [](dl_phdr_info *info, std::size_t, void *data) {
        const auto in = [&](const ElfW(Phdr) & header, std::uintptr_t address) {
          return address - info->dlpi_addr - header.p_vaddr < header.p_memsz;
        };
        bool ours = false;
        std::uintptr_t closed = 0;
        for (int i = 0; i < info->dlpi_phnum; ++i) {
          const ElfW(Phdr) &header = info->dlpi_phdr[i];
          ours |= header.p_type == PT_LOAD && in(header, reinterpret_cast<std::uintptr_t>(within));
          if (header.p_type == PT_GNU_RELRO)
            closed = info->dlpi_addr + header.p_vaddr + header.p_memsz;
        }
        for (int i = 0; ours && i < info->dlpi_phnum; ++i) {
          const ElfW(Phdr) &header = info->dlpi_phdr[i];
          if (header.p_type != PT_LOAD || (header.p_flags & PF_W) == 0) continue;
          std::uintptr_t start = info->dlpi_addr + header.p_vaddr;
          const std::uintptr_t end = start + header.p_memsz;
          if (closed > start && closed <= end) start = closed;
          static_cast<std::vector<Bytes> *>(data)->push_back(
              {within + (start - reinterpret_cast<std::uintptr_t>(within)), end - start});
        }
        return 0;
      },
      &found);
  return found;
}
#endif

class FreshLibrary : public testing::EmptyTestEventListener {
  void OnTestProgramStart(const testing::UnitTest & /*program*/) override {
    memory_ = memory_of_library();
    if (memory_.empty()) {
      std::fputs("trelvin_tests: the library's memory was not found\n", stderr);
      std::exit(2);
    }
    for (const Bytes &bytes : memory_)
      copy(bytes.start, at_start_.emplace_back(bytes.size).data(), bytes.size);
  }

  void OnTestStart(const testing::TestInfo & /*test*/) override {
    for (std::size_t i = 0; i < memory_.size(); ++i)
      copy(at_start_[i].data(), memory_[i].start, memory_[i].size);
  }

  // Between the library's variables, AddressSanitizer has bytes that nobody may touch.
#ifdef __clang__
  __attribute__((no_sanitize("address")))
#endif
  static void
  copy(const volatile unsigned char *from, volatile unsigned char *to, std::size_t size) {
    for (; size != 0; --size) *to++ = *from++;
  }

  std::vector<Bytes> memory_;
  std::vector<std::vector<unsigned char>> at_start_;
};

const bool is_listening = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new FreshLibrary);
  return true;
}();

}  // namespace
