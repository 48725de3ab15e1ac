# What every target of the project has in common.
include_guard(GLOBAL)
include(GenerateExportHeader)

# One interface target carries the strictness of compiler and toolkit.
add_library(trel_strict INTERFACE)
target_compile_options(trel_strict INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast
  # What the macros of the toolkit's tests make of an empty list.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
  $<$<BOOL:${TREL_WARNINGS_AS_ERRORS}>:-Werror>
  # What operators get tells nothing of the folder in which it was built.
  $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
    -ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)
target_compile_definitions(trel_strict INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH
  QT_STRICT_ITERATORS
  QT_DEPRECATED_WARNINGS
  QT_DISABLE_DEPRECATED_BEFORE=0x050F00
  # The few debug lines name their file, line and function in release builds too.
  QT_MESSAGELOGCONTEXT)

# trel_precompile(<target> <header>...)
#
# Has the given headers of the toolkit, <QtWidgets> for instance, parsed once for all targets that ask for
# the same ones, and found there by every source of the target. The target has to link just these modules
# of QtCore, QtGui, QtWidgets and QtTest, since the headers of each depend on which of them there are.
# Sources go on to include what they need; scripts/lint reads them without.
function(trel_precompile target)
  if(NOT TREL_PRECOMPILED_HEADERS)
    return()
  endif()
  string(REGEX REPLACE "[<>;]" "" modules "${ARGN}")
  set(owner headers_${modules})
  if(NOT TARGET ${owner})
    set(source ${CMAKE_BINARY_DIR}/headers/${owner}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(${owner} OBJECT ${source})
    set_target_properties(${owner} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    string(REGEX REPLACE "<Qt([A-Za-z]+)>" "Qt5::\\1" libraries "${ARGN}")
    target_link_libraries(${owner} PRIVATE ${libraries} trel_strict)
    # Without it no two are alike, and the compiler cache finds none of what uses them.
    target_compile_options(${owner} PRIVATE
      "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
    target_precompile_headers(${owner} PRIVATE ${ARGN})
  endif()
  target_precompile_headers(${target} REUSE_FROM ${owner})
endfunction()

# trel_library(<name> [OBJECTS] SOURCES ... PUBLIC ... PRIVATE ...)
#
# A shared library <name> with the alias trel::<name>. With OBJECTS its code stands in the object
# library <name>_objects, so that a test can link the classes that the shared library hides. What the
# library exports is marked with <NAME>_EXPORT of the generated header <name>_export.h.
function(trel_library name)
  cmake_parse_arguments(ARG "OBJECTS" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${name} SHARED)
  add_library(trel::${name} ALIAS ${name})
  set(code ${name})
  if(ARG_OBJECTS)
    set(code ${name}_objects)
    add_library(${code} OBJECT)
    target_link_libraries(${name} PRIVATE ${code} PUBLIC ${ARG_PUBLIC})
  endif()
  target_sources(${code} PRIVATE ${ARG_SOURCES})
  target_link_libraries(${code} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE} trel_strict)
  foreach(target IN ITEMS ${name} ${code})
    target_include_directories(${target} PUBLIC
      $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/exports>
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src/libs>
      $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>)
  endforeach()
  generate_export_header(${name} EXPORT_FILE_NAME ${CMAKE_BINARY_DIR}/exports/${name}_export.h)
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${TREL_ABI_VERSION})
endfunction()

# trel_ordered_threads(<program>)
#
# Lets the thread sanitizer know what the toolkit's mutexes, threads and events put in order.
function(trel_ordered_threads program)
  if(TREL_THREAD_SANITIZER)
    target_link_libraries(${program} PRIVATE toolkit_threads)
  endif()
endfunction()

# trel_application(<name> SOURCES ... LINK ...)
function(trel_application name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  trel_ordered_threads(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LINK} trel_strict)
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# trel_test_environment(<Name>)
#
# Where and how long the registered test <Name> runs.
function(trel_test_environment name)
  set_tests_properties(${name} PROPERTIES
    # A minute here is many under the sanitizers on a busy machine.
    TIMEOUT 900
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=Europe/Berlin")
endfunction()

# trel_threads(<Name>...)
#
# These classes of tests have more than one thread at work: scripts/races runs them under the thread
# sanitizer.
function(trel_threads)
  set_property(GLOBAL APPEND PROPERTY TREL_TESTS_THREADS ${ARGN})
endfunction()

# trel_own_allocation(<Name>...)
#
# These classes of tests put an allocation of their own in the place of the language's, which the thread
# sanitizer has to itself.
function(trel_own_allocation)
  set_property(GLOBAL APPEND PROPERTY TREL_TESTS_OWN_ALLOCATION ${ARGN})
endfunction()

# trel_list_tests(<file>)
#
# A line "class program kind" for each class of tests so far, of the kind "threads", "own-allocation" or
# "other". CTest knows the program of a class only once that is built.
function(trel_list_tests file)
  get_property(tests GLOBAL PROPERTY TREL_TESTS)
  get_property(threads GLOBAL PROPERTY TREL_TESTS_THREADS)
  get_property(own_allocation GLOBAL PROPERTY TREL_TESTS_OWN_ALLOCATION)
  set(lines)
  foreach(test IN LISTS tests)
    string(REGEX REPLACE " .*" "" name ${test})
    set(kind other)
    if(name IN_LIST threads)
      set(kind threads)
    elseif(name IN_LIST own_allocation)
      set(kind own-allocation)
    endif()
    string(APPEND lines "${test} ${kind}\n")
  endforeach()
  file(WRITE ${file} "${lines}")
endfunction()

# trel_test_executable(<target> SOURCES ... LINK ... PRECOMPILE ...)
function(trel_test_executable target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRECOMPILE" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  trel_ordered_threads(${target})
  target_link_libraries(${target} PRIVATE ${ARG_LINK} Qt5::Test trel_strict)
  target_include_directories(${target} PRIVATE
    ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
  set_target_properties(${target} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  trel_precompile(${target} ${ARG_PRECOMPILE} <QtTest>)
endfunction()

# trel_test(<Name> SOURCES ... LINK ... PRECOMPILE ...)
#
# A Qt Test program tst_<Name>, registered in CTest as <Name>, the class or rule that it tests. For a
# class that cannot share a program with others; see trel_tests.
function(trel_test name)
  trel_test_executable(tst_${name} ${ARGN})
  add_test(NAME ${name} COMMAND tst_${name})
  set_property(GLOBAL APPEND PROPERTY TREL_TESTS "${name} tst_${name}")
  trel_test_environment(${name})
endfunction()

# trel_test_program(<program> LINK ... PRECOMPILE ... [SOURCES ...])
#
# A program for many classes of tests that link the same. Each runs as a process of its own; see
# tests/support/TestProgram.h.
function(trel_test_program program)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRECOMPILE" ${ARGN})
  trel_test_executable(${program}
    SOURCES ${ARG_SOURCES} LINK ${ARG_LINK} test_program PRECOMPILE ${ARG_PRECOMPILE})
endfunction()

# trel_tests(<program> <name>...)
#
# Adds the classes of tests of the folder to a program. Each <name> stands for tst_<name>.cpp, in a
# room of the folder where it is room/<name>, and is registered in CTest by its last part.
function(trel_tests program)
  foreach(path IN LISTS ARGN)
    cmake_path(GET path PARENT_PATH room)
    cmake_path(GET path FILENAME name)
    target_sources(${program} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${room}/tst_${name}.cpp)
    add_test(NAME ${name} COMMAND ${program} ${name})
    set_property(GLOBAL APPEND PROPERTY TREL_TESTS "${name} ${program}")
    trel_test_environment(${name})
  endforeach()
endfunction()
