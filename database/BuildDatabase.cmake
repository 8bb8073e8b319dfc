# Builds DATABASE from the list SOURCES of SQL files with the program SQLITE3.
set(unfinished ${DATABASE}.new)
file(REMOVE ${unfinished})
foreach(source IN LISTS SOURCES)
  execute_process(COMMAND ${SQLITE3} -batch -bail ${unfinished} INPUT_FILE ${source}
                  RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    file(REMOVE ${unfinished})
    message(FATAL_ERROR "${source} cannot be loaded into the reference database")
  endif()
endforeach()
file(RENAME ${unfinished} ${DATABASE})
