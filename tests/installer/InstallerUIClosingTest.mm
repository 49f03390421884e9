#include <gtest/gtest.h>

#include "tests/installer/WizardFixture.h"

namespace {

/// Cancel, the close button and what they ask.
class InstallerUIClosingTest : public WizardFixture {
 protected:
  void ExpectAsked(std::size_t times) {
    EXPECT_EQ(messages, std::vector<std::string>(times, "Exit Installer"));
  }
};

TEST_F(InstallerUIClosingTest, TheQuestionIsTheExpectedOne) {
  BuildAndShow();
  bool right = false;
  WithMessage([&](HXPopupDialog& dialog) {
    right = LooksLike(
        dialog, "Are you sure you want to cancel Ostrel 3D for After Effects installation?\n\n",
        true);
    EXPECT_FALSE(ui->IsEnabled());
    EXPECT_EQ(LabelsOf(dialog), (std::vector<std::string>{"YES (CANCEL)", "NO"}));
    PressIn(dialog, "NO");
  });
  EXPECT_FALSE(ui->CanClose());
  EXPECT_TRUE(right);
  EXPECT_TRUE(ui->IsEnabled());
  ExpectAsked(1);
}

TEST_F(InstallerUIClosingTest, YesMayClose) {
  BuildAndShow();
  Answer("YES (CANCEL)");
  EXPECT_TRUE(ui->CanClose());
  EXPECT_FALSE(ui->IsClosed());
  ExpectAsked(1);
}

TEST_F(InstallerUIClosingTest, EscapeMeansNo) {
  BuildAndShow();
  WithMessage([this](HXPopupDialog& dialog) { SendKey(dialog, @"\033"); });
  EXPECT_FALSE(ui->CanClose());
  ExpectAsked(1);
}

TEST_F(InstallerUIClosingTest, ClosingTheQuestionMeansNo) {
  BuildAndShow();
  WithMessage([](HXPopupDialog& dialog) { PressCloseButton(dialog); });
  EXPECT_FALSE(ui->CanClose());
  ExpectAsked(1);
}

TEST_F(InstallerUIClosingTest, NothingIsAskedAfterTheRun) {
  BuildAndShow();
  ui->installDone.store(true);
  EXPECT_TRUE(ui->CanClose());
  ui->installFailed.store(true);
  EXPECT_TRUE(ui->CanClose());
  ExpectAsked(0);
}

TEST_F(InstallerUIClosingTest, CancelWithNoStaysOnEveryPage) {
  AddHosts({9});
  BuildAndShow();
  for (const std::uint32_t page : {InstallerUI::kWelcomePage, InstallerUI::kLicencePage,
                                   InstallerUI::kHostPage, InstallerUI::kSummaryPage}) {
    ASSERT_EQ(ui->GetPage(), page);
    Answer("NO");
    Press(CancelButton());
    EXPECT_FALSE(ui->IsClosed());
    EXPECT_EQ(ui->GetPage(), page);
    if (page != InstallerUI::kSummaryPage) Press(NextButton());
  }
  ExpectAsked(4);
}

TEST_F(InstallerUIClosingTest, CancelWithYesClosesOnEveryPage) {
  for (int presses = 0; presses < 4; ++presses) {
    hosts = std::make_unique<FakeHostSources>();
    AddHosts({9});
    BuildAndShow();
    for (int i = 0; i < presses; ++i) Press(NextButton());
    Answer("YES (CANCEL)");
    Press(CancelButton());
    EXPECT_TRUE(ui->IsClosed()) << presses;
    EXPECT_FALSE([[ui->GetNativeView() window] isVisible]);
  }
  ExpectAsked(4);
}

TEST_F(InstallerUIClosingTest, CloseButtonAsksAsCancelDoes) {
  BuildAndShow();
  Answer("NO");
  PressCloseButton(*ui);
  EXPECT_FALSE(ui->IsClosed());
  EXPECT_TRUE([[ui->GetNativeView() window] isVisible]);
  Answer("YES (CANCEL)");
  PressCloseButton(*ui);
  EXPECT_TRUE(ui->IsClosed());
  ExpectAsked(2);
}

TEST_F(InstallerUIClosingTest, FinishClosesWithoutAQuestion) {
  AddHosts({9});
  BuildAndShow();
  GoToFinish();
  Press(CancelButton());
  EXPECT_TRUE(ui->IsClosed());
  ExpectAsked(0);
}

TEST_F(InstallerUIClosingTest, CloseButtonOfTheFinishPageAsksNothing) {
  AddHosts({9});
  BuildAndShow();
  GoToFinish();
  PressCloseButton(*ui);
  EXPECT_TRUE(ui->IsClosed());
  ExpectAsked(0);
}

TEST_F(InstallerUIClosingTest, TheWizardSurvivesManyQuestions) {
  BuildAndShow();
  const std::size_t children = ui->GetChildren().size();
  for (int i = 0; i < 30; ++i) {
    Answer("NO");
    Press(CancelButton());
  }
  ExpectAsked(30);
  EXPECT_EQ(ui->GetChildren().size(), children);
  EXPECT_TRUE(ui->IsEnabled());
}

}  // namespace
