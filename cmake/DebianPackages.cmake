# The packages that scripts/package makes: libraries by Debian's habits, each program by itself, and what
# developers and readers want.
set(TREL_PACKAGE_MAINTAINER "Maintainers of trel <maintainers@trel.invalid>" CACHE STRING
  "Who answers for the Debian packages")
set(service_package libtrelprogramschedule${TREL_ABI_VERSION})
set(widgets_package libtrelprogramschedulewidgets${TREL_ABI_VERSION})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
set(CPACK_PACKAGE_CONTACT "${TREL_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The libraries of the other packages, whose versions stand below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_COMPONENTS_ALL)

set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(package_files ${CMAKE_BINARY_DIR}/debian)
file(MAKE_DIRECTORY ${package_files})
execute_process(COMMAND date -u -R -d ${TREL_RELEASE_DATE}
  OUTPUT_VARIABLE release_moment OUTPUT_STRIP_TRAILING_WHITESPACE)
configure_file(dist/debian/changelog.in ${package_files}/changelog.Debian)
execute_process(COMMAND ${TREL_GZIP} -9nfk ${package_files}/changelog.Debian)

# trel_wrapped(<text> <variable>): in lines that a terminal shows whole.
function(trel_wrapped text variable)
  string(REPLACE " " ";" words "${text}")
  set(lines)
  set(line)
  foreach(word IN LISTS words)
    string(LENGTH "${line} ${word}" length)
    if(length GREATER 78)
      string(APPEND lines "${line}\n")
      set(line ${word})
    else()
      string(JOIN " " line ${line} ${word})
    endif()
  endforeach()
  set(${variable} "${lines}${line}" PARENT_SCOPE)
endfunction()

# trel_library_control(<component> <package> <library>...): what the package of libraries tells those that
# are linked to them, and that the loader has to look at its folders again.
function(trel_library_control component package)
  set(shlibs)
  foreach(library IN LISTS ARGN)
    string(APPEND shlibs "lib${library} ${TREL_ABI_VERSION} ${package} (>= ${PROJECT_VERSION})\n")
  endforeach()
  set(folder ${package_files}/${component})
  file(WRITE ${folder}/shlibs "${shlibs}")
  file(WRITE ${folder}/triggers "activate-noawait ldconfig\n")
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${folder}/shlibs ${folder}/triggers PARENT_SCOPE)
endfunction()

# trel_package(<component> <package> SECTION ... SUMMARY ... DESCRIPTION ... [DEPENDS ...]
#   [RECOMMENDS ...] [SUGGESTS ...] [ALL])
#
# DEPENDS is what the libraries that are linked do not tell. ALL marks what is the same on every machine.
function(trel_package component package)
  cmake_parse_arguments(ARG "ALL" "SECTION;SUMMARY;DESCRIPTION" "DEPENDS;RECOMMENDS;SUGGESTS" ${ARGN})
  string(TOUPPER ${component} upper)
  list(JOIN ARG_DEPENDS ", " depends)
  list(JOIN ARG_RECOMMENDS ", " recommends)
  list(JOIN ARG_SUGGESTS ", " suggests)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${ARG_SECTION} PARENT_SCOPE)
  trel_wrapped("${ARG_DESCRIPTION}" description)
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${ARG_SUMMARY}\n${description}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_RECOMMENDS "${recommends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SUGGESTS "${suggests}" PARENT_SCOPE)
  if(ARG_ALL)
    set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS OFF PARENT_SCOPE)
  endif()
  # Each package has these, and nothing but packages does.
  install(FILES dist/debian/copyright ${package_files}/changelog.Debian.gz
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component} EXCLUDE_FROM_ALL)
  set(overrides lintian-overrides)
  if(ARG_SECTION STREQUAL "libs")
    set(overrides libraries.lintian-overrides)
  endif()
  install(FILES dist/debian/${overrides} RENAME ${package}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

set(about "A schedule says what plays on a media screen, and when.")
trel_package(service ${service_package}
  SECTION libs
  SUMMARY "schedule service of media screens"
  DESCRIPTION "${about} This library stores schedules in SQLite, keeps one of them in effect, and tells what \
is on screen at any moment. With it comes the confined program that reads media files."
  DEPENDS libqt5sql5-sqlite tzdata
  SUGGESTS libqt5sql5-psql)
trel_package(widgets ${widgets_package}
  SECTION libs
  SUMMARY "editor for the schedules of media screens, as a library"
  DESCRIPTION "${about} These libraries are the editor, for any program with Qt Widgets, and what its texts \
and windows are made of."
  DEPENDS "${service_package} ${same_version}"
  RECOMMENDS ${PROJECT_NAME}-data)
trel_package(data ${PROJECT_NAME}-data ALL
  SECTION misc
  SUMMARY "languages of the schedule editor, and a demonstration"
  DESCRIPTION "${about} This package has the texts of the editor and of its desktop program in ten \
languages, and a schedule with programs to begin with.")
trel_package(development libtrelprogramschedulewidgets-dev
  SECTION libdevel
  SUMMARY "development files of the schedule editor and its service"
  DESCRIPTION "${about} This package has what is needed to build programs with the editor or the schedule \
service: headers, and files for CMake and pkg-config."
  DEPENDS "${service_package} ${same_version}" "${widgets_package} ${same_version}"
    "qtbase5-dev (>= 5.15)"
  SUGGESTS ${PROJECT_NAME}-doc)
trel_package(editor schedule-editor
  SECTION video
  SUMMARY "desktop editor for the schedules of media screens"
  DESCRIPTION "${about} The editor shows tasks and plans, the picture of the week, what is on screen now, \
why, and what comes next. It imports films, images, sounds and live streams."
  DEPENDS "${service_package} ${same_version}" "${widgets_package} ${same_version}"
    "${PROJECT_NAME}-data ${same_version}" hicolor-icon-theme
  RECOMMENDS fonts-dejavu-core fonts-noto-cjk qttranslations5-l10n shared-mime-info
  SUGGESTS schedulectl schedule-player)
trel_package(console schedulectl
  SECTION video
  SUMMARY "schedules of media screens from a terminal"
  DESCRIPTION "${about} This program fills the catalog, shows, checks and exchanges schedules, puts them into \
effect, and tells what is on screen, for people and for scripts."
  DEPENDS "${service_package} ${same_version}"
  SUGGESTS bash-completion)
trel_package(player schedule-player
  SECTION video
  SUMMARY "player of a media screen"
  DESCRIPTION "${about} The player fills a screen with what the schedule in effect says, changes programs at \
their moment, and goes on through files that break and streams that stall."
  DEPENDS "${service_package} ${same_version}"
  RECOMMENDS fonts-dejavu-core libgl1-mesa-dri
  SUGGESTS schedulectl)
trel_package(documents ${PROJECT_NAME}-doc ALL
  SECTION doc
  SUMMARY "documents of the schedule editor, its console and its player"
  DESCRIPTION "${about} This package has the guide, what the console and the player do, how the editor is \
embedded into other programs, and an example of that.")
trel_library_control(service ${service_package} trelprogramschedule schedulecontract tstranslate)
trel_library_control(widgets ${widgets_package} trelprogramschedulewidgets trelwidgets)
include(CPack)
