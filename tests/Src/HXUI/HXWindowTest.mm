#include "Src/HXUI/HXWindow.h"

#include <gmock/gmock.h>

#include <memory>
#include <utility>

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#import "Src/HXUI/Cocoa/HXTopWindow.h"
#import "Src/HXUI/Cocoa/HXView.h"
#import "Src/HXUI/Cocoa/HXWindowDelegate.h"
#include "Src/HXUI/HXLayout.h"
#include "tests/Src/HXUI/RecordingPanel.h"
#include "tests/Src/HXUI/RecordingSink.h"
#include "tests/Src/HXUI/RecordingWindow.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HXWindowTest : public ToolkitFixture {
 protected:
  static NSWindow* Native(const HXWindow& of) { return [of.GetNativeView() window]; }
  static NSRect Content(const HXWindow& of) {
    NSWindow* native = Native(of);
    return [NSWindow contentRectForFrameRect:[native frame] styleMask:[native styleMask]];
  }
  static int ScreenHeight() {
    return static_cast<int>([[[NSScreen screens] objectAtIndex:0] frame].size.height);
  }
  void PumpUntilKey(HXWindow& of) {
    PumpUntil([&] { return of.IsKeyWindow(); }, "the window to become key");
  }
};

// Construction

TEST_F(HXWindowTest, NewWindowIsHiddenTitledAndEmpty) {
  RecordingWindow plain;
  NSWindow* native = Native(plain);
  EXPECT_TRUE([native isKindOfClass:[HXTopWindow class]]);
  EXPECT_FALSE([native isVisible]);
  EXPECT_FALSE(plain.IsVisible());
  EXPECT_TRUE([[native title] isEqualToString:@"Recording"]);
  EXPECT_EQ([native styleMask], NSUInteger { NSTitledWindowMask | NSClosableWindowMask });
  EXPECT_EQ([native backingType], NSBackingStoreBuffered);
  EXPECT_TRUE([native acceptsMouseMovedEvents]);
  EXPECT_FALSE([native isReleasedWhenClosed]);
  EXPECT_EQ(plain.GetSize(), (HXSize{200, 150}));
  EXPECT_EQ(plain.GetMinSize(), (HXSize{200, 150}));
  EXPECT_TRUE(NSEqualSizes([native contentMinSize], NSMakeSize(200, 150)));
  EXPECT_EQ([static_cast<HXView*>([native contentView]) getObject], &plain);
  EXPECT_TRUE([[native delegate] isKindOfClass:[HXWindowDelegate class]]);
}

TEST_F(HXWindowTest, TitleIsUtf8) {
  const HXWindow titled(nullptr, {0, 0}, {10, 10}, "\u00c4\u20ac", 0);
  EXPECT_TRUE([[Native(titled) title] isEqualToString:@"\u00c4\u20ac"]);
}

TEST_F(HXWindowTest, PositionIsWhereTheContentsBottomLandsFromTheTop) {
  for (const std::uint32_t flags : {0U, 1U, 2U}) {
    const RecordingWindow placed(nullptr, flags, {120, 500}, {200, 150});
    EXPECT_TRUE(NSEqualRects(Content(placed), NSMakeRect(120, ScreenHeight() - 500, 200, 150)))
        << flags;
  }
}

TEST_F(HXWindowTest, FlagsSelectStyleLevelAndUseWhileModal) {
  struct Row {
    std::uint32_t flags;
    NSUInteger style;
    NSInteger level;
    bool worksWhenModal;
  };
  constexpr NSUInteger kTitled = NSTitledWindowMask | NSClosableWindowMask;
  const Row rows[] = {{0, kTitled, NSNormalWindowLevel, false},
                      {1, kTitled | NSResizableWindowMask, NSNormalWindowLevel, false},
                      {2, NSBorderlessWindowMask, NSNormalWindowLevel, false},
                      {3, NSBorderlessWindowMask | NSResizableWindowMask, 0, false},
                      {4, kTitled, 101, false},
                      {6, NSBorderlessWindowMask, 101, false},
                      {8, kTitled, NSNormalWindowLevel, false},
                      {16, kTitled, NSNormalWindowLevel, true}};
  for (const Row& row : rows) {
    const RecordingWindow made(nullptr, row.flags);
    EXPECT_EQ([Native(made) styleMask], row.style) << row.flags;
    EXPECT_EQ([Native(made) level], row.level) << row.flags;
    EXPECT_EQ([Native(made) worksWhenModal] == YES, row.worksWhenModal) << row.flags;
  }
}

