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

TEST_F(GalleryPointerTest, KeysGoToTheWidgetThatWasPressed) {
  Show(kPointer);
  ClickAt(130, 120);
  // A key may overtake a click, which the window manager looks at first.
  ASSERT_TRUE(LogIs({"Drag: captured", "Drag: released"}));
  Type("a");
  keyboard.Type("Return");
  EXPECT_TRUE(LogIs({"Drag: captured", "Drag: released", "Drag: key 97", "Drag: key 13"}));
}

TEST_F(GalleryPointerTest, TimersTickOnceOrUntilTheyAreStopped) {
  constexpr const char* kTicked = "One-shot timer: ticked";
  Show(kPointer);
  ClickAt(75, 299);
  EXPECT_TRUE(LogIs({kTicked}));
  ASSERT_EQ(Value("ticks"), "0");
  ClickAt(75, 263);
  ASSERT_TRUE(WaitUntil([this] { return Number("ticks") > 2; }));
  ClickAt(75, 263);
  // The other timer tells when the first one would have ticked again.
  ClickAt(75, 299);
  ASSERT_TRUE(LogIs({kTicked, kTicked}));
  const std::string ticks = Value("ticks");
  ClickAt(75, 299);
  ASSERT_TRUE(LogIs({kTicked, kTicked, kTicked}));
  EXPECT_EQ(Value("ticks"), ticks);
}

}  // namespace
