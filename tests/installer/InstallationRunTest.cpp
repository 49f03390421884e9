#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "installer/InstallationRun.h"
#include "tests/installer/RecordingWorld.h"

namespace {

using testing::ElementsAreArray;

using Log = std::vector<std::string>;

const Log kBegin = {"Create", "CopyRights system.privilege.admin"};
const Log kRefused = {"Create", "CopyRights system.privilege.admin", "~Authorization"};
const Log kDataFolder = {
    "redraw " + std::to_string(kDataFolderStep),
    "exists /Data2/Halvorix",
    "exists /Data1/Halvorix",
    "/bin/mkdir [/Data2/Halvorix]",
    "wait -1",
    "/bin/chmod [-R] [0777] [/Data2/Halvorix]",
    "wait -1",
    "Free",
    "~Authorization",
};

Log operator+(Log left, const Log& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

class InstallationRunTest : public testing::Test {
 protected:
  void Select(std::size_t slot, const std::string& path) {
    state.hostSelected[slot] = 1;
    state.hostPath[slot] = path;
  }

  void Run() { RunInstallation(state, world); }

  void ExpectEnd(std::int32_t step, bool failed) {
    EXPECT_EQ(state.installStep.load(), step);
    EXPECT_EQ(state.installDone.load(), true);
    EXPECT_EQ(state.installFailed.load(), failed);
    EXPECT_EQ(state.installError.load(), 0);
  }

  InstallerState state;
  RecordingWorld world{state};
};

TEST_F(InstallationRunTest, OneHostIsInstalledInFourLaunchesThatAreNotWaitedFor) {
  Select(11, "/AE/Plug-ins");
  Run();
  const Log slot = {
      "redraw 11",
      "/bin/mkdir [/AE/Plug-ins/Halvorix]",
      "/bin/rm [-rf] [/AE/Plug-ins/Halvorix/Ostrel.plugin]",
      "/usr/bin/ditto [/R/Ostrel64.plugin] [/AE/Plug-ins/Halvorix/Ostrel.plugin]",
      "/bin/chmod [-R] [0755] [/AE/Plug-ins/Halvorix/Ostrel.plugin]",
  };
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + slot + kDataFolder));
  ExpectEnd(kDataFolderStep, false);
}

TEST_F(InstallationRunTest, HostsAreInstalledInSlotOrder) {
  Select(kCustomSlot, "/Custom");
  Select(0, "/CS3");
  Select(7, "/CC 2015/");
  Run();
  const Log slots = {
      "redraw 0",
      "/bin/mkdir [/CS3/Halvorix]",
      "/bin/rm [-rf] [/CS3/Halvorix/Ostrel.plugin]",
      "/usr/bin/ditto [/R/Ostrel32.plugin] [/CS3/Halvorix/Ostrel.plugin]",
      "/bin/chmod [-R] [0755] [/CS3/Halvorix/Ostrel.plugin]",
      "redraw 7",
      "/bin/mkdir [/CC 2015/Halvorix]",
      "/bin/rm [-rf] [/CC 2015/Halvorix/Ostrel.plugin]",
      "/usr/bin/ditto [/R/Ostrel64.plugin] [/CC 2015/Halvorix/Ostrel.plugin]",
      "/bin/chmod [-R] [0755] [/CC 2015/Halvorix/Ostrel.plugin]",
      "redraw " + std::to_string(kCustomSlot),
      "/bin/mkdir [/Custom/Halvorix]",
      "/bin/rm [-rf] [/Custom/Halvorix/Ostrel.plugin]",
      "/usr/bin/ditto [/R/Ostrel64.plugin] [/Custom/Halvorix/Ostrel.plugin]",
      "/bin/chmod [-R] [0755] [/Custom/Halvorix/Ostrel.plugin]",
  };
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + slots + kDataFolder));
  ExpectEnd(kDataFolderStep, false);
}

TEST_F(InstallationRunTest, EachSlotTakesItsPlugin) {
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    Select(slot, "/" + std::to_string(slot));
  }
  for (const std::int32_t bitness : {0, 1, 2, -1}) {
    SCOPED_TRACE(bitness);
    state.customBitness = bitness;
    InstallerState fresh;
    fresh.hostSelected = state.hostSelected;
    fresh.hostPath = state.hostPath;
    fresh.customBitness = bitness;
    RecordingWorld machine(fresh);
    RunInstallation(fresh, machine);
    Log copies;
    for (const std::string& call : machine.log) {
      if (call.starts_with("/usr/bin/ditto")) copies.push_back(call);
    }
    Log expected;
    for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
      const bool is32 = slot < 2 || (slot == kCustomSlot && bitness == 0);
      expected.push_back(std::string("/usr/bin/ditto [/R/Ostrel") + (is32 ? "32" : "64") +
                         ".plugin] [/" + std::to_string(slot) + "/Halvorix/Ostrel.plugin]");
    }
    EXPECT_THAT(copies, ElementsAreArray(expected));
  }
}

