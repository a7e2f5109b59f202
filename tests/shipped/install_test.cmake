# Installs the program for one user, in several ways. cmake -DBUILD=... -DWORK=... -P install_test.cmake
cmake_minimum_required(VERSION 3.25)
find_program(DESKTOP_FILE_VALIDATE desktop-file-validate REQUIRED)
find_program(APPSTREAMCLI appstreamcli REQUIRED)
file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")

function(install_program)
  execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" ${ARGN} WORKING_DIRECTORY "${WORK}" OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# expect_installed(<program folder> <folder of the desktop's part> <Exec>)
function(expect_installed folder share exec)
  set(entry_file "${share}/applications/trimlog.desktop")
  set(metainfo "${share}/metainfo/com.corvanesoftware.trimlog.metainfo.xml")
  set(icon "${share}/icons/hicolor/scalable/apps/trimlog.svg")
  foreach(file "${folder}/trimlog" "${folder}/tlg.dat" "${folder}/foodexer1.dat" "${folder}/WellDone.wav"
      "${folder}/LICENSE" "${folder}/help/index.html" "${entry_file}" "${metainfo}" "${icon}")
    if(NOT EXISTS "${file}")
      message(FATAL_ERROR "${file} is not installed")
    endif()
  endforeach()
  # The desktop starts this copy, in its own folder.
  file(READ "${entry_file}" entry)
  foreach(line "Exec=${exec}" "Path=${folder}" "Icon=${icon}")
    string(FIND "${entry}" "\n${line}\n" place)
    if(place EQUAL -1)
      message(FATAL_ERROR "The desktop entry lacks ${line}:\n${entry}")
    endif()
  endforeach()
  execute_process(COMMAND "${DESKTOP_FILE_VALIDATE}" --warn-kde "${entry_file}" OUTPUT_VARIABLE faults
    ERROR_VARIABLE faults RESULT_VARIABLE result)
  if(faults OR NOT result EQUAL 0)
    message(FATAL_ERROR "${faults}")
  endif()
  execute_process(COMMAND "${APPSTREAMCLI}" validate --no-net "${metainfo}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(odd "${WORK}/a user's $50 folder, 100 %")
install_program(--prefix "${odd}")
expect_installed("${odd}" "${odd}/share" "\"${WORK}/a user's \\\\$50 folder, 100 %%/trimlog\"")

# The user's data outlive an update.
file(WRITE "${odd}/tlg.dat" "twenty years of weights")
install_program(--prefix "${odd}")
file(READ "${odd}/tlg.dat" kept)
if(NOT kept STREQUAL "twenty years of weights")
  message(FATAL_ERROR "An update replaced the user's data file")
endif()

install_program(--prefix here)
expect_installed("${WORK}/here" "${WORK}/here/share" "\"${WORK}/here/trimlog\"")

# Without a prefix, where the desktop of one user looks.
file(STRINGS "${BUILD}/CMakeCache.txt" prefix REGEX "^CMAKE_INSTALL_PREFIX:")
string(REGEX REPLACE "^[^=]*=" "" prefix "${prefix}")
if(prefix MATCHES "^(.*)/trimlog$")
  set(ENV{DESTDIR} "${WORK}/stage")
  install_program()
  foreach(file "${prefix}/trimlog" "${CMAKE_MATCH_1}/applications/trimlog.desktop")
    if(NOT EXISTS "${WORK}/stage${file}")
      message(FATAL_ERROR "${file} is not installed")
    endif()
  endforeach()
else()
  message(FATAL_ERROR "The folder to install to is ${prefix}, where no desktop looks")
endif()
