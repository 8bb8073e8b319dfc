# Builds DATABASE from the list SOURCES of SQL files with the program SQLITE3.
function(run_sql database)
  execute_process(COMMAND ${SQLITE3} -batch -bail ${database} ${ARGN} RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    file(REMOVE ${database})
    message(FATAL_ERROR "the reference database cannot be built: ${ARGN}")
  endif()
endfunction()

# Leaves a check sum in the user version, which the program tests when it opens the file: the first
# digits of the hash of all bytes in hexadecimal, but for the change counter (bytes 24 to 27), the user
# version (60 to 63) and the version of the last writer (92 to 99), which this changes.
function(add_check_sum database)
  file(READ ${database} hex HEX)
  string(SUBSTRING "${hex}" 0 48 start)
  string(SUBSTRING "${hex}" 56 64 middle)
  string(SUBSTRING "${hex}" 128 56 end)
  string(SUBSTRING "${hex}" 200 -1 rest)
  string(SHA256 hash "${start}${middle}${end}${rest}")
  string(SUBSTRING ${hash} 0 7 digits)
  math(EXPR sum "0x${digits}")
  run_sql(${database} "PRAGMA user_version = ${sum}")
endfunction()

set(unfinished ${DATABASE}.new)
file(REMOVE ${unfinished})
foreach(source IN LISTS SOURCES)
  run_sql(${unfinished} ".read \"${source}\"")
endforeach()
add_check_sum(${unfinished})
file(RENAME ${unfinished} ${DATABASE})
