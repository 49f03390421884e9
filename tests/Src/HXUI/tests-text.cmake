set(HXUI_TEXT_TESTS
  ClipboardTest.mm
  CursorShapeTest.mm
  FilePanelsTest.mm
  FileTypeFilterTest.cpp
  HXTextBoxTest.mm
  HXTextControlRichTextTest.mm
  HXTextControlTest.mm
  HXTextDelegateTest.mm
  HXTextFieldTest.mm
  RtfFieldsTest.cpp
  RtfFontSizesTest.cpp
  RtfWordsTest.cpp
  RtfFontTableTest.cpp
  WorkspaceTest.mm)
if(GNUSTEP)
  # It presses keys of the X server's keyboard.
  list(APPEND HXUI_TEXT_TESTS GNUstep/KeyStateTest.mm)
endif()
