#include <gmock/gmock.h>

#import "Src/HXUI/Cocoa/HXView.h"
#import "tests/Src/HXUI/NativeEvents.h"
#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/RecordingSink.h"
#include "tests/Src/HXUI/RecordingWindow.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class HXViewMouseTest : public ToolkitFixture {
 protected:
  HXView* View(const HXObject* widget) { return static_cast<HXView*>(widget->GetNativeView()); }
  NSWindow* Native() { return [window->GetNativeView() window]; }

  /// The press to which a release or a drag belongs.
  void PressFor(NSEventType type) {
    if (type == NSLeftMouseUp || type == NSLeftMouseDragged) Press(NSLeftMouseDown);
    if (type == NSRightMouseUp || type == NSRightMouseDragged) Press(NSRightMouseDown);
    if (type == NSOtherMouseUp || type == NSOtherMouseDragged) Press(NSOtherMouseDown);
  }
  void Press(NSEventType type) { SendMouse(type, *panel, {5, 5}); }

  RecordingPanel* panel = new RecordingPanel(window.get(), {20, 20}, {100, 80});
};

struct MouseCase {
  const char* name;
  NSEventType type;
  int clicks;
  NSUInteger modifiers;
  std::uint32_t expected;
};

constexpr NSUInteger kOtherModifiers = NSShiftKeyMask | NSAlternateKeyMask | NSCommandKeyMask;

constexpr MouseCase kMouseCases[] = {
    {"Moved", NSMouseMoved, 0, 0, 0},
    {"LeftDragged", NSLeftMouseDragged, 1, 0, 0},
    {"RightDragged", NSRightMouseDragged, 1, 0, 0},
    {"OtherDragged", NSOtherMouseDragged, 1, 0, 0},
    {"LeftDown", NSLeftMouseDown, 1, 0, 1},
    {"LeftDownWithoutClickCount", NSLeftMouseDown, 0, 0, 1},
    {"LeftUp", NSLeftMouseUp, 1, 0, 2},
    {"LeftUpOfDoubleClick", NSLeftMouseUp, 2, 0, 2},
    {"LeftDouble", NSLeftMouseDown, 2, 0, 3},
    {"LeftTriple", NSLeftMouseDown, 3, 0, 1},
    {"LeftQuadruple", NSLeftMouseDown, 4, 0, 1},
    {"RightDown", NSRightMouseDown, 1, 0, 4},
    {"RightDownTwice", NSRightMouseDown, 2, 0, 4},
    {"ControlDown", NSLeftMouseDown, 1, NSControlKeyMask, 4},
    {"ControlTriple", NSLeftMouseDown, 3, NSControlKeyMask, 4},
    {"RightUp", NSRightMouseUp, 1, 0, 5},
    {"ControlUp", NSLeftMouseUp, 1, NSControlKeyMask, 5},
    {"ControlDouble", NSLeftMouseDown, 2, NSControlKeyMask, 6},
    {"OtherDown", NSOtherMouseDown, 1, 0, 7},
    {"OtherDownWithControl", NSOtherMouseDown, 1, NSControlKeyMask, 7},
    {"OtherUp", NSOtherMouseUp, 1, 0, 8},
    {"Entered", NSMouseEntered, 0, 0, 11},
    {"Exited", NSMouseExited, 0, 0, 12},
    {"DownWithOtherModifiers", NSLeftMouseDown, 1, kOtherModifiers, 1},
    {"UpWithOtherModifiers", NSLeftMouseUp, 1, kOtherModifiers, 2}};

TEST_F(HXViewMouseTest, EventsReachSinkWidgetAndHookAsTheSameCode) {
  for (const MouseCase& given : kMouseCases) {
    SCOPED_TRACE(given.name);
    PressFor(given.type);
    // Movements come with entering, unless the pointer is there already.
    SendMouse(NSMouseMoved, *panel, {5, 5});

    RecordingOwner owner;
    panel->SetHook(&owner, &RecordingOwner::OnEvent, 1);
    RecordingSink sink;
    panel->kinds.clear();
    SendMouse(given.type, *panel, {6, 6}, given.clicks, given.modifiers);
    EXPECT_THAT(panel->kinds, ElementsAre(given.expected));
    EXPECT_THAT(owner.events, ElementsAre(given.expected));
    ASSERT_EQ(sink.records.size(), 1U);
    EXPECT_EQ(sink.records[0].kind, given.expected);
    EXPECT_EQ(sink.records[0].source, panel);
    panel->SetHook(static_cast<RecordingOwner*>(nullptr), &RecordingOwner::OnEvent, 0);
  }
}

