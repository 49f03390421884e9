#include "tests/endtoend/RunnerTest.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

/// Modes are no part of what a user can lose.
Tree Content(const std::string& folder) { return WithMode(ReadTree(folder), 0); }

std::string RunnerIn(const Machine& machine) {
  return std::filesystem::path(machine.InstallerProgram()).parent_path() / "InstallationRunner";
}

/// As the runner takes it.
std::string Encode(const std::string& path) {
  std::string encoded;
  for (const char c : path) {
    std::array<char, 4> byte{};
    std::snprintf(byte.data(), byte.size(), "%%%02X", static_cast<unsigned char>(c));
    encoded += byte.data();
  }
  return encoded;
}

void Empty(const std::filesystem::path& folder) {
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::filesystem::remove_all(entry.path());
  }
}

}  // namespace

RunnerTest::RunnerTest()
    : hosts(
          {machine.MakeFolder("Plug-ins of 2019"), machine.MakeFolder("Plug-ins of the autumn")}) {
  std::filesystem::copy_file(OSTREL_RUNNER, RunnerIn(machine));
  machine.AddUserData();
  std::filesystem::rename(machine.UserData(), machine.Path("data"));
  data = Content(machine.Path("data"));
  MakeDataAnew();
}

void RunnerTest::See(const std::function<bool()>& arrange) {
  view = std::make_unique<MountView>(arrange);
  ASSERT_FALSE(HasFailure()) << "without the view nothing would come of waiting for runs in it";
}

std::unique_ptr<Application> RunnerTest::Start(const std::vector<std::string>& folders, int count,
                                               const std::vector<std::string>& environment) const {
  // With env a variable that the machine sets can have another value.
  std::vector<std::string> command = {"env"};
  command.insert(command.end(), environment.begin(), environment.end());
  command.insert(command.end(), {RunnerIn(machine), std::to_string(count)});
  for (const std::string& folder : folders) command.push_back(Encode(folder));
  return std::make_unique<Application>(machine, std::vector<std::string>(),
                                       ChildProcess::User::kRoot, view.get(), command);
}

int RunnerTest::Run(const std::vector<std::string>& folders) const {
  const auto run = Start(folders);
  const int status = run->WaitForEnd();
  EXPECT_EQ(run->WaitForTools(), "");
  return status;
}

testing::AssertionResult RunnerTest::IsInstalled(const std::string& pluginFolder) const {
  std::string difference =
      DescribeDifference(machine.InstalledTree(), ReadInstalledTree(view->Seen(pluginFolder)));
  for (const auto& entry : std::filesystem::directory_iterator(view->Seen(pluginFolder))) {
    if (entry.path().filename() != "Halvorix") difference += entry.path().string() + " is new";
  }
  if (difference.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "in " << pluginFolder << ": " << difference;
}

bool RunnerTest::HoldsData(const std::string& place) const {
  return Content(view->Seen(place)) == data;
}

testing::AssertionResult RunnerTest::IsNothingLost() const {
  if (HoldsData(machine.MachineData()) || HoldsData(machine.UserData())) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure()
         << "at the old place: "
         << DescribeDifference(data, Content(view->Seen(machine.UserData())))
         << "; at the new one: "
         << DescribeDifference(data, Content(view->Seen(machine.MachineData())));
}

void RunnerTest::AddData(const std::string& folder, int count) {
  const std::filesystem::path place = machine.Path("data") + "/" + folder;
  std::filesystem::create_directory(place);
  for (int i = 0; i < count; ++i) std::ofstream(place / std::to_string(i)) << i;
  data = Content(machine.Path("data"));
  Reset();
}

void RunnerTest::Reset() const {
  for (const std::string& folder : hosts) Empty(view->Seen(folder));
  std::filesystem::remove_all(view->Seen(machine.MachineData()));
  std::filesystem::remove_all(view->Seen(machine.UserData()));
  MakeDataAnew();
}

void RunnerTest::MakeDataAnew() const {
  std::filesystem::copy(
      machine.Path("data"), machine.UserData(),
      std::filesystem::copy_options::recursive | std::filesystem::copy_options::copy_symlinks);
}
