#include "Src/HXUI/HXScrollBar.h"

#include <array>

#include "tests/Src/HXUI/ScrollBarFixture.h"

namespace {

class HXScrollBarMouseTest : public ScrollBarFixture {};

// Dragging

TEST_F(HXScrollBarMouseTest, ThumbIsDraggedByWhereItWasGrabbed) {
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

TEST_F(HXScrollBarMouseTest, PressOnTheTrackCentresTheThumbUnderThePointer) {
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

TEST_F(HXScrollBarMouseTest, PressBeforeTheFirstDrawingDoesNothing) {
  auto* hidden = new HXPanel(window.get(), {0, 0}, {100, kHeight});
  hidden->SetVisible(false);
  bar = new HXScrollBar(hidden, area, {83, 0}, false);
  bar->OnMouse(kLeftDown);
  EXPECT_FALSE(bar->HasMouseCapture());
}

TEST_F(HXScrollBarMouseTest, OtherButtonsDoNotDrag) {
  Make(480);
  Draw(*bar);
  bar->OnMouse(kRightDown);
  bar->OnMouse(kOtherDown);
  EXPECT_FALSE(bar->HasMouseCapture());
}

TEST_F(HXScrollBarMouseTest, HidingTheBarEndsTheDrag) {
  Make(480);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 10});
  bar->SetVisible(false);
  bar->SetVisible(true);
  SendMouse(NSMouseMoved, *bar, {8, 60});
  EXPECT_EQ(ContentAt().y, 0);
}

TEST_F(HXScrollBarMouseTest, MayBeDeletedWhileDragging) {
  Make(480);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 10});
  delete bar;
  Click(*content, {5, 5});
  EXPECT_EQ(ContentAt().y, 0);
}

// Hover

TEST_F(HXScrollBarMouseTest, HoverRedrawsOnlyWhenItChanges) {
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

TEST_F(HXScrollBarMouseTest, LeavingClearsTheHover) {
  Make(480);
  Draw(*bar);
  SendMouse(NSMouseMoved, *bar, {8, 30});
  SendMouse(NSMouseExited, *bar, {8, 30});
  EXPECT_EQ(Draw(*bar)->At(8, 2), kPart);
}

TEST_F(HXScrollBarMouseTest, ThumbStaysHoveredWhileDragged) {
  Make(480);
  Draw(*bar);
  SendMouse(NSLeftMouseDown, *bar, {8, 10});
  SendMouse(NSLeftMouseDragged, *bar, {-60, 290});
  EXPECT_EQ(Draw(*bar)->At(8, 125), kHovered);
  SendMouse(NSLeftMouseUp, *bar, {-60, 290});
}

// Arrow zones

TEST_F(HXScrollBarMouseTest, ArrowZonesShortenTheTrackAndShowTriangles) {
  Make(480);
  bar->SetArrowSize(17);
  const auto pixels = Draw(*bar);
  EXPECT_EQ(CountOther(*pixels, {1, 0, 4, 16}, kPart), 0);
  EXPECT_EQ(CountOther(*pixels, {1, 0, kWidth - 2, 2}, kPart), 0);
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

TEST_F(HXScrollBarMouseTest, TrianglesNeedAZoneOfFive) {
  Make(480);
  const auto isTriangle = [](HXColor color) { return color == kTriangle; };
  bar->SetArrowSize(4);
  EXPECT_EQ(Draw(*bar)->Count({0, 0, kWidth, kHeight}, isTriangle), 0);
  bar->SetArrowSize(5);
  EXPECT_GT(Draw(*bar)->Count({0, 0, kWidth, kHeight}, isTriangle), 0);
}

TEST_F(HXScrollBarMouseTest, HoveredArrowZoneIsLighter) {
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

TEST_F(HXScrollBarMouseTest, HeldArrowScrollsAndRepeats) {
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

TEST_F(HXScrollBarMouseTest, HeldBottomArrowScrollsDownUntilThePointerLeaves) {
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

TEST_F(HXScrollBarMouseTest, EachRepeatScrollsOneNotch) {
  for (const auto& [y, pressed, repeated] : {std::array{5, -992, -982}, {235, -1008, -1018}}) {
    Make(2000, -1000);
    bar->SetArrowSize(17);
    Draw(*bar);
    SendMouse(NSLeftMouseDown, *bar, {8, y});
    EXPECT_EQ(ContentAt().y, pressed);
    bar->OnTimer(kRepeatTimer);
    // The animation of the press has not ended yet, so this waits for its tick.
    EXPECT_EQ(ContentAt().y, pressed);
    bar->OnTimer(kStepTimer);
    EXPECT_EQ(ContentAt().y, repeated);
    SendMouse(NSLeftMouseUp, *bar, {8, y});
    delete bar;
  }
}

TEST_F(HXScrollBarMouseTest, RepeatBeforeAnyPressDoesNothing) {
  Make(2000, -1000);
  bar->SetArrowSize(17);
  Draw(*bar);
  bar->OnTimer(kRepeatTimer);
  bar->OnTimer(kStepTimer);
  EXPECT_EQ(ContentAt().y, -1000);
}

TEST_F(HXScrollBarMouseTest, RepeatComesAfterTwentyAndBeforeSixtyMilliseconds) {
  Make(2000, -1000);
  bar->SetArrowSize(17);
  Draw(*bar);
  // Timers that are late fire in the order in which they were started, so it
  // does not matter how late these are.
  std::int32_t before = 0;
  std::int32_t after = 0;
  Later([&] { before = ContentAt().y; }, 0.02);
  SendMouse(NSLeftMouseDown, *bar, {8, 5});
  Later([&] { after = ContentAt().y; }, 0.06);
  RunTimersUntil([&] { return after != 0; });
  EXPECT_EQ(before, -992);
  EXPECT_GT(after, -992);
  SendMouse(NSLeftMouseUp, *bar, {8, 5});
}

}  // namespace