TEST_F(HXWindowTest, BorderlessWindowBecomesKey) {
  RecordingWindow borderless(nullptr, HXWindow::kBorderless);
  EXPECT_TRUE([Native(borderless) canBecomeKeyWindow]);
  EXPECT_TRUE([Native(borderless) canBecomeMainWindow]);
  borderless.SetVisible(true);
  PumpUntilKey(borderless);
}

// Placement and visibility

TEST_F(HXWindowTest, SizeIsTheContents) {
  RecordingWindow sized;
  sized.SetSize({321, 223});
  EXPECT_EQ(sized.GetSize(), (HXSize{321, 223}));
  EXPECT_TRUE(NSEqualSizes(Content(sized).size, NSMakeSize(321, 223)));
}

TEST_F(HXWindowTest, PositionIsTheFramesOrigin) {
  RecordingWindow placed;
  placed.SetPosition({33, 44});
  EXPECT_EQ(placed.GetPosition(), (HXPoint{33, 44}));
  EXPECT_TRUE(NSEqualPoints([Native(placed) frame].origin, NSMakePoint(33, 44)));
  placed.SetRect({55, 66, 210, 160});
  EXPECT_EQ(placed.GetPosition(), (HXPoint{55, 66}));
  EXPECT_EQ(placed.GetSize(), (HXSize{210, 160}));
}

TEST_F(HXWindowTest, MinimumSizeIsImposedOnTheContent) {
  RecordingWindow sized(nullptr, HXWindow::kResizable);
  sized.SetMinSize({77, 66});
  EXPECT_EQ(sized.GetMinSize(), (HXSize{77, 66}));
  EXPECT_TRUE(NSEqualSizes([Native(sized) contentMinSize], NSMakeSize(77, 66)));
}

TEST_F(HXWindowTest, SetVisibleMakesKeyAndHides) {
  RecordingWindow shown;
  shown.SetVisible(true);
  PumpUntilKey(shown);
  EXPECT_TRUE(shown.IsVisible());
  EXPECT_FALSE(window->IsKeyWindow());
  shown.SetVisible(false);
  EXPECT_FALSE(shown.IsVisible());
  EXPECT_FALSE([Native(shown) isVisible]);
}

TEST_F(HXWindowTest, ShowDoesNotMakeKey) {
  RecordingWindow shown;
  shown.Show();
  EXPECT_TRUE(shown.IsVisible());
  EXPECT_TRUE([Native(shown) isVisible]);
  EXPECT_FALSE(shown.IsKeyWindow());
  EXPECT_TRUE(window->IsKeyWindow());
}

TEST_F(HXWindowTest, CenterPutsTheWindowInTheMiddleOfTheWidth) {
  RecordingWindow centred;
  centred.Center();
  const NSRect frame = [Native(centred) frame];
  const NSRect screen = [[NSScreen mainScreen] visibleFrame];
  EXPECT_NEAR(NSMidX(frame), NSMidX(screen), 1);
  EXPECT_GE(NSMidY(frame), NSMidY(screen) - 1);
}

TEST_F(HXWindowTest, AlphaAndZoomGoToThePlatform) {
  RecordingWindow zoomed(nullptr, HXWindow::kResizable);
  zoomed.SetAlpha(0.5F);
  EXPECT_NEAR([Native(zoomed) alphaValue], 0.5, 0.01);
  EXPECT_FALSE(zoomed.IsZoomed());
  zoomed.Zoom();
  EXPECT_TRUE(zoomed.IsZoomed());
  EXPECT_GT(zoomed.GetSize().width, 200);
  zoomed.SetRect({100, 100, 200, 150});
  EXPECT_FALSE(zoomed.IsZoomed());
}

TEST_F(HXWindowTest, OffsetOfAChildIsCountedFromTheContentsTopLeft) {
  auto* panel = new HXPanel(window.get(), {10, 20}, {100, 100});
  auto* child = new HXPanel(panel, {3, 4}, {10, 10});
  EXPECT_EQ(window->GetOffsetOf(*child), (HXPoint{13, 24}));
  EXPECT_EQ(window->GetOffsetOf(*window), (HXPoint{0, 0}));
}

// What the platform tells

TEST_F(HXWindowTest, ResizeIsTold) {
  RecordingWindow resized;
  auto* panel = new HXPanel(&resized, {0, 0}, {10, 10});
  auto row = std::make_unique<HXLayout>(HXLayout::kRow);
  row->AddWidget(panel, true);
  resized.SetLayout(std::move(row));
  resized.sizeChanges = 0;
  resized.SetSize({250, 180});
  EXPECT_GE(resized.sizeChanges, 1);
  EXPECT_EQ(panel->GetSize(), (HXSize{250, 180}));
  resized.sizeChanges = 0;
  [[NSNotificationCenter defaultCenter] postNotificationName:NSWindowDidResizeNotification
                                                      object:Native(resized)];
  EXPECT_EQ(resized.sizeChanges, 1);
}

