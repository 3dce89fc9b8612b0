# The language of the bridge. gcc does not support C++20 in Objective-C++, so clang compiles these files whichever
# compiler is used for the others.
if(NOT APPLE)
  find_program(CMAKE_OBJCXX_COMPILER clang++-19 REQUIRED)
endif()
enable_language(OBJCXX)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(CMAKE_PCH_EXTENSION .gch) # enable_language has set clang's extension for all languages
endif()
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
