#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryColoursTest : public GalleryTest {
 protected:
  static constexpr const char* kDialog = "Color";

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
};

TEST_F(GalleryColoursTest, HexadecimalDigitsAreTakenOverWhileTyped) {
  const Picture idle = Look(kDialog);
  MoveInDialog(360, 168);
  pointer.Click();
  ASSERT_TRUE(WaitUntil([this, &idle] { return Look(kDialog) != idle; }));
  TypeCommand("a");
  Type("1020FF");
  EXPECT_TRUE(HasValue("warm", "#1020FF"));
  keyboard.Type("Return");
  EXPECT_TRUE(IsGone(kDialog));
  EXPECT_TRUE(LogEndsWith({"Warm: notification 2"}));
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