TEST_F(HXWindowTest, LosingTheKeyStatusIsTold) {
  RecordingWindow losing;
  losing.SetVisible(true);
  PumpUntilKey(losing);
  const int before = losing.focusLosses;
  window->SetVisible(true);
  PumpUntilKey(*window);
  EXPECT_EQ(losing.focusLosses, before + 1);
}

TEST_F(HXWindowTest, KeysGoToTheWindowAsLongAsNoChildHasAskedForThem) {
  RecordingWindow keyed;
  keyed.SetVisible(true);
  PumpUntilKey(keyed);
  auto* panel = new RecordingPanel(&keyed, {0, 0}, {10, 10});
  SendKey(keyed, @"a");
  panel->SetFocus();
  SendKey(keyed, @"b");
  EXPECT_THAT(keyed.keys, ElementsAre('a'));
  EXPECT_THAT(panel->keys, ElementsAre('b'));
}

TEST_F(HXWindowTest, MouseOnTheContentReachesTheWindow) {
  RecordingWindow clicked;
  clicked.SetVisible(true);
  PumpUntilKey(clicked);
  Click(clicked, {5, 5});
  EXPECT_THAT(clicked.kinds, ElementsAre(kLeftDown, kLeftUp));
}

// Closing

TEST_F(HXWindowTest, CloseButtonAsksThenTells) {
  RecordingWindow closing;
  closing.SetVisible(true);
  closing.canClose = false;
  [Native(closing) performClose:nil];
  EXPECT_EQ(closing.closeRequests, 1);
  EXPECT_EQ(closing.closings, 0);
  EXPECT_FALSE(closing.IsClosed());
  EXPECT_TRUE([Native(closing) isVisible]);
  closing.canClose = true;
  [Native(closing) performClose:nil];
  EXPECT_EQ(closing.closings, 1);
  EXPECT_TRUE(closing.IsClosed());
  EXPECT_FALSE([Native(closing) isVisible]);
  EXPECT_FALSE([Native(closing) acceptsMouseMovedEvents]);
}

TEST_F(HXWindowTest, CloseAsksNobodyAndWorksOnce) {
  RecordingWindow closing;
  closing.SetVisible(true);
  closing.canClose = false;
  closing.Close();
  closing.Close();
  EXPECT_EQ(closing.closeRequests, 0);
  EXPECT_EQ(closing.closings, 1);
  EXPECT_TRUE(closing.IsClosed());
}

TEST_F(HXWindowTest, DelegateAnswersWhetherTheWindowCloses) {
  RecordingWindow closing;
  auto* windowDelegate = static_cast<HXWindowDelegate*>([Native(closing) delegate]);
  closing.canClose = false;
  EXPECT_FALSE([windowDelegate windowShouldClose:nil]);
  closing.canClose = true;
  EXPECT_TRUE([windowDelegate windowShouldClose:nil]);
  EXPECT_TRUE(closing.IsClosed());
}

TEST_F(HXWindowTest, DestructionClosesAndReleasesThePlatformWindow) {
  auto doomed = std::make_unique<RecordingWindow>();
  auto* child = new RecordingPanel(doomed.get(), {0, 0}, {10, 10});
  bool childGone = false;
  child->onDestruction = [&] { childGone = true; };
  doomed->SetVisible(true);
  NSWindow* native = [Native(*doomed) retain];
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  doomed.reset();
  EXPECT_TRUE(childGone);
  EXPECT_FALSE([native isVisible]);
  EXPECT_EQ([native delegate], nil);
  EXPECT_EQ([static_cast<HXView*>([native contentView]) getObject], nullptr);
  [pool drain];
  Pump();
  [native release];
}

TEST_F(HXWindowTest, DestroyedWindowsAreGoneFromTheApplication) {
  Pump();
  const NSUInteger before = [[NSApp windows] count];
  for (int i = 0; i < 20; ++i) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    {
      RecordingWindow passing;
      new HXPanel(&passing, {0, 0}, {10, 10});
      passing.SetVisible(i % 2 == 0);
    }
    Pump();
    [pool drain];
  }
  EXPECT_EQ([[NSApp windows] count], before);
}

