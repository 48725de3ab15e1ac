# Fails unless what desktops, shells and readers of manuals get passes the programs that they use.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK})
foreach(component IN ITEMS service widgets editor console player)
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK} --component ${component})
endforeach()

# check_with(<program> <argument>...): skips, visibly, what this machine cannot look at.
function(check_with program)
  find_program(found_${program} ${program})
  if(found_${program})
    run(${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 ${found_${program}} ${ARGN} WITHOUT ": warning")
  else()
    message(STATUS "Not checked, for want of ${program}: ${ARGN}")
  endif()
endfunction()

set(share ${WORK}/share)
check_with(desktop-file-validate ${share}/applications/schedule-editor.desktop)
check_with(appstreamcli validate --no-net ${share}/metainfo/trel.schedule.editor.metainfo.xml)
check_with(xmllint --noout
  ${share}/mime/packages/trel-schedule.xml
  ${share}/metainfo/trel.schedule.editor.metainfo.xml
  ${share}/icons/hicolor/scalable/apps/schedule-editor.svg
  ${share}/icons/hicolor/scalable/mimetypes/application-x-trel-schedule.svg)
# The manager looks whether the program is where the unit says.
file(READ ${WORK}/lib/systemd/user/schedule-player.service unit)
string(REGEX REPLACE "ExecStart=[^ ]*/schedule-player " "ExecStart=${WORK}/bin/schedule-player "
  unit "${unit}")
file(WRITE ${WORK}/schedule-player.service "${unit}")
set(ENV{XDG_RUNTIME_DIR} ${WORK})
check_with(systemd-analyze verify --user --man=no ${WORK}/schedule-player.service)

foreach(program IN ITEMS schedulectl schedule-editor schedule-player)
  check_with(man --warnings=w -l -Tutf8 ${share}/man/man1/${program}.1.gz)
  run(gzip -dc ${share}/man/man1/${program}.1.gz OUTPUT "\n\\.SH NAME\n")
  # The page is that of this program: each option that it has stands there.
  run(${WORK}/bin/${program} --help OUTPUT "--help")
  execute_process(COMMAND ${WORK}/bin/${program} --help OUTPUT_VARIABLE help)
  execute_process(COMMAND gzip -dc ${share}/man/man1/${program}.1.gz OUTPUT_VARIABLE page)
  string(REPLACE "\\" "" page "${page}")
  string(REGEX MATCHALL "\n  [^\n]*--[a-z-]+" lines "${help}")
  foreach(line IN LISTS lines)
    string(REGEX MATCH "--[a-z-]+" option "${line}")
    if(NOT page MATCHES "\n\\.TP\n[^\n]*${option}")
      message(FATAL_ERROR "${program}.1 does not tell of ${option}")
    endif()
  endforeach()
endforeach()

# The entry is for what the file type names, and both have a picture in every size.
file(READ ${share}/applications/schedule-editor.desktop entry)
file(READ ${share}/mime/packages/trel-schedule.xml type)
if(NOT entry MATCHES "MimeType=application/x-trel-schedule;" OR
    NOT type MATCHES "type=\"application/x-trel-schedule\"")
  message(FATAL_ERROR "The desktop entry does not open the type of a schedule")
endif()
foreach(icon IN ITEMS apps/schedule-editor mimetypes/application-x-trel-schedule)
  foreach(size IN ITEMS 16 22 24 32 48 64 128 256 512)
    set(png ${share}/icons/hicolor/${size}x${size}/${icon}.png)
    # The size stands in the head of the file.
    file(READ ${png} width OFFSET 16 LIMIT 4 HEX)
    math(EXPR width "0x${width}")
    if(NOT width EQUAL size)
      message(FATAL_ERROR "${png} is ${width} wide")
    endif()
  endforeach()
endforeach()

foreach(completion IN ITEMS
    bash-completion/completions/schedulectl fish/vendor_completions.d/schedulectl.fish)
  if(NOT EXISTS ${share}/${completion})
    message(FATAL_ERROR "${completion} is missing")
  endif()
endforeach()
file(GLOB_RECURSE zsh ${share}/zsh/_schedulectl)
if(NOT zsh)
  message(FATAL_ERROR "The completion of zsh is missing")
endif()
