#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <utility>

#include "installer/GNUstep/HelperChannel.h"
#include "installer/GNUstep/HelperLauncher.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"
#include "tests/support/OrdinaryUser.h"

namespace {

constexpr const char* kHelper = OSTREL_HELPER_PATH;

// Whether a helper started now greets.
bool Greets(const HelperLauncher& launcher) {
  const HelperChannel channel(launcher.Start());
  HelperMessage hello;
  return channel.Receive(&hello, nullptr) == HelperChannel::Receipt::kMessage &&
         hello.kind == HelperMessage::Kind::kHello;
}

class HelperLauncherTest : public testing::Test {
 protected:
  // A program in the place of pkexec that does something before it starts the helper.
  HelperLauncher Asking(const std::string& before) const {
    const std::string text = "#!/bin/sh\n" + before + "\nexec \"$@\"\n";
    return HelperLauncher({folder.Write("ask", text, 0755)}, kHelper);
  }

  const HelperLauncher direct{{}, kHelper};
  HelperTestFolder folder;
  HelperTestProcess processes;
};

TEST_F(HelperLauncherTest, StartsTheHelper) {
  EXPECT_FALSE(direct.Asks());
  EXPECT_TRUE(Greets(direct));
}

TEST_F(HelperLauncherTest, StartsTheHelperThroughAnotherProgram) {
  const HelperLauncher launcher = Asking("echo \"$@\" > " + folder.Path("words"));
  EXPECT_TRUE(launcher.Asks());
  EXPECT_TRUE(Greets(launcher));
  EXPECT_EQ(HelperTestFolder::Read(folder.Path("words")), std::string(kHelper) + "\n");
}

TEST_F(HelperLauncherTest, PutsTheHelperBehindTheWordsOfTheLauncher) {
  const std::string script = folder.Write("ask", "#!/bin/sh\nshift 2\nexec \"$@\"\n", 0755);
  EXPECT_TRUE(Greets(HelperLauncher({script, "--first", "--second"}, kHelper)));
}

TEST_F(HelperLauncherTest, StartsNothingWhenAProgramIsMissing) {
  const std::string plain = folder.Write("plain", "#!/bin/sh\n", 0644);
  EXPECT_FALSE(HelperLauncher({}, folder.Path("missing")).Start().IsOpen());
  EXPECT_FALSE(HelperLauncher({}, plain).Start().IsOpen());
  EXPECT_FALSE(HelperLauncher({}, "OstrelInstallerHelper").Start().IsOpen());
  EXPECT_FALSE(HelperLauncher({folder.Path("missing")}, kHelper).Start().IsOpen());
  EXPECT_FALSE(HelperLauncher({"/bin/sh"}, folder.Path("missing")).Start().IsOpen());
}

TEST_F(HelperLauncherTest, ShowsTheEndOfAProgramThatDoesNotServe) {
  const std::string broken = folder.Write("broken", "no program at all", 0755);
  EXPECT_FALSE(Greets(HelperLauncher({}, broken)));
  EXPECT_FALSE(Greets(HelperLauncher({}, "/bin/true")));
}

TEST_F(HelperLauncherTest, LeavesTheCallerWithoutChildren) {
  const pid_t child = HelperTestProcess::Fork([this] {
    const HelperChannel channel(direct.Start());
    HelperMessage hello;
    const bool greets = channel.Receive(&hello, nullptr) == HelperChannel::Receipt::kMessage;
    const bool childless = ::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD;
    return greets && childless ? 0 : 1;
  });
  EXPECT_EQ(HelperTestProcess::Wait(child), 0);
}

TEST_F(HelperLauncherTest, GivesTheHelperAParentThatHoldsNothing) {
  const HelperLauncher launcher = Asking("echo $PPID > " + folder.Path("parent"));
  const HelperChannel channel(launcher.Start());
  HelperMessage hello;
  ASSERT_EQ(channel.Receive(&hello, nullptr), HelperChannel::Receipt::kMessage);
  const int parent = std::atoi(HelperTestFolder::Read(folder.Path("parent")).c_str());
  ASSERT_GT(parent, 1);
  EXPECT_NE(parent, ::getpid());
  EXPECT_EQ(::kill(parent, 0), 0);
  EXPECT_TRUE(HelperTestProcess::Await(
      [parent] { return HelperTestProcess::Descriptors(std::to_string(parent)).empty(); }));
}

TEST_F(HelperLauncherTest, GivesTheAskingProgramNothingOfTheCaller) {
  // The status is read by the shell alone: while it starts a program it blocks signals itself.
  const HelperLauncher launcher =
      Asking("while read -r line; do echo \"$line\"; done < /proc/$$/status > " +
             folder.Path("status") + "\npwd -P > " + folder.Path("folder") +
             "\n/bin/ls /proc/$$/fd > " + folder.Path("descriptors"));
  const pid_t child = HelperTestProcess::Fork([&] {
    sigset_t all;
    sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, nullptr);
    ::signal(SIGTERM, SIG_IGN);
    const bool arranged = ::dup2(STDERR_FILENO, 77) == 77 && ::chdir("/usr") == 0;
    return arranged && Greets(launcher) ? 0 : 1;
  });
  ASSERT_EQ(HelperTestProcess::Wait(child), 0);
  EXPECT_EQ(HelperTestFolder::Read(folder.Path("folder")), "/\n");
  const std::string descriptors = HelperTestFolder::Read(folder.Path("descriptors"));
  EXPECT_EQ(descriptors.substr(0, 4), "0\n1\n");
  EXPECT_EQ(descriptors.find("77"), std::string::npos) << descriptors;
  const std::string status = HelperTestFolder::Read(folder.Path("status"));
  for (const char* line : {"SigBlk:\t", "SigIgn:\t"}) {
    const std::size_t start = status.find(line);
    ASSERT_NE(start, std::string::npos);
    const auto signals = std::stoull(status.substr(start + 8, 16), nullptr, 16);
    EXPECT_EQ(signals & (1U << (SIGTERM - 1)), 0U) << line;
  }
}

