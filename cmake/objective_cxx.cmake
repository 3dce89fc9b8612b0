# The language of the bridge to the video host. gcc has no Objective-C++ of C++20: clang compiles it, whatever compiles
# the rest.
if(NOT APPLE)
  find_program(CMAKE_OBJCXX_COMPILER clang++-19 REQUIRED)
endif()
enable_language(OBJCXX)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(CMAKE_PCH_EXTENSION .gch) # which clang has just made its own, for all languages; g++ would not find them
endif()
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
