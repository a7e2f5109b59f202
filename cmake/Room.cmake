# What every target of the project shares, and the shape of a room: its logic in src/<room>/ and the folders below it,
# its windows in src/<room>/windows/ and the folders below that, each a link target of its own.

add_library(trimlog_flags INTERFACE)
target_compile_options(trimlog_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wconversion
  -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_compile_definitions(trimlog_flags INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS
  QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
if(TRIMLOG_SANITIZE)
  target_compile_options(trimlog_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(trimlog_flags INTERFACE -fsanitize=address,undefined)
endif()
target_include_directories(trimlog_flags INTERFACE "${PROJECT_SOURCE_DIR}/src")

# Tests are built for the builder's patience, not for speed: half of a build would be spent on optimising them.
add_library(test_flags INTERFACE)
target_link_libraries(test_flags INTERFACE trimlog_flags)
# Compiled several at a time, what is private to one of them looks shared to the compiler.
target_compile_options(test_flags INTERFACE -O0 -Wno-subobject-linkage)

# One precompiled header for all logic, one for all windows, and their likes for the tests: every target of a kind
# reuses it.
set(logic_headers <QtCore/QtCore> <algorithm> <array> <cmath> <functional> <memory> <optional> <stdexcept> <string>
  <vector>)
set(windows_headers <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets> <algorithm> <array> <cmath> <functional>
  <memory> <optional> <stdexcept> <string> <vector>)
# add_pch(<name> HEADERS <headers> LINKS <targets>)
function(add_pch name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LINKS")
  file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp"
    CONTENT "// Holds the precompiled header ${name}, which other targets reuse.\n")
  add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  target_link_libraries(${name} PUBLIC ${arg_LINKS})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()
add_pch(logic_pch HEADERS ${logic_headers} LINKS trimlog_flags Qt6::Core SQLiteCpp)
add_pch(windows_pch HEADERS ${windows_headers} LINKS trimlog_flags Qt6::Widgets)

# The parts of a room are small files: compiled a dozen at a time they share the cost of what they include. So names in
# the anonymous namespaces of a room are its own, each once.
function(shape_room target)
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX UNITY_BUILD ${TRIMLOG_UNITY}
    UNITY_BUILD_BATCH_SIZE 12)
endfunction()

# CMake runs moc again when a header changed that it knew, not when one was added or taken away: an incremental build would
# end in missing vtables. So its mark goes when the list of files is another one.
function(run_moc target)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  set(list_file "${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt")
  set(known "")
  if(EXISTS "${list_file}")
    file(READ "${list_file}" known)
  endif()
  get_target_property(sources ${target} SOURCES)
  if(NOT "${sources}" STREQUAL "${known}")
    file(WRITE "${list_file}" "${sources}")
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
  endif()
endfunction()

# add_logic(<room> [MOC] LINKS <lower targets>): never sees Qt Widgets. MOC where a header declares Q_OBJECT.
function(add_logic room)
  cmake_parse_arguments(PARSE_ARGV 1 arg "MOC" "" "LINKS")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp"
    "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.h")
  list(FILTER sources EXCLUDE REGEX "/${room}/(windows|sound)/")
  add_library(${room} STATIC ${sources})
  shape_room(${room})
  if(arg_MOC)
    run_moc(${room})
  endif()
  target_link_libraries(${room} PUBLIC trimlog_flags Qt6::Core ${arg_LINKS})
  target_precompile_headers(${room} REUSE_FROM logic_pch)
endfunction()

# add_windows(<room> LINKS <lower targets>): the frm and ctl classes of a room.
function(add_windows room)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${room}/windows/*.cpp"
    "${CMAKE_CURRENT_SOURCE_DIR}/${room}/windows/*.h")
  add_library(${room}_windows STATIC ${sources})
  shape_room(${room}_windows)
  run_moc(${room}_windows)
  target_link_libraries(${room}_windows PUBLIC trimlog_flags Qt6::Widgets ${arg_LINKS})
  target_precompile_headers(${room}_windows REUSE_FROM windows_pch)
endfunction()
