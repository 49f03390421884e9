#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/ApplicationStart.h"
#import "installer/Cocoa/InstallerAppDelegate.h"
#import "installer/Cocoa/MainMenu.h"

int main(int argc, const char** argv) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  if (!StartApplication("OstrelInstaller")) return 1;
  InstallMainMenu();
  // The application does not retain its delegate; it ends with the process.
  [NSApp setDelegate:[[InstallerAppDelegate alloc] init]];
  const int status = NSApplicationMain(argc, argv);
  [pool drain];
  return status;
}
