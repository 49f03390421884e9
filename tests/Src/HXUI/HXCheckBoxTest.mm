#include "Src/HXUI/HXCheckBox.h"

#include "resources/Pictures.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr HXSize kBox{14, 14};
constexpr HXColor kBackground{45, 45, 45, 255};
constexpr HXRect kLabelStrip{14, 0, 186, 14};

class HXCheckBoxTest : public ToolkitFixture {
 protected:
  HXCheckBox* Make(const char* label) {
    auto* box = new HXCheckBox(window.get(), {20, 20}, &value, label);
    box->SetChangeHandler(&ChangeRecorder::OnChange, &owner, 42);
    return box;
  }

  std::uint8_t value = 0;
  ChangeRecorder owner;
};

TEST_F(HXCheckBoxTest, SizeDependsOnTheLabelOnly) {
  EXPECT_EQ(Make("CS3")->GetSize(), (HXSize{200, 14}));
  EXPECT_EQ(Make(nullptr)->GetSize(), kBox);
  EXPECT_EQ(Make("")->GetSize(), kBox);
  EXPECT_EQ(Make("CS3")->GetPosition(), (HXPoint{20, 20}));
  EXPECT_EQ(Make("CS3")->GetColor(), kBackground);
}

TEST_F(HXCheckBoxTest, ShowsTheFrameOfItsValue) {
  HXCheckBox* box = Make(nullptr);
  EXPECT_EQ(CountUnlikePicture(*Draw(*box), kCheckBoxPng, 0, kBox, 0), 0);
  for (const int checked : {1, 2, 255}) {
    value = static_cast<std::uint8_t>(checked);
    EXPECT_EQ(CountUnlikePicture(*Draw(*box), kCheckBoxPng, 14, kBox, 0), 0) << checked;
  }
}

TEST_F(HXCheckBoxTest, HoverFramesTheBoxAndNotTheLabel) {
  HXCheckBox* box = Make("CS4");
  SendMouse(NSMouseEntered, *box, {100, 5});
  const auto pixels = Draw(*box);
  EXPECT_EQ(CountWhiteInRing(*pixels, kBox), RingLength(kBox));
  EXPECT_EQ(CountUnlikePicture(*pixels, kCheckBoxPng, 0, kBox, 1), 0);
  EXPECT_EQ(pixels->Count(kLabelStrip, [](HXColor color) { return color == kWhite; }), 0);
  SendMouse(NSMouseExited, *box, {100, 5});
  EXPECT_EQ(CountWhiteInRing(*Draw(*box), kBox), 0);
}

TEST_F(HXCheckBoxTest, LabelStandsRightOfTheBoxOnTheBackground) {
  HXCheckBox* box = Make("HHH");
  const auto pixels = Draw(*box);
  const HXRect ink = pixels->InkBounds(kLabelStrip, kBackground);
  EXPECT_GE(ink.x, 21);
  EXPECT_LE(ink.x, 23);
  EXPECT_GT(ink.height, 5);
  EXPECT_TRUE(IsNear(Brightest(*pixels, kLabelStrip), {200, 200, 200, 255}, 20));
}

TEST_F(HXCheckBoxTest, LabelColourIsTheSameWhenDisabledOrUnbound) {
  HXCheckBox* box = Make("HHH");
  const HXColor usual = Brightest(*Draw(*box), kLabelStrip);
  box->SetEnabled(false);
  EXPECT_EQ(Brightest(*Draw(*box), kLabelStrip), usual);
  box->SetValue(nullptr);
  EXPECT_EQ(Brightest(*Draw(*box), kLabelStrip), usual);
}

TEST_F(HXCheckBoxTest, LabelStripIs200WideFromTheBoxAndHasTheWidgetsColour) {
  HXCheckBox* box = Make(" ");
  box->SetColor({17, 18, 20, 255});
  box->SetSize({240, 14});
  const auto pixels = Draw(*box);
  EXPECT_EQ(CountOther(*pixels, {14, 0, 200, 14}, {17, 18, 20, 255}), 0);
  // Beyond it the window shows.
  EXPECT_EQ(CountOther(*pixels, {214, 0, 26, 14}, {0, 0, 0, 255}), 0);
}

