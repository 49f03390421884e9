#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/ApplicationStart.h"
#import "examples/gallery/Cocoa/GalleryAppDelegate.h"
#include "examples/gallery/Cocoa/GalleryMenu.h"

int main(int argc, const char** argv) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  if (!StartApplication("Gallery")) return 1;
  InstallGalleryMenu();
  // The application does not retain its delegate; it ends with the process.
  [NSApp setDelegate:[[GalleryAppDelegate alloc] init]];
  const int status = NSApplicationMain(argc, argv);
  [pool drain];
  return status;
}
