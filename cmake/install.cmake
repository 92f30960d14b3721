# What is installed: library, headers, export table, and how CMake and pkg-config find them.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)  # all but what running programs need
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS trelvin EXPORT TrelvinTargets
        RUNTIME COMPONENT runtime
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development)
install(DIRECTORY include/trelvin TYPE INCLUDE)
install(FILES bindings/trelvin.json DESTINATION ${CMAKE_INSTALL_DATADIR}/trelvin)  # for bindings
get_target_property(library_name trelvin OUTPUT_NAME)  # of the file that programs link
if(NOT library_name)
  set(library_name trelvin)
endif()
if(WIN32 AND BUILD_SHARED_LIBS)
  install(FILES src/entries/${library_name}.def ${TRELVIN_MICROSOFT_LIBRARY} TYPE LIB)
endif()

# The two Windows libraries may be installed together: CMake takes the one of the program's size.
string(REPLACE trelvin Trelvin package ${library_name})
string(TOLOWER ${library_name} pc_name)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
install(EXPORT TrelvinTargets NAMESPACE Trelvin:: FILE TrelvinConfig.cmake
        DESTINATION ${package_dir})
write_basic_package_version_file(TrelvinConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/TrelvinConfigVersion.cmake DESTINATION ${package_dir})

# The folders are told relative to the file itself, so that an installation can be moved.
file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" prefix_from_pc "${prefix_from_pc}")
configure_file(cmake/trelvin.pc.in ${pc_name}.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${pc_name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
