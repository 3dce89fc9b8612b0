# A room is one target and one folder. Its include root holds only its own headers, under their path in the repository
# without ov_source/. A room sees the rooms that it links and those that they link, and it can link only rooms declared
# before it. An include of any other room finds no file.

# veridial_room(NAME HEADERS ... SOURCES ... LINKS rooms... SYSTEM libraries...)
#   HEADERS, SOURCES   relative to the room's folder; sub-folders belong to the room
#   LINKS    rooms; SYSTEM libraries from outside
#   PRECOMPILE   third-party headers, besides the standard library's, that most of its sources include
function(veridial_room name)
  cmake_parse_arguments(room "" "" "HEADERS;SOURCES;LINKS;SYSTEM;PRECOMPILE" ${ARGN})
  if(room_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "room ${name}: what is ${room_UNPARSED_ARGUMENTS}?")
  endif()

  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY "${CMAKE_SOURCE_DIR}" OUTPUT_VARIABLE folder)
  string(REGEX REPLACE "^ov_source/" "" prefix "${folder}")
  set(root "${CMAKE_BINARY_DIR}/include/${name}")
  file(REMOVE_RECURSE "${root}")
  foreach(header IN LISTS room_HEADERS)
    cmake_path(GET header PARENT_PATH inner)
    file(MAKE_DIRECTORY "${root}/${prefix}/${inner}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${header}" "${root}/${prefix}/${header}" SYMBOLIC)
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
  veridial_record_room(${name} "${folder}" "${room_LINKS}")
  target_link_libraries(${name} ${scope} ${room_LINKS} ${room_SYSTEM})
endfunction()

# veridial_program(NAME SOURCES ... LINKS rooms... SYSTEM libraries...): an executable: a room that no other links.
function(veridial_program name)
  cmake_parse_arguments(program "" "" "SOURCES;LINKS;SYSTEM" ${ARGN})
  if(program_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "program ${name}: what is ${program_UNPARSED_ARGUMENTS}?")
  endif()
  add_executable(${name} ${program_SOURCES})
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY "${CMAKE_SOURCE_DIR}" OUTPUT_VARIABLE folder)
  veridial_record_room(${name} "${folder}" "${program_LINKS}")
  target_link_libraries(${name} PRIVATE veridial_settings ${program_LINKS} ${program_SYSTEM})
  if(APPLE) # the system's utilities, which the room platform only names
    target_link_libraries(${name} PRIVATE platform_cocoa)
  endif()
endfunction()

# veridial_precompile(NAME KIND headers...): precompiles third-party headers that take longer to compile than the sources.
# Targets of one kind (libraries and programs are compiled differently) with the same headers share one precompiled
# header. Sources still include what they use: the preset dev builds without precompiled headers.
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
  # CMake's wrapper header contains a pragma for other compilers. And g++ 12 forgets that a precompiled header is a system
  # header: it warns about the implementation of std::string.
  target_compile_options(${name} PRIVATE -Wno-unknown-pragmas
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread -Wno-restrict>)
endfunction()

# Records what ARCHITECTURE.md draws: a room's folder, its level (one above the highest of its links) and its arrows
# without those that other arrows imply.
function(veridial_record_room name folder links)
  set(level 0)
  set(below "")
  set(below_links "") # what is reached through a link
  foreach(link IN LISTS links)
    get_property(link_level GLOBAL PROPERTY veridial_level_of_${link})
    if(link_level STREQUAL "")
      message(FATAL_ERROR "${name} links ${link}, which is no room declared before it")
    endif()
    if(NOT link_level LESS level)
      math(EXPR level "${link_level} + 1")
    endif()
    get_property(reached GLOBAL PROPERTY veridial_reached_from_${link})
    list(APPEND below_links ${reached})
  endforeach()
  set(arrows "")
  foreach(link IN LISTS links)
    if(NOT link IN_LIST below_links)
      list(APPEND arrows ${link})
    endif()
  endforeach()
  list(APPEND below ${links} ${below_links})
  list(REMOVE_DUPLICATES below)
  set_property(GLOBAL APPEND PROPERTY veridial_rooms ${name})
  set_property(GLOBAL PROPERTY veridial_level_of_${name} ${level})
  set_property(GLOBAL PROPERTY veridial_reached_from_${name} "${below}")
  set_property(GLOBAL PROPERTY veridial_arrows_of_${name} "${arrows}")
  set_property(GLOBAL PROPERTY veridial_folder_of_${name} "${folder}")
endfunction()

# Writes "level name: arrows | folder" for every room, for the test that compares ARCHITECTURE.md with the build.
function(veridial_write_levels)
  get_property(rooms GLOBAL PROPERTY veridial_rooms)
  set(text "")
  foreach(name IN LISTS rooms)
    get_property(level GLOBAL PROPERTY veridial_level_of_${name})
    get_property(arrows GLOBAL PROPERTY veridial_arrows_of_${name})
    get_property(folder GLOBAL PROPERTY veridial_folder_of_${name})
    list(SORT arrows)
    list(JOIN arrows " " arrows)
    string(APPEND text "${level} ${name}: ${arrows} | ${folder}/\n")
  endforeach()
  file(WRITE "${CMAKE_BINARY_DIR}/levels.txt" "${text}")
endfunction()
