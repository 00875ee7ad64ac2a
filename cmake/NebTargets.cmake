# How this project's targets are made: one static library and one test program a top folder.

# Only the libraries that a program uses itself are loaded with it: what is read behind a locked door
# is no business of the program in front of it.
add_link_options(-Wl,--as-needed)

add_library(neb_flags INTERFACE)
target_compile_options(neb_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                           -Wold-style-cast -Wno-missing-field-initializers -Werror
  # Who shares precompiled headers agrees on it with all others that do.
  $<$<BOOL:$<TARGET_PROPERTY:NEB_SHARES_HEADERS>>:-pthread>)
target_compile_definitions(neb_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII
                                               QT_DISABLE_DEPRECATED_BEFORE=0x060000)
target_include_directories(neb_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
# To look for memory that it can use again takes the compiler a tenth of its time, and spares little.
target_compile_options(neb_flags INTERFACE
  "$<$<CXX_COMPILER_ID:GNU>:SHELL:--param ggc-min-expand=1000 --param ggc-min-heapsize=2000000>")
# Sources that are compiled together are no headers to one another, and what one names for itself is
# hidden by no local name of the next.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(neb_flags INTERFACE
    "$<$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>:-Wno-subobject-linkage;-Wno-shadow;-Wshadow=local>")
endif()
if(NEB_SANITIZE)
  target_compile_options(neb_flags INTERFACE -fsanitize=address,undefined,fuzzer-no-link
                                             -fno-sanitize-recover=undefined)
  target_link_options(neb_flags INTERFACE -fsanitize=address,undefined)
endif()

# neb_together(TARGET SOURCES [APART room|source ...])
# Up to twelve sources of a room are compiled as one, which reads their headers once, and who changes
# one file does not wait for many. Names of their own must differ within a room then; in the rooms
# and sources that are APART they need not.
function(neb_together TARGET SOURCES)
  cmake_parse_arguments(U "" "" "APART" ${ARGN})
  list(JOIN U_APART "|" apart)
  set_target_properties(${TARGET} PROPERTIES UNITY_BUILD ${NEB_UNITY} UNITY_BUILD_MODE GROUP)
  set(before "")
  foreach(source ${SOURCES})
    cmake_path(GET source PARENT_PATH room)
    if(NOT source MATCHES "\\.cpp$" OR source MATCHES "/(${apart})(/[^/]*|\\.cpp)$")
      continue()
    endif()
    if(NOT room STREQUAL before)
      set(count 0)
      set(before ${room})
      file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${room})
      string(REPLACE "/" "_" name ${name})
    endif()
    math(EXPR group "${count} / 12")
    math(EXPR count "${count} + 1")
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${name}_${group})
  endforeach()
endfunction()

# Floating point that comes out alike on every machine: nothing fused, nothing reckoned too exactly.
add_library(neb_exact INTERFACE)
target_compile_options(neb_exact INTERFACE -ffp-contract=off)
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86")
  target_compile_options(neb_exact INTERFACE -msse2 -mfpmath=sse)
endif()

# ImageMagick without the compiler's threads, which it uses itself and its callers do not: with them
# these could not share the precompiled headers of the house.
macro(neb_find_magick)
  pkg_check_modules(MAGICK REQUIRED IMPORTED_TARGET Magick++-6.Q16)
  list(REMOVE_ITEM MAGICK_CFLAGS_OTHER -fopenmp)
  set_target_properties(PkgConfig::MAGICK PROPERTIES INTERFACE_COMPILE_OPTIONS "${MAGICK_CFLAGS_OTHER}")
endmacro()

