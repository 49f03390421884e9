#include "installer/HostDetection.h"

#include <string_view>

#include "support/Paths.h"

namespace {

std::string ContainingFolder(std::string_view path) {
  while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return {};
  return std::string(path.substr(0, slash == 0 ? 1 : slash));
}

/// An absent signature counts as the host's: such an application still needs a
/// known version to matter. One that is no text is another's.
bool HasHostSignature(const PropertyValue& info) {
  const PropertyValue* signature = info.Find("CFBundleSignature");
  if (signature == nullptr) return true;
  const std::string* text = signature->AsString();
  return text != nullptr && *text == "FXTC";
}

void NoteApplication(const std::string& application, const PropertyValue& info,
                     InstallerState& state) {
  if (!HasHostSignature(info)) return;
  const std::string* version = info.FindString("CFBundleVersion");
  if (version == nullptr) return;
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    const std::string_view start = kHostCatalogue[slot].applicationVersion;
    if (!start.empty() && version->starts_with(start)) {
      state.hostPath[slot] = JoinPath(ContainingFolder(application), "Plug-ins");
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

void NotePreference(const std::string& key, const std::string& folder, InstallerState& state) {
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    const std::string_view known = kHostCatalogue[slot].preferenceKey;
    if (!known.empty() && key == known) {
      state.hostPath[slot] = folder;
      return;
    }
  }
  state.hostPath[kOtherVersionSlot] = folder;
  state.otherVersionName = key;
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
