#include "Src/HXUI/HXScrollBar.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "Src/HXUI/Cocoa/HXCocoaTimer.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"

namespace {

constexpr std::int32_t kHeight = 240;
constexpr std::int32_t kWidth = 17;
constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXColor kTrack{17, 18, 20, 255};
constexpr HXColor kPart{37, 38, 42, 255};
constexpr HXColor kHovered{46, 48, 51, 255};
constexpr HXColor kGrip{80, 80, 80, 255};
constexpr HXColor kTriangle{222, 222, 222, 255};

/// Remembers how far each `SetPosition` moved it.
class Content : public HXPanel {
 public:
  using HXPanel::HXPanel;
  void SetPosition(HXPoint position) override {
    steps.push_back(position.y - GetPosition().y);
    HXPanel::SetPosition(position);
  }
  std::vector<std::int32_t> steps;
};

/// Counts the ticks of a timer of its own.
class Clock : public RecordingOwner {
 public:
  Clock() {
    timer.SetOwner(this, 1);
    timer.Start(20, false);
  }
  void OnTimer(int) override { ++ticks; }
  int ticks = 0;

 private:
  HXCocoaTimer timer;
};

class HXScrollBarTest : public ToolkitFixture {
 protected:
  HXScrollBarTest() : area(new HXPanel(window.get(), {0, 0}, {100, kHeight})) {}

  void Make(std::int32_t contentHeight, std::int32_t y = 0, std::int32_t x = 0) {
    content = new Content(area, {x, y}, {83, contentHeight});
    bar = new HXScrollBar(area, content, {83, 0}, false);
  }
  HXPoint ContentAt() const { return content->GetPosition(); }
  void WaitForContentAt(std::int32_t y) {
    PumpUntil([&] { return ContentAt().y == y; }, "the content to arrive");
  }
  /// Long enough for every timer of the bar to have ticked if it still ran.
  void WaitForAnyTimer() {
    Clock clock;
    PumpUntil([&] { return clock.ticks >= 5; }, "the clock");
  }
  /// Lets timers run without delivering the events of the real pointer, which
  /// may still be on its way from where the last test has left it.
  static void RunTimersUntil(const std::function<bool()>& condition) {
    NSDate* end = [NSDate dateWithTimeIntervalSinceNow:30];
    while (!condition()) {
      ASSERT_GT([end timeIntervalSinceNow], 0) << "waited in vain for a timer";
      [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                               beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
    }
  }
  /// Rows of the thumb in the column that only the thumb's ends and face touch.
  HXRect ThumbRows(const DrawnPixels& pixels) {
    return pixels.InkBounds({2, 0, 1, kHeight}, kTrack);
  }

  HXPanel* area;
  Content* content = nullptr;
  HXScrollBar* bar = nullptr;
};

TEST_F(HXScrollBarTest, Is17WideAndAsTallAsItsParent) {
  Make(480);
  EXPECT_EQ(bar->GetSize(), (HXSize{kWidth, kHeight}));
  EXPECT_EQ(bar->GetPosition(), (HXPoint{83, 0}));
}

// Drawing

TEST_F(HXScrollBarTest, DrawsEdgeTrackAndThumb) {
  Make(480);
  const auto pixels = Draw(*bar);
  EXPECT_EQ(CountOther(*pixels, {0, 0, 1, kHeight}, kBlack), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 120, 16, 120}, kTrack), 0);
  // All of the thumb but the grip has one colour.
  EXPECT_EQ(CountOther(*pixels, {1, 0, 16, 57}, kPart), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 64, 16, 56}, kPart), 0);
  for (const int y : {57, 59, 61, 63}) {
    EXPECT_EQ(CountOther(*pixels, {5, y, 7, 1}, kGrip), 0) << y;
    EXPECT_EQ(CountOther(*pixels, {1, y, 4, 1}, kPart), 0) << y;
    EXPECT_EQ(CountOther(*pixels, {12, y, 5, 1}, kPart), 0) << y;
  }
  for (const int y : {58, 60, 62}) EXPECT_EQ(CountOther(*pixels, {1, y, 16, 1}, kPart), 0) << y;
}

TEST_F(HXScrollBarTest, HoveredThumbIsLighterBetweenItsEnds) {
  Make(480);
  Draw(*bar);
  SendMouse(NSMouseMoved, *bar, {8, 30});
  const auto pixels = Draw(*bar);
  EXPECT_EQ(CountOther(*pixels, {1, 0, 16, 1}, kPart), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 1, 16, 56}, kHovered), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 64, 16, 55}, kHovered), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 119, 16, 1}, kPart), 0);
}

