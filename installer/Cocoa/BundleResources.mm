#include "installer/Cocoa/BundleResources.h"

#include "Src/HXUI/Cocoa/Conversions.h"

std::string FindBundleResource(const std::string& name, const std::string& type) {
  @autoreleasepool {
    return FromNative([[NSBundle mainBundle] pathForResource:ToNative(name) ofType:ToNative(type)]);
  }
}
