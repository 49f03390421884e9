#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/endtoend/Tree.h"
#include "tests/support/TemporaryFolder.h"

/// A pretend machine of one test: hosts, preference file, home of the user and
/// its own copy of the installer, all under one folder whose name has a space and
/// a letter beyond ASCII. Gone with this object.
class Machine {
 public:
  Machine();

  /// A host that the system knows; `Register` makes it known.
  void AddHost(const std::string& name, const std::string& version,
               const std::string& signature = "FXTC");
  void Register();
  /// The host's preference file: its whole content, as keys and plug-in folders.
  void SetPreferences(const std::vector<std::pair<std::string, std::string>>& folders);
  /// Files in the user's data folder that wait to be moved.
  void AddUserData();
  /// Another user of the same machine, with a home in the folder `home`. Returns the
  /// GNUSTEP_CONFIG_FILE that a program of that user needs.
  std::string AddUser(const std::string& home) const;
  /// From now on everything here belongs to the user "nobody".
  void GiveToNobody();

  /// What most tests run on: "CS6" and "CC 2014" known to the system, "CC 2019" and
  /// the unlisted version kOtherVersion in the preference file; in this order the
  /// rows 0 to 3 of the wizard, with "Custom" in row 4. And data to be moved.
  void Furnish();
  static constexpr const char* kOtherVersion = "Autumn 25";
  static constexpr int kHostCount = 4;
  static constexpr int kCustomRow = kHostCount;

  std::string Path(const std::string& relative) const { return path + "/" + relative; }
  /// Makes an empty folder and returns its path.
  std::string MakeFolder(const std::string& relative) const;
  /// The plug-in folder of row 0 to 3 of a furnished machine.
  std::string PluginFolder(int row) const;
  std::string MachineData() const;
  std::string UserData() const;
  /// A file or folder in the resources of the installer.
  std::string Resource(const std::string& name) const;
  std::string InstallerProgram() const;
  /// Where programs put what they need for a while.
  std::string TemporaryFiles() const { return folder.Path("t"); }

  /// What a program needs to take this for its machine, as NAME=value.
  const std::vector<std::string>& Environment() const { return environment; }

  /// What stands in a plug-in folder after the installation; `plugin` is the
  /// resource that was to be installed there.
  Tree InstalledTree(const std::string& plugin = "Ostrel64.plugin") const;

 private:
  std::string Script(std::vector<std::string> words) const;
  std::vector<std::string> ReadEnvironment() const;
  /// Where whatever is started for the machine keeps its temporary files.
  std::vector<std::string> TemporaryVariables() const;
  std::string InstallerFolder() const { return Path("Downloads"); }

  TemporaryFolder folder;
  std::vector<std::string> environment;

 public:
  const std::string path;
};

/// The bundle that the installation left in a plug-in folder.
Tree ReadInstalledTree(const std::string& pluginFolder);
