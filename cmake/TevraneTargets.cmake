# Settings that every target of the project shares, and the two helpers that add targets with them.

find_package(Threads REQUIRED)

add_library(tevrane_options INTERFACE)
target_include_directories(tevrane_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tevrane_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
target_compile_definitions(tevrane_options INTERFACE TEVRANE_VERSION="${PROJECT_VERSION}")
if(TEVRANE_WERROR)
  target_compile_options(tevrane_options INTERFACE -Werror)
endif()
if(TEVRANE_SANITIZE)
  target_compile_options(tevrane_options INTERFACE -fsanitize=address,undefined
                                                   -fno-sanitize-recover=undefined -O1)
  target_link_options(tevrane_options INTERFACE -fsanitize=address,undefined)
endif()
if(TEVRANE_FUZZ)
  target_compile_options(tevrane_options INTERFACE -fsanitize=fuzzer-no-link -O1 -g)
endif()

# tevrane_library(NAME SOURCES... [LIBRARIES ...]): one static library, the folder's sources.
function(tevrane_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC tevrane_options ${arg_LIBRARIES})
endfunction()

# tevrane_test_settings(NAME [HEADERS...]): how programs of tests are compiled: fast rather than to be
# fast, and with the headers that all their sources include, and those named, precompiled.
function(tevrane_test_settings name)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/tests)
  target_compile_options(${name} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O1$<SEMICOLON>-g1>)
  target_precompile_headers(${name} PRIVATE <gtest/gtest.h> ${ARGN})
endfunction()

# tevrane_test(NAME SOURCES... [LIBRARIES ...]): one test program, registered case by case.
function(tevrane_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE tevrane_options ${arg_LIBRARIES})
  set(headers)
  if("Qt5::Test" IN_LIST arg_LIBRARIES)
    set(headers <QtCore>)
  endif()
  tevrane_test_settings(${name} ${headers})
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# tevrane_qt_test(NAME SOURCES... [LIBRARIES ...]): a test program with a QCoreApplication.
function(tevrane_qt_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  tevrane_test(${name}
    SOURCES ${arg_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/CoreApplicationMain.cpp
    LIBRARIES ${arg_LIBRARIES} GTest::gtest Qt5::Test)
  add_dependencies(${name} tevrane_database)
endfunction()

# tevrane_widget_test(NAME SOURCES... [LIBRARIES ...]): a test program with a QApplication, whose
# windows nobody sees.
function(tevrane_widget_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  tevrane_test(${name}
    SOURCES ${arg_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/OffscreenMain.cpp
    LIBRARIES ${arg_LIBRARIES} GTest::gtest Qt5::Test Qt5::Widgets)
  add_dependencies(${name} tevrane_database)
endfunction()
