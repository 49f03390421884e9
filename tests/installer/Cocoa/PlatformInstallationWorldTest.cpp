#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "installer/Cocoa/PlatformInstallationWorld.h"
#include "installer/DataPaths.h"
#include "tests/installer/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"

namespace {

class PlatformInstallationWorldTest : public testing::Test {
 protected:
  int redraws = 0;
  PlatformInstallationWorld world{[this] { ++redraws; }};
};

/// A child that ends after a moment.
pid_t StartChild() {
  const pid_t child = fork();
  if (child == 0) {
    usleep(20'000);
    _exit(3);
  }
  return child;
}

TEST_F(PlatformInstallationWorldTest, ARedrawRequestCallsBackOnce) {
  world.RequestRedraw();
  EXPECT_EQ(redraws, 1);
}

TEST_F(PlatformInstallationWorldTest, AVariableSetToNothingIsSet) {
  EnvironmentVariable variable("OSTREL_DATA_PATH", nullptr);
  EXPECT_FALSE(world.HasEnvironment("OSTREL_DATA_PATH"));
  variable.Set("");
  EXPECT_TRUE(world.HasEnvironment("OSTREL_DATA_PATH"));
  variable.Set("/elsewhere");
  EXPECT_TRUE(world.HasEnvironment("OSTREL_DATA_PATH"));
}

TEST_F(PlatformInstallationWorldTest, FilesAndFoldersExist) {
  TemporaryFolder folder;
  EXPECT_TRUE(world.PathExists(folder.path));
  EXPECT_TRUE(world.PathExists(folder.AddFile("file")));
  EXPECT_FALSE(world.PathExists(folder.Path("missing")));
}

TEST_F(PlatformInstallationWorldTest, WaitingReapsTheChild) {
  for (const bool byNumber : {true, false}) {
    const pid_t child = StartChild();
    ASSERT_GT(child, 0);
    world.WaitForChild(byNumber ? child : -1);
    errno = 0;
    EXPECT_EQ(waitpid(child, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
  }
}

TEST_F(PlatformInstallationWorldTest, WaitingForNobodyReturns) {
  world.WaitForChild(-1);
  world.WaitForChild(getpid());
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(PlatformInstallationWorldTest, FoldersAndResourcesAreKnownOnAThreadOfItsOwn) {
  std::string data;
  std::string resource = "untouched";
  std::thread([&] {
    data = world.DataPath(2);
    resource = world.ResourcePath("no such resource", "plugin");
  }).join();
  EXPECT_FALSE(data.empty());
  EXPECT_EQ(data, GetDataPath(2));
  EXPECT_EQ(resource, "");
}

TEST_F(PlatformInstallationWorldTest, EachRunHasItsOwnAuthorization) {
  const auto first = world.MakeAuthorization();
  const auto second = world.MakeAuthorization();
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
}

}  // namespace
