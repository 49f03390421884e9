#include <algorithm>

#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"
#include "tests/gallery/SelectionOwner.h"

namespace {

class GalleryDialogsTest : public GalleryTest {
 protected:
  // Of the buttons of the view.
  static constexpr int kPopupX = 95;
  static constexpr int kOtherX = 275;
  static constexpr int kDesktopX = 635;
  static constexpr int kFirstY = 53;
  static constexpr int kDistance = 34;

  // The popup dialogs, by their titles.
  static constexpr const char* kMessage = "Message";
  static constexpr const char* kQuestion = "Question";
  static constexpr const char* kStop = "Stop";
  static constexpr const char* kHint = "Hint";
  static constexpr const char* kInput = "Name";

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kDialogs);
  }

  void OpenPopup(const char* title) {
    const std::vector<std::string> titles{kMessage, kQuestion, kStop, kHint};
    const auto row = std::find(titles.begin(), titles.end(), title) - titles.begin();
    ClickAt(kPopupX, kFirstY + kDistance * static_cast<int>(row));
    ASSERT_TRUE(IsUp(title));
  }

  void OpenInput() {
    ClickAt(kOtherX, kFirstY);
    ASSERT_TRUE(IsUp(kInput));
  }

  /// The middle of one of the buttons at the lower edge of a popup dialog.
  void ClickButton(const char* title, int index, int count, int width) {
    constexpr int kFromBottom = 27;
    const Area content = Content(title);
    // Equal spaces stand before, between and after the buttons.
    const int space = (content.width - count * width) / (count + 1);
    ClickIn(title, (index + 1) * space + index * width + width / 2, content.height - kFromBottom);
  }
};

TEST_F(GalleryDialogsTest, AMessageHasOneButton) {
  OpenPopup(kMessage);
  ClickButton(kMessage, 0, 1, 80);
  EXPECT_TRUE(IsGone(kMessage));
  EXPECT_TRUE(LogIs({"Dialog: answer 0"}));
}

TEST_F(GalleryDialogsTest, AQuestionIsAnsweredByItsButtons) {
  for (const int answer : {0, 1}) {
    OpenPopup(kQuestion);
    ClickButton(kQuestion, answer, 2, 80);
    ASSERT_TRUE(IsGone(kQuestion));
    ASSERT_TRUE(HasValue("answer", std::to_string(answer)));
  }
  EXPECT_TRUE(LogIs({"Dialog: answer 0", "Dialog: answer 1"}));
}

TEST_F(GalleryDialogsTest, AQuestionAboutCancellingHasWiderButtons) {
  for (const int answer : {1, 0}) {
    OpenPopup(kStop);
    ClickButton(kStop, answer, 2, 120);
    ASSERT_TRUE(IsGone(kStop));
    ASSERT_TRUE(HasValue("answer", std::to_string(answer)));
  }
}

TEST_F(GalleryDialogsTest, DontShowAgainIsKnownAfterwards) {
  for (const char* value : {"1", "0"}) {
    OpenPopup(kHint);
    // The box is in the middle of the dialog, above the button.
    const Area content = Content(kHint);
    const Picture before = Look(kHint);
    if (*value == '1') {
      ClickIn(kHint, content.width / 2, content.height - 67);
      ASSERT_TRUE(WaitUntil([&] { return Look(kHint) != before; }));
    }
    ClickButton(kHint, 0, 1, 80);
    ASSERT_TRUE(IsGone(kHint));
    EXPECT_TRUE(HasValue("don't show again", value));
  }
}

TEST_F(GalleryDialogsTest, EachPopupDialogClosesByItsCloseButton) {
  for (const char* title : {kMessage, kQuestion, kStop, kHint}) {
    OpenPopup(title);
    desktop.PressCloseButton(desktop.FindWindow(title).value_or(0));
    ASSERT_TRUE(IsGone(title));
    EXPECT_TRUE(LogEndsWith({"Dialog: answer 1"})) << title;
    ASSERT_TRUE(IsUp(kTitle));
    ClearLog();
  }
}

TEST_F(GalleryDialogsTest, EscapeAnswersAQuestionWithItsSecondButton) {
  OpenPopup(kQuestion);
  keyboard.Type("Escape");
  EXPECT_TRUE(IsGone(kQuestion));
  EXPECT_TRUE(LogIs({"Dialog: answer 1"}));
}

