# Test and fuzz targets. Every test is a GoogleTest program, registered with CTest with a time
# limit; in the Windows cross build CTest starts it through tools/wine-run.

include_guard(GLOBAL)

set(O7_GOOGLETEST_DIR "/usr/src/googletest" CACHE PATH "GoogleTest sources to build the tests with")
set(O7_TEST_RESULTS ${CMAKE_BINARY_DIR}/test-results)

# GoogleTest is compiled once per build, with this build's compiler; an installed package serves
# where the sources are not there. Without either the tests are left out, and that is said.
if(NOT TARGET GTest::gtest)
  if(EXISTS ${O7_GOOGLETEST_DIR}/CMakeLists.txt)
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
    add_subdirectory(${O7_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  else()
    find_package(GTest)
  endif()
endif()
if(NOT TARGET GTest::gtest)
  message(WARNING "GoogleTest not found (O7_GOOGLETEST_DIR): the tests are not built")
endif()

if(CMAKE_CROSSCOMPILING AND WIN32)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_SOURCE_DIR}/tools/wine-run)
endif()

# o7_add_test(NAME n SOURCES file... [LIBS target...] [PORTABLE] [SLOW] [TIMEOUT seconds])
# One test program. Without PORTABLE it exists in the Windows build only. SLOW leaves it out of
# "./test --quick". Further settings go to the target n as usual.
function(o7_add_test)
  cmake_parse_arguments(ARG "PORTABLE;SLOW" "NAME;TIMEOUT" "SOURCES;LIBS" ${ARGN})
  if(ARG_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "o7_add_test ${ARG_NAME}: unknown words ${ARG_UNPARSED_ARGUMENTS}")
  endif()
  if((NOT WIN32 AND NOT ARG_PORTABLE) OR O7_FUZZ OR NOT TARGET GTest::gtest)
    return()
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_executable(${ARG_NAME} ${ARG_SOURCES})
  target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBS} GTest::gmock GTest::gtest_main o7_common)
  add_test(NAME ${ARG_NAME}
    COMMAND ${ARG_NAME} --gtest_output=xml:test-results/${ARG_NAME}.xml
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
  set_tests_properties(${ARG_NAME} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
  if(WIN32)
    # With a list of displays (tools/common.sh, o7_wine_lanes) one for each test, and the long tests
    # first; without, it says nothing.
    set_tests_properties(${ARG_NAME} PROPERTIES RESOURCE_GROUPS "displays:1" COST ${ARG_TIMEOUT})
  endif()
  if(ARG_SLOW)
    set_tests_properties(${ARG_NAME} PROPERTIES LABELS slow)
  endif()
endfunction()

# o7_add_fuzz(NAME n SOURCES file... [LIBS target...])
# The sources define LLVMFuzzerTestOneInput. In the fuzz build this is the fuzzer itself; in the
# host build it is a test that feeds the files of tests/fuzz/corpus/n through the same function.
function(o7_add_fuzz)
  cmake_parse_arguments(ARG "" "NAME" "SOURCES;LIBS" ${ARGN})
  if(ARG_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "o7_add_fuzz ${ARG_NAME}: unknown words ${ARG_UNPARSED_ARGUMENTS}")
  endif()
  if(WIN32)
    return()
  endif()
  set(target fuzz_${ARG_NAME})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE ${ARG_LIBS} o7_common)
  if(O7_FUZZ)
    target_link_options(${target} PRIVATE -fsanitize=fuzzer)
  else()
    target_sources(${target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/fuzz/corpusrunner.cpp)
    add_test(NAME ${target} COMMAND ${target} ${CMAKE_SOURCE_DIR}/tests/fuzz/corpus/${ARG_NAME})
    set_tests_properties(${target} PROPERTIES TIMEOUT 120)
  endif()
endfunction()
