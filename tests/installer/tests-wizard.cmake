# The tests of the wizard window and of the application around it.
set(INSTALLER_WIZARD_TESTS
  InstallerAppDelegateTest.mm
  InstallerTextsTest.cpp
  InstallerThreadTest.mm
  InstallerUIAssetsTest.mm
  InstallerUIClosingTest.mm
  InstallerUIDrawingTest.mm
  InstallerUIHostPageTest.mm
  InstallerUIInstallTest.mm
  InstallerUINavigationTest.mm
  InstallerUITest.mm
  InstallerUIWheelTest.mm)
