# Rooms: one target each, with an include root that holds its own headers only, and a level.
# A room may link rooms of lower levels alone, so an include that points upward finds no file.

# veridial_room(NAME LEVEL n FOLDER prefix HEADERS ... SOURCES ... LINKS rooms... SYSTEM libraries...)
#   FOLDER   what stands before the slash in #include "prefix/header.h"
#   LINKS    rooms of a lower level; SYSTEM libraries from outside
#   PRECOMPILE   headers of others beside the standard library's that most of its sources include
function(veridial_room name)
  cmake_parse_arguments(room "" "LEVEL;FOLDER" "HEADERS;SOURCES;LINKS;SYSTEM;PRECOMPILE" ${ARGN})
  if(room_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "room ${name}: what is ${room_UNPARSED_ARGUMENTS}?")
  endif()

  set(root "${CMAKE_BINARY_DIR}/include/${name}")
  file(REMOVE_RECURSE "${root}")
  foreach(header IN LISTS room_HEADERS)
    cmake_path(GET header FILENAME leaf)
    file(MAKE_DIRECTORY "${root}/${room_FOLDER}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${header}" "${root}/${room_FOLDER}/${leaf}" SYMBOLIC)
  endforeach()

  if(room_SOURCES)
    add_library(${name} STATIC ${room_SOURCES} ${room_HEADERS})
    set(scope PUBLIC)
    target_link_libraries(${name} PRIVATE veridial_settings)
    if(NOT "${room_SOURCES}" MATCHES "\\.mm")
      veridial_precompile(${name} room <algorithm> <array> <cmath> <cstdint> <functional> <map> <memory> <mutex>
        <optional> <span> <string> <string_view> <utility> <vector> ${room_PRECOMPILE})
    endif()
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(${name} ${scope} "${root}")
  veridial_check_level(${name} ${room_LEVEL} "${room_LINKS}")
  target_link_libraries(${name} ${scope} ${room_LINKS} ${room_SYSTEM})
endfunction()

# veridial_program(NAME LEVEL n SOURCES ... LINKS rooms... SYSTEM libraries...): an executable, held to its level too.
function(veridial_program name)
  cmake_parse_arguments(program "" "LEVEL" "SOURCES;LINKS;SYSTEM" ${ARGN})
  if(program_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "program ${name}: what is ${program_UNPARSED_ARGUMENTS}?")
  endif()
  add_executable(${name} ${program_SOURCES})
  veridial_check_level(${name} ${program_LEVEL} "${program_LINKS}")
  target_link_libraries(${name} PRIVATE veridial_settings ${program_LINKS} ${program_SYSTEM})
  if(APPLE) # the system's utilities, which the room platform only names
    target_link_libraries(${name} PRIVATE platform_cocoa)
  endif()
endfunction()

# veridial_precompile(NAME KIND headers...): for headers of others that take longer to compile than what includes them.
# Targets of one kind (a library's code is not a program's) with the same headers share what the first of them made.
# Sources include what they use all the same: the preset dev builds without.
function(veridial_precompile name kind)
  if(NOT VERIDIAL_PRECOMPILE)
    return()
  endif()
  string(MD5 key "${kind} ${ARGN}")
  get_property(maker GLOBAL PROPERTY veridial_precompiled_${key})
  if(maker)
    target_precompile_headers(${name} REUSE_FROM ${maker})
  else()
    target_precompile_headers(${name} PRIVATE ${ARGN})
    set_property(GLOBAL PROPERTY veridial_precompiled_${key} ${name})
  endif()
  # What CMake writes around it is meant for the Objective-C++ compiler too. And g++ 12 no longer knows that a header is
  # the system's once it is precompiled: it warns of the insides of std::string, which are in order.
  target_compile_options(${name} PRIVATE -Wno-unknown-pragmas
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread -Wno-restrict>)
endfunction()

function(veridial_check_level name level links)
  set_property(GLOBAL PROPERTY veridial_level_of_${name} ${level})
  set_property(GLOBAL APPEND PROPERTY veridial_rooms ${name})
  set_property(GLOBAL PROPERTY veridial_links_of_${name} "${links}")
  foreach(link IN LISTS links)
    get_property(other GLOBAL PROPERTY veridial_level_of_${link})
    if(other STREQUAL "")
      message(FATAL_ERROR "${name} links ${link}, which is no room declared before it")
    elseif(NOT other LESS level)
      message(FATAL_ERROR "${name} (level ${level}) may not link ${link} (level ${other}): arrows go down")
    endif()
  endforeach()
endfunction()

# Writes "level name: links" for every room, for the test that holds ARCHITECTURE.md against the build.
function(veridial_write_levels)
  get_property(rooms GLOBAL PROPERTY veridial_rooms)
  set(text "")
  foreach(name IN LISTS rooms)
    get_property(level GLOBAL PROPERTY veridial_level_of_${name})
    get_property(links GLOBAL PROPERTY veridial_links_of_${name})
    list(JOIN links " " links)
    string(APPEND text "${level} ${name}: ${links}\n")
  endforeach()
  file(WRITE "${CMAKE_BINARY_DIR}/levels.txt" "${text}")
endfunction()
