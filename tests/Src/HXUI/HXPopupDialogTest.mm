#include "Src/HXUI/HXPopupDialog.h"

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXCheckBox.h"
#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/KeyCode.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr const char* kText = "Please select at least one After Effects\ninstallation to continue.";
constexpr HXColor kBackground{17, 18, 20, 255};

HXSize MeasureText(const std::string& text) {
  HXCocoaDC dc(nullptr);
  dc.SetFont("Verdana", 0, 11);
  return dc.MeasureText(text, {0, 0}, 0);
}

class HXPopupDialogTest : public ToolkitFixture {
 protected:
  HXSystemButton* Button(const HXPopupDialog& dialog, std::size_t index) {
    std::vector<HXSystemButton*> buttons;
    for (HXObject* child : dialog.GetChildren()) {
      if (auto* button = dynamic_cast<HXSystemButton*>(child)) buttons.push_back(button);
    }
    return index < buttons.size() ? buttons[index] : nullptr;
  }
  /// Runs the dialog and clicks one of its buttons meanwhile.
  int RunAndClick(HXPopupDialog& dialog, std::size_t button) {
    Later([this, &dialog, button] { Click(*Button(dialog, button), {5, 5}); });
    return dialog.RunModal();
  }
};

TEST_F(HXPopupDialogTest, IsAsLargeAsItsText) {
  const HXPopupDialog dialog(window.get(), "Unable to continue", kText, false, false, false);
  const HXSize text = MeasureText(kText);
  EXPECT_EQ(dialog.GetSize(), (HXSize{text.width + 40, text.height + 80}));
}

TEST_F(HXPopupDialogTest, IsDrawnWhenItIsMade) {
  const HXPopupDialog dialog(window.get(), "Title", kText, true, false, true);
  EXPECT_FALSE([dialog.GetNativeView() needsDisplay]);
}

TEST_F(HXPopupDialogTest, CheckBoxMakesItHigher) {
  const HXPopupDialog dialog(window.get(), "Title", kText, false, false, true);
  const HXSize text = MeasureText(kText);
  EXPECT_EQ(dialog.GetSize(), (HXSize{text.width + 40, text.height + 104}));
}

TEST_F(HXPopupDialogTest, WidthFollowsTheTextEvenWhenTheButtonsDoNotFit) {
  const HXPopupDialog dialog(window.get(), "Title", "No?", true, true, false);
  EXPECT_EQ(dialog.GetSize().width, MeasureText("No?").width + 40);
  EXPECT_LT(dialog.GetSize().width, 240);
}

TEST_F(HXPopupDialogTest, SingleButtonStandsInTheMiddle) {
  const HXPopupDialog dialog(window.get(), "Title", kText, false, true, false);
  const HXSystemButton* ok = Button(dialog, 0);
  EXPECT_EQ(ok->GetLabel(), "OK");
  EXPECT_EQ(ok->GetSize(), (HXSize{80, 35}));
  EXPECT_EQ(ok->GetPosition(),
            (HXPoint{(dialog.GetSize().width - 80) / 2, MeasureText(kText).height + 35}));
  EXPECT_EQ(Button(dialog, 1), nullptr);
}

TEST_F(HXPopupDialogTest, TwoButtonsAreEquallySpaced) {
  const HXPopupDialog dialog(window.get(), "Title", kText, true, false, false);
  const HXSystemButton* yes = Button(dialog, 0);
  const HXSystemButton* no = Button(dialog, 1);
  EXPECT_EQ(yes->GetLabel(), "YES");
  EXPECT_EQ(no->GetLabel(), "NO");
  EXPECT_EQ(yes->GetSize(), (HXSize{80, 35}));
  EXPECT_EQ(no->GetSize(), (HXSize{80, 35}));
  const std::int32_t space = (dialog.GetSize().width - 160) / 3;
  EXPECT_EQ(yes->GetPosition().x, space);
  EXPECT_NEAR(no->GetPosition().x, 80 + 2 * space, 1);
}

