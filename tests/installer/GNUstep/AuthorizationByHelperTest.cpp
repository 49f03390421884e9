#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "installer/GNUstep/AuthorizationByHelper.h"
#include "installer/GNUstep/AuthorizationStatus.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

constexpr const char* kHelper = OSTREL_HELPER_PATH;
constexpr const char* kRight = "system.privilege.admin";
using Words = std::vector<std::string>;

class AuthorizationByHelperTest : public testing::Test {
 protected:
  AuthorizationByHelperTest() { ::umask(022); }

  // Launches and returns the stream, which the test closes.
  FILE* Launch(const std::string& tool, const Words& arguments) {
    FILE* pipe = nullptr;
    EXPECT_EQ(authorization.ExecuteWithPrivileges(tool, arguments, &pipe), kAuthorizationSuccess)
        << tool;
    return pipe;
  }

  // Launches and waits for the end, as the data folder's steps do.
  void Run(const std::string& tool, const Words& arguments) {
    FILE* pipe = Launch(tool, arguments);
    ASSERT_NE(pipe, nullptr);
    EXPECT_EQ(std::fgetc(pipe), EOF);
    std::fclose(pipe);
  }

  // A program in the place of pkexec.
  HelperLauncher Asking(const std::string& script) const {
    return HelperLauncher({folder.Write("ask", "#!/bin/sh\n" + script, 0755)}, kHelper);
  }

  // A bundle with modes, a link and names that a shell would trip over.
  std::string MakeBundle() const {
    std::string bundle = folder.MakeFolder("Ostrel64.plugin", 0750);
    folder.MakeFolder("Ostrel64.plugin/Contents", 0700);
    folder.Write("Ostrel64.plugin/Contents/binary", "64 bit", 0700);
    folder.Write("Ostrel64.plugin/Contents/a b \xC3\xA9\n'$(x)", "odd", 0600);
    std::filesystem::create_symlink("binary", bundle + "/Contents/link");
    return bundle;
  }

  // The four tools of one host, without looking at their pipes.
  void LaunchInstallation(const std::string& source, const std::string& folderOfHost,
                          std::vector<FILE*>* pipes) {
    const std::string bundle = folderOfHost + "/Ostrel.plugin";
    pipes->push_back(Launch("/bin/mkdir", {folderOfHost}));
    pipes->push_back(Launch("/bin/rm", {"-rf", bundle}));
    pipes->push_back(Launch("/usr/bin/ditto", {source, bundle}));
    pipes->push_back(Launch("/bin/chmod", {"-R", "0755", bundle}));
  }

  static void Close(const std::vector<FILE*>& pipes) {
    for (FILE* pipe : pipes) {
      std::fclose(pipe);
    }
  }

  static void ExpectInstalled(const std::string& bundle) {
    const std::string contents = bundle + "/Contents";
    for (const std::string& path :
         {bundle, contents, contents + "/binary", contents + "/a b \xC3\xA9\n'$(x)"}) {
      EXPECT_EQ(HelperTestFolder::Mode(path), 0755U) << path;
    }
    EXPECT_EQ(HelperTestFolder::Read(contents + "/binary"), "64 bit");
    EXPECT_EQ(HelperTestFolder::Read(contents + "/a b \xC3\xA9\n'$(x)"), "odd");
    std::error_code error;
    EXPECT_EQ(std::filesystem::read_symlink(contents + "/link", error), "binary");
  }

  HelperTestFolder folder;
  HelperTestProcess processes;
  AuthorizationByHelper authorization{HelperLauncher({}, kHelper)};
  FILE* none = nullptr;

  void TearDown() override { authorization.Free(); }
};

TEST_F(AuthorizationByHelperTest, InstallsABundle) {
  const std::string source = MakeBundle();
  const std::string host = folder.MakeFolder("Plug-ins \xE2\x80\x9Cx\xE2\x80\x9D") + "/Halvorix";
  ASSERT_EQ(authorization.Create(), kAuthorizationSuccess);
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  Run("/bin/mkdir", {host});
  EXPECT_EQ(HelperTestFolder::Mode(host), 0755U);
  Run("/bin/rm", {"-rf", host + "/Ostrel.plugin"});
  Run("/usr/bin/ditto", {source, host + "/Ostrel.plugin"});
  EXPECT_EQ(HelperTestFolder::Mode(host + "/Ostrel.plugin"), 0750U);
  Run("/bin/chmod", {"-R", "0755", host + "/Ostrel.plugin"});
  ExpectInstalled(host + "/Ostrel.plugin");
}

