# Makes the shipped files anew and fills program directories with them.
# cmake -DMAKER=... -DFACTS=... -DSHIPPED=... -DFILL=... -DWORK=... -DSECONDS=... -P shipped_files_test.cmake
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")

function(expect_same first second)
  file(SHA256 "${first}" a)
  file(SHA256 "${second}" b)
  if(NOT a STREQUAL b)
    message(FATAL_ERROR "${first} and ${second} differ")
  endif()
endfunction()

# The same facts give the same files to the byte, and soon.
execute_process(COMMAND "${MAKER}" "${FACTS}" "${WORK}/made" TIMEOUT ${SECONDS} COMMAND_ERROR_IS_FATAL ANY)
foreach(name tlg.dat foodexer1.dat WellDone.wav)
  expect_same("${WORK}/made/${name}" "${SHIPPED}/${name}")
endforeach()

# A fact file that is missing or broken stops the build and leaves no data file behind.
file(COPY "${FACTS}/" DESTINATION "${WORK}/broken")
file(APPEND "${WORK}/broken/samples/meals.tsv" "-2\t2026-10-01\t1\tNo such food\t1\t\n")
execute_process(COMMAND "${MAKER}" "${WORK}/broken" "${WORK}/none" RESULT_VARIABLE result ERROR_VARIABLE message)
if(result EQUAL 0 OR EXISTS "${WORK}/none/tlg.dat" OR NOT message MATCHES "No such food")
  message(FATAL_ERROR "A broken fact went through: ${result} ${message}")
endif()

macro(fill)
  execute_process(COMMAND "${CMAKE_COMMAND}" "-DSHIPPED_DIR=${SHIPPED}" "-DPROGRAM_DIR=${WORK}/app" -P "${FILL}"
    COMMAND_ERROR_IS_FATAL ANY)
endmacro()

# An empty program directory gets everything; a data file that stands there stays as it is, whatever it holds.
fill()
foreach(name tlg.dat foodexer1.dat WellDone.wav)
  expect_same("${WORK}/app/${name}" "${SHIPPED}/${name}")
endforeach()
foreach(content "a user's data" "")
  file(WRITE "${WORK}/app/tlg.dat" "${content}")
  file(WRITE "${WORK}/app/foodexer1.dat" "of an earlier release")
  fill()
  file(READ "${WORK}/app/tlg.dat" kept)
  if(NOT kept STREQUAL content)
    message(FATAL_ERROR "A user's data file was replaced")
  endif()
  expect_same("${WORK}/app/foodexer1.dat" "${SHIPPED}/foodexer1.dat")
endforeach()