TEST_F(HXCheckBoxTest, LongLabelIsCutAtTheWidgetsEdge) {
  HXCheckBox* box = Make("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
  const auto pixels = Draw(*window);
  EXPECT_GT(pixels->Ink({200, 20, 20, 14}, kBackground), 20);
  EXPECT_EQ(CountOther(*pixels, {220, 0, 180, 300}, {0, 0, 0, 255}), 0);
  EXPECT_EQ(box->GetSize(), (HXSize{200, 14}));
}

TEST_F(HXCheckBoxTest, ClickFlipsBetweenTheTwoNotifications) {
  HXCheckBox* box = Make("CC 2019");
  std::vector<int> seen;
  owner.onChange = [&](int) { seen.push_back(value); };
  Click(*box, {5, 5});
  EXPECT_EQ(value, 1);
  EXPECT_EQ(seen, (std::vector<int>{0, 1}));
  Click(*box, {150, 7});
  EXPECT_EQ(value, 0);
  EXPECT_EQ(seen, (std::vector<int>{0, 1, 1, 0}));
  EXPECT_EQ(owner.changes, (std::vector<Change>{{42, box, kChangeBegins},
                                                {42, box, kChangeDone},
                                                {42, box, kChangeBegins},
                                                {42, box, kChangeDone}}));
}

TEST_F(HXCheckBoxTest, FlipsTheLowestBitOnly) {
  HXCheckBox* box = Make(nullptr);
  value = 2;
  Click(*box, {5, 5});
  EXPECT_EQ(value, 3);
  Click(*box, {5, 5});
  EXPECT_EQ(value, 2);
}

TEST_F(HXCheckBoxTest, WorksWithoutAnOwner) {
  HXCheckBox* box = Make(nullptr);
  box->SetChangeHandler(nullptr, nullptr, 0);
  Draw(*box);
  Click(*box, {5, 5});
  EXPECT_EQ(value, 1);
  EXPECT_TRUE(NeedsDisplay(*box));
}

TEST_F(HXCheckBoxTest, DoubleClickFlipsOnce) {
  HXCheckBox* box = Make(nullptr);
  SendMouse(NSLeftMouseDown, *box, {5, 5}, 1);
  SendMouse(NSLeftMouseUp, *box, {5, 5}, 1);
  SendMouse(NSLeftMouseDown, *box, {5, 5}, 2);
  SendMouse(NSLeftMouseUp, *box, {5, 5}, 2);
  EXPECT_EQ(value, 1);
}

TEST_F(HXCheckBoxTest, ReleaseAfterLeavingDoesNotFlip) {
  HXCheckBox* box = Make(nullptr);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  SendMouse(NSMouseExited, *box, {5, 5});
  SendMouse(NSLeftMouseUp, *box, {5, 5});
  EXPECT_EQ(value, 0);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXCheckBoxTest, OtherEventsDoNothing) {
  HXCheckBox* box = Make(nullptr);
  Draw(*box);
  for (const MouseKind kind :
       {kMouseMove, kLeftDown, kLeftDouble, kRightDown, kRightUp, kOtherUp}) {
    box->OnMouse(kind);
  }
  EXPECT_FALSE(NeedsDisplay(*box));
  EXPECT_EQ(value, 0);
}

TEST_F(HXCheckBoxTest, UnboundBoxIsInert) {
  HXCheckBox* box = Make(nullptr);
  value = 1;
  box->SetValue(nullptr);
  Draw(*box);
  box->OnMouse(kMouseEntered);
  EXPECT_FALSE(NeedsDisplay(*box));
  Click(*box, {5, 5});
  const auto pixels = Draw(*box);
  EXPECT_EQ(CountUnlikePicture(*pixels, kCheckBoxPng, 0, kBox, 0), 0);
  EXPECT_EQ(CountWhiteInRing(*pixels, kBox), 0);
  EXPECT_TRUE(owner.changes.empty());
  EXPECT_EQ(value, 1);
}

TEST_F(HXCheckBoxTest, OwnerMayDeleteTheBoxBeforeTheChange) {
  HXCheckBox* box = Make(nullptr);
  owner.onChange = [&](int) { delete box; };
  Click(*box, {5, 5});
  EXPECT_EQ(owner.changes.size(), 1U);
  EXPECT_EQ(value, 0);
}

TEST_F(HXCheckBoxTest, OwnerMayDeleteTheBoxAfterTheChange) {
  HXCheckBox* box = Make(nullptr);
  owner.onChange = [&](int notification) {
    if (notification == kChangeDone) delete box;
  };
  Click(*box, {5, 5});
  EXPECT_EQ(value, 1);
  EXPECT_TRUE(window->GetChildren().empty());
}

TEST_F(HXCheckBoxTest, OwnerMayUnbindTheBoxBeforeTheChange) {
  HXCheckBox* box = Make(nullptr);
  owner.onChange = [&](int) { box->SetValue(nullptr); };
  Click(*box, {5, 5});
  EXPECT_EQ(value, 0);
  EXPECT_EQ(owner.changes.size(), 1U);
}

TEST_F(HXCheckBoxTest, TheLabelIsInVerdanaOfElevenPoints) {
  const auto drawn = Draw(*Make("CC 2015.3"));
  PaintedPanel expected(window.get(), {200, 14}, [](HXCocoaDC& dc) {
    dc.SetFillColor(kBackground);
    dc.DrawRect({0, 0, 200, 14});
    dc.SetTextColor({200, 200, 200, 255});
    dc.SetFont("Verdana", 0, 11);
    dc.DrawText("CC 2015.3", {20, 0, 0, 0}, 0);
  });
  EXPECT_EQ(CountUnlike(*drawn, *Draw(expected), kLabelStrip), 0);
}

}  // namespace
