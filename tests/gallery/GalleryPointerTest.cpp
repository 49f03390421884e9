#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"
#include "tests/gallery/Keys.h"

namespace {

using GalleryPointerTest = GalleryTest;

TEST_F(GalleryPointerTest, AClickIsADownAndAnUp) {
  Show(kButtons);
  ClickAt(275, 95);
  EXPECT_TRUE(LogIs({"Listen: entered (11)", "Listen: left down (1)", "Listen: left up (2)"}));
}

TEST_F(GalleryPointerTest, ADoubleClickIsHeardAsItsSecondPress) {
  Show(kButtons);
  MoveTo(275, 95);
  ASSERT_TRUE(LogIs({"Listen: entered (11)"}));
  DoubleClickAt(275, 95);
  EXPECT_TRUE(LogIs({"Listen: entered (11)", "Listen: left down (1)", "Listen: left up (2)",
                     "Listen: double click (3)"}));
}

TEST_F(GalleryPointerTest, AControlClickIsARightClick) {
  Show(kButtons);
  MoveTo(275, 95);
  ASSERT_TRUE(LogIs({"Listen: entered (11)"}));
  const HeldKey control(desktop.Connection(), "Control_L");
  pointer.Click();
  EXPECT_TRUE(LogIs({"Listen: entered (11)", "Listen: right down (4)", "Listen: right up (5)"}));
}

TEST_F(GalleryPointerTest, ADisabledButtonGoesOnNotifying) {
  Show(kButtons);
  ClickAt(275, 135);
  EXPECT_TRUE(LogEndsWith({"Disabled: left down (1)", "Disabled: left up (2)"}));
}

TEST_F(GalleryPointerTest, ACapturedMouseIsFollowedOutsideTheWindow) {
  Show(kPointer);
  MoveTo(130, 120);
  pointer.Press();
  ASSERT_TRUE(LogIs({"Drag: captured"}));
  pointer.MoveTo(2, 2);
  EXPECT_TRUE(HasValue("handle", "9, 9"));
  pointer.Release();
  EXPECT_TRUE(LogIs({"Drag: captured", "Drag: released"}));
}

TEST_F(GalleryPointerTest, TheWheelScrollsWhatIsUnderIt) {
  Show(kScrolling);
  ASSERT_TRUE(HasValue("plain content at", "0"));
  MoveTo(80, 150);
  pointer.TurnWheel(-1);
  EXPECT_TRUE(LogEndsWith({"Wheel: -120"}));
  EXPECT_TRUE(WaitUntil([this] { return Number("plain content at") < 0; }));
  EXPECT_EQ(Value("content with arrows at"), "0");
  pointer.TurnWheel(1);
  EXPECT_TRUE(HasValue("plain content at", "0"));
}

}  // namespace
