# Cross-compiles for WebAssembly with the system interface WASI (Debian: clang, lld, wasi-libc,
# libc++-14-dev-wasm32, libclang-rt-14-dev-wasm32); programs run under Node.js.
set(CMAKE_SYSTEM_NAME Generic)  # for CMake; it has no shared libraries
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CROSSCOMPILING_EMULATOR node --no-warnings ${CMAKE_CURRENT_LIST_DIR}/run_wasi.mjs)

# There are no exceptions in this C++ library.
set(CMAKE_CXX_FLAGS_INIT "-fno-exceptions")

set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY NEVER)
