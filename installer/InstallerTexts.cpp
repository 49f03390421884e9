#include "installer/InstallerTexts.h"

#include "installer/Version.h"

std::string InstallerTexts::Welcome() {
  return std::string("This will install Ostrel 3D ") + kPluginVersion + " (" +
         std::to_string(kPluginBuild) +
         ") plugin on your computer.\n\n"
         "It is recommended that you close all other applications before continuing.\n\n"
         "Click Next to continue, or Cancel to exit the installer.";
}

std::string InstallerTexts::HostLabel(const InstallerState& state, std::size_t slot) {
  return slot == kOtherVersionSlot ? state.otherVersionName : kHostCatalogue[slot].label;
}

std::string InstallerTexts::Summary(const InstallerState& state) {
  std::string text = "Installing Ostrel 3D on:\n\n";
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    if (state.hostSelected[slot] == 0) continue;
    if (slot == kCustomSlot && state.hostPath[slot].empty()) continue;
    text += HostLabel(state, slot) + ": \n" + state.hostPath[slot] + "\n\n";
  }
  return text;
}

std::string InstallerTexts::Progress(const InstallerState& state) {
  const int step = state.installStep.load(std::memory_order_relaxed);
  if (step >= 0 && step < kDataFolderStep) {
    return "Installing " + HostLabel(state, static_cast<std::size_t>(step)) + " version...";
  }
  return step == kDataFolderStep ? "Installing assets..." : "Preparing to install...";
}

std::string InstallerTexts::Failure(const InstallerState& state) {
  return "An error occurred while installing Ostrel 3D.\nPlease contact support.\nError code:" +
         std::to_string(state.installError.load(std::memory_order_relaxed));
}
