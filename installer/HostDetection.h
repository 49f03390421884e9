#pragma once

#include "installer/HostSources.h"
#include "installer/InstallerState.h"

/// Finds the host's versions on this machine and notes their plug-in folders:
/// first from the applications that open the host's documents, then from the
/// host's preference file, which wins where both know a version.
///
/// Writes `otherVersionName` and the paths of slots 2 to 13, nothing else, and
/// leaves what it does not find as it was. Cannot fail and shows nothing.
void DetectHosts(HostSources& sources, InstallerState& state);
