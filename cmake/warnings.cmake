# Warnings for the project's own targets. The presets make them errors.
add_library(trelvin_warnings INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(trelvin_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endif()
