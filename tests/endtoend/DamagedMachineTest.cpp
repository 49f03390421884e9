#include <filesystem>
#include <fstream>

#include "tests/endtoend/EndToEndTest.h"

namespace {

/// The real installer on machines, and from bundles, that are not as they should be.
class DamagedMachineTest : public EndToEndTest {
 protected:
  void StartOnTheHosts() {
    Start();
    ASSERT_TRUE(wizard.GoTo(Page::kHosts));
  }

  void ExpectRows(int hosts) {
    const Picture picture = wizard.Look();
    for (int row = 0; row < hosts; ++row) EXPECT_EQ(Wizard::RowIn(picture, row), Row::kTicked);
    EXPECT_EQ(Wizard::RowIn(picture, hosts), Row::kUnticked) << "Custom";
    EXPECT_EQ(Wizard::RowIn(picture, hosts + 1), Row::kAbsent);
  }

  std::string PreferenceFile() const {
    return machine.Path("Library/Preferences/com.Adobe.After Effects.paths.plist");
  }
};

TEST_F(DamagedMachineTest, WithoutTheMarkerDocumentThereIsOnlyCustom) {
  machine.Furnish();
  ASSERT_TRUE(std::filesystem::remove(machine.Resource("AEFile.aep")));
  ASSERT_NO_FATAL_FAILURE(StartOnTheHosts());
  ExpectRows(0);
}

TEST_F(DamagedMachineTest, WithAMarkerDocumentThatNoOneOpensThereIsOnlyCustom) {
  machine.Register();
  machine.SetPreferences({{"16.0", machine.MakeFolder("Plug-ins of 2019")}});
  ASSERT_NO_FATAL_FAILURE(StartOnTheHosts());
  ExpectRows(0);
}

TEST_F(DamagedMachineTest, PreferencesThatAreNoneLeaveTheApplications) {
  machine.Furnish();
  const std::string whole = ReadWholeFile(PreferenceFile());
  std::string huge;
  huge.resize(20'000'000, '<');
  for (const std::string& content :
       {std::string(), whole.substr(0, whole.size() / 2), huge, std::string(500'000, '{')}) {
    std::ofstream(PreferenceFile(), std::ios::binary) << content;
    ASSERT_NO_FATAL_FAILURE(StartOnTheHosts());
    ExpectRows(2);
  }
}

TEST_F(DamagedMachineTest, FoldersWithOddNamesAreShownAndInstalledInto) {
  machine.Furnish();
  std::string name = "long";
  while (machine.Path(name).size() < 1000) name += "/" + std::string(120, 'n');
  const std::string longOne = machine.MakeFolder(name);
  const std::string oddOne = machine.MakeFolder("line\nbreak \"\U0001F600\" -rf $HOME %s");
  machine.SetPreferences({{"16.0", longOne}, {"17.0", oddOne}});
  ASSERT_NO_FATAL_FAILURE(StartOnTheHosts());
  ExpectRows(4);
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  EXPECT_TRUE(IsInstalled(longOne));
  EXPECT_TRUE(IsInstalled(oddOne));
  EXPECT_TRUE(IsDataMoved());
}

TEST_F(DamagedMachineTest, AVariableThatIsNoTextDoesNotKeepItFromInstalling) {
  machine.Furnish();
  for (const char* variable :
       {"OSTREL_DATA_PATH=/\xFF", "\xC3\x28=\xED\xA0\x80", "NOTHING=\xF0\x9F"}) {
    Start(User::kRoot, {variable});
    ASSERT_TRUE(wizard.GoTo(Page::kHosts)) << variable;
    ExpectRows(Machine::kHostCount);
  }
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  for (int row = 0; row < Machine::kHostCount; ++row) {
    EXPECT_TRUE(IsInstalled(machine.PluginFolder(row)));
  }
  EXPECT_TRUE(IsDataMoved());
}

TEST_F(DamagedMachineTest, AnArgumentThatIsNoTextIsNoReasonNotToStart) {
  machine.Furnish();
  Start(User::kRoot, {}, {machine.InstallerProgram(), "-Comment", "\xE9t\xE9"});
  EXPECT_TRUE(wizard.GoTo(Page::kHosts));
}

TEST_F(DamagedMachineTest, FromAFolderWithoutANameItEndsWithASentence) {
  const std::string folder = machine.MakeFolder("Downloads/\xE9t\xE9");
  std::filesystem::rename(std::filesystem::path(machine.InstallerProgram()).parent_path(),
                          folder + "/OstrelInstaller.app");
  Start(User::kRoot, {}, {folder + "/OstrelInstaller.app/OstrelInstaller"});
  EXPECT_EQ(application->WaitForEnd(), 1);
  EXPECT_EQ(application->Errors(),
            "OstrelInstaller cannot be started from a folder whose name is not UTF-8.\n");
}

TEST_F(DamagedMachineTest, APlugInThatIsNotNeededMayBeMissing) {
  machine.Furnish();
  std::filesystem::remove_all(machine.Resource("Ostrel32.plugin"));
  ASSERT_NO_FATAL_FAILURE(StartOnTheHosts());
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  for (int row = 0; row < Machine::kHostCount; ++row) {
    EXPECT_TRUE(IsInstalled(machine.PluginFolder(row)));
  }
}

}  // namespace