TEST_F(HelperLauncherTest, KeepsNoDescriptorOfTheCallerOpen) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe(pipe.data()), 0);  // Inheritable, as a display connection may be.
  const HelperChannel channel(direct.Start());
  HelperMessage hello;
  ASSERT_EQ(channel.Receive(&hello, nullptr), HelperChannel::Receipt::kMessage);
  ::close(pipe[1]);
  EXPECT_EQ(HelperTestProcess::ReadAll(pipe[0]), "");
  ::close(pipe[0]);
}

TEST_F(HelperLauncherTest, LeavesNoDescriptorBehind) {
  const auto before = HelperTestProcess::Descriptors();
  EXPECT_TRUE(Greets(direct));
  EXPECT_FALSE(Greets(HelperLauncher({}, "/bin/true")));
  EXPECT_FALSE(Greets(HelperLauncher({}, folder.Path("missing"))));
  EXPECT_EQ(HelperTestProcess::Descriptors(), before);
}

TEST_F(HelperLauncherTest, LeavesNoProcessBehind) {
  EXPECT_TRUE(Greets(direct));
  HelperTestProcess::WaitForAll();
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(HelperLauncherTest, WorksWithEveryCombinationOfClosedStandardStreams) {
  for (int closed = 1; closed < 8; ++closed) {
    const pid_t child = HelperTestProcess::Fork([this, closed] {
      for (int stream = 0; stream < 3; ++stream) {
        if ((closed >> stream & 1) != 0) {
          ::close(stream);
        }
      }
      return Greets(direct) ? 0 : 1;
    });
    EXPECT_EQ(HelperTestProcess::Wait(child), 0) << closed;
  }
}

TEST_F(HelperLauncherTest, WorksWithAnySignalSettingsOfTheCaller) {
  const pid_t child = HelperTestProcess::Fork([this] {
    sigset_t all;
    sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, nullptr);
    ::signal(SIGCHLD, SIG_IGN);
    ::signal(SIGPIPE, SIG_IGN);
    return Greets(direct) ? 0 : 1;
  });
  EXPECT_EQ(HelperTestProcess::Wait(child), 0);
}

TEST_F(HelperLauncherTest, PassesNothingOfTheEnvironmentButAPath) {
  ::setenv("OSTREL_HELPER_TEST", "leaks", 1);
  EXPECT_TRUE(
      Greets(Asking("/usr/bin/tr '\\0' '\\n' < /proc/$$/environ > " + folder.Path("environment"))));
  ::unsetenv("OSTREL_HELPER_TEST");
  EXPECT_EQ(HelperTestFolder::Read(folder.Path("environment")),
            "PATH=/usr/sbin:/usr/bin:/sbin:/bin\n");
}

TEST_F(HelperLauncherTest, AsksNobodyWhenTheProcessIsRootAlready) {
  EXPECT_EQ(HelperLauncher::ForThisProcess().Asks(), ::geteuid() != 0);
}

TEST_F(HelperLauncherTest, AsksForAnOrdinaryUser) {
  EXPECT_TRUE(AskAsOrdinaryUser([] { return HelperLauncher::ForThisProcess().Asks(); }));
}

}  // namespace
