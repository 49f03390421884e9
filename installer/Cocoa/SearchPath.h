#pragma once

#include <string>

/// A folder of the system under the platform's own numbers: the first entry of
/// its search path for `directory` in `domain` (1 the user, 2 this machine),
/// without a trailing separator; empty when the platform knows none. Any thread.
std::string FirstSearchPath(unsigned directory, unsigned domain);
