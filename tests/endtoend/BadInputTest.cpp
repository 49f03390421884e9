#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/endtoend/RunnerTest.h"
#include "tests/support/TemporaryFolder.h"

namespace {

constexpr int kRemove = 1;
constexpr int kCopy = 2;

/// Whole runs into folders of every kind, and into folders that become something else
/// on the way. A tool that fails is no failure of the run; what counts is that the
/// other hosts are served and that nothing of the user's is lost.
class BadInputTest : public RunnerTest {
 protected:
  /// A folder of the user's with a file in it, which no run may touch.
  std::string MakePrecious() {
    std::string folder = machine.MakeFolder("Precious");
    std::ofstream(folder + "/file") << "precious";
    return folder;
  }

  void ExpectPrecious() const {
    EXPECT_EQ(ReadWholeFile(machine.Path("Precious/file")), "precious");
  }

  void ExpectDataMoved() const { EXPECT_TRUE(HoldsData(machine.MachineData())); }

  /// Takes as much as there is.
  static void FillUp(const std::string& file) {
    std::ofstream stream(file, std::ios::binary);
    const std::string block(4096, 'x');
    while (stream.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) {
    }
  }

  /// `change` happens when the first host's tool of that step is about to begin.
  int RunAndChange(int step, const std::function<void()>& change) {
    gate.StopAt(step);
    const auto run = Start(hosts);
    EXPECT_TRUE(gate.WaitForTool());
    change();
    gate.Open();
    const int status = run->WaitForEnd();
    EXPECT_EQ(run->WaitForTools(), "");
    return status;
  }

  /// A run for each step at which something else can take the first host's place; the other
  /// host and the data must not suffer from it.
  void ReplaceTheFirstHost(const std::function<void()>& replace,
                           const std::function<void()>& look) {
    for (int step = 0; step <= kCopy + 1; ++step) {
      SCOPED_TRACE(step);
      Reset();
      const std::string away = machine.Path("away");
      const auto change = [&] {
        std::filesystem::rename(hosts[0], away);
        replace();
      };
      EXPECT_EQ(RunAndChange(step, change), 0);
      look();
      EXPECT_TRUE(IsInstalled(hosts[1]));
      ExpectDataMoved();
      std::filesystem::remove(hosts[0]);
      std::filesystem::rename(away, hosts[0]);
    }
  }

  void SeeThroughTheGate() {
    See([this] { return gate.Arrange(); });
  }

