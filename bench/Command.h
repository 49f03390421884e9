#pragma once

#include <string>
#include <vector>

/// Runs a program without a shell, its output thrown away, and waits for it.
/// False when it could not be started or does not end with 0. `command` starts
/// with the program, which is looked up in PATH unless it has a "/".
bool RunCommand(const std::vector<std::string>& command);
