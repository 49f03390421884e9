#pragma once

#include <cstdint>
#include <string>

#include "installer/StandardFolders.h"

/// Folder that holds the plug-in's data folder, without a trailing separator.
/// `kind` 0: the value of OSTREL_DATA_PATH as it stands when that variable is
/// set, else as 2. 2: the machine-wide application-support folder. 1 and every
/// other kind: the user's own. Empty when the system does not know it; whether
/// it exists is not looked at. Any thread, as long as none changes the environment.
std::string GetDataPath(std::int32_t kind);

/// Folder of the assets library. `kind` 0: the "AssetsPath" of the preference
/// file when it has two characters or more, else the value of OSTREL_USER_PATH,
/// else as 1. 1: the user's documents folder. 2 and every other kind: the
/// documents folder that all users share. Otherwise as GetDataPath.
std::string GetAssetsPath(std::int32_t kind);

/// The same on `folders` in place of this machine's.
std::string GetDataPath(const StandardFolders& folders, std::int32_t kind);
std::string GetAssetsPath(const StandardFolders& folders, std::int32_t kind);
