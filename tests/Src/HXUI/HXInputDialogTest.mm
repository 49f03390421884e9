#include "Src/HXUI/HXInputDialog.h"

#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextBox.h"
#include "Src/HXUI/KeyCode.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"

namespace {

constexpr HXColor kBackground{10, 11, 11, 255};
constexpr HXColor kFrame{160, 240, 252, 255};

class HXInputDialogTest : public ToolkitFixture {
 protected:
  template <class Widget>
  std::vector<Widget*> Find(const HXInputDialog& dialog) {
    std::vector<Widget*> found;
    for (HXObject* child : dialog.GetChildren()) {
      if (auto* widget = dynamic_cast<Widget*>(child)) found.push_back(widget);
    }
    return found;
  }
  HXTextBox& Box(const HXInputDialog& dialog) { return *Find<HXTextBox>(dialog).at(0); }
  /// A key on its way through the application's queue, which makes it the
  /// current event, as the platform does.
  static void TypeKey(const HXInputDialog& dialog, NSString* characters) {
    [NSApp postEvent:KeyDownEvent(dialog, characters) atStart:YES];
    [NSApp sendEvent:[NSApp nextEventMatchingMask:NSKeyDownMask
                                        untilDate:[NSDate distantPast]
                                           inMode:NSDefaultRunLoopMode
                                          dequeue:YES]];
  }
  /// The platform's editor of the text box, which has the keyboard.
  NSTextView* Editor(const HXInputDialog& dialog) {
    NSResponder* responder = [[dialog.GetNativeView() window] firstResponder];
    EXPECT_TRUE([responder isKindOfClass:[NSTextView class]]);
    return static_cast<NSTextView*>(responder);
  }
};

TEST_F(HXInputDialogTest, HoldsABoxAndTwoButtons) {
  const HXInputDialog dialog(window.get(), "Name", "Preset");
  EXPECT_EQ(dialog.GetSize(), (HXSize{200, 80}));
  EXPECT_EQ(Box(dialog).GetPosition(), (HXPoint{15, 15}));
  EXPECT_EQ(Box(dialog).GetSize(), (HXSize{170, 15}));
  EXPECT_EQ(Box(dialog).GetText(), "Preset");
  const auto buttons = Find<HXSystemButton>(dialog);
  ASSERT_EQ(buttons.size(), 2U);
  EXPECT_EQ(buttons[0]->GetLabel(), "OK");
  EXPECT_EQ(buttons[0]->GetPosition(), (HXPoint{15, 40}));
  EXPECT_EQ(buttons[0]->GetSize(), (HXSize{80, 30}));
  EXPECT_EQ(buttons[1]->GetLabel(), "Cancel");
  EXPECT_EQ(buttons[1]->GetPosition(), (HXPoint{105, 40}));
  EXPECT_EQ(buttons[1]->GetSize(), (HXSize{80, 30}));
  EXPECT_EQ(dialog.GetValue(), "");
}

TEST_F(HXInputDialogTest, StandsInTheMiddleOfTheScreen) {
  const HXInputDialog dialog(window.get(), "Name", nullptr);
  const NSRect screen = [[NSScreen mainScreen] frame];
  EXPECT_NEAR(dialog.GetPosition().x + dialog.GetSize().width / 2.0, NSMidX(screen), 10);
}

TEST_F(HXInputDialogTest, NoInitialTextIsAnEmptyBox) {
  const HXInputDialog dialog(window.get(), "Name", nullptr);
  EXPECT_EQ(Box(dialog).GetText(), "");
}

TEST_F(HXInputDialogTest, TypingReplacesTheInitialText) {
  HXInputDialog dialog(window.get(), "Name", "Preset");
  Later([&] {
    EXPECT_EQ([Editor(dialog) selectedRange].length, 6U);
    [Editor(dialog) insertText:@"Neu"];
    Click(*Find<HXSystemButton>(dialog)[0], {5, 5});
  });
  EXPECT_EQ(dialog.RunModal(), 0);
  EXPECT_EQ(dialog.GetValue(), "Neu");
}

TEST_F(HXInputDialogTest, TakesTwentyFourCharacters) {
  HXInputDialog dialog(window.get(), "Name", nullptr);
  Later([&] {
    [Editor(dialog) insertText:@"123456789012345678901234"];
    [Editor(dialog) insertText:@"5"];
    Click(*Find<HXSystemButton>(dialog)[0], {5, 5});
  });
  dialog.RunModal();
  EXPECT_EQ(dialog.GetValue(), "123456789012345678901234");
}

TEST_F(HXInputDialogTest, CancelGivesOneAndTheTextAllTheSame) {
  HXInputDialog dialog(window.get(), "Name", "Preset");
  Later([&] { Click(*Find<HXSystemButton>(dialog)[1], {5, 5}); });
  EXPECT_EQ(dialog.RunModal(), 1);
  EXPECT_EQ(dialog.GetValue(), "Preset");
}

TEST_F(HXInputDialogTest, CloseButtonGivesOneWithoutText) {
  HXInputDialog dialog(window.get(), "Name", "Preset");
  Later([&] { [[dialog.GetNativeView() window] performClose:nil]; });
  EXPECT_EQ(dialog.RunModal(), 1);
  EXPECT_EQ(dialog.GetValue(), "");
}

TEST_F(HXInputDialogTest, ReturnInTheBoxIsOk) {
  HXInputDialog dialog(window.get(), "Name", "Preset");
  Later([&] { TypeKey(dialog, @"\r"); });
  EXPECT_EQ(dialog.RunModal(), 0);
  EXPECT_EQ(dialog.GetValue(), "Preset");
}

TEST_F(HXInputDialogTest, EscapeInTheBoxIsCancel) {
  HXInputDialog dialog(window.get(), "Name", "Preset");
  Later([&] { TypeKey(dialog, @"\x1b"); });
  EXPECT_EQ(dialog.RunModal(), 1);
  EXPECT_EQ(dialog.GetValue(), "Preset");
}

TEST_F(HXInputDialogTest, KeysOfTheBoxAreSwallowedOnlyWhenTheyEndIt) {
  HXInputDialog dialog(window.get(), "Name", "Preset");
  EXPECT_TRUE(dialog.OnTextBoxKeyDown(Box(dialog), kKeyTab));
  EXPECT_TRUE(dialog.OnTextBoxKeyDown(Box(dialog), kKeyBackTab));
  EXPECT_TRUE(dialog.OnTextBoxKeyDown(Box(dialog), 'a'));
  EXPECT_FALSE(dialog.IsClosed());
  EXPECT_FALSE(dialog.OnTextBoxKeyDown(Box(dialog), kKeyInsertNewline));
  EXPECT_TRUE(dialog.IsClosed());
  HXInputDialog other(window.get(), "Name", "Preset");
  EXPECT_FALSE(other.OnTextBoxKeyDown(Box(other), kKeyEscape));
  EXPECT_TRUE(other.IsClosed());
}

TEST_F(HXInputDialogTest, DrawsAFramedWhiteBox) {
  HXInputDialog dialog(window.get(), "Name", nullptr);
  dialog.SetVisible(true);
  const auto pixels = Draw(dialog);
  EXPECT_EQ(pixels->At(0, 0), kBackground);
  EXPECT_EQ(pixels->At(199, 79), kBackground);
  EXPECT_EQ(CountOther(*pixels, {13, 11, 172, 1}, kFrame), 0);
  EXPECT_EQ(CountOther(*pixels, {13, 31, 172, 1}, kFrame), 0);
  EXPECT_EQ(CountOther(*pixels, {13, 11, 1, 21}, kFrame), 0);
  EXPECT_EQ(pixels->At(12, 20), kBackground);
  EXPECT_EQ(CountOther(*pixels, {14, 12, 1, 19}, {0, 0, 0, 255}), 0);
  EXPECT_EQ(CountOther(*pixels, {15, 13, 169, 2}, kWhite), 0);
}

}  // namespace
