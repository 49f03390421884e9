# The tests of numbers, colours and searching.
set(HXUI_VALUE_TESTS
  HXBrowserSearchTest.mm
  HXColorDialogDrawingTest.mm
  HXColorDialogTest.mm
  HXColorImagesTest.cpp
  HXColorPickerTest.mm
  HXControlFloatEditingTest.mm
  HXControlFloatListTest.cpp
  HXControlFloatTest.mm
  HXFloatFormatTest.cpp
  HXHsvTest.cpp)
if(GNUSTEP)
  # They use the X server's keyboard and pointer.
  list(APPEND HXUI_VALUE_TESTS GNUstep/HXColorDialogInputTest.mm GNUstep/HXControlFloatInputTest.mm)
endif()
# These go through millions of colours, which takes a while without it.
set_source_files_properties(HXColorImagesTest.cpp HXHsvTest.cpp PROPERTIES COMPILE_OPTIONS -O2)
