#include <gtest/gtest.h>
#include <pthread.h>

#include "tests/installer/WizardFixture.h"

namespace {

constexpr const char* kFailure =
    "An error occurred while installing Ostrel 3D.\nPlease contact support.\nError code:0";
constexpr const char* kExitQuestion =
    "Are you sure you want to cancel Ostrel 3D for After Effects installation?\n\n";

/// Threads get a stack that no machine has, for as long as this lives.
class NoThreads {
 public:
  NoThreads() {
    pthread_getattr_default_np(&before);
    pthread_attr_t huge;
    pthread_getattr_default_np(&huge);
    EXPECT_EQ(pthread_attr_setstacksize(&huge, std::size_t{1} << 56), 0);
    EXPECT_EQ(pthread_setattr_default_np(&huge), 0);
    pthread_attr_destroy(&huge);
  }
  ~NoThreads() {
    pthread_setattr_default_np(&before);
    pthread_attr_destroy(&before);
  }
  NoThreads(const NoThreads&) = delete;
  NoThreads& operator=(const NoThreads&) = delete;

 private:
  pthread_attr_t before;
};

/// From the start of the run to its end, as the wizard shows it.
class InstallerUIInstallTest : public WizardFixture {
 protected:
  void ExpectProgress() {
    EXPECT_EQ(ui->GetPage(), InstallerUI::kProgressPage);
    ExpectNavigationOff("Cancel");
  }

  void ExpectFinish() {
    EXPECT_EQ(ui->GetPage(), InstallerUI::kFinishPage);
    ExpectNavigationOff("Finish");
  }

  void ExpectNavigationOff(const char* cancelLabel) {
    EXPECT_FALSE(BackButton().IsEnabled());
    EXPECT_FALSE(NextButton().IsEnabled());
    EXPECT_TRUE(BackButton().IsVisible());
    EXPECT_TRUE(NextButton().IsVisible());
    EXPECT_EQ(BackButton().GetLabel(), "< Back");
    EXPECT_EQ(NextButton().GetLabel(), "Next >");
    EXPECT_TRUE(CancelButton().IsEnabled());
    EXPECT_EQ(CancelButton().GetLabel(), cancelLabel);
    EXPECT_FALSE(SummaryPanel().IsVisible());
    EXPECT_FALSE(HostPanel().IsVisible());
  }

  void StartHeldAt(const std::string& call) {
    AddHosts({10, 12});
    BuildAndShow();
    script.HoldAt(call);
    GoToProgress();
    PumpUntil([this] { return script.IsHeld(); }, "the run to be held");
  }

  void WaitForFinish() {
    PumpUntil([this] { return ui->GetPage() == InstallerUI::kFinishPage; }, "the finish page");
  }

  void WaitForClose() {
    PumpUntil([this] { return ui->IsClosed(); }, "the wizard to close");
  }

