#include "Src/HXUI/HXObject.h"

#include <cstring>

#include "Src/HXUI/HXLayout.h"
#include "Src/HXUI/HXPanel.h"
#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/RecordingSink.h"
#include "tests/Src/HXUI/RecordingWindow.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

using Children = std::vector<HXObject*>;

class HXObjectTest : public ToolkitFixture {
 protected:
  RecordingPanel* NewPanel(HXPoint position = {0, 0}, HXSize size = {50, 40}) {
    return new RecordingPanel(window.get(), position, size);
  }
  NSWindow* Native() { return [window->GetNativeView() window]; }
};

TEST_F(HXObjectTest, NewObjectIsBlackEnabledInvisibleAndAlone) {
  const RecordingOwner object;
  EXPECT_EQ(object.GetColor(), (HXColor{0, 0, 0, 255}));
  EXPECT_EQ(object.GetMinSize(), (HXSize{0, 0}));
  EXPECT_TRUE(object.IsEnabled());
  EXPECT_FALSE(object.IsVisible());
  EXPECT_FALSE(object.IsHovered());
  EXPECT_FALSE(object.IsClosed());
  EXPECT_FALSE(object.IsFrozen());
  EXPECT_EQ(object.GetId(), 0U);
  EXPECT_EQ(object.GetSender(), nullptr);
  EXPECT_EQ(object.GetSenderId(), 0U);
  EXPECT_EQ(object.GetParent(), nullptr);
  EXPECT_TRUE(object.GetChildren().empty());
  EXPECT_EQ(object.GetNativeView(), nullptr);
}

TEST_F(HXObjectTest, ColourIsARedFirstWord) {
  const HXColor color{1, 2, 3, 4};
  std::uint32_t word = 0;
  std::memcpy(&word, &color, sizeof word);
  EXPECT_EQ(word, 0x04030201U);
}

TEST_F(HXObjectTest, DefaultOperationsAcceptKeysAndRefuseFiles) {
  RecordingOwner object;
  object.ExtraHook1();
  object.ExtraHook2();
  object.ExtraHook3();
  object.OnClose();
  object.OnFocusGained();
  object.OnFocusLost();
  object.OnMouse(kLeftDown);
  object.OnSize();
  object.OnTimer(1);
  HXEventSinkRecord record;
  object.HXObject::OnEventSink(record);
  EXPECT_EQ(record.pass, 1);
  EXPECT_TRUE(object.OnKeyDown('a'));
  EXPECT_FALSE(object.OnDropFile("/tmp/file"));
}

TEST_F(HXObjectTest, ObjectWithoutAViewTakesEveryOperation) {
  RecordingOwner object;
  object.SetVisible(true);
  EXPECT_TRUE(object.IsVisible());
  object.SetFocus();
  EXPECT_FALSE(object.HasFocus());
  object.Redraw();
  object.RedrawNow();
  object.SetAcceptsFileDrops(true);
  EXPECT_EQ(object.ClientToScreen({3, 4}), (HXPoint{0, 0}));
  EXPECT_EQ(object.GetMousePosition(false), (HXPoint{0, 0}));
  object.Close();
  EXPECT_TRUE(object.IsClosed());
}

// Drawing

TEST_F(HXObjectTest, DefaultDrawFillsTheWidgetWithItsColour) {
  HXPanel* panel = NewPanel({10, 20}, {30, 40});
  panel->SetColor({10, 20, 30, 255});
  const auto pixels = Draw(*window);
  EXPECT_EQ(pixels->At(10, 20), (HXColor{10, 20, 30, 255}));
  EXPECT_EQ(pixels->At(39, 59), (HXColor{10, 20, 30, 255}));
  EXPECT_EQ(pixels->At(40, 60), (HXColor{0, 0, 0, 255}));
  EXPECT_EQ(pixels->At(9, 20), (HXColor{0, 0, 0, 255}));
}

TEST_F(HXObjectTest, TransparentKeyPaintsNothing) {
  window->SetColor({9, 8, 7, 255});
  HXPanel* panel = NewPanel();
  for (const std::uint8_t alpha : {std::uint8_t{255}, std::uint8_t{0}}) {
    panel->SetColor({255, 0, 255, alpha});
    EXPECT_EQ(Draw(*window)->At(5, 5), (HXColor{9, 8, 7, 255})) << int{alpha};
  }
  panel->SetColor({255, 0, 254, 255});
  EXPECT_EQ(Draw(*window)->At(5, 5), (HXColor{255, 0, 254, 255}));
}

