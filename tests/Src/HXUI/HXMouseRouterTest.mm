#include "Src/HXUI/HXMouseRouter.h"

#include <gmock/gmock.h>

#include <memory>

#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/RecordingSink.h"
#include "tests/Src/HXUI/RecordingWindow.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Kinds = std::vector<MouseKind>;

class HXMouseRouterTest : public ToolkitFixture {
 protected:
  ~HXMouseRouterTest() override { EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr); }
  NSWindow* Native() { return [window->GetNativeView() window]; }

  RecordingPanel* panel = new RecordingPanel(window.get(), {20, 20}, {100, 80});
  RecordingPanel* other = new RecordingPanel(window.get(), {200, 20}, {100, 80});
};

// The press filter and the hovered flag

TEST_F(HXMouseRouterTest, ReleaseWithoutPressIsDropped) {
  SendMouse(NSLeftMouseUp, *panel, {5, 5});
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_THAT(panel->kinds, IsEmpty());
  Click(*panel, {5, 5});
  EXPECT_THAT(panel->kinds, ElementsAre(kLeftDown, kLeftUp));
}

TEST_F(HXMouseRouterTest, SecondReleaseIsDropped) {
  Click(*panel, {5, 5});
  panel->kinds.clear();
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_THAT(panel->kinds, IsEmpty());
}

TEST_F(HXMouseRouterTest, ReleaseAfterLeavingIsDropped) {
  HXMouseRouter::Handle(panel, kLeftDown);
  HXMouseRouter::Handle(panel, kMouseExited);
  HXMouseRouter::Handle(panel, kMouseEntered);
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_THAT(panel->kinds, ElementsAre(kLeftDown, kMouseExited, kMouseEntered));
}

TEST_F(HXMouseRouterTest, DoubleClickDoesNotCountAsPress) {
  HXMouseRouter::Handle(panel, kLeftDouble);
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_THAT(panel->kinds, ElementsAre(kLeftDouble));
}

TEST_F(HXMouseRouterTest, OtherKindsPassUnfiltered) {
  const Kinds kinds = {kMouseMove, kRightUp,   kRightDown,    kRightDouble,
                       kOtherUp,   kOtherDown, kMouseEntered, kMouseExited};
  for (const MouseKind kind : kinds) HXMouseRouter::Handle(panel, kind);
  EXPECT_EQ(panel->kinds, kinds);
}

TEST_F(HXMouseRouterTest, DroppedReleaseIsNotNotified) {
  RecordingOwner owner;
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_THAT(owner.events, IsEmpty());
}

TEST_F(HXMouseRouterTest, EnteringAndLeavingSetAndClearHovered) {
  bool hoveredInside = false;
  panel->onMouse = [&] { hoveredInside = panel->IsHovered(); };
  HXMouseRouter::Handle(panel, kMouseEntered);
  EXPECT_TRUE(hoveredInside) << "set before the widget hears of it";
  HXMouseRouter::Handle(panel, kMouseMove);
  EXPECT_TRUE(panel->IsHovered());
  HXMouseRouter::Handle(panel, kMouseExited);
  EXPECT_FALSE(hoveredInside);
}

TEST_F(HXMouseRouterTest, FrozenWidgetHearsNothingAndKeepsItsState) {
  panel->SetFrozen(true);
  for (const MouseKind kind : {kMouseEntered, kLeftDown, kMouseMove}) {
    HXMouseRouter::Handle(panel, kind);
  }
  panel->SetFrozen(false);
  EXPECT_FALSE(panel->IsHovered());
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_THAT(panel->kinds, IsEmpty());
}

TEST_F(HXMouseRouterTest, HookRunsAfterOnMouseWithTheSameKind) {
  RecordingOwner owner;
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  std::size_t eventsBefore = 99;
  panel->onMouse = [&] { eventsBefore = owner.events.size(); };
  HXMouseRouter::Handle(panel, kRightDown);
  EXPECT_EQ(eventsBefore, 0U);
  EXPECT_THAT(owner.events, ElementsAre(4));
}

// Event sinks

