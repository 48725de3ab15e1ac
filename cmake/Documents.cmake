# What desktops, shells and readers of manuals find of the programs: made by the build, so that it says
# what the programs do.
find_program(TREL_GZIP gzip REQUIRED)
mark_as_advanced(TREL_GZIP)
set(made ${CMAKE_BINARY_DIR}/documents)
file(MAKE_DIRECTORY ${made})
set(documents)

# trel_man_page(<program> COMPONENT ... MAKE ...): installs the page that a command writes.
function(trel_man_page program)
  cmake_parse_arguments(ARG "" "COMPONENT" "MAKE;DEPENDS" ${ARGN})
  add_custom_command(OUTPUT ${made}/${program}.1.gz
    COMMAND ${ARG_MAKE} > ${made}/${program}.1
    COMMAND ${TREL_GZIP} -9nfk ${made}/${program}.1
    DEPENDS schedule-manual ${ARG_DEPENDS}
    COMMENT "Generating ${program}.1"
    VERBATIM)
  set(documents ${documents} ${made}/${program}.1.gz PARENT_SCOPE)
  install(FILES ${made}/${program}.1.gz
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${ARG_COMPONENT})
endfunction()

# trel_man_page_of_help(<program> <component> <purpose>): the page is made of what the program answers
# to --help, and of dist/man/<program>.man.
function(trel_man_page_of_help program component purpose)
  set(rest ${PROJECT_SOURCE_DIR}/dist/man/${program}.man)
  add_custom_command(OUTPUT ${made}/${program}.help
    COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 $<TARGET_FILE:${program}> --help
      > ${made}/${program}.help
    DEPENDS ${program}
    VERBATIM)
  trel_man_page(${program} COMPONENT ${component}
    MAKE schedule-manual help-page ${program} ${purpose} ${made}/${program}.help ${rest}
    DEPENDS ${made}/${program}.help ${rest})
  set(documents ${documents} PARENT_SCOPE)
endfunction()

trel_man_page(schedulectl COMPONENT console MAKE schedule-manual console-page)
trel_man_page_of_help(schedule-editor editor "edit the play schedule of media screens")
trel_man_page_of_help(schedule-player player "show on a screen what is in effect")

# Where each shell looks. Debian keeps a folder of its own for what packages bring for zsh.
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr" AND EXISTS /etc/debian_version)
  set(zsh_folder vendor-completions)
else()
  set(zsh_folder site-functions)
endif()
foreach(place IN ITEMS
    bash:bash-completion/completions/schedulectl
    zsh:zsh/${zsh_folder}/_schedulectl
    fish:fish/vendor_completions.d/schedulectl.fish)
  string(REGEX MATCH "^([a-z]+):(.*)/(.*)$" place ${place})
  set(completion ${made}/${CMAKE_MATCH_1}/${CMAKE_MATCH_3})
  file(MAKE_DIRECTORY ${made}/${CMAKE_MATCH_1})
  add_custom_command(OUTPUT ${completion}
    COMMAND schedule-manual ${CMAKE_MATCH_1} > ${completion}
    DEPENDS schedule-manual
    COMMENT "Generating the completion of ${CMAKE_MATCH_1}"
    VERBATIM)
  list(APPEND documents ${completion})
  install(FILES ${completion}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/${CMAKE_MATCH_2} COMPONENT console)
endforeach()

# trel_icon(<context>/<name> <drawing>): in every size, from dist/icons/<name>-small.svg where it is small.
function(trel_icon icon drawing)
  cmake_path(GET icon FILENAME name)
  cmake_path(GET icon PARENT_PATH context)
  set(small ${PROJECT_SOURCE_DIR}/dist/icons/${name}-small.svg)
  add_custom_command(OUTPUT ${made}/hicolor/512x512/${icon}.png
    COMMAND schedule-icons ${drawing} ${small} ${made}/hicolor ${icon}
    DEPENDS schedule-icons ${drawing} ${small}
    COMMENT "Drawing the icon ${name}"
    VERBATIM)
  set(documents ${documents} ${made}/hicolor/512x512/${icon}.png PARENT_SCOPE)
  install(FILES ${drawing}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/${context} COMPONENT editor)
endfunction()

# The one that the window of the editor has.
trel_icon(apps/schedule-editor ${PROJECT_SOURCE_DIR}/resources/images/schedule-editor.svg)
trel_icon(mimetypes/application-x-trel-schedule
  ${PROJECT_SOURCE_DIR}/dist/icons/application-x-trel-schedule.svg)
install(DIRECTORY ${made}/hicolor
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons COMPONENT editor)

install(FILES dist/desktop/schedule-editor.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT editor)
install(FILES dist/desktop/trel-schedule.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT editor)
configure_file(dist/desktop/trel.schedule.editor.metainfo.xml.in
  ${made}/trel.schedule.editor.metainfo.xml @ONLY)
install(FILES ${made}/trel.schedule.editor.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT editor)

# User units are looked for below lib, also where libraries have a folder for each architecture.
configure_file(dist/systemd/schedule-player.service.in ${made}/schedule-player.service @ONLY)
install(FILES ${made}/schedule-player.service DESTINATION lib/systemd/user COMPONENT player)

add_custom_target(documents ALL DEPENDS ${documents})

install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents
  PATTERN built EXCLUDE)
