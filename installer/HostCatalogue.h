#pragma once

#include <array>
#include <cstddef>

/// The fixed catalogue of host versions. The slot index is the identity of a
/// version throughout the installer: check boxes, summary, order of
/// installation and progress texts all use it.
inline constexpr std::size_t kHostSlotCount = 15;
/// The slot of a version that stands in the host's preference file under a
/// name that the catalogue does not know; its label is that name.
inline constexpr std::size_t kOtherVersionSlot = 13;
/// The slot of the folder that the user picks.
inline constexpr std::size_t kCustomSlot = 14;
/// The value of `installStep` while the data folder is prepared.
inline constexpr int kDataFolderStep = 15;

/// One row of the catalogue; all strings live as long as the program.
struct HostSlot {
  /// Name shown to the user. Empty for the slot of the unlisted version.
  const char* label;
  /// Base name of the plug-in bundle among the installer's resources. For the
  /// custom slot this is the 64-bit one; the user's choice may replace it.
  const char* pluginResource;
};

extern const std::array<HostSlot, kHostSlotCount> kHostCatalogue;
