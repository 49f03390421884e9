#import <AppKit/AppKit.h>

#include <cstdio>

#import "examples/gallery/Cocoa/GalleryAppDelegate.h"
#include "examples/gallery/Cocoa/GalleryMenu.h"
#include "installer/DisplayCheck.h"

namespace {

/// As defaults only, so that what the user has chosen still counts.
void RegisterDefaults() {
  NSDictionary* defaults = [NSDictionary dictionaryWithObjectsAndKeys:@"YES", @"GSSuppressAppIcon",
                                                                      @"NSMacintoshInterfaceStyle",
                                                                      @"NSMenuInterfaceStyle", nil];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

}  // namespace

int main(int argc, const char** argv) {
  if (!IsDisplayAvailable()) {
    std::fputs("Gallery needs a graphical session: no display could be opened.\n", stderr);
    return 1;
  }
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  RegisterDefaults();
  [NSApplication sharedApplication];
  InstallGalleryMenu();
  // The application does not retain its delegate; it ends with the process.
  [NSApp setDelegate:[[GalleryAppDelegate alloc] init]];
  const int status = NSApplicationMain(argc, argv);
  [pool drain];
  return status;
}
