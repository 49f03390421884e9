#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "installer/GNUstep/ToolQueue.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

constexpr const char* kStatus = "/proc/self/status";

class ToolQueueTest : public testing::Test {
 protected:
  // Adds a command and returns the read end of its output.
  HelperDescriptor Add(std::vector<std::string> command) {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    queue.Add(std::move(command), HelperDescriptor(ends[1]));
    return HelperDescriptor(ends[0]);
  }

  HelperDescriptor AddShell(const std::string& script) { return Add({"/bin/sh", "-c", script}); }

  // Waits until the command that runs now can be reaped.
  static void AwaitEnd() {
    siginfo_t information{};
    ASSERT_EQ(::waitid(P_ALL, 0, &information, WEXITED | WNOWAIT), 0);
  }

  void Finish() {
    while (!queue.IsEmpty()) {
      AwaitEnd();
      queue.Reap();
    }
  }

  std::string OutputOf(std::vector<std::string> command) {
    const HelperDescriptor output = Add(std::move(command));
    Finish();
    return HelperTestProcess::ReadAll(output.Number());
  }

  HelperTestFolder folder;
  ToolQueue queue;
};

TEST_F(ToolQueueTest, IsEmptyAtFirst) {
  EXPECT_TRUE(queue.IsEmpty());
  queue.Reap();
  EXPECT_TRUE(queue.IsEmpty());
}

TEST_F(ToolQueueTest, RunsOneAfterAnotherInOrder) {
  const std::string log = folder.Path("log");
  std::vector<HelperDescriptor> outputs;
  std::string expected;
  for (int each = 0; each < 60; ++each) {
    const std::string number = std::to_string(each);
    outputs.push_back(
        AddShell("echo +" + number + " >> " + log + "; echo -" + number + " >> " + log));
    expected += "+" + number + "\n-" + number + "\n";
  }
  Finish();
  EXPECT_EQ(HelperTestFolder::Read(log), expected);
}

TEST_F(ToolQueueTest, HoldsTheOutputUntilTheCommandHasEnded) {
  const std::string gate = folder.Path("gate");
  ASSERT_EQ(::mkfifo(gate.c_str(), 0600), 0);
  // The command itself lets go of its output at once.
  const HelperDescriptor first = AddShell("exec >&-; read line < " + gate);
  const HelperDescriptor second = AddShell("echo second");
  {
    const HelperDescriptor open(::open(gate.c_str(), O_WRONLY));
    queue.Reap();
    EXPECT_FALSE(HelperTestProcess::IsReadable(first.Number()));
    EXPECT_FALSE(HelperTestProcess::IsReadable(second.Number()));
  }
  AwaitEnd();
  EXPECT_FALSE(HelperTestProcess::IsReadable(first.Number()));
  queue.Reap();
  EXPECT_EQ(HelperTestProcess::ReadAll(first.Number()), "");
  Finish();
  EXPECT_EQ(HelperTestProcess::ReadAll(second.Number()), "second\n");
}

TEST_F(ToolQueueTest, GoesOnAfterCommandsThatFail) {
  const HelperDescriptor fails = AddShell("exit 3");
  const HelperDescriptor dies = AddShell("kill -KILL $$");
  const HelperDescriptor missing = Add({folder.Path("missing")});
  testing::internal::CaptureStderr();
  EXPECT_EQ(OutputOf({"/bin/echo", "last"}), "last\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            folder.Path("missing") + " could not be started: No such file or directory\n");
  EXPECT_EQ(HelperTestProcess::ReadAll(missing.Number()), "");
}

TEST_F(ToolQueueTest, IsEmptyAgainWhenTheOnlyCommandCanNotBeStarted) {
  testing::internal::CaptureStderr();
  const HelperDescriptor output = Add({folder.Path("missing")});
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(queue.IsEmpty());
  EXPECT_EQ(HelperTestProcess::ReadAll(output.Number()), "");
}

TEST_F(ToolQueueTest, GivesAFixedEnvironment) {
  ::setenv("OSTREL_HELPER_TEST", "leaks", 1);
  EXPECT_EQ(OutputOf({"/usr/bin/env"}), "PATH=/usr/sbin:/usr/bin:/sbin:/bin\nLC_ALL=C\n");
  ::unsetenv("OSTREL_HELPER_TEST");
}

TEST_F(ToolQueueTest, PassesArgumentsAsTheyAre) {
  EXPECT_EQ(OutputOf({"/usr/bin/printf", "%s|", "a b", "$HOME", "*", "", "\xC3\xA9\n'\""}),
            "a b|$HOME|*||\xC3\xA9\n'\"|");
}

TEST_F(ToolQueueTest, GivesTheThreeStandardStreamsOnly) {
  // In a child, free of what this process itself may have inherited.
  const pid_t child = HelperTestProcess::Fork([this] {
    HelperDescriptor::CloseAllFrom(STDERR_FILENO + 1);
    const HelperDescriptor first = AddShell("exit");
    const HelperDescriptor behind = AddShell("exit");
    // The fourth is the folder that ls reads.
    return OutputOf({"/bin/ls", "/proc/self/fd"}) == "0\n1\n2\n3\n" ? 0 : 1;
  });
  EXPECT_EQ(HelperTestProcess::Wait(child), 0);
}

TEST_F(ToolQueueTest, GivesDefaultSignalsButForABrokenPipe) {
  sigset_t blocked;
  sigset_t previous;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  ::sigprocmask(SIG_BLOCK, &blocked, &previous);
  ::signal(SIGHUP, SIG_IGN);
  ::signal(SIGPIPE, SIG_IGN);
  const std::string blockedThere = OutputOf({"/bin/sed", "-n", "s/^SigBlk://p", kStatus});
  const std::string ignoredThere = OutputOf({"/bin/sed", "-n", "s/^SigIgn://p", kStatus});
  ::signal(SIGHUP, SIG_DFL);
  ::signal(SIGPIPE, SIG_DFL);
  ::sigprocmask(SIG_SETMASK, &previous, nullptr);
  // The real-time signals, from 32 on, are left out: the C library keeps the first ones to itself.
  EXPECT_EQ(std::stoull(blockedThere, nullptr, 16) & 0x7FFFFFFF, 0U);
  EXPECT_EQ(std::stoull(ignoredThere, nullptr, 16) & 0x7FFFFFFF, 1U << (SIGPIPE - 1));
}

}  // namespace
