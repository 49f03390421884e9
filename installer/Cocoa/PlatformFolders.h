#pragma once

#include "installer/StandardFolders.h"

/// The standard folders of the machine that the program runs on. Any thread.
class PlatformFolders : public StandardFolders {
 public:
  std::string MachineApplicationSupport() const override;
  std::string UserApplicationSupport() const override;
  std::string UserDocuments() const override;
  std::string SharedUserData() const override;
  std::optional<PropertyValue> ReadDictionary(const std::string& path) const override;
};
