#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "tests/installer/GNUstep/HelperTestClient.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

void TakeSocketAsInput(int type) {
  std::array<int, 2> ends{};
  ::close(STDIN_FILENO);
  ::socketpair(AF_UNIX, type, 0, ends.data());
}

// A connection to a socket with a name, which anybody could have made.
void TakeConnectionAsInput() {
  ::close(STDIN_FILENO);
  const int listening = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
  const sockaddr_un nameless{AF_UNIX, {}};
  sockaddr_un given{};
  socklen_t size = sizeof(given);
  // Bound without a name, it is given one by the system.
  static_cast<void>(
      ::bind(listening, reinterpret_cast<const sockaddr*>(&nameless), sizeof(nameless.sun_family)));
  ::listen(listening, 1);
  ::getsockname(listening, reinterpret_cast<sockaddr*>(&given), &size);
  const int connecting = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
  static_cast<void>(::connect(connecting, reinterpret_cast<const sockaddr*>(&given), size));
  ::dup2(::accept(listening, nullptr, nullptr), STDIN_FILENO);
}

/// The root helper as a program, started by somebody careless or hostile.
class RootHelperMainTest : public testing::Test {
 protected:
  // It serves as it should: a tool runs, with the usual modes, and the helper ends well.
  void ExpectService() {
    ASSERT_TRUE(client.IsGreeted());
    ASSERT_EQ(client.Ask({"/bin/mkdir", made}), 0);
    EXPECT_EQ(HelperTestProcess::ReadAll(client.Pipe().Number()), "");
    EXPECT_EQ(HelperTestFolder::Mode(made), 0755U);
    EXPECT_EQ(client.Finish(), 0);
  }

  std::string OfProcess(const std::string& name) const {
    return "/proc/" + std::to_string(client.Process()) + "/" + name;
  }

  HelperTestFolder folder;
  const std::string made = folder.Path("made");
  HelperTestClient client;
};

TEST_F(RootHelperMainTest, ServesWithoutArgumentsAndEnvironment) {
  client.Start();
  ExpectService();
  EXPECT_EQ(client.Errors(), "");
}

TEST_F(RootHelperMainTest, RefusesAnyOtherStandardInput) {
  const std::vector<std::function<void()>> inputs = {
      [] { ::close(STDIN_FILENO); },
      [] {
        ::close(STDIN_FILENO);
        ::open("/dev/null", O_RDWR);
      },
      [] { TakeSocketAsInput(SOCK_STREAM); },
      [] { TakeSocketAsInput(SOCK_DGRAM); },
      [] {
        ::close(STDIN_FILENO);
        ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
      },
      TakeConnectionAsInput,
  };
  for (const auto& input : inputs) {
    HelperTestClient refused;
    refused.Start({}, input);
    EXPECT_EQ(refused.Finish(), 2);
    EXPECT_EQ(refused.Errors(), "OstrelInstallerHelper is started by the installer only.\n");
  }
}

TEST_F(RootHelperMainTest, RunsTheSystemsToolsWhateverTheEnvironmentSays) {
  const std::string trap = folder.Write("mkdir", "#!/bin/sh\n: > " + folder.Path("trapped"), 0755);
  client.Start({"PATH=" + folder.Path(""), "IFS=/", "LC_ALL=xx_YY.UTF-8", "LANG=xx", "ENV=" + trap,
                "BASH_ENV=" + trap, "TMPDIR=/missing", "POSIXLY_CORRECT=1", "HOME=relative"});
  ExpectService();
  EXPECT_EQ(client.Errors(), "");
  EXPECT_FALSE(HelperTestFolder::Exists(folder.Path("trapped")));
}

TEST_F(RootHelperMainTest, HandsNoPreloadedLibraryToItsTools) {
  client.Start({"LD_PRELOAD=" + folder.Path("missing.so")});
  ExpectService();
  // The loader complains once, for the helper itself, and not again for mkdir.
  const std::string& errors = client.Errors();
  const std::size_t first = errors.find("missing.so");
  ASSERT_NE(first, std::string::npos);
  EXPECT_EQ(errors.find("missing.so", first + 1), std::string::npos) << errors;
}

