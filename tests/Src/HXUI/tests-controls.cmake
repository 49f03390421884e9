# The tests of the controls and dialogs, and what several of them share.
set(HXUI_CONTROL_TESTS
  HXBitmapDisplayTest.mm
  HXButtonTest.mm
  HXCheckBoxTest.mm
  HXComboBoxItemTest.cpp
  HXHelpTipTest.mm
  HXInputDialogTest.mm
  HXMenuItemTest.mm
  HXMultiCheckBoxTest.mm
  HXPopupDialogTest.mm
  HXScrollBarMouseTest.mm
  HXScrollBarTest.mm
  HXSystemButtonTest.mm
  HXTextPanelTest.mm
  NativeMenuTest.mm)
set(HXUI_CONTROL_TEST_HELPERS)
if(GNUSTEP)
  # They look into the windows by which GNUstep shows its menus.
  list(APPEND HXUI_CONTROL_TESTS HXComboBoxTest.mm HXMenuTest.mm)
  list(APPEND HXUI_CONTROL_TEST_HELPERS MenuDriver.mm)
endif()