  /// Answers the message about the failure, and tells whether it was right.
  void ExpectFailureMessage() {
    WithMessage([this](HXPopupDialog& dialog) {
      EXPECT_TRUE(LooksLike(dialog, kFailure, false));
      EXPECT_FALSE(ui->IsClosed());
      PressIn(dialog, "OK");
    });
  }
};

TEST_F(InstallerUIInstallTest, NextOnTheSummaryStartsOneRun) {
  StartHeldAt("rights");
  ExpectProgress();
  Press(NextButton());
  Press(BackButton());
  ExpectProgress();
  script.Release();
  WaitForFinish();
  ExpectFinish();
  WaitForRun();
  EXPECT_EQ(script.GetCalls(), (std::vector<std::string>{
                                   "create",
                                   "rights system.privilege.admin",
                                   "redraw",
                                   "/bin/mkdir /Hosts/10/Plug-ins/Halvorix",
                                   "/bin/rm -rf /Hosts/10/Plug-ins/Halvorix/Ostrel.plugin",
                                   "/usr/bin/ditto /Resources/Ostrel64.plugin "
                                   "/Hosts/10/Plug-ins/Halvorix/Ostrel.plugin",
                                   "/bin/chmod -R 0755 /Hosts/10/Plug-ins/Halvorix/Ostrel.plugin",
                                   "redraw",
                                   "/bin/mkdir /Hosts/12/Plug-ins/Halvorix",
                                   "/bin/rm -rf /Hosts/12/Plug-ins/Halvorix/Ostrel.plugin",
                                   "/usr/bin/ditto /Resources/Ostrel64.plugin "
                                   "/Hosts/12/Plug-ins/Halvorix/Ostrel.plugin",
                                   "/bin/chmod -R 0755 /Hosts/12/Plug-ins/Halvorix/Ostrel.plugin",
                                   "redraw",
                                   "/bin/mkdir /Data2/Halvorix",
                                   "/bin/chmod -R 0777 /Data2/Halvorix",
                                   "free",
                                   "gone",
                               }));
}

TEST_F(InstallerUIInstallTest, FinishPageLeadsNowhere) {
  AddHosts({10});
  BuildAndShow();
  GoToFinish();
  Press(NextButton());
  Press(BackButton());
  ExpectFinish();
  EXPECT_EQ(script.Count("create"), 1U);
}

TEST_F(InstallerUIInstallTest, CustomFolderGetsThe64BitPlugin) {
  BuildAndShow();
  GoToHosts();
  Press(CustomBox());
  ui->hostPath[kCustomSlot] = "/Chosen";
  Press(NextButton());
  StartRun();
  WaitForFinish();
  EXPECT_EQ(script.Count("/usr/bin/ditto /Resources/Ostrel64.plugin /Chosen/"), 1U);
  EXPECT_EQ(script.Count("/usr/bin/ditto"), 1U);
}

TEST_F(InstallerUIInstallTest, EachStepRedrawsTheWindow) {
  StartHeldAt("rights");
  for (const char* call :
       {"/bin/mkdir /Hosts/10/", "/bin/mkdir /Hosts/12/", "/bin/mkdir /Data2/"}) {
    ExpectRedraw([&] { script.HoldAt(call); });
    PumpUntil([this] { return script.IsHeld(); }, call);
  }
  EXPECT_EQ(ui->installStep.load(), kDataFolderStep);
  script.Release();
  WaitForFinish();
  EXPECT_EQ(script.Count("redraw"), 3U);
}

TEST_F(InstallerUIInstallTest, AnyTimerPollsTheRun) {
  AddHosts({10});
  BuildAndShow();
  ui->OnTimer(0);
  EXPECT_EQ(ui->GetPage(), InstallerUI::kWelcomePage);
  ui->installDone.store(true);
  ui->OnTimer(7);
  EXPECT_EQ(ui->GetPage(), InstallerUI::kFinishPage);
  EXPECT_EQ(CancelButton().GetLabel(), "Finish");
}

TEST_F(InstallerUIInstallTest, RefusedRightsShowTheErrorAndClose) {
  AddHosts({10});
  BuildAndShow();
  script.rightsStatus = -60006;
  ExpectFailureMessage();
  GoToProgress();
  WaitForClose();
  EXPECT_EQ(messages, std::vector<std::string>{"Unexpected error"});
  EXPECT_EQ(ui->installStep.load(), -1);
  EXPECT_EQ(script.Count("/"), 0U);
}

TEST_F(InstallerUIInstallTest, CopyThatCannotStartShowsTheErrorAndCloses) {
  AddHosts({10, 12});
  BuildAndShow();
  script.copyStatus = -60031;
  ExpectFailureMessage();
  GoToProgress();
  WaitForClose();
  EXPECT_EQ(messages, std::vector<std::string>{"Unexpected error"});
  EXPECT_EQ(ui->installStep.load(), 10);
  EXPECT_EQ(script.Count("/usr/bin/ditto"), 1U);
}

TEST_F(InstallerUIInstallTest, ErrorMessageIsAnsweredByEscapeAndCloseButtonToo) {
  script.rightsStatus = -60005;
  for (const bool byKey : {true, false}) {
    hosts = std::make_unique<FakeHostSources>();
    AddHosts({10});
    BuildAndShow();
    WithMessage([this, byKey](HXPopupDialog& dialog) {
      if (byKey) {
        SendKey(dialog, @"\033");
      } else {
        PressCloseButton(dialog);
      }
    });
    GoToProgress();
    WaitForClose();
    WaitForRun();
  }
  EXPECT_EQ(messages, std::vector<std::string>(2, "Unexpected error"));
}

TEST_F(InstallerUIInstallTest, ErrorMessageEndsInTheCodeOfTheState) {
  AddHosts({10});
  BuildAndShow();
  script.rightsStatus = -1;
  ui->installError.store(-42);
  WithMessage([this](HXPopupDialog& dialog) {
    EXPECT_TRUE(LooksLike(dialog,
                          "An error occurred while installing Ostrel 3D.\n"
                          "Please contact support.\nError code:-42",
                          false));
    PressIn(dialog, "OK");
  });
  GoToProgress();
  WaitForClose();
  EXPECT_EQ(messages.size(), 1U);
}

TEST_F(InstallerUIInstallTest, RunWithoutAThreadIsAFailure) {
  AddHosts({10});
  BuildAndShow();
  GoToSummary();
  ExpectFailureMessage();
  {
    const NoThreads none;
    Press(NextButton());
  }
  EXPECT_EQ(ui->GetPage(), InstallerUI::kProgressPage);
  WaitForClose();
  EXPECT_EQ(messages, std::vector<std::string>{"Unexpected error"});
  EXPECT_TRUE(script.GetCalls().empty());
}

TEST_F(InstallerUIInstallTest, CancelDuringTheRunAsksAndNoKeepsInstalling) {
  StartHeldAt("/usr/bin/ditto");
  Answer("NO");
  Press(CancelButton());
  EXPECT_EQ(messages, std::vector<std::string>{"Exit Installer"});
  ExpectProgress();
  EXPECT_FALSE(ui->IsClosed());
  script.Release();
  WaitForFinish();
  ExpectFinish();
}

TEST_F(InstallerUIInstallTest, CancelDuringTheRunClosesWithoutStoppingIt) {
  StartHeldAt("/usr/bin/ditto");
  Answer("YES (CANCEL)");
  Press(CancelButton());
  EXPECT_TRUE(ui->IsClosed());
  EXPECT_FALSE(ui->installDone.load());
  script.Release();
  WaitForRun();
  EXPECT_TRUE(ui->installDone.load());
  EXPECT_FALSE(ui->installFailed.load());
  EXPECT_EQ(script.Count("/usr/bin/ditto"), 2U);
}

TEST_F(InstallerUIInstallTest, RunThatEndsBehindTheQuestionShowsTheFinishPage) {
  StartHeldAt("free");
  WithMessage([this](HXPopupDialog&) { script.Release(); });
  WithMessage(
      [this](HXPopupDialog& dialog) {
        ExpectFinish();
        EXPECT_TRUE(LooksLike(dialog, kExitQuestion, true));
        PressIn(dialog, "NO");
      },
      [this] { return ui->GetPage() == InstallerUI::kFinishPage; });
  Press(CancelButton());
  EXPECT_EQ(messages, std::vector<std::string>(2, "Exit Installer"));
  ExpectFinish();
  EXPECT_FALSE(ui->IsClosed());
  Press(CancelButton());
  EXPECT_TRUE(ui->IsClosed());
}

TEST_F(InstallerUIInstallTest, FailureBehindTheQuestionIsShownAboveIt) {
  script.rightsStatus = -60006;
  StartHeldAt("rights");
  WithMessage([this](HXPopupDialog&) { script.Release(); });
  WithMessage(
      [this](HXPopupDialog& dialog) {
        EXPECT_TRUE(LooksLike(dialog, kFailure, false));
        PressIn(dialog, "OK");
      },
      [this] { return TitleOf(*Message()) == "Unexpected error"; });
  WithMessage(
      [this](HXPopupDialog& dialog) {
        EXPECT_TRUE(ui->IsClosed());
        PressIn(dialog, "NO");
      },
      [this] { return ui->IsClosed(); });
  Press(CancelButton());
  EXPECT_EQ(messages,
            (std::vector<std::string>{"Exit Installer", "Unexpected error", "Exit Installer"}));
  EXPECT_TRUE(ui->IsClosed());
  EXPECT_EQ(Message(), nullptr);
}

}  // namespace
