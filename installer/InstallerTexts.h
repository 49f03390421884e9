#pragma once

#include <string>

#include "installer/InstallerState.h"

/// The texts of the wizard that depend on what is being installed. UTF-8; any
/// thread that may read the state.
namespace InstallerTexts {

/// Names the plug-in's version and build.
std::string Welcome();

/// The name of a slot as its check box and the progress text show it.
std::string HostLabel(const InstallerState& state, std::size_t slot);

/// What will be installed where: every selected host with its folder, the
/// custom one only when a folder has been chosen.
std::string Summary(const InstallerState& state);

/// The step under way; any step that is none gives "Preparing to install...".
std::string Progress(const InstallerState& state);

/// The message after a failed run, ending in the error's number.
std::string Failure(const InstallerState& state);

}  // namespace InstallerTexts
