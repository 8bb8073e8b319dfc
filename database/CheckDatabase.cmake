# Fails unless DATABASE holds every rule of check.sql.
if(NOT EXISTS ${DATABASE})
  message(FATAL_ERROR "${DATABASE} does not exist")
endif()
execute_process(COMMAND ${SQLITE3} -batch -bail -readonly ${DATABASE}
                INPUT_FILE ${CMAKE_CURRENT_LIST_DIR}/check.sql RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${DATABASE} breaks a rule of check.sql")
endif()
