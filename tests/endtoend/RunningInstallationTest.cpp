#include <filesystem>
#include <optional>

#include "tests/endtoend/CopyGate.h"
#include "tests/endtoend/EndToEndTest.h"
#include "tests/endtoend/Waiting.h"

namespace {

constexpr int kToolsForAHost = 4;
constexpr int kKilled = 128 + 9;

/// Held up while the first host's bundle is being copied.
class RunningInstallationTest : public EndToEndTest {
 protected:
  /// Starts the run and waits until it waits for its first tool for the data:
  /// everything for the hosts, and moving the data, has been accepted by then.
  void StartRun() {
    ASSERT_TRUE(StartOn(Page::kSummary));
    gate.emplace(machine.Resource("Ostrel64.plugin/Contents/MacOS/Ostrel"));
    const int pipes = application->CountPipes();
    wizard.Click(Wizard::kNext);
    ASSERT_TRUE(wizard.IsOn(Page::kProgress));
    ASSERT_TRUE(gate->WaitForVisitor());
    const int expected = pipes + kToolsForAHost * Machine::kHostCount + 1;
    ASSERT_TRUE(WaitUntil([this, expected] { return application->CountPipes() >= expected; }))
        << application->CountPipes() << " pipes and not " << expected;
    ASSERT_FALSE(std::filesystem::exists(machine.MachineData()));
  }

  void ExpectAllInstalled() const {
    for (int row = 0; row < Machine::kHostCount; ++row) {
      EXPECT_TRUE(IsInstalled(machine.PluginFolder(row)));
    }
  }

  /// The bundles are there and the data moved; opening these to everyone would have come next.
  void ExpectAcceptedToolsDone() {
    ASSERT_EQ(application->WaitForTools(), "");
    ExpectAllInstalled();
    EXPECT_FALSE(std::filesystem::exists(machine.UserData()));
    EXPECT_TRUE(std::filesystem::exists(machine.MachineData() + "/settings.txt"));
    EXPECT_FALSE(IsDataMoved());
  }

  void ExpectFinish() {
    ASSERT_TRUE(wizard.IsOn(Page::kFinish));
    wizard.Click(Wizard::kCancel);
    ASSERT_TRUE(Ends());
    ExpectAllInstalled();
    EXPECT_TRUE(IsDataMoved());
  }

  std::optional<CopyGate> gate;
  const MessageBox question = Box(MessageBox::kQuestion);
};

TEST_F(RunningInstallationTest, NextAndBackAreDisabledAndCancelIsNot) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  wizard.Click(Wizard::kBack);
  wizard.Click(Wizard::kNext);
  const Picture picture = wizard.LookWithoutPointer();
  EXPECT_EQ(Wizard::PageIn(picture), Page::kProgress);
  EXPECT_EQ(picture.At(202, 322), Wizard::kDisabledFace);
  EXPECT_EQ(picture.At(292, 322), Wizard::kDisabledFace);
  gate->Open();
  ExpectFinish();
}

TEST_F(RunningInstallationTest, NoKeepsInstalling) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(question.IsUp());
  question.Click(Button::kNo);
  ASSERT_TRUE(question.IsGone());
  wizard.PressCloseButton();
  ASSERT_TRUE(question.IsUp());
  keyboard.Type("Escape");
  ASSERT_TRUE(question.IsGone());
  keyboard.TypeWith("Alt_L", "q");
  ASSERT_TRUE(question.IsUp());
  question.PressCloseButton();
  ASSERT_TRUE(question.IsGone());
  ASSERT_TRUE(wizard.IsOn(Page::kProgress));
  gate->Open();
  ExpectFinish();
}

TEST_F(RunningInstallationTest, YesEndsTheInstallerAndAcceptedToolsFinish) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(question.IsUp());
  question.Click(Button::kYes);
  ASSERT_EQ(application->WaitForEnd(), 0);
  gate->Open();
  ExpectAcceptedToolsDone();
}

TEST_F(RunningInstallationTest, YesToTheCloseButtonDoesTheSame) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  wizard.PressCloseButton();
  ASSERT_TRUE(question.IsUp());
  question.Click(Button::kYes);
  ASSERT_EQ(application->WaitForEnd(), 0);
  gate->Open();
  ExpectAcceptedToolsDone();
}

TEST_F(RunningInstallationTest, YesToQuittingDoesTheSame) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  keyboard.TypeWith("Alt_L", "q");
  ASSERT_TRUE(question.IsUp());
  question.Click(Button::kYes);
  ASSERT_EQ(application->WaitForEnd(), 0);
  gate->Open();
  ExpectAcceptedToolsDone();
}

TEST_F(RunningInstallationTest, AcceptedToolsFinishWhenTheInstallerIsKilled) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  application->Kill();
  ASSERT_EQ(application->WaitForEnd(), kKilled);
  gate->Open();
  ExpectAcceptedToolsDone();
}

TEST_F(RunningInstallationTest, TheEndBehindTheQuestionLeavesTheFinishToNo) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(question.IsUp());
  gate->Open();
  ASSERT_TRUE(WaitUntil([this] { return bool{IsDataMoved()}; }));
  EXPECT_TRUE(question.IsUp());
  question.Click(Button::kNo);
  ASSERT_TRUE(question.IsGone());
  ExpectFinish();
}

TEST_F(RunningInstallationTest, TheEndBehindTheQuestionLetsYesClose) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(question.IsUp());
  gate->Open();
  ASSERT_TRUE(WaitUntil([this] { return bool{IsDataMoved()}; }));
  question.Click(Button::kYes);
  ASSERT_TRUE(Ends());
  ExpectAllInstalled();
}

TEST_F(RunningInstallationTest, NothingIsAskedOnceItIsFinished) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  gate->Open();
  ASSERT_TRUE(wizard.IsOn(Page::kFinish));
  keyboard.TypeWith("Alt_L", "q");
  ASSERT_TRUE(Ends());
  EXPECT_TRUE(IsDataMoved());
}

TEST_F(RunningInstallationTest, TheCloseButtonAsksNothingOnceItIsFinished) {
  ASSERT_NO_FATAL_FAILURE(StartRun());
  gate->Open();
  ASSERT_TRUE(wizard.IsOn(Page::kFinish));
  wizard.PressCloseButton();
  ASSERT_TRUE(Ends());
  EXPECT_TRUE(IsDataMoved());
}

}  // namespace