TEST_F(HXObjectTest, FrozenWidgetIsNotDrawn) {
  RecordingPanel* panel = NewPanel();
  panel->SetFrozen(true);
  [panel->GetNativeView() display];
  EXPECT_EQ(panel->draws, 0);
  panel->SetFrozen(false);
  [panel->GetNativeView() display];
  EXPECT_EQ(panel->draws, 1);
}

TEST_F(HXObjectTest, RedrawMarksTheViewAndRedrawNowDrawsIt) {
  RecordingPanel* panel = NewPanel();
  [window->GetNativeView() display];
  panel->draws = 0;
  panel->RedrawNow();
  EXPECT_EQ(panel->draws, 0) << "nothing had been asked for";
  panel->Redraw();
  EXPECT_EQ(panel->draws, 0);
  EXPECT_TRUE([panel->GetNativeView() needsDisplay]);
  panel->RedrawNow();
  EXPECT_EQ(panel->draws, 1);
}

TEST_F(HXObjectTest, SetColorDoesNotRedraw) {
  RecordingPanel* panel = NewPanel();
  [window->GetNativeView() display];
  panel->SetColor({1, 2, 3, 255});
  EXPECT_FALSE([panel->GetNativeView() needsDisplay]);
}

// Freezing

TEST_F(HXObjectTest, FreezingCounts) {
  HXPanel* panel = NewPanel();
  panel->SetFrozen(true);
  panel->SetFrozen(true);
  panel->SetFrozen(false);
  EXPECT_TRUE(panel->IsFrozen());
  panel->SetFrozen(false);
  EXPECT_FALSE(panel->IsFrozen());
}

TEST_F(HXObjectTest, FreezingReachesTheWholeSubtreeButNotTheParent) {
  HXPanel* panel = NewPanel();
  auto* child = new HXPanel(panel, {0, 0}, {10, 10});
  auto* grandchild = new HXPanel(child, {0, 0}, {5, 5});
  panel->SetFrozen(true);
  EXPECT_TRUE(child->IsFrozen());
  EXPECT_TRUE(grandchild->IsFrozen());
  EXPECT_FALSE(window->IsFrozen());
  child->SetFrozen(false);
  EXPECT_FALSE(grandchild->IsFrozen());
  EXPECT_TRUE(panel->IsFrozen());
}

TEST_F(HXObjectTest, NewChildInheritsOnlyAPositiveFreezeDepth) {
  HXPanel* panel = NewPanel();
  panel->SetFrozen(true);
  panel->SetFrozen(true);
  auto* frozenChild = new HXPanel(panel, {0, 0}, {5, 5});
  EXPECT_TRUE(frozenChild->IsFrozen());
  panel->SetFrozen(false);
  EXPECT_TRUE(frozenChild->IsFrozen()) << "the depth is inherited, not the flag alone";
  panel->SetFrozen(false);
  EXPECT_FALSE(frozenChild->IsFrozen());

  panel->SetFrozen(false);
  auto* child = new HXPanel(panel, {0, 0}, {5, 5});
  child->SetFrozen(true);
  EXPECT_TRUE(child->IsFrozen()) << "a negative depth is not inherited";
}

// The tree and destruction

TEST_F(HXObjectTest, ChildrenStandInCreationOrder) {
  HXPanel* first = NewPanel();
  HXPanel* second = NewPanel();
  EXPECT_EQ(window->GetChildren(), (Children{first, second}));
  EXPECT_EQ(second->GetParent(), window.get());
}

TEST_F(HXObjectTest, DestroyedChildLeavesTheParentsList) {
  HXPanel* first = NewPanel();
  HXPanel* second = NewPanel();
  HXPanel* third = NewPanel();
  delete second;
  EXPECT_EQ(window->GetChildren(), (Children{first, third}));
  EXPECT_EQ([[window->GetNativeView() subviews] count], 2U);
}

