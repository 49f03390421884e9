#include "Src/HXUI/HXTextPanel.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr HXColor kBackground{30, 30, 30, 255};

class HXTextPanelTest : public ToolkitFixture {
 protected:
  HXTextPanelTest() : panel(new HXTextPanel(window.get(), {10, 10}, {200, 50})) {
    panel->SetColor(kBackground);
  }

  /// The height of the text in a box as wide as the panel less `margin`.
  std::int32_t Measure(const std::string& text, std::int32_t margin) {
    HXCocoaDC dc(nullptr);
    dc.SetFont("Tahoma", 0, 11);
    return dc.MeasureText(text, {200 - margin, 1000}, 0).height;
  }
  HXRect All() const { return {0, 0, 200, panel->GetSize().height}; }

  HXTextPanel* panel;
};

TEST_F(HXTextPanelTest, StartsEmptyAndKeepsItsSize) {
  EXPECT_EQ(panel->GetText(), "");
  EXPECT_EQ(panel->GetSize(), (HXSize{200, 50}));
  EXPECT_EQ(CountOther(*Draw(*panel), {0, 0, 200, 50}, kBackground), 0);
}

TEST_F(HXTextPanelTest, HeightBecomesTheTextsAndWidthStays) {
  panel->SetText("One line");
  const std::int32_t oneLine = panel->GetSize().height;
  EXPECT_EQ(panel->GetSize(), (HXSize{200, Measure("One line", 20)}));
  panel->SetText("One\nTwo\nThree");
  EXPECT_EQ(panel->GetSize().width, 200);
  EXPECT_NEAR(panel->GetSize().height, 3 * oneLine, 3);
  EXPECT_EQ(panel->GetPosition(), (HXPoint{10, 10}));
  EXPECT_EQ(panel->GetText(), "One\nTwo\nThree");
}

TEST_F(HXTextPanelTest, EmptyTextGivesTheMeasuredHeight) {
  panel->SetText("Something");
  panel->SetText("");
  EXPECT_EQ(panel->GetSize(), (HXSize{200, Measure("", 20)}));
}

TEST_F(HXTextPanelTest, MeasuresTwentyPixelsNarrowerThanItDraws) {
  // Grows a word at a time until only the narrower box wraps it.
  std::string text = "word";
  while (Measure(text, 20) == Measure(text, 0)) {
    text += " wo";
    ASSERT_LT(text.size(), 200U);
  }
  panel->SetText(text);
  EXPECT_EQ(panel->GetSize().height, Measure(text, 20));
  EXPECT_GT(panel->GetSize().height, Measure(text, 0));
}

TEST_F(HXTextPanelTest, WordMayBeMeasuredInTwoLinesAndStandInOne) {
  panel->SetText("w");
  const std::int32_t oneLine = panel->GetSize().height;
  // Grows a letter at a time until it is wider than the narrower box.
  std::string word = "w";
  while (Measure(word, 20) == oneLine) {
    word += "w";
    ASSERT_LT(word.size(), 200U);
  }
  panel->SetText(word);
  EXPECT_GE(panel->GetSize().height, 2 * oneLine - 2);
  const HXRect ink = Draw(*panel)->InkBounds(All(), kBackground);
  EXPECT_LT(ink.height, oneLine);
  EXPECT_GT(ink.width, 150);
}

TEST_F(HXTextPanelTest, WordWiderThanThePanelGoesOnInTheNextLine) {
  panel->SetText("w");
  const std::int32_t oneLine = panel->GetSize().height;
  panel->SetText(std::string(60, 'w'));
  EXPECT_GE(panel->GetSize().height, 3 * oneLine - 3);
  EXPECT_GT(Draw(*panel)->InkBounds(All(), kBackground).height, oneLine);
}

TEST_F(HXTextPanelTest, LongTextWrapsWithinThePanel) {
  panel->SetText("The plug-in will be installed into the folders of all the hosts that are "
                 "chosen on the page before this one.");
  const auto pixels = Draw(*panel);
  const HXRect ink = pixels->InkBounds(All(), kBackground);
  EXPECT_GT(ink.height, panel->GetSize().height / 2);
  EXPECT_GT(ink.width, 100);
  EXPECT_LE(ink.x, 4);
  EXPECT_TRUE(IsNear(Brightest(*pixels, All()), {200, 200, 200, 255}, 20));
}

TEST_F(HXTextPanelTest, DrawsItsTextFromTheCornerInTahomaOfElevenPoints) {
  const std::string text = "One line\nand words that go on for longer than the panel is wide";
  panel->SetText(text);
  const HXSize size = panel->GetSize();
  const auto drawn = Draw(*panel);
  panel->SetVisible(false);
  PaintedPanel expected(window.get(), size, [&](HXCocoaDC& dc) {
    dc.SetFillColor(kBackground);
    dc.DrawRect({0, 0, size.width, size.height});
    dc.SetTextColor({200, 200, 200, 255});
    dc.SetFont("Tahoma", 0, 11);
    dc.DrawText(text, {0, 0, size.width, size.height}, 0);
  });
  EXPECT_EQ(CountUnlike(*drawn, *Draw(expected)), 0);
}

TEST_F(HXTextPanelTest, SettingTheTextRedraws) {
  panel->SetText("One");
  Draw(*panel);
  panel->SetText("Two");
  EXPECT_TRUE(NeedsDisplay(*panel));
}

TEST_F(HXTextPanelTest, VeryNarrowPanelKeepsItsWidth) {
  auto* narrow = new HXTextPanel(window.get(), {0, 0}, {10, 50});
  narrow->SetText("Some words");
  EXPECT_EQ(narrow->GetSize().width, 10);
  EXPECT_GT(narrow->GetSize().height, 0);
}

}  // namespace
