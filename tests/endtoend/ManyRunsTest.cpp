#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>
#include <vector>

#include "tests/endtoend/RunnerTest.h"
#include "tests/endtoend/Waiting.h"

namespace {

/// Runs after and beside each other, and what is left of them: complete bundles, the
/// user's data, and no process, descriptor or temporary file. The runner itself
/// looks at its descriptors after each run.
class ManyRunsTest : public RunnerTest {
 protected:
  ManyRunsTest() {
    See([] { return true; });
  }

  std::set<std::string> TemporaryFiles() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(machine.TemporaryFiles())) {
      names.insert(entry.path().filename());
    }
    return names;
  }

  void ExpectAllDone() const {
    for (const std::string& host : hosts) EXPECT_TRUE(IsInstalled(host));
    EXPECT_TRUE(HoldsData(machine.MachineData()));
    EXPECT_FALSE(std::filesystem::exists(machine.UserData()));
  }
};

TEST_F(ManyRunsTest, FiveHundredInARowLeaveNothingBehind) {
  ASSERT_EQ(Run(), 0);
  const std::set<std::string> before = TemporaryFiles();
  const auto runs = Start(hosts, 500);
  // Processes are looked for meanwhile, too: they must not pile up.
  ASSERT_TRUE(WaitUntil([&runs] { return !runs->IsRunning(); }, std::chrono::minutes(4)));
  EXPECT_EQ(runs->WaitForEnd(), 0);
  EXPECT_EQ(runs->WaitForTools(), "");
  EXPECT_EQ(TemporaryFiles(), before);
  ExpectAllDone();
}

TEST_F(ManyRunsTest, TwoAtOnceLeaveWholeBundles) {
  for (int round = 0; round < 20; ++round) {
    SCOPED_TRACE(round);
    Reset();
    const auto first = Start(hosts);
    const auto second = Start(hosts);
    EXPECT_EQ(first->WaitForEnd(), 0);
    EXPECT_EQ(second->WaitForEnd(), 0);
    EXPECT_EQ(second->WaitForTools(), "");
    EXPECT_EQ(first->WaitForTools(), "");
    ExpectAllDone();
  }
}

}  // namespace
