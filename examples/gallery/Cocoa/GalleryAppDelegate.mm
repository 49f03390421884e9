#import "examples/gallery/Cocoa/GalleryAppDelegate.h"

#include "examples/gallery/GalleryWindow.h"

@implementation GalleryAppDelegate

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
  (void)notification;
  window = new GalleryWindow;
  window->SetVisible(true);
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
  (void)application;
  return YES;
}

- (void)applicationWillTerminate:(NSNotification*)notification {
  (void)notification;
  delete window;
  window = nullptr;
}

@end
