#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "Src/HXUI/Cocoa/ApplicationStart.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  // script/test brings a display of its own.
  if (!StartApplication("This test")) return 1;
  [NSApp finishLaunching];
  const int result = RUN_ALL_TESTS();
  [pool drain];
  return result;
}
