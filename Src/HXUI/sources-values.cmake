# Numbers, colours and searching.
set(HXUI_VALUE_SOURCES
  HXBrowserSearch.cpp
  HXBrowserSearchBox.cpp
  HXColorDialog.cpp
  HXColorImages.cpp
  HXColorPicker.cpp
  HXControlFloat.cpp
  HXControlFloatList.cpp
  HXFloatFormat.cpp
  HXHsv.cpp)