TEST_F(AuthorizationByHelperTest, ReplacesAnInstalledBundleWholly) {
  const std::string source = MakeBundle();
  folder.MakeFolder("Halvorix");
  folder.MakeFolder("Halvorix/Ostrel.plugin", 0700);
  folder.Write("Halvorix/Ostrel.plugin/old", "old");
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  std::vector<FILE*> pipes;
  LaunchInstallation(source, folder.Path("Halvorix"), &pipes);
  EXPECT_EQ(std::fgetc(pipes.back()), EOF);
  Close(pipes);
  ExpectInstalled(folder.Path("Halvorix/Ostrel.plugin"));
  EXPECT_FALSE(HelperTestFolder::Exists(folder.Path("Halvorix/Ostrel.plugin/old")));
}

TEST_F(AuthorizationByHelperTest, CopiesIntoADestinationThatExistsInsteadOfBelowIt) {
  const std::string source = MakeBundle();
  const std::string target = folder.MakeFolder("Ostrel.plugin");
  folder.Write("Ostrel.plugin/kept", "kept");
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  Run("/usr/bin/ditto", {source, target});
  EXPECT_EQ(HelperTestFolder::Read(target + "/Contents/binary"), "64 bit");
  EXPECT_EQ(HelperTestFolder::Read(target + "/kept"), "kept");
  EXPECT_FALSE(HelperTestFolder::Exists(target + "/Ostrel64.plugin"));
}

TEST_F(AuthorizationByHelperTest, InstalledFilesBelongToRootWhoeverBuiltThem) {
  ASSERT_EQ(::geteuid(), 0U) << "Only root can give a file to another user: run this as root.";
  const std::string source = MakeBundle();
  ASSERT_EQ(::chown((source + "/Contents/binary").c_str(), 4711, 4711), 0);
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  Run("/usr/bin/ditto", {source, folder.Path("copy")});
  struct stat status {};
  ASSERT_EQ(::stat(folder.Path("copy/Contents/binary").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 0U);
  EXPECT_EQ(status.st_gid, 0U);
}

TEST_F(AuthorizationByHelperTest, MovesAndOpensADataFolder) {
  const std::string user = folder.MakeFolder("user", 0700);
  folder.Write("user/settings", "mine", 0600);
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  Run("/bin/mv", {user, folder.Path("shared")});
  EXPECT_FALSE(HelperTestFolder::Exists(user));
  Run("/bin/chmod", {"-R", "0777", folder.Path("shared")});
  EXPECT_EQ(HelperTestFolder::Mode(folder.Path("shared")), 0777U);
  EXPECT_EQ(HelperTestFolder::Mode(folder.Path("shared/settings")), 0777U);
  EXPECT_EQ(HelperTestFolder::Read(folder.Path("shared/settings")), "mine");
}

TEST_F(AuthorizationByHelperTest, ServesFourteenHostsWhosePipesNobodyReads) {
  const auto before = HelperTestProcess::Descriptors();
  const std::string source = MakeBundle();
  std::vector<FILE*> pipes;
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  for (int host = 0; host < 14; ++host) {
    LaunchInstallation(source, folder.Path(std::to_string(host)), &pipes);
  }
  // Tools run in order: at the end of this one all before it have ended.
  Run("/bin/mkdir", {folder.Path("data")});
  EXPECT_TRUE(HelperTestFolder::Exists(folder.Path("data")));
  for (int host = 0; host < 14; ++host) {
    ExpectInstalled(folder.Path(std::to_string(host) + "/Ostrel.plugin"));
  }
  authorization.Free();
  Close(pipes);
  EXPECT_EQ(HelperTestProcess::Descriptors(), before);
}

TEST_F(AuthorizationByHelperTest, SaysNothingAboutHowAToolEnds) {
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  Run("/bin/mkdir", {folder.Path("missing/below")});
  EXPECT_FALSE(HelperTestFolder::Exists(folder.Path("missing")));
}

TEST_F(AuthorizationByHelperTest, WaitingForAnyChildDoesNotWaitForTheHelper) {
  const pid_t child = HelperTestProcess::Fork([this] {
    AuthorizationByHelper own(HelperLauncher({}, kHelper));
    FILE* pipe = nullptr;
    const bool runs = own.CopyRights(kRight) == kAuthorizationSuccess &&
                      own.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe) ==
                          kAuthorizationSuccess;
    const bool childless = ::waitpid(-1, nullptr, 0) < 0 && errno == ECHILD;
    return runs && childless ? 0 : 1;
  });
  EXPECT_EQ(HelperTestProcess::Wait(child), 0);
}