TEST_F(RootHelperMainTest, ServesWithClosedStandardStreams) {
  for (const int closed : {1, 2, 3}) {
    HelperTestClient other;
    const std::string path = folder.Path(std::to_string(closed));
    other.Start({}, [closed] {
      if ((closed & 1) != 0) {
        ::close(STDOUT_FILENO);
      }
      if ((closed & 2) != 0) {
        ::close(STDERR_FILENO);
      }
    });
    ASSERT_TRUE(other.IsGreeted());
    // The second one complains, which must not end up in the pipe or in the socket.
    for (int round = 0; round < 2; ++round) {
      ASSERT_EQ(other.Ask({"/bin/mkdir", path}), 0);
      EXPECT_EQ(HelperTestProcess::ReadAll(other.Pipe().Number()), "");
    }
    EXPECT_TRUE(HelperTestFolder::Exists(path));
    EXPECT_EQ(std::filesystem::read_symlink("/proc/" + std::to_string(other.Process()) + "/fd/1"),
              "/dev/null");
    // It is there for the tools too: a file that they open must not become their standard error.
    const std::string about = "/proc/" + std::to_string(other.Process()) + "/fdinfo/2";
    const std::string information = HelperTestFolder::Read(about);
    const std::size_t flags = information.find("flags:\t");
    ASSERT_NE(flags, std::string::npos) << information;
    EXPECT_EQ(std::stoul(information.substr(flags + 7), nullptr, 8) & O_CLOEXEC, 0U);
    EXPECT_EQ(other.Finish(), 0);
  }
}

TEST_F(RootHelperMainTest, ServesUnderAnyMaskFolderAndSignals) {
  client.Start({}, [this] {
    sigset_t all;
    sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, nullptr);
    ::signal(SIGCHLD, SIG_IGN);
    ::umask(0777);
    if (::chdir(folder.Path("").c_str()) != 0) {
      ::_exit(1);
    }
  });
  ExpectService();
}

TEST_F(RootHelperMainTest, BelongsToNoTerminalAndStaysInNoFolder) {
  client.Start({}, [this] {
    if (::chdir(folder.Path("").c_str()) != 0) {
      ::_exit(1);
    }
  });
  ASSERT_TRUE(client.IsGreeted());
  EXPECT_EQ(::getsid(client.Process()), client.Process());
  EXPECT_EQ(std::filesystem::read_symlink(OfProcess("cwd")), "/");
}

TEST_F(RootHelperMainTest, HoldsNoDescriptorsButItsOwn) {
  client.Start({}, [] {
    for (int copy = 3; copy < 40; ++copy) {
      ::dup2(STDERR_FILENO, copy);
    }
  });
  ASSERT_TRUE(client.IsGreeted());
  // Besides the standard streams: the socket and the notice of ended tools. The greeting comes
  // last of its preparations.
  EXPECT_EQ(HelperTestProcess::Descriptors(std::to_string(client.Process())).size(), 5U);
  ASSERT_EQ(client.Ask({"/bin/mkdir", made}), 0);
  EXPECT_EQ(HelperTestProcess::ReadAll(client.Pipe().Number()), "");
  // And once a tool has run, the turn; none where the folder of the turns cannot be opened.
  EXPECT_EQ(HelperTestProcess::Descriptors(std::to_string(client.Process())).size(),
            ::geteuid() == 0 ? 6U : 5U);
}

TEST_F(RootHelperMainTest, SleepsWhileThereIsNothingToDo) {
  client.Start();
  ASSERT_TRUE(client.IsGreeted());
  ASSERT_EQ(client.Ask({"/bin/mkdir", made}), 0);
  EXPECT_EQ(HelperTestProcess::ReadAll(client.Pipe().Number()), "");
  EXPECT_TRUE(HelperTestProcess::Await([this] {
    return HelperTestFolder::Read(OfProcess("stat")).find(") S ") != std::string::npos;
  }));
}

TEST_F(RootHelperMainTest, IsNotEndedByTheSignalsOfATerminal) {
  client.Start();
  ASSERT_TRUE(client.IsGreeted());
  for (const int each : {SIGHUP, SIGINT, SIGPIPE}) {
    ASSERT_EQ(::kill(client.Process(), each), 0);
  }
  ASSERT_EQ(client.Ask({"/bin/mkdir", made}), 0);
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_TRUE(HelperTestFolder::Exists(made));
}

TEST_F(RootHelperMainTest, CopiesOnWhenNobodyReadsItsComplaints) {
  folder.MakeFolder("source");
  folder.MakeFolder("target");
  for (int each = 0; each < 20; ++each) {
    const std::string name = std::to_string(each);
    folder.Write("source/" + name, "new");
    if (each % 2 == 1) {
      folder.MakeFolder("target/" + name);  // A folder is in the way of the file.
    }
  }
  client.Start();
  client.StopReadingErrors();
  ASSERT_TRUE(client.IsGreeted());
  ASSERT_EQ(client.Ask({"/bin/sh"}).value_or(0) != 0, true);
  ASSERT_EQ(client.Ask({"/usr/bin/ditto", folder.Path("source"), folder.Path("target")}), 0);
  EXPECT_EQ(client.Finish(), 0);
  for (int each = 0; each < 20; each += 2) {
    EXPECT_EQ(HelperTestFolder::Read(folder.Path("target/" + std::to_string(each))), "new") << each;
  }
}

}  // namespace