TEST_F(HXScrollBarTest, ThumbFollowsTheContent) {
  Make(480, -120);
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 60, 1, 120}));
  content->SetPosition({0, -240});
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 120, 1, 120}));
  content->SetPosition({0, -1});
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 0, 1, 120}));
}

TEST_F(HXScrollBarTest, ThumbHasALeastLength) {
  Make(5000, -1000);
  // 1000 of 4760 hidden pixels, on a way of 220: 46.2.
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 46, 1, 20}));
}

TEST_F(HXScrollBarTest, ShortContentGivesAThumbThatFillsTheTrack) {
  Make(100);
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 0, 1, kHeight}));
}

TEST_F(HXScrollBarTest, HugeContentDoesNotOverflow) {
  Make(200'000'000, -100'000'000);
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 110, 1, 20}));
}

TEST_F(HXScrollBarTest, DrawingBringsAContentThatHasShrunkBackInside) {
  Make(480, -400, 7);
  Draw(*bar);
  EXPECT_EQ(ContentAt(), (HXPoint{0, -240}));
  content->SetSize({83, 100});
  Draw(*bar);
  EXPECT_EQ(ContentAt(), (HXPoint{0, 0}));
}

TEST_F(HXScrollBarTest, DrawingLeavesAContentThatIsInsideWhereItIs) {
  Make(480, -100, 7);
  content->steps.clear();
  Draw(*bar);
  EXPECT_EQ(ContentAt(), (HXPoint{7, -100}));
  content->SetPosition({7, 30});
  content->steps.clear();
  Draw(*bar);
  EXPECT_EQ(ContentAt(), (HXPoint{7, 30}));
  EXPECT_TRUE(content->steps.empty());
}

TEST_F(HXScrollBarTest, WithoutContentItDrawsAFullThumbAndIgnoresEverything) {
  bar = new HXScrollBar(area, nullptr, {83, 0}, true);
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 0, 1, kHeight}));
  bar->ScrollBy(120);
  bar->SetThumbPosition(10, false);
  bar->SetThumbPosition(10, true);
  Click(*bar, {5, 5});
  WaitForAnyTimer();
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 0, 1, kHeight}));
}

TEST_F(HXScrollBarTest, ContentCanBeTakenOff) {
  Make(480, -100);
  bar->SetContent(nullptr);
  delete content;
  bar->ScrollBy(120);
  EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 0, 1, kHeight}));
}

// Wheel

TEST_F(HXScrollBarTest, OneNotchScrollsTenPixelsAtOnce) {
  Make(1000, -500, 7);
  bar->ScrollBy(120);
  EXPECT_EQ(ContentAt(), (HXPoint{7, -490}));
  bar->ScrollBy(-120);
  WaitForContentAt(-500);
  EXPECT_EQ(ContentAt().x, 7);
}

TEST_F(HXScrollBarTest, TurnsDuringTheAnimationWaitForItsTick) {
  Make(1000, -500);
  bar->ScrollBy(120);
  bar->ScrollBy(120);
  EXPECT_EQ(ContentAt().y, -490);
  WaitForContentAt(-480);
}

TEST_F(HXScrollBarTest, TenNotchesScrollInStepsOfTen) {
  Make(1000, -500);
  bar->ScrollBy(1200);
  EXPECT_EQ(ContentAt().y, -490);
  WaitForContentAt(-400);
  WaitForAnyTimer();
  content->steps.erase(std::remove(content->steps.begin(), content->steps.end(), 0),
                       content->steps.end());
  EXPECT_EQ(content->steps, std::vector<std::int32_t>(10, 10));
}

TEST_F(HXScrollBarTest, LongTurnsStartWithATenthOfTheWay) {
  Make(2000, -1000);
  bar->ScrollBy(-3600);
  WaitForContentAt(-1300);
  ASSERT_GE(content->steps.size(), 11U);
  content->steps.resize(11);
  EXPECT_EQ(content->steps,
            (std::vector<std::int32_t>{-30, -27, -24, -21, -19, -17, -16, -14, -13, -11, -10}));
}

TEST_F(HXScrollBarTest, WheelUnitsAreCutTowardZero) {
  Make(1000, -500);
  bar->ScrollBy(11);
  EXPECT_EQ(ContentAt().y, -500);
  WaitForAnyTimer();
  bar->ScrollBy(-11);
  EXPECT_EQ(ContentAt().y, -500);
  WaitForAnyTimer();
  bar->ScrollBy(-23);
  EXPECT_EQ(ContentAt().y, -501);
}

