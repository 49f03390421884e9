#pragma once

#include "installer/InstallationWorld.h"
#include "installer/InstallerState.h"

/// One whole installation: obtains administrator's rights, puts the plug-in into
/// the folder of every selected host, then prepares the data folder. Blocks
/// until it has ended, so it belongs on a thread of its own; it cannot be stopped.
///
/// Reads the selections of `state` and writes its status members only, a redraw
/// being asked for at each step. It fails when the rights are refused or when
/// the copying tool cannot be started; how tools end is not looked at. A slot's
/// tools are not waited for and may still run when this returns.
void RunInstallation(InstallerState& state, InstallationWorld& world);
