# What every target of the project shares, and the shape of a room: its logic in src/<room>/*.cpp, its
# windows in src/<room>/windows/*.cpp, each a link target of its own.

add_library(trimlog_flags INTERFACE)
target_compile_options(trimlog_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wconversion
  -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_compile_definitions(trimlog_flags INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS
  QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
if(TRIMLOG_SANITIZE)
  target_compile_options(trimlog_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer -O1)
  target_link_options(trimlog_flags INTERFACE -fsanitize=address,undefined)
endif()
target_include_directories(trimlog_flags INTERFACE "${PROJECT_SOURCE_DIR}/src")

# One precompiled header for all logic, one for all windows: every target of a kind reuses it.
add_library(logic_pch OBJECT "${PROJECT_SOURCE_DIR}/cmake/logic_pch.cpp")
target_link_libraries(logic_pch PUBLIC trimlog_flags Qt6::Core SQLiteCpp)
target_precompile_headers(logic_pch PRIVATE
  <QtCore/QtCore> <algorithm> <array> <cmath> <functional> <memory> <optional> <stdexcept> <string> <vector>)
add_library(windows_pch OBJECT "${PROJECT_SOURCE_DIR}/cmake/windows_pch.cpp")
target_link_libraries(windows_pch PUBLIC trimlog_flags Qt6::Widgets)
target_precompile_headers(windows_pch PRIVATE
  <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets> <algorithm> <array> <cmath> <functional> <memory> <optional>
  <stdexcept> <string> <vector>)
set_target_properties(logic_pch windows_pch PROPERTIES AUTOMOC OFF AUTORCC OFF)

# add_logic(<room> LINKS <lower targets>): never sees Qt Widgets.
function(add_logic room)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.h")
  if(NOT sources)
    add_library(${room} INTERFACE)
    target_link_libraries(${room} INTERFACE ${arg_LINKS})
    return()
  endif()
  add_library(${room} STATIC ${sources})
  set_target_properties(${room} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${room} PUBLIC trimlog_flags Qt6::Core ${arg_LINKS})
  target_precompile_headers(${room} REUSE_FROM logic_pch)
endfunction()

# add_windows(<room> LINKS <lower targets>): the frm and ctl classes of a room.
function(add_windows room)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${room}/windows/*.cpp"
    "${CMAKE_CURRENT_SOURCE_DIR}/${room}/windows/*.h")
  if(NOT sources)
    add_library(${room}_windows INTERFACE)
    target_link_libraries(${room}_windows INTERFACE ${arg_LINKS})
    return()
  endif()
  add_library(${room}_windows STATIC ${sources})
  set_target_properties(${room}_windows PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${room}_windows PUBLIC trimlog_flags Qt6::Widgets ${arg_LINKS})
  target_precompile_headers(${room}_windows REUSE_FROM windows_pch)
endfunction()
