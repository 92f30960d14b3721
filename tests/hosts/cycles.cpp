// Loads the library by name, calls it and unloads it, many times: nothing of it may stay behind.
//
//     cycles LIBRARY
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>
#endif

#include "trelvin/trelvin.h"

namespace {

struct Holdings {
  std::size_t bytes;  // allocated from the heaps of the process
  std::size_t files;  // open; on Windows those that are cannot be deleted
};

#ifdef _WIN32
using Library = HMODULE;
Library load(const char *name) { return LoadLibraryA(name); }
void unload(Library library) { FreeLibrary(library); }
bool is_loaded(const char *name) { return GetModuleHandleA(name) != nullptr; }
template <class Routine>
Routine *find(Library library, const char *name) {
  return reinterpret_cast<Routine *>(reinterpret_cast<void *>(GetProcAddress(library, name)));
}

Holdings holdings() {
  Holdings sum = {0, 0};
  HANDLE heaps[64];
  const DWORD count = GetProcessHeaps(64, heaps);
  for (DWORD i = 0; i < count && i < 64; ++i) {
    PROCESS_HEAP_ENTRY entry = {};
    while (HeapWalk(heaps[i], &entry) != 0) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) sum.bytes += entry.cbData;
    }
  }
  return sum;
}
#else
using Library = void *;
Library load(const char *name) { return dlopen(name, RTLD_NOW); }
void unload(Library library) { dlclose(library); }
bool is_loaded(const char *name) { return dlopen(name, RTLD_NOW | RTLD_NOLOAD) != nullptr; }
template <class Routine>
Routine *find(Library library, const char *name) {
  return reinterpret_cast<Routine *>(dlsym(library, name));
}

Holdings holdings() {
  Holdings sum = {mallinfo2().uordblks, 0};
  for (const auto &entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    sum.files += entry.is_symlink() ? 1 : 0;
  }
  return sum;
}
#endif

bool cycle(const char *name, [[maybe_unused]] bool with_own_file) {
  auto *const library = load(name);
  if (library == nullptr) return false;
  const auto classify = find<decltype(trvcin)>(library, "trvcin");  // opens a file
  const auto order = find<decltype(trvordi)>(library, "trvordi");   // needs memory
  if (classify == nullptr || order == nullptr) return false;
  const float x[] = {0, 2};
  const float y[] = {1, 1};
  std::int32_t position = 0;
  std::int32_t places[2] = {};
  float points[4] = {};
#ifndef _WIN32  // The host closes that file and opens its own under the same number.
  const int own = dup(0);
  close(own);
#endif
  classify(x, y, 0, 1, 0, position, points[0], points[1], points[2], points[3]);
  order(x, 2, places);
#ifndef _WIN32
  if (with_own_file) dup2(0, own);
#endif
  unload(library);
#ifndef _WIN32
  if (with_own_file && close(own) != 0) return false;
#endif
  const bool is_closed = std::filesystem::remove("OUTPUT.TXT");
  return position != 0 && places[0] == 1 && is_closed && !is_loaded(name);
}

}  // namespace

int main(int argc, char **argv) {
  if (argc < 2) return 2;
  std::filesystem::create_directory("cycles");
  std::filesystem::current_path("cycles");
  constexpr int cycles = 200;
  for (int i = 0; i < 10; ++i) {  // what the system allocates once and for all
    holdings();
    if (!cycle(argv[1], i % 2 == 1)) {
      std::printf("FAILED  %s does not load, work and unload\n", argv[1]);
      return 1;
    }
  }
  const Holdings before = holdings();
  for (int i = 0; i < cycles; ++i) cycle(argv[1], i % 2 == 1);
  const Holdings after = holdings();
  const auto bytes = static_cast<std::ptrdiff_t>(after.bytes - before.bytes);
  const auto files = static_cast<std::ptrdiff_t>(after.files - before.files);
  std::printf("%d cycles of %s: %td bytes and %td files lost\n", cycles, argv[1], bytes, files);
  return bytes == 0 && files == 0 ? 0 : 1;
}
