#pragma once

#include "installer/HostSources.h"

/// Host detection's view of the machine that the program runs on.
class PlatformHostSources : public HostSources {
 public:
  std::optional<std::string> MarkerDocument() override;
  std::optional<std::vector<std::string>> ApplicationsForDocument(
      const std::string& document) override;
  std::optional<PropertyValue> ReadDictionary(const std::string& path) override;
  std::string PreferenceFile() override;
};