TEST_F(HXMouseRouterTest, SinksSeeUncapturedEventsFirstWithParameterZero) {
  RecordingSink sink;
  std::size_t kindsBefore = 99;
  sink.onEvent = [&] { kindsBefore = panel->kinds.size(); };
  SendMouse(NSRightMouseDown, *panel, {5, 5});
  ASSERT_EQ(sink.records.size(), 1U);
  EXPECT_EQ(sink.records[0].source, panel);
  EXPECT_EQ(sink.records[0].kind, 4U);
  EXPECT_EQ(sink.records[0].parameter, 0);
  EXPECT_EQ(sink.records[0].pass, 1);
  EXPECT_EQ(kindsBefore, 0U);
  EXPECT_THAT(panel->kinds, ElementsAre(kRightDown));
}

TEST_F(HXMouseRouterTest, SinksSeeEvenWhatTheFilterAndTheFrozenWidgetDrop) {
  RecordingSink sink;
  HXMouseRouter::Handle(panel, kLeftUp);
  panel->SetFrozen(true);
  HXMouseRouter::Handle(panel, kLeftDown);
  EXPECT_EQ(sink.records.size(), 2U);
}

TEST_F(HXMouseRouterTest, StoppedEventLeavesTheWidgetUntouched) {
  RecordingOwner owner;
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  RecordingSink sink;
  sink.stop = true;
  HXMouseRouter::Handle(panel, kLeftDown);
  HXMouseRouter::Handle(panel, kMouseEntered);
  sink.stop = false;
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_FALSE(panel->IsHovered());
  EXPECT_THAT(panel->kinds, IsEmpty());
  EXPECT_THAT(owner.events, IsEmpty());
}

TEST_F(HXMouseRouterTest, EventWithoutAWidgetEndsAtTheSinks) {
  RecordingSink sink;
  HXMouseRouter::Handle(nullptr, kLeftDown);
  ASSERT_EQ(sink.records.size(), 1U);
  EXPECT_EQ(sink.records[0].source, nullptr);
}

TEST_F(HXMouseRouterTest, SinkMayDeleteTheWidget) {
  RecordingSink sink;
  sink.onEvent = [&] { delete std::exchange(panel, nullptr); };
  SendMouse(NSLeftMouseDown, *panel, {5, 5});
  EXPECT_EQ(panel, nullptr);
  sink.onEvent = nullptr;
  [Native() sendEvent:[NSApp currentEvent]];
}

TEST_F(HXMouseRouterTest, SinkThatCapturesLetsTheEventPassTheFilter) {
  RecordingSink sink;
  sink.onEvent = [&] { other->CaptureMouse(); };
  HXMouseRouter::Handle(panel, kLeftUp);
  EXPECT_THAT(panel->kinds, ElementsAre(kLeftUp));
  other->ReleaseMouse();
}

// Capture

TEST_F(HXMouseRouterTest, CaptureOwnerGetsEveryMouseEventOfEveryView) {
  RecordingOwner owner;
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  panel->CaptureMouse();
  RecordingSink sink;
  SendMouse(NSLeftMouseUp, *other, {5, 5});
  SendMouse(NSLeftMouseDown, *other, {5, 5});
  SendMouse(NSLeftMouseDragged, *other, {300, 5});
  SendMouse(NSLeftMouseUp, *other, {5, 5});
  SendMouse(NSRightMouseDown, *window, {1, 1});
  EXPECT_THAT(panel->kinds, ElementsAre(kLeftDown, kMouseMove, kLeftUp, kRightDown));
  EXPECT_THAT(owner.events, ElementsAre(1, 0, 2, 4));
  EXPECT_THAT(other->kinds, IsEmpty());
  EXPECT_THAT(sink.records, IsEmpty()) << "sinks see uncaptured events only";
  panel->ReleaseMouse();
}

TEST_F(HXMouseRouterTest, CaptureOwnerGetsAReleaseWithoutPress) {
  panel->CaptureMouse();
  HXMouseRouter::Handle(other, kLeftUp);
  EXPECT_THAT(panel->kinds, ElementsAre(kLeftUp));
  panel->ReleaseMouse();
}

