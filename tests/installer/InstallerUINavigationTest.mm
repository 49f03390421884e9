#include <gtest/gtest.h>

#include "tests/installer/WizardFixture.h"

namespace {

constexpr const char* kNothingChosen =
    "Please select at least one After Effects\ninstallation to continue.";

/// What the buttons do on each page.
class InstallerUINavigationTest : public WizardFixture {
 protected:
  /// Page, labels, usable buttons and which panel is on the screen.
  void ExpectPage(std::uint32_t page, const char* back, const char* next, bool backEnabled,
                  bool nextEnabled) {
    EXPECT_EQ(ui->GetPage(), page);
    EXPECT_EQ(BackButton().GetLabel(), back);
    EXPECT_EQ(NextButton().GetLabel(), next);
    EXPECT_EQ(BackButton().IsEnabled(), backEnabled);
    EXPECT_EQ(NextButton().IsEnabled(), nextEnabled);
    EXPECT_TRUE(CancelButton().IsEnabled());
    for (const HXObject* button :
         {static_cast<HXObject*>(&BackButton()), static_cast<HXObject*>(&NextButton()),
          static_cast<HXObject*>(&CancelButton())}) {
      EXPECT_TRUE(button->IsVisible());
    }
    EXPECT_EQ(LicencePanel().IsVisible(), page == InstallerUI::kLicencePage);
    EXPECT_EQ(HostPanel().IsVisible(), page == InstallerUI::kHostPage);
    EXPECT_EQ(SummaryPanel().IsVisible(), page == InstallerUI::kSummaryPage);
  }

  void ExpectWelcome() { ExpectPage(InstallerUI::kWelcomePage, "< Back", "Next >", false, true); }
  void ExpectLicence() {
    ExpectPage(InstallerUI::kLicencePage, "I DO NOT ACCEPT", "I ACCEPT", true, true);
  }
  void ExpectHosts() { ExpectPage(InstallerUI::kHostPage, "< Back", "Next >", true, true); }
  void ExpectSummary() { ExpectPage(InstallerUI::kSummaryPage, "< Back", "Next >", true, true); }

  void ExpectNarrowButtons() {
    EXPECT_EQ(NextButton().GetPosition(), (HXPoint{290, 320}));
    EXPECT_EQ(NextButton().GetSize(), (HXSize{85, 30}));
    EXPECT_EQ(BackButton().GetPosition(), (HXPoint{200, 320}));
    EXPECT_EQ(BackButton().GetSize(), (HXSize{85, 30}));
    ExpectCancelInPlace();
  }

  void ExpectWideButtons() {
    EXPECT_EQ(NextButton().GetPosition(), (HXPoint{275, 320}));
    EXPECT_EQ(NextButton().GetSize(), (HXSize{110, 30}));
    EXPECT_EQ(BackButton().GetPosition(), (HXPoint{150, 320}));
    EXPECT_EQ(BackButton().GetSize(), (HXSize{110, 30}));
    ExpectCancelInPlace();
  }

  void ExpectCancelInPlace() {
    EXPECT_EQ(CancelButton().GetPosition(), (HXPoint{405, 320}));
    EXPECT_EQ(CancelButton().GetSize(), (HXSize{85, 30}));
    EXPECT_EQ(CancelButton().GetLabel(), "Cancel");
  }

