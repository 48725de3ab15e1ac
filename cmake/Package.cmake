# The installed package: libraries, the headers of what they export, the two hosts, and the files
# with which find_package(trelprogramschedulewidgets) finds them.
include(CMakePackageConfigHelpers)

set(include_dir ${CMAKE_INSTALL_INCLUDEDIR}/${PROJECT_NAME})
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})

set(libraries
  schedulecontract trelprogramschedule trelprogramschedulewidgets trelwidgets tstranslate)
foreach(library IN LISTS libraries)
  target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${include_dir}>)
endforeach()
set_target_properties(schedule-editor schedulectl PROPERTIES
  INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
set_target_properties(trelprogramschedulewidgets PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS ${libraries} schedule-editor schedulectl EXPORT trelTargets)
# Beside the library that opens it. Nothing links it; hosts that carry their libraries with them
# take it from $<TARGET_FILE:trel::trelmedia>.
install(TARGETS trelmedia EXPORT trelTargets
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/${PROJECT_NAME})
install(EXPORT trelTargets NAMESPACE trel:: DESTINATION ${package_dir})

install(DIRECTORY src/libs/trelwidgets src/libs/tstranslate
  DESTINATION ${include_dir}
  FILES_MATCHING
  PATTERN LanguageFile.h EXCLUDE
  PATTERN *.h)
install(FILES
  src/libs/trelprogramschedule/ProgramImporter.h
  src/libs/trelprogramschedule/ScheduleHost.h
  src/libs/trelprogramschedule/ScheduleJson.h
  src/libs/trelprogramschedule/ShownAddress.h
  src/libs/trelprogramschedule/StoreResult.h
  DESTINATION ${include_dir}/trelprogramschedule)
install(FILES
  src/libs/trelprogramschedule/dispatch/ClockChanges.h
  src/libs/trelprogramschedule/dispatch/ProgramVerdict.h
  src/libs/trelprogramschedule/dispatch/ScreenDispatch.h
  src/libs/trelprogramschedule/dispatch/ScreenInsertion.h
  src/libs/trelprogramschedule/dispatch/ScreenState.h
  src/libs/trelprogramschedule/dispatch/ScreenTimeline.h
  src/libs/trelprogramschedule/dispatch/SoughtPlay.h
  DESTINATION ${include_dir}/trelprogramschedule/dispatch)
install(FILES
  src/libs/trelprogramschedule/media/MediaPicture.h
  src/libs/trelprogramschedule/media/PictureRequest.h
  DESTINATION ${include_dir}/trelprogramschedule/media)
install(DIRECTORY src/libs/trelprogramschedulewidgets/service
  DESTINATION ${include_dir}
  FILES_MATCHING
  PATTERN LookingAlarm.h EXCLUDE
  PATTERN MachineAlarm.h EXCLUDE
  PATTERN TimerDescriptor.h EXCLUDE
  PATTERN ZoneWatch.h EXCLUDE
  PATTERN *.h)
install(FILES
  src/libs/trelprogramschedulewidgets/ProgramSheduleWidgetTranslateManager.h
  src/libs/trelprogramschedulewidgets/scheduleControlUI.h
  DESTINATION ${include_dir})
install(DIRECTORY resources/demonstration
  DESTINATION ${CMAKE_INSTALL_DATADIR}/${PROJECT_NAME}
  PATTERN make-media EXCLUDE)

configure_package_config_file(
  cmake/${PROJECT_NAME}Config.cmake.in
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}Config.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}Config.cmake
  ${CMAKE_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
  DESTINATION ${package_dir})
