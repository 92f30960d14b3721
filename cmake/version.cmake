# The version is what a program reads from the interface.
file(STRINGS ${CMAKE_CURRENT_SOURCE_DIR}/include/trelvin/calling.h version_lines
     REGEX "^#define TRELVIN_VERSION")
string(REGEX REPLACE ".*VERSION_MAJOR ([0-9]+).*VERSION_MINOR ([0-9]+).*VERSION_PATCH ([0-9]+).*"
                     "\\1.\\2.\\3" trelvin_version "${version_lines}")
if(NOT version_lines MATCHES "#define TRELVIN_VERSION \"${trelvin_version}\"")
  message(FATAL_ERROR "calling.h: TRELVIN_VERSION is not ${trelvin_version}, as its parts say")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
                                       ${CMAKE_CURRENT_SOURCE_DIR}/include/trelvin/calling.h)
