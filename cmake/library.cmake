# The library: libtrelvin.so, or Trelvin.dll with its import library; or a static one.
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
target_compile_options(
  trelvin PRIVATE -ffp-contract=off -fno-math-errno -fno-exceptions -fno-rtti
                  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=.)
if(TRELVIN_BUILD_FUZZER)
  target_compile_options(trelvin PRIVATE -fsanitize=fuzzer-no-link)
endif()
if(WIN32)
  # Hosts of the 1990s keep the stack aligned to 4 bytes only.
  # Nothing throws through it, so it carries no tables for that.
  target_compile_options(trelvin PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-mstackrealign>
                                         -fno-asynchronous-unwind-tables)
endif()

# The edge sums are vectors by hand. The compiler's own would load what was stored by elements just
# before, and wait. One source is for processors that have AVX2, which is found out at run time.
set(edge_sums src/properties/edge_sums.cpp src/properties/edge_sums_avx2.cpp)
set_source_files_properties(
  ${edge_sums} PROPERTIES COMPILE_OPTIONS "-fno-tree-vectorize;-fno-tree-slp-vectorize")
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86|x86_64|AMD64|i[3-6]86)$")
  set_property(SOURCE src/properties/edge_sums_avx2.cpp APPEND PROPERTY COMPILE_OPTIONS -mavx2)
endif()

if(NOT BUILD_SHARED_LIBS)
  return()
endif()

if(WIN32)
  enable_language(RC)
  configure_file(src/entries/version.rc.in version.rc @ONLY)
  target_sources(trelvin PRIVATE src/entries/library_entry.cpp src/entries/Trelvin.def
                                 ${CMAKE_CURRENT_BINARY_DIR}/version.rc)
  # The library has its own entry and no start-up code of the C run-time: nothing in it is built or
  # torn down at run time, and thread-local storage would keep it from declining thread calls.
  target_link_options(trelvin PRIVATE -static -s -nostartfiles -Wl,--dynamicbase -Wl,--nxcompat
                                      -Wl,--no-insert-timestamp)
  set_target_properties(trelvin PROPERTIES OUTPUT_NAME Trelvin PREFIX "" VERSION "" SOVERSION ""
                                           IMPORT_PREFIX "lib")

  # The linker's own import library names each routine as the export table does; compilers ask for
  # the decorated name without its underscore, so the library is made from those names instead.
  # Its members are named after a prefix, which is drawn at random unless it is given, and its
  # symbols after the path it is written to.
  file(STRINGS src/entries/Trelvin.def decorated REGEX "\"_trv")
  list(TRANSFORM decorated REPLACE ".*\"_(trv[^\"]*)\".*" "  \\1")
  list(JOIN decorated "\n" decorated)
  file(CONFIGURE OUTPUT import.def CONTENT "LIBRARY Trelvin.dll\nEXPORTS\n@decorated@\n" @ONLY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS src/entries/Trelvin.def)
  add_custom_command(
    TARGET trelvin POST_BUILD VERBATIM
    WORKING_DIRECTORY $<TARGET_LINKER_FILE_DIR:trelvin>
    COMMAND ${CMAKE_DLLTOOL} --kill-at --deterministic-libraries --temp-prefix trelvin
            --input-def ${CMAKE_CURRENT_BINARY_DIR}/import.def
            --output-lib $<TARGET_LINKER_FILE_NAME:trelvin>)
else()
  # Of the C++ run-time only what is called would be asked for, and nothing is. Addresses are bound
  # at loading and read-only from then on.
  target_link_options(
    trelvin PRIVATE -Wl,--as-needed -Wl,-z,relro,-z,now
                    -Wl,--version-script=${PROJECT_SOURCE_DIR}/src/entries/trelvin.map)
  set_property(TARGET trelvin APPEND PROPERTY LINK_DEPENDS
                                              ${PROJECT_SOURCE_DIR}/src/entries/trelvin.map)
endif()
