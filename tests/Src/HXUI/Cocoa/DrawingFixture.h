#pragma once

#include <cstdlib>
#include <functional>
#include <memory>
#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXPanel.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

/// A panel that paints what it is told to, over its own colour.
class PaintedPanel : public HXPanel {
 public:
  using Painter = std::function<void(HXCocoaDC&)>;

  PaintedPanel(HXObject* parent, HXSize size, Painter what)
      : HXPanel(parent, {0, 0}, size), painter(std::move(what)) {}
  void Draw() override {
    HXPanel::Draw();
    HXCocoaDC dc(this);
    painter(dc);
  }

 private:
  Painter painter;
};

/// Base of the tests that look at single pixels.
class DrawingFixture : public ToolkitFixture {
 protected:
  static constexpr HXColor kBlack{0, 0, 0, 255};
  static constexpr HXColor kWhite{255, 255, 255, 255};
  static constexpr HXColor kRed{255, 0, 0, 255};
  static constexpr HXColor kBlue{0, 0, 255, 255};

  /// What `painter` draws on black. Must fit into the window, 400 by 300.
  std::unique_ptr<DrawnPixels> Paint(HXSize size, PaintedPanel::Painter painter) {
    const auto panel = std::make_unique<PaintedPanel>(window.get(), size, std::move(painter));
    panel->SetColor(kBlack);
    return Draw(*panel);
  }

  /// How many pixels differ by more than `tolerance` in a channel.
  static int CountDifferences(const DrawnPixels& first, const DrawnPixels& second,
                              int tolerance = 0) {
    const HXSize size = first.GetSize();
    if (size != second.GetSize()) return size.width * size.height;
    int count = 0;
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        count += IsNear(first.At(x, y), second.At(x, y), tolerance) ? 0 : 1;
      }
    }
    return count;
  }

  static bool IsNear(HXColor a, HXColor b, int tolerance) {
    return std::abs(a.red - b.red) <= tolerance && std::abs(a.green - b.green) <= tolerance &&
           std::abs(a.blue - b.blue) <= tolerance;
  }

  /// All of a picture of this size.
  static HXRect AllOf(const DrawnPixels& pixels) {
    return {0, 0, pixels.GetSize().width, pixels.GetSize().height};
  }
};
