#include "Src/HXUI/HXBitmapDisplay.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"

HXBitmapDisplay::HXBitmapDisplay(HXObject* parent, const HXBitmap* shownBitmap, HXPoint position,
                                 HXSize size)
    : HXPanel(parent, position, size), bitmap(shownBitmap) {}

void HXBitmapDisplay::Draw() {
  if (bitmap == nullptr) return;
  HXCocoaDC dc(this);
  dc.DrawBitmap(*bitmap, {0, 0}, GetSize());
}
