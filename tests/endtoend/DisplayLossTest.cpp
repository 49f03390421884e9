#include <gtest/gtest.h>

#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/DisplayServer.h"
#include "tests/endtoend/Pointer.h"
#include "tests/endtoend/RunnerTest.h"
#include "tests/endtoend/Wizard.h"

namespace {

/// The real installer, whose display goes away while it installs.
class DisplayLossTest : public RunnerTest {
 protected:
  DisplayLossTest() {
    // Without any application the host's preference file would not be looked at.
    machine.AddHost("Another Editor", "11.0", "XXXX");
    machine.Register();
    machine.SetPreferences({{"16.0", hosts[0]}, {Machine::kOtherVersion, hosts[1]}});
    See([this] { return gate.Arrange(); });
  }

  /// Until the tool of that step waits. Leaves no connection to the display behind.
  void InstallUntilTheGate(const DisplayServer& server) const {
    const Desktop desktop(server.name);
    Pointer pointer(desktop.Connection());
    const Wizard wizard(desktop, pointer);
    pointer.MoveTo(0, 0);
    ASSERT_TRUE(wizard.GoTo(Wizard::Page::kSummary));
    wizard.Click(Wizard::kNext);
    ASSERT_TRUE(gate.WaitForTool());
  }

  void LoseTheDisplayAt(int step) {
    Reset();
    DisplayServer server;
    gate.StopAt(step);
    Application installer(machine, {"DISPLAY=" + server.name}, ChildProcess::User::kRoot,
                          view.get());
    ASSERT_NO_FATAL_FAILURE(InstallUntilTheGate(server));
    server.Kill();
    EXPECT_GE(installer.WaitForEnd(), 0) << "it does not notice";
    gate.Open();
    EXPECT_EQ(installer.WaitForTools(), "");
    gate.StopAt(ToolGate::kNowhere);
  }
};

TEST_F(DisplayLossTest, TheInstallerEndsAtAnyStepAndTheNextRunInstalls) {
  constexpr int kSteps = 11;
  for (int step = 0; step < kSteps; ++step) {
    SCOPED_TRACE(step);
    ASSERT_NO_FATAL_FAILURE(LoseTheDisplayAt(step));
    EXPECT_TRUE(IsNothingLost());
    EXPECT_EQ(Run(), 0);
    for (const std::string& host : hosts) EXPECT_TRUE(IsInstalled(host));
    EXPECT_TRUE(IsNothingLost());
  }
}

}  // namespace
