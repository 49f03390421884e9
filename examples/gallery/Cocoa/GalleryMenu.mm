#include "examples/gallery/Cocoa/GalleryMenu.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/MainMenuBar.h"

namespace {

void AddSubmenu(NSMenu* mainMenu, NSMenu* submenu) {
  id<NSMenuItem> item = [mainMenu addItemWithTitle:[submenu title]
                                            action:nullptr
                                     keyEquivalent:@""];
  [mainMenu setSubmenu:submenu forItem:item];
}

}  // namespace

void InstallGalleryMenu() {
  NSMenu* application = [[[NSMenu alloc] initWithTitle:@"Gallery"] autorelease];
  [application addItemWithTitle:@"Quit" action:@selector(terminate:) keyEquivalent:@"q"];

  // Without a target a command goes to whatever has the keyboard.
  NSMenu* edit = [[[NSMenu alloc] initWithTitle:@"Edit"] autorelease];
  [edit addItemWithTitle:@"Cut" action:@selector(cut:) keyEquivalent:@"x"];
  [edit addItemWithTitle:@"Copy" action:@selector(copy:) keyEquivalent:@"c"];
  [edit addItemWithTitle:@"Paste" action:@selector(paste:) keyEquivalent:@"v"];
  [edit addItemWithTitle:@"Select All" action:@selector(selectAll:) keyEquivalent:@"a"];

  NSMenu* mainMenu = MakeMainMenuBar("Gallery");
  AddSubmenu(mainMenu, application);
  AddSubmenu(mainMenu, edit);
  [NSApp setMainMenu:mainMenu];
}
