set(HXUI_TEXT_SOURCES
  FileTypeFilter.cpp
  HXTextBox.cpp
  HXTextControl.cpp
  RtfFields.cpp
  RtfFontTable.cpp
  Cocoa/Clipboard.mm
  Cocoa/CursorShape.mm
  Cocoa/FilePanels.mm
  Cocoa/HXTextDelegate.mm
  Cocoa/HXTextField.mm
  Cocoa/NativeText.mm
  Cocoa/Workspace.mm)
if(APPLE)
  list(APPEND HXUI_TEXT_SOURCES Cocoa/Apple/KeyState.mm)
else()
  list(APPEND HXUI_TEXT_SOURCES Cocoa/GNUstep/KeyState.cpp)
endif()
