#pragma once

#include "Src/HXUI/HXPanel.h"

class HXBitmap;

/// Shows a bitmap stretched over the whole panel. Reacts to nothing. Owned by
/// its parent.
class HXBitmapDisplay : public HXPanel {
 public:
  /// `shownBitmap` is not owned and must outlive the display; null shows nothing.
  HXBitmapDisplay(HXObject* parent, const HXBitmap* shownBitmap, HXPoint position, HXSize size);

  void Draw() override;

 private:
  const HXBitmap* bitmap;
};
