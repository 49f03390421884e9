#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/endtoend/CopyGate.h"
#include "tests/endtoend/RunnerTest.h"
#include "tests/endtoend/Waiting.h"

namespace {

constexpr int kToolsForAHost = 4;
constexpr int kToolsForData = 3;
constexpr const char* kTurnsNeedRoot =
    "Only root's helpers wait for each other: run the tests as root.";

enum class Victim { kInstaller, kHelper, kTool };

const char* NameOf(Victim victim) {
  switch (victim) {
    case Victim::kInstaller:
      return "the installer";
    case Victim::kHelper:
      return "the helper";
    case Victim::kTool:
      break;
  }
  return "the tool";
}

/// A terminal that goes away ends the installer and its tools like any other signal; the
/// helper goes on.
std::vector<int> SignalsFor(Victim victim) {
  if (victim == Victim::kHelper) return {SIGKILL, SIGTERM, SIGHUP};
  return {SIGKILL, SIGTERM};
}

pid_t ParentOf(pid_t process) {
  std::ifstream stream("/proc/" + std::to_string(process) + "/status");
  for (std::string word; stream >> word;) {
    pid_t parent = 0;
    if (word == "PPid:" && stream >> parent) return parent;
  }
  return 0;
}

/// A run that something is killed in, and the run after it. The user's data stand on
/// the file system to which they are moved, or on another one.
class FaultTest : public RunnerTest, public testing::WithParamInterface<bool> {
 protected:
  FaultTest() {
    const std::string support = std::filesystem::path(machine.MachineData()).parent_path();
    See([&] { return gate.Arrange() && (!GetParam() || MountView::MountEmpty(support)); });
  }

  int FirstStepForData() const { return kToolsForAHost * static_cast<int>(hosts.size()); }
  int CountSteps() const { return FirstStepForData() + kToolsForData; }

  /// The pipes that a run holds when all tools for its hosts have been accepted. One more
  /// is that of its first tool for the data.
  int AcceptedForHosts() const { return FirstStepForData(); }

  pid_t ProcessOf(Victim victim, const Application& run) const {
    const pid_t tool = gate.Tool();
    if (victim == Victim::kInstaller) return run.Id();
    return victim == Victim::kTool ? tool : ParentOf(tool);
  }

  /// The first run, until nothing is left of it.
  void RunAndKill(Victim victim, int signal, int step) {
    gate.StopAt(step);
    const auto run = Start(hosts);
    ASSERT_TRUE(gate.WaitForTool());
    const pid_t process = ProcessOf(victim, *run);
    ASSERT_GT(process, 1);
    ASSERT_EQ(kill(process, signal), 0);
    if (victim != Victim::kTool) gate.Open();
    EXPECT_GE(run->WaitForEnd(), 0);
    EXPECT_EQ(run->WaitForTools(), "");
    gate.StopAt(ToolGate::kNowhere);
  }

  void ExpectThatASecondRunInstalls() {
    EXPECT_TRUE(IsNothingLost());
    EXPECT_EQ(Run(), 0);
    for (const std::string& host : hosts) EXPECT_TRUE(IsInstalled(host));
    EXPECT_TRUE(IsNothingLost());
    EXPECT_TRUE(std::filesystem::is_directory(view->Seen(machine.MachineData())));
  }

  /// A run that is held up when it reads `file`, and killed there.
  void RunAndKillAt(const std::string& file, Victim victim, int step) {
    gate.StopAt(step);
    const auto run = Start(hosts);
    ASSERT_TRUE(gate.WaitForTool());
    const pid_t process = ProcessOf(victim, *run);
    CopyGate held(file);
    gate.Open();
    ASSERT_TRUE(held.WaitForVisitor());
    ASSERT_EQ(kill(process, SIGKILL), 0);
    held.Open();
    EXPECT_GE(run->WaitForEnd(), 0);
    EXPECT_EQ(run->WaitForTools(), "");
    gate.StopAt(ToolGate::kNowhere);
  }

