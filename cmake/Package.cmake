# The installed package: libraries, the headers of what they export, the hosts, and the files
# with which find_package(trelprogramschedulewidgets) finds them.
include(CMakePackageConfigHelpers)

set(include_dir ${CMAKE_INSTALL_INCLUDEDIR}/${PROJECT_NAME})
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})

set(libraries
  schedulecontract trelprogramschedule trelprogramschedulewidgets trelwidgets tstranslate)
foreach(library IN LISTS libraries)
  target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${include_dir}>)
endforeach()
# A tree that can be moved, but for the system's own, whose libraries the loader finds by itself.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  if(TREL_BUILD_PROGRAMS)
    set_target_properties(schedule-editor schedulectl schedule-player PROPERTIES
      INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  endif()
  set_target_properties(trelprogramschedulewidgets trelprogramschedule PROPERTIES
    INSTALL_RPATH "$ORIGIN")
endif()

foreach(library IN LISTS libraries)
  set(component service)
  if(library MATCHES "widgets")
    set(component widgets)
  endif()
  install(TARGETS ${library} EXPORT trelTargets
    LIBRARY COMPONENT ${component} NAMELINK_COMPONENT development)
endforeach()
if(TREL_BUILD_PROGRAMS)
  install(TARGETS schedule-editor EXPORT trelTargets COMPONENT editor)
  install(TARGETS schedulectl EXPORT trelTargets COMPONENT console)
  # A program alone: what it links must not become a part of a host.
  install(TARGETS schedule-player COMPONENT player)
endif()
# Beside the library that starts it. Hosts that carry their libraries with them take it from
# $<TARGET_FILE:trel::media-reader>.
install(TARGETS media-reader EXPORT trelTargets
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/${PROJECT_NAME} COMPONENT service)
install(EXPORT trelTargets NAMESPACE trel:: DESTINATION ${package_dir} COMPONENT development)

# install_headers(<library> <folder> <header>...)
#
# The public headers of a library, which are included as they stand below the folder. Each of them
# compiles alone, and what it declares can be linked.
function(install_headers library base)
  foreach(header IN LISTS ARGN)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ${base}/${header}
      DESTINATION ${include_dir}/${folder} COMPONENT development)
  endforeach()
  install(FILES ${CMAKE_BINARY_DIR}/exports/${library}_export.h
    DESTINATION ${include_dir} COMPONENT development)
endfunction()

install_headers(tstranslate src/libs
  tstranslate/LanguageFile.h
  tstranslate/Translator.h)
install_headers(trelwidgets src/libs
  trelwidgets/ComboBox.h
  trelwidgets/Dialog.h
  trelwidgets/TipDialog.h)
install_headers(schedulecontract src/libs/trelprogramschedulewidgets
  clock/Clock.h
  clock/ClockAlarm.h
  service/DateText.h
  service/FixedText.h
  service/InvalidEntries.h
  service/NewPlan.h
  service/PlanCollisions.h
  service/PlanConflicts.h
  service/PlanFaults.h
  service/PlanInsertion.h
  service/PlanTiming.h
  service/ProgramOffers.h
  service/ProgramText.h
  service/ProgramTotal.h
  service/ProgramUses.h
  service/ScheduleDifferences.h
  service/ScheduleRecords.h
  service/TaskPeriods.h
  service/TaskPlans.h
  service/TimeText.h
  service/WeekDays.h
  service/scheduleManage.h)
install(FILES ${CMAKE_BINARY_DIR}/exports/service/Version.h
  DESTINATION ${include_dir}/service COMPONENT development)
install_headers(trelprogramschedule src/libs
  trelprogramschedule/catalogue/ProgramContent.h
  trelprogramschedule/catalogue/ProgramImporter.h
  trelprogramschedule/catalogue/StoredContents.h
  trelprogramschedule/ScheduleHost.h
  trelprogramschedule/ScheduleImport.h
  trelprogramschedule/ScheduleImporter.h
  trelprogramschedule/effect/EffectStart.h
  trelprogramschedule/faults/Fault.h
  trelprogramschedule/faults/FaultWords.h
  trelprogramschedule/history/ScheduleVersion.h
  trelprogramschedule/json/NamedProgram.h
  trelprogramschedule/json/NamedSchedule.h
  trelprogramschedule/json/ProgramMatch.h
  trelprogramschedule/json/ScheduleJson.h
  trelprogramschedule/merge/ScheduleMerge.h
  trelprogramschedule/catalogue/ShownAddress.h
  trelprogramschedule/store/StoreResult.h
  trelprogramschedule/dispatch/ClockChanges.h
  trelprogramschedule/dispatch/ProgramVerdict.h
  trelprogramschedule/dispatch/ScreenDispatch.h
  trelprogramschedule/dispatch/ScreenInsertion.h
  trelprogramschedule/dispatch/ScreenState.h
  trelprogramschedule/dispatch/ScreenTimeline.h
  trelprogramschedule/dispatch/SoughtPlay.h
  trelprogramschedule/media/MediaPicture.h
  trelprogramschedule/media/MediaReading.h
  trelprogramschedule/media/PictureRequest.h)
install_headers(trelprogramschedulewidgets src/libs/trelprogramschedulewidgets
  ProgramSheduleWidgetTranslateManager.h
  scheduleControlUI.h)
if(TREL_BUILD_PROGRAMS)
  install(DIRECTORY resources/demonstration
    DESTINATION ${CMAKE_INSTALL_DATADIR}/${PROJECT_NAME} COMPONENT data
    PATTERN make-media EXCLUDE)
endif()

# What hosts compile into themselves. The name of the list becomes that of a symbol in each of them.
set(image_dir ${CMAKE_INSTALL_DATADIR}/${PROJECT_NAME}/resources)
set(image_list ${image_dir}/trel_editor_images.qrc)
install(FILES resources/editor.qrc RENAME trel_editor_images.qrc
  DESTINATION ${image_dir} COMPONENT development)
install(DIRECTORY resources/images resources/themes
  DESTINATION ${image_dir} COMPONENT development)

set(language_dir ${CMAKE_INSTALL_DATADIR}/${PROJECT_NAME}/languages)
configure_package_config_file(
  cmake/${PROJECT_NAME}Config.cmake.in
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}Config.cmake
  INSTALL_DESTINATION ${package_dir}
  PATH_VARS language_dir include_dir image_list)
write_basic_package_version_file(
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}Config.cmake
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

# For hosts that are built without CMake. They find their place from that of the file, but for the
# system's own, where compilers look by themselves. Paths that are absolute stay so.
set(pc_prefix ${CMAKE_INSTALL_PREFIX})
if(NOT pc_prefix STREQUAL "/usr" AND NOT IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  file(RELATIVE_PATH pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  set(pc_prefix "\${pcfiledir}/${pc_prefix}")
endif()
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_LIBDIR
  BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE pc_libdir)
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_INCLUDEDIR
  BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE pc_includedir)
cmake_path(ABSOLUTE_PATH image_list BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE pc_images)
foreach(library IN ITEMS trelprogramschedule trelprogramschedulewidgets)
  configure_file(dist/pkgconfig/${library}.pc.in ${CMAKE_BINARY_DIR}/${library}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/${library}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()
