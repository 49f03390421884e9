#pragma once

#include <optional>
#include <string>
#include <vector>

#include "installer/PropertyValue.h"

/// Where host detection learns about this machine. One object serves one
/// detection; all operations are called on the thread that detects, the main one.
class HostSources {
 public:
  virtual ~HostSources() = default;

  /// Path of the marker document, an empty project of the host's file type
  /// among the installer's own resources; nothing when it is missing.
  virtual std::optional<std::string> MarkerDocument() = 0;

  /// The application bundles that can open `document`, in the platform's
  /// order. No list at all is another answer than an empty list.
  virtual std::optional<std::vector<std::string>> ApplicationsForDocument(
      const std::string& document) = 0;

  /// The property-list file at `path`, always a dictionary; nothing when the
  /// file is missing, unreadable or holds anything else.
  virtual std::optional<PropertyValue> ReadDictionary(const std::string& path) = 0;

  /// Path of the host's own file of plug-in folders. It need not exist.
  virtual std::string PreferenceFile() = 0;
};
