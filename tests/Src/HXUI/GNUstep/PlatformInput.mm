#import "tests/Src/HXUI/PlatformInput.h"

#include <X11/Xlib.h>

#import "tests/Src/HXUI/GNUstep/WheelEvent.h"

void MoveRealPointer(NSPoint onScreen) {
  // A connection of our own; the program's belongs to AppKit.
  static Display* display = XOpenDisplay(nullptr);
  const CGFloat height = [[NSScreen mainScreen] frame].size.height;
  XWarpPointer(display, None, DefaultRootWindow(display), 0, 0, 0, 0, static_cast<int>(onScreen.x),
               static_cast<int>(height - onScreen.y));
  XSync(display, False);
}

void TurnWheel(NSView* view, NSPoint inWindow, double lines) {
  NSWindow* window = [view window];
  [window sendEvent:WheelEvent(window, inWindow, lines)];
}