TEST_F(GalleryDialogsTest, ReturnIsLeftToTheFieldsOfADialog) {
  OpenPopup(kQuestion);
  keyboard.Type("Return");
  // What follows shows that Return has been dealt with.
  keyboard.Type("Escape");
  EXPECT_TRUE(IsGone(kQuestion));
  EXPECT_TRUE(LogIs({"Dialog: answer 1"}));
}

TEST_F(GalleryDialogsTest, AClickOnTheGalleryNeitherCountsNorCoversTheDialog) {
  OpenPopup(kMessage);
  const Picture before = Look(kMessage);
  ClickAt(kDesktopX, kFirstY);
  EXPECT_TRUE(WaitUntil([&] { return Look(kMessage) == before; }));
  ClickButton(kMessage, 0, 1, 80);
  EXPECT_TRUE(IsGone(kMessage));
  EXPECT_TRUE(LogIs({"Dialog: answer 0"}));
}

TEST_F(GalleryDialogsTest, TheInputDialogGivesWhatWasTypedOnReturn) {
  OpenInput();
  Type("Brass");
  keyboard.Type("Return");
  EXPECT_TRUE(IsGone(kInput));
  EXPECT_TRUE(LogIs({"Input: answer 0, \"Brass\""}));
  EXPECT_TRUE(HasValue("input", "Brass"));
}

TEST_F(GalleryDialogsTest, TheInputDialogIsCancelledByEscape) {
  OpenInput();
  Type("Oak");
  keyboard.Type("Escape");
  EXPECT_TRUE(IsGone(kInput));
  EXPECT_TRUE(LogIs({"Input: answer 1, \"Oak\""}));
  EXPECT_TRUE(HasValue("input", "Preset"));
}

TEST_F(GalleryDialogsTest, TheInputDialogIsAnsweredByItsButtons) {
  OpenInput();
  Type("Steel");
  ClickIn(kInput, 145, 55);
  ASSERT_TRUE(IsGone(kInput));
  ASSERT_TRUE(LogIs({"Input: answer 1, \"Steel\""}));
  OpenInput();
  Type("Chrome");
  ClickIn(kInput, 55, 55);
  EXPECT_TRUE(IsGone(kInput));
  EXPECT_TRUE(LogEndsWith({"Input: answer 0, \"Chrome\""}));
  EXPECT_TRUE(HasValue("input", "Chrome"));
}

TEST_F(GalleryDialogsTest, TheInputDialogTakesTwentyFourCharacters) {
  OpenInput();
  Type("abcdefghijklmnopqrstuvwxyz");
  keyboard.Type("Return");
  EXPECT_TRUE(IsGone(kInput));
  EXPECT_TRUE(HasValue("input", "abcdefghijklmnopqrstuvwx"));
}

TEST_F(GalleryDialogsTest, TheHelpTipStandsAboveItsPointUntilTheNextPress) {
  constexpr Color kTip{27, 28, 28};
  constexpr Color kFrame{74, 79, 83};
  // Above the button, whose corner is its lower left corner.
  constexpr Area kAboveButton{200, 100, 10, 8};
  const Picture without = LookAt(kAboveButton);
  ClickAt(kOtherX, kFirstY + 2 * kDistance);
  ASSERT_TRUE(WaitUntil([&] { return LookAt(kAboveButton).At(5, 3) == kTip; }));
  const Picture tip = LookAt(kAboveButton);
  EXPECT_EQ(tip.At(0, 3), kFrame);
  EXPECT_EQ(tip.At(5, 7), kFrame);
  EXPECT_TRUE(IsUp(kTitle)) << "the keys stay where they were";
  ClickAt(400, 380);
  EXPECT_TRUE(WaitUntil([&] { return LookAt(kAboveButton) == without; }));
}

TEST_F(GalleryDialogsTest, TheColourDialogEditsTheOwnersColour) {
  ClickAt(kOtherX, kFirstY + kDistance);
  ASSERT_TRUE(IsUp("Color"));
  // "OK".
  ClickIn("Color", 340, 247);
  EXPECT_TRUE(IsGone("Color"));
  EXPECT_TRUE(LogIs({"Colour: change done (2)", "Colour: accepted"}));
}

TEST_F(GalleryDialogsTest, ATextIsCopiedForOtherPrograms) {
  ClickAt(kDesktopX, kFirstY);
  EXPECT_TRUE(LogIs({"Clipboard: copied"}));
  EXPECT_TRUE(WaitUntil([] { return ReadClipboard(DisplayName()) == "Copied from the gallery"; }));
}

}  // namespace