TEST_F(HXObjectTest, DestroyingAParentDestroysTheChildrenInOrder) {
  std::vector<std::string> log;
  RecordingPanel* parent = NewPanel();
  auto* first = new RecordingPanel(parent, {0, 0}, {10, 10});
  auto* second = new RecordingPanel(parent, {0, 0}, {10, 10});
  auto* grandchild = new RecordingPanel(first, {0, 0}, {5, 5});
  parent->onDestruction = [&] { log.push_back("parent"); };
  first->onDestruction = [&] { log.push_back("first"); };
  const HXObject* base = parent;
  second->onDestruction = [&, second] {
    log.push_back(base->GetChildren() == Children{second} ? "second alone" : "second");
  };
  grandchild->onDestruction = [&] { log.push_back("grandchild"); };
  delete parent;
  // The subclass part of the parent runs first, its children go with the base part.
  EXPECT_EQ(log, (std::vector<std::string>{"parent", "first", "grandchild", "second alone"}));
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXObjectTest, CloseWorksOnceAndLeavesTheScreen) {
  HXPanel* panel = NewPanel();
  panel->SetFocus();
  panel->Close();
  EXPECT_TRUE(panel->IsClosed());
  EXPECT_EQ([panel->GetNativeView() superview], nil);
  EXPECT_EQ([Native() firstResponder], Native());
  EXPECT_EQ(window->GetChildren(), Children{panel}) << "still owned";
  [window->GetNativeView() addSubview:panel->GetNativeView()];
  panel->Close();
  EXPECT_NE([panel->GetNativeView() superview], nil) << "closed twice";
}

TEST_F(HXObjectTest, WidgetMayBeDeletedWhenClosingTakesItsFocus) {
  RecordingPanel* panel = NewPanel();
  panel->SetFocus();
  panel->onFocusLost = [panel] { delete panel; };
  panel->Close();
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXObjectTest, WidgetMayBeDeletedWhenAnotherTakesItsFocus) {
  RecordingPanel* panel = NewPanel();
  RecordingPanel* other = NewPanel({60, 0});
  panel->SetFocus();
  panel->onFocusLost = [panel] { delete panel; };
  other->SetFocus();
  EXPECT_TRUE(other->HasFocus());
  EXPECT_EQ(window->GetChildren(), Children{other});
}

TEST_F(HXObjectTest, WidgetThatIsGivenTheFocusMayBeDeletedByTheOneThatLosesIt) {
  RecordingPanel* panel = NewPanel();
  RecordingPanel* other = NewPanel({60, 0});
  panel->SetFocus();
  panel->onFocusLost = [other] { delete other; };
  other->CaptureMouse();
  EXPECT_EQ(window->GetChildren(), Children{panel});
  EXPECT_FALSE([[Native() firstResponder] isKindOfClass:[NSView class]]);
  SendKey(*window, @"a");
  Click(*panel, {5, 5});
  EXPECT_EQ(panel->kinds, (std::vector<MouseKind>{kLeftDown, kLeftUp}));
}

TEST_F(HXObjectTest, ClickedWidgetMayBeDeletedByTheOneThatLosesTheFocus) {
  RecordingPanel* panel = NewPanel();
  RecordingPanel* other = NewPanel({60, 0});
  panel->SetFocus();
  panel->onFocusLost = [other] { delete other; };
  SendMouse(NSLeftMouseDown, *other, {5, 5});
  EXPECT_EQ(window->GetChildren(), Children{panel});
}

// Visibility and placement

TEST_F(HXObjectTest, SetVisibleHidesAndShowsTheView) {
  HXPanel* panel = NewPanel();
  panel->SetVisible(false);
  EXPECT_FALSE(panel->IsVisible());
  EXPECT_TRUE([panel->GetNativeView() isHidden]);
  panel->SetVisible(true);
  EXPECT_TRUE(panel->IsVisible());
  EXPECT_FALSE([panel->GetNativeView() isHidden]);
}

TEST_F(HXObjectTest, ClientToScreenAndPointerAgree) {
  HXPanel* panel = NewPanel({70, 30});
  WarpPointer(*panel, {12, 7});
  EXPECT_EQ(panel->GetMousePosition(false), (HXPoint{12, 7}));
  EXPECT_EQ(window->GetMousePosition(false), (HXPoint{82, 37}));
  EXPECT_EQ(panel->GetMousePosition(true), panel->ClientToScreen({12, 7}));
  const HXPoint origin = panel->ClientToScreen({0, 0});
  EXPECT_EQ(panel->ClientToScreen({1, 2}), (HXPoint{origin.x + 1, origin.y - 2}));
}

