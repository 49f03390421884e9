# Lays the installer out as the platform expects its applications, with every
# resource inside, under the folder OSTREL_BUNDLE.

if(APPLE)
  set_target_properties(OstrelInstaller PROPERTIES MACOSX_BUNDLE ON
    MACOSX_BUNDLE_INFO_PLIST "${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in"
    RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")
  set(bundle_resources "${OSTREL_BUNDLE}/Contents/Resources")
  set(bundle_icon OstrelInstaller.icns)
else()
  set_target_properties(OstrelInstaller OstrelInstallerHelper PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY "${OSTREL_BUNDLE}")
  set(bundle_resources "${OSTREL_BUNDLE}/Resources")
  set(bundle_icon icon-48.png)
  configure_file("${CMAKE_CURRENT_SOURCE_DIR}/Cocoa/Info-gnustep.plist.in"
    "${bundle_resources}/Info-gnustep.plist" @ONLY)
  add_dependencies(OstrelInstaller OstrelInstallerHelper)
endif()

# The plug-in bundles hold links, so they are copied by a tool that keeps them;
# copying anew each time leaves nothing behind of what was taken out.
file(GLOB_RECURSE plugin_files CONFIGURE_DEPENDS LIST_DIRECTORIES false "${OSTREL_PLUGIN_FOLDER}/*")
set(resources_stamp "${PROJECT_BINARY_DIR}/bundle-resources.stamp")
add_custom_command(OUTPUT "${resources_stamp}"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${bundle_resources}"
  COMMAND rm -rf "${bundle_resources}/Ostrel32.plugin" "${bundle_resources}/Ostrel64.plugin"
  COMMAND cp -RPp "${OSTREL_PLUGIN_FOLDER}/Ostrel32.plugin" "${OSTREL_PLUGIN_FOLDER}/Ostrel64.plugin" "${bundle_resources}"
  COMMAND cp -p "${PROJECT_SOURCE_DIR}/resources/AEFile.aep" "${PROJECT_SOURCE_DIR}/resources/pictures/${bundle_icon}" "${bundle_resources}"
  COMMAND "${CMAKE_COMMAND}" -E touch "${resources_stamp}"
  DEPENDS ${plugin_files}
    "${PROJECT_SOURCE_DIR}/resources/AEFile.aep"
    "${PROJECT_SOURCE_DIR}/resources/pictures/${bundle_icon}"
  COMMENT "Filling the application bundle"
  VERBATIM)
add_custom_target(bundle_resources ALL DEPENDS "${resources_stamp}")
add_dependencies(OstrelInstaller bundle_resources)
