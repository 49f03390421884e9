# The tests of numbers, colours and searching.
set(HXUI_VALUE_TESTS
  HXBrowserSearchTest.mm
  HXColorDialogTest.mm
  HXColorImagesTest.cpp
  HXColorPickerTest.mm
  HXControlFloatEditingTest.mm
  HXControlFloatListTest.cpp
  HXControlFloatTest.mm
  HXFloatFormatTest.cpp
  HXHsvTest.cpp)
