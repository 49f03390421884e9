# The tests of the controls and dialogs, and what several of them share.
set(HXUI_CONTROL_TESTS
  HXBitmapDisplayTest.mm
  HXButtonTest.mm
  HXCheckBoxTest.mm
  HXComboBoxItemTest.cpp
  HXComboBoxTest.mm
  HXHelpTipTest.mm
  HXInputDialogTest.mm
  HXMenuItemTest.mm
  HXMenuTest.mm
  HXMultiCheckBoxTest.mm
  HXPopupDialogTest.mm
  HXScrollBarMouseTest.mm
  HXScrollBarTest.mm
  HXSystemButtonTest.mm
  HXTextPanelTest.mm
  NativeMenuTest.mm)
set(HXUI_CONTROL_TEST_HELPERS MenuDriver.mm)
