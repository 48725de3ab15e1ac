# What every target of the project has in common.
include_guard(GLOBAL)
include(GenerateExportHeader)

# One interface target carries the strictness of compiler and toolkit.
add_library(trel_strict INTERFACE)
target_compile_options(trel_strict INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast
  $<$<BOOL:${TREL_WARNINGS_AS_ERRORS}>:-Werror>)
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
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

# trel_application(<name> SOURCES ... LINK ...)
function(trel_application name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINK} trel_strict)
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# trel_test(<Name> SOURCES ... LINK ... [LABELS ...] [ENVIRONMENT ...])
#
# A Qt Test program tst_<Name>, registered in CTest as <Name>, the class or rule that it tests.
function(trel_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;LABELS;ENVIRONMENT" ${ARGN})
  if(NOT ARG_TIMEOUT)
    # A minute here is many under the sanitizers on a busy machine.
    set(ARG_TIMEOUT 900)
  endif()
  add_executable(tst_${name} ${ARG_SOURCES})
  target_link_libraries(tst_${name} PRIVATE ${ARG_LINK} Qt5::Test trel_strict)
  target_include_directories(tst_${name} PRIVATE
    ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
  set_target_properties(tst_${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND tst_${name})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    LABELS "${ARG_LABELS}"
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=Europe/Berlin;${ARG_ENVIRONMENT}")
endfunction()
