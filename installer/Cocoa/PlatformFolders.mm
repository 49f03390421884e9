#include "installer/Cocoa/PlatformFolders.h"

#import <Foundation/Foundation.h>

#include "installer/Cocoa/PropertyListFile.h"
#include "installer/Cocoa/SearchPath.h"
#include "installer/SharedUserFolder.h"

std::string PlatformFolders::MachineApplicationSupport() const {
  return FirstSearchPath(NSApplicationSupportDirectory, NSLocalDomainMask);
}

std::string PlatformFolders::UserApplicationSupport() const {
  return FirstSearchPath(NSApplicationSupportDirectory, NSUserDomainMask);
}

std::string PlatformFolders::UserDocuments() const {
  return FirstSearchPath(NSDocumentDirectory, NSUserDomainMask);
}

std::string PlatformFolders::SharedUserData() const { return SharedUserFolder(); }

std::optional<PropertyValue> PlatformFolders::ReadDictionary(const std::string& path) const {
  return ReadPropertyListFile(path);
}