TEST_F(AuthorizationByHelperTest, AcceptedToolsRunAfterTheRightsAreGivenUp) {
  const std::string source = MakeBundle();
  std::vector<FILE*> pipes;
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  LaunchInstallation(source, folder.Path("Halvorix"), &pipes);
  authorization.Free();
  authorization.Free();
  EXPECT_EQ(std::fgetc(pipes.back()), EOF);
  Close(pipes);
  ExpectInstalled(folder.Path("Halvorix/Ostrel.plugin"));
}

TEST_F(AuthorizationByHelperTest, AcceptedToolsRunAfterTheObjectHasGone) {
  {
    AuthorizationByHelper shortLived(HelperLauncher({}, kHelper));
    FILE* pipe = nullptr;
    ASSERT_EQ(shortLived.CopyRights(kRight), kAuthorizationSuccess);
    ASSERT_EQ(shortLived.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe), 0);
    std::fclose(pipe);
  }
  HelperTestProcess::WaitForAll();
  EXPECT_TRUE(HelperTestFolder::Exists(folder.Path("made")));
}

TEST_F(AuthorizationByHelperTest, AcceptedToolsRunAfterTheInstallerWasKilled) {
  const std::string source = MakeBundle();
  std::array<int, 2> ready{};
  ASSERT_EQ(::pipe(ready.data()), 0);
  const pid_t installer = HelperTestProcess::Fork([&] {
    std::vector<FILE*> pipes;
    if (authorization.CopyRights(kRight) != kAuthorizationSuccess) {
      return 1;
    }
    LaunchInstallation(source, folder.Path("Halvorix"), &pipes);
    if (::write(ready[1], "x", 1) != 1) {
      return 1;
    }
    ::pause();
    return 0;
  });
  ::close(ready[1]);
  char byte = 0;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  ::kill(installer, SIGKILL);
  EXPECT_EQ(HelperTestProcess::Wait(installer), -SIGKILL);
  HelperTestProcess::WaitForAll();
  ExpectInstalled(folder.Path("Halvorix/Ostrel.plugin"));
  ::close(ready[0]);
}

TEST_F(AuthorizationByHelperTest, FailsAtOnceWhenTheHelperHasDied) {
  AuthorizationByHelper mortal(Asking("echo $$ > " + folder.Path("pid") + "\nexec \"$@\"\n"));
  ASSERT_EQ(mortal.CopyRights(kRight), kAuthorizationSuccess);
  ASSERT_EQ(::kill(std::atoi(HelperTestFolder::Read(folder.Path("pid")).c_str()), SIGKILL), 0);
  FILE* pipe = stdin;
  EXPECT_EQ(mortal.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe),
            kAuthorizationToolExecuteFailure);
  EXPECT_EQ(pipe, nullptr);
  EXPECT_EQ(mortal.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe),
            kAuthorizationInvalidReference);
  EXPECT_FALSE(HelperTestFolder::Exists(folder.Path("made")));
}

TEST_F(AuthorizationByHelperTest, LaunchesNothingWithoutRights) {
  FILE* pipe = stdin;
  EXPECT_EQ(authorization.Create(), kAuthorizationSuccess);
  EXPECT_EQ(authorization.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe),
            kAuthorizationInvalidReference);
  EXPECT_EQ(pipe, nullptr);
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  authorization.Free();
  EXPECT_EQ(authorization.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe),
            kAuthorizationInvalidReference);
  EXPECT_FALSE(HelperTestFolder::Exists(folder.Path("made")));
}

TEST_F(AuthorizationByHelperTest, CreateStartsAnewWithoutRights) {
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  EXPECT_EQ(authorization.Create(), kAuthorizationSuccess);
  EXPECT_EQ(authorization.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &none),
            kAuthorizationInvalidReference);
  EXPECT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  Run("/bin/mkdir", {folder.Path("made")});
  EXPECT_TRUE(HelperTestFolder::Exists(folder.Path("made")));
}

