# Hosts of the built library.
# Every routine with its random calls, compiled once for all hosts.
add_library(callers OBJECT hosts/random_calls.cpp hosts/sequence_of_routines.cpp)
target_include_directories(callers PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(callers PUBLIC Trelvin::trelvin PRIVATE trelvin_warnings)
if(NOT MSVC)
  target_compile_options(callers PRIVATE -ffp-contract=off)  # the same arguments everywhere
  # A table of all routines, which optimising makes no better.
  set_source_files_properties(hosts/sequence_of_routines.cpp PROPERTIES COMPILE_OPTIONS -O0)
endif()

if(CMAKE_CXX_FLAGS MATCHES sanitize=thread)  # of the library alone: drawing calls takes longer
  target_compile_options(callers PUBLIC -fno-sanitize=thread -O1)
endif()

function(add_host name)  # NAME SOURCE... ; links what is named in `libraries`
  add_executable(${name} ${ARGN})
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE trelvin_warnings ${libraries})
endfunction()

set(libraries callers)
set(golden_bits ${CMAKE_CURRENT_SOURCE_DIR}/hosts/digest.txt)
add_host(digest hosts/digest.cpp)
set(runner ${CMAKE_CROSSCOMPILING_EMULATOR})
if(CMAKE_CXX_FLAGS MATCHES sanitize=thread)
  # ThreadSanitizer cannot live with all addresses that some systems draw.
  execute_process(COMMAND setarch -R true RESULT_VARIABLE refused OUTPUT_QUIET ERROR_QUIET)
  if(NOT refused)
    set(runner setarch -R)
  endif()
  add_host(threads hosts/threads.cpp)
  trelvin_test(threads ${runner} $<TARGET_FILE:threads>)
endif()
trelvin_test(digest ${TRELVIN_PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/hosts/golden.py ${runner}
             $<TARGET_FILE:digest>)

# Flushed subnormals, each rounding, and unmasked exceptions without and with raised flags; the x87
# unit, which carries results of functions in 32-bit programs, with 24 bits, each rounding, and
# unmasked.
set(states 9fc0:037f 3f80:037f 5f80:037f 7f80:037f 0000:037f 003f:037f)
if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  list(APPEND states 1f80:007f 1f80:077f 1f80:0b7f 1f80:0f7f 1f80:1372 0000:1372)
elseif(WIN32 OR CMAKE_CXX_FLAGS MATCHES sanitize=address)
  set(states e040:037f)  # several in one
elseif(TRELVIN_TESTS STREQUAL golden)
  set(states "")
endif()
if(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
  add_host(roundings hosts/roundings.cpp)
  trelvin_test(roundings roundings ${golden_bits})
elseif(states AND CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$" AND NOT MSVC)
  add_host(states hosts/states.cpp hosts/foreign_call.cpp)
  foreach(state IN LISTS states)
    string(REPLACE ":" ";" words ${state})
    trelvin_test(states_${state} states ${golden_bits} ${words})
  endforeach()
endif()
if(TRELVIN_TESTS STREQUAL golden)
  return()
endif()

# The digest says that the results are those of other builds, so that these are counted and compared in
# few of them.
set(hosts guards writers)
if(NOT CMAKE_CXX_FLAGS MATCHES sanitize)
  list(APPEND hosts aliases)
endif()
if(NOT CMAKE_CROSSCOMPILING AND NOT CMAKE_CXX_FLAGS MATCHES sanitize)
  list(APPEND hosts census)
endif()
foreach(host IN LISTS hosts)
  add_host(${host} hosts/${host}.cpp)
  trelvin_test(${host} ${host})
endforeach()

if(BUILD_SHARED_LIBS)
  set(libraries ${CMAKE_DL_LIBS})  # these know the library by name only
  find_program(TRELVIN_CLANG clang)
  find_program(TRELVIN_LLD_LINK lld-link)
  if(MINGW AND TRELVIN_LLVM_DLLTOOL AND TRELVIN_CLANG AND TRELVIN_LLD_LINK)
    set(client ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/microsoft_client.exe)
    set(object ${CMAKE_CURRENT_BINARY_DIR}/microsoft_client.obj)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/hosts/microsoft_client.c)
    add_custom_command(
      OUTPUT ${client} DEPENDS ${source} trelvin VERBATIM
      COMMAND ${TRELVIN_CLANG} --target=${CMAKE_SYSTEM_PROCESSOR}-pc-windows-msvc -O2 -ffreestanding
              -nostdlibinc -I${PROJECT_SOURCE_DIR}/include -c ${source} -o ${object}
      COMMAND ${TRELVIN_LLD_LINK} /nologo /entry:start /subsystem:console /out:${client} ${object}
              ${TRELVIN_MICROSOFT_LIBRARY})
    add_custom_target(microsoft_client ALL DEPENDS ${client})
    trelvin_test(microsoft_client ${CMAKE_CROSSCOMPILING_EMULATOR} ${client})
  endif()
  add_host(cycles hosts/cycles.cpp)
  target_include_directories(cycles PRIVATE ${PROJECT_SOURCE_DIR}/include)
  add_dependencies(cycles trelvin)
  if(WIN32)
    trelvin_test(cycles cycles $<TARGET_FILE_NAME:trelvin>)
  elseif(NOT CMAKE_CXX_FLAGS MATCHES sanitize)  # which keeps its own books of memory
    trelvin_test(cycles cycles $<TARGET_FILE:trelvin>)
  endif()

  if(NOT WIN32 AND NOT CMAKE_CROSSCOMPILING AND NOT CMAKE_CXX_FLAGS MATCHES sanitize)
    set(libraries Trelvin::trelvin ${CMAKE_DL_LIBS} callers)
    add_host(contracts hosts/contracts.cpp hosts/conditions.cpp)
    target_compile_options(contracts PRIVATE -ffp-contract=off)  # of what conditions compute
    trelvin_test(contracts contracts $<TARGET_FILE:trelvin>)
  endif()
endif()

if(TRELVIN_BUILD_FUZZER)
  set(libraries callers)
  add_host(fuzz hosts/fuzz.cpp)
  target_link_options(fuzz PRIVATE -fsanitize=fuzzer)
endif()
