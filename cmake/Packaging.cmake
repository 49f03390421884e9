# What an installed program consists of on Debian, and how CPack makes a package
# of it. On macOS the bundle is all there is; script/package puts it into an image.
include(GNUInstallDirs)

execute_process(COMMAND "${GNUSTEP_CONFIG}" --variable=GNUSTEP_SYSTEM_APPS
  OUTPUT_VARIABLE applications OUTPUT_STRIP_TRAILING_WHITESPACE)
set(installed_bundle "${applications}/OstrelInstaller.app")
set(packaging "${PROJECT_SOURCE_DIR}/packaging/debian")
set(prepared "${PROJECT_BINARY_DIR}/packaging")

configure_file("${packaging}/com.halvorix.ostrel.policy.in" "${prepared}/com.halvorix.ostrel.policy" @ONLY)
configure_file("${packaging}/OstrelInstaller.1.in" "${prepared}/OstrelInstaller.1" @ONLY)
# The name by which a shell and the menu start it.
file(MAKE_DIRECTORY "${prepared}/bin")
file(CREATE_LINK "${installed_bundle}/OstrelInstaller" "${prepared}/bin/OstrelInstaller" SYMBOLIC)

install(TARGETS OstrelInstaller OstrelInstallerHelper RUNTIME DESTINATION "${installed_bundle}")
# With permissions of its own: those of a clone depend on whose it is.
set(readable OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(executable ${readable} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
install(DIRECTORY "${OSTREL_BUNDLE}/Resources" DESTINATION "${installed_bundle}"
  FILE_PERMISSIONS ${readable} DIRECTORY_PERMISSIONS ${executable}
  REGEX "/MacOS/[^/]+$" PERMISSIONS ${executable})
install(FILES "${prepared}/bin/OstrelInstaller" DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES "${packaging}/OstrelInstaller.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${prepared}/OstrelInstaller.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${prepared}/com.halvorix.ostrel.policy" DESTINATION "${CMAKE_INSTALL_DATADIR}/polkit-1/actions")
install(FILES "${packaging}/copyright" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/ostrel-installer")
foreach(size 48 128 256)
  install(FILES "${PROJECT_SOURCE_DIR}/resources/pictures/icon-${size}.png"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps" RENAME OstrelInstaller.png)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/resources/artwork/icon.svg"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" RENAME OstrelInstaller.svg)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ostrel-installer)
set(CPACK_PACKAGE_VENDOR Halvorix)
set(CPACK_PACKAGE_CONTACT "Halvorix <support@halvorix.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "installs the plug-in Ostrel 3D into Adobe After Effects")
set(CPACK_PACKAGE_DESCRIPTION "Finds the installations of After Effects on the machine, lets you choose, asks
once for administrator rights, copies the plug-in and prepares its data folder.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${executable})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no linked library names: AppKit's back-end and tools, the fonts, the
# question for administrator rights.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "gnustep-back0.29-cairo, gnustep-gui-runtime, fonts-dejavu-core, fonts-dejavu-extra, pkexec, polkitd")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "lxpolkit | polkit-1-auth-agent")
include(CPack)
