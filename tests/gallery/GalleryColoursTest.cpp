#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryColoursTest : public GalleryTest {
 protected:
  static constexpr const char* kDialog = "Color";
  static constexpr int kSwatchX = 340;
  static constexpr int kNewY = 25;
  static constexpr int kInitialY = 60;
  static constexpr int kRedY = 90;
  static constexpr int kGreenY = 110;
  static constexpr int kBlueY = 130;

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kColours);
    ASSERT_TRUE(HasValue("warm", "#FF8000"));
    ClickAt(165, 52);
    ASSERT_TRUE(IsUp(kDialog));
  }

  /// In pixels of the dialog.
  void MoveInDialog(int x, int y) {
    const Area content = Content(kDialog);
    pointer.MoveTo(content.x + x, content.y + y);
  }

  /// Clicks the hexadecimal entry and selects its text.
  void FocusHexBox() {
    const Picture idle = Look(kDialog);
    ClickIn(kDialog, 360, 168);
    ASSERT_TRUE(WaitUntil([this, &idle] { return Look(kDialog) != idle; }));
    TypeCommand("a");
  }

  /// Waits for the editor of the number at this height.
  testing::AssertionResult IsEdited(int y) const {
    constexpr int kFieldX = 325;
    const bool isEdited = WaitUntil([&] {
      const Picture dialog = Look(kDialog);
      return dialog.IsInside(kFieldX, y) && dialog.At(kFieldX, y + 3) == kAccent;
    });
    if (isEdited) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "no editor at " << y;
  }
};

TEST_F(GalleryColoursTest, HexadecimalDigitsAreTakenOverWhileTyped) {
  FocusHexBox();
  Type("1020FF");
  EXPECT_TRUE(HasValue("warm", "#1020FF"));
  keyboard.Type("Return");
  EXPECT_TRUE(IsGone(kDialog));
  EXPECT_TRUE(LogEndsWith({"Warm: notification 2"}));
}

TEST_F(GalleryColoursTest, ShowsTheNewAndTheInitialColour) {
  constexpr Color kInitial{255, 128, 0};
  const Picture dialog = Look(kDialog);
  EXPECT_EQ(dialog.At(kSwatchX, kNewY), kInitial);
  EXPECT_EQ(dialog.At(kSwatchX, kInitialY), kInitial);
  MoveInDialog(7, 7);
  pointer.Press();
  ASSERT_TRUE(HasValue("warm", "#FFFFFF"));
  pointer.Release();
  EXPECT_TRUE(WaitUntil([this] {
    return Look(kDialog).At(kSwatchX, kNewY) == Color{255, 255, 255};
  }));
  EXPECT_EQ(Look(kDialog).At(kSwatchX, kInitialY), kInitial);
}

TEST_F(GalleryColoursTest, TheInitialColourComesBackByAClickAndTheNextKey) {
  MoveInDialog(7, 7);
  pointer.Press();
  pointer.Release();
  ASSERT_TRUE(HasValue("warm", "#FFFFFF"));
  const Picture white = Look(kDialog);
  ClickIn(kDialog, kSwatchX, kInitialY);
  // The three numbers show it at once, the colour itself only follows.
  ASSERT_TRUE(WaitUntil([&] { return Look(kDialog) != white; }));
  EXPECT_EQ(Value("warm"), "#FFFFFF");
  keyboard.Type("x");
  EXPECT_TRUE(HasValue("warm", "#FF8000"));
}

TEST_F(GalleryColoursTest, OtherLettersThanHexadecimalDigitsAreRefused) {
  FocusHexBox();
  Type("gz00zzzff00xy");
  EXPECT_TRUE(HasValue("warm", "#00FF00"));
}

TEST_F(GalleryColoursTest, TabMovesTheTypingThroughTheNumbers) {
  keyboard.Type("Tab");
  ASSERT_TRUE(IsEdited(kRedY));
  Type("16");
  keyboard.Type("Tab");
  EXPECT_TRUE(HasValue("warm", "#108000"));
  ASSERT_TRUE(IsEdited(kGreenY));
  Type("32");
  keyboard.Type("Tab");
  EXPECT_TRUE(HasValue("warm", "#102000"));
  ASSERT_TRUE(IsEdited(kBlueY));
  Type("48");
  keyboard.Type("Tab");
  EXPECT_TRUE(HasValue("warm", "#102030"));
  EXPECT_TRUE(IsEdited(kRedY)) << "and around";
}

