#include "Src/HXUI/Cocoa/ApplicationStart.h"

#import <AppKit/AppKit.h>

#include <csignal>
#include <cstdio>

#include "Src/HXUI/Cocoa/DisplayCheck.h"
#include "Src/HXUI/Cocoa/EventWait.h"
#include "Src/HXUI/Cocoa/SharedApplication.h"

/// The body of a thread that has nothing to do.
@interface IdleThread : NSObject
+ (void)run:(id)argument;
@end

@implementation IdleThread
+ (void)run:(id)argument {
  (void)argument;
}
@end

namespace {

/// Where AppKit would show more than these applications want, or take more to heart: GNUstep
/// tells a daemon of the session which application is active, and throws out of whatever
/// opens a window when that daemon has gone. As defaults only, so that what the user has
/// chosen still counts.
void RegisterDefaults() {
  NSDictionary* defaults = [NSDictionary
      dictionaryWithObjectsAndKeys:@"YES", @"GSSuppressAppIcon", @"NSMacintoshInterfaceStyle",
                                   @"NSMenuInterfaceStyle", @"YES", @"GSLogWorkspaceTimeout", nil];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

/// The platform takes its locks in earnest only after the first thread of its
/// own kind. `HXThread` is not of that kind and draws while windows do: without
/// this a lock may be given back that was never taken.
void PrepareForThreads() {
  [NSThread detachNewThreadSelector:@selector(run:) toTarget:[IdleThread class] withObject:nil];
}

}  // namespace

bool StartApplication(const char* program) {
  if (!IsDisplayAvailable()) {
    std::fprintf(stderr, "%s needs a graphical session: no display could be opened.\n", program);
    return false;
  }
  RegisterDefaults();
  PrepareForThreads();
  MakeSharedApplication();
  // GNUstep asks the user from within the signal's handler, where hardly
  // anything is allowed. Whoever sends these wants the program to end.
  std::signal(SIGTERM, SIG_DFL);
  std::signal(SIGINT, SIG_DFL);
  KeepEventsMoving();
  return true;
}
