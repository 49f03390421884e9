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
  # The first makes an input of GNUstep's run loop fail, the others turn to the X server.
  list(APPEND HXUI_CORE_TESTS HXWindowModalTest.mm GNUstep/PointerTrailTest.mm
       GNUstep/WindowOwnerTest.mm)
endif()
