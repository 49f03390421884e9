#include "Src/HXUI/HXButton.h"

#include "resources/Pictures.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"

namespace {

constexpr HXSize kFaceSize{14, 14};

class HXButtonTest : public ToolkitFixture {
 protected:
  /// Two faces of 14 by 14 in a picture of 28 by 14.
  HXButton* MakeTwoFaced() {
    return new HXButton(window.get(), {20, 20}, {99, 99}, kCheckBoxPng.bytes, kCheckBoxPng.length,
                        true);
  }
};

TEST_F(HXButtonTest, TakesThePicturesSize) {
  const HXButton* button =
      new HXButton(window.get(), {7, 8}, {99, 99}, kClearPng.bytes, kClearPng.length, false);
  EXPECT_EQ(button->GetPosition(), (HXPoint{7, 8}));
  EXPECT_EQ(button->GetSize(), (HXSize{16, 15}));
  EXPECT_EQ(button->GetMinSize(), (HXSize{16, 15}));
}

TEST_F(HXButtonTest, TwoFacesHalveTheWidth) {
  const HXButton* button = MakeTwoFaced();
  EXPECT_EQ(button->GetSize(), kFaceSize);
  EXPECT_EQ(button->GetMinSize(), kFaceSize);
}

TEST_F(HXButtonTest, UndecodablePictureGivesAnEmptyWidget) {
  const unsigned char garbage[] = {1, 2, 3, 4};
  const HXButton* button =
      new HXButton(window.get(), {0, 0}, {20, 20}, garbage, sizeof garbage, true);
  EXPECT_EQ(button->GetSize(), (HXSize{0, 0}));
}

TEST_F(HXButtonTest, ShowsTheLeftFaceThenTheRightOne) {
  HXButton* button = MakeTwoFaced();
  EXPECT_EQ(CountUnlikePicture(*Draw(*button), kCheckBoxPng, 0, kFaceSize, 0), 0);
  button->SetFace(1);
  EXPECT_EQ(CountUnlikePicture(*Draw(*button), kCheckBoxPng, 14, kFaceSize, 0), 0);
  EXPECT_GT(CountUnlikePicture(*Draw(*button), kCheckBoxPng, 0, kFaceSize, 0), 0);
}

TEST_F(HXButtonTest, OtherFaceNumbersShowTheLeftFace) {
  HXButton* button = MakeTwoFaced();
  button->SetFace(2);
  EXPECT_EQ(CountUnlikePicture(*Draw(*button), kCheckBoxPng, 0, kFaceSize, 0), 0);
}

TEST_F(HXButtonTest, FaceMeansNothingWithOneFace) {
  auto* button =
      new HXButton(window.get(), {0, 0}, {1, 1}, kCheckBoxPng.bytes, kCheckBoxPng.length, false);
  button->SetFace(1);
  EXPECT_EQ(button->GetSize(), (HXSize{28, 14}));
  EXPECT_EQ(CountUnlikePicture(*Draw(*button), kCheckBoxPng, 0, {28, 14}, 0), 0);
}

TEST_F(HXButtonTest, HoverFramesExactlyTheOutermostRing) {
  HXButton* button = MakeTwoFaced();
  SendMouse(NSMouseEntered, *button, {5, 5});
  const auto pixels = Draw(*button);
  EXPECT_EQ(CountWhiteInRing(*pixels, kFaceSize), RingLength(kFaceSize));
  EXPECT_EQ(CountUnlikePicture(*pixels, kCheckBoxPng, 0, kFaceSize, 1), 0);
  SendMouse(NSMouseExited, *button, {5, 5});
  EXPECT_EQ(CountWhiteInRing(*Draw(*button), kFaceSize), 0);
}

TEST_F(HXButtonTest, DimmedDarkensTheFaceAndHidesTheFrame) {
  HXButton* button = MakeTwoFaced();
  const HXColor plain = Draw(*button)->At(7, 7);
  button->SetHover(true);
  button->SetDimmed(true);
  const auto pixels = Draw(*button);
  EXPECT_EQ(CountWhiteInRing(*pixels, kFaceSize), 0);
  const auto veiled = [](std::uint8_t value) {
    return static_cast<std::uint8_t>(value * (255 - 100) / 255);
  };
  EXPECT_TRUE(
      IsNear(pixels->At(7, 7), {veiled(plain.red), veiled(plain.green), veiled(plain.blue), 255}));
  EXPECT_NE(pixels->At(7, 7), plain);
  button->SetDimmed(false);
  EXPECT_EQ(CountWhiteInRing(*Draw(*button), kFaceSize), RingLength(kFaceSize));
}

TEST_F(HXButtonTest, OnlyHoverChangesRedraw) {
  HXButton* button = MakeTwoFaced();
  Draw(*button);
  button->SetDimmed(true);
  button->SetFace(1);
  button->SetHover(true);
  for (const MouseKind kind : {kMouseMove, kLeftDown, kLeftUp, kLeftDouble, kRightDown}) {
    button->OnMouse(kind);
    EXPECT_FALSE(NeedsDisplay(*button)) << kind;
  }
  button->OnMouse(kMouseExited);
  EXPECT_TRUE(NeedsDisplay(*button));
  Draw(*button);
  button->OnMouse(kMouseEntered);
  EXPECT_TRUE(NeedsDisplay(*button));
}

TEST_F(HXButtonTest, ClickReachesTheOwner) {
  HXButton* button = MakeTwoFaced();
  RecordingOwner owner;
  button->SetHook(&owner, &RecordingOwner::OnEvent, 5);
  Click(*button, {5, 5});
  EXPECT_EQ(owner.events, (std::vector<std::uint32_t>{kLeftDown, kLeftUp}));
  EXPECT_EQ(owner.GetSenderId(), 5U);
}

}  // namespace
