#include "installer/Cocoa/SearchPath.h"

#include "Src/HXUI/Cocoa/Conversions.h"

std::string FirstSearchPath(unsigned directory, unsigned domain) {
  @autoreleasepool {
    NSArray* folders = NSSearchPathForDirectoriesInDomains(
        static_cast<NSSearchPathDirectory>(directory), domain, YES);
    return [folders count] == 0 ? std::string() : FromNative([folders objectAtIndex:0]);
  }
}
