# Installs the program for one user, twice. cmake -DBUILD=... -DWORK=... -P install_test.cmake
cmake_minimum_required(VERSION 3.25)
set(folder "${WORK}/a user's folder")
file(REMOVE_RECURSE "${WORK}")

macro(install_program)
  execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${folder}" OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
endmacro()

install_program()
foreach(name trimlog tlg.dat foodexer1.dat WellDone.wav LICENSE share/applications/trimlog.desktop
    share/metainfo/com.corvanesoftware.trimlog.metainfo.xml share/icons/hicolor/scalable/apps/trimlog.svg)
  if(NOT EXISTS "${folder}/${name}")
    message(FATAL_ERROR "${name} is not installed")
  endif()
endforeach()

# The desktop starts this copy, in its own folder.
file(STRINGS "${folder}/share/applications/trimlog.desktop" entry)
foreach(line "Exec=\"${folder}/trimlog\"" "Path=${folder}")
  if(NOT line IN_LIST entry)
    message(FATAL_ERROR "The desktop entry lacks ${line}:\n${entry}")
  endif()
endforeach()

# The user's data outlive an update.
file(WRITE "${folder}/tlg.dat" "twenty years of weights")
install_program()
file(READ "${folder}/tlg.dat" kept)
if(NOT kept STREQUAL "twenty years of weights")
  message(FATAL_ERROR "An update replaced the user's data file")
endif()
