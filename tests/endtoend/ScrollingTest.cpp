#include "tests/endtoend/EndToEndTest.h"
#include "tests/endtoend/Waiting.h"

namespace {

constexpr Color kTrack{17, 18, 20};
constexpr int kNotchPixels = 10;

class ScrollingTest : public EndToEndTest {
 protected:
  Picture Look(Area area) const { return wizard.Look().Crop(area); }

  /// The first and the last line of the thumb, counted from the top of the bar.
  static std::pair<int, int> ThumbIn(const Picture& picture, Area bar) {
    const int x = bar.x + bar.width - 2;
    if (!picture.IsInside(x, bar.y + bar.height - 1)) return {-1, -1};
    int top = bar.y;
    int bottom = bar.y + bar.height - 1;
    while (top < bottom && picture.At(x, top) == kTrack) ++top;
    while (bottom > top && picture.At(x, bottom) == kTrack) --bottom;
    return {top - bar.y, bottom - bar.y};
  }

  /// Waits until the text in `area` stands `distance` pixels higher than in `before`.
  testing::AssertionResult IsShifted(Area area, const Picture& before, int distance) const {
    const Area rest{0, distance, area.width, area.height - distance};
    const Picture expected = before.Crop(rest);
    return wizard.Shows({area.x, area.y, rest.width, rest.height}, expected);
  }

  void DragThumb(Area bar, int distance) {
    const auto [top, bottom] = ThumbIn(wizard.Look(), bar);
    const int grabbed = bar.y + (top + bottom) / 2;
    wizard.MoveTo(bar.x + 8, grabbed);
    pointer.Press();
    wizard.MoveTo(bar.x + 8, grabbed + distance / 2);
    wizard.MoveTo(bar.x + 8, grabbed + distance);
    pointer.Release();
  }

  void ExpectWheelAndThumbScroll(Area text, Area bar) {
    const Picture first = Look(text);
    EXPECT_EQ(ThumbIn(wizard.Look(), bar).first, 0);

    // Where the pointer is does not matter.
    wizard.MoveTo(60, 150);
    pointer.TurnWheel(-1);
    ASSERT_TRUE(IsShifted(text, first, kNotchPixels));
    pointer.TurnWheel(1);
    ASSERT_TRUE(wizard.Shows(text, first));
    pointer.TurnWheel(-4);
    ASSERT_TRUE(IsShifted(text, first, 4 * kNotchPixels));

    // Down to the end, also beyond the window; there the wheel does nothing more.
    const auto isAtTheEnd = [this, bar] {
      return ThumbIn(wizard.Look(), bar).second == bar.height - 1;
    };
    const auto isAtTheStart = [this, bar] { return ThumbIn(wizard.Look(), bar).first == 0; };
    // On a busy machine the release may overtake the last movement.
    ASSERT_TRUE(WaitUntil([&] {
      if (!isAtTheEnd()) DragThumb(bar, 400);
      return isAtTheEnd();
    }));
    EXPECT_NE(Look(text), first);
    // On the desktop the wheel would be the window manager's.
    wizard.MoveTo(60, 150);
    pointer.TurnWheel(5);
    ASSERT_TRUE(
        WaitUntil([this, bar] { return ThumbIn(wizard.Look(), bar).second < bar.height - 1; }));
    pointer.TurnWheel(-50);
    ASSERT_TRUE(WaitUntil(isAtTheEnd));

    ASSERT_TRUE(WaitUntil([&] {
      if (!isAtTheStart()) DragThumb(bar, -400);
      return isAtTheStart();
    }));
    ASSERT_TRUE(wizard.Shows(text, first));

    // A press beside the thumb brings it there.
    wizard.ClickAt(bar.x + 8, bar.y + bar.height - 2);
    ASSERT_TRUE(WaitUntil(isAtTheEnd));
    wizard.ClickAt(bar.x + 8, bar.y + 1);
    ASSERT_TRUE(wizard.Shows(text, first));
  }
};

TEST_F(ScrollingTest, TheAgreementFollowsWheelAndThumb) {
  ASSERT_TRUE(StartOn(Page::kLicence));
  ExpectWheelAndThumbScroll(Wizard::kLicenceText, Wizard::kLicenceBar);
}

TEST_F(ScrollingTest, TheSummaryFollowsWheelAndThumb) {
  machine.Furnish();
  // More hosts than the page can show at once.
  machine.SetPreferences({{"13.8", machine.MakeFolder("Plug-ins of 2015.3")},
                          {"14.0", machine.MakeFolder("Plug-ins of 2017")},
                          {"15.0", machine.MakeFolder("Plug-ins of 2018")},
                          {"16.0", machine.PluginFolder(2)},
                          {"17.0", machine.MakeFolder("Plug-ins of 2020")}});
  Start();
  ASSERT_TRUE(wizard.GoTo(Page::kSummary));
  ExpectWheelAndThumbScroll(Wizard::kSummaryText, Wizard::kSummaryBar);
}

TEST_F(ScrollingTest, TheWheelDoesNothingBehindAQuestion) {
  ASSERT_TRUE(StartOn(Page::kLicence));
  const Picture first = wizard.Look();
  const MessageBox question = Box(MessageBox::kQuestion);
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(question.IsUp());
  wizard.MoveTo(300, 70);
  pointer.TurnWheel(-5);
  keyboard.Type("Escape");
  ASSERT_TRUE(question.IsGone());
  EXPECT_TRUE(wizard.Shows(Wizard::kLicenceText, first.Crop(Wizard::kLicenceText)));
}

TEST_F(ScrollingTest, TheAgreementKeepsItsPlaceWhenItIsShownAgain) {
  ASSERT_TRUE(StartOn(Page::kLicence));
  const Picture first = Look(Wizard::kLicenceText);
  pointer.TurnWheel(-6);
  ASSERT_TRUE(IsShifted(Wizard::kLicenceText, first, 6 * kNotchPixels));
  const Picture scrolled = Look(Wizard::kLicenceText);
  wizard.Click(Wizard::kWideBack);
  ASSERT_TRUE(wizard.IsOn(Page::kWelcome));
  pointer.TurnWheel(-6);
  wizard.Click(Wizard::kWideNext);
  ASSERT_TRUE(wizard.IsOn(Page::kLicence));
  EXPECT_TRUE(wizard.Shows(Wizard::kLicenceText, scrolled));
}

}  // namespace