TEST_F(HXPopupDialogTest, CancelStyleHasWideButtons) {
  const HXPopupDialog dialog(window.get(), "Title", kText, true, true, false);
  EXPECT_EQ(Button(dialog, 0)->GetLabel(), "YES (CANCEL)");
  EXPECT_EQ(Button(dialog, 1)->GetLabel(), "NO");
  EXPECT_EQ(Button(dialog, 0)->GetSize(), (HXSize{120, 35}));
  EXPECT_EQ(Button(dialog, 1)->GetSize(), (HXSize{120, 35}));
}

TEST_F(HXPopupDialogTest, StandsInTheMiddleOfTheScreen) {
  const HXPopupDialog dialog(window.get(), "Title", kText, false, false, false);
  const NSRect screen = [[NSScreen mainScreen] frame];
  EXPECT_NEAR(dialog.GetPosition().x + dialog.GetSize().width / 2.0, NSMidX(screen), 10);
}

TEST_F(HXPopupDialogTest, FirstButtonGivesZeroAndSecondOne) {
  struct Case {
    bool yesNo;
    bool cancelStyle;
    std::size_t button;
    int result;
  };
  for (const Case& test :
       {Case{false, false, 0, 0}, Case{false, true, 0, 0}, Case{true, false, 0, 0},
        Case{true, false, 1, 1}, Case{true, true, 0, 0}, Case{true, true, 1, 1}}) {
    HXPopupDialog dialog(window.get(), "Title", kText, test.yesNo, test.cancelStyle, false);
    EXPECT_EQ(RunAndClick(dialog, test.button), test.result) << test.yesNo << test.button;
    EXPECT_TRUE(dialog.IsClosed());
  }
}

TEST_F(HXPopupDialogTest, CloseButtonGivesOne) {
  HXPopupDialog dialog(window.get(), "Title", kText, false, false, false);
  Later([&] { [[dialog.GetNativeView() window] performClose:nil]; });
  EXPECT_EQ(dialog.RunModal(), 1);
}

TEST_F(HXPopupDialogTest, DisablesItsOwnerWhileItRuns) {
  HXPopupDialog dialog(window.get(), "Title", kText, false, false, false);
  bool enabledMeanwhile = true;
  Later([&] {
    enabledMeanwhile = window->IsEnabled();
    Click(*Button(dialog, 0), {5, 5});
  });
  dialog.RunModal();
  EXPECT_FALSE(enabledMeanwhile);
  EXPECT_TRUE(window->IsEnabled());
}

TEST_F(HXPopupDialogTest, WorksWithoutAnOwner) {
  HXPopupDialog dialog(nullptr, "Title", kText, true, false, false);
  EXPECT_EQ(RunAndClick(dialog, 1), 1);
}

TEST_F(HXPopupDialogTest, PressAloneDoesNotEndIt) {
  HXPopupDialog dialog(window.get(), "Title", kText, true, false, false);
  bool closedByPress = true;
  Later([&] {
    SendMouse(NSLeftMouseDown, *Button(dialog, 1), {5, 5});
    closedByPress = dialog.IsClosed();
    SendMouse(NSLeftMouseUp, *Button(dialog, 1), {5, 5});
  });
  EXPECT_EQ(dialog.RunModal(), 1);
  EXPECT_FALSE(closedByPress);
}

TEST_F(HXPopupDialogTest, EscapeAnswersWithOne) {
  HXPopupDialog dialog(window.get(), "Exit Installer", kText, true, true, false);
  Later([&] { SendKey(dialog, @"\x1b"); });
  EXPECT_EQ(dialog.RunModal(), 1);
}

TEST_F(HXPopupDialogTest, InsertNewlineAnswersWithZero) {
  HXPopupDialog dialog(window.get(), "Title", kText, true, true, false);
  bool passes = false;
  Later([&] { passes = dialog.OnKeyDown(kKeyInsertNewline); });
  EXPECT_EQ(dialog.RunModal(), 0);
  EXPECT_TRUE(passes);
}

