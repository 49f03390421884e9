set(HXUI_DRAWING_TESTS
  Cocoa/FontLookupTest.mm
  Cocoa/HXBitmapPixelsTest.mm
  Cocoa/HXBitmapTest.mm
  Cocoa/HXCocoaDCBitmapTest.mm
  Cocoa/HXCocoaDCTest.mm
  Cocoa/HXCocoaDCTextTest.mm)
