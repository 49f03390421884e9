#import <AppKit/AppKit.h>

#include <csignal>

// The least that an application with one window can be: the reference for the
// installer's start. It fills its window, as large as the installer's and at
// the same place, with the same colour.

@interface BareView : NSView
@end

@implementation BareView
- (void)drawRect:(NSRect)dirty {
  [[NSColor colorWithDeviceRed:45 / 255.0F green:45 / 255.0F blue:45 / 255.0F alpha:1] set];
  NSRectFill(dirty);
}
@end

@interface BareDelegate : NSObject {
  NSWindow* window;
}
@end

@implementation BareDelegate
- (void)applicationDidFinishLaunching:(NSNotification*)notification {
  (void)notification;
  const NSRect content = NSMakeRect(0, 0, 500, 360);
  window = [[NSWindow alloc] initWithContentRect:content
                                       styleMask:NSTitledWindowMask | NSClosableWindowMask
                                         backing:NSBackingStoreBuffered
                                           defer:NO];
  [window setTitle:@"Bare window"];
  [window setContentView:[[[BareView alloc] initWithFrame:content] autorelease]];
  [window center];
  [window makeKeyAndOrderFront:nil];
}
@end

int main() {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  // What the installer spares itself, this program does not do either.
  NSDictionary* defaults = [NSDictionary dictionaryWithObjectsAndKeys:@"YES", @"GSSuppressAppIcon",
                                                                      @"NSMacintoshInterfaceStyle",
                                                                      @"NSMenuInterfaceStyle", nil];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
  [NSApplication sharedApplication];
  std::signal(SIGTERM, SIG_DFL);
  [NSApp setDelegate:[[BareDelegate alloc] init]];
  [NSApp run];
  [pool drain];
  return 0;
}
