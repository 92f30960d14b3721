# The library: libtrelvin.so, or Trelvin.dll (64 bits: Trelvin64.dll) with its import libraries; or a
# static one.
file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.cpp)
list(FILTER sources EXCLUDE REGEX library_entry.cpp)
add_library(trelvin ${sources})
add_library(Trelvin::trelvin ALIAS trelvin)
target_include_directories(trelvin PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                          $<INSTALL_INTERFACE:include>)
target_include_directories(trelvin PRIVATE src)
target_link_libraries(trelvin PRIVATE $<BUILD_INTERFACE:trelvin_warnings>)
set_target_properties(
  trelvin PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                     POSITION_INDEPENDENT_CODE ON
                     CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)

# The same bits everywhere: no fused multiply-add, and square roots are the machine's instruction.
# Nothing throws, so no exception can reach a host. No path of the building machine gets in.
if(MSVC)
  target_compile_options(trelvin PRIVATE /fp:precise)
else()
  target_compile_options(
    trelvin PRIVATE -ffp-contract=off -fno-math-errno -fno-exceptions -fno-rtti
                    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
                    -ffile-prefix-map=${PROJECT_BINARY_DIR}=.)
endif()
if(TRELVIN_BUILD_FUZZER)
  target_compile_options(trelvin PRIVATE -fsanitize=fuzzer-no-link)
endif()
set(is_x86 "^(x86|x86_64|AMD64|i[3-6]86)$")
if(NOT WIN32 AND NOT CMAKE_SYSTEM_PROCESSOR STREQUAL wasm32)
  # Not on Windows: MinGW's protector asks for more of the system, and for start-up code to draw its
  # number, which the DLL does not have.
  target_compile_options(trelvin PRIVATE -fstack-protector-strong)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES ${is_x86})
    target_compile_options(trelvin PRIVATE -fcf-protection)
  endif()
endif()
if(MINGW AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  # Hosts of the 1990s keep the stack aligned to 4 bytes only.
  # Nothing throws through it, so it carries no tables for that. On 64-bit Windows every function has
  # them, for debuggers as well.
  target_compile_options(trelvin PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-mstackrealign>
                                         -fno-asynchronous-unwind-tables)
endif()

# The edge sums are vectors by hand. The compiler's own would load what was stored by elements just
# before, and wait. One source is for processors that have AVX2, which is found out at run time.
if(NOT MSVC)  # whose AVX2 comes with fused multiply-add
  set(edge_sums src/properties/edge_sums.cpp src/properties/edge_sums_avx2.cpp)
  set_source_files_properties(
    ${edge_sums} PROPERTIES COMPILE_OPTIONS "-fno-tree-vectorize;-fno-tree-slp-vectorize")
  if(CMAKE_SYSTEM_PROCESSOR MATCHES ${is_x86})
    set_property(SOURCE src/properties/edge_sums_avx2.cpp src/space/rotations_avx2.cpp
                 APPEND PROPERTY COMPILE_OPTIONS -mavx2)
  endif()
endif()

if(WIN32 AND NOT MSVC)
  # The DLL is to stay small. These have no loops that the compiler widens.
  file(GLOB_RECURSE small src/circles/*.cpp src/lists/*.cpp src/plane/*.cpp src/sections/*.cpp
       src/trace/*.cpp src/vectors/*.cpp src/entries/space_*.cpp)
  list(APPEND small src/entries/circles.cpp src/entries/lists.cpp src/entries/sections.cpp)
  set_property(SOURCE ${small} APPEND PROPERTY COMPILE_OPTIONS $<$<CONFIG:Release>:-O2>)
endif()

if(NOT BUILD_SHARED_LIBS)
  return()
endif()

if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
else()
  # Of the C++ run-time only what is called would be asked for, and nothing is. Addresses are bound
  # at loading and read-only from then on. Nothing is to be started, and the compiler's start-up files
  # are not marked for control-flow enforcement, which needs the mark of every object.
  target_link_options(
    trelvin PRIVATE -nostartfiles -Wl,--as-needed -Wl,-z,relro,-z,now
                    -Wl,--version-script=${PROJECT_SOURCE_DIR}/src/entries/trelvin.map)
  set_property(TARGET trelvin APPEND PROPERTY LINK_DEPENDS
                                              ${PROJECT_SOURCE_DIR}/src/entries/trelvin.map)
endif()
