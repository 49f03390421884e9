#pragma once

#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

/// A whole machine in one temporary folder: its Applications, Library and Users
/// folders and those of a user, which programs take for the real ones when they
/// run with its environment. Removed afterwards.
class PretendMachine {
 public:
  PretendMachine();

  /// Adds `name`.app, with the host's signature and `version`, in a folder
  /// `name` of the Applications folder, and returns the bundle's path. The
  /// application opens files of `extension`.
  std::string AddHost(const std::string& name, const std::string& version,
                      const std::string& extension = "aep");
  /// Adds the host's preference file with `content`.
  void AddPreferences(const std::string& content);
  /// Adds the file in which other software of the maker keeps the assets folder.
  void AddAssetsPreference(const std::string& content);
  /// Makes the system's list of applications anew.
  void RegisterApplications();
  /// Runs the probe for a document called `document` and returns its lines.
  std::vector<std::string> Probe(const std::string& document);

  TemporaryFolder folder;

 private:
  std::vector<std::string> Run(const std::string& command) const;
};
