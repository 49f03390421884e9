#include "Src/HXUI/Cocoa/MenuTracking.h"

#import <AppKit/AppKit.h>

#include "Src/HXUI/Cocoa/Conversions.h"

// GNUstep's performClickWithFrame:inView: shows the menu and returns at once,
// without serving it; only its mouse tracking waits for the user.
void MenuTracking::Run(NSPopUpButtonCell* cell, HXRect frame, NSView* view) {
  NSWindow* window = [view window];
  NSEvent* press = [NSEvent mouseEventWithType:NSLeftMouseDown
                                      location:[window mouseLocationOutsideOfEventStream]
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:[window windowNumber]
                                       context:[window graphicsContext]
                                   eventNumber:0
                                    clickCount:1
                                      pressure:1];
  // The cell has put the arrow of a pop-up button into the last item.
  [cell setMenuItem:nil];
  NSMenuView* menuView = [[cell menu] menuRepresentation];
  // In this style the menu outlives the click that has opened it; in the
  // others its release would choose what happens to lie under the pointer.
  [menuView setInterfaceStyle:NSMacintoshInterfaceStyle];
  // The bottom of the first item is laid on the bottom of the rectangle; its
  // top belongs at the rectangle's top.
  [menuView sizeToFit];
  NSRect firstItem = ToNative(frame);
  firstItem.size.height = NSHeight([menuView rectOfItemAtIndex:0]);
  [cell trackMouse:press inRect:firstItem ofView:view untilMouseUp:YES];
}