TEST_F(InstallationRunTest, NothingSelectedStillPreparesTheDataFolder) {
  state.hostPath[5] = "/found but not selected";
  Run();
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + kDataFolder));
  ExpectEnd(kDataFolderStep, false);
}

TEST_F(InstallationRunTest, ASelectedSlotWithoutFolderIsSkipped) {
  Select(kCustomSlot, "");
  Run();
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + kDataFolder));
  ExpectEnd(kDataFolderStep, false);
}

TEST_F(InstallationRunTest, RefusedRightsEndTheRunBeforeTheFirstStep) {
  Select(11, "/AE/Plug-ins");
  for (const int status : {-60005, -60006, 1}) {
    InstallerState fresh;
    fresh.hostSelected = state.hostSelected;
    fresh.hostPath = state.hostPath;
    RecordingWorld machine(fresh);
    machine.rightsStatus = status;
    RunInstallation(fresh, machine);
    EXPECT_THAT(machine.log, ElementsAreArray(kRefused));
    EXPECT_EQ(fresh.installStep.load(), -1);
    EXPECT_TRUE(fresh.installDone.load());
    EXPECT_TRUE(fresh.installFailed.load());
  }
}

TEST_F(InstallationRunTest, AFailedCreationIsIgnored) {
  world.createStatus = -60008;
  Run();
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + kDataFolder));
  ExpectEnd(kDataFolderStep, false);
}

TEST_F(InstallationRunTest, ACopyThatCannotBeStartedEndsTheRunAtItsSlot) {
  for (const std::size_t failing : {0U, 9U, 13U, 14U}) {
    SCOPED_TRACE(failing);
    InstallerState fresh;
    RecordingWorld machine(fresh);
    for (const std::size_t slot : {0U, 9U, 13U, 14U}) {
      fresh.hostSelected[slot] = 1;
      fresh.hostPath[slot] = "/" + std::to_string(slot);
    }
    int copies = 0;
    Log expected = kBegin;
    for (const std::size_t slot : {0U, 9U, 13U, 14U}) {
      if (slot > failing) break;
      const std::string bundle = "[/" + std::to_string(slot) + "/Halvorix/Ostrel.plugin]";
      expected = expected + Log{"redraw " + std::to_string(slot),
                                "/bin/mkdir [/" + std::to_string(slot) + "/Halvorix]",
                                "/bin/rm [-rf] " + bundle,
                                std::string("/usr/bin/ditto [/R/Ostrel") +
                                    (slot == 0 ? "32" : "64") + ".plugin] " + bundle,
                                "/bin/chmod [-R] [0755] " + bundle};
      ++copies;
    }
    machine.launchStatus = [&copies](const std::string& tool, const std::string&) {
      return tool == "/usr/bin/ditto" && --copies == 0 ? -60031 : 0;
    };
    RunInstallation(fresh, machine);
    EXPECT_THAT(machine.log, ElementsAreArray(expected + Log{"~Authorization"}));
    EXPECT_EQ(fresh.installStep.load(), static_cast<std::int32_t>(failing));
    EXPECT_TRUE(fresh.installDone.load());
    EXPECT_TRUE(fresh.installFailed.load());
  }
}

TEST_F(InstallationRunTest, OtherToolsThatCannotBeStartedAreIgnored) {
  Select(3, "/AE");
  world.existing = {"/Data1/Halvorix"};
  world.launchStatus = [](const std::string& tool, const std::string&) {
    return tool == "/usr/bin/ditto" ? 0 : -60031;
  };
  Run();
  const Log rest = {
      "redraw 3",
      "/bin/mkdir [/AE/Halvorix]",
      "/bin/rm [-rf] [/AE/Halvorix/Ostrel.plugin]",
      "/usr/bin/ditto [/R/Ostrel64.plugin] [/AE/Halvorix/Ostrel.plugin]",
      "/bin/chmod [-R] [0755] [/AE/Halvorix/Ostrel.plugin]",
      "redraw " + std::to_string(kDataFolderStep),
      "exists /Data2/Halvorix",
      "exists /Data1/Halvorix",
      "/bin/mv [/Data1/Halvorix] [/Data2/Halvorix]",
      "wait -1",
      "/bin/mkdir [/Data2/Halvorix]",
      "wait -1",
      "/bin/chmod [-R] [0777] [/Data2/Halvorix]",
      "wait -1",
      "Free",
      "~Authorization",
  };
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + rest));
  ExpectEnd(kDataFolderStep, false);
}

