#include <gmock/gmock.h>

#include <memory>
#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#include "Src/HXUI/Cocoa/NativeWindow.h"
#include "Src/HXUI/HXWindow.h"
#import "tests/Src/HXUI/NativeEvents.h"
#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/RecordingSink.h"
#include "tests/Src/HXUI/RecordingWindow.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

/// An input of the run loop whose handler fails, once.
@interface FailingInput : NSObject <RunLoopEvents> {
  int pipeEnds[2];
}
- (void)offer;
- (BOOL)hasFailed;
@end

@implementation FailingInput
- (instancetype)init {
  self = [super init];
  pipeEnds[0] = pipeEnds[1] = -1;
  return self;
}

- (void)offer {
  ASSERT_EQ(pipe(pipeEnds), 0);
  ASSERT_EQ(write(pipeEnds[1], "x", 1), 1);
  [[NSRunLoop currentRunLoop] addEvent:reinterpret_cast<void*>(static_cast<intptr_t>(pipeEnds[0]))
                                  type:ET_RDESC
                               watcher:self
                               forMode:NSDefaultRunLoopMode];
}

- (BOOL)hasFailed {
  return pipeEnds[0] < 0;
}

- (void)receivedEvent:(void*)data
                 type:(RunLoopEventType)type
                extra:(void*)extra
              forMode:(NSString*)mode {
  (void)extra;
  [[NSRunLoop currentRunLoop] removeEvent:data type:type forMode:mode all:YES];
  close(pipeEnds[0]);
  close(pipeEnds[1]);
  pipeEnds[0] = pipeEnds[1] = -1;
  [NSException raise:NSPortTimeoutException format:@"a server of the platform's has gone"];
}
@end

namespace {

using ::testing::ElementsAre;

class HXWindowModalTest : public ToolkitFixture {
 protected:
  ~HXWindowModalTest() override { EXPECT_EQ([NSApp modalWindow], nil); }
  static NSWindow* Native(const HXWindow& of) { return [of.GetNativeView() window]; }
  static void PressCloseButton(const HXWindow& of) { [Native(of) performClose:nil]; }
  /// As if the platform had brought the event: a running wait for input ends.
  static void Post(NSEvent* event) {
    [NSApp postEvent:event atStart:NO];
    Later([] {});
  }
  static void PostMouse(NSEventType type, const HXWindow& to, NSPoint location) {
    Post(MouseEvent(type, Native(to), location));
  }
  /// Makes `owned` and shows it; the button in it tells `clicked`.
  RecordingPanel& ShowOwned() {
    owned = std::make_unique<RecordingWindow>();
    auto* button = new RecordingPanel(owned.get(), {10, 10}, {50, 20});
    button->SetHook(&clicked, &RecordingOwner::OnEvent, 1);
    owned->SetVisible(true);
    PumpUntil([&] { return owned->IsKeyWindow(); }, "the window to become key");
    return *button;
  }