TEST_F(HXObjectTest, SetLayoutAppliesAtOnceAndDeletesTheOldOne) {
  RecordingPanel* panel = NewPanel({0, 0}, {10, 10});
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddGap(20);
  row->AddWidget(panel, false);
  window->SetLayout(std::move(row));
  EXPECT_EQ(panel->GetPosition(), (HXPoint{20, 0}));
  EXPECT_EQ(panel->GetSize(), (HXSize{10, 300}));

  auto column = std::make_unique<HXLayout>(HXLayout::kColumn);
  column->AddGap(30);
  window->SetLayout(std::move(column));
  window->SetSize({500, 200});
  EXPECT_EQ(panel->GetSize(), (HXSize{10, 300})) << "the old layout is gone";
  window->SetLayout(nullptr);
  window->SetSize({400, 300});
  EXPECT_EQ(panel->GetPosition(), (HXPoint{20, 0}));
}

TEST_F(HXObjectTest, LayoutIsAppliedOnEveryResizeBeforeOnSize) {
  RecordingPanel* parent = NewPanel({0, 0}, {100, 50});
  auto* child = new HXPanel(parent, {0, 0}, {10, 10});
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddWidget(child, true);
  parent->SetLayout(std::move(row));
  HXSize seen;
  parent->onSize = [&] { seen = child->GetSize(); };
  parent->SetSize({140, 60});
  EXPECT_EQ(seen, (HXSize{140, 60}));
}

TEST_F(HXObjectTest, AnchorsKeepTheDistanceFromTheEdges) {
  HXPanel* parent = NewPanel({0, 0}, {100, 80});
  auto* child = new HXPanel(parent, {5, 6}, {20, 10});
  parent->AddAnchor(child, HXObject::kRight, 7);
  EXPECT_EQ(child->GetPosition(), (HXPoint{5, 6})) << "not before the next resize";
  parent->SetSize({200, 90});
  EXPECT_EQ(child->GetPosition(), (HXPoint{173, 6}));
  parent->AddAnchor(child, HXObject::kBottom, -3);
  parent->SetSize({50, 70});
  EXPECT_EQ(child->GetPosition(), (HXPoint{23, 63}));
  parent->SetSize({20, 5});
  EXPECT_EQ(child->GetPosition(), (HXPoint{-7, -2}));
}

TEST_F(HXObjectTest, AnchorsAreAppliedAfterTheLayout) {
  HXPanel* parent = NewPanel({0, 0}, {100, 80});
  auto* child = new HXPanel(parent, {0, 0}, {20, 10});
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddWidget(child, false);
  parent->SetLayout(std::move(row));
  parent->AddAnchor(child, HXObject::kRight, 0);
  parent->SetSize({150, 60});
  EXPECT_EQ(child->GetPosition(), (HXPoint{130, 0}));
  EXPECT_EQ(child->GetSize(), (HXSize{20, 60}));
}

TEST_F(HXObjectTest, DestroyedChildLeavesLayoutAndAnchors) {
  HXPanel* parent = NewPanel({0, 0}, {100, 80});
  auto* first = new HXPanel(parent, {0, 0}, {20, 10});
  auto* second = new HXPanel(parent, {0, 0}, {30, 10});
  auto nested = std::make_unique<HXLayout>(HXLayout::kRow);
  nested->AddWidget(first, true);
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddLayout(std::move(nested), false);
  row->AddWidget(first, false);
  row->AddWidget(second, false);
  parent->SetLayout(std::move(row));
  parent->AddAnchor(first, HXObject::kBottom, 0);
  parent->AddAnchor(second, HXObject::kBottom, 5);
  delete first;
  parent->SetSize({90, 70});
  EXPECT_EQ(second->GetPosition(), (HXPoint{0, -5}));
}

TEST_F(HXObjectTest, ChildMayBeDeletedWhileItIsBeingPlaced) {
  HXPanel* parent = NewPanel({0, 0}, {100, 80});
  auto* first = new RecordingPanel(parent, {0, 0}, {20, 10});
  auto* second = new RecordingPanel(parent, {0, 0}, {30, 10});
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddWidget(first, true);
  row->AddWidget(second, true);
  parent->SetLayout(std::move(row));
  first->onSize = [first] { delete first; };
  parent->SetSize({90, 70});
  EXPECT_EQ(parent->GetChildren(), Children{second});
  parent->SetSize({60, 50});
  EXPECT_EQ(second->GetPosition(), (HXPoint{0, 0}));
  EXPECT_EQ(second->GetSize(), (HXSize{60, 50}));
}

