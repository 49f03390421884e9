#include "Src/HXUI/HXPanel.h"

#import "Src/HXUI/Cocoa/HXView.h"
#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

/// A panel around a view that is not the toolkit's own.
class WrappingPanel : public HXPanel {
 public:
  WrappingPanel(HXObject* parentObject, NSView* view) : HXPanel(parentObject, view, {12, 13}) {}
};

class HXPanelTest : public ToolkitFixture {};

TEST_F(HXPanelTest, NewPanelIsAVisibleViewInsideItsParents) {
  HXPanel* panel = new HXPanel(window.get(), {10, 20}, {30, 40});
  NSView* view = panel->GetNativeView();
  EXPECT_EQ([view superview], window -> GetNativeView());
  EXPECT_EQ([static_cast<HXView*>(view) getObject], panel);
  EXPECT_TRUE(NSEqualRects([view frame], NSMakeRect(10, 20, 30, 40)));
  EXPECT_EQ(panel->GetMinSize(), (HXSize{30, 40}));
  EXPECT_TRUE(panel->IsVisible());
  EXPECT_FALSE([view isHidden]);
}

TEST_F(HXPanelTest, PanelWithoutAParentBelongsToNoWindow) {
  RecordingPanel panel(nullptr, {1, 2}, {3, 4});
  EXPECT_EQ([panel.GetNativeView() superview], nil);
  EXPECT_EQ(panel.GetSize(), (HXSize{3, 4}));
  panel.SetFocus();
  EXPECT_FALSE(panel.HasFocus());
  panel.RedrawNow();
  EXPECT_EQ(panel.draws, 0);
}

TEST_F(HXPanelTest, MovingKeepsTheSizeAndMarksForRedrawing) {
  auto* panel = new RecordingPanel(window.get(), {10, 20}, {30, 40});
  [window->GetNativeView() display];
  panel->SetPosition({-5, 7});
  EXPECT_EQ(panel->GetPosition(), (HXPoint{-5, 7}));
  EXPECT_EQ(panel->GetSize(), (HXSize{30, 40}));
  EXPECT_TRUE([panel->GetNativeView() needsDisplay]);
}

TEST_F(HXPanelTest, ResizingKeepsTheOriginAndMarksForRedrawing) {
  auto* panel = new RecordingPanel(window.get(), {10, 20}, {30, 40});
  [window->GetNativeView() display];
  panel->SetSize({50, 60});
  EXPECT_EQ(panel->GetPosition(), (HXPoint{10, 20}));
  EXPECT_EQ(panel->GetSize(), (HXSize{50, 60}));
  EXPECT_TRUE([panel->GetNativeView() needsDisplay]);
  EXPECT_GE(panel->sizeChanges, 1);
  EXPECT_EQ(panel->GetMinSize(), (HXSize{30, 40})) << "a stored value only";
}

TEST_F(HXPanelTest, FractionsAreCutOff) {
  auto* panel = new HXPanel(window.get(), {0, 0}, {10, 10});
  [panel->GetNativeView() setFrame:NSMakeRect(1.9, -1.9, 20.7, 30.2)];
  EXPECT_EQ(panel->GetPosition(), (HXPoint{1, -1}));
  EXPECT_EQ(panel->GetSize(), (HXSize{20, 30}));
}

TEST_F(HXPanelTest, DeletingReleasesTheViewAndCutsItsLink) {
  auto* panel = new HXPanel(window.get(), {0, 0}, {10, 10});
  auto* view = [static_cast<HXView*>(panel->GetNativeView()) retain];
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  delete panel;
  EXPECT_EQ([view getObject], nullptr);
  EXPECT_EQ([view superview], nil);
  [pool drain];
  EXPECT_EQ([view retainCount], 1U);
  [view release];
}

TEST_F(HXPanelTest, CanStandAroundAnotherView) {
  NSView* view = [[NSView alloc] initWithFrame:NSMakeRect(1, 2, 30, 40)];
  [view retain];
  auto* panel = new WrappingPanel(window.get(), view);
  EXPECT_EQ([view superview], window -> GetNativeView());
  EXPECT_EQ(panel->GetPosition(), (HXPoint{1, 2}));
  EXPECT_EQ(panel->GetMinSize(), (HXSize{12, 13}));
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  delete panel;
  [pool drain];
  EXPECT_EQ([view superview], nil);
  EXPECT_EQ([view retainCount], 1U);
  [view release];
}

}  // namespace
