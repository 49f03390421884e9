#pragma once

#include <array>
#include <cstddef>
#include <string_view>

/// One version of the host, and how it is recognised.
struct HostSlot {
  /// Name shown to the user. Empty for the slot of the unlisted version.
  const char* label;
  /// Base name of the plug-in bundle among the installer's resources. For the
  /// custom slot this is the 64-bit one; the user's choice may replace it.
  const char* pluginResource;
  /// What the version of a registered application starts with; empty when none is taken for it.
  std::string_view applicationVersion;
  /// The version's key in the host's preference file; empty when it has none.
  std::string_view preferenceKey;
};

/// The fixed catalogue of host versions. The slot index is the identity of a
/// version throughout the installer: check boxes, summary, order of
/// installation and progress texts all use it.
///
/// Applications are compared in this order, the first match wins. "13" therefore also takes 13.5
/// and 13.8: those two slots are filled from the preference file alone. Installers in the field
/// behave like this, so the order stays. The first two versions are 32-bit programs that are
/// never found, but the slots behind them keep their numbers.
inline constexpr auto kHostCatalogue = std::to_array<HostSlot>({
    {"CS3", "Ostrel32", "", ""},
    {"CS4", "Ostrel32", "", ""},
    {"CS5", "Ostrel64", "10.0", ""},
    {"CS5.5", "Ostrel64", "10.5", ""},
    {"CS6", "Ostrel64", "11", ""},
    {"CC", "Ostrel64", "12", ""},
    {"CC 2014", "Ostrel64", "13", ""},
    {"CC 2015", "Ostrel64", "13.5", "13.5"},
    {"CC 2015.3", "Ostrel64", "13.8", "13.8"},
    {"CC 2017", "Ostrel64", "14.0", "14.0"},
    {"CC 2018", "Ostrel64", "", "15.0"},
    {"CC 2019", "Ostrel64", "", "16.0"},
    {"2020", "Ostrel64", "", "17.0"},
    {"", "Ostrel64", "", ""},
    {"Custom", "Ostrel64", "", ""},
});

inline constexpr std::size_t kHostSlotCount = kHostCatalogue.size();
/// The slot of a version that stands in the host's preference file under a
/// key that the catalogue does not know; its label is that key.
inline constexpr std::size_t kOtherVersionSlot = kHostSlotCount - 2;
/// The slot of the folder that the user picks.
inline constexpr std::size_t kCustomSlot = kHostSlotCount - 1;
/// The value of `installStep` while the data folder is prepared.
inline constexpr int kDataFolderStep = static_cast<int>(kHostSlotCount);