TEST_F(HXObjectTest, AnchoredChildMayBeDeletedWhileItIsBeingPlaced) {
  HXPanel* parent = NewPanel({0, 0}, {100, 80});
  auto* first = new RecordingPanel(parent, {0, 0}, {20, 10});
  auto* second = new RecordingPanel(parent, {0, 0}, {30, 10});
  parent->AddAnchor(first, HXObject::kRight, 0);
  parent->AddAnchor(first, HXObject::kBottom, 0);
  parent->AddAnchor(second, HXObject::kRight, 0);
  parent->AddAnchor(second, HXObject::kBottom, 0);
  first->onSize = [first] { delete first; };
  parent->SetSize({90, 70});
  EXPECT_EQ(parent->GetChildren(), Children{second});
  parent->SetSize({60, 50});
  EXPECT_EQ(second->GetPosition(), (HXPoint{30, 40}));
}

// The notification hook

TEST_F(HXObjectTest, HookNamesTheSenderOnItsTarget) {
  RecordingOwner owner;
  RecordingPanel* panel = NewPanel();
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 0x80000011U);
  HXObject* sender = nullptr;
  std::uint32_t senderId = 0;
  owner.action = [&] {
    sender = owner.GetSender();
    senderId = owner.GetSenderId();
  };
  panel->Notify(7);
  EXPECT_EQ(owner.events, (std::vector<std::uint32_t>{7}));
  EXPECT_EQ(sender, panel);
  EXPECT_EQ(senderId, 0x80000011U);
  EXPECT_EQ(panel->GetId(), 0x80000011U);
  EXPECT_EQ(panel->GetSender(), nullptr) << "written on the target only";
}

TEST_F(HXObjectTest, NothingIsNotifiedWithoutHookOrTarget) {
  RecordingOwner owner;
  RecordingPanel* panel = NewPanel();
  panel->Notify(1);
  panel->SetHook(static_cast<RecordingOwner*>(nullptr), &RecordingOwner::OnEvent, 3);
  panel->Notify(1);
  panel->SetHook<RecordingOwner>(&owner, nullptr, 3);
  panel->Notify(1);
  EXPECT_TRUE(owner.events.empty());
  EXPECT_EQ(owner.GetSender(), nullptr);
}

// Focus

TEST_F(HXObjectTest, FocusIsTheFirstResponderOfTheKeyWindow) {
  RecordingPanel* panel = NewPanel();
  RecordingPanel* other = NewPanel({60, 0});
  EXPECT_FALSE(panel->HasFocus());
  panel->SetFocus();
  EXPECT_TRUE(panel->HasFocus());
  EXPECT_EQ(HXObject::GetFocusedObject(), panel);
  panel->SetFocus();
  EXPECT_EQ(panel->focusLosses, 0) << "it had the keyboard already";
  other->SetFocus();
  EXPECT_EQ(panel->focusLosses, 1);
  EXPECT_EQ(HXObject::GetFocusedObject(), other);
}

TEST_F(HXObjectTest, NobodyIsFocusedWhileTheWindowItselfHasTheKeyboard) {
  NewPanel()->SetFocus();
  [Native() makeFirstResponder:nil];
  EXPECT_EQ(HXObject::GetFocusedObject(), nullptr);
}

TEST_F(HXObjectTest, FocusCountsInTheKeyWindowOnly) {
  RecordingPanel* panel = NewPanel();
  panel->SetFocus();
  RecordingWindow other;
  other.SetVisible(true);
  PumpUntil([&] { return other.IsKeyWindow(); }, "the other window to become key");
  EXPECT_EQ([Native() firstResponder], panel -> GetNativeView());
  EXPECT_FALSE(panel->HasFocus());
  EXPECT_NE(HXObject::GetFocusedObject(), panel);
}

TEST_F(HXObjectTest, HidingAParentTakesTheKeyboardFromAWidgetInIt) {
  RecordingPanel* panel = NewPanel();
  auto* child = new RecordingPanel(panel, {0, 0}, {10, 10});
  child->SetFocus();
  panel->SetVisible(false);
  EXPECT_FALSE(child->HasFocus());
  EXPECT_EQ(child->focusLosses, 1);
  EXPECT_EQ(HXObject::GetFocusedObject(), nullptr);
}

TEST_F(HXObjectTest, DestroyedWidgetGivesUpTheKeyboard) {
  HXPanel* panel = NewPanel();
  panel->SetFocus();
  delete panel;
  EXPECT_EQ(HXObject::GetFocusedObject(), nullptr);
  SendKey(*window, @"a");
}

}  // namespace