# neb_precompiled(TARGET core|gui [OWN])
# What nearly all of its sources read is compiled once for all targets that are compiled alike. What is
# optimised more than others has its OWN: GCC 12 falls over the headers of one level in another.
function(neb_precompiled TARGET HEADERS)
  get_property(first GLOBAL PROPERTY NEB_FIRST_OF_${HEADERS})
  if(first AND NOT ARGN AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_precompile_headers(${TARGET} REUSE_FROM ${first})
  else()
    target_precompile_headers(${TARGET} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch_${HEADERS}.h)
  endif()
  if(NOT first)
    set_property(GLOBAL PROPERTY NEB_FIRST_OF_${HEADERS} ${TARGET})
  endif()
  set_target_properties(${TARGET} PROPERTIES NEB_SHARES_HEADERS ON)
endfunction()

# neb_library(NAME sound FLOOR 2 KNOWS texts|pictures|windows ROOMS decoding mixing devices .
#             DEPENDS neb_x Qt6::Y [HIDDEN z] [APART rooms] [SINGLY] [FAST] [MODULE])
# The top folder src/NAME as the library neb_NAME, with the sources of its ROOMS: its subfolders and,
# as ".", the folder itself. The order of these calls, and of the rooms in each, is the order of the
# house: a room uses those named before it, of the libraries that its own DEPENDS on. What KNOWS
# texts sees no part of Qt's drawing, what knows pictures no window. What is DEPENDS is passed on to
# the users of the library, what is HIDDEN is not. Sources are compiled SINGLY where a program is to
# be linked with those alone that it calls, and with what these use. What is FAST is optimised in a
# development build too. A MODULE is no part of the programs: its users see its headers, and
# load lib/neb-slide-show/neb-NAME.so beside the folder of the program when they first need it.
# tests/layout checks it all.
set_property(GLOBAL PROPERTY NEB_HOUSE "")
set(neb_headers_texts core)
set(neb_headers_pictures core)
set(neb_headers_windows gui)
function(neb_library)
  cmake_parse_arguments(L "SINGLY;FAST;MODULE" "NAME;FLOOR;KNOWS" "ROOMS;APART;DEPENDS;HIDDEN" ${ARGN})
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
  if(NOT L_SINGLY)
    neb_together(neb_${L_NAME} "${sources}" APART ${L_APART})
  endif()
  set_target_properties(neb_${L_NAME} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
  target_link_libraries(neb_${L_NAME} PUBLIC neb_flags ${L_DEPENDS} PRIVATE ${L_HIDDEN})
  set(own)
  if(L_FAST)
    target_compile_options(neb_${L_NAME} PRIVATE -O3)
    set(own OWN)
  endif()
  neb_precompiled(neb_${L_NAME} ${neb_headers_${L_KNOWS}} ${own})
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

# neb_slices(pictures.Slice test_pictures 8 [COST 20] [FILTER Some.*:Tests.*] [ENVIRONMENT A=1 ...])
# The tests of a program as so many tests of ctest, each of which starts it once. A slice without a
# test fails. Those of a higher COST begin earlier.
function(neb_slices PREFIX PROGRAM COUNT)
  cmake_parse_arguments(S "" "FILTER;COST" "ENVIRONMENT" ${ARGN})
  if(NOT S_FILTER)
    set(S_FILTER "*")
  endif()
  if(NOT S_COST)
    set(S_COST 10)
  endif()
  math(EXPR last "${COUNT} - 1")
  foreach(slice RANGE ${last})
    add_test(NAME ${PREFIX}${slice} COMMAND ${PROGRAM} --gtest_brief=1 --gtest_filter=${S_FILTER})
    set_tests_properties(${PREFIX}${slice} PROPERTIES TIMEOUT 600 COST ${S_COST}
      FAIL_REGULAR_EXPRESSION "] 0 tests from"
      ENVIRONMENT "GTEST_TOTAL_SHARDS=${COUNT};GTEST_SHARD_INDEX=${slice};${S_ENVIRONMENT}")
  endforeach()
endfunction()

# neb_test(NAME support DIR tests/support DEPENDS neb_support)
# All sources of one folder of tests and of those below it (but not of BUT), or the FILES of it
# alone, as one program; every test in it is a test of ctest. SHARDS: ctest runs them in so many
# parts instead, for where there are so many short ones that starting the program for each would take
# most of the time. OTHER_MACHINE: it is compiled for another processor than the harness, whose
# precompiled headers it cannot share. FAST: it works on so many pixels that it is optimised.
function(neb_test)
  cmake_parse_arguments(T "OTHER_MACHINE;FAST" "NAME;DIR;SHARDS;BUT" "APART;DEPENDS;FILES" ${ARGN})
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
  neb_together(test_${T_NAME} "${sources}" APART ${T_APART})
  set_target_properties(test_${T_NAME} PROPERTIES AUTOMOC ON)
  target_link_libraries(test_${T_NAME} PRIVATE ${T_DEPENDS} neb_harness)
  target_include_directories(test_${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  if(T_FAST)
    target_precompile_headers(test_${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch_test.h)
  else() # what a test does itself takes next to no time: it is compiled as quickly as can be
    target_compile_options(test_${T_NAME} PRIVATE $<$<CONFIG:Dev>:-O0>)
    if(NOT T_OTHER_MACHINE)
      target_precompile_headers(test_${T_NAME} REUSE_FROM neb_harness)
    endif()
  endif()
  if(T_SHARDS)
    neb_slices(${T_NAME}.Slice test_${T_NAME} ${T_SHARDS})
    return()
  endif()
  gtest_discover_tests(test_${T_NAME} TEST_PREFIX "${T_NAME}." DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 120)
endfunction()
