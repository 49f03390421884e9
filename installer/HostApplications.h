#pragma once

#include <optional>
#include <string>
#include <vector>

/// The application bundles that this system registers to open `document`, by
/// path and in the system's order, whatever their role. Nothing when the system
/// has no such list, which is not the same as an empty list. Only the
/// document's type counts. Main thread.
std::optional<std::vector<std::string>> ApplicationsForDocument(const std::string& document);
