#include "Src/HXUI/HXScrollBar.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "tests/Src/HXUI/ScrollBarFixture.h"

namespace {

class HXScrollBarTest : public ScrollBarFixture {};

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

TEST_F(HXScrollBarTest, EachStepDrawsTheThumbAtOnce) {
  Make(480);
  Draw(*bar);
  bar->ScrollBy(-12000);
  EXPECT_FALSE(NeedsDisplay(*bar));
  EXPECT_EQ(ThumbRows(*ReadBack(*bar)), (HXRect{2, 50, 1, 120}));
  bar->OnTimer(kStepTimer);
  EXPECT_FALSE(NeedsDisplay(*bar));
  EXPECT_EQ(ThumbRows(*ReadBack(*bar)), (HXRect{2, 95, 1, 120}));
  WaitForContentAt(-240);
  EXPECT_EQ(ThumbRows(*ReadBack(*bar)), (HXRect{2, 120, 1, 120}));
}

TEST_F(HXScrollBarTest, NextStepComesAfterFiveAndBeforeTwentyMilliseconds) {
  Make(2000, -1000);
  // Timers that are late fire in the order in which they were started, so it
  // does not matter how late these are.
  std::size_t before = 0;
  std::size_t after = 0;
  Later([&] { before = content->steps.size(); }, 0.005);
  bar->ScrollBy(-1200);
  Later([&] { after = content->steps.size(); }, 0.02);
  RunTimersUntil([&] { return after != 0; });
  EXPECT_EQ(before, 1U);
  EXPECT_GT(after, 1U);
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

TEST_F(HXScrollBarTest, ThumbPositionDrawsContentAndThumbAtOnce) {
  Make(480);
  Draw(*area);
  content->draws = 0;
  bar->SetThumbPosition(60, false);
  EXPECT_EQ(content->draws, 1);
  EXPECT_FALSE(NeedsDisplay(*content));
  EXPECT_FALSE(NeedsDisplay(*bar));
  EXPECT_EQ(ThumbRows(*ReadBack(*bar)), (HXRect{2, 60, 1, 120}));
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
  Draw(*bar);
  bar->SetThumbPosition(50000, true);
  EXPECT_EQ(ContentAt().y, -1000);
  EXPECT_TRUE(NeedsDisplay(*bar));
}

}  // namespace
