#include "tests/endtoend/EndToEndTest.h"
#include "tests/endtoend/OtherWindow.h"
#include "tests/endtoend/Waiting.h"

namespace {

/// The platform's daemons belong to the session, not to the installer, and end in the middle:
/// above all the one that learns which application is active.
class LostDaemonsTest : public EndToEndTest {
 protected:
  /// The installer stops being active, and becomes so again.
  void TurnAwayAndBack() {
    { const OtherWindow other(desktop); }
    ASSERT_TRUE(WaitUntil([this] { return wizard.IsActive(); }));
  }

  void AskAndAnswer() {
    const MessageBox question = Box(MessageBox::kQuestion);
    wizard.Click(Wizard::kCancel);
    ASSERT_TRUE(question.IsUp());
    question.Click(Button::kNo);
    ASSERT_TRUE(question.IsGone());
  }
};

TEST_F(LostDaemonsTest, QuestionsAreAskedAndTheInstallationGoesOn) {
  ASSERT_TRUE(StartOn(Page::kHosts));
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    ASSERT_TRUE(application->KillDaemons(1));
    ASSERT_NO_FATAL_FAILURE(TurnAwayAndBack());
    ASSERT_NO_FATAL_FAILURE(AskAndAnswer());
    ASSERT_NO_FATAL_FAILURE(TurnAwayAndBack());
    ASSERT_TRUE(wizard.IsOn(Page::kHosts));
  }
  ASSERT_TRUE(application->KillDaemons(1));
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  for (int row = 0; row < Machine::kHostCount; ++row) {
    EXPECT_TRUE(IsInstalled(machine.PluginFolder(row)));
  }
  EXPECT_TRUE(IsDataMoved());
}

}  // namespace
