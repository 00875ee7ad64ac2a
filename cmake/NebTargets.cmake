# How this project's targets are made: one static library and one test program a top folder.

# Only the libraries that a program uses itself are loaded with it: what is read behind a locked door
# is no business of the program in front of it.
add_link_options(-Wl,--as-needed)

add_library(neb_flags INTERFACE)
target_compile_options(neb_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                           -Wold-style-cast -Wno-missing-field-initializers -Werror)
target_compile_definitions(neb_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII
                                               QT_DISABLE_DEPRECATED_BEFORE=0x060000)
target_include_directories(neb_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(NEB_SANITIZE)
  target_compile_options(neb_flags INTERFACE -fsanitize=address,undefined,fuzzer-no-link
                                             -fno-sanitize-recover=undefined)
  target_link_options(neb_flags INTERFACE -fsanitize=address,undefined)
endif()

# Floating point that comes out alike on every machine: nothing fused, nothing reckoned too exactly.
add_library(neb_exact INTERFACE)
target_compile_options(neb_exact INTERFACE -ffp-contract=off)
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86")
  target_compile_options(neb_exact INTERFACE -msse2 -mfpmath=sse)
endif()

# neb_library(NAME sound FLOOR 2 KNOWS texts|pictures|windows ROOMS decoding mixing devices .
#             DEPENDS neb_x Qt6::Y [HIDDEN z] [MODULE])
# The top folder src/NAME as the library neb_NAME, with the sources of its ROOMS: its subfolders and,
# as ".", the folder itself. The order of these calls, and of the rooms in each, is the order of the
# house: a room uses those named before it, of the libraries that its own DEPENDS on. What KNOWS
# texts sees no part of Qt's drawing, what knows pictures no window. What is DEPENDS is passed on to
# the users of the library, what is HIDDEN is not. A MODULE is no part of the programs: its users see
# its headers, and load lib/neb-slide-show/neb-NAME.so beside the folder of the program when they
# first need it. tests/layout checks it all.
set_property(GLOBAL PROPERTY NEB_HOUSE "")
set(neb_headers_texts core)
set(neb_headers_pictures core)
set(neb_headers_windows gui)
function(neb_library)
  cmake_parse_arguments(L "MODULE" "NAME;FLOOR;KNOWS" "ROOMS;DEPENDS;HIDDEN" ${ARGN})
  set(uses ${L_DEPENDS})
  list(FILTER uses INCLUDE REGEX "^neb_")
  list(TRANSFORM uses REPLACE "^neb_" "")
  list(JOIN uses "," uses)
  set(sources)
  foreach(room ${L_ROOMS})
    string(REGEX REPLACE "/\\.$" "" folder ${L_NAME}/${room})
    set_property(GLOBAL APPEND PROPERTY NEB_HOUSE ${L_FLOOR}:${folder}:${L_KNOWS}:${uses})
    set(dir ${PROJECT_SOURCE_DIR}/src/${folder})
    file(GLOB found CONFIGURE_DEPENDS ${dir}/*.cpp ${dir}/*.h ${dir}/*.ui ${dir}/*.qrc)
    list(APPEND sources ${found})
  endforeach()
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(L_MODULE)
    add_library(neb_${L_NAME} INTERFACE)
    target_include_directories(neb_${L_NAME} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    add_library(neb_${L_NAME}_module MODULE ${sources})
    set_target_properties(neb_${L_NAME}_module PROPERTIES PREFIX "" OUTPUT_NAME neb-${L_NAME}
      LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/neb-slide-show)
    target_link_libraries(neb_${L_NAME}_module PRIVATE neb_flags ${L_DEPENDS} ${L_HIDDEN})
    add_dependencies(neb_${L_NAME} neb_${L_NAME}_module)
    return()
  endif()
  add_library(neb_${L_NAME} STATIC ${sources})
  set_target_properties(neb_${L_NAME} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
  target_link_libraries(neb_${L_NAME} PUBLIC neb_flags ${L_DEPENDS} PRIVATE ${L_HIDDEN})
  target_precompile_headers(neb_${L_NAME} PRIVATE
                            ${PROJECT_SOURCE_DIR}/cmake/pch_${neb_headers_${L_KNOWS}}.h)
endfunction()

# neb_part(NAME SOURCE LIBRARIES ...): a program that the program starts by itself, beside its modules.
# It brings along what it uses alone. Whatever starts it depends on neb_parts, which is all of them.
add_custom_target(neb_parts)
function(neb_part NAME SOURCE)
  add_executable(${NAME} ${SOURCE})
  set_target_properties(${NAME} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/neb-slide-show)
  target_link_libraries(${NAME} PRIVATE neb_flags ${ARGN})
  add_dependencies(neb_parts ${NAME})
endfunction()

# neb_slices(pictures.Slice test_pictures 8 [FILTER Some.*:Tests.*] [ENVIRONMENT A=1 ...])
# The tests of a program as so many tests of ctest, each of which starts it once. A slice without a
# test fails.
function(neb_slices PREFIX PROGRAM COUNT)
  cmake_parse_arguments(S "" "FILTER" "ENVIRONMENT" ${ARGN})
  if(NOT S_FILTER)
    set(S_FILTER "*")
  endif()
  math(EXPR last "${COUNT} - 1")
  foreach(slice RANGE ${last})
    add_test(NAME ${PREFIX}${slice} COMMAND ${PROGRAM} --gtest_brief=1 --gtest_filter=${S_FILTER})
    set_tests_properties(${PREFIX}${slice} PROPERTIES TIMEOUT 300
      FAIL_REGULAR_EXPRESSION "] 0 tests from"
      ENVIRONMENT "GTEST_TOTAL_SHARDS=${COUNT};GTEST_SHARD_INDEX=${slice};${S_ENVIRONMENT}")
  endforeach()
endfunction()

# neb_test(NAME support DIR tests/support DEPENDS neb_support)
# All sources of one folder of tests and of those below it (but not of BUT), or the FILES of it
# alone, as one program; every test in it is a test of ctest. SHARDS: ctest runs them in so many
# parts instead, for where there are so many short ones that starting the program for each would take
# most of the time. OTHER_MACHINE: it is compiled for another processor than the harness, whose
# precompiled headers it cannot share.
function(neb_test)
  cmake_parse_arguments(T "OTHER_MACHINE" "NAME;DIR;SHARDS;BUT" "DEPENDS;FILES" ${ARGN})
  set(dir ${PROJECT_SOURCE_DIR}/${T_DIR})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${dir}/*.cpp ${dir}/*.h)
  if(T_BUT)
    list(FILTER sources EXCLUDE REGEX "^${dir}/${T_BUT}/")
  endif()
  if(T_FILES)
    list(TRANSFORM T_FILES PREPEND ${dir}/ OUTPUT_VARIABLE sources)
  endif()
  if(NOT sources)
    return()
  endif()
  add_executable(test_${T_NAME} ${sources})
  set_target_properties(test_${T_NAME} PROPERTIES AUTOMOC ON)
  target_link_libraries(test_${T_NAME} PRIVATE ${T_DEPENDS} neb_harness)
  target_include_directories(test_${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  if(T_OTHER_MACHINE)
    target_precompile_headers(test_${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch_test.h)
  else()
    target_precompile_headers(test_${T_NAME} REUSE_FROM neb_harness)
  endif()
  if(T_SHARDS)
    neb_slices(${T_NAME}.Slice test_${T_NAME} ${T_SHARDS})
    return()
  endif()
  gtest_discover_tests(test_${T_NAME} TEST_PREFIX "${T_NAME}." DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 120)
endfunction()
