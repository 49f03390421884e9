#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <memory>

#include "tests/endtoend/EndToEndTest.h"
#include "tests/endtoend/PolicySystem.h"

namespace {

using Agent = PolicySystem::Agent;
using Rule = PolicySystem::Rule;

constexpr uid_t kNobody = 65534;
constexpr int kDismissed = 126;
constexpr int kNotGranted = 127;

uid_t OwnerOf(const std::filesystem::path& path) {
  struct stat status {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status.st_uid;
}

/// The installer of an ordinary user, before the real pkexec and the real polkit.
class RightsTest : public EndToEndTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(geteuid(), 0U) << "Only root can set up a system that grants rights: run the tests "
                                "as root.";
    machine.Furnish();
    machine.GiveToNobody();
  }

  void UseSystem(Rule rule, Agent agent) {
    system = std::make_unique<PolicySystem>(rule, agent);
    view = &system->View();
  }

  /// What pkexec itself ends with here, for the same user.
  int AskDirectly() {
    ChildProcess::Setup setup;
    setup.command = {"sh", "-c", "pkexec /bin/true; exit $?"};
    setup.environment = {"PATH=/usr/bin:/bin"};
    setup.user = User::kOrdinary;
    setup.view = view;
    return ChildProcess(setup).WaitForEnd().value_or(-1);
  }

  void RunToTheFinish() {
    Start(User::kOrdinary);
    ASSERT_TRUE(wizard.GoTo(Page::kSummary));
    wizard.Click(Wizard::kNext);
    ASSERT_TRUE(wizard.IsOn(Page::kFinish));
    wizard.Click(Wizard::kCancel);
    ASSERT_TRUE(Ends());
  }

  void ExpectInstalledByRoot() {
    for (int row = 0; row < Machine::kHostCount; ++row) {
      const std::string folder = machine.PluginFolder(row);
      EXPECT_TRUE(IsInstalled(folder));
      EXPECT_EQ(OwnerOf(folder), kNobody);
      EXPECT_EQ(OwnerOf(folder + "/Halvorix"), 0U);
      for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        EXPECT_EQ(OwnerOf(entry.path()), 0U) << entry.path();
      }
    }
    EXPECT_TRUE(IsDataMoved());
  }

  Tree Everything() const {
    Tree all;
    for (const char* part : {"Applications", "Library", "Users", "home", "Downloads",
                             "Plug-ins of 2019", "Plug-ins of the autumn"}) {
      for (const auto& [path, text] : ReadTree(machine.Path(part))) {
        all[std::string(part) + "/" + path] = text;
      }
    }
    return all;
  }

  /// To the message, through it, and not one file is another than before.
  void ExpectRefusal() {
    const Tree before = Everything();
    Start(User::kOrdinary);
    ASSERT_NO_FATAL_FAILURE(GoOnToTheError());
    EXPECT_EQ(DescribeDifference(before, Everything()), "");
    EXPECT_TRUE(IsUntouched());
  }

  std::unique_ptr<PolicySystem> system;
};

TEST_F(RightsTest, AUserWhomARuleAllowsIsLookedAtOnceAndGetsFilesOfRoot) {
  UseSystem(Rule::kAllow, Agent::kNone);
  ASSERT_NO_FATAL_FAILURE(RunToTheFinish());
  ExpectInstalledByRoot();
  EXPECT_EQ(system->CountDecisions(), 1);
}

TEST_F(RightsTest, AUserWhoKnowsThePasswordIsAskedOnceAndGetsFilesOfRoot) {
  UseSystem(Rule::kAsk, Agent::kGrants);
  ASSERT_NO_FATAL_FAILURE(RunToTheFinish());
  ExpectInstalledByRoot();
  EXPECT_EQ(system->CountQuestions(), 1);
}

TEST_F(RightsTest, AUserWhomARuleRefusesChangesNothing) {
  UseSystem(Rule::kRefuse, Agent::kNone);
  ASSERT_EQ(AskDirectly(), kNotGranted);
  ExpectRefusal();
  EXPECT_EQ(system->CountDecisions(), 2);
}

TEST_F(RightsTest, AUserWhoDismissesTheQuestionChangesNothing) {
  UseSystem(Rule::kAsk, Agent::kDismisses);
  ASSERT_EQ(AskDirectly(), kDismissed);
  ExpectRefusal();
  EXPECT_EQ(system->CountQuestions(), 2);
}

TEST_F(RightsTest, AUserWhoDoesNotKnowThePasswordChangesNothing) {
  UseSystem(Rule::kAsk, Agent::kFails);
  ASSERT_EQ(AskDirectly(), kNotGranted);
  ExpectRefusal();
}

TEST_F(RightsTest, AUserWhoCannotBeAskedChangesNothing) {
  UseSystem(Rule::kAsk, Agent::kNone);
  ASSERT_EQ(AskDirectly(), kNotGranted);
  ExpectRefusal();
}

TEST_F(RightsTest, ASystemWithoutPolkitChangesNothing) {
  const MountView bare([] { return MountView::MountEmpty("/run"); });
  view = &bare;
  ASSERT_EQ(AskDirectly(), kNotGranted);
  ExpectRefusal();
}

TEST_F(RightsTest, ASystemWithoutPkexecChangesNothing) {
  const MountView bare([] { return MountView::Bind("/dev/null", "/usr/bin/pkexec"); });
  view = &bare;
  ExpectRefusal();
}

}  // namespace
