#include "installer/Cocoa/MainMenu.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/MainMenuBar.h"

void InstallMainMenu() {
  NSString* name = [[NSProcessInfo processInfo] processName];
  NSMenu* applicationMenu = [[[NSMenu alloc] initWithTitle:name] autorelease];
  [applicationMenu addItemWithTitle:[@"Quit " stringByAppendingString:name]
                             action:@selector(terminate:)
                      keyEquivalent:@"q"];
  NSMenu* mainMenu = MakeMainMenuBar(FromNative(name));
  id<NSMenuItem> item = [mainMenu addItemWithTitle:name action:nullptr keyEquivalent:@""];
  [mainMenu setSubmenu:applicationMenu forItem:item];
  [NSApp setMainMenu:mainMenu];
}
