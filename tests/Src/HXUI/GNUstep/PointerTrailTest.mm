#include "Src/HXUI/Cocoa/PointerTrail.h"

#import "tests/Src/HXUI/PlatformInput.h"
#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

class PointerTrailTest : public ToolkitFixture {
 protected:
  void MovePointerTo(HXObject& widget, HXPoint point) {
    const HXPoint place = widget.ClientToScreen(point);
    MoveRealPointer(NSMakePoint(place.x, place.y));
  }
};

TEST_F(PointerTrailTest, AWidgetIsEnteredEvenWhenItsWindowHasLookedWhereThePointerIs) {
  auto* panel = new RecordingPanel(window.get(), {100, 100}, {50, 50});
  PumpUntil([this] { return window->IsKeyWindow(); }, "the window to become key");
  MovePointerTo(*panel, {-50, -50});
  Pump();
  MovePointerTo(*panel, {25, 25});
  // As GNUstep does before the next event, whatever that is, when the rectangles are out of date.
  [[panel->GetNativeView() window] resetCursorRects];
  PumpUntil([panel] { return panel->IsHovered(); }, "the pointer to enter the panel");
}

}  // namespace
