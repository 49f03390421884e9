#include "installer/DataPaths.h"

#include <cstdlib>

#include "installer/Cocoa/PlatformFolders.h"
#include "support/Paths.h"
#include "support/Strings.h"

namespace {

constexpr std::int32_t kConfigured = 0;
constexpr std::int32_t kUser = 1;
constexpr std::int32_t kMachine = 2;

std::string LastComponent(const std::string& path) {
  return path.substr(path.find_last_of('/') + 1);
}

/// Characters of the text, not bytes.
std::size_t CountCharacters(const std::string& utf8) {
  std::size_t count = 0;
  for (const char c : utf8) {
    if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) ++count;
  }
  return count;
}

/// Other software of the same maker writes this file. Its place does not follow
/// OSTREL_DATA_PATH.
std::string AssetsPathFromPreferences(const StandardFolders& folders) {
  const std::string file = JoinPath(GetDataPath(folders, kMachine), "Halvorix/ostrel_assets_path");
  const auto preferences = folders.ReadDictionary(file);
  const std::string* path = preferences ? preferences->FindString("AssetsPath") : nullptr;
  return path != nullptr && CountCharacters(*path) > 1 ? *path : std::string();
}

std::string ConfiguredAssetsPath(const StandardFolders& folders) {
  std::string path = AssetsPathFromPreferences(folders);
  if (!path.empty()) return path;
  if (const char* variable = std::getenv("OSTREL_USER_PATH")) return MakeString(variable);
  return GetAssetsPath(folders, kUser);
}

std::string SharedDocuments(const StandardFolders& folders) {
  const std::string shared = folders.SharedUserData();
  if (shared.empty()) return {};
  return JoinPath(shared, LastComponent(folders.UserDocuments()));
}

}  // namespace

std::string GetDataPath(const StandardFolders& folders, std::int32_t kind) {
  if (kind == kConfigured) {
    if (const char* variable = std::getenv("OSTREL_DATA_PATH")) return MakeString(variable);
    return folders.MachineApplicationSupport();
  }
  return kind == kMachine ? folders.MachineApplicationSupport() : folders.UserApplicationSupport();
}

std::string GetAssetsPath(const StandardFolders& folders, std::int32_t kind) {
  if (kind == kConfigured) return ConfiguredAssetsPath(folders);
  return kind == kUser ? folders.UserDocuments() : SharedDocuments(folders);
}

std::string GetDataPath(std::int32_t kind) { return GetDataPath(PlatformFolders(), kind); }

std::string GetAssetsPath(std::int32_t kind) { return GetAssetsPath(PlatformFolders(), kind); }
