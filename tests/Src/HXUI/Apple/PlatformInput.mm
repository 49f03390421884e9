#import "tests/Src/HXUI/PlatformInput.h"

#include <ApplicationServices/ApplicationServices.h>

void MoveRealPointer(NSPoint onScreen) {
  const CGFloat height = [[[NSScreen screens] objectAtIndex:0] frame].size.height;
  CGWarpMouseCursorPosition(CGPointMake(onScreen.x, height - onScreen.y));
}

void TurnWheel(NSView* view, NSPoint inWindow, double lines) {
  // Such an event says nothing of a window, so the view gets it directly.
  (void)inWindow;
  CGEventRef wheel = CGEventCreateScrollWheelEvent(nullptr, kCGScrollEventUnitLine, 1,
                                                   static_cast<std::int32_t>(lines));
  [view scrollWheel:[NSEvent eventWithCGEvent:wheel]];
  CFRelease(wheel);
}
