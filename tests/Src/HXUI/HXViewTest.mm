#import "Src/HXUI/Cocoa/HXView.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>

#import "tests/Src/HXUI/NativeEvents.h"
#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/RecordingSink.h"
#include "tests/Src/HXUI/RecordingWindow.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

/// A dragging pasteboard that holds file names, or something else.
@interface TestDraggingPasteboard : NSObject {
 @public
  NSArray* types;
  id fileNames;
}
- (NSArray*)types;
- (id)propertyListForType:(NSString*)type;
@end

@implementation TestDraggingPasteboard
- (NSArray*)types {
  return types;
}
- (id)propertyListForType:(NSString*)type {
  return [type isEqualToString:NSFilenamesPboardType] ? fileNames : nil;
}
@end

/// As much of NSDraggingInfo as a view may ask for.
@interface TestDragging : NSObject {
 @public
  TestDraggingPasteboard* pasteboard;
}
- (id)draggingPasteboard;
@end

@implementation TestDragging
- (id)draggingPasteboard {
  return pasteboard;
}
@end

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HXViewTest : public ToolkitFixture {
 protected:
  HXView* View(const HXObject* widget) { return static_cast<HXView*>(widget->GetNativeView()); }
  NSWindow* Native() { return [window->GetNativeView() window]; }

  NSEvent* KeyDown(NSString* characters, NSUInteger modifiers = 0) {
    return KeyEvent(NSKeyDown, Native(), characters, modifiers);
  }

  static id<NSDraggingInfo> Dragging(NSArray* types, id fileNames) {
    auto* pasteboard = [[[TestDraggingPasteboard alloc] init] autorelease];
    pasteboard->types = types;
    pasteboard->fileNames = fileNames;
    auto* dragging = [[[TestDragging alloc] init] autorelease];
    dragging->pasteboard = pasteboard;
    return static_cast<id<NSDraggingInfo>>(static_cast<id>(dragging));
  }
  static id<NSDraggingInfo> FileDragging(id fileNames) {
    return Dragging([NSArray arrayWithObjects:NSStringPboardType, NSFilenamesPboardType, nil],
                    fileNames);
  }

  RecordingPanel* panel = new RecordingPanel(window.get(), {20, 20}, {100, 80});
};

TEST_F(HXViewTest, IsFlippedAndTakesKeysAndTheActivatingClick) {
  HXView* view = View(panel);
  EXPECT_TRUE([view isFlipped]);
  EXPECT_TRUE([view acceptsFirstResponder]);
  EXPECT_TRUE([view acceptsFirstMouse:nil]);
  EXPECT_EQ([view getObject], panel);
}

TEST_F(HXViewTest, TheMouseHookRunsWithTheCodeAndItsSender) {
  RecordingOwner owner;
  panel->SetHook(&owner, &RecordingOwner::OnEvent, 7);
  [View(window.get()) sendToMouseHook:panel event:kRightUp];
  EXPECT_THAT(owner.events, ElementsAre(kRightUp));
  EXPECT_EQ(owner.GetSender(), panel);
  EXPECT_EQ(owner.GetSenderId(), 7U);
  EXPECT_THAT(panel->kinds, IsEmpty()) << "the hook only";
}

// The wheel

TEST_F(HXViewTest, WheelReachesSinksOnlyAs120PerLine) {
  struct Turn {
    double lines;
    std::int64_t parameter;
  };
  RecordingSink sink;
  for (const Turn turn : {Turn{0.5, 60}, Turn{1, 120}, Turn{-3, -360}, Turn{0.99, 118},
                          Turn{-0.99, -118}, Turn{0.02, 2}, Turn{0.01, 0}, Turn{-0.01, 0}}) {
    sink.records.clear();
    SendWheel(*panel, {5, 5}, turn.lines);
    ASSERT_EQ(sink.records.size(), 1U) << turn.lines;
    EXPECT_EQ(sink.records[0].kind, 10U);
    EXPECT_EQ(sink.records[0].parameter, turn.parameter) << turn.lines;
    EXPECT_EQ(sink.records[0].source, panel);
  }
  EXPECT_THAT(panel->kinds, IsEmpty());
}

