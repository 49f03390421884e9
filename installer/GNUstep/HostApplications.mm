#include "installer/HostApplications.h"

#include "Src/HXUI/Cocoa/Conversions.h"

namespace {

std::optional<std::vector<std::string>> ApplicationsForExtension(NSString* extension) {
  NSWorkspace* workspace = [NSWorkspace sharedWorkspace];
  NSDictionary* applications = [workspace infoForExtension:extension];
  if (applications == nil) return std::nullopt;
  std::vector<std::string> paths;
  for (NSString* name in applications) {
    // The list may name an application that has been removed since.
    NSString* path = [workspace fullPathForApplication:name];
    if (path != nil) paths.push_back(FromNative(path));
  }
  return paths;
}

}  // namespace

std::optional<std::vector<std::string>> ApplicationsForDocument(const std::string& document) {
  @autoreleasepool {
    @try {
      return ApplicationsForExtension([ToNative(document) pathExtension]);
    } @catch (NSException*) {
      // A damaged list of applications is no list.
      return std::nullopt;
    }
  }
}
