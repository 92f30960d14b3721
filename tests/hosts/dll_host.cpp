// Loads Trelvin.dll by name, as a host without an import library does, and calls every routine
// through both of its names with every stack alignment a 32-bit host may have.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

// Pushes the arguments on a stack that is `misalignment` bytes off a multiple of 16, calls, and
// returns how many bytes of arguments the routine left there; -1 when it spoiled a register that
// belongs to its caller.
extern "C" int call_with_stack(FARPROC routine, void *const *arguments, int count,
                               int misalignment);

asm(R"(
  .globl _call_with_stack
_call_with_stack:
  pushl %ebp
  movl  %esp, %ebp
  pushl %ebx
  pushl %esi
  pushl %edi
  movl  8(%ebp), %eax
  movl  12(%ebp), %esi
  movl  16(%ebp), %ecx
  leal  (,%ecx,4), %edi
  andl  $-16, %esp
  subl  20(%ebp), %esp
  movl  %edi, %edx
  negl  %edx
  andl  $12, %edx
  subl  %edx, %esp
  movl  %esp, %ebx
1:
  testl %ecx, %ecx
  jz    2f
  pushl -4(%esi,%ecx,4)
  decl  %ecx
  jmp   1b
2:
  movl  %esi, %edi
  call  *%eax
  movl  %ebx, %eax
  subl  %esp, %eax
  cmpl  %esi, %edi
  je    3f
  movl  $-1, %eax
3:
  leal  -12(%ebp), %esp
  popl  %edi
  popl  %esi
  popl  %ebx
  popl  %ebp
  ret
)");

namespace {

int passed = 0;
int failed = 0;

void expect(bool condition, const std::string &what) {
  if (condition) {
    ++passed;
  } else {
    ++failed;
    std::printf("FAILED  %s\n", what.c_str());
  }
}

FARPROC find(HMODULE library, const std::string &name) {
  return GetProcAddress(library, name.c_str());
}

// Zeros behind every argument: counts of nothing, points at the origin.
int call_on_zeros(FARPROC routine, int count, int misalignment) {
  constexpr std::size_t words = 128;
  std::vector<std::vector<std::int32_t>> storage(static_cast<std::size_t>(count),
                                                 std::vector<std::int32_t>(words));
  std::vector<void *> arguments;
  for (auto &argument : storage) arguments.push_back(argument.data() + words / 2);
  return call_with_stack(routine, arguments.data(), count, misalignment);
}

void check_routine(HMODULE library, const std::string &name, int count) {
  const FARPROC plain = find(library, name);
  const FARPROC decorated = find(library, "_" + name + "@" + std::to_string(4 * count));
  expect(plain != nullptr, name + " is not exported");
  expect(plain == decorated, name + ": its decorated name leads elsewhere");
  if (plain == nullptr || decorated == nullptr) return;
  for (int misalignment = 0; misalignment < 16; misalignment += 4) {
    expect(call_on_zeros(plain, count, misalignment) == 0,
           name + " does not remove its arguments, or spoils a register");
  }
}

// The figures are right too when the stack is only 4-byte aligned.
void check_figures(HMODULE library) {
  for (const char *name : {"trvpds", "_trvpds@28"}) {
    float values[] = {1, 2, 3, 3, 5, 9, 0};
    void *arguments[7];
    for (int i = 0; i < 7; ++i) arguments[i] = &values[i];
    const FARPROC routine = find(library, name);
    for (int misalignment = 0; misalignment < 16; misalignment += 4) {
      values[6] = 0;
      expect(routine != nullptr && call_with_stack(routine, arguments, 7, misalignment) == 0 &&
                 values[6] == 7,
             std::string(name) + " on an unaligned stack");
    }
  }
  // Sixteen edges and more take the path with wide stores to the stack.
  for (int misalignment = 0; misalignment < 16; misalignment += 4) {
    float x[41] = {};
    float y[41] = {};
    for (int i = 0; i < 40; ++i) {  // around the square of side 10, vertex by vertex
      const auto step = static_cast<float>(i % 10);
      const int side = i / 10;
      x[i] = side == 0 ? step : side == 1 ? 10 : side == 2 ? 10 - step : 0;
      y[i] = side == 0 ? 0 : side == 1 ? step : side == 2 ? 10 : 10 - step;
    }
    std::int32_t n = 40;
    float moments[3] = {};
    void *arguments[] = {x, y, &n, &moments[0], &moments[1], &moments[2]};
    call_with_stack(find(library, "trvipl"), arguments, 6, misalignment);
    expect(moments[0] == 10000.0F / 3 && moments[1] == 10000.0F / 3 && moments[2] == 2500,
           "trvipl on an unaligned stack");
  }
}

}  // namespace

int main() {
  const HMODULE library = LoadLibraryA("Trelvin.dll");
  if (library == nullptr) {
    std::printf("FAILED  Trelvin.dll cannot be loaded: error %lu\n", GetLastError());
    return 1;
  }
#define ROUTINE(name, count, arguments) check_routine(library, #name, count);
#include "routines.inc"
#undef ROUTINE
  check_figures(library);
  expect(FreeLibrary(library) != 0, "Trelvin.dll cannot be unloaded");
  std::printf("Trelvin.dll: %d passed, %d failed\n", passed, failed);
  return failed == 0 ? 0 : 1;
}