  RecordingOwner clicked;
  std::unique_ptr<RecordingWindow> owned;
};

TEST_F(HXWindowModalTest, CloseButtonEndsTheRunWithOne) {
  RecordingWindow dialog(window.get());
  bool shown = false;
  Later([&] {
    shown = [Native(dialog) isVisible] && [NSApp modalWindow] == Native(dialog);
    PressCloseButton(dialog);
  });
  EXPECT_EQ(dialog.RunModal(), 1);
  EXPECT_TRUE(shown);
  EXPECT_TRUE(dialog.IsVisible());
  EXPECT_TRUE(dialog.IsClosed());
  EXPECT_EQ(dialog.closings, 1);
}

TEST_F(HXWindowModalTest, TheRunOutlivesAFailureOfThePlatformWhileItWaits) {
  FailingInput* input = [[[FailingInput alloc] init] autorelease];
  RecordingWindow dialog(window.get());
  dialog.onTimer = [&] {
    if (![input hasFailed]) return;
    dialog.SetResult(5);
    dialog.EndModal();
  };
  HXCocoaTimer timer;
  timer.SetOwner(&dialog, 1);
  timer.Start(5, false);
  [input offer];
  EXPECT_EQ(dialog.RunModal(), 5);
  EXPECT_TRUE([input hasFailed]);
}

TEST_F(HXWindowModalTest, EndModalReturnsTheResultAndLeavesTheWindow) {
  RecordingWindow dialog(window.get());
  Later([&] { dialog.EndModal(); });
  EXPECT_EQ(dialog.RunModal(), 0);
  EXPECT_FALSE(dialog.IsClosed());
  EXPECT_EQ(dialog.closings, 0);
  Later([&] {
    dialog.SetResult(7);
    dialog.EndModal();
  });
  EXPECT_EQ(dialog.RunModal(), 7);
  Later([&] { dialog.EndModal(); });
  EXPECT_EQ(dialog.RunModal(), 0) << "the result is cleared at the start";
}

TEST_F(HXWindowModalTest, AWrappedWindowStaysOnTheScreenAfterItsRun) {
  RecordingWindow other;
  other.SetVisible(true);
  HXWindow wrapper(Native(other));
  Later([&] { wrapper.EndModal(); });
  wrapper.RunModal();
  EXPECT_TRUE([Native(other) isVisible]);
}

TEST_F(HXWindowModalTest, CloseEndsTheRunWithWhatTheDialogHasSet) {
  RecordingWindow dialog(window.get());
  Later([&] {
    dialog.SetResult(0);
    dialog.Close();
  });
  EXPECT_EQ(dialog.RunModal(), 0);
}

TEST_F(HXWindowModalTest, EndModalWithoutARunDoesNothing) {
  RecordingWindow dialog(window.get());
  dialog.EndModal();
  EXPECT_FALSE(dialog.IsClosed());
  Later([&] {
    window->EndModal();
    EXPECT_EQ([NSApp modalWindow], Native(dialog));
    dialog.EndModal();
    dialog.EndModal();
  });
  EXPECT_EQ(dialog.RunModal(), 0);
}

TEST_F(HXWindowModalTest, RefusedCloseKeepsRunning) {
  RecordingWindow dialog(window.get());
  dialog.canClose = false;
  bool stillRunning = false;
  Later([&] {
    PressCloseButton(dialog);
    Later([&] {
      stillRunning = [Native(dialog) isVisible] && [NSApp modalWindow] == Native(dialog);
      dialog.EndModal();
    });
  });
  EXPECT_EQ(dialog.RunModal(), 0);
  EXPECT_TRUE(stillRunning);
  EXPECT_EQ(dialog.closeRequests, 1);
}

TEST_F(HXWindowModalTest, ParentIsDisabledMeanwhile) {
  RecordingWindow dialog(window.get());
  bool enabledInside = true;
  Later([&] {
    enabledInside = window->IsEnabled();
    dialog.EndModal();
  });
  dialog.RunModal();
  EXPECT_FALSE(enabledInside);
  EXPECT_TRUE(window->IsEnabled());
}

TEST_F(HXWindowModalTest, RunsWithoutAParent) {
  RecordingWindow dialog;
  Later([&] { dialog.EndModal(); });
  EXPECT_EQ(dialog.RunModal(), 0);
}

TEST_F(HXWindowModalTest, TimersFireInsideAndMayEndTheRun) {
  RecordingWindow dialog(window.get());
  HXCocoaTimer timer;
  timer.SetOwner(&dialog, 3);
  dialog.onTimer = [&] {
    if (dialog.timers.size() == 3) dialog.EndModal();
  };
  timer.Start(1, false);
  dialog.RunModal();
  EXPECT_THAT(dialog.timers, ElementsAre(3, 3, 3));
}

TEST_F(HXWindowModalTest, RunThatATimerEndsWaitsForNoFurtherInput) {
  RecordingWindow dialog(window.get());
  HXCocoaTimer ending;
  HXCocoaTimer late;
  ending.SetOwner(&dialog, 1);
  late.SetOwner(&dialog, 2);
  dialog.onTimer = [&] { dialog.EndModal(); };
  // By then the events of the dialog's appearance are over.
  ending.Start(300, true);
  late.Start(5000, true);
  dialog.RunModal();
  EXPECT_THAT(dialog.timers, ElementsAre(1));
}

TEST_F(HXWindowModalTest, DialogIsDrawnAndClickedInside) {
  RecordingWindow dialog(window.get());
  RecordingOwner owner;
  auto* button = new RecordingPanel(&dialog, {10, 10}, {50, 20});
  button->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  owner.action = [&] {
    if (owner.events.back() == kLeftUp) dialog.EndModal();
  };
  Later([&] {
    Post(KeyDownEvent(dialog, @"x"));
    Click(*button, {5, 5});
  });
  dialog.RunModal();
  EXPECT_THAT(owner.events, ElementsAre(1, 2));
  EXPECT_GE(button->draws, 1);
}

TEST_F(HXWindowModalTest, RunsNest) {
  RecordingWindow outer(window.get());
  int innerResult = -1;
  bool outerDisabled = false;
  Later([&] {
    RecordingWindow inner(&outer);
    Later([&] {
      outerDisabled = !outer.IsEnabled();
      EXPECT_EQ([NSApp modalWindow], Native(inner));
      PressCloseButton(inner);
    });
    innerResult = inner.RunModal();
    EXPECT_EQ([NSApp modalWindow], Native(outer));
    EXPECT_TRUE(outer.IsEnabled());
    outer.SetResult(5);
    outer.EndModal();
  });
  EXPECT_EQ(outer.RunModal(), 5);
  EXPECT_EQ(innerResult, 1);
  EXPECT_TRUE(outerDisabled);
}

TEST_F(HXWindowModalTest, EndingTheOuterRunWaitsForTheInnerOne) {
  RecordingWindow outer(window.get());
  bool innerWentOn = false;
  Later([&] {
    RecordingWindow inner(&outer);
    Later([&] {
      outer.SetResult(9);
      outer.EndModal();
      Later([&] {
        innerWentOn = [NSApp modalWindow] == Native(inner);
        inner.EndModal();
      });
    });
    inner.RunModal();
  });
  EXPECT_EQ(outer.RunModal(), 9);
  EXPECT_TRUE(innerWentOn);
}

TEST_F(HXWindowModalTest, OuterDialogThatIsClosedMeanwhileStaysClosed) {
  RecordingWindow outer(window.get());
  Later([&] {
    RecordingWindow inner(&outer);
    Later([&] {
      outer.Close();
      Later([&] { inner.EndModal(); });
    });
    inner.RunModal();
  });
  outer.RunModal();
  EXPECT_FALSE([Native(outer) isVisible]);
}

TEST_F(HXWindowModalTest, DialogMayBeDeletedInsideItsRun) {
  for (const bool withTimer : {false, true}) {
    auto* dialog = new RecordingWindow(window.get());
    bool gone = false;
    dialog->onDestruction = [&] { gone = true; };
    HXCocoaTimer timer;
    timer.SetOwner(dialog, 1);
    dialog->onTimer = [dialog] { delete dialog; };
    if (withTimer) {
      timer.Start(1, true);
    } else {
      Later([dialog] { delete dialog; });
    }
    EXPECT_EQ(dialog->RunModal(), 0);
    EXPECT_TRUE(gone);
    EXPECT_TRUE(window->IsEnabled());
  }
}

TEST_F(HXWindowModalTest, DialogMayBeDeletedByItsOwnButton) {
  auto* dialog = new RecordingWindow(window.get());
  auto* button = new RecordingPanel(dialog, {10, 10}, {50, 20});
  RecordingOwner owner;
  button->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  owner.action = [&] {
    if (owner.events.back() == kLeftUp) delete dialog;
  };
  // Queued, so that the modal session itself delivers them.
  Later([&] {
    const NSPoint location = [button->GetNativeView() convertPoint:NSMakePoint(5, 5) toView:nil];
    PostMouse(NSLeftMouseDown, *dialog, location);
    PostMouse(NSLeftMouseUp, *dialog, location);
  });
  EXPECT_EQ(dialog->RunModal(), 0);
  EXPECT_THAT(owner.events, ElementsAre(1, 2));
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXWindowModalTest, DialogMayBeDeletedInItsOnClose) {
  auto* dialog = new RecordingWindow(window.get());
  dialog->onClose = [dialog] { delete dialog; };
  Later([dialog] { PressCloseButton(*dialog); });
  EXPECT_EQ(dialog->RunModal(), 0);
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXWindowModalTest, ParentMayBeDeletedInsideTheRun) {
  auto parent = std::make_unique<RecordingWindow>();
  parent->SetVisible(true);
  auto* dialog = new RecordingWindow(parent.get());
  Later([&] { parent.reset(); });
  EXPECT_EQ(dialog->RunModal(), 0);
  EXPECT_EQ(parent, nullptr);
}

TEST_F(HXWindowModalTest, OuterDialogMayBeDeletedInsideTheInnerRun) {
  auto* outer = new RecordingWindow(window.get());
  bool innerEnded = false;
  Later([&] {
    RecordingWindow inner;
    Later([&] {
      delete outer;
      Later([&] { inner.EndModal(); });
    });
    EXPECT_EQ(inner.RunModal(), 0);
    innerEnded = true;
  });
  EXPECT_EQ(outer->RunModal(), 0);
  EXPECT_TRUE(innerEnded);
}

TEST_F(HXWindowModalTest, WindowMayBeDeletedInADialogThatItsOwnButtonRuns) {
  RecordingPanel& button = ShowOwned();
  NSWindow* const native = Native(*owned);
  bool aliveForItsEvent = false;
  clicked.action = [&] {
    if (clicked.events.back() != kLeftUp) return;
    RecordingWindow dialog;
    Later([&] {
      owned.reset();
      Later([&] { dialog.EndModal(); });
    });
    dialog.RunModal();
    aliveForItsEvent = [[NSApp windows] indexOfObjectIdenticalTo:native] != NSNotFound;
  };
  Click(button, {5, 5});
  EXPECT_EQ(owned, nullptr);
  EXPECT_TRUE(aliveForItsEvent) << "the platform window is still serving the click";
}

TEST_F(HXWindowModalTest, WindowOutlivesTheEventThatDeletesIt) {
  RecordingPanel& button = ShowOwned();
  NSWindow* const native = Native(*owned);
  bool aliveForItsEvent = false;
  clicked.action = [&] {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    owned.reset();
    [pool drain];
    aliveForItsEvent = [[NSApp windows] indexOfObjectIdenticalTo:native] != NSNotFound;
  };
  SendMouse(NSLeftMouseDown, button, {5, 5});
  EXPECT_EQ(owned, nullptr);
  EXPECT_TRUE(aliveForItsEvent);
}

TEST_F(HXWindowModalTest, EscapeThatNobodyHasAskedForDoesNotEndTheRun) {
  RecordingWindow dialog(window.get());
  bool stillRunning = false;
  Later([&] {
    [Native(dialog) makeFirstResponder:nil];
    Post(KeyDownEvent(dialog, @"\033"));
    Post(KeyDownEvent(dialog, @"\r"));
    Later([&] {
      Later([&] {
        stillRunning = [NSApp modalWindow] == Native(dialog);
        dialog.EndModal();
      });
    });
  });
  EXPECT_EQ(dialog.RunModal(), 0);
  EXPECT_TRUE(stillRunning);
}

TEST_F(HXWindowModalTest, KeysReachTheDialogOnce) {
  RecordingWindow dialog(window.get());
  RecordingSink sink;
  dialog.onKey = [&] { dialog.EndModal(); };
  Later([&] { Post(KeyDownEvent(dialog, @"\033")); });
  dialog.RunModal();
  EXPECT_THAT(dialog.keys, ElementsAre(27));
  EXPECT_EQ(sink.Count(kKeyDown), 1);
}

TEST_F(HXWindowModalTest, OtherWindowsAreDeafUnlessTheyWorkWhenModal) {
  RecordingWindow usable(nullptr, HXWindow::kWorksWhenModal);
  RecordingWindow deaf;
  usable.Show();
  deaf.Show();
  RecordingWindow dialog(window.get());
  dialog.onKey = [&] { dialog.EndModal(); };
  Later([&] {
    for (RecordingWindow* each : {&deaf, &usable, &dialog}) {
      PostMouse(NSRightMouseDown, *each, NSMakePoint(20, 20));
    }
    Post(KeyDownEvent(dialog, @"x"));
  });
  dialog.RunModal();
  EXPECT_THAT(dialog.kinds, ::testing::Contains(kRightDown));
  EXPECT_THAT(usable.kinds, ::testing::Contains(kRightDown));
  EXPECT_THAT(deaf.kinds, ::testing::Not(::testing::Contains(kRightDown)));
}

TEST_F(HXWindowModalTest, ASessionIsStoppedOnlyWhileItIsTheInnermost) {
  const RecordingWindow dialog(window.get());
  void* session = NativeWindow::BeginModal(Native(dialog), nil);
  NativeWindow::StopModal(Native(*window));
  NativeWindow::StopModal(nil);
  EXPECT_TRUE(NativeWindow::ServeModalEvents(session));
  NativeWindow::StopModal(Native(dialog));
  EXPECT_FALSE(NativeWindow::ServeModalEvents(session));
  NativeWindow::EndModal(session);
}

}  // namespace