TEST_F(HXViewTest, SinkMayDeleteTheWidgetOnAWheelTurn) {
  RecordingSink sink;
  sink.onEvent = [this] { delete std::exchange(panel, nullptr); };
  SendWheel(*panel, {5, 5}, 1);
  EXPECT_TRUE(window->GetChildren().empty());
}

// Keys

TEST_F(HXViewTest, KeyGoesToTheSinksAndThenToTheFocusedWidget) {
  RecordingSink sink;
  std::size_t keysBefore = 99;
  sink.onEvent = [&] { keysBefore = panel->keys.size(); };
  panel->SetFocus();
  SendKey(*window, @"\r");
  ASSERT_EQ(sink.records.size(), 1U);
  EXPECT_EQ(sink.records[0].kind, 13U);
  EXPECT_EQ(sink.records[0].parameter, 13);
  EXPECT_EQ(sink.records[0].source, panel);
  EXPECT_EQ(keysBefore, 0U);
  EXPECT_THAT(panel->keys, ElementsAre(13));
}

TEST_F(HXViewTest, KeysAreUtf16Units) {
  panel->SetFocus();
  const unichar up = NSUpArrowFunctionKey;
  SendKey(*window, [NSString stringWithCharacters:&up length:1]);
  SendKey(*window, @"\033");
  SendKey(*window, @"\u20ac");
  SendKey(*window, @"ab");
  SendKey(*window, @"");
  EXPECT_THAT(panel->keys, ElementsAre(NSUpArrowFunctionKey, 27, 0x20ac, 'a', 0));
}

TEST_F(HXViewTest, StoppedKeyDoesNotReachTheWidget) {
  RecordingSink sink;
  sink.stop = true;
  panel->SetFocus();
  SendKey(*window, @"a");
  EXPECT_THAT(panel->keys, IsEmpty());
}