TEST_F(InstallationRunTest, TheUsersDataFolderIsMovedWhenTheMachineHasNone) {
  world.existing = {"/Data1/Halvorix"};
  Run();
  const Log rest = {
      "redraw " + std::to_string(kDataFolderStep),
      "exists /Data2/Halvorix",
      "exists /Data1/Halvorix",
      "/bin/mv [/Data1/Halvorix] [/Data2/Halvorix]",
      "wait -1",
      "/bin/mkdir [/Data2/Halvorix]",
      "wait -1",
      "/bin/chmod [-R] [0777] [/Data2/Halvorix]",
      "wait -1",
      "Free",
      "~Authorization",
  };
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + rest));
  ExpectEnd(kDataFolderStep, false);
}

TEST_F(InstallationRunTest, AnExistingDataFolderStaysAndIsOpened) {
  world.existing = {"/Data1/Halvorix", "/Data2/Halvorix"};
  Run();
  const Log rest = {
      "redraw " + std::to_string(kDataFolderStep),
      "exists /Data2/Halvorix",
      "/bin/mkdir [/Data2/Halvorix]",
      "wait -1",
      "/bin/chmod [-R] [0777] [/Data2/Halvorix]",
      "wait -1",
      "Free",
      "~Authorization",
  };
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + rest));
}

TEST_F(InstallationRunTest, TheDataPathVariableOnlySuppressesTheMove) {
  world.environment = {"OSTREL_DATA_PATH"};
  world.existing = {"/Data1/Halvorix"};
  Run();
  const Log rest = {
      "redraw " + std::to_string(kDataFolderStep),
      "/bin/mkdir [/Data2/Halvorix]",
      "wait -1",
      "/bin/chmod [-R] [0777] [/Data2/Halvorix]",
      "wait -1",
      "Free",
      "~Authorization",
  };
  EXPECT_THAT(world.log, ElementsAreArray(kBegin + rest));
}

TEST_F(InstallationRunTest, AnotherVariableDoesNotSuppressTheMove) {
  world.environment = {"OSTREL_USER_PATH"};
  world.existing = {"/Data1/Halvorix"};
  Run();
  EXPECT_THAT(world.log, testing::Contains("/bin/mv [/Data1/Halvorix] [/Data2/Halvorix]"));
}

TEST_F(InstallationRunTest, ANumberPrintedByAToolIsWaitedFor) {
  Select(3, "/AE");
  world.toolOutput = "4711\n";
  Run();
  Log waits;
  for (const std::string& call : world.log) {
    if (call.starts_with("wait")) waits.push_back(call);
  }
  EXPECT_THAT(waits, ElementsAreArray(Log{"wait 4711", "wait 4711"}));
}

TEST_F(InstallationRunTest, PipesOfHostToolsStayOpenAndTheOthersAreClosed) {
  Select(3, "/AE");
  Select(4, "/AE 2");
  world.existing = {"/Data1/Halvorix"};
  Run();
  EXPECT_EQ(world.CountOpenPipes(), 8U);
}

TEST_F(InstallationRunTest, AMissingPluginIsAnEmptyPathAndTheLaunchAloneDecides) {
  Select(3, "/AE");
  for (const int status : {0, -60031}) {
    SCOPED_TRACE(status);
    InstallerState fresh;
    fresh.hostSelected = state.hostSelected;
    fresh.hostPath = state.hostPath;
    RecordingWorld machine(fresh);
    machine.hasResources = false;
    machine.launchStatus = [status](const std::string& tool, const std::string&) {
      return tool == "/usr/bin/ditto" ? status : 0;
    };
    RunInstallation(fresh, machine);
    EXPECT_THAT(machine.log, testing::Contains("/usr/bin/ditto [] [/AE/Halvorix/Ostrel.plugin]"));
    EXPECT_EQ(fresh.installFailed.load(), status != 0);
  }
}

TEST_F(InstallationRunTest, SelectionsAreOnlyRead) {
  Select(3, "/AE");
  state.otherVersionName = "18.0";
  state.assetsPath = "/Assets";
  const auto selected = state.hostSelected;
  const auto paths = state.hostPath;
  Run();
  EXPECT_EQ(state.hostSelected, selected);
  EXPECT_EQ(state.hostPath, paths);
  EXPECT_EQ(state.customBitness, 1);
  EXPECT_EQ(state.otherVersionName, "18.0");
  EXPECT_EQ(state.assetsPath, "/Assets");
}

TEST_F(InstallationRunTest, TheAssetsFolderIsLeftAlone) {
  Select(3, "/AE");
  state.assetsChoice = {false, false, true};
  state.assetsPath = "/Assets";
  world.existing = {"/Assets", "/Data1/Halvorix"};
  Run();
  EXPECT_THAT(world.log, testing::Each(testing::Not(testing::HasSubstr("/Assets"))));
}

}  // namespace
