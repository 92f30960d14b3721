# What `./dev package` hands out: a pair of packages for Debian, made by CPack; for Windows, what is
# installed beside the library. Dates in packages are that of SOURCE_DATE_EPOCH.
if(WIN32)
  if(TARGET section_properties AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    install(TARGETS section_properties)
    install(DIRECTORY bindings examples DESTINATION . FILES_MATCHING
            PATTERN *.bas PATTERN *.c PATTERN *.cpp PATTERN *.cs PATTERN *.f90 PATTERN *.F90
            PATTERN *.json PATTERN *.mjs PATTERN *.pas PATTERN *.txt
            PATTERN python EXCLUDE PATTERN CMakeLists.txt EXCLUDE)
    install(DIRECTORY out/manual DESTINATION . OPTIONAL)  # if it was built
    install(FILES CHANGELOG.md DESTINATION .)
  endif()
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Trelvin maintainers <maintainers@trelvin.example>")
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libtrelvin${PROJECT_VERSION_MAJOR})
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "The shared library, for the programs that are linked against it.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtrelvin-dev)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers, and how CMake and pkg-config find the library: for building programs.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION})")
include(CPack)
