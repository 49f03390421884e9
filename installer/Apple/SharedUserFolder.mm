#include "installer/SharedUserFolder.h"

#import <Carbon/Carbon.h>

#include "Src/HXUI/Cocoa/Conversions.h"

std::string SharedUserFolder() {
  FSRef folder;
  if (FSFindFolder(kOnAppropriateDisk, kSharedUserDataFolderType, kDontCreateFolder, &folder) !=
      noErr) {
    return {};
  }
  CFURLRef url = CFURLCreateFromFSRef(kCFAllocatorDefault, &folder);
  if (url == nullptr) return {};
  @autoreleasepool {
    const std::string path = FromNative([(NSURL*)url path]);
    CFRelease(url);
    return path;
  }
}
