#include "installer/HostApplications.h"

#import <ApplicationServices/ApplicationServices.h>

#include "Src/HXUI/Cocoa/Conversions.h"

std::optional<std::vector<std::string>> ApplicationsForDocument(const std::string& document) {
  @autoreleasepool {
    NSString* path = ToNative(document);
    if (path == nil) return std::nullopt;
    NSURL* url = [NSURL fileURLWithPath:path];
    CFArrayRef applications = LSCopyApplicationURLsForURL((CFURLRef)url, kLSRolesAll);
    if (applications == nullptr) return std::nullopt;
    std::vector<std::string> paths;
    for (NSURL* application in (NSArray*)applications) {
      paths.push_back(FromNative([application path]));
    }
    CFRelease(applications);
    return paths;
  }
}
