# Fails unless the example host builds against the installed package and behaves when started.
function(run)
  cmake_parse_arguments(ARG "" "STATUS;OUTPUT" "" ${ARGN})
  execute_process(COMMAND ${ARG_UNPARSED_ARGUMENTS}
    RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT ARG_STATUS)
    set(ARG_STATUS 0)
  endif()
  if(NOT status EQUAL ARG_STATUS)
    message(FATAL_ERROR "${ARG_UNPARSED_ARGUMENTS}: ended with ${status}\n${out}")
  endif()
  if(ARG_OUTPUT AND NOT out MATCHES "${ARG_OUTPUT}")
    message(FATAL_ERROR "${ARG_UNPARSED_ARGUMENTS}: no \"${ARG_OUTPUT}\" in\n${out}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${EXAMPLE} -B ${WORK}/build -G Ninja
  -DCMAKE_PREFIX_PATH=${WORK}/installed "-DCMAKE_CXX_FLAGS=${FLAGS}"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK}/build)

run(${WORK}/build/minimal-host STATUS 2 OUTPUT "Usage: minimal-host")
run(${WORK}/build/minimal-host ${WORK}/no/such/folder/schedule.db STATUS 1 OUTPUT "no/such/folder")
run(${WORK}/installed/bin/schedulectl --help OUTPUT "schedulectl")
run(${WORK}/installed/bin/schedule-editor --version OUTPUT "schedule-editor [0-9]")