  void KillAtEveryStep(Victim victim) {
    // Where the data stand makes no difference before it is their turn.
    for (int step = GetParam() ? FirstStepForData() : 0; step < CountSteps(); ++step) {
      for (const int signal : SignalsFor(victim)) {
        SCOPED_TRACE(std::string(NameOf(victim)) + ", step " + std::to_string(step) + ", signal " +
                     std::to_string(signal));
        Reset();
        ASSERT_NO_FATAL_FAILURE(RunAndKill(victim, signal, step));
        ExpectThatASecondRunInstalls();
      }
    }
  }
};

TEST_P(FaultTest, AWholeRunHasTheseSteps) {
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(gate.CountSteps(), CountSteps());
  EXPECT_TRUE(HoldsData(machine.MachineData()));
  ExpectThatASecondRunInstalls();
}

TEST_P(FaultTest, TheInstallerKilledAtAnyStep) { KillAtEveryStep(Victim::kInstaller); }

TEST_P(FaultTest, TheHelperKilledAtAnyStep) { KillAtEveryStep(Victim::kHelper); }

TEST_P(FaultTest, AToolKilledAtAnyStep) { KillAtEveryStep(Victim::kTool); }

TEST_P(FaultTest, AnythingKilledInTheMiddleOfABundle) {
  constexpr int kCopyOfTheFirstHost = 2;
  for (const Victim victim : {Victim::kInstaller, Victim::kHelper, Victim::kTool}) {
    SCOPED_TRACE(NameOf(victim));
    Reset();
    ASSERT_NO_FATAL_FAILURE(RunAndKillAt(machine.Resource("Ostrel64.plugin/Contents/MacOS/Ostrel"),
                                         victim, kCopyOfTheFirstHost));
    // What was accepted is done without the installer.
    if (victim == Victim::kInstaller) {
      EXPECT_TRUE(IsInstalled(hosts.front()));
    }
    ExpectThatASecondRunInstalls();
  }
}

TEST_P(FaultTest, ASecondRunWaitsForTheToolsThatTheFirstLeft) {
  ASSERT_EQ(geteuid(), 0U) << kTurnsNeedRoot;
  for (int step = 0; step < kToolsForAHost; ++step) {
    SCOPED_TRACE(step);
    Reset();
    gate.StopAt(step);
    const auto first = Start(hosts);
    ASSERT_TRUE(gate.WaitForTool());
    // With the helper killed as well, it is the tool alone that is waited for.
    const pid_t helper = ParentOf(gate.Tool());
    ASSERT_EQ(kill(first->Id(), SIGKILL), 0);
    if (step % 2 == 1) kill(helper, SIGKILL);
    EXPECT_GE(first->WaitForEnd(), 0);
    const auto second = Start(hosts);
    ASSERT_TRUE(WaitUntil([&] { return second->CountPipes() > AcceptedForHosts(); }));
    EXPECT_EQ(gate.CountSteps(), step + 1);
    gate.Open();
    EXPECT_EQ(second->WaitForEnd(), 0);
    EXPECT_EQ(first->WaitForTools(), "");
    gate.StopAt(ToolGate::kNowhere);
    for (const std::string& host : hosts) EXPECT_TRUE(IsInstalled(host));
    EXPECT_TRUE(HoldsData(machine.MachineData()));
  }
}

// Both find no data of the machine, and both want to move their own there.
TEST_P(FaultTest, OfTwoUsersAtOnceTheLaterOneKeepsTheirOwnData) {
  ASSERT_EQ(geteuid(), 0U) << kTurnsNeedRoot;
  const std::string home = "home of another";
  const std::string place = machine.Path(home + "/GNUstep/Library/ApplicationSupport/Halvorix");
  const std::string settings = machine.AddUser(home);
  std::filesystem::create_directories(place);
  std::ofstream(place + "/theirs") << "theirs";
  gate.StopAt(FirstStepForData());
  const auto first = Start(hosts);
  ASSERT_TRUE(gate.WaitForTool());
  const auto second = Start(hosts, 1, {"GNUSTEP_CONFIG_FILE=" + settings});
  ASSERT_TRUE(WaitUntil([&] { return second->CountPipes() > AcceptedForHosts(); }));
  gate.Open();
  EXPECT_EQ(first->WaitForEnd(), 0);
  EXPECT_EQ(second->WaitForEnd(), 0);
  EXPECT_EQ(first->WaitForTools(), "");
  EXPECT_EQ(ReadWholeFile(place + "/theirs"), "theirs");
  EXPECT_TRUE(HoldsData(machine.MachineData()));
}

class MovingTest : public FaultTest {
 protected:
  /// Waits until the first file goes from the old place.
  bool WaitForARemoval(int changes) const {
    pollfd entry{changes, POLLIN, 0};
    return poll(&entry, 1, static_cast<int>(std::chrono::milliseconds(kPatience).count())) == 1;
  }
};

TEST_P(MovingTest, AnythingKilledInTheMiddleOfTheUsersDataLeavesThemWhole) {
  for (const Victim victim : {Victim::kInstaller, Victim::kHelper, Victim::kTool}) {
    SCOPED_TRACE(NameOf(victim));
    Reset();
    ASSERT_NO_FATAL_FAILURE(
        RunAndKillAt(machine.UserData() + "/Cache/empty", victim, FirstStepForData()));
    // Only what has been moved wholly is taken away where it was.
    EXPECT_EQ(HoldsData(machine.UserData()), victim == Victim::kTool);
    EXPECT_EQ(HoldsData(machine.MachineData()), victim != Victim::kTool);
    ExpectThatASecondRunInstalls();
  }
}

TEST_P(MovingTest, AToolKilledWhileItTakesAwayTheOldPlaceHasMovedEverything) {
  constexpr int kFiles = 2000;
  AddData("Cache/more", kFiles);
  gate.StopAt(FirstStepForData());
  const auto run = Start(hosts);
  ASSERT_TRUE(gate.WaitForTool());
  const int changes = inotify_init1(IN_CLOEXEC);
  ASSERT_GE(inotify_add_watch(changes, (machine.UserData() + "/Cache/more").c_str(), IN_DELETE), 0);
  gate.Open();
  EXPECT_TRUE(WaitForARemoval(changes));
  kill(gate.Tool(), SIGKILL);
  close(changes);
  EXPECT_EQ(run->WaitForEnd(), 0);
  EXPECT_EQ(run->WaitForTools(), "");
  gate.StopAt(ToolGate::kNowhere);
  EXPECT_TRUE(HoldsData(machine.MachineData()));
  ExpectThatASecondRunInstalls();
}

std::string NameOfPlaces(const testing::TestParamInfo<bool>& info) {
  return info.param ? "TwoFileSystems" : "OneFileSystem";
}

INSTANTIATE_TEST_SUITE_P(On, FaultTest, testing::Bool(), NameOfPlaces);
// On one file system moving is one step, which is done or not.
INSTANTIATE_TEST_SUITE_P(On, MovingTest, testing::Values(true), NameOfPlaces);

}  // namespace
