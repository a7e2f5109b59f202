# Puts the shipped files into a program directory. A tlg.dat that stands there is a user's: it is never replaced.
# cmake -DSHIPPED_DIR=... -DPROGRAM_DIR=... -P FillProgramDirectory.cmake
file(MAKE_DIRECTORY "${PROGRAM_DIR}")
file(COPY "${CMAKE_CURRENT_LIST_DIR}/../help" DESTINATION "${PROGRAM_DIR}")
foreach(name foodexer1.dat WellDone.wav)
  file(COPY_FILE "${SHIPPED_DIR}/${name}" "${PROGRAM_DIR}/${name}" ONLY_IF_DIFFERENT)
endforeach()
if(NOT EXISTS "${PROGRAM_DIR}/tlg.dat" AND NOT IS_SYMLINK "${PROGRAM_DIR}/tlg.dat")
  # Under another name first, so that an interrupted copy is never taken for a data file.
  file(COPY_FILE "${SHIPPED_DIR}/tlg.dat" "${PROGRAM_DIR}/tlg.dat.new")
  file(RENAME "${PROGRAM_DIR}/tlg.dat.new" "${PROGRAM_DIR}/tlg.dat")
endif()
