# valkorin_library(<name> SOURCES ... [HEADERS ...] USES ...): a static library, which links only the
# libraries that it may use. A folder of src/ has one of its name, or two: its formulas and drawings,
# and under <folder>_screen its screen. A header belongs to the library of the source of its name;
# HEADERS lists those without one.

add_library(valkorin_options INTERFACE)
target_include_directories(valkorin_options INTERFACE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR})
target_compile_options(valkorin_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror
  # GCC 12 gives this warning for every "text" + std::string when it optimises (its bug 105651).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # Results must be the same on every machine: no fused multiply-add.
  -ffp-contract=off)
if(VALKORIN_SANITIZE)
  target_compile_options(valkorin_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    # With these checks on, GCC 12 takes parts of std::regex for uninitialised (its bug 105562).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(valkorin_options INTERFACE -fsanitize=address,undefined)
endif()
if(VALKORIN_COVERAGE)
  target_compile_options(valkorin_options INTERFACE --coverage)
  target_link_options(valkorin_options INTERFACE --coverage)
endif()

# valkorin_headers(<target> [HEADERS ...]): a header file set of the headers of its sources and of
# HEADERS. all_verify_interface_header_sets compiles each of them alone.
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)
function(valkorin_headers target)
  cmake_parse_arguments(arg "" "" "HEADERS" ${ARGN})
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    string(REGEX REPLACE "\\.cpp$" ".h" header ${source})
    if(NOT header STREQUAL source AND EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${header})
      list(APPEND arg_HEADERS ${header})
    endif()
  endforeach()
  target_sources(${target} PUBLIC
    FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${arg_HEADERS})
endfunction()

function(valkorin_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;USES" ${ARGN})
  add_library(valkorin_${name} STATIC ${arg_SOURCES})
  valkorin_headers(valkorin_${name} HEADERS ${arg_HEADERS})
  target_link_libraries(valkorin_${name} PUBLIC valkorin_options)
  foreach(used IN LISTS arg_USES)
    target_link_libraries(valkorin_${name} PUBLIC valkorin_${used})
  endforeach()
endfunction()

# valkorin_test(<folder> SOURCES ... USES ... [COMMA_SKIPS ...]): the GoogleTest program of a folder,
# each test of it a ctest.
function(valkorin_test folder)
  cmake_parse_arguments(arg "" "" "SOURCES;USES;COMMA_SKIPS" ${ARGN})
  add_executable(${folder}_tests ${arg_SOURCES} ${CMAKE_SOURCE_DIR}/tests/support/main.cpp)
  target_link_libraries(${folder}_tests PRIVATE valkorin_options GTest::gmock)
  foreach(used IN LISTS arg_USES)
    target_link_libraries(${folder}_tests PRIVATE valkorin_${used})
  endforeach()
  target_compile_definitions(${folder}_tests PRIVATE
    VALKORIN_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
    VALKORIN_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
  gtest_discover_tests(${folder}_tests TEST_PREFIX ${folder}. DISCOVERY_MODE PRE_TEST
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
  # All of it once more where numbers have a decimal comma. COMMA_SKIPS leaves out long calculations
  # that neither read nor write a number and whose routines other tests run there.
  list(JOIN arg_COMMA_SKIPS ":" skipped)
  foreach(locale de_DE nl_NL)
    add_test(NAME locale.${locale}.${folder}
      COMMAND ${folder}_tests --gtest_brief=1 "--gtest_filter=-${skipped}")
    set_tests_properties(locale.${locale}.${folder} PROPERTIES
      ENVIRONMENT "LC_ALL=${locale}.UTF-8;VALKORIN_TEST_DECIMAL=,"
      WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
      SKIP_RETURN_CODE 77)
  endforeach()
endfunction()
