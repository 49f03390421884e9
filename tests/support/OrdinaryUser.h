#pragma once

#include <functional>

/// What `question` answers in a process without administrator's rights. Root may
/// read and write everything, so refusals cannot be seen while running as root.
/// An answer that never comes, because the process died, counts as a failed test.
bool AskAsOrdinaryUser(const std::function<bool()>& question);