  /// Next on the host page says that nothing is chosen.
  void ExpectRefusal() {
    bool right = false;
    WithMessage([&](HXPopupDialog& dialog) {
      right = LooksLike(dialog, kNothingChosen, false) && !ui->IsEnabled();
      PressIn(dialog, "OK");
    });
    const std::size_t before = messages.size();
    Press(NextButton());
    ASSERT_EQ(messages.size(), before + 1);
    EXPECT_EQ(messages.back(), "Unable to continue");
    EXPECT_TRUE(right);
    EXPECT_TRUE(ui->IsEnabled());
    ExpectHosts();
  }
};

TEST_F(InstallerUINavigationTest, NextLeadsThroughToTheSummary) {
  AddHosts({10});
  BuildAndShow();
  ExpectWelcome();
  ExpectNarrowButtons();
  Press(NextButton());
  ExpectLicence();
  ExpectWideButtons();
  Press(NextButton());
  ExpectHosts();
  ExpectNarrowButtons();
  Press(NextButton());
  ExpectSummary();
  ExpectNarrowButtons();
  EXPECT_TRUE(script.GetCalls().empty());
}

TEST_F(InstallerUINavigationTest, RefusingTheAgreementKeepsTheWideButtons) {
  BuildAndShow();
  GoToLicence();
  Press(BackButton());
  ExpectWelcome();
  ExpectWideButtons();
  Press(NextButton());
  ExpectLicence();
  ExpectWideButtons();
  Press(NextButton());
  ExpectHosts();
  ExpectNarrowButtons();
}

TEST_F(InstallerUINavigationTest, BackFromTheHostsGoesToTheWelcome) {
  BuildAndShow();
  GoToHosts();
  Press(BackButton());
  ExpectWelcome();
  ExpectNarrowButtons();
  Press(NextButton());
  ExpectLicence();
}

TEST_F(InstallerUINavigationTest, TheAssetsPageLeadsBackToTheHostsAndNowhereElse) {
  AddHosts({9});
  BuildAndShow();
  GoToAssets();
  Press(NextButton());
  ExpectPage(InstallerUI::kAssetsPage, "< Back", "Next >", true, true);
  Press(BackButton());
  ExpectHosts();
}

TEST_F(InstallerUINavigationTest, BackFromTheSummaryKeepsTheTicks) {
  AddHosts({10, 12});
  BuildAndShow();
  GoToHosts();
  Press(*CheckBoxes()[0]);
  Press(NextButton());
  ExpectSummary();
  Press(BackButton());
  ExpectHosts();
  EXPECT_EQ(ui->hostSelected[10], 0);
  EXPECT_EQ(ui->hostSelected[12], 1);
  Press(NextButton());
  ExpectSummary();
}

TEST_F(InstallerUINavigationTest, BackOnTheWelcomeDoesNothing) {
  BuildAndShow();
  Press(BackButton());
  ExpectWelcome();
}

TEST_F(InstallerUINavigationTest, OtherMouseEventsAreNoCommands) {
  BuildAndShow();
  SendMouse(NSLeftMouseDown, NextButton(), {5, 5});
  SendMouse(NSMouseExited, NextButton(), {5, 5});
  SendMouse(NSLeftMouseUp, NextButton(), {5, 5});
  SendMouse(NSRightMouseDown, NextButton(), {5, 5});
  SendMouse(NSRightMouseUp, NextButton(), {5, 5});
  ExpectWelcome();
}

TEST_F(InstallerUINavigationTest, ACommandRedrawsEvenWhenItDoesNothing) {
  BuildAndShow();
  Press(BackButton());
  ExpectRedraw([this] { ui->OnCommand(kLeftUp); });
  ExpectWelcome();
}

TEST_F(InstallerUINavigationTest, AnUnknownCommandOnlyRedraws) {
  BuildAndShow();
  auto* button = new HXSystemButton(ui.get(), {170, 200}, {60, 20}, "Unknown");
  button->SetHook(ui.get(), &InstallerUI::OnCommand, 12);
  Press(*button);
  ASSERT_EQ(ui->GetSenderId(), 12U);
  ExpectRedraw([this] { ui->OnCommand(kLeftUp); });
  ExpectWelcome();
  EXPECT_FALSE(ui->IsClosed());
}

TEST_F(InstallerUINavigationTest, SummaryNamesWhatIsTicked) {
  AddHosts({10, 11, 12});
  BuildAndShow();
  GoToHosts();
  Press(*CheckBoxes()[1]);
  Press(NextButton());
  EXPECT_EQ(Summary().GetText(), "Installing Ostrel 3D on:\n\n"
                                 "CC 2018: \n/Hosts/10/Plug-ins\n\n"
                                 "2020: \n/Hosts/12/Plug-ins\n\n");
  EXPECT_EQ(Summary().GetSize().width, 283);
  EXPECT_GT(Summary().GetSize().height, 8 * 10);
}

TEST_F(InstallerUINavigationTest, SummaryIsMadeAnewEachTime) {
  AddHosts({10, 12});
  BuildAndShow();
  GoToSummary();
  Press(BackButton());
  Press(*CheckBoxes()[1]);
  Press(NextButton());
  EXPECT_EQ(Summary().GetText(), "Installing Ostrel 3D on:\n\nCC 2018: \n/Hosts/10/Plug-ins\n\n");
}

TEST_F(InstallerUINavigationTest, NothingFoundAndNothingChosenIsRefused) {
  BuildAndShow();
  GoToHosts();
  ExpectRefusal();
}

TEST_F(InstallerUINavigationTest, EverythingUntickedIsRefusedUntilOneIsTicked) {
  AddHosts({10, kOtherVersionSlot});
  BuildAndShow();
  GoToHosts();
  Press(*CheckBoxes()[0]);
  Press(*CheckBoxes()[1]);
  ExpectRefusal();
  ExpectRefusal();
  Press(*CheckBoxes()[1]);
  Press(NextButton());
  ExpectSummary();
}

TEST_F(InstallerUINavigationTest, EachFoundHostAloneIsEnough) {
  AddHosts({2, 7, kOtherVersionSlot});
  BuildAndShow();
  GoToHosts();
  for (std::size_t ticked = 0; ticked < 3; ++ticked) {
    for (const std::size_t slot : std::initializer_list<std::size_t>{2, 7, kOtherVersionSlot})
      ui->hostSelected[slot] = 0;
    Press(*CheckBoxes()[ticked]);
    Press(NextButton());
    ExpectSummary();
    Press(BackButton());
  }
}

TEST_F(InstallerUINavigationTest, CustomWithoutAFolderIsRefused) {
  BuildAndShow();
  GoToHosts();
  Press(CustomBox());
  EXPECT_EQ(ui->hostSelected[kCustomSlot], 1);
  ExpectRefusal();
  ui->hostPath[kCustomSlot] = "/Chosen";
  Press(NextButton());
  ExpectSummary();
  EXPECT_EQ(Summary().GetText(), "Installing Ostrel 3D on:\n\nCustom: \n/Chosen\n\n");
}

TEST_F(InstallerUINavigationTest, CustomFolderThatIsNotTickedIsRefused) {
  BuildAndShow();
  GoToHosts();
  ui->hostPath[kCustomSlot] = "/Chosen";
  ExpectRefusal();
}

TEST_F(InstallerUINavigationTest, RefusalIsAnsweredByKeysAndCloseButtonToo) {
  BuildAndShow();
  GoToHosts();
  WithMessage([this](HXPopupDialog& dialog) { SendKey(dialog, @"\033"); });
  Press(NextButton());
  WithMessage([](HXPopupDialog& dialog) { PressCloseButton(dialog); });
  Press(NextButton());
  EXPECT_EQ(messages, (std::vector<std::string>(2, "Unable to continue")));
  ExpectHosts();
}

}  // namespace
