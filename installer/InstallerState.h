#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <string>

#include "installer/HostCatalogue.h"

/// What the wizard, host detection and the installation run share. The wizard
/// window owns it, as its base.
///
/// The selections and paths belong to the main thread; the run only reads
/// them, and the wizard does not change them while a run is under way. The
/// status members are written by the run's thread, or by the main thread when
/// none can be made, and read by the main thread without a lock: `installDone`
/// is written last, with release order, so whoever sees it set sees the end of
/// the run. Nobody writes `installError`.
struct InstallerState {
  /// One flag (0 or 1) per slot, bound to the check boxes of the host page.
  std::array<std::uint8_t, kHostSlotCount> hostSelected{};
  /// Plug-in folder per slot; empty means not found or not chosen.
  std::array<std::string, kHostSlotCount> hostPath;
  /// The preference file's own name of the version in `kOtherVersionSlot`.
  std::string otherVersionName;
  /// Plug-in for the custom folder: 0 is the 32-bit one, anything else the 64-bit one.
  std::int32_t customBitness = 1;

  /// The assets folder shown by the wizard, and which of the three options it came from.
  std::array<bool, 3> assetsChoice{};
  std::string assetsPath;

  /// Slot being installed, `kDataFolderStep`, or -1 before the first step.
  std::atomic<std::int32_t> installStep{-1};
  /// Number shown in the error message; always 0.
  std::atomic<std::int32_t> installError{0};
  /// The run has ended, well or not.
  std::atomic<bool> installDone{false};
  /// Set before `installDone` when the run ended in failure.
  std::atomic<bool> installFailed{false};
};
