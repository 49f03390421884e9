#include <algorithm>
#include <filesystem>

#include "tests/endtoend/EndToEndTest.h"
#include "tests/endtoend/Waiting.h"

namespace {

class StraightThroughTest : public EndToEndTest {
 protected:
  void GoOnToTheFinish() {
    ASSERT_TRUE(wizard.GoTo(Page::kSummary));
    wizard.Click(Wizard::kNext);
    ASSERT_TRUE(wizard.IsOn(Page::kFinish));
    wizard.Click(Wizard::kCancel);
    ASSERT_TRUE(Ends());
  }

  void ExpectAllInstalled() const {
    for (int row = 0; row < Machine::kHostCount; ++row) {
      EXPECT_TRUE(IsInstalled(machine.PluginFolder(row)));
    }
  }
};

TEST_F(StraightThroughTest, InstallsForEveryHostAndMovesTheData) {
  machine.Furnish();
  machine.AddHost("Another Editor", "11.0", "XXXX");
  machine.Register();
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheFinish());
  ExpectAllInstalled();
  EXPECT_TRUE(IsDataMoved());
  EXPECT_TRUE(std::filesystem::is_empty(machine.Path("Applications/Another Editor/Plug-ins")));
  // The moved folder is there when the run makes it, and mkdir says so. Nothing else is said.
  const std::string errors = application->Errors();
  EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
  EXPECT_TRUE(errors.ends_with("File exists\n")) << errors;
}

TEST_F(StraightThroughTest, LabelsCancelAsFinishAtTheEnd) {
  ASSERT_TRUE(StartOn(Page::kSummary));
  const Lettering cancel = Wizard::Label(wizard.Look(), Wizard::kCancel);
  const Lettering next = Wizard::Label(wizard.Look(), Wizard::kNext);
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Page::kFinish));
  const Picture picture = wizard.Look();
  const Lettering finish = Wizard::Label(picture, Wizard::kCancel);
  EXPECT_FALSE(finish.LooksLike(cancel)) << finish.Describe();
  EXPECT_TRUE(Wizard::Label(picture, Wizard::kNext).LooksLike(next));
  // Disabled, they do nothing.
  wizard.Click(Wizard::kNext);
  wizard.Click(Wizard::kBack);
  wizard.MoveTo(10, 10);
  EXPECT_TRUE(wizard.IsOn(Page::kFinish));
  wizard.Click(Wizard::kCancel);
  EXPECT_TRUE(Ends());
}

TEST_F(StraightThroughTest, LeavesOutWhatIsUnticked) {
  ASSERT_TRUE(StartOn(Page::kHosts));
  ASSERT_TRUE(wizard.Toggle(0));
  ASSERT_TRUE(wizard.Toggle(3));
  EXPECT_EQ(wizard.RowState(0), Row::kUnticked);
  ASSERT_NO_FATAL_FAILURE(InstallToTheFinish());
  EXPECT_TRUE(std::filesystem::is_empty(machine.PluginFolder(0)));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(1)));
  EXPECT_TRUE(IsInstalled(machine.PluginFolder(2)));
  EXPECT_TRUE(std::filesystem::is_empty(machine.PluginFolder(3)));
}

TEST_F(StraightThroughTest, WorksInALocaleThatKnowsNoLettersBeyondAscii) {
  machine.Furnish();
  Start(User::kRoot, {"LC_ALL=C", "LANG=C"});
  ASSERT_NO_FATAL_FAILURE(GoOnToTheFinish());
  ExpectAllInstalled();
  EXPECT_TRUE(IsDataMoved());
}

TEST_F(StraightThroughTest, LeavesTheDataWhereTheyAreWhenTheirFolderIsGiven) {
  machine.Furnish();
  const std::string elsewhere = machine.MakeFolder("Elsewhere");
  Start(User::kRoot, {"OSTREL_DATA_PATH=" + elsewhere});
  ASSERT_NO_FATAL_FAILURE(GoOnToTheFinish());
  ExpectAllInstalled();
  EXPECT_TRUE(std::filesystem::exists(machine.UserData() + "/settings.txt"));
  EXPECT_EQ(ReadTree(machine.MachineData()), (Tree{{"", "d00777"}}));
  EXPECT_TRUE(std::filesystem::is_empty(elsewhere));
}

TEST_F(StraightThroughTest, ReplacesAnOlderAndFullerBundle) {
  machine.Furnish();
  const std::string bundle = machine.PluginFolder(1) + "/Halvorix/Ostrel.plugin";
  std::filesystem::create_directories(bundle + "/Contents/Resources/Old presets");
  std::filesystem::create_directory(bundle + "/Contents/PkgInfo");
  std::filesystem::create_symlink("/etc", bundle + "/Contents/Resources/Presets");
  std::filesystem::copy_file(machine.Resource("AEFile.aep"), bundle + "/Contents/Stale.bin");
  std::filesystem::copy_file(machine.Resource("AEFile.aep"),
                             machine.PluginFolder(1) + "/Halvorix/Neighbour.plugin");
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheFinish());
  ExpectAllInstalled();
  // What else the maker has there is none of the installer's business.
  EXPECT_TRUE(std::filesystem::exists(machine.PluginFolder(1) + "/Halvorix/Neighbour.plugin"));
}

TEST_F(StraightThroughTest, InstallsOverItsOwnInstallation) {
  machine.Furnish();
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheFinish());
  const Tree data = ReadTree(machine.MachineData());
  machine.AddUserData();
  Start();
  ASSERT_NO_FATAL_FAILURE(GoOnToTheFinish());
  ExpectAllInstalled();
  // The machine has its data already: those of this user stay with the user.
  EXPECT_EQ(DescribeDifference(data, ReadTree(machine.MachineData())), "");
  EXPECT_TRUE(std::filesystem::exists(machine.UserData() + "/settings.txt"));
}

}  // namespace
