#include "tests/endtoend/Machine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <sstream>

#include "tests/endtoend/ChildProcess.h"

namespace {

constexpr const char* kHost6 = "Adobe After Effects CS6";
constexpr const char* kHost2014 = "Adobe After Effects CC 2014";

}  // namespace

Machine::Machine() : path(folder.Path("Été Mac")) {
  Script({"create"});
  // GNUstep's daemons put sockets there, so its name has to be short.
  std::filesystem::create_directory(TemporaryFiles());
  std::filesystem::create_directory(InstallerFolder());
  RunCommand({"cp", "-a", OSTREL_BUNDLE, InstallerFolder() + "/"});
  environment = ReadEnvironment();
  EXPECT_EQ(chmod(folder.path.c_str(), 0755), 0);
}

std::string Machine::Script(std::vector<std::string> words) const {
  words.insert(words.begin(), {"sh", OSTREL_MACHINE_SCRIPT});
  words.insert(words.begin() + 3, path);
  return RunCommand(words, TemporaryVariables());
}

void Machine::AddHost(const std::string& name, const std::string& version,
                      const std::string& signature) {
  Script({"host", name, version, signature});
}

void Machine::Register() { Script({"register"}); }

void Machine::SetPreferences(const std::vector<std::pair<std::string, std::string>>& folders) {
  std::vector<std::string> words = {"preference"};
  for (const auto& [key, pluginFolder] : folders) {
    words.push_back(key);
    words.push_back(pluginFolder);
  }
  Script(words);
}

void Machine::AddUserData() { Script({"user-data"}); }

std::string Machine::AddUser(const std::string& home) const {
  const std::string ownHome = Path("home/");
  std::string settings = ReadWholeFile(Path("GNUstep.conf"));
  for (std::size_t at = 0; (at = settings.find(ownHome, at)) != std::string::npos;) {
    settings.replace(at, ownHome.size(), Path(home) + "/");
  }
  return folder.AddFile("settings of " + home, settings);
}

void Machine::GiveToNobody() { RunCommand({"chown", "-R", "65534:65534", folder.path}); }

void Machine::Furnish() {
  AddHost(kHost6, "11.0.1");
  AddHost(kHost2014, "13.5.1");
  Register();
  SetPreferences({{"16.0", MakeFolder("Plug-ins of 2019")},
                  {kOtherVersion, MakeFolder("Plug-ins of the autumn")}});
  AddUserData();
}

std::string Machine::MakeFolder(const std::string& relative) const {
  std::filesystem::create_directories(Path(relative));
  return Path(relative);
}

std::string Machine::PluginFolder(int row) const {
  switch (row) {
    case 0:
      return Path("Applications/") + kHost6 + "/Plug-ins";
    case 1:
      return Path("Applications/") + kHost2014 + "/Plug-ins";
    case 2:
      return Path("Plug-ins of 2019");
    default:
      return Path("Plug-ins of the autumn");
  }
}

std::string Machine::MachineData() const { return Path("Library/ApplicationSupport/Halvorix"); }

std::string Machine::UserData() const {
  return Path("home/GNUstep/Library/ApplicationSupport/Halvorix");
}

std::string Machine::Resource(const std::string& name) const {
  return InstallerFolder() + "/OstrelInstaller.app/Resources/" + name;
}

std::string Machine::InstallerProgram() const {
  return InstallerFolder() + "/OstrelInstaller.app/OstrelInstaller";
}

std::vector<std::string> Machine::ReadEnvironment() const {
  std::vector<std::string> words;
  std::istringstream lines(Script({"environment"}));
  for (std::string line; std::getline(lines, line);) words.push_back(line);
  for (std::string& variable : TemporaryVariables()) words.push_back(std::move(variable));
  return words;
}

std::vector<std::string> Machine::TemporaryVariables() const {
  const std::string files = TemporaryFiles();
  return {"TMP=" + files, "TEMP=" + files, "TMPDIR=" + files};
}

Tree Machine::InstalledTree(const std::string& plugin) const {
  return WithMode(ReadTree(Resource(plugin)), 0755);
}

Tree ReadInstalledTree(const std::string& pluginFolder) {
  return ReadTree(pluginFolder + "/Halvorix/Ostrel.plugin");
}
