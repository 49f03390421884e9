#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (std::getenv("DISPLAY") == nullptr) {
    std::fputs("These tests need a display: run script/test, which brings its own.\n", stderr);
    return 1;
  }
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  [[NSUserDefaults standardUserDefaults]
      registerDefaults:[NSDictionary dictionaryWithObject:@"YES" forKey:@"GSSuppressAppIcon"]];
  [NSApplication sharedApplication];
  [NSApp finishLaunching];
  const int result = RUN_ALL_TESTS();
  [pool drain];
  return result;
}
