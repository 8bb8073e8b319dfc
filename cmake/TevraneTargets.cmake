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

# tevrane_lone_headers(NAME): compiles each header of this folder that has no source of its own, so that
# it is known to stand alone; all others are what their source includes first.
function(tevrane_lone_headers name)
  file(GLOB headers RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS *.h)
  foreach(header IN LISTS headers)
    string(REGEX REPLACE "h$" "cpp" source ${header})
    if(NOT EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${source})
      set(lone ${CMAKE_CURRENT_BINARY_DIR}/lone/${source})
      file(CONFIGURE OUTPUT ${lone} CONTENT "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${header}\"\n")
      target_sources(${name} PRIVATE ${lone})
    endif()
  endforeach()
endfunction()

# tevrane_library(NAME SOURCES... [LIBRARIES ...]): one static library, the folder's sources.
function(tevrane_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC tevrane_options ${arg_LIBRARIES})
  tevrane_lone_headers(${name})
endfunction()

# tevrane_test_settings(NAME): how programs of tests are compiled: fast rather than to be fast.
function(tevrane_test_settings name)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/tests)
  target_compile_options(${name} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O1$<SEMICOLON>-g1>)
endfunction()

# tevrane_test(NAME SOURCES... [LIBRARIES ...]): one test program, registered case by case. What a test
# includes takes the compiler longer than the test itself, so that it reads some of them as one. Names
# in their anonymous namespaces have to differ.
function(tevrane_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE tevrane_options ${arg_LIBRARIES})
  tevrane_test_settings(${name})
  set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# tevrane_qt_test(NAME SOURCES... [LIBRARIES ...]): a test program with a QCoreApplication.
function(tevrane_qt_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  tevrane_test(${name}
    SOURCES ${arg_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/CoreApplicationMain.cpp
    LIBRARIES ${arg_LIBRARIES} GTest::gtest Qt5::Test)
  add_dependencies(${name} tevrane_database tevrane_translations)
endfunction()

# tevrane_widget_test(NAME SOURCES... [LIBRARIES ...]): a test program with a QApplication, whose
# windows nobody sees.
function(tevrane_widget_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  tevrane_test(${name}
    SOURCES ${arg_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/OffscreenMain.cpp
    LIBRARIES ${arg_LIBRARIES} GTest::gtest Qt5::Test Qt5::Widgets)
  add_dependencies(${name} tevrane_database tevrane_translations)
endfunction()