TEST_F(GalleryColoursTest, BackTabMovesTheTypingBack) {
  keyboard.Type("Tab");
  ASSERT_TRUE(IsEdited(kRedY));
  keyboard.TypeWith("Shift_L", "Tab");
  ASSERT_TRUE(IsEdited(kBlueY));
  Type("64");
  keyboard.TypeWith("Shift_L", "Tab");
  ASSERT_TRUE(IsEdited(kGreenY));
  EXPECT_TRUE(HasValue("warm", "#FF8040"));
}

TEST_F(GalleryColoursTest, ReturnInANumberTakesItOverAndLeavesTheDialogUp) {
  keyboard.Type("Tab");
  ASSERT_TRUE(IsEdited(kRedY));
  Type("1");
  keyboard.Type("Return");
  EXPECT_TRUE(HasValue("warm", "#018000"));
  EXPECT_TRUE(IsUp(kDialog));
}

TEST_F(GalleryColoursTest, OkAcceptsOnThePress) {
  MoveInDialog(7, 7);
  pointer.Press();
  pointer.Release();
  ASSERT_TRUE(HasValue("warm", "#FFFFFF"));
  MoveInDialog(340, 247);
  pointer.Press();
  EXPECT_TRUE(IsGone(kDialog));
  pointer.Release();
  EXPECT_TRUE(LogIs({"Warm: notification 0", "Warm: notification 1", "Warm: notification 2"}));
  EXPECT_EQ(Value("warm"), "#FFFFFF");
}

TEST_F(GalleryColoursTest, CancelRestoresTheColourOnThePress) {
  MoveInDialog(7, 7);
  pointer.Press();
  pointer.Release();
  ASSERT_TRUE(HasValue("warm", "#FFFFFF"));
  MoveInDialog(340, 207);
  pointer.Press();
  EXPECT_TRUE(IsGone(kDialog));
  pointer.Release();
  EXPECT_TRUE(LogIs({"Warm: notification 0", "Warm: notification 1", "Warm: notification 1"}));
  EXPECT_TRUE(HasValue("warm", "#FF8000"));
}

TEST_F(GalleryColoursTest, TheSquareIsDraggedBeyondTheWindow) {
  MoveInDialog(100, 100);
  pointer.Press();
  EXPECT_TRUE(LogEndsWith({"Warm: notification 1"}));
  // Full value, no saturation.
  MoveInDialog(-60, -60);
  EXPECT_TRUE(HasValue("warm", "#FFFFFF"));
  // No value at all.
  MoveInDialog(500, 500);
  EXPECT_TRUE(HasValue("warm", "#000000"));
  pointer.Release();
  keyboard.Type("Escape");
  EXPECT_TRUE(IsGone(kDialog));
  EXPECT_TRUE(HasValue("warm", "#FF8000"));
}

TEST_F(GalleryColoursTest, TheHueIsDraggedBeyondTheWindow) {
  MoveInDialog(280, 100);
  pointer.Press();
  EXPECT_TRUE(LogEndsWith({"Warm: notification 1"}));
  MoveInDialog(450, 500);
  EXPECT_TRUE(HasValue("warm", "#FF0000"));
  // 128 of 255 steps up the bar: 180.7 degrees, wherever the pointer is across it.
  MoveInDialog(450, 134);
  EXPECT_TRUE(HasValue("warm", "#00FCFF"));
  pointer.Release();
  keyboard.Type("Escape");
  EXPECT_TRUE(IsGone(kDialog));
}

TEST_F(GalleryColoursTest, TheCloseButtonInTheMiddleOfADragRestoresTheColour) {
  MoveInDialog(100, 100);
  pointer.Press();
  MoveInDialog(20, 250);
  EXPECT_TRUE(LogEndsWith({"Warm: notification 1", "Warm: notification 1"}));
  desktop.PressCloseButton(desktop.FindWindow(kDialog).value_or(0));
  EXPECT_TRUE(IsGone(kDialog));
  pointer.Release();
  EXPECT_TRUE(HasValue("warm", "#FF8000"));
  // The gallery takes clicks again.
  ASSERT_TRUE(IsUp(kTitle));
  Show(kButtons);
}

}  // namespace
