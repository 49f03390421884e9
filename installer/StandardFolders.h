#pragma once

#include <optional>
#include <string>

#include "installer/PropertyValue.h"

/// The folders of the machine that the data paths are made of, without a
/// trailing separator; each is empty when the system does not know it.
class StandardFolders {
 public:
  virtual ~StandardFolders() = default;

  virtual std::string MachineApplicationSupport() const = 0;
  virtual std::string UserApplicationSupport() const = 0;
  virtual std::string UserDocuments() const = 0;
  /// The folder of data that all users of the machine share.
  virtual std::string SharedUserData() const = 0;
  /// The property-list file at `path`, a dictionary; nothing when there is none.
  virtual std::optional<PropertyValue> ReadDictionary(const std::string& path) const = 0;
};
