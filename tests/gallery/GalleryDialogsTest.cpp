#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryDialogsTest : public GalleryTest {
 protected:
  void SetUp() override {
    GalleryTest::SetUp();
    Show(kDialogs);
  }

  /// The popup dialogs have the title of the gallery itself.
  testing::AssertionResult IsPopupUp() const {
    const bool up = WaitUntil([this] {
      const std::vector<WindowId> windows = desktop.FindWindows(kTitle);
      if (windows.size() != 2) return false;
      return windows[0] != PopupAmong(windows) ? desktop.IsActive(windows[1])
                                               : desktop.IsActive(windows[0]);
    });
    return up ? testing::AssertionSuccess() : testing::AssertionFailure() << "no dialog is up";
  }

  testing::AssertionResult IsPopupGone() const {
    const bool gone = WaitUntil([this] { return desktop.FindWindows(kTitle).size() == 1; });
    return gone ? testing::AssertionSuccess() : testing::AssertionFailure() << "it is still up";
  }

  WindowId Popup() const { return PopupAmong(desktop.FindWindows(kTitle)); }

 private:
  WindowId PopupAmong(const std::vector<WindowId>& windows) const {
    for (const WindowId window : windows) {
      const std::optional<Area> content = desktop.FindContent(window);
      if (content && content->width < 900) return window;
    }
    return 0;
  }
};

TEST_F(GalleryDialogsTest, TheInputDialogGivesWhatWasTypedOnReturn) {
  ClickAt(275, 53);
  ASSERT_TRUE(IsUp("Name"));
  Type("Brass");
  keyboard.Type("Return");
  EXPECT_TRUE(IsGone("Name"));
  EXPECT_TRUE(LogIs({"Input: answer 0, \"Brass\""}));
  EXPECT_TRUE(HasValue("input", "Brass"));
}

TEST_F(GalleryDialogsTest, TheInputDialogIsCancelledByEscape) {
  ClickAt(275, 53);
  ASSERT_TRUE(IsUp("Name"));
  Type("Oak");
  keyboard.Type("Escape");
  EXPECT_TRUE(IsGone("Name"));
  EXPECT_TRUE(LogIs({"Input: answer 1, \"Oak\""}));
  EXPECT_TRUE(HasValue("input", "Preset"));
}

TEST_F(GalleryDialogsTest, EachPopupDialogClosesByItsCloseButton) {
  for (const int y : {53, 87, 121, 155}) {
    ClickAt(95, y);
    ASSERT_TRUE(IsPopupUp()) << "of the button at " << y;
    desktop.PressCloseButton(Popup());
    ASSERT_TRUE(IsPopupGone()) << "of the button at " << y;
    EXPECT_TRUE(LogEndsWith({"Dialog: answer 1"}));
    ASSERT_TRUE(IsUp(kTitle));
    ClearLog();
  }
}

TEST_F(GalleryDialogsTest, EscapeAnswersAQuestionWithItsSecondButton) {
  ClickAt(95, 87);
  ASSERT_TRUE(IsPopupUp());
  keyboard.Type("Escape");
  EXPECT_TRUE(IsPopupGone());
  EXPECT_TRUE(LogIs({"Dialog: answer 1"}));
}

}  // namespace
