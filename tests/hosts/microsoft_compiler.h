// Before a source of the library, this header lets Clang read it as Microsoft's compiler would: the
// same branches are taken, and what only other compilers know is an error. The standard library is
// MinGW's, which needs those things itself and so comes first.
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

#define WIN32_LEAN_AND_MEAN
#define NOGDI
#include <immintrin.h>
#include <windows.h>

#ifdef __x86_64__
#define _M_X64 100
#else
#define _M_IX86 600
#endif
#define _MSC_VER 1930
#define __INTRIN_H  // <intrin.h> would ask for Microsoft's other headers
#undef __GNUC__
#undef __clang__
#undef __i386__
#undef __x86_64__
#undef __SSE2__
#undef OUT  // of <windows.h>
#undef WIN32_LEAN_AND_MEAN
#pragma GCC poison __attribute__ __asm__ __builtin_expect __builtin_memcpy
