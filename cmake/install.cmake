# What is installed: library, headers, export table, and how CMake and pkg-config find them.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS trelvin EXPORT TrelvinTargets)
install(DIRECTORY include/trelvin TYPE INCLUDE)
get_target_property(library_name trelvin OUTPUT_NAME)  # of the file that programs link
if(NOT library_name)
  set(library_name trelvin)
endif()
if(WIN32 AND BUILD_SHARED_LIBS)
  install(FILES src/entries/${library_name}.def ${TRELVIN_MICROSOFT_LIBRARY} TYPE LIB)
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Trelvin)
install(EXPORT TrelvinTargets NAMESPACE Trelvin:: FILE TrelvinConfig.cmake
        DESTINATION ${package_dir})
write_basic_package_version_file(TrelvinConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/TrelvinConfigVersion.cmake DESTINATION ${package_dir})

# The folders are told relative to trelvin.pc, so that an installation can be moved.
file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" prefix_from_pc "${prefix_from_pc}")
configure_file(cmake/trelvin.pc.in trelvin.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/trelvin.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
