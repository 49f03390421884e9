#include "Src/HXUI/Cocoa/NativeMenu.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "Src/HXUI/Cocoa/HXMenuItem.h"
#include "Src/HXUI/Cocoa/MenuTracking.h"

NSMenu* NativeMenu::Create() {
  NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
  [menu setAutoenablesItems:NO];
  return menu;
}

void NativeMenu::Destroy(NSMenu* menu) { [menu release]; }

void NativeMenu::AddItem(NSMenu* menu, const Item& item) {
  NSString* title = ToNative(item.text);
  if ([title length] == 0) title = @"Menu Item";
  HXMenuItem* native = [[HXMenuItem alloc] initWithTitle:title
                                                  action:@selector(onItemClick:)
                                           keyEquivalent:@""];
  [native setTarget:native];
  [native setEnabled:item.enabled ? YES : NO];
  [native setState:item.checked ? NSOnState : NSOffState];
  [native setIndex:item.index pointer:item.indexPtr];
  [menu addItem:native];
  [native release];
}

void NativeMenu::SetSubmenuOfLastItem(NSMenu* menu, NSMenu* submenu) {
  const NSInteger last = [menu numberOfItems] - 1;
  if (last >= 0) [menu setSubmenu:submenu forItem:[menu itemAtIndex:last]];
}

void NativeMenu::AddSeparator(NSMenu* menu) { [menu addItem:[NSMenuItem separatorItem]]; }

void NativeMenu::Popup(NSMenu* menu, NSView* view, HXRect anchor) {
  if ([view window] == nil) return;
  // Menu tracking may delete the widget, and the view with it.
  [[view retain] autorelease];
  NSPopUpButtonCell* cell = [[NSPopUpButtonCell alloc] initTextCell:@"" pullsDown:NO];
  [cell setAutoenablesItems:NO];
  [cell setAltersStateOfSelectedItem:NO];
  [cell setMenu:menu];
  [cell selectItem:nil];
  MenuTracking::Run(cell, anchor, view);
  [cell release];
}
