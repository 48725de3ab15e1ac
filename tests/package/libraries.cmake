# Fails unless a build of the libraries alone has no programs but the one that they start, and what is
# installed can be removed without a trace.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/alone -G Ninja -DTREL_BUILD_PROGRAMS=OFF)
execute_process(COMMAND ninja -C ${WORK}/alone -t targets all
  OUTPUT_VARIABLE targets COMMAND_ERROR_IS_FATAL ANY)
foreach(target IN ITEMS libtrelprogramschedulewidgets.so: media-reader:)
  if(NOT targets MATCHES "${target}")
    message(FATAL_ERROR "${target} is missing where the libraries are built alone")
  endif()
endforeach()
if(targets MATCHES "schedulectl|schedule-player|bin/schedule-editor|libtrelscreen")
  message(FATAL_ERROR "A build of the libraries alone has ${CMAKE_MATCH_0}")
endif()

# A list as `cmake --install` leaves it, and something of a user's beside.
file(MAKE_DIRECTORY ${WORK}/there/share/kept ${WORK}/there/share/left/deep ${WORK}/build)
file(WRITE ${WORK}/there/share/kept/own.txt "a user's")
set(manifest)
foreach(file IN ITEMS share/kept/one share/left/deep/two "share/left/with a blank")
  file(WRITE ${WORK}/there/${file} "installed")
  string(APPEND manifest "${WORK}/there/${file}\n")
endforeach()
file(WRITE ${WORK}/build/install_manifest.txt "${manifest}")
run(${CMAKE_COMMAND} -DMANIFEST=${WORK}/build/install_manifest.txt
  -P ${SOURCE}/cmake/RemoveInstalled.cmake OUTPUT "Removed 3 files")
file(GLOB_RECURSE left LIST_DIRECTORIES true RELATIVE ${WORK}/there ${WORK}/there/*)
list(SORT left)
if(NOT left STREQUAL "share;share/kept;share/kept/own.txt")
  message(FATAL_ERROR "What is left behind: ${left}")
endif()
run(${CMAKE_COMMAND} -DMANIFEST=${WORK}/build/install_manifest.txt
  -P ${SOURCE}/cmake/RemoveInstalled.cmake STATUS 1 OUTPUT "Nothing was installed")
