#include "Src/HXUI/HXSystemButton.h"

#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr HXSize kSize{85, 30};
constexpr HXRect kAll{0, 0, 85, 30};
constexpr HXColor kFace{44, 45, 49, 255};
constexpr HXColor kHoveredFace{61, 63, 67, 255};
constexpr HXColor kDisabledFace{30, 30, 31, 255};

class HXSystemButtonTest : public ToolkitFixture {
 protected:
  HXSystemButton* Make(const char* label) {
    return new HXSystemButton(window.get(), {20, 20}, kSize, label);
  }
};

TEST_F(HXSystemButtonTest, EmptyLabelLeavesAFlatFaceWithoutBorder) {
  const auto pixels = Draw(*Make(""));
  EXPECT_EQ(pixels->GetSize(), kSize);
  EXPECT_EQ(CountOther(*pixels, kAll, kFace), 0);
}

TEST_F(HXSystemButtonTest, HoverFollowsThePointer) {
  HXSystemButton* button = Make("");
  SendMouse(NSMouseEntered, *button, {5, 5});
  EXPECT_EQ(CountOther(*Draw(*button), kAll, kHoveredFace), 0);
  SendMouse(NSMouseExited, *button, {5, 5});
  EXPECT_EQ(CountOther(*Draw(*button), kAll, kFace), 0);
}

TEST_F(HXSystemButtonTest, PressedLooksLikeHovered) {
  HXSystemButton* button = Make("");
  SendMouse(NSMouseEntered, *button, {5, 5});
  SendMouse(NSLeftMouseDown, *button, {5, 5});
  EXPECT_TRUE(button->IsPressed());
  EXPECT_EQ(CountOther(*Draw(*button), kAll, kHoveredFace), 0);
}

TEST_F(HXSystemButtonTest, PressedWithoutHoverLooksPlain) {
  HXSystemButton* button = Make("");
  button->OnMouse(kLeftDown);
  EXPECT_EQ(CountOther(*Draw(*button), kAll, kFace), 0);
}

TEST_F(HXSystemButtonTest, DisabledIsDarkWithAGreyLabelEvenWhileHovered) {
  HXSystemButton* button = Make("< Back");
  button->SetLabelColor({255, 0, 0, 255});
  button->SetEnabled(false);
  button->OnMouse(kMouseEntered);
  const auto pixels = Draw(*button);
  EXPECT_EQ(pixels->At(0, 0), kDisabledFace);
  EXPECT_EQ(pixels->At(84, 29), kDisabledFace);
  EXPECT_TRUE(IsNear(Brightest(*pixels, kAll), {134, 134, 134, 255}, 12));
}

TEST_F(HXSystemButtonTest, EnabledLabelHasItsColour) {
  HXSystemButton* button = Make("Cancel");
  EXPECT_TRUE(IsNear(Brightest(*Draw(*button), kAll), {209, 211, 212, 255}, 16));
  button->SetLabelColor({255, 45, 49, 255});
  EXPECT_TRUE(IsNear(Brightest(*Draw(*button), kAll), {255, 45, 49, 255}, 16));
}

TEST_F(HXSystemButtonTest, LabelStandsInTheMiddle) {
  const auto pixels = Draw(*Make("HHHH"));
  const HXRect ink = pixels->InkBounds(kAll, kFace);
  ASSERT_GT(ink.width, 20);
  EXPECT_NEAR(ink.x + ink.width / 2.0, 43.5, 1.5);
  EXPECT_NEAR(ink.y + ink.height / 2.0, 14.5, 3);
}

TEST_F(HXSystemButtonTest, LabelFontCanBeChanged) {
  HXSystemButton* button = Make("H");
  const HXRect small = Draw(*button)->InkBounds(kAll, kFace);
  button->SetLabelFont(0, 20);
  const HXRect large = Draw(*button)->InkBounds(kAll, kFace);
  EXPECT_GT(large.height, small.height + 4);
}

TEST_F(HXSystemButtonTest, LabelStyleCanBeChanged) {
  HXSystemButton* button = Make("I ACCEPT");
  const auto bold = Draw(*button);
  button->SetLabelFont(0, 11);
  const auto regular = Draw(*button);
  EXPECT_LT(regular->InkBounds(kAll, kFace).width, bold->InkBounds(kAll, kFace).width);
  button->SetLabelFont(HXCocoaDC::kBold, 11);
  EXPECT_EQ(CountUnlike(*Draw(*button), *bold), 0);
}

