// Loads the library by name, calls it and unloads it, many times: nothing of it may stay behind.
//
//     cycles LIBRARY
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <dlfcn.h>
#include <malloc.h>

#include <filesystem>
#endif

#include "trelvin/trelvin.h"

namespace {

struct Holdings {
  std::size_t bytes;    // allocated from the heaps of the process
  std::size_t handles;  // open files, and on Windows everything else that has a handle
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
  DWORD handles = 0;
  GetProcessHandleCount(GetCurrentProcess(), &handles);
  sum.handles = handles;
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
    sum.handles += entry.is_symlink() ? 1 : 0;
  }
  return sum;
}
#endif

bool cycle(const char *name) {
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
  classify(x, y, 0, 1, 0, position, points[0], points[1], points[2], points[3]);
  order(x, 2, places);
  unload(library);
  return position != 0 && places[0] == 1 && !is_loaded(name);
}

}  // namespace

int main(int argc, char **argv) {
  if (argc < 2) return 2;
  constexpr int cycles = 200;
  for (int i = 0; i < 10; ++i) {  // what the system allocates once and for all
    holdings();
    if (!cycle(argv[1])) {
      std::printf("FAILED  %s does not load, work and unload\n", argv[1]);
      return 1;
    }
  }
  const Holdings before = holdings();
  for (int i = 0; i < cycles; ++i) cycle(argv[1]);
  const Holdings after = holdings();
  const auto bytes = static_cast<std::ptrdiff_t>(after.bytes - before.bytes);
  const auto handles = static_cast<std::ptrdiff_t>(after.handles - before.handles);
  std::printf("%d cycles of %s: %td bytes and %td handles lost\n", cycles, argv[1], bytes, handles);
  return bytes == 0 && handles == 0 ? 0 : 1;
}
