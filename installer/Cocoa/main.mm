#import <AppKit/AppKit.h>

#include <csignal>
#include <cstdio>

#import "installer/Cocoa/InstallerAppDelegate.h"
#include "installer/Cocoa/MainMenu.h"
#include "installer/DisplayCheck.h"
#include "installer/EventWait.h"

namespace {

/// Where AppKit would show more than this application wants: as defaults only,
/// so that what the user has chosen still counts.
void RegisterDefaults() {
  NSDictionary* defaults = [NSDictionary dictionaryWithObjectsAndKeys:@"YES", @"GSSuppressAppIcon",
                                                                      @"NSMacintoshInterfaceStyle",
                                                                      @"NSMenuInterfaceStyle", nil];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

}  // namespace

int main(int argc, const char** argv) {
  if (!IsDisplayAvailable()) {
    std::fputs("OstrelInstaller needs a graphical session: no display could be opened.\n", stderr);
    return 1;
  }
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  RegisterDefaults();
  [NSApplication sharedApplication];
  // GNUstep asks the user from within the signal's handler, where hardly
  // anything is allowed. Whoever sends these wants the program to end.
  std::signal(SIGTERM, SIG_DFL);
  std::signal(SIGINT, SIG_DFL);
  InstallMainMenu();
  KeepEventsMoving();
  // The application does not retain its delegate; it ends with the process.
  [NSApp setDelegate:[[InstallerAppDelegate alloc] init]];
  const int status = NSApplicationMain(argc, argv);
  [pool drain];
  return status;
}