  void SeeAsItIs() {
    See([] { return true; });
  }
};

TEST_F(BadInputTest, FoldersWithOddNamesAreInstalledInto) {
  SeeAsItIs();
  std::vector<std::string> folders;
  for (const char* name :
       {" a  b ", "'quoted' \"twice\"", "line\nbreak\n", "-rf", "--", "\U0001F600\u00E9",
        "\xFF\xC3", "*?[a]", "$HOME `id` $(id) ;&|", "back\\slash", "%s%n", "..."}) {
    folders.push_back(machine.MakeFolder(name));
  }
  EXPECT_EQ(Run(folders), 0);
  for (const std::string& folder : folders) EXPECT_TRUE(IsInstalled(folder));
  ExpectDataMoved();
}

TEST_F(BadInputTest, APathOfAThousandCharactersIsInstalledInto) {
  SeeAsItIs();
  std::string name = "long";
  while (machine.Path(name).size() < 1000) name += "/" + std::string(120, 'n');
  const std::string folder = machine.MakeFolder(name);
  EXPECT_EQ(Run({folder}), 0);
  EXPECT_TRUE(IsInstalled(folder));
  ExpectDataMoved();
}

TEST_F(BadInputTest, APathThatTheSystemDoesNotTakeLeavesTheOthersServed) {
  SeeAsItIs();
  EXPECT_EQ(Run({"/" + std::string(5000, 'n'), hosts[0]}), 0);
  EXPECT_TRUE(IsInstalled(hosts[0]));
  ExpectDataMoved();
}

TEST_F(BadInputTest, AFolderThatIsNoWholePathFailsAndTouchesNothing) {
  SeeAsItIs();
  for (const char* folder : {"-rf", "Plug-ins of 2019", ".", "~", " /tmp"}) {
    EXPECT_EQ(Run({folder, hosts[0]}), 1) << folder;
    EXPECT_TRUE(std::filesystem::is_empty(hosts[0])) << folder;
    EXPECT_TRUE(HoldsData(machine.UserData())) << folder;
  }
}

TEST_F(BadInputTest, LinksThatLeadNowhereAreLeftAlone) {
  SeeAsItIs();
  const std::string dangling = machine.Path("dangling");
  const std::string loop = machine.Path("loop");
  std::filesystem::create_symlink(machine.Path("missing"), dangling);
  std::filesystem::create_symlink(loop, loop);
  EXPECT_EQ(Run({dangling, loop, hosts[0]}), 0);
  EXPECT_EQ(std::filesystem::read_symlink(dangling), machine.Path("missing"));
  EXPECT_EQ(std::filesystem::read_symlink(loop), loop);
  EXPECT_FALSE(std::filesystem::exists(machine.Path("missing")));
  EXPECT_TRUE(IsInstalled(hosts[0]));
  ExpectDataMoved();
}

TEST_F(BadInputTest, ALinkToAFolderIsInstalledThrough) {
  SeeAsItIs();
  const std::string link = machine.Path("link");
  std::filesystem::create_symlink(hosts[0], link);
  EXPECT_EQ(Run({link}), 0);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_TRUE(IsInstalled(hosts[0]));
}

TEST_F(BadInputTest, ALinkInTheBundlesPlaceIsReplacedAndNotFollowed) {
  SeeAsItIs();
  const std::string precious = MakePrecious();
  std::filesystem::create_directory(hosts[0] + "/Halvorix");
  std::filesystem::create_symlink(precious, hosts[0] + "/Halvorix/Ostrel.plugin");
  EXPECT_EQ(Run(), 0);
  for (const std::string& host : hosts) EXPECT_TRUE(IsInstalled(host));
  ExpectPrecious();
}

TEST_F(BadInputTest, AFileInThePlaceOfAnyFolderStays) {
  SeeAsItIs();
  const std::string file = machine.Path("file");
  std::ofstream(file) << "precious";
  std::ofstream(hosts[0] + "/Halvorix") << "precious";
  EXPECT_EQ(Run({file, hosts[0], hosts[1]}), 0);
  EXPECT_EQ(ReadWholeFile(file), "precious");
  EXPECT_EQ(ReadWholeFile(hosts[0] + "/Halvorix"), "precious");
  EXPECT_TRUE(IsInstalled(hosts[1]));
  ExpectDataMoved();
}

TEST_F(BadInputTest, AFolderThatCannotBeWrittenLeavesTheOthersServed) {
  ASSERT_NO_FATAL_FAILURE(See([this] { return MountView::MakeReadOnly(hosts[0]); }));
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(std::filesystem::is_empty(view->Seen(hosts[0])));
  EXPECT_TRUE(IsInstalled(hosts[1]));
  ExpectDataMoved();
}

TEST_F(BadInputTest, AFullFolderLeavesTheOthersServedAndIsServedWhenThereIsRoom) {
  ASSERT_NO_FATAL_FAILURE(
      See([this] { return MountView::MountEmpty(hosts[0], "mode=755,size=64k"); }));
  const std::string filler = view->Seen(hosts[0]) + "/filler";
  FillUp(filler);
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(IsInstalled(hosts[1]));
  ExpectDataMoved();
  ASSERT_TRUE(std::filesystem::remove(filler));
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(IsInstalled(hosts[0]));
}

TEST_F(BadInputTest, DataThatFindNoRoomStayWhereTheyAre) {
  const std::string support = std::filesystem::path(machine.MachineData()).parent_path();
  ASSERT_NO_FATAL_FAILURE(See([&] { return MountView::MountEmpty(support, "mode=755,size=64k"); }));
  AddData("Scenes/many", 40);
  for (int run = 0; run < 2; ++run) {
    EXPECT_EQ(Run(), 0);
    EXPECT_TRUE(HoldsData(machine.UserData()));
    for (const std::string& host : hosts) EXPECT_TRUE(IsInstalled(host));
  }
}

TEST_F(BadInputTest, DataWhoseNewPlaceCannotBeWrittenStayWhereTheyAre) {
  const std::string support = std::filesystem::path(machine.MachineData()).parent_path();
  ASSERT_NO_FATAL_FAILURE(See([&] { return MountView::MakeReadOnly(support); }));
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(HoldsData(machine.UserData()));
  EXPECT_FALSE(std::filesystem::exists(view->Seen(machine.MachineData())));
}

TEST_F(BadInputTest, AFileInThePlaceOfTheDataStaysAndSoDoTheData) {
  SeeAsItIs();
  std::ofstream(machine.MachineData()) << "precious";
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(ReadWholeFile(machine.MachineData()), "precious");
  EXPECT_TRUE(HoldsData(machine.UserData()));
}

TEST_F(BadInputTest, AFolderReplacedByAFileOnTheWayLeavesTheFile) {
  SeeThroughTheGate();
  ReplaceTheFirstHost([this] { std::ofstream(hosts[0]) << "precious"; },
                      [this] { EXPECT_EQ(ReadWholeFile(hosts[0]), "precious"); });
}

TEST_F(BadInputTest, AFolderReplacedByALinkOnTheWayLeavesWhatTheLinkLeadsTo) {
  SeeThroughTheGate();
  const std::string precious = MakePrecious();
  ReplaceTheFirstHost([&] { std::filesystem::create_symlink(precious, hosts[0]); },
                      [&] {
                        ExpectPrecious();
                        std::filesystem::remove_all(precious + "/Halvorix");
                      });
}

TEST_F(BadInputTest, ALinkPutInTheBundlesPlaceOnTheWayLeavesWhatItLeadsTo) {
  SeeThroughTheGate();
  const std::string precious = MakePrecious();
  for (const int step : {kRemove, kCopy}) {
    SCOPED_TRACE(step);
    Reset();
    EXPECT_EQ(RunAndChange(step,
                           [&] {
                             std::filesystem::create_symlink(precious,
                                                             hosts[0] + "/Halvorix/Ostrel.plugin");
                           }),
              0);
    ExpectPrecious();
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(precious), {}), 1);
    EXPECT_TRUE(IsInstalled(hosts[1]));
  }
  // The next run makes it good.
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(IsInstalled(hosts[0]));
  ExpectPrecious();
}

TEST_F(BadInputTest, APlugInThatIsMissingFailsBeforeTheDataAreTouched) {
  SeeAsItIs();
  std::filesystem::remove_all(machine.Resource("Ostrel64.plugin"));
  EXPECT_EQ(Run(), 1);
  EXPECT_TRUE(HoldsData(machine.UserData()));
  EXPECT_FALSE(std::filesystem::exists(machine.MachineData()));
}

TEST_F(BadInputTest, AVariableThatIsSetToNothingIsSet) {
  SeeAsItIs();
  const auto run = Start(hosts, 1, {"OSTREL_DATA_PATH=", "OSTREL_USER_PATH="});
  EXPECT_EQ(run->WaitForEnd(), 0);
  EXPECT_EQ(run->WaitForTools(), "");
  for (const std::string& host : hosts) EXPECT_TRUE(IsInstalled(host));
  EXPECT_TRUE(HoldsData(machine.UserData()));
  EXPECT_EQ(ReadTree(machine.MachineData()), (Tree{{"", "d00777"}}));
}

}  // namespace