TEST_F(HXWindowTest, ChildWindowDiesWithItsParent) {
  auto parent = std::make_unique<RecordingWindow>();
  auto* child = new RecordingWindow(parent.get());
  child->SetVisible(true);
  bool gone = false;
  child->onDestruction = [&] { gone = true; };
  parent.reset();
  EXPECT_TRUE(gone);
}

TEST_F(HXWindowTest, WrappedWindowIsNeitherClosedNorReleased) {
  NSWindow* native = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 60, 70, 80)
                                                 styleMask:NSTitledWindowMask
                                                   backing:NSBackingStoreBuffered
                                                     defer:NO];
  [native setReleasedWhenClosed:NO];
  [native orderFront:nil];
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  const NSUInteger references = [native retainCount];
  {
    HXWindow wrapper(native);
    EXPECT_TRUE(wrapper.IsClosed());
    EXPECT_EQ(wrapper.GetNativeView(), [native contentView]);
    EXPECT_EQ(wrapper.GetSize(), (HXSize{70, 80}));
    auto* panel = new HXPanel(&wrapper, {1, 2}, {3, 4});
    EXPECT_EQ([panel->GetNativeView() superview], [native contentView]);
    wrapper.Close();
    EXPECT_TRUE([native isVisible]);
    wrapper.SetVisible(false);
    wrapper.SetVisible(true);
    wrapper.CaptureMouse();
    EXPECT_FALSE([native areCursorRectsEnabled]);
  }
  EXPECT_TRUE([native areCursorRectsEnabled]);
  EXPECT_TRUE([native isVisible]);
  EXPECT_EQ([[[native contentView] subviews] count], 0U);
  [pool drain];
  EXPECT_EQ([native retainCount], references);
  [native close];
  [native release];
}

// Deletion in callbacks

TEST_F(HXWindowTest, ClosingIsToldToEveryWidgetInTheWindow) {
  auto* outer = new RecordingPanel(window.get(), {0, 0}, {50, 50});
  auto* inner = new RecordingPanel(outer, {0, 0}, {20, 20});
  auto* doomed = new RecordingPanel(window.get(), {50, 0}, {50, 50});
  auto* last = new RecordingPanel(window.get(), {100, 0}, {50, 50});
  doomed->onClose = [doomed] { delete doomed; };
  window->Close();
  EXPECT_EQ(outer->closes, 1);
  EXPECT_EQ(inner->closes, 1);
  EXPECT_EQ(last->closes, 1);
  EXPECT_EQ(window->GetChildren(), (std::vector<HXObject*>{outer, last}));
}

TEST_F(HXWindowTest, ClosingIsNotToldToADialogOfTheWindow) {
  auto* dialog = new RecordingWindow(window.get());
  auto* panel = new RecordingPanel(dialog, {0, 0}, {50, 50});
  dialog->SetVisible(true);
  window->Close();
  EXPECT_EQ(panel->closes, 0);
  dialog->Close();
  EXPECT_EQ(panel->closes, 1);
}

TEST_F(HXWindowTest, WindowMayBeDeletedInItsOwnCallbacks) {
  using Bind = void (*)(RecordingWindow&, RecordingWindow::Action);
  const std::pair<const char*, Bind> bindings[] = {
      {"CanClose", [](RecordingWindow& of, RecordingWindow::Action act) { of.onCanClose = act; }},
      {"OnClose", [](RecordingWindow& of, RecordingWindow::Action act) { of.onClose = act; }},
      {"OnFocusLost",
       [](RecordingWindow& of, RecordingWindow::Action act) { of.onFocusLost = act; }},
      {"OnMouse", [](RecordingWindow& of, RecordingWindow::Action act) { of.onMouse = act; }},
      {"OnKeyDown", [](RecordingWindow& of, RecordingWindow::Action act) { of.onKey = act; }},
  };
  for (const auto& [name, bind] : bindings) {
    auto* doomed = new RecordingWindow;
    bool gone = false;
    doomed->onDestruction = [&] { gone = true; };
    doomed->SetVisible(true);
    PumpUntilKey(*doomed);
    bind(*doomed, [doomed] { delete doomed; });
    NSWindow* native = [Native(*doomed) retain];
    const std::string callback = name;
    if (callback == "OnMouse") {
      SendMouse(NSLeftMouseDown, *doomed, {5, 5});
    } else if (callback == "OnKeyDown") {
      SendKey(*doomed, @"a");
    } else if (callback == "OnFocusLost") {
      [native resignKeyWindow];
    } else {
      [native performClose:nil];
    }
    EXPECT_TRUE(gone) << name;
    EXPECT_FALSE([native isVisible]) << name;
    [native release];
    Pump();
  }
}

}  // namespace
