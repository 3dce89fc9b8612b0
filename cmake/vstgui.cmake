# The toolkit VSTGUI as one static target, `vstgui`, compiled from its one-file amalgamation.
# The toolkit's own build scripts require Wayland and do not export the defines that its users must share.
set(VERIDIAL_VSTGUI_DIR "" CACHE PATH "Unpacked VSTGUI; empty for the one that scripts/fetch_vstgui.sh unpacks")

set(vstgui_dir "${VERIDIAL_VSTGUI_DIR}")
if(NOT vstgui_dir)
  foreach(version 4.15.0 4.13.3)
    if(NOT vstgui_dir AND EXISTS "${CMAKE_SOURCE_DIR}/build/deps/vstgui/${version}/.ok")
      set(vstgui_dir "${CMAKE_SOURCE_DIR}/build/deps/vstgui/${version}")
    endif()
  endforeach()
endif()
if(NOT EXISTS "${vstgui_dir}/vstgui/vstgui_linux.cpp")
  message(FATAL_ERROR "The editor needs VSTGUI: run scripts/fetch_vstgui.sh, or configure with -DVERIDIAL_EDITOR=OFF")
endif()

if(APPLE)
  enable_language(OBJCXX)
  add_library(vstgui STATIC "${vstgui_dir}/vstgui/vstgui_mac.mm")
  target_link_libraries(vstgui PUBLIC "-framework Cocoa" "-framework QuartzCore" "-framework Accelerate"
    "-framework UniformTypeIdentifiers")
else()
  add_library(vstgui STATIC "${vstgui_dir}/vstgui/vstgui_linux.cpp")
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(vstgui_needs REQUIRED IMPORTED_TARGET
    xcb xcb-util xcb-cursor xcb-keysyms xcb-xkb xkbcommon xkbcommon-x11 x11
    cairo cairo-xcb pangocairo pangoft2 fontconfig freetype2 glib-2.0 gobject-2.0)
  find_package(Threads REQUIRED)
  target_link_libraries(vstgui PUBLIC PkgConfig::vstgui_needs Threads::Threads ${CMAKE_DL_LIBS})
endif()

target_include_directories(vstgui SYSTEM PUBLIC "${vstgui_dir}")
# Each of these changes class layouts: code compiled with other values links, and crashes.
target_compile_definitions(vstgui PUBLIC
  VSTGUI_ENABLE_DEPRECATED_METHODS=0
  VSTGUI_OPENGL_SUPPORT=0
  VSTGUI_TOUCH_EVENT_HANDLING=0
  VSTGUI_ENABLE_XML_PARSER=0
  $<IF:$<CONFIG:Debug>,DEBUG=1,NDEBUG=1>)
target_compile_options(vstgui PRIVATE -w -fvisibility=hidden -fvisibility-inlines-hidden)
set_target_properties(vstgui PROPERTIES CXX_STANDARD 17)
# Its interfaces have no virtual destructors: objects are reference counted and never deleted through them.
target_compile_options(vstgui INTERFACE -Wno-non-virtual-dtor)