/// Whether the platform went on with a key can be seen by the command that it makes of it.
TEST_F(HXViewTest, KeyThatTheWidgetSwallowsIsNotInterpreted) {
  auto* child = new RecordingPanel(panel, {0, 0}, {10, 10});
  NSTextView* responder = [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
  [View(child) setNextResponder:responder];
  child->SetFocus();
  child->passKeys = false;
  SendKey(*window, @"x");
  EXPECT_EQ([[responder string] length], 0U);
  child->passKeys = true;
  SendKey(*window, @"x");
  EXPECT_TRUE([[responder string] isEqualToString:@"x"]);
  [View(child) setNextResponder:View(panel)];
}

TEST_F(HXViewTest, KeyUpGoesToTheSinksOnly) {
  RecordingSink sink;
  panel->SetFocus();
  SendKeyUp(*window, @"q");
  ASSERT_EQ(sink.records.size(), 1U);
  EXPECT_EQ(sink.records[0].kind, 15U);
  EXPECT_EQ(sink.records[0].parameter, 'q');
  EXPECT_THAT(panel->keys, IsEmpty());
}

TEST_F(HXViewTest, WidgetMayBeDeletedInItsOnKeyDown) {
  for (const bool pass : {false, true}) {
    auto* widget = new RecordingPanel(window.get(), {0, 0}, {10, 10});
    widget->passKeys = pass;
    widget->onKey = [widget] { delete widget; };
    widget->SetFocus();
    SendKey(*window, @"a");
    EXPECT_EQ(window->GetChildren().size(), 1U);
  }
}

TEST_F(HXViewTest, SinkMayDeleteTheWidgetOnAKey) {
  panel->SetFocus();
  RecordingSink sink;
  sink.onEvent = [this] { delete std::exchange(panel, nullptr); };
  SendKey(*window, @"a");
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXViewTest, KeyEquivalentAnswersWhatSinksAndWidgetsSay) {
  RecordingSink sink;
  NSEvent* event = KeyDown(@"k", NSCommandKeyMask);
  EXPECT_FALSE([View(panel) performKeyEquivalent:event]);
  EXPECT_THAT(panel->keys, ElementsAre('k'));
  panel->passKeys = false;
  EXPECT_FALSE([View(panel) performKeyEquivalent:event]);
  EXPECT_EQ(panel->keys.size(), 2U);
  sink.stop = true;
  EXPECT_TRUE([View(panel) performKeyEquivalent:event]);
  EXPECT_EQ(panel->keys.size(), 2U);
  EXPECT_EQ(sink.Count(kKeyDown), 3);
  EXPECT_EQ(sink.records[0].parameter, 'k');
}

TEST_F(HXViewTest, KeyEquivalentIsOfferedToTheChildrenUnlessSwallowed) {
  auto* child = new RecordingPanel(panel, {0, 0}, {10, 10});
  NSEvent* event = KeyDown(@"k", NSCommandKeyMask);
  [View(panel) performKeyEquivalent:event];
  EXPECT_EQ(child->keys.size(), 1U);
  panel->passKeys = false;
  [View(panel) performKeyEquivalent:event];
  EXPECT_EQ(child->keys.size(), 1U);
}

TEST_F(HXViewTest, WidgetMayBeDeletedInAKeyEquivalent) {
  panel->onKey = [this] { delete std::exchange(panel, nullptr); };
  EXPECT_FALSE([Native() performKeyEquivalent:KeyDown(@"k", NSCommandKeyMask)]);
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXViewTest, PlainKeyIsSeenOnceAndByTheFocusedWidgetOnly) {
  auto* other = new RecordingPanel(window.get(), {200, 20}, {50, 50});
  RecordingSink sink;
  panel->SetFocus();
  // The way of a key that is really typed.
  [NSApp sendEvent:KeyDown(@"a")];
  EXPECT_THAT(panel->keys, ElementsAre('a'));
  EXPECT_THAT(other->keys, IsEmpty());
  EXPECT_EQ(sink.Count(kKeyDown), 1);
}

TEST_F(HXViewTest, CommandKeyIsOfferedToTheWholeTreeOnce) {
  auto* other = new RecordingPanel(window.get(), {200, 20}, {50, 50});
  RecordingSink sink;
  EXPECT_FALSE([Native() performKeyEquivalent:KeyDown(@"k", NSCommandKeyMask)]);
  EXPECT_THAT(panel->keys, ElementsAre('k'));
  EXPECT_THAT(other->keys, ElementsAre('k'));
  EXPECT_EQ(sink.Count(kKeyDown), 3) << "the window's own view and two panels";
}

TEST_F(HXViewTest, HiddenWidgetsAndWhatLiesInThemHearOfNoCommandKeys) {
  auto* child = new RecordingPanel(panel, {0, 0}, {10, 10});
  auto* other = new RecordingPanel(window.get(), {200, 20}, {50, 50});
  RecordingSink sink;
  panel->SetVisible(false);
  EXPECT_FALSE([Native() performKeyEquivalent:KeyDown(@"k", NSCommandKeyMask)]);
  EXPECT_THAT(panel->keys, IsEmpty());
  EXPECT_THAT(child->keys, IsEmpty());
  EXPECT_FALSE([View(child) performKeyEquivalent:KeyDown(@"k", NSCommandKeyMask)]);
  EXPECT_THAT(child->keys, IsEmpty());
  EXPECT_THAT(other->keys, ElementsAre('k'));
  EXPECT_EQ(sink.Count(kKeyDown), 2) << "the window's own view and the panel that is seen";
}

// Size and focus

TEST_F(HXViewTest, ChangedSizeOrBoundsAreToldAndRedrawn) {
  [View(window.get()) display];
  panel->SetSize({60, 60});
  EXPECT_GE(panel->sizeChanges, 1);
  EXPECT_TRUE([View(panel) needsDisplay]);
  [View(window.get()) display];
  panel->sizeChanges = 0;
  [View(panel) setBoundsSize:NSMakeSize(30, 30)];
  EXPECT_GE(panel->sizeChanges, 1);
  EXPECT_TRUE([View(panel) needsDisplay]);
  EXPECT_EQ(panel->GetSize(), (HXSize{30, 30}));
}

TEST_F(HXViewTest, WidgetMayBeDeletedInItsOnSize) {
  panel->onSize = [this] { delete std::exchange(panel, nullptr); };
  panel->SetSize({60, 60});
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXViewTest, ResigningIsAlwaysGrantedAndTold) {
  EXPECT_TRUE([View(panel) resignFirstResponder]);
  EXPECT_EQ(panel->focusLosses, 1);
}

// Dropped files

TEST_F(HXViewTest, OnlyFilesMayEnter) {
  HXView* view = View(panel);
  EXPECT_EQ([view draggingEntered:FileDragging([NSArray array])], NSDragOperationLink);
  NSArray* text = [NSArray arrayWithObject:NSStringPboardType];
  EXPECT_EQ([view draggingEntered:Dragging(text, nil)], NSDragOperationNone);
  EXPECT_EQ([view draggingEntered:Dragging(nil, nil)], NSDragOperationNone);
}

TEST_F(HXViewTest, OfSeveralFilesOnlyTheFirstIsDelivered) {
  NSArray* files = [NSArray arrayWithObjects:@"/a/\u00e4 b", @"/c", nil];
  EXPECT_TRUE([View(panel) performDragOperation:FileDragging(files)]);
  EXPECT_THAT(panel->drops, ElementsAre("/a/\u00e4 b"));
}

TEST_F(HXViewTest, WidgetDecidesAboutTheDrop) {
  panel->acceptDrops = false;
  EXPECT_FALSE([View(panel) performDragOperation:FileDragging([NSArray arrayWithObject:@"/a"])]);
  EXPECT_EQ(panel->drops.size(), 1U);
}

TEST_F(HXViewTest, DropWithoutAFileNameIsRefused) {
  HXView* view = View(panel);
  NSArray* text = [NSArray arrayWithObject:NSStringPboardType];
  EXPECT_FALSE([view performDragOperation:Dragging(text, [NSArray arrayWithObject:@"/a"])]);
  EXPECT_FALSE([view performDragOperation:FileDragging(nil)]);
  EXPECT_FALSE([view performDragOperation:FileDragging([NSArray array])]);
  EXPECT_FALSE([view performDragOperation:FileDragging(@"/a")]);
  NSArray* numbers = [NSArray arrayWithObject:[NSNumber numberWithInt:1]];
  EXPECT_FALSE([view performDragOperation:FileDragging(numbers)]);
  EXPECT_THAT(panel->drops, IsEmpty());
}

TEST_F(HXViewTest, WidgetMayBeDeletedByADrop) {
  panel->onDrop = [this] { delete std::exchange(panel, nullptr); };
  EXPECT_TRUE([View(panel) performDragOperation:FileDragging([NSArray arrayWithObject:@"/a"])]);
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXViewTest, AcceptingDropsRegistersForFileNames) {
  EXPECT_EQ([[View(panel) registeredDraggedTypes] count], 0U);
  panel->SetAcceptsFileDrops(true);
  EXPECT_TRUE([[View(panel) registeredDraggedTypes] containsObject:NSFilenamesPboardType]);
  EXPECT_EQ([[View(panel) registeredDraggedTypes] count], 1U);
  panel->SetAcceptsFileDrops(false);
  EXPECT_EQ([[View(panel) registeredDraggedTypes] count], 0U);
}

// A view that has lost its widget

TEST_F(HXViewTest, ViewWithoutAWidgetTakesEverything) {
  HXView* view = [[[HXView alloc] initWithFrame:NSMakeRect(200, 20, 50, 50)] autorelease];
  EXPECT_EQ([view getObject], nullptr);
  [View(window.get()) addSubview:view];
  [view display];
  NSEvent* event =
      MouseEvent(NSLeftMouseDown, Native(), [view convertPoint:NSMakePoint(5, 5) toView:nil]);
  [Native() sendEvent:event];
  [view mouseMoved:event];
  [view keyDown:KeyDown(@"a")];
  EXPECT_FALSE([view performKeyEquivalent:KeyDown(@"a")]);
  EXPECT_FALSE([view performDragOperation:FileDragging([NSArray arrayWithObject:@"/a"])]);
  EXPECT_TRUE([view resignFirstResponder]);
  [view setFrameSize:NSMakeSize(70, 70)];
  [view sendToMouseHook:nullptr event:kLeftDown];
  EXPECT_NE([Native() firstResponder], view) << "it does not take the keyboard";
  [view removeFromSuperview];
}

TEST_F(HXViewTest, RemovedTagsEndTheTrackingOfSizeAndPointer) {
  [View(panel) removeTags];
  panel->sizeChanges = 0;
  panel->SetSize({60, 60});
  EXPECT_EQ(panel->sizeChanges, 0);
  SendMouse(NSMouseMoved, *window, {300, 200});
  SendMouse(NSMouseMoved, *panel, {5, 5});
  EXPECT_THAT(panel->kinds, ElementsAre(kMouseMove));
}

}  // namespace
