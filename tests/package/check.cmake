# Fails unless the example host builds against the installed package and behaves when started, each
# installed header compiles alone, and all that they declare can be linked.
function(run)
  cmake_parse_arguments(ARG "" "STATUS;OUTPUT;WITHOUT" "" ${ARGN})
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
  if(ARG_WITHOUT AND out MATCHES "${ARG_WITHOUT}")
    message(FATAL_ERROR "${ARG_UNPARSED_ARGUMENTS}: \"${ARG_WITHOUT}\" in\n${out}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${EXAMPLE} -B ${WORK}/build -G Ninja
  -DCMAKE_PREFIX_PATH=${WORK}/installed "-DCMAKE_CXX_FLAGS=${FLAGS}"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK}/build)

run(${CMAKE_COMMAND} -S ${SURFACE} -B ${WORK}/surface -G Ninja
  -DCMAKE_PREFIX_PATH=${WORK}/installed "-DCMAKE_CXX_FLAGS=${FLAGS}"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK}/surface)
run(${WORK}/surface/surface OUTPUT "All there")

run(${WORK}/build/minimal-host STATUS 2 OUTPUT "Usage: minimal-host")
run(${WORK}/build/minimal-host ${WORK}/no/such/folder/schedule.db STATUS 1 OUTPUT "no/such/folder")
run(${WORK}/installed/bin/schedulectl --help OUTPUT "schedulectl")
run(${WORK}/installed/bin/schedule-editor --version OUTPUT "schedule-editor [0-9]")

# The tree can be moved, and media are read by whatever part of it needs them.
file(RENAME ${WORK}/installed ${WORK}/moved)
file(GLOB_RECURSE readers ${WORK}/moved/media-reader)
list(LENGTH readers count)
if(NOT count EQUAL 1)
  message(FATAL_ERROR "One program that reads media is expected, and not: ${readers}")
endif()
get_filename_component(library_dir ${readers}/../.. ABSOLUTE)
set(import ${WORK}/moved/bin/schedulectl import --database ${WORK}/media.db)
run(${import} ${MEDIA}/Opening.mp4 OUTPUT "Opening +video +0:00:12.000")

# The player finds its libraries in the moved tree too.
run(${WORK}/moved/bin/schedule-player --version OUTPUT "schedule-player [0-9]")
if(NOT EXISTS ${WORK}/moved/lib/systemd/user/schedule-player.service)
  message(FATAL_ERROR "The unit of the player is missing")
endif()

# It alone of all that a host links brings the libraries for media files along.
foreach(program IN ITEMS
    bin/schedule-editor bin/schedulectl ${library_dir}/libtrelprogramschedule.so)
  cmake_path(ABSOLUTE_PATH program BASE_DIRECTORY ${WORK}/moved)
  run(ldd ${program} OUTPUT libQt5Core WITHOUT "lib(av|sw)[a-z]+\\.so")
endforeach()
run(ldd ${readers} OUTPUT "libavformat.*libswscale|libswscale.*libavformat" WITHOUT libQt5Widgets)

# Without it, or with one that is broken, the operator learns which file it is, and everything else
# goes on.
file(REMOVE ${readers})
run(${import} ${MEDIA}/Weather.mp4 udp://@239.0.0.1:1234 STATUS 1
  OUTPUT "Weather.mp4: Media cannot be read, .* missing: ${readers}\\.\n.*live")
file(WRITE ${readers} "no program")
run(${import} ${MEDIA}/Weather.mp4 udp://@239.0.0.1:1235 STATUS 1
  OUTPUT "Weather.mp4: Media cannot be read, .* cannot be started: ${readers}: .*live")
run(${WORK}/moved/bin/schedulectl programs --database ${WORK}/media.db OUTPUT "Opening")
