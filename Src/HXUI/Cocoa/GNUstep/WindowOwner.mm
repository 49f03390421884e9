#include "Src/HXUI/Cocoa/WindowOwner.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

// To the window manager a modal window is a window like any other: a click on
// the blocked one behind would raise that one over it. So it has to be told.
void KeepInFront(NSWindow* dialog, NSWindow* owner) {
  if (dialog == nil || owner == nil) return;
  [GSServerForWindow(dialog) setParentWindow:static_cast<int>([owner windowNumber])
                              forChildWindow:static_cast<int>([dialog windowNumber])];
}
