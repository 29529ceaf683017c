# Runs every test of a build directory under valgrind memcheck and fails on any error,
# also in tests that pass by their output alone (ctest counts the defects of every log):
#   ctest -D ZEBLUA_BUILD=build/valgrind -D ZEBLUA_JOBS=2 -S tests/valgrind/memcheck.cmake
# -D ZEBLUA_TESTS=<regex> runs only the tests whose names match.
# Definite leaks are errors; the suppressions cover only Debian's libraries.
if(NOT ZEBLUA_BUILD)
  message(FATAL_ERROR "memcheck.cmake: pass -D ZEBLUA_BUILD=<build directory>")
endif()
if(NOT ZEBLUA_JOBS)
  set(ZEBLUA_JOBS 2)
endif()
get_filename_component(CTEST_SOURCE_DIRECTORY "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
get_filename_component(CTEST_BINARY_DIRECTORY "${ZEBLUA_BUILD}" ABSOLUTE)
set(CTEST_SITE zeblua)
set(CTEST_BUILD_NAME memcheck)
set(CTEST_MEMORYCHECK_TYPE Valgrind)
set(CTEST_MEMORYCHECK_COMMAND "${CMAKE_CURRENT_LIST_DIR}/memcheck.sh")
set(CTEST_MEMORYCHECK_SUPPRESSIONS_FILE "${CMAKE_CURRENT_LIST_DIR}/debian.supp")
set(CTEST_MEMORYCHECK_COMMAND_OPTIONS
  "--error-exitcode=99 --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite --num-callers=40")

file(GLOB stale "${CTEST_BINARY_DIRECTORY}/Testing/Temporary/MemoryChecker.*.log")
if(stale)
  file(REMOVE ${stale})
endif()
ctest_start(Experimental QUIET)
if(NOT ZEBLUA_TESTS)
  set(ZEBLUA_TESTS .)
endif()
ctest_memcheck(PARALLEL_LEVEL ${ZEBLUA_JOBS} INCLUDE "${ZEBLUA_TESTS}"
  RETURN_VALUE failed DEFECT_COUNT defects)
if(NOT failed EQUAL 0 OR NOT defects EQUAL 0)
  file(GLOB logs "${CTEST_BINARY_DIRECTORY}/Testing/Temporary/MemoryChecker.*.log")
  foreach(log ${logs})
    file(STRINGS "${log}" summary REGEX "ERROR SUMMARY: [1-9]")
    if(summary)
      file(READ "${log}" text LIMIT 20000)
      message("${log} (its start):\n${text}")
    endif()
  endforeach()
  message(FATAL_ERROR "memcheck: failed tests or ${defects} valgrind errors; the logs are "
    "${CTEST_BINARY_DIRECTORY}/Testing/Temporary/MemoryChecker.<test number>.log")
endif()