TEST_F(HXSystemButtonTest, SetLabelReplacesTheLabelWithoutRedrawing) {
  HXSystemButton* button = Make("Next >");
  Draw(*button);
  button->SetLabel("");
  EXPECT_EQ(button->GetLabel(), "");
  EXPECT_FALSE(NeedsDisplay(*button));
  EXPECT_EQ(CountOther(*Draw(*button), kAll, kFace), 0);
}

TEST_F(HXSystemButtonTest, OnlyItsOwnEventsRedraw) {
  HXSystemButton* button = Make("OK");
  for (const MouseKind kind : {kLeftDown, kLeftUp, kLeftDouble, kMouseEntered, kMouseExited}) {
    Draw(*button);
    button->OnMouse(kind);
    EXPECT_TRUE(NeedsDisplay(*button)) << kind;
  }
  Draw(*button);
  for (const MouseKind kind :
       {kMouseMove, kRightDown, kRightUp, kRightDouble, kOtherDown, kOtherUp}) {
    button->OnMouse(kind);
    EXPECT_FALSE(NeedsDisplay(*button)) << kind;
  }
}

TEST_F(HXSystemButtonTest, PressIsSetByPressesAndClearedByReleaseOrLeaving) {
  HXSystemButton* button = Make("OK");
  EXPECT_FALSE(button->IsPressed());
  button->OnMouse(kLeftDouble);
  EXPECT_TRUE(button->IsPressed());
  button->OnMouse(kLeftUp);
  EXPECT_FALSE(button->IsPressed());
  button->OnMouse(kRightDown);
  EXPECT_FALSE(button->IsPressed());
  button->OnMouse(kLeftDown);
  button->OnMouse(kMouseExited);
  EXPECT_FALSE(button->IsPressed());
}

TEST_F(HXSystemButtonTest, ClickReachesTheOwnerWithTheCommandId) {
  HXSystemButton* button = Make("OK");
  RecordingOwner owner;
  button->SetHook(&owner, &RecordingOwner::OnEvent, 10);
  Click(*button, {5, 5});
  EXPECT_EQ(owner.events, (std::vector<std::uint32_t>{kLeftDown, kLeftUp}));
  EXPECT_EQ(owner.GetSenderId(), 10U);
  EXPECT_EQ(owner.GetSender(), button);
}

TEST_F(HXSystemButtonTest, DisabledButtonStillNotifies) {
  HXSystemButton* button = Make("OK");
  RecordingOwner owner;
  button->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  button->SetEnabled(false);
  Click(*button, {5, 5});
  EXPECT_EQ(owner.events, (std::vector<std::uint32_t>{kLeftDown, kLeftUp}));
}

TEST_F(HXSystemButtonTest, PressThatLeavesAndComesBackIsNoClick) {
  HXSystemButton* button = Make("OK");
  RecordingOwner owner;
  button->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  SendMouse(NSLeftMouseDown, *button, {5, 5});
  SendMouse(NSMouseExited, *button, {5, 5});
  SendMouse(NSMouseEntered, *button, {5, 5});
  SendMouse(NSLeftMouseUp, *button, {5, 5});
  EXPECT_EQ(owner.events, (std::vector<std::uint32_t>{kLeftDown, kMouseExited, kMouseEntered}));
}

TEST_F(HXSystemButtonTest, OwnerMayDeleteTheButtonOnItsClick) {
  HXSystemButton* button = Make("OK");
  RecordingOwner owner;
  button->SetHook(&owner, &RecordingOwner::OnEvent, 1);
  owner.action = [&] {
    if (owner.events.back() == kLeftUp) delete button;
  };
  Click(*button, {5, 5});
  EXPECT_TRUE(window->GetChildren().empty());
  Pump();
}

TEST_F(HXSystemButtonTest, TheLabelIsInBoldTahomaOfElevenPoints) {
  for (const bool enabled : {true, false}) {
    HXSystemButton* button = Make("I ACCEPT");
    button->SetEnabled(enabled);
    const auto drawn = Draw(*button);
    delete button;
    PaintedPanel expected(window.get(), kSize, [&](HXCocoaDC& dc) {
      dc.SetFillColor(enabled ? kFace : kDisabledFace);
      dc.DrawRect(kAll);
      dc.SetFont("Tahoma", HXCocoaDC::kBold, 11);
      dc.SetTextColor(enabled ? HXColor{209, 211, 212, 255} : HXColor{134, 134, 134, 255});
      dc.DrawText("I ACCEPT", {0, 0, kSize.width + 1, kSize.height + 1},
                  HXCocoaDC::kCentre | HXCocoaDC::kCentreVertically);
    });
    EXPECT_EQ(CountUnlike(*drawn, *Draw(expected)), 0) << enabled;
  }
}

}  // namespace