TEST_F(AuthorizationByHelperTest, StartsOneHelperHoweverOftenItIsAsked) {
  AuthorizationByHelper asking(Asking("echo >> " + folder.Path("starts") + "\nexec \"$@\"\n"));
  EXPECT_EQ(asking.CopyRights(kRight), kAuthorizationSuccess);
  EXPECT_EQ(asking.CopyRights(kRight), kAuthorizationSuccess);
  EXPECT_EQ(HelperTestFolder::Read(folder.Path("starts")), "\n");
}

TEST_F(AuthorizationByHelperTest, GrantsNoOtherRight) {
  EXPECT_EQ(authorization.CopyRights("system.preferences"), kAuthorizationDenied);
  EXPECT_EQ(authorization.CopyRights(""), kAuthorizationDenied);
  EXPECT_EQ(authorization.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &none),
            kAuthorizationInvalidReference);
}

TEST_F(AuthorizationByHelperTest, TellsWhenTheUserRefuses) {
  for (const char* script : {"exit 126\n", "exit 127\n", "kill -KILL $$\n"}) {
    AuthorizationByHelper refused(Asking(script));
    EXPECT_EQ(refused.CopyRights(kRight), kAuthorizationCanceled) << script;
    EXPECT_EQ(refused.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &none),
              kAuthorizationInvalidReference);
  }
}

TEST_F(AuthorizationByHelperTest, TellsWhenNothingCanGrantRights) {
  for (const auto& launcher :
       {HelperLauncher({}, folder.Path("missing")),
        HelperLauncher({folder.Path("missing")}, kHelper), HelperLauncher({}, "/bin/true")}) {
    AuthorizationByHelper unable(launcher);
    EXPECT_EQ(unable.CopyRights(kRight), kAuthorizationToolExecuteFailure);
  }
}

TEST_F(AuthorizationByHelperTest, TakesNoRightsFromAProgramThatDoesNotGreet) {
  AuthorizationByHelper strange(Asking("echo hello >&0\nexec /bin/cat > /dev/null\n"));
  EXPECT_EQ(strange.CopyRights(kRight), kAuthorizationCanceled);
}

TEST_F(AuthorizationByHelperTest, GivesUpAfterAnAnswerOfTheWrongKind) {
  // Greets a second time in place of an answer.
  const std::string greeting = "printf 'OIH1H\\000' >&0\n";
  AuthorizationByHelper strange(Asking(greeting + greeting + "exec /bin/cat > /dev/null\n"));
  ASSERT_EQ(strange.CopyRights(kRight), kAuthorizationSuccess);
  FILE* pipe = stdin;
  EXPECT_EQ(strange.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe),
            kAuthorizationToolExecuteFailure);
  EXPECT_EQ(pipe, nullptr);
  EXPECT_EQ(strange.ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &pipe),
            kAuthorizationInvalidReference);
}

TEST_F(AuthorizationByHelperTest, GoesOnAfterARefusedTool) {
  ASSERT_EQ(authorization.CopyRights(kRight), kAuthorizationSuccess);
  FILE* pipe = stdin;
  EXPECT_EQ(authorization.ExecuteWithPrivileges("/bin/sh", {"-c", "true"}, &pipe),
            kAuthorizationToolExecuteFailure);
  EXPECT_EQ(pipe, nullptr);
  EXPECT_EQ(authorization.ExecuteWithPrivileges("/bin/mkdir", {"relative"}, &pipe),
            kAuthorizationToolEnvironmentError);
  EXPECT_EQ(
      authorization.ExecuteWithPrivileges("/bin/mkdir", {"/" + std::string(70000, 'x')}, &pipe),
      kAuthorizationToolEnvironmentError);
  EXPECT_EQ(authorization.ExecuteWithPrivileges(
                "/bin/mkdir", {folder.Path("made") + std::string("\0x", 2)}, &pipe),
            kAuthorizationToolEnvironmentError);
  EXPECT_FALSE(HelperTestFolder::Exists(folder.Path("made")));
  Run("/bin/mkdir", {folder.Path("made")});
  EXPECT_TRUE(HelperTestFolder::Exists(folder.Path("made")));
}

TEST_F(AuthorizationByHelperTest, IsTheServiceOfThisPlatform) {
  const std::unique_ptr<Authorization> platform = Authorization::ForThisPlatform();
  ASSERT_NE(dynamic_cast<AuthorizationByHelper*>(platform.get()), nullptr);
  EXPECT_EQ(platform->Create(), kAuthorizationSuccess);
  EXPECT_EQ(platform->ExecuteWithPrivileges("/bin/mkdir", {folder.Path("made")}, &none),
            kAuthorizationInvalidReference);
}

}  // namespace
