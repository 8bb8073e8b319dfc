# Breaks a COPY of DATABASE in one way after another; the check must refuse each of them.
set(breaks
  "DELETE FROM Parameter WHERE id = 77"
  "UPDATE Parameter SET name = '' WHERE id = 77"
  "UPDATE Parameter SET default_value = 'x' WHERE id = 77"
  "UPDATE Parameter SET default_value = 'x' WHERE id = 141"
  "UPDATE Parameter SET tabelle = '' WHERE name = '_qh'"
  "UPDATE Parameter SET tabelle = 'Standort' WHERE name = '_kf'"
  "ALTER TABLE Standort ADD COLUMN aquifer_h REAL"
  "UPDATE Sprache SET shortcut = 'it' WHERE shortcut = 'en'"
  "DELETE FROM Sprachstring WHERE id = 3 AND sprache_id = 3"
  "UPDATE Sprachstring SET string = ' ' WHERE id = 103 AND sprache_id = 1"
  "UPDATE Benutzungsstunden SET building_type = 99 WHERE id = 2"
  "UPDATE Benutzungsstunden SET _duration_of_peak_load_warm = 900 WHERE id = 2"
  "UPDATE Benutzungsstunden SET _qh = 5 WHERE id = 2"
  "DELETE FROM Standort WHERE id = 2"
  "UPDATE Standort SET _heating_degree_days = 350 WHERE id = 2"
  "UPDATE Grundwasserleitermaterial SET _aquifer_material = 99 WHERE id = 2"
  "UPDATE Grundwasserleitermaterial SET _kf_min = _kf_max WHERE id = 2"
  "UPDATE Grundwasserleitermaterial SET _porosity = 0.2 WHERE id = 2"
  "UPDATE Filterdurchmesser SET __provided_filter_diameter = 500 WHERE id = 1"
  "DELETE FROM Filterdurchmesser WHERE id = 9")
foreach(statement IN LISTS breaks)
  file(REMOVE ${COPY})
  file(COPY_FILE ${DATABASE} ${COPY})
  execute_process(COMMAND ${SQLITE3} -batch -bail ${COPY} ${statement} RESULT_VARIABLE broken)
  if(NOT broken EQUAL 0)
    message(FATAL_ERROR "cannot run: ${statement}")
  endif()
  execute_process(COMMAND ${SQLITE3} -batch -bail -readonly ${COPY}
                  INPUT_FILE ${CMAKE_CURRENT_LIST_DIR}/check.sql
                  RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
  file(REMOVE ${COPY})
  if(result EQUAL 0)
    message(SEND_ERROR "the check does not notice: ${statement}")
  endif()
endforeach()
