#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "installer/Cocoa/PlatformHostSources.h"
#include "installer/HostCatalogue.h"
#include "tests/installer/EnvironmentVariable.h"
#include "tests/installer/PretendMachine.h"

namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;

class PlatformHostSourcesTest : public testing::Test {
 protected:
  PretendMachine machine;
  const std::string applications = machine.folder.Path("machine/Applications/");
};

TEST_F(PlatformHostSourcesTest, FindsTheRegisteredApplicationsOfAnExtension) {
  const std::string cc = machine.AddHost("After CC", "12.0");
  const std::string cc2014 = machine.AddHost("After CC 2014", "13.5.1");
  machine.AddHost("Other", "14.0", "mov");
  machine.RegisterApplications();
  const auto lines = machine.Probe("/anywhere/AEFile.aep");
  EXPECT_THAT(lines, Contains("list yes"));
  EXPECT_THAT(lines, Contains("application " + cc));
  EXPECT_THAT(lines, Contains("application " + cc2014));
  EXPECT_THAT(lines, Contains(StartsWith("application ")).Times(2));
  EXPECT_THAT(lines, Contains("host 5 " + applications + "After CC/Plug-ins"));
  EXPECT_THAT(lines, Contains("host 6 " + applications + "After CC 2014/Plug-ins"));
  EXPECT_THAT(lines, Contains(StartsWith("host ")).Times(2));
}

TEST_F(PlatformHostSourcesTest, ReadsTheHostsPreferenceFileInTheMachinesLibrary) {
  machine.AddHost("After CC 2017", "14.0.1");
  machine.AddPreferences(
      "{ \"14.0\" = { PluginInstallPath = \"/P14\"; }; \"18.0\" = { PluginInstallPath = \"/P18\"; "
      "}; }");
  machine.RegisterApplications();
  const auto lines = machine.Probe("AEFile.aep");
  EXPECT_THAT(lines, Contains("host 9 /P14"));
  EXPECT_THAT(lines, Contains("host " + std::to_string(kOtherVersionSlot) + " /P18"));
  EXPECT_THAT(lines, Contains("other 18.0"));
  EXPECT_THAT(lines,
              Contains("preferences " +
                       machine.folder.Path(
                           "machine/Library/Preferences/com.Adobe.After Effects.paths.plist")));
}

TEST_F(PlatformHostSourcesTest, AnExtensionThatNothingOpensGivesNoListAtAll) {
  machine.AddHost("Other", "14.0", "mov");
  machine.AddPreferences("{ \"17.0\" = { PluginInstallPath = \"/P17\"; }; }");
  machine.RegisterApplications();
  for (const char* document : {"/anywhere/AEFile.aep", "/anywhere/AEFile", ""}) {
    const auto lines = machine.Probe(document);
    EXPECT_THAT(lines, Contains("list no"));
    EXPECT_THAT(lines, Not(Contains(StartsWith("host "))));
  }
}

TEST_F(PlatformHostSourcesTest, DataFoldersAreThoseOfTheMachineAndTheUser) {
  const auto lines = machine.Probe("AEFile.aep");
  EXPECT_THAT(lines,
              Contains(StartsWith("machine data " + machine.folder.Path("machine/Library/"))));
  EXPECT_THAT(lines, Contains(StartsWith("user data " + machine.folder.Path("user/Library/"))));
  EXPECT_THAT(lines, Contains(StartsWith("documents /")));
  EXPECT_THAT(lines, Contains(StartsWith("shared documents " +
                                         machine.folder.Path("machine/Users/Shared/"))));
}

TEST_F(PlatformHostSourcesTest, ReadsTheAssetsFolderInTheMachinesApplicationSupport) {
  const EnvironmentVariable userPath("OSTREL_USER_PATH", "/variable");
  EXPECT_THAT(machine.Probe("AEFile.aep"), Contains("assets /variable"));
  machine.AddAssetsPreference("{ AssetsPath = \"/Preferred ä\"; }");
  EXPECT_THAT(machine.Probe("AEFile.aep"), Contains("assets /Preferred ä"));
  machine.AddAssetsPreference("{ AssetsPath = \"/Preferred");
  EXPECT_THAT(machine.Probe("AEFile.aep"), Contains("assets /variable"));
}

TEST_F(PlatformHostSourcesTest, AProgramWithoutTheMarkerDocumentHasNone) {
  PlatformHostSources sources;
  EXPECT_FALSE(sources.MarkerDocument().has_value());
}

}  // namespace