TEST_F(HXPopupDialogTest, ReturnTypedIntoItDoesNotCloseIt) {
  HXPopupDialog dialog(window.get(), "Title", kText, true, true, false);
  bool closedByReturn = true;
  Later([&] {
    SendKey(dialog, @"\r");
    EXPECT_TRUE(dialog.OnKeyDown(kKeyReturn));
    EXPECT_TRUE(dialog.OnKeyDown('x'));
    closedByReturn = dialog.IsClosed();
    EXPECT_TRUE(dialog.OnKeyDown(kKeyEscape));
  });
  EXPECT_EQ(dialog.RunModal(), 1);
  EXPECT_FALSE(closedByReturn);
}

TEST_F(HXPopupDialogTest, DontShowAgainFollowsItsCheckBox) {
  HXPopupDialog dialog(window.get(), "Title", kText, false, false, true);
  dialog.SetVisible(true);
  HXCheckBox* box = nullptr;
  for (HXObject* child : dialog.GetChildren()) {
    if (auto* found = dynamic_cast<HXCheckBox*>(child)) box = found;
  }
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->GetColor(), kBackground);
  EXPECT_EQ(box->GetPosition(),
            (HXPoint{(dialog.GetSize().width - 200) / 2, MeasureText(kText).height + 30}));
  EXPECT_FALSE(dialog.IsDontShowAgain());
  Click(*box, {5, 5});
  EXPECT_TRUE(dialog.IsDontShowAgain());
  Click(*box, {5, 5});
  EXPECT_FALSE(dialog.IsDontShowAgain());
}

TEST_F(HXPopupDialogTest, DrawsItsTextCentredOnTheDarkGround) {
  HXPopupDialog dialog(window.get(), "Title", kText, false, false, false);
  dialog.SetVisible(true);
  const auto pixels = Draw(dialog);
  const HXSize size = dialog.GetSize();
  EXPECT_EQ(pixels->At(0, 0), kBackground);
  EXPECT_EQ(pixels->At(size.width - 1, size.height - 1), kBackground);
  const HXRect textArea{0, 0, size.width, size.height - 50};
  const HXRect ink = pixels->InkBounds(textArea, kBackground);
  EXPECT_NEAR(ink.x + ink.width / 2.0, size.width / 2.0, 3);
  EXPECT_GE(ink.y, 13);
  EXPECT_GT(ink.height, 20);
  EXPECT_TRUE(IsNear(Brightest(*pixels, textArea), {200, 200, 200, 255}, 20));
}

TEST_F(HXPopupDialogTest, MayBeDestroyedByItsOwnButton) {
  auto* dialog = new HXPopupDialog(window.get(), "Title", kText, false, false, false);
  dialog->SetVisible(true);
  RecordingOwner owner;
  Button(*dialog, 0)->SetHook(&owner, &RecordingOwner::OnEvent, 0);
  owner.action = [&] {
    if (owner.events.back() == kLeftUp) delete dialog;
  };
  Click(*Button(*dialog, 0), {5, 5});
  EXPECT_TRUE(window->GetChildren().empty());
  Pump();
}

TEST_F(HXPopupDialogTest, ItsTextIsCentredInVerdanaOfElevenPoints) {
  HXPopupDialog dialog(window.get(), "Title", kText, false, false, false);
  const HXSize size = dialog.GetSize();
  const auto drawn = Draw(dialog);
  window->SetSize({500, 300});
  PaintedPanel expected(window.get(), size, [size](HXCocoaDC& dc) {
    dc.SetFillColor(kBackground);
    dc.DrawRect({0, 0, size.width, size.height});
    dc.SetFont("Verdana", 0, 11);
    dc.SetTextColor({200, 200, 200, 255});
    dc.DrawText(kText, {5, 15, size.width - 10, size.height - 80}, HXCocoaDC::kCentre);
  });
  // Above the button.
  EXPECT_EQ(CountUnlike(*drawn, *Draw(expected), {0, 0, size.width, size.height - 45}), 0);
}

}  // namespace
