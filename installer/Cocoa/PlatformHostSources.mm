#include "installer/Cocoa/PlatformHostSources.h"

#import <Foundation/Foundation.h>

#include "installer/Cocoa/BundleResources.h"
#include "installer/Cocoa/PropertyListFile.h"
#include "installer/Cocoa/SearchPath.h"
#include "installer/HostApplications.h"
#include "support/Paths.h"

std::optional<std::string> PlatformHostSources::MarkerDocument() {
  std::string path = FindBundleResource("AEFile", "aep");
  if (path.empty()) return std::nullopt;
  return path;
}

std::optional<std::vector<std::string>> PlatformHostSources::ApplicationsForDocument(
    const std::string& document) {
  return ::ApplicationsForDocument(document);
}

std::optional<PropertyValue> PlatformHostSources::ReadDictionary(const std::string& path) {
  return ReadPropertyListFile(path);
}

std::string PlatformHostSources::PreferenceFile() {
  return JoinPath(FirstSearchPath(NSLibraryDirectory, NSLocalDomainMask),
                  "Preferences/com.Adobe.After Effects.paths.plist");
}
