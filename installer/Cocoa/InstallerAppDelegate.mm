#import "installer/Cocoa/InstallerAppDelegate.h"

#include <memory>
#include <new>

@implementation InstallerAppDelegate

- (id)init {
  self = [super init];
  if (self != nil) new (ui) InstallerUI;
  return self;
}

- (void)dealloc {
  std::destroy_at([self wizard]);
  [super dealloc];
}

- (InstallerUI*)wizard {
  return std::launder(reinterpret_cast<InstallerUI*>(ui));
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
  (void)notification;
  [self wizard]->SetVisible(true);
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
  (void)application;
  return YES;
}

- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)application {
  (void)application;
  InstallerUI* wizard = [self wizard];
  if (wizard->IsClosed()) return NSTerminateNow;
  // A message of the wizard is waiting for its answer; a second question on
  // top of it would only confuse.
  if (!wizard->IsEnabled()) return NSTerminateCancel;
  return wizard->CanClose() ? NSTerminateNow : NSTerminateCancel;
}

@end