TEST_F(HXMouseRouterTest, EnteringAndLeavingAreDroppedForEverybodyDuringCapture) {
  panel->CaptureMouse();
  for (RecordingPanel* each : {panel, other}) {
    SendMouse(NSMouseEntered, *each, {5, 5});
    SendMouse(NSMouseExited, *each, {5, 5});
    EXPECT_THAT(each->kinds, IsEmpty());
    EXPECT_FALSE(each->IsHovered());
  }
  panel->ReleaseMouse();
}

TEST_F(HXMouseRouterTest, CaptureTakesTheFocusAndDisablesTheCursorRectangles) {
  EXPECT_FALSE(panel->HasMouseCapture());
  panel->CaptureMouse();
  EXPECT_TRUE(panel->HasMouseCapture());
  EXPECT_FALSE(other->HasMouseCapture());
  EXPECT_TRUE(panel->HasFocus());
  EXPECT_FALSE([Native() areCursorRectsEnabled]);
  panel->ReleaseMouse();
  EXPECT_FALSE(panel->HasMouseCapture());
  EXPECT_TRUE([Native() areCursorRectsEnabled]);
  SendMouse(NSLeftMouseDown, *other, {5, 5});
  EXPECT_THAT(other->kinds, ElementsAre(kLeftDown));
}

TEST_F(HXMouseRouterTest, LastOneToCaptureOwnsIt) {
  panel->CaptureMouse();
  other->CaptureMouse();
  EXPECT_FALSE(panel->HasMouseCapture());
  EXPECT_TRUE(other->HasMouseCapture());
  delete panel;
  EXPECT_TRUE(other->HasMouseCapture()) << "only the owner's end ends the capture";
  other->ReleaseMouse();
}

TEST_F(HXMouseRouterTest, CaptureIsLostWhenTheWindowEnablesItsCursorRectangles) {
  panel->CaptureMouse();
  [Native() enableCursorRects];
  EXPECT_FALSE(panel->HasMouseCapture());
  EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr);
}

TEST_F(HXMouseRouterTest, MovementIsTakenOnlyByACaptureOwner) {
  EXPECT_FALSE(HXMouseRouter::MoveToCaptureOwner());
  panel->CaptureMouse();
  EXPECT_TRUE(HXMouseRouter::MoveToCaptureOwner());
  EXPECT_THAT(panel->kinds, ElementsAre(kMouseMove));
  panel->ReleaseMouse();
}

TEST_F(HXMouseRouterTest, ClosedOwnerGivesUpTheCapture) {
  panel->CaptureMouse();
  panel->Close();
  EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr);
  EXPECT_TRUE([Native() areCursorRectsEnabled]);
}

TEST_F(HXMouseRouterTest, DeletedOwnerGivesUpTheCapture) {
  panel->CaptureMouse();
  delete panel;
  EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr);
  EXPECT_TRUE([Native() areCursorRectsEnabled]);
  SendMouse(NSLeftMouseDown, *other, {5, 5});
  EXPECT_THAT(other->kinds, ElementsAre(kLeftDown));
}

TEST_F(HXMouseRouterTest, ClosingAParentEndsTheCaptureOfAWidgetInIt) {
  auto* child = new RecordingPanel(panel, {0, 0}, {10, 10});
  child->CaptureMouse();
  panel->Close();
  EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr);
  EXPECT_TRUE([Native() areCursorRectsEnabled]);
}

TEST_F(HXMouseRouterTest, HidingAParentEndsTheCaptureOfAWidgetInIt) {
  auto* child = new RecordingPanel(panel, {0, 0}, {10, 10});
  child->CaptureMouse();
  other->SetVisible(false);
  EXPECT_TRUE(child->HasMouseCapture()) << "it is still seen";
  panel->SetVisible(false);
  EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr);
  EXPECT_TRUE([Native() areCursorRectsEnabled]);
}

TEST_F(HXMouseRouterTest, HidingAWindowEndsTheCaptureOfAWidgetInIt) {
  panel->CaptureMouse();
  window->SetVisible(false);
  EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr);
}

