#pragma once

#include <functional>
#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXPanel.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

/// A panel that a test paints as it expects a widget to look. It covers what is in the
/// corner of its parent, so the widget is drawn first.
class PaintedPanel : public HXPanel {
 public:
  PaintedPanel(HXObject* parentObject, HXSize size, std::function<void(HXCocoaDC&)> painter)
      : HXPanel(parentObject, {0, 0}, size), paint(std::move(painter)) {}

  void Draw() override {
    HXCocoaDC dc(this);
    paint(dc);
  }

 private:
  std::function<void(HXCocoaDC&)> paint;
};

/// How many pixels of `rect` differ.
inline int CountUnlike(const DrawnPixels& first, const DrawnPixels& second, HXRect rect) {
  int unlike = 0;
  for (int y = rect.y; y < rect.y + rect.height; ++y) {
    for (int x = rect.x; x < rect.x + rect.width; ++x) {
      if (first.At(x, y) != second.At(x, y)) ++unlike;
    }
  }
  return unlike;
}

/// How many pixels of two pictures of one size differ; all of them when the sizes do.
inline int CountUnlike(const DrawnPixels& first, const DrawnPixels& second) {
  const HXSize size = first.GetSize();
  if (second.GetSize() != size) return size.width * size.height;
  return CountUnlike(first, second, {0, 0, size.width, size.height});
}
