# Writes the reference of the headers that BUILD installs to OUT/html. Fails at a declaration without a
# comment, and at a comment that names what is not there.
find_program(doxygen doxygen REQUIRED)
file(REMOVE_RECURSE ${OUT})
execute_process(
  COMMAND ${CMAKE_COMMAND} --install ${BUILD} --component development --prefix ${OUT}/installed
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB headers ${OUT}/installed/include/*)
set(ENV{REFERENCE_HEADERS} ${headers})
set(ENV{REFERENCE_FOLDER} ${OUT})
set(ENV{REFERENCE_VERSION} ${VERSION})
execute_process(COMMAND ${doxygen} ${CMAKE_CURRENT_LIST_DIR}/../dist/reference/Doxyfile
  RESULT_VARIABLE status ERROR_VARIABLE findings)
string(REPLACE "$ENV{REFERENCE_HEADERS}/" "" findings "${findings}")
if(NOT status EQUAL 0 OR findings)
  message(FATAL_ERROR "The reference has findings:\n${findings}")
endif()
message(STATUS "${OUT}/html/index.html")