TEST_F(HXViewMouseTest, ControlClickIsARightClick) {
  SendMouse(NSLeftMouseDown, *panel, {5, 5}, 1, NSControlKeyMask);
  SendMouse(NSLeftMouseUp, *panel, {5, 5}, 1, NSControlKeyMask);
  EXPECT_THAT(panel->kinds, ElementsAre(kRightDown, kRightUp));
}

TEST_F(HXViewMouseTest, TrackingRectangleFollowsTheSize) {
  SendMouse(NSMouseMoved, *window, {300, 200});
  panel->kinds.clear();
  SendMouse(NSMouseMoved, *panel, {5, 5});
  EXPECT_THAT(panel->kinds, ElementsAre(kMouseMove, kMouseEntered));
  EXPECT_TRUE(panel->IsHovered());
  SendMouse(NSMouseMoved, *panel, {150, 5});
  EXPECT_FALSE(panel->IsHovered());
  panel->SetSize({200, 80});
  SendMouse(NSMouseMoved, *window, {300, 200});
  panel->kinds.clear();
  SendMouse(NSMouseMoved, *panel, {150, 5});
  EXPECT_THAT(panel->kinds, ElementsAre(kMouseMove, kMouseEntered));
}

// Movement

TEST_F(HXViewMouseTest, MovementGoesToTheDeepestVisibleChild) {
  auto* child = new RecordingPanel(panel, {10, 10}, {50, 50});
  auto* grandchild = new RecordingPanel(child, {10, 10}, {20, 20});
  SendMouse(NSMouseMoved, *window, {300, 200});
  for (RecordingPanel* each : {panel, child, grandchild}) each->kinds.clear();
  NSEvent* event = MouseEvent(NSMouseMoved, Native(),
                              [View(grandchild) convertPoint:NSMakePoint(5, 5) toView:nil]);
  [View(window.get()) mouseMoved:event];
  EXPECT_THAT(grandchild->kinds, ElementsAre(kMouseMove));
  EXPECT_THAT(child->kinds, IsEmpty());
  EXPECT_THAT(panel->kinds, IsEmpty());

  grandchild->SetVisible(false);
  [View(window.get()) mouseMoved:event];
  EXPECT_THAT(child->kinds, ElementsAre(kMouseMove));
  child->SetVisible(false);
  [View(window.get()) mouseMoved:event];
  EXPECT_THAT(panel->kinds, ElementsAre(kMouseMove));
  EXPECT_THAT(grandchild->kinds, ElementsAre(kMouseMove));
}

TEST_F(HXViewMouseTest, OfOverlappingChildrenTheFirstCreatedGetsTheMovement) {
  auto* first = new RecordingPanel(panel, {10, 10}, {50, 50});
  auto* second = new RecordingPanel(panel, {10, 10}, {50, 50});
  SendMouse(NSLeftMouseDown, *panel, {1, 1});
  SendMouse(NSLeftMouseDragged, *panel, {30, 30});
  EXPECT_THAT(first->kinds, Contains(kMouseMove));
  EXPECT_THAT(second->kinds, Not(Contains(kMouseMove)));
}

TEST_F(HXViewMouseTest, ChildWindowsAndForeignViewsAreLeftOutOfTheRouting) {
  // Both come first in creation order and lie under the pointer.
  auto* outer = new RecordingPanel(window.get(), {200, 100}, {60, 60});
  new RecordingWindow(outer);
  NSView* foreign = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 60, 60)] autorelease];
  outer->AddChildView(foreign);
  SendMouse(NSLeftMouseDown, *window, {5, 200});
  SendMouse(NSLeftMouseDragged, *outer, {5, 5});
  EXPECT_THAT(outer->kinds, Contains(kMouseMove));
}

TEST_F(HXViewMouseTest, DragOutsideOfTheViewIsRoutedByTheParent) {
  auto* neighbour = new RecordingPanel(window.get(), {200, 20}, {50, 50});
  SendMouse(NSLeftMouseDown, *panel, {5, 5});
  panel->kinds.clear();
  SendMouse(NSLeftMouseDragged, *neighbour, {5, 5});
  EXPECT_THAT(neighbour->kinds, Contains(kMouseMove));
  EXPECT_THAT(panel->kinds, Not(Contains(kMouseMove)));
}

TEST_F(HXViewMouseTest, FrozenChildUnderThePointerSwallowsTheMovement) {
  panel->SetFrozen(true);
  SendMouse(NSMouseMoved, *panel, {5, 5});
  EXPECT_THAT(panel->kinds, IsEmpty());
}

}  // namespace
