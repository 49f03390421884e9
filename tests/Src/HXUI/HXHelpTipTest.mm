#include "Src/HXUI/HXHelpTip.h"

#include <algorithm>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr const char* kTitle = "Hosts";
constexpr const char* kText =
    "Each host that is ticked gets the plug-in; the others stay as they are, with or without it.";
constexpr HXColor kBackground{27, 28, 28, 255};
constexpr HXColor kOuterFrame{74, 79, 83, 255};

HXSize MeasureText(const std::string& text) {
  HXCocoaDC dc(nullptr);
  dc.SetFont("Verdana", 0, 11);
  return dc.MeasureText(text, {300, 500}, 0);
}

class HXHelpTipTest : public ToolkitFixture {
 protected:
  HXHelpTipTest() : tip(window.get()) {}

  HXHelpTip tip;
};

TEST_F(HXHelpTipTest, StartsHiddenAndBorderless) {
  NSWindow* native = [tip.GetNativeView() window];
  EXPECT_FALSE([native isVisible]);
  EXPECT_EQ(tip.GetSize(), (HXSize{330, 50}));
  EXPECT_EQ([native level], 101);
  EXPECT_TRUE(NSEqualSizes([native frame].size, NSMakeSize(330, 50)));
}

TEST_F(HXHelpTipTest, SizeDependsOnWhichTextsThereAre) {
  const HXSize title = MeasureText(kTitle);
  const HXSize text = MeasureText(kText);
  const HXSize none = MeasureText("");
  tip.Show({300, 400}, kTitle, kText);
  EXPECT_EQ(tip.GetSize(), (HXSize{std::max(text.width, title.width) + 30, text.height + 40}));
  tip.Show({300, 400}, kTitle, "");
  EXPECT_EQ(tip.GetSize(), (HXSize{title.width + 30, none.height + 35}));
  tip.Show({300, 400}, "", kText);
  EXPECT_EQ(tip.GetSize(), (HXSize{text.width + 10, text.height + 10}));
  tip.Show({300, 400}, "", "");
  EXPECT_EQ(tip.GetSize(), (HXSize{none.width + 30, none.height + 10}));
}

TEST_F(HXHelpTipTest, LongTitleSetsTheWidth) {
  const char* title = "A title that is longer than its text";
  tip.Show({300, 400}, title, "Text");
  EXPECT_EQ(tip.GetSize().width, MeasureText(title).width + 30);
}

TEST_F(HXHelpTipTest, StandsAboveThePoint) {
  tip.Show({300, 400}, kTitle, kText);
  const CGFloat screenHeight = [[[NSScreen screens] objectAtIndex:0] frame].size.height;
  const CGFloat top = 400 - tip.GetSize().height;
  // The window manager takes some time to leave the window where it was put.
  PumpUntil(
      [&] {
        const NSRect frame = [[tip.GetNativeView() window] frame];
        return NSMinX(frame) == 300 && screenHeight - NSMaxY(frame) == top;
      },
      "the tip to stand above the point");
}

TEST_F(HXHelpTipTest, ShowsWithoutTakingTheKeyboard) {
  tip.Show({300, 400}, kTitle, kText);
  Pump();
  EXPECT_TRUE([[tip.GetNativeView() window] isVisible]);
  EXPECT_TRUE(tip.IsVisible());
  EXPECT_FALSE(tip.IsKeyWindow());
  tip.SetVisible(false);
  EXPECT_FALSE([[tip.GetNativeView() window] isVisible]);
}

TEST_F(HXHelpTipTest, DrawsTwoFramesAroundTheGround) {
  tip.Show({300, 400}, "", "");
  const auto pixels = Draw(tip);
  const HXSize size = tip.GetSize();
  const auto countIn = [&](HXRect rect, HXColor color) { return CountOther(*pixels, rect, color); };
  EXPECT_EQ(countIn({0, 0, size.width, 1}, kOuterFrame), 0);
  EXPECT_EQ(countIn({0, size.height - 1, size.width, 1}, kOuterFrame), 0);
  EXPECT_EQ(countIn({0, 0, 1, size.height}, kOuterFrame), 0);
  EXPECT_EQ(countIn({size.width - 1, 0, 1, size.height}, kOuterFrame), 0);
  const HXColor black{0, 0, 0, 255};
  EXPECT_EQ(countIn({1, 1, size.width - 2, 1}, black), 0);
  EXPECT_EQ(countIn({1, size.height - 2, size.width - 2, 1}, black), 0);
  EXPECT_EQ(countIn({1, 1, 1, size.height - 2}, black), 0);
  EXPECT_EQ(countIn({size.width - 2, 1, 1, size.height - 2}, black), 0);
  EXPECT_EQ(countIn({2, 2, size.width - 4, size.height - 4}, kBackground), 0);
}

TEST_F(HXHelpTipTest, DrawsAWhiteTitleAboveTheGreyText) {
  tip.Show({300, 400}, kTitle, kText);
  const auto pixels = Draw(tip);
  const HXSize size = tip.GetSize();
  const HXRect titleArea{2, 2, size.width - 4, 24};
  const HXRect textArea{2, 27, size.width - 4, size.height - 29};
  EXPECT_TRUE(IsNear(Brightest(*pixels, titleArea), {255, 255, 255, 255}, 20));
  EXPECT_TRUE(IsNear(Brightest(*pixels, textArea), {167, 167, 167, 255}, 20));
  EXPECT_NEAR(pixels->InkBounds(titleArea, kBackground).x, 16, 2);
  EXPECT_NEAR(pixels->InkBounds(textArea, kBackground).x, 16, 2);
}

TEST_F(HXHelpTipTest, WithoutTitleTheTextStartsAtTheTop) {
  tip.Show({300, 400}, "", kText);
  const auto pixels = Draw(tip);
  const HXSize size = tip.GetSize();
  const HXRect inside{2, 2, size.width - 4, size.height - 4};
  const HXRect ink = pixels->InkBounds(inside, kBackground);
  EXPECT_NEAR(ink.x, 6, 2);
  EXPECT_LE(ink.y, 9);
  EXPECT_TRUE(IsNear(Brightest(*pixels, inside), {167, 167, 167, 255}, 20));
}

TEST_F(HXHelpTipTest, ItsTextsAreInElevenPoints) {
  for (const std::string title : {kTitle, ""}) {
    tip.Show({300, 400}, title, kText);
    const HXSize size = tip.GetSize();
    const auto drawn = Draw(tip);
    window->SetSize({500, 300});
    PaintedPanel expected(window.get(), size, [&](HXCocoaDC& dc) {
      dc.SetFillColor(kBackground);
      dc.DrawRect({0, 0, size.width, size.height});
      dc.SetFont("Tahoma", HXCocoaDC::kBold, 11);
      dc.SetTextColor({255, 255, 255, 255});
      if (!title.empty()) dc.DrawText(title, {15, 10, 0, 0}, 0);
      dc.SetFont("Verdana", 0, 11);
      dc.SetTextColor({167, 167, 167, 255});
      const HXPoint start = title.empty() ? HXPoint{5, 5} : HXPoint{15, 28};
      dc.DrawText(kText, {start.x, start.y, 300, size.height}, 0);
    });
    // Within the frames.
    EXPECT_EQ(CountUnlike(*drawn, *Draw(expected), {2, 2, size.width - 4, size.height - 4}), 0)
        << title;
  }
}

}  // namespace
