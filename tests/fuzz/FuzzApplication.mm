#include "tests/fuzz/FuzzApplication.h"

#import <AppKit/AppKit.h>

#include <cstdlib>

#include "Src/HXUI/Cocoa/ApplicationStart.h"
#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/HXWindow.h"

void FuzzApplication::Start() {
  // Never drained: it holds what AppKit makes for the whole process.
  [[NSAutoreleasePool alloc] init];
  if (!StartApplication("This search")) std::exit(1);
  [NSApp finishLaunching];
}

std::unique_ptr<HXWindow> FuzzApplication::MakeWindow() {
  return std::make_unique<HXWindow>(nullptr, HXPoint{0, 0}, HXSize{400, 300}, "Search", 0);
}

void FuzzApplication::WithPool(const std::function<void()>& action) {
  @autoreleasepool {
    action();
  }
}

bool FuzzApplication::IsUtf8(const std::string& text) { return ToNative(text) != nil; }
