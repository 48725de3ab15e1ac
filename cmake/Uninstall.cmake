# The target `uninstall` removes what the last `cmake --install` of this build wrote, and the folders that
# are empty then.
add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -DMANIFEST=${CMAKE_BINARY_DIR}/install_manifest.txt
    -P ${CMAKE_CURRENT_LIST_DIR}/RemoveInstalled.cmake
  COMMENT "Removing what was installed"
  VERBATIM)
