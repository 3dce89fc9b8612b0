# Language, warnings, sanitizers and output folders: the same for every target of the project.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(VERIDIAL_SHARE_DIR "${CMAKE_BINARY_DIR}/share/veridial")
set(VERIDIAL_GENERATED_DIR "${CMAKE_BINARY_DIR}/generated") # sources that the build writes
file(MAKE_DIRECTORY "${VERIDIAL_SHARE_DIR}" "${VERIDIAL_GENERATED_DIR}")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()

# Linked by every room: options for its own sources, not for the headers of libraries that it includes.
add_library(veridial_settings INTERFACE)
target_compile_options(veridial_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
  # A fused multiply-add rounds once where two operations round twice: tables and pixels must not depend on it.
  -ffp-contract=off
  $<$<BOOL:${VERIDIAL_WERROR}>:-Werror>)
find_package(Threads REQUIRED)
target_link_libraries(veridial_settings INTERFACE Threads::Threads)

if(VERIDIAL_SANITIZE)
  add_compile_options(-fsanitize=${VERIDIAL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VERIDIAL_SANITIZE})
endif()
if(VERIDIAL_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link) # coverage for the fuzz targets
endif()
