#pragma once

#include <map>
#include <utility>

#include "installer/HostSources.h"
#include "support/Paths.h"

/// A machine made of values: every answer of HostSources is a member, and the
/// questions are noted in `asked`.
class FakeHostSources : public HostSources {
 public:
  std::optional<std::string> MarkerDocument() override {
    asked.emplace_back("marker");
    return marker;
  }

  std::optional<std::vector<std::string>> ApplicationsForDocument(
      const std::string& document) override {
    asked.push_back("applications for " + document);
    return applications;
  }

  std::optional<PropertyValue> ReadDictionary(const std::string& path) override {
    asked.push_back("read " + path);
    const auto file = files.find(path);
    if (file == files.end()) return std::nullopt;
    return file->second;
  }

  std::string PreferenceFile() override { return "/Library/Preferences/host.plist"; }

  /// Registers an application whose Info.plist holds `entries`.
  void AddApplication(const std::string& path, std::vector<PropertyEntry> entries) {
    applications->push_back(path);
    files[JoinPath(path, "Contents/Info.plist")] = PropertyValue::Dictionary(std::move(entries));
  }

  /// Registers one with the host's signature and `version`.
  void AddHost(const std::string& path, const std::string& version) {
    AddApplication(path, {{"CFBundleSignature", PropertyValue::String("FXTC")},
                          {"CFBundleVersion", PropertyValue::String(version)}});
  }

  /// Adds `version` with `folder` to the end of the preference file.
  void AddPreference(const std::string& version, const std::string& folder) {
    AddPreference(
        version, PropertyValue::Dictionary({{"PluginInstallPath", PropertyValue::String(folder)}}));
  }

  void AddPreference(const std::string& version, PropertyValue value) {
    preferences.push_back({version, std::move(value)});
    files[PreferenceFile()] = PropertyValue::Dictionary(preferences);
  }

  std::optional<std::string> marker = "/Installer/AEFile.aep";
  std::optional<std::vector<std::string>> applications = std::vector<std::string>();
  std::vector<std::string> asked;

 private:
  std::map<std::string, PropertyValue> files;
  std::vector<PropertyEntry> preferences;
};
