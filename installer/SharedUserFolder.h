#pragma once

#include <string>

/// The folder of data that all users of this machine share, for example
/// "/Users/Shared"; it need not exist. Empty when the system has none. Any thread.
std::string SharedUserFolder();