TEST_F(HXScrollBarTest, ScrollingStopsAtBothEndsAndForgetsTheRest) {
  Make(480, -120);
  bar->ScrollBy(100000);
  EXPECT_EQ(ContentAt().y, 0);
  WaitForAnyTimer();
  bar->ScrollBy(-24);
  EXPECT_EQ(ContentAt().y, -2);
  WaitForAnyTimer();
  bar->ScrollBy(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(ContentAt().y, -240);
  WaitForAnyTimer();
  bar->ScrollBy(24);
  EXPECT_EQ(ContentAt().y, -238);
}

TEST_F(HXScrollBarTest, ShortContentStaysAtTheTop) {
  Make(100, 0);
  bar->ScrollBy(-1200);
  EXPECT_EQ(ContentAt().y, 0);
  WaitForAnyTimer();
  bar->ScrollBy(1200);
  EXPECT_EQ(ContentAt().y, 0);
}

TEST_F(HXScrollBarTest, ScrollingRedrawsTheThumb) {
  Make(480);
  Draw(*bar);
  bar->ScrollBy(-12000);
  EXPECT_FALSE(NeedsDisplay(*bar));
  WaitForContentAt(-240);
  EXPECT_EQ(ThumbRows(*Draw(*bar)).y, 120);
}

TEST_F(HXScrollBarTest, MayBeDeletedDuringTheAnimation) {
  Make(1000, -500);
  bar->ScrollBy(12000);
  const std::int32_t y = ContentAt().y;
  delete bar;
  WaitForAnyTimer();
  EXPECT_EQ(ContentAt().y, y);
}

// SetThumbPosition

TEST_F(HXScrollBarTest, ThumbPositionMovesTheContentInProportion) {
  Make(480, -1, 7);
  Draw(*bar);
  bar->SetThumbPosition(60, false);
  EXPECT_EQ(ContentAt(), (HXPoint{0, -120}));
  bar->SetThumbPosition(-50, false);
  EXPECT_EQ(ContentAt(), (HXPoint{0, 0}));
  bar->SetThumbPosition(1000, false);
  EXPECT_EQ(ContentAt(), (HXPoint{0, -240}));
}

TEST_F(HXScrollBarTest, ThumbPositionCountsFromTheArrowZone) {
  Make(480);
  bar->SetArrowSize(17);
  Draw(*bar);
  bar->SetThumbPosition(17, false);
  EXPECT_EQ(ContentAt().y, 0);
  bar->SetThumbPosition(17 + 103, false);
  EXPECT_EQ(ContentAt().y, -240);
}

TEST_F(HXScrollBarTest, ThumbPositionReachesTheEndOfAHugeContentExactly) {
  Make(200'000'000);
  Draw(*bar);
  bar->SetThumbPosition(220, false);
  EXPECT_EQ(ContentAt().y, kHeight - 200'000'000);
}

TEST_F(HXScrollBarTest, ThumbPositionWithoutAWayStaysAtTheTop) {
  Make(480, -100);
  // Not drawn yet: there is no thumb.
  bar->SetThumbPosition(60, false);
  EXPECT_EQ(ContentAt().y, 0);
  content->SetSize({83, 100});
  Draw(*bar);
  bar->SetThumbPosition(60, false);
  EXPECT_EQ(ContentAt().y, 0);
  // A bar no longer than the least thumb has no way either.
  bar->SetSize({kWidth, 10});
  Draw(*bar);
  bar->SetThumbPosition(60, false);
  EXPECT_EQ(ContentAt().y, 0);
}

TEST_F(HXScrollBarTest, LineInViewIsLeftAlone) {
  Make(1000, 0, 7);
  bar->SetThumbPosition(190, true);
  EXPECT_EQ(ContentAt(), (HXPoint{7, 0}));
}

TEST_F(HXScrollBarTest, LineBelowTheViewComesToItsBottom) {
  Make(1000, 0, 7);
  bar->SetThumbPosition(200, true);
  EXPECT_EQ(ContentAt(), (HXPoint{7, -10}));
  bar->SetThumbPosition(700, true);
  EXPECT_EQ(ContentAt(), (HXPoint{7, -510}));
}

TEST_F(HXScrollBarTest, LineAboveTheViewComesToItsTop) {
  Make(1000, -500);
  bar->SetThumbPosition(300, true);
  EXPECT_EQ(ContentAt().y, -300);
  bar->SetThumbPosition(-20, true);
  EXPECT_EQ(ContentAt().y, 0);
}

TEST_F(HXScrollBarTest, LineAtTheTopOfAScrolledViewStays) {
  Make(1000, -500);
  bar->SetThumbPosition(500, true);
  EXPECT_EQ(ContentAt().y, -500);
}

TEST_F(HXScrollBarTest, LineInAScrolledViewMovesAllTheSame) {
  // What counts as in view shrinks as the content is scrolled: a deliberate oddity.
  Make(1000, -100);
  bar->SetThumbPosition(150, true);
  EXPECT_EQ(ContentAt().y, 0);
}

TEST_F(HXScrollBarTest, LineBeyondTheContentIsLimitedToItsHeight) {
  Make(1000);
  bar->SetThumbPosition(50000, true);
  EXPECT_EQ(ContentAt().y, -1000);
  EXPECT_TRUE(NeedsDisplay(*bar));
}

// Dragging

TEST_F(HXScrollBarTest, ThumbIsDraggedByWhereItWasGrabbed) {
  Make(480);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 10});
  EXPECT_TRUE(bar->HasMouseCapture());
  EXPECT_EQ(ContentAt().y, 0);
  SendMouse(NSLeftMouseDragged, *bar, {8, 40});
  EXPECT_EQ(ContentAt().y, -60);
  // Far outside of the bar.
  SendMouse(NSLeftMouseDragged, *bar, {200, 290});
  EXPECT_EQ(ContentAt().y, -240);
  SendMouse(NSLeftMouseDragged, *bar, {8, 25});
  EXPECT_EQ(ContentAt().y, -30);
  SendMouse(NSLeftMouseUp, *bar, {8, 25});
  EXPECT_FALSE(bar->HasMouseCapture());
  SendMouse(NSMouseMoved, *bar, {8, 60});
  EXPECT_EQ(ContentAt().y, -30);
}

