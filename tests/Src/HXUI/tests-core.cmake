# The tests of the widget tree, views, windows, threads and timers.
set(HXUI_CORE_TESTS
  AssertTest.cpp
  Cocoa/ApplicationStartTest.mm
  Cocoa/DisplayCheckTest.cpp
  Cocoa/PictureGuardTest.cpp
  Cocoa/SubviewRemovalTest.mm
  HXCocoaTimerTest.mm
  HXControlTest.mm
  HXEventSinksTest.mm
  HXLayoutTest.mm
  HXMouseRouterTest.mm
  HXMutexTest.mm
  HXObjectGuardTest.mm
  HXObjectTest.mm
  HXPanelTest.mm
  HXSemaphoreTest.mm
  HXThreadTest.mm
  HXViewMouseTest.mm
  HXViewTest.mm
  HXWindowTest.mm)
if(GNUSTEP)
  # It asks the X server about the windows.
  list(APPEND HXUI_CORE_TESTS HXWindowModalTest.mm)
endif()
