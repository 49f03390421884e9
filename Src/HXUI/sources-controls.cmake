# The controls and dialogs, paths relative to this folder.
set(HXUI_CONTROL_SOURCES
  HXBitmapDisplay.cpp
  HXButton.cpp
  HXCheckBox.cpp
  HXComboBox.cpp
  HXComboBoxItem.cpp
  HXHelpTip.cpp
  HXInputDialog.cpp
  HXMenu.cpp
  HXMultiCheckBox.cpp
  HXPopupDialog.cpp
  HXScrollBar.cpp
  HXSystemButton.cpp
  HXTextPanel.cpp
  Cocoa/HXMenuItem.mm
  Cocoa/NativeMenu.mm
  Cocoa/${PLATFORM_FOLDER}/MenuTracking.mm)