TEST_F(HXScrollBarTest, PressOnTheTrackCentresTheThumbUnderThePointer) {
  for (const int clickCount : {1, 2}) {
    Make(5000);
    Draw(*bar);
    SendMouse(NSLeftMouseDown, *bar, {8, 120}, clickCount);
    EXPECT_TRUE(bar->HasMouseCapture());
    // The thumb's top at 110 of 220, so half of the 4760 hidden pixels.
    EXPECT_EQ(ContentAt().y, -2380);
    EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 110, 1, 20}));
    // Both ways are cut to whole pixels, so the thumb may come to lie one higher.
    SendMouse(NSLeftMouseDragged, *bar, {8, 130});
    EXPECT_EQ(ContentAt().y, -2596);
    EXPECT_EQ(ThumbRows(*Draw(*bar)), (HXRect{2, 119, 1, 20}));
    SendMouse(NSLeftMouseUp, *bar, {8, 130});
    delete bar;
  }
}

TEST_F(HXScrollBarTest, PressBeforeTheFirstDrawingDoesNothing) {
  auto* hidden = new HXPanel(window.get(), {0, 0}, {100, kHeight});
  hidden->SetVisible(false);
  bar = new HXScrollBar(hidden, area, {83, 0}, false);
  bar->OnMouse(kLeftDown);
  EXPECT_FALSE(bar->HasMouseCapture());
}

TEST_F(HXScrollBarTest, OtherButtonsDoNotDrag) {
  Make(480);
  Draw(*bar);
  bar->OnMouse(kRightDown);
  bar->OnMouse(kOtherDown);
  EXPECT_FALSE(bar->HasMouseCapture());
}

TEST_F(HXScrollBarTest, MayBeDeletedWhileDragging) {
  Make(480);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 10});
  delete bar;
  Click(*content, {5, 5});
  EXPECT_EQ(ContentAt().y, 0);
}

// Hover

TEST_F(HXScrollBarTest, HoverRedrawsOnlyWhenItChanges) {
  Make(480);
  Draw(*bar);
  SendMouse(NSMouseMoved, *bar, {8, 200});
  EXPECT_FALSE(NeedsDisplay(*bar));
  SendMouse(NSMouseMoved, *bar, {8, 119});
  EXPECT_TRUE(NeedsDisplay(*bar));
  Draw(*bar);
  SendMouse(NSMouseMoved, *bar, {8, 0});
  EXPECT_FALSE(NeedsDisplay(*bar));
  SendMouse(NSMouseMoved, *bar, {8, 120});
  EXPECT_TRUE(NeedsDisplay(*bar));
  EXPECT_EQ(Draw(*bar)->At(8, 2), kPart);
}

