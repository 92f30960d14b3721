# The Windows library: its name, entry, resources, export table and import libraries.
enable_language(RC)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(dll Trelvin64)
else()
  set(dll Trelvin)
endif()
set(exports src/entries/${dll}.def)
configure_file(src/entries/version.rc.in version.rc @ONLY)
target_sources(trelvin PRIVATE src/entries/library_entry.cpp ${CMAKE_CURRENT_BINARY_DIR}/version.rc)
set_target_properties(trelvin PROPERTIES OUTPUT_NAME ${dll} PREFIX "" VERSION "" SOVERSION "")
if(MINGW)
  set_target_properties(trelvin PROPERTIES IMPORT_PREFIX "lib")
endif()

# What is linked against the library, by the names that compilers give to calls: on 32-bit Windows
# those with the bytes of their arguments.
file(STRINGS ${exports} imports REGEX "^ .*trv")
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  list(FILTER imports INCLUDE REGEX "\"_trv")
endif()
list(TRANSFORM imports REPLACE "^ *\"?_?(trv[^ \"]*).*" "  \\1")
list(JOIN imports "\n" imports)
file(CONFIGURE OUTPUT import.def CONTENT "LIBRARY ${dll}.dll\nEXPORTS\n@imports@\n" @ONLY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${exports})

if(MSVC)
  # The CRT's entry calls the library's. This linker takes and makes names with their underscore.
  set_source_files_properties(src/entries/library_entry.cpp
                              PROPERTIES COMPILE_DEFINITIONS DllMainCRTStartup=DllMain)
  file(READ ${exports} table)
  string(REPLACE " = trv" " = _trv" table "${table}")
  file(CONFIGURE OUTPUT ${dll}.def CONTENT "@table@" @ONLY)
  target_sources(trelvin PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${dll}.def)
  return()
endif()

# The library has its own entry and no start-up code of the C run-time: nothing in it is built or
# torn down at run time, and thread-local storage would keep it from declining thread calls.
target_sources(trelvin PRIVATE ${exports})
target_link_options(trelvin PRIVATE -static -s -nostartfiles -Wl,--dynamicbase -Wl,--nxcompat
                                    -Wl,--no-insert-timestamp)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_link_options(trelvin PRIVATE -Wl,--no-seh)  # no address in it is a handler of exceptions
endif()

# The linker's own import library names each routine as the export table does; it is replaced by one
# of the names for calls. Its members are named after a prefix, which is drawn at random unless it is
# given, and its symbols after the path it is written to.
add_custom_command(
  TARGET trelvin POST_BUILD VERBATIM
  WORKING_DIRECTORY $<TARGET_LINKER_FILE_DIR:trelvin>
  COMMAND ${CMAKE_DLLTOOL} --kill-at --deterministic-libraries --temp-prefix trelvin
          --input-def ${CMAKE_CURRENT_BINARY_DIR}/import.def
          --output-lib $<TARGET_LINKER_FILE_NAME:trelvin>)

# The same for Microsoft's linker, if LLVM's tool to make it is installed.
find_program(TRELVIN_LLVM_DLLTOOL llvm-dlltool)
if(TRELVIN_LLVM_DLLTOOL)
  set(machine $<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>,i386:x86-64,i386>)
  set(TRELVIN_MICROSOFT_LIBRARY ${CMAKE_ARCHIVE_OUTPUT_DIRECTORY}/${dll}.lib)
  add_custom_command(
    TARGET trelvin POST_BUILD VERBATIM BYPRODUCTS ${TRELVIN_MICROSOFT_LIBRARY}
    COMMAND ${TRELVIN_LLVM_DLLTOOL} -k -m ${machine} -d ${CMAKE_CURRENT_BINARY_DIR}/import.def
            -l ${TRELVIN_MICROSOFT_LIBRARY})
endif()