TEST_F(HXMouseRouterTest, ClosingAWindowMidDragFreesThePointer) {
  RecordingWindow dragged;
  auto* knob = new RecordingPanel(&dragged, {0, 0}, {50, 50});
  dragged.SetVisible(true);
  PumpUntil([&] { return dragged.IsKeyWindow(); }, "the other window to become key");
  knob->onMouse = [&] { knob->CaptureMouse(); };
  SendMouse(NSLeftMouseDown, *knob, {5, 5});
  EXPECT_TRUE(knob->HasMouseCapture());
  dragged.Close();
  EXPECT_EQ(HXMouseRouter::GetCaptureOwner(), nullptr);
  knob->kinds.clear();
  HXMouseRouter::Handle(panel, kRightDown);
  EXPECT_THAT(panel->kinds, ElementsAre(kRightDown));
  EXPECT_THAT(knob->kinds, IsEmpty());
}

TEST_F(HXMouseRouterTest, OwnerMayReleaseAndDeleteItselfInItsOnMouse) {
  RecordingOwner owner;
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  panel->CaptureMouse();
  panel->onMouse = [&] { delete std::exchange(panel, nullptr); };
  SendMouse(NSLeftMouseDown, *other, {5, 5});
  EXPECT_EQ(panel, nullptr);
  EXPECT_THAT(owner.events, IsEmpty());
  SendMouse(NSLeftMouseUp, *other, {5, 5});
  EXPECT_THAT(other->kinds, IsEmpty()) << "the press went to the owner";
}

TEST_F(HXMouseRouterTest, OwnerMayBeDeletedByAMovement) {
  panel->CaptureMouse();
  panel->onMouse = [&] { delete std::exchange(panel, nullptr); };
  SendMouse(NSMouseMoved, *panel, {5, 5});
  EXPECT_EQ(panel, nullptr);
}

// Deletion in callbacks

TEST_F(HXMouseRouterTest, WidgetDeletedInItsOnMouseIsNotNotified) {
  RecordingOwner owner;
  for (const NSEventType type : {NSLeftMouseDown, NSRightMouseDown, NSMouseEntered, NSMouseMoved}) {
    auto* widget = new RecordingPanel(window.get(), {20, 120}, {50, 50});
    widget->SetHook(&owner, &RecordingOwner::OnEvent, 1);
    widget->onMouse = [widget] { delete widget; };
    SendMouse(type, *widget, {5, 5});
    EXPECT_EQ(window->GetChildren().size(), 2U) << type;
  }
  EXPECT_THAT(owner.events, IsEmpty());
  SendMouse(NSLeftMouseUp, *window, {25, 125});
}

TEST_F(HXMouseRouterTest, WidgetMayBeDeletedInItsHook) {
  RecordingOwner owner;
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  SendMouse(NSLeftMouseDown, *panel, {5, 5});
  owner.action = [&] { delete std::exchange(panel, nullptr); };
  SendMouse(NSLeftMouseUp, *panel, {5, 5});
  EXPECT_EQ(panel, nullptr);
  EXPECT_THAT(owner.events, ElementsAre(1, 2));
}

TEST_F(HXMouseRouterTest, ParentMayBeDeletedInAChildsHook) {
  RecordingOwner owner;
  auto* child = new RecordingPanel(panel, {0, 0}, {10, 10});
  child->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  SendMouse(NSLeftMouseDown, *child, {5, 5});
  owner.action = [&] { delete std::exchange(panel, nullptr); };
  SendMouse(NSLeftMouseUp, *child, {5, 5});
  EXPECT_EQ(window->GetChildren(), (std::vector<HXObject*>{other}));
}

TEST_F(HXMouseRouterTest, WindowMayBeDeletedInAWidgetsHook) {
  auto dialog = std::make_unique<RecordingWindow>();
  auto* button = new RecordingPanel(dialog.get(), {0, 0}, {50, 50});
  dialog->SetVisible(true);
  PumpUntil([&] { return dialog->IsKeyWindow(); }, "the dialog to become key");
  RecordingOwner owner;
  button->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  SendMouse(NSLeftMouseDown, *button, {5, 5});
  owner.action = [&] { dialog.reset(); };
  SendMouse(NSLeftMouseUp, *button, {5, 5});
  EXPECT_EQ(dialog, nullptr);
  EXPECT_THAT(owner.events, ElementsAre(1, 2));
}

}  // namespace