TEST_F(HXScrollBarTest, LeavingClearsTheHover) {
  Make(480);
  Draw(*bar);
  SendMouse(NSMouseMoved, *bar, {8, 30});
  SendMouse(NSMouseExited, *bar, {8, 30});
  EXPECT_EQ(Draw(*bar)->At(8, 2), kPart);
}

TEST_F(HXScrollBarTest, ThumbStaysHoveredWhileDragged) {
  Make(480);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 10});
  SendMouse(NSLeftMouseDragged, *bar, {-60, 290});
  EXPECT_EQ(Draw(*bar)->At(8, 125), kHovered);
  SendMouse(NSLeftMouseUp, *bar, {-60, 290});
}

// Arrow zones

TEST_F(HXScrollBarTest, ArrowZonesShortenTheTrackAndShowTriangles) {
  Make(480);
  bar->SetArrowSize(17);
  const auto pixels = Draw(*bar);
  EXPECT_EQ(CountOther(*pixels, {1, 0, 4, 16}, kPart), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 16, 16, 1}, kTrack), 0);
  // The thumb: 206 * 240 / 480.
  EXPECT_EQ(pixels->At(2, 17), kPart);
  EXPECT_EQ(pixels->At(2, 17 + 102), kPart);
  EXPECT_EQ(CountOther(*pixels, {1, 120, 16, 104}, kTrack), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 224, 4, 16}, kPart), 0);
  EXPECT_EQ(pixels->At(16, 224), kTrack);
  for (int row = 0; row < 4; ++row) {
    const HXRect up{5 + row, 9 - row, 8 - 2 * row, 1};
    const HXRect down{5 + row, 230 + row, 8 - 2 * row, 1};
    EXPECT_EQ(CountOther(*pixels, up, kTriangle), 0) << row;
    EXPECT_EQ(CountOther(*pixels, down, kTriangle), 0) << row;
  }
  const auto isTriangle = [](HXColor color) { return color == kTriangle; };
  EXPECT_EQ(pixels->Count({0, 0, kWidth, 17}, isTriangle), 20);
  EXPECT_EQ(pixels->Count({0, 223, kWidth, 17}, isTriangle), 20);
}

TEST_F(HXScrollBarTest, TrianglesNeedAZoneOfFive) {
  Make(480);
  const auto isTriangle = [](HXColor color) { return color == kTriangle; };
  bar->SetArrowSize(4);
  EXPECT_EQ(Draw(*bar)->Count({0, 0, kWidth, kHeight}, isTriangle), 0);
  bar->SetArrowSize(5);
  EXPECT_GT(Draw(*bar)->Count({0, 0, kWidth, kHeight}, isTriangle), 0);
}

TEST_F(HXScrollBarTest, HoveredArrowZoneIsLighter) {
  Make(480);
  bar->SetArrowSize(17);
  Draw(*bar);
  SendMouse(NSMouseMoved, *bar, {8, 16});
  auto pixels = Draw(*bar);
  EXPECT_EQ(pixels->At(2, 2), kHovered);
  EXPECT_EQ(pixels->At(2, 237), kPart);
  SendMouse(NSMouseMoved, *bar, {8, 224});
  pixels = Draw(*bar);
  EXPECT_EQ(pixels->At(2, 2), kPart);
  EXPECT_EQ(pixels->At(2, 237), kHovered);
  SendMouse(NSMouseMoved, *bar, {8, 223});
  EXPECT_EQ(Draw(*bar)->At(2, 237), kPart);
}

TEST_F(HXScrollBarTest, HeldArrowScrollsAndRepeats) {
  Make(2000, -1000);
  bar->SetArrowSize(17);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 5});
  EXPECT_EQ(ContentAt().y, -992);
  EXPECT_FALSE(bar->HasMouseCapture());
  RunTimersUntil([&] { return ContentAt().y >= -960; });
  SendMouse(NSLeftMouseUp, *bar, {8, 5});
  WaitForAnyTimer();
  const std::int32_t y = ContentAt().y;
  WaitForAnyTimer();
  EXPECT_EQ(ContentAt().y, y);
}

TEST_F(HXScrollBarTest, HeldBottomArrowScrollsDownUntilThePointerLeaves) {
  Make(2000, -1000);
  bar->SetArrowSize(17);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 235});
  EXPECT_EQ(ContentAt().y, -1008);
  RunTimersUntil([&] { return ContentAt().y <= -1040; });
  SendMouse(NSMouseExited, *bar, {8, 235});
  WaitForAnyTimer();
  const std::int32_t y = ContentAt().y;
  WaitForAnyTimer();
  EXPECT_EQ(ContentAt().y, y);
}

}  // namespace
