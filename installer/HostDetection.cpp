#include "installer/HostDetection.h"

#include <array>
#include <string_view>

#include "support/Paths.h"

namespace {

struct VersionRule {
  std::string_view version;
  std::size_t slot;
};

// Tried in this order, the first match wins. "13" therefore also takes 13.5 and
// 13.8: those two slots are filled from the preference file alone. Installers
// in the field behave like this, so the order stays.
constexpr std::array<VersionRule, 8> kApplicationRules = {{
    {"10.0", 2},
    {"10.5", 3},
    {"11", 4},
    {"12", 5},
    {"13", 6},
    {"13.5", 7},
    {"13.8", 8},
    {"14.0", 9},
}};

constexpr std::array<VersionRule, 6> kPreferenceRules = {{
    {"13.5", 7},
    {"13.8", 8},
    {"14.0", 9},
    {"15.0", 10},
    {"16.0", 11},
    {"17.0", 12},
}};

std::string ContainingFolder(std::string_view path) {
  while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return {};
  return std::string(path.substr(0, slash == 0 ? 1 : slash));
}

/// An absent signature counts as the host's: such an application still needs a
/// known version to matter.
bool HasHostSignature(const PropertyValue& info) {
  const std::string* signature = info.FindString("CFBundleSignature");
  return signature == nullptr || *signature == "FXTC";
}

void NoteApplication(const std::string& application, const PropertyValue& info,
                     InstallerState& state) {
  if (!HasHostSignature(info)) return;
  const std::string* version = info.FindString("CFBundleVersion");
  if (version == nullptr) return;
  for (const VersionRule& rule : kApplicationRules) {
    if (version->starts_with(rule.version)) {
      state.hostPath[rule.slot] = JoinPath(ContainingFolder(application), "Plug-ins");
      return;
    }
  }
}

/// False when the system could not be asked; the preference file is then of no
/// interest either.
bool ScanApplications(HostSources& sources, InstallerState& state) {
  const auto document = sources.MarkerDocument();
  if (!document) return false;
  const auto applications = sources.ApplicationsForDocument(*document);
  if (!applications) return false;
  for (const std::string& application : *applications) {
    const auto info = sources.ReadDictionary(JoinPath(application, "Contents/Info.plist"));
    if (info) NoteApplication(application, *info, state);
  }
  return true;
}

void NotePreference(const std::string& version, const std::string& folder, InstallerState& state) {
  for (const VersionRule& rule : kPreferenceRules) {
    if (version == rule.version) {
      state.hostPath[rule.slot] = folder;
      return;
    }
  }
  state.hostPath[kOtherVersionSlot] = folder;
  state.otherVersionName = version;
}

void ScanPreferenceFile(HostSources& sources, InstallerState& state) {
  const auto preferences = sources.ReadDictionary(sources.PreferenceFile());
  if (!preferences) return;
  for (const PropertyEntry& entry : preferences->Entries()) {
    const std::string* folder = entry.value.FindString("PluginInstallPath");
    if (folder != nullptr) NotePreference(entry.key, *folder, state);
  }
}

}  // namespace

void DetectHosts(HostSources& sources, InstallerState& state) {
  if (ScanApplications(sources, state)) ScanPreferenceFile(sources, state);
}
